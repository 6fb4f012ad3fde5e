// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace NConformance {

/// The text of reference.txt; the build makes the source of it.
extern wchar_t const* const kReferenceText;

} // namespace NConformance
