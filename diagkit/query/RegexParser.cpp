// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/Regex.h>

#include <algorithm>
#include <limits>
#include <string>
#include <utility>

#include <diagkit/query/Find.h>
#include <diagkit/query/LetterCase.h>
#include <diagkit/reader/Utf8.h>

namespace NQuery {
namespace {

using VKind = VRegexStep::VKind;
using VSteps = std::vector<VRegexStep>;
using VRanges = std::vector<VCharacterRange>;

constexpr std::size_t kMostSteps = 2000;
constexpr std::size_t kMostRepeated = 1000;
constexpr std::size_t kDeepestGroup = 100;
constexpr std::size_t kWithoutEnd = std::numeric_limits<std::size_t>::max();
constexpr wchar_t kLastCharacter = sizeof(wchar_t) == 2 ? static_cast<wchar_t>(0xFFFF) : static_cast<wchar_t>(0x10FFFF);

/// The characters of \d, \s and \w, and the ends of lines, in their order.
VRanges const& RangesOf(wchar_t name) {
    static VRanges const digits{{L'0', L'9'}};
    static VRanges const blanks{
        {L'\t', L'\r'}, {L' ', L' '}, {L'\x00A0', L'\x00A0'}, {L'\x2028', L'\x2029'}, {L'\xFEFF', L'\xFEFF'}};
    static VRanges const ofWords{{L'0', L'9'}, {L'A', L'Z'}, {L'_', L'_'}, {L'a', L'z'}};
    static VRanges const lineEnds{{L'\n', L'\n'}, {L'\r', L'\r'}, {L'\x2028', L'\x2029'}};
    return name == L'd' ? digits : name == L's' ? blanks : name == L'w' ? ofWords : lineEnds;
}

/// The same characters as ranges in ascending order that do not touch.
VRanges InOrder(VRanges ranges) {
    std::sort(ranges.begin(), ranges.end(),
              [](VCharacterRange const& a, VCharacterRange const& b) { return a.first < b.first; });
    VRanges inOrder;
    for (VCharacterRange const& range : ranges) {
        if (!inOrder.empty() && range.first <= inOrder.back().last) {
            inOrder.back().last = std::max(inOrder.back().last, range.last);
        } else {
            inOrder.push_back(range);
        }
    }
    return inOrder;
}

/// All characters but those of ranges that are in order.
VRanges AllBut(VRanges const& ranges) {
    VRanges others;
    wchar_t next = L'\0';
    for (VCharacterRange const& range : ranges) {
        if (range.first > next) {
            others.push_back({next, static_cast<wchar_t>(range.first - 1)});
        }
        next = static_cast<wchar_t>(range.last + 1);
    }
    others.push_back({next, kLastCharacter});
    return others;
}

bool IsClass(wchar_t name) { return std::wstring_view(L"dDsSwW").find(name) != std::wstring_view::npos; }

VRanges ClassOf(wchar_t name) {
    bool const isNegated = name < L'a';
    VRanges const& ranges = RangesOf(SmallOf(name));
    return isNegated ? AllBut(ranges) : ranges;
}

void Append(VSteps& steps, VSteps const& more) { steps.insert(steps.end(), more.begin(), more.end()); }

std::int32_t Distance(std::size_t steps) { return static_cast<std::int32_t>(steps); }

/// A recursive descent over the pattern, one operation for each rule of the grammar. Each gives steps that go on behind
/// their last one.
class VParser {
public:
    explicit VParser(std::wstring_view pattern) : m_pattern(pattern) {}

    VRegexProgram Parse() {
        m_program.steps = Alternatives();
        if (!IsAtEnd()) {
            Fail("a ')' has no '('");
        }
        m_program.steps.push_back({VKind::Match});
        return std::move(m_program);
    }

private:
    bool IsAtEnd() const { return m_place == m_pattern.size(); }
    bool IsNext(wchar_t character) const { return !IsAtEnd() && m_pattern[m_place] == character; }
    bool Take(wchar_t character) {
        bool const isNext = IsNext(character);
        m_place += isNext ? 1 : 0;
        return isNext;
    }
    wchar_t Take() {
        if (IsAtEnd()) {
            Fail("it ends in the middle");
        }
        return m_pattern[m_place++];
    }

