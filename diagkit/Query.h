// SPDX-License-Identifier: Apache-2.0
#pragma once

/// Questions about a whole database: `diagkit::query`. All public headers of the library.

#include <diagkit/query/Content.h>
#include <diagkit/query/Diff.h>
#include <diagkit/query/Explain.h>
#include <diagkit/query/FilePlace.h>
#include <diagkit/query/InheritanceGraph.h>
#include <diagkit/query/InheritedKind.h>
#include <diagkit/query/LayerView.h>
#include <diagkit/query/Uses.h>
