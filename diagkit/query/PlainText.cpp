// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/PlainText.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace NQuery {
namespace {

bool IsBlank(wchar_t character) { return character == L' ' || (character >= L'\t' && character <= L'\r'); }

/// What stands between < and >: "/p", "br /", "p align=..."
bool StandsInWords(std::wstring_view tag) {
    constexpr std::wstring_view kTags[] = {L"b", L"i", L"u", L"sub", L"sup"};
    tag.remove_prefix(!tag.empty() && tag.front() == L'/' ? 1 : 0);
    std::wstring_view const name = tag.substr(0, tag.find_first_of(L" \t\r\n/"));
    return std::find(std::begin(kTags), std::end(kTags), name) != std::end(kTags);
}

struct VEntity {
    std::wstring_view name;
    wchar_t character;
};

constexpr VEntity kEntities[] = {
    {L"&lt;", L'<'}, {L"&gt;", L'>'}, {L"&amp;", L'&'}, {L"&quot;", L'"'}, {L"&apos;", L'\''}};

/// Takes an entity or a character from the start of a text.
wchar_t TakeCharacter(std::wstring_view& text) {
    for (VEntity const& entity : kEntities) {
        if (text.substr(0, entity.name.size()) == entity.name) {
            text.remove_prefix(entity.name.size());
            return entity.character;
        }
    }
    wchar_t const character = text.front();
    text.remove_prefix(1);
    return character;
}

/// A text that is told character by character, with its runs of blanks as one.
class VFoldedText {
public:
    void Add(wchar_t character) {
        if (IsBlank(character)) {
            m_isBlankDue = !m_text.empty();
            return;
        }
        if (m_isBlankDue) {
            m_text += L' ';
            m_isBlankDue = false;
        }
        m_text += character;
    }

    std::wstring Take() { return std::move(m_text); }

private:
    std::wstring m_text;
    bool m_isBlankDue = false;
};

} // namespace

std::wstring Folded(std::wstring_view text) {
    VFoldedText folded;
    for (wchar_t const character : text) {
        folded.Add(character);
    }
    return folded.Take();
}

std::wstring PlainText(std::wstring_view markup) {
    VFoldedText plain;
    std::size_t const lastEnd = markup.rfind(L'>'); // so that none is looked for in vain again and again
    std::wstring_view rest = markup;
    while (!rest.empty()) {
        std::size_t const place = markup.size() - rest.size();
        if (rest.front() == L'<' && lastEnd != std::wstring_view::npos && place < lastEnd) {
            std::size_t const end = rest.find(L'>');
            if (!StandsInWords(rest.substr(1, end - 1))) {
                plain.Add(L' ');
            }
            rest.remove_prefix(end + 1);
        } else {
            plain.Add(TakeCharacter(rest));
        }
    }
    return plain.Take();
}

} // namespace NQuery