    [[noreturn]] void Fail(std::string const& what) const {
        throw VPatternError(what + ", at character " + std::to_string(std::max<std::size_t>(m_place, 1)));
    }

    VSteps Alternatives() {
        VSteps steps = Sequence();
        while (Take(L'|')) {
            VSteps const other = Sequence();
            steps.insert(steps.begin(), {VKind::Split, 1, Distance(steps.size() + 2)});
            steps.push_back({VKind::Jump, Distance(other.size() + 1)});
            Append(steps, other);
            Measure(steps.size());
        }
        return steps;
    }

    VSteps Sequence() {
        VSteps steps;
        while (!IsAtEnd() && !IsNext(L'|') && !IsNext(L')')) {
            Append(steps, Repeated());
            Measure(steps.size());
        }
        return steps;
    }

    VSteps Repeated() {
        if (std::wstring_view(L"*+?{").find(m_pattern[m_place]) != std::wstring_view::npos) {
            ++m_place;
            Fail("there is nothing to repeat");
        }
        VSteps steps = Atom();
        std::size_t least = 1;
        std::size_t most = 1;
        if (TakeCount(least, most)) {
            bool const isLazy = Take(L'?');
            std::size_t repeated = least;
            steps = Copies(steps, least, most, isLazy);
            if (TakeCount(repeated, most)) {
                Fail("a repetition is repeated; put it into a group");
            }
        }
        return steps;
    }

    bool TakeCount(std::size_t& least, std::size_t& most) {
        if (Take(L'*')) {
            least = 0;
            most = kWithoutEnd;
        } else if (Take(L'+')) {
            least = 1;
            most = kWithoutEnd;
        } else if (Take(L'?')) {
            least = 0;
            most = 1;
        } else if (Take(L'{')) {
            least = Number();
            most = !Take(L',') ? least : IsNext(L'}') ? kWithoutEnd : Number();
            if (!Take(L'}')) {
                Fail("a '{' starts no count such as {2,3}; \\{ stands for itself");
            }
            if (most < least) {
                Fail("a count has its larger number first");
            }
        } else {
            return false;
        }
        return true;
    }

    std::size_t Number() {
        std::size_t number = 0;
        std::size_t const start = m_place;
        while (!IsAtEnd() && m_pattern[m_place] >= L'0' && m_pattern[m_place] <= L'9') {
            number = 10 * number + static_cast<std::size_t>(m_pattern[m_place++] - L'0');
            if (number > kMostRepeated) {
                Fail("a count is more than " + std::to_string(kMostRepeated));
            }
        }
        if (m_place == start) {
            Fail("a '{' starts no count such as {2,3}; \\{ stands for itself");
        }
        return number;
    }

    VSteps Copies(VSteps const& steps, std::size_t least, std::size_t most, bool isLazy) {
        Measure((most == kWithoutEnd ? least + 1 : most) * (steps.size() + 2));
        VSteps copies;
        for (std::size_t count = 0; count < least; ++count) {
            Append(copies, steps);
        }
        if (most == kWithoutEnd) {
            AppendOptional(copies, steps, steps.size() + 2, isLazy);
            copies.push_back({VKind::Jump, -Distance(steps.size() + 1)});
            return copies;
        }
        for (std::size_t count = least; count < most; ++count) { // without one of them there are no more
            AppendOptional(copies, steps, (most - count) * (steps.size() + 1), isLazy);
        }
        return copies;
    }

    static void AppendOptional(VSteps& copies, VSteps const& steps, std::size_t past, bool isLazy) {
        std::int32_t const on = 1;
        std::int32_t const end = Distance(past);
        copies.push_back({VKind::Split, isLazy ? end : on, isLazy ? on : end});
        Append(copies, steps);
    }

    void Measure(std::size_t steps) const {
        if (steps > kMostSteps) {
            Fail("it is longer than " + std::to_string(kMostSteps) + " steps with what it repeats");
        }
    }

    VSteps Atom() {
        wchar_t const character = Take();
        switch (character) {
        case L'(':
            return Group();
        case L'[':
            return Bracket();
        case L'.':
            return Set({RangesOf(L'.'), true});
        case L'^':
            return {{VKind::TextStart}};
        case L'$':
            return {{VKind::TextEnd}};
        case L'\\':
            return Escape();
        default:
            return Character(character);
        }
    }

