// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <diagkit/model/OdxElement.h>

/// Looking for a text in the names, IDs, descriptions and trouble codes of a database.

namespace NQuery {

/// Where in an element a text stands, in the order in which matches are told.
enum class VFindField {
    ShortName,
    LongName,
    Id,
    Description, ///< DESC without its markup; the TEXT of a DTC
    TroubleCode, ///< DISPLAY-TROUBLE-CODE, and TROUBLE-CODE in decimal and hexadecimal
};

/// A field of an element that a pattern fits.
struct VFindMatch {
    NODX201::VOdxElement* element; ///< the model owns it
    VFindField field;
    /// The field, or of a trouble code the spelling that fits: DISPLAY-TROUBLE-CODE before "12670208" before
    /// "0xC15500". Runs of blanks in a long name or description are one blank.
    std::wstring text;
    std::size_t start;  ///< where in the text the pattern fits first
    std::size_t length; ///< 0 where a regular expression fits the empty text
};

/// Says what is wrong with a pattern, in `what()` and for people.
class VPatternError : public std::invalid_argument {
public:
    using std::invalid_argument::invalid_argument;
};

/// Looks for a pattern. Case does not count, parts of words do.
///
///     NReader::VReadOptions options;
///     options.keepsElements = true;
///     NReader::VReadResult const result = NReader::ReadOdx({"body.pdx"}, options);
///     for (NQuery::VFindMatch const& match : NQuery::VFinder(L"wiper").In(result.elements)) { ... }
///
/// Capital and small letters are the same in the Latin, Greek and Cyrillic scripts, letter by letter: "ß" is not "SS".
///
/// A regular expression is written as in ECMAScript, without back-references and looking ahead; `.` fits all but the
/// end of a line, `^` and `$` the start and end of the text. Looking through a text takes time in proportion to its
/// length and that of the expression, whatever these are, and no stack. An expression may have 2000 steps, where what
/// is repeated counts as often as it may be, and groups 100 deep in each other.
class VFinder {
public:
    /// How a pattern is read.
    enum class VSyntax {
        Text,  ///< every character stands for itself
        Regex, ///< a regular expression
    };

    /// Throws `VPatternError` for an empty pattern, and for what is no regular expression.
    explicit VFinder(std::wstring_view pattern, VSyntax syntax = VSyntax::Text);
    ~VFinder();
    VFinder(VFinder const&) = delete;
    VFinder& operator=(VFinder const&) = delete;

    /// The fields of one element of the memory model that the pattern fits, in the order of `VFindField`, each once. An
    /// element of another model, and a reference, has no names; what stands in an element is not looked at. One thread
    /// at a time may ask.
    std::vector<VFindMatch> In(NODX201::VOdxElement& element);

    /// The same for each of a list, such as all elements of a database in document order, as the reader keeps them.
    std::vector<VFindMatch> In(std::vector<NODX201::VOdxElement*> const& elements);

private:
    class VSearch;

    std::unique_ptr<VSearch> m_search;
};

} // namespace NQuery
