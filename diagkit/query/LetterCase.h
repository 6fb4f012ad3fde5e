// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace NQuery {

/// The small letter of a capital one, and any other character as it is: Latin, Greek and Cyrillic, in every locale.
wchar_t SmallOf(wchar_t character);

/// The capital letter of a small one, and any other character as it is. Where a small letter has no capital one of its
/// own, it stays.
wchar_t CapitalOf(wchar_t character);

} // namespace NQuery