    static VSteps Character(wchar_t character) { return {{VKind::Character, 0, 0, SmallOf(character)}}; }

    VSteps Set(VCharacterSet set) {
        set.ranges = InOrder(std::move(set.ranges));
        m_program.sets.push_back(std::move(set));
        return {{VKind::Set, Distance(m_program.sets.size() - 1)}};
    }

    VSteps Group() {
        if (Take(L'?') && !Take(L':')) {
            Fail("looking ahead and named groups are not supported, of (?...) only (?:...) is");
        }
        if (++m_depth > kDeepestGroup) {
            Fail("groups stand more than " + std::to_string(kDeepestGroup) + " deep in each other");
        }
        VSteps steps = Alternatives();
        --m_depth;
        if (!Take(L')')) {
            Fail("a '(' has no ')'");
        }
        return steps;
    }

    VSteps Escape() {
        if (Take(L'b')) {
            return {{VKind::WordEdge}};
        }
        if (Take(L'B')) {
            return {{VKind::NoWordEdge}};
        }
        if (!IsAtEnd() && IsClass(m_pattern[m_place])) {
            return Set({ClassOf(m_pattern[m_place++]), false});
        }
        return Character(EscapedCharacter());
    }

    wchar_t EscapedCharacter() {
        wchar_t const character = Take();
        constexpr std::wstring_view kNames = L"tnrvf0";
        constexpr std::wstring_view kCharacters{L"\t\n\r\v\f\0", 6};
        if (auto const place = kNames.find(character); place != std::wstring_view::npos) {
            return kCharacters[place];
        }
        if (character == L'x' || character == L'u') {
            return Coded(character == L'x' ? 2 : 4);
        }
        if (character >= L'1' && character <= L'9') {
            Fail("back-references are not supported");
        }
        if ((character >= L'a' && character <= L'z') || (character >= L'A' && character <= L'Z')) {
            Fail("'\\" + NReader::ToUtf8(std::wstring(1, character)) + "' stands for nothing");
        }
        return character;
    }

    wchar_t Coded(int digits) {
        constexpr std::wstring_view kDigits = L"0123456789abcdef";
        std::size_t code = 0;
        for (int digit = 0; digit < digits; ++digit) {
            std::size_t const value = kDigits.find(SmallOf(Take()));
            if (value == std::wstring_view::npos) {
                Fail("a character in hexadecimal is \\x with 2 digits or \\u with 4");
            }
            code = 16 * code + value;
        }
        return static_cast<wchar_t>(code);
    }

    VSteps Bracket() {
        VCharacterSet set;
        set.isNegated = Take(L'^');
        while (!Take(L']')) {
            if (IsAtEnd()) {
                Fail("a '[' has no ']'");
            }
            AddRange(set.ranges);
        }
        return Set(std::move(set));
    }

    /// A character, a class or a range, in brackets.
    void AddRange(VRanges& ranges) {
        if (m_place + 1 < m_pattern.size() && IsNext(L'\\') && IsClass(m_pattern[m_place + 1])) {
            VRanges const ofClass = ClassOf(m_pattern[m_place + 1]);
            ranges.insert(ranges.end(), ofClass.begin(), ofClass.end());
            m_place += 2;
            return;
        }
        wchar_t const first = BracketCharacter();
        bool const isRange = IsNext(L'-') && m_place + 1 < m_pattern.size() && m_pattern[m_place + 1] != L']';
        wchar_t last = first;
        if (isRange) {
            ++m_place;
            last = BracketCharacter();
        }
        if (last < first) {
            Fail("a range has its larger character first");
        }
        ranges.push_back({first, last});
        Measure(ranges.size());
    }

    wchar_t BracketCharacter() {
        wchar_t const character = Take();
        return character != L'\\' ? character : Take(L'b') ? L'\b' : EscapedCharacter();
    }

    std::wstring_view m_pattern;
    std::size_t m_place = 0;
    std::size_t m_depth = 0;
    VRegexProgram m_program;
};

} // namespace

VRegexProgram ParseRegex(std::wstring_view pattern) { return VParser(pattern).Parse(); }

} // namespace NQuery
