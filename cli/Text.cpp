// SPDX-License-Identifier: Apache-2.0
#include <cli/Text.h>

#include <algorithm>

#include <fmt/format.h>

#include <diagkit/reader/Utf8.h>

namespace NCli {

bool IsSteering(char32_t character) {
    bool const isControl = character < U' ' || (character >= U'\x7F' && character < U'\xA0');
    bool const isSeparator = character == U'\x2028' || character == U'\x2029';
    bool const isMark = character == U'\x200E' || character == U'\x200F' || character == U'\x061C';
    bool const isEmbedding = character >= U'\x202A' && character <= U'\x202E';
    bool const isIsolate = character >= U'\x2066' && character <= U'\x2069';
    return isControl || isSeparator || isMark || isEmbedding || isIsolate;
}

std::string Shown(std::wstring_view text) {
    std::wstring shown(text);
    std::replace_if(
        shown.begin(), shown.end(), [](wchar_t character) { return IsSteering(static_cast<char32_t>(character)); },
        L'\xFFFD');
    return NReader::ToUtf8(shown);
}

std::string Shown(std::string_view text) { return Shown(NReader::FromUtf8(text)); }

std::string ShownName(NODX201::VOdxElement const& element) {
    std::wstring_view const name = element.GetShortName();
    return name.empty() ? "-" : Shown(name);
}

std::string ShownId(NODX201::VOdxElement const& element) { return Shown(IdOf(element)); }

std::string ShownOtherId(NODX201::VOdxElement const& element) {
    std::wstring_view const id = IdOf(element);
    return id == element.GetShortName() ? "" : Shown(id);
}

std::string TagTextOf(NODX201::VOdxElement const& element) {
    return NReader::ToUtf8(NODX201::OdxTagText(element.GetOdxTag()));
}

wchar_t const* IdOf(NODX201::VOdxElement const& element) {
    auto const* const referencable = dynamic_cast<NODX201::VReferencable const*>(&element);
    return referencable != nullptr ? referencable->GetId() : L"";
}

std::string WithArticle(std::string const& tag) {
    return (std::string_view("AEIO").find(tag.front()) != std::string_view::npos ? "an " : "a ") + tag;
}

std::string Counted(std::size_t count, std::string_view noun) {
    return fmt::format("{} {}{}", count, noun, count == 1 ? "" : "s");
}

} // namespace NCli
