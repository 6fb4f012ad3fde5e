// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace NQuery {

/// A text with each run of blanks and line ends as one blank, and none at its ends.
std::wstring Folded(std::wstring_view text);

/// The same of a DESC without its markup: of a tag such as `<p>` or `<li>` a blank is left, of those inside a word
/// (`<b>`, `<i>`, `<u>`, `<sub>`, `<sup>`) nothing. A `<` without end stands for itself.
std::wstring PlainText(std::wstring_view markup);

} // namespace NQuery
