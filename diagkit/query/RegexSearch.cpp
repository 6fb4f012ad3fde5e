// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <iterator>
#include <utility>

#include <diagkit/query/LetterCase.h>
#include <diagkit/query/Regex.h>

namespace NQuery {
namespace {

using VKind = VRegexStep::VKind;

bool IsOfWord(std::wstring_view text, std::size_t place) {
    if (place >= text.size()) {
        return false;
    }
    wchar_t const character = text[place];
    return (character >= L'0' && character <= L'9') || (character >= L'A' && character <= L'Z') ||
           (character >= L'a' && character <= L'z') || character == L'_';
}

bool IsWordEdge(std::wstring_view text, std::size_t place) {
    return IsOfWord(text, place) != (place > 0 && IsOfWord(text, place - 1));
}

/// Whether a step that takes no character lets pass at this place.
bool Passes(VKind kind, std::wstring_view text, std::size_t place) {
    switch (kind) {
    case VKind::TextStart:
        return place == 0;
    case VKind::TextEnd:
        return place == text.size();
    case VKind::WordEdge:
        return IsWordEdge(text, place);
    default:
        return !IsWordEdge(text, place);
    }
}

/// The ranges are in ascending order.
bool HasExactly(std::vector<VCharacterRange> const& ranges, wchar_t character) {
    auto const next = std::upper_bound(ranges.begin(), ranges.end(), character,
                                       [](wchar_t c, VCharacterRange const& range) { return c < range.first; });
    return next != ranges.begin() && std::prev(next)->last >= character;
}

} // namespace

bool VCharacterSet::Has(wchar_t character) const {
    bool const isIn = HasExactly(ranges, character) || HasExactly(ranges, SmallOf(character)) ||
                      HasExactly(ranges, CapitalOf(character));
    return isIn != isNegated;
}

VRegexSearch::VRegexSearch(VRegexProgram program) : m_program(std::move(program)), m_seen(m_program.steps.size(), 0) {}

/// Follows what takes no character, in the order of preference, up to the steps that do.
void VRegexSearch::Add(std::vector<VThread>& threads, VThread thread, std::wstring_view text, std::size_t place) {
    m_open.assign(1, thread.step);
    while (!m_open.empty()) {
        std::size_t const at = m_open.back();
        m_open.pop_back();
        if (std::exchange(m_seen[at], m_round) == m_round) {
            continue;
        }
        VRegexStep const& step = m_program.steps[at];
        auto const from = [at](std::int32_t distance) { return at + static_cast<std::size_t>(distance); };
        switch (step.kind) {
        case VKind::Character:
        case VKind::Set:
        case VKind::Match:
            threads.push_back({at, thread.start});
            break;
        case VKind::Jump:
            m_open.push_back(from(step.value));
            break;
        case VKind::Split:
            m_open.push_back(from(step.other));
            m_open.push_back(from(step.value));
            break;
        default:
            if (Passes(step.kind, text, place)) {
                m_open.push_back(at + 1);
            }
        }
    }
}

bool VRegexSearch::Fits(VRegexStep const& step, wchar_t character) const {
    return step.kind == VKind::Character ? step.character == SmallOf(character)
                                         : m_program.sets[static_cast<std::size_t>(step.value)].Has(character);
}

std::optional<VSpan> VRegexSearch::FirstIn(std::wstring_view text) {
    std::optional<VSpan> found;
    m_now.clear();
    ++m_round;
    for (std::size_t place = 0; place <= text.size(); ++place) {
        if (!found.has_value()) {
            Add(m_now, {0, place}, text, place); // after those that started earlier
        }
        m_next.clear();
        ++m_round;
        for (VThread const& thread : m_now) {
            VRegexStep const& step = m_program.steps[thread.step];
            if (step.kind == VKind::Match) {
                found = VSpan{thread.start, place - thread.start};
                break; // what comes after is less preferred
            }
            if (place < text.size() && Fits(step, text[place])) {
                Add(m_next, {thread.step + 1, thread.start}, text, place + 1);
            }
        }
        if (found.has_value() && m_next.empty()) {
            break;
        }
        m_now.swap(m_next);
    }
    return found;
}

} // namespace NQuery
