// SPDX-License-Identifier: Apache-2.0
#include <diagkit/cli/Text.h>

#include <algorithm>

#include <fmt/format.h>

#include <diagkit/reader/Utf8.h>

namespace NCli {
namespace {

bool IsControl(wchar_t character) {
    return character < L' ' || (character >= L'\x7F' && character < L'\xA0') || character == L'\x2028' ||
           character == L'\x2029';
}

} // namespace

std::string Shown(std::wstring_view text) {
    std::wstring shown(text);
    std::replace_if(shown.begin(), shown.end(), &IsControl, L'\xFFFD');
    return NReader::ToUtf8(shown);
}

std::string Shown(std::string_view text) { return Shown(NReader::FromUtf8(text)); }

std::string ShownName(NODX201::VOdxElement const& element) {
    std::wstring_view const name = element.GetShortName();
    return name.empty() ? "-" : Shown(name);
}

std::string ShownId(NODX201::VOdxElement const& element) { return Shown(IdOf(element)); }

std::string TagTextOf(NODX201::VOdxElement const& element) {
    return NReader::ToUtf8(NODX201::OdxTagText(element.GetOdxTag()));
}

wchar_t const* IdOf(NODX201::VOdxElement const& element) {
    auto const* const referencable = dynamic_cast<NODX201::VReferencable const*>(&element);
    return referencable != nullptr ? referencable->GetId() : L"";
}

std::string Counted(std::size_t count, std::string_view noun) {
    return fmt::format("{} {}{}", count, noun, count == 1 ? "" : "s");
}

} // namespace NCli
