// SPDX-License-Identifier: Apache-2.0
#pragma once

/// What a database tells about itself: `diagkit::check`. All public headers of the library.

#include <diagkit/check/Check.h>
#include <diagkit/check/Codes.h>
#include <diagkit/check/Cycles.h>
