// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace NQuery {

/// A part of a text.
struct VSpan {
    std::size_t start;
    std::size_t length;
};

/// A step of a program that looks through texts. Jumps are relative, so that steps can be copied together.
struct VRegexStep {
    enum class VKind {
        Character,  ///< `character`, whatever its case
        Set,        ///< one of a set, by its number in `value`
        Jump,       ///< to `value`
        Split,      ///< on with `value`, or else with `other`
        TextStart,  ///< where the text starts
        TextEnd,    ///< where it ends
        WordEdge,   ///< between a letter, digit or _ and something else
        NoWordEdge, ///< anywhere else
        Match,      ///< done
    };

    VKind kind;
    std::int32_t value = 0;
    std::int32_t other = 0;
    wchar_t character = L'\0';
};

/// Characters from the first to the last.
struct VCharacterRange {
    wchar_t first;
    wchar_t last;
};

/// The characters that a `[...]`, a `.` or a class such as `\d` fits.
struct VCharacterSet {
    std::vector<VCharacterRange> ranges; ///< in ascending order
    bool isNegated = false;

    bool Has(wchar_t character) const; ///< whatever its case
};

struct VRegexProgram {
    std::vector<VRegexStep> steps; ///< the last is the only `Match`
    std::vector<VCharacterSet> sets;
};

/// Reads a regular expression; throws `VPatternError` for what is none.
VRegexProgram ParseRegex(std::wstring_view pattern);

/// Looks through texts, with one program and room that is used again. Every way through the program is gone at the same
/// time, character by character, so that no text takes longer than its length times that of the program.
class VRegexSearch {
public:
    explicit VRegexSearch(VRegexProgram program);

    /// Where the text fits first; of several ends there the one that the expression prefers.
    std::optional<VSpan> FirstIn(std::wstring_view text);

private:
    struct VThread {
        std::size_t step;
        std::size_t start; // in the text
    };

    void Add(std::vector<VThread>& threads, VThread thread, std::wstring_view text, std::size_t place);
    bool Fits(VRegexStep const& step, wchar_t character) const;

    VRegexProgram m_program;
    std::vector<VThread> m_now;
    std::vector<VThread> m_next;
    std::vector<std::size_t> m_seen; // for each step the number of the round that met it last
    std::vector<std::size_t> m_open; // steps to go on with, the next one last
    std::size_t m_round = 0;
};

} // namespace NQuery
