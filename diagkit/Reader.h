// SPDX-License-Identifier: Apache-2.0
#pragma once

/// The reader of ODX documents and PDX packages: `diagkit::reader`. All public headers of the library.

#include <diagkit/reader/Diagnostic.h>
#include <diagkit/reader/Folder.h>
#include <diagkit/reader/Limits.h>
#include <diagkit/reader/OdxReader.h>
#include <diagkit/reader/Utf8.h>
