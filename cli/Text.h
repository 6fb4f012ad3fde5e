// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include <diagkit/model/OdxElement.h>

namespace NCli {

/// Whether a character controls a display and has no visible form: control characters, the separators of lines and
/// paragraphs, and those that change the direction of text.
bool IsSteering(char32_t character);

/// A text of a database or of the command line for people to read, in UTF-8. Control characters become U+FFFD, so that
/// no data can control a terminal or be displayed misleadingly.
std::string Shown(std::wstring_view text);
std::string Shown(std::string_view text);

/// The short name for people to read; a dash for an element without one.
std::string ShownName(NODX201::VOdxElement const& element);

/// The ID for people to read; "" for an element without one.
std::string ShownId(NODX201::VOdxElement const& element);

/// The ODX tag of an element: "ECU-VARIANT".
std::string TagTextOf(NODX201::VOdxElement const& element);

/// @ID; "" for an element without one.
wchar_t const* IdOf(NODX201::VOdxElement const& element);

/// "a STRUCTURE", "an END-OF-PDU-FIELD"
std::string WithArticle(std::string const& tag);

/// "1 layer", "2 layers"
std::string Counted(std::size_t count, std::string_view noun);

} // namespace NCli
