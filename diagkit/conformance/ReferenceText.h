// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace NConformance {

/// The text of reference.txt; the build generates its source.
extern wchar_t const* const kReferenceText;

} // namespace NConformance
