// SPDX-License-Identifier: Apache-2.0
#pragma once

/// Queries about a whole database: `diagkit::query`. All public headers of the library.

#include <diagkit/query/ConstantBytes.h>
#include <diagkit/query/Content.h>
#include <diagkit/query/Diff.h>
#include <diagkit/query/DopValues.h>
#include <diagkit/query/Explain.h>
#include <diagkit/query/FilePlace.h>
#include <diagkit/query/Find.h>
#include <diagkit/query/InheritanceGraph.h>
#include <diagkit/query/InheritedKind.h>
#include <diagkit/query/LayerView.h>
#include <diagkit/query/MessageLayout.h>
#include <diagkit/query/Uses.h>
