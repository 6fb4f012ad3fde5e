// SPDX-License-Identifier: Apache-2.0
#pragma once

/// Whether a model keeps the promises of the contract: `diagkit::conformance`. All public headers of the library.

#include <diagkit/conformance/Conformance.h>
#include <diagkit/conformance/Reference.h>
