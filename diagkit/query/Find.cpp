// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/Find.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cwchar>
#include <optional>
#include <utility>

#include <diagkit/query/Content.h>
#include <diagkit/query/LetterCase.h>
#include <diagkit/query/PlainText.h>
#include <diagkit/query/Regex.h>
#include <diagkit/reader/Utf8.h>

namespace NQuery {
namespace {

/// What an element has of the fields, as the model has it; "" where it has nothing.
struct VFieldTexts {
    wchar_t const* shortName = L"";
    wchar_t const* longName = L"";
    wchar_t const* id = L"";
    wchar_t const* desc = L"";
    wchar_t const* text = L""; // of a DTC
    wchar_t const* displayTroubleCode = L"";
    wchar_t const* troubleCode = L"";
};

struct VFieldRow {
    wchar_t const* tag;
    wchar_t const* VFieldTexts::*text;
};

// clang-format off
constexpr VFieldRow kTexts[] = {
    {L"SHORT-NAME",           &VFieldTexts::shortName},
    {L"LONG-NAME",            &VFieldTexts::longName},
    {L"DESC",                 &VFieldTexts::desc},
    {L"TEXT",                 &VFieldTexts::text},
    {L"DISPLAY-TROUBLE-CODE", &VFieldTexts::displayTroubleCode},
    {L"TROUBLE-CODE",         &VFieldTexts::troubleCode},
};
// clang-format on

VFieldTexts TextsOf(NODX201::VOdxElement& element) {
    VFieldTexts texts;
    ForEachPartOf(element, [&texts](VContentPart const& part) {
        if (part.role == VPartRole::Attribute && std::wcscmp(part.tag, L"ID") == 0) {
            texts.id = part.text;
        }
        if (part.role != VPartRole::Text || *part.wrapper != L'\0') {
            return;
        }
        for (VFieldRow const& row : kTexts) {
            if (std::wcscmp(part.tag, row.tag) == 0) {
                texts.*row.text = part.text;
            }
        }
    });
    if (element.GetOdxTag() != NODX201::VOdxTagEnum::Dtc) {
        texts.text = L"";
    }
    return texts;
}

std::wstring InHexadecimal(std::uint64_t code, std::size_t leastDigits) {
    std::wstring digits;
    for (; code != 0 || digits.size() < leastDigits; code /= 16) {
        digits.insert(digits.begin(), L"0123456789ABCDEF"[code % 16]);
    }
    return L"0x" + digits;
}

/// A TROUBLE-CODE in hexadecimal, without leading zeros and with the six digits of three bytes; "" for what is no
/// number.
std::pair<std::wstring, std::wstring> HexadecimalsOf(wchar_t const* troubleCode) {
    std::string const digits = NReader::ToUtf8(troubleCode);
    std::uint64_t code = 0;
    auto const [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), code);
    if (digits.empty() || error != std::errc() || end != digits.data() + digits.size()) {
        return {};
    }
    constexpr std::size_t kDigitsOfThreeBytes = 6;
    return {InHexadecimal(code, 1), InHexadecimal(code, kDigitsOfThreeBytes)};
}

std::wstring SmallLetters(std::wstring_view text) {
    std::wstring small(text);
    std::transform(small.begin(), small.end(), small.begin(), &SmallOf);
    return small;
}

} // namespace

class VFinder::VSearch {
public:
    VSearch(std::wstring_view pattern, VSyntax syntax) {
        if (pattern.empty()) {
            throw VPatternError("it is empty");
        }
        if (syntax == VSyntax::Regex) {
            m_regex.emplace(ParseRegex(pattern));
        } else {
            m_pattern = SmallLetters(pattern);
        }
    }

    void AddMatches(NODX201::VOdxElement& element, std::vector<VFindMatch>& matches) {
        VFieldTexts const texts = TextsOf(element);
        auto const add = [&](VFindField field, std::wstring_view text) {
            return AddMatch(element, field, text, matches);
        };
        add(VFindField::ShortName, texts.shortName);
        add(VFindField::LongName, Folded(texts.longName));
        add(VFindField::Id, texts.id);
        add(VFindField::Description, *texts.desc != L'\0' ? PlainText(texts.desc) : Folded(texts.text));
        if (!add(VFindField::TroubleCode, texts.displayTroubleCode) &&
            !add(VFindField::TroubleCode, texts.troubleCode)) {
            auto const [shortOne, longOne] = HexadecimalsOf(texts.troubleCode);
            static_cast<void>(add(VFindField::TroubleCode, shortOne) || add(VFindField::TroubleCode, longOne));
        }
    }

private:
    bool AddMatch(NODX201::VOdxElement& element, VFindField field, std::wstring_view text,
                  std::vector<VFindMatch>& matches) {
        std::optional<VSpan> const found = text.empty() ? std::nullopt : FirstIn(text);
        if (found.has_value()) {
            matches.push_back({&element, field, std::wstring(text), found->start, found->length});
        }
        return found.has_value();
    }

    std::optional<VSpan> FirstIn(std::wstring_view text) {
        if (m_regex.has_value()) {
            return m_regex->FirstIn(text);
        }
        m_text.resize(text.size());
        std::transform(text.begin(), text.end(), m_text.begin(), &SmallOf);
        std::size_t const start = m_text.find(m_pattern);
        return start != std::wstring::npos ? std::optional(VSpan{start, m_pattern.size()}) : std::nullopt;
    }

    std::wstring m_pattern; // in small letters
    std::optional<VRegexSearch> m_regex;
    std::wstring m_text; // what is looked through, in small letters
};

VFinder::VFinder(std::wstring_view pattern, VSyntax syntax) : m_search(std::make_unique<VSearch>(pattern, syntax)) {}

VFinder::~VFinder() = default;

std::vector<VFindMatch> VFinder::In(NODX201::VOdxElement& element) {
    std::vector<VFindMatch> matches;
    m_search->AddMatches(element, matches);
    return matches;
}

std::vector<VFindMatch> VFinder::In(std::vector<NODX201::VOdxElement*> const& elements) {
    std::vector<VFindMatch> matches;
    for (NODX201::VOdxElement* const element : elements) {
        m_search->AddMatches(*element, matches);
    }
    return matches;
}

} // namespace NQuery
