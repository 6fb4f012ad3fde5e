// SPDX-License-Identifier: Apache-2.0
#include <cli/ValueText.h>

#include <algorithm>
#include <cstdint>
#include <string_view>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <cli/Columns.h>
#include <cli/Text.h>
#include <diagkit/query/Content.h>

namespace NCli {
namespace {

using NQuery::VBound;
using NQuery::VContentPart;
using NQuery::VPartRole;
using NQuery::VValueScale;

bool IsInfinite(VBound const& bound) { return bound.intervalType == std::wstring_view(L"INFINITE"); }
bool IsOpen(VBound const& bound) { return bound.intervalType == std::wstring_view(L"OPEN"); }
bool HasText(VBound const& bound) { return *bound.text != L'\0' && !IsInfinite(bound); }

/// One term of a polynomial; "" where it counts nothing.
std::string TermText(wchar_t const* coefficient, std::size_t power) {
    std::string const number = Shown(std::wstring_view(coefficient));
    std::string const variable = power == 0 ? "" : power == 1 ? "x" : fmt::format("x^{}", power);
    if (number == "0") {
        return "";
    }
    return variable.empty() ? number
           : number == "1"  ? variable
           : number == "-1" ? "-" + variable
                            : number + " * " + variable;
}

/// "0.5 * x - 40", the highest power first.
std::string PolynomialText(std::vector<wchar_t const*> const& coefficients) {
    std::string text;
    for (std::size_t power = coefficients.size(); power-- > 0;) {
        std::string const term = TermText(coefficients[power], power);
        if (term.empty()) {
            continue;
        }
        bool const isNegative = term.front() == '-';
        text += text.empty() ? term : (isNegative ? " - " + term.substr(1) : " + " + term);
    }
    return text.empty() ? "0" : text;
}

std::string InParentheses(std::string const& text) {
    return text.find(' ') != std::string::npos ? "(" + text + ")" : text;
}

std::string TypeOfCode(NODX201::VDiagCodedType& type) {
    std::string base;
    NQuery::ForEachPartOf(type, [&base](VContentPart const& part) {
        base = part.tag == std::wstring_view(L"BASE-DATA-TYPE") ? Shown(std::wstring_view(part.text)) : base;
    });
    return base;
}

std::string HexNumber(std::string const& digits, NQuery::VExtent const& bitLength) {
    std::uint64_t number = 0;
    for (char const digit : digits) {
        number = number * 10 + static_cast<std::uint64_t>(digit - '0');
    }
    std::uint64_t const bits = bitLength.IsFixed() ? std::min<std::uint64_t>(bitLength.least, 64) : 0;
    return fmt::format("0x{:0{}X}", number, (bits + 3) / 4);
}

bool AreAll(std::string_view text, std::string_view characters) {
    return !text.empty() && text.find_first_not_of(characters) == std::string_view::npos;
}

std::string DtcText(NODX201::VDtc& code) {
    std::string number;
    std::string shown;
    std::string text;
    NQuery::ForEachPartOf(code, [&](VContentPart const& part) {
        std::wstring_view const tag = part.tag;
        std::string& target = tag == L"TROUBLE-CODE" ? number : tag == L"TEXT" ? text : shown;
        if (part.role == VPartRole::Text && (&target != &shown || tag == L"DISPLAY-TROUBLE-CODE")) {
            target = Shown(std::wstring_view(part.text));
        }
    });
    return fmt::format("{} = {}{}", number, shown.empty() ? ShownName(code) : shown, text.empty() ? "" : ", " + text);
}

/// Whether an attribute or text is told beside the tag of its element: no name, nothing that is the usual, and nothing
/// that stands for itself in a walk.
bool IsValue(VContentPart const& part) {
    static constexpr std::wstring_view kNames[] = {L"ID",        L"OID", L"xsi:type", L"SHORT-NAME", L"DESC",
                                                   L"LONG-NAME", L"TI",  L"REVISION", L"ROLE",       L"AUT-METHOD"};
    bool const isText = part.role == VPartRole::Attribute || part.role == VPartRole::Text;
    std::wstring_view const tag = part.tag;
    bool const isFlag = part.role == VPartRole::Attribute && tag.substr(0, 3) == L"IS-";
    bool const isPlain = (tag == L"INTERVAL-TYPE" && part.text == std::wstring_view(L"CLOSED")) ||
                         (tag == L"ADDRESSING" && part.text == std::wstring_view(L"PHYSICAL")) ||
                         (tag == L"DISPLAY-RADIX" && part.text == std::wstring_view(L"DEC"));
    return isText && !isFlag && !isPlain && std::find(std::begin(kNames), std::end(kNames), tag) == std::end(kNames);
}

} // namespace

std::string ExtentText(NQuery::VExtent const& extent) {
    if (extent.IsFixed()) {
        return fmt::format("{}", extent.least);
    }
    return extent.most.has_value() ? fmt::format("{}-{}", extent.least, *extent.most)
                                   : fmt::format("{}+", extent.least);
}

std::string LengthText(NQuery::VExtent const& bitLength) {
    bool const isBytes = bitLength.least % 8 == 0 && bitLength.most.value_or(0) % 8 == 0;
    std::uint64_t const unit = isBytes ? 8 : 1;
    std::uint64_t const least = bitLength.least / unit;
    std::string const noun = isBytes ? "byte" : "bit";
    if (bitLength.IsFixed()) {
        return Counted(least, noun);
    }
    if (bitLength.most.has_value()) {
        return fmt::format("{}-{} {}s", least, *bitLength.most / unit, noun);
    }
    return least == 0 ? "any length" : "at least " + Counted(least, noun);
}

std::string CodedText(wchar_t const* value, NODX201::VDiagCodedType* type, NQuery::VExtent const& bitLength) {
    std::string const text = Shown(std::wstring_view(value));
    std::string const base = type != nullptr ? TypeOfCode(*type) : "";
    constexpr std::size_t kLongest = 19; // digits that fit 64 bits
    if (base == "A_BYTEFIELD" && AreAll(text, "0123456789abcdefABCDEF")) {
        return "0x" + text;
    }
    bool const isNumber = base == "A_UINT32" || base == "A_INT32";
    return isNumber && AreAll(text, "0123456789") && text.size() <= kLongest ? HexNumber(text, bitLength) : text;
}

std::string RangeText(VBound const& lower, VBound const& upper) {
    if (!HasText(lower) && !HasText(upper)) {
        return "";
    }
    std::string const from = Shown(std::wstring_view(lower.text));
    std::string const to = Shown(std::wstring_view(upper.text));
    bool const isOne = *upper.intervalType == L'\0' || (from == to && !IsOpen(lower) && !IsOpen(upper));
    if (isOne && HasText(lower)) {
        return from;
    }
    return fmt::format("{}{}..{}{}", IsOpen(lower) ? ">" : "", HasText(lower) ? from : "", IsOpen(upper) ? "<" : "",
                       HasText(upper) ? to : "");
}

std::string ScaleText(VValueScale const& scale) {
    if (*scale.text != L'\0') {
        return Shown(std::wstring_view(scale.text));
    }
    if (*scale.value != L'\0') {
        return Shown(std::wstring_view(scale.value));
    }
    if (scale.numerator.empty()) {
        return Shown(std::wstring_view(*scale.validity != L'\0' ? scale.validity : scale.shortLabel));
    }
    std::string const numerator = PolynomialText(scale.numerator);
    std::string const denominator = PolynomialText(scale.denominator);
    bool const isWhole = scale.denominator.empty() || denominator == "1";
    return isWhole ? numerator : InParentheses(numerator) + " / " + InParentheses(denominator);
}

std::vector<std::string> TextsOf(NQuery::VDopValues const& values, std::size_t most) {
    std::vector<std::string> texts;
    std::size_t const all = values.scales.size() + values.troubleCodes.size();
    for (VValueScale const& scale : values.scales) {
        std::string const text = ScaleText(scale);
        std::string const range = RangeText(scale.lower, scale.upper);
        if (texts.size() < most && !text.empty()) {
            texts.push_back(range.empty() ? text : fmt::format("{} = {}", range, text));
        }
    }
    for (NODX201::VDtc* const code : values.troubleCodes) {
        if (texts.size() < most) {
            texts.push_back(DtcText(*code));
        }
    }
    if (all > most) {
        texts.push_back(fmt::format("and {} more", all - most));
    }
    return texts;
}

std::string ValuesNote(NODX201::VOdxElement& element) {
    std::vector<std::string> values;
    std::size_t size = 0;
    constexpr std::size_t kMost = 400;
    NQuery::ForEachPartOf(element, [&](VContentPart const& part) {
        bool const isOwn = part.role == VPartRole::OwnText;
        if (size < kMost && (isOwn || IsValue(part))) {
            std::string const text = PlainText(part.text);
            bool const isNumber = part.tag == std::wstring_view(L"V") && *part.wrapper != L'\0'; // one of several
            std::string const name = Shown(std::wstring_view(isNumber ? part.wrapper : part.tag));
            values.push_back(isOwn ? text : name + " " + text);
            size += values.back().size();
        }
    });
    return Cut(fmt::format("{}", fmt::join(values, ", ")));
}

std::string PlainText(wchar_t const* markup) {
    constexpr std::size_t kLongest = 100'000;
    std::wstring text;
    bool isInTag = false;
    for (wchar_t const* at = markup; *at != L'\0' && text.size() < kLongest; ++at) {
        bool const isTagStart = *at == L'<' && (at[1] == L'/' || (at[1] >= L'a' && at[1] <= L'z'));
        isInTag = isInTag || isTagStart;
        bool const isSpace = isInTag || *at == L' ' || *at == L'\t' || *at == L'\r' || *at == L'\n';
        isInTag = isInTag && *at != L'>';
        if (!isSpace) {
            text += *at;
        } else if (!text.empty() && text.back() != L' ') {
            text += L' ';
        }
    }
    if (!text.empty() && text.back() == L' ') {
        text.pop_back();
    }
    return Shown(text);
}

} // namespace NCli
