// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include <diagkit/tools/oem/OemCheckContext.h>

/// How a rule returns its result together with the reason. Reasons are made only for reports: without a report, `No` is
/// `false`, and nothing else happens.

namespace NDIAGKIT {

/// "No", for the reason that `make` gives: `return No(*mpContext, [&] { return VOemReason{...}; });`
template <class Make>
bool No(VOemCheckContext const& context, Make make) {
    if (context.m_report != nullptr) {
        context.m_report->reason = make();
    }
    return false;
}

/// "Yes", which is weak evidence when there was nothing to look at.
inline bool Yes(VOemCheckContext const& context, bool isAnythingSeen) {
    if (context.m_report != nullptr) {
        context.m_report->isVacuous = !isAnythingSeen;
    }
    return true;
}

/// Whether a list is not empty; it should contain `expected`, "a PROTOCOL".
template <class List>
bool IsAnyThere(VOemCheckContext const& context, List const& list, wchar_t const* expected) {
    return !list.empty() || No(context, [expected] { return VOemReason{expected, L"none"}; });
}

// The lists of the context contain pointers, collections their elements.
template <class Element>
Element& ToReference(Element& element) {
    return element;
}
template <class Element>
Element& ToReference(Element* element) {
    return *element;
}

// Texts of reasons

/// "'Engine'"; a long text is cut off.
std::wstring Quoted(std::wstring_view text);

/// "the ID 'Engine'"; "no ID" for "".
std::wstring Stated(std::wstring_view noun, std::wstring_view text);

/// "no PROTOCOL", "1 PROTOCOL", "2 PROTOCOLs"
std::wstring Counted(std::size_t count, std::wstring_view noun);

/// The result of examining this number of elements: "none; 2 PROTOCOLs looked at", "no PROTOCOL"
std::wstring LookedAt(std::wstring_view found, std::size_t count, std::wstring_view noun);

/// Of two things that are not both there: "only 'A'", "neither"
std::wstring OneOfTwo(std::wstring_view first, bool isFirstThere, std::wstring_view second, bool isSecondThere);

/// Texts one after the other; of many the first few, and how many more there are.
class VListing {
public:
    void Add(std::wstring_view text);

    /// "the PROTOCOL 'A'", "the PROTOCOLs 'A', 'B' and 3 more"; "no PROTOCOL" without a text
    std::wstring As(std::wstring_view noun) const;

    std::wstring Text() const; ///< "'A', 'B' and 3 more"

private:
    std::wstring m_text;
    std::size_t m_count = 0;
};

/// The short names of elements as a listing of that noun.
template <class Elements>
std::wstring Named(Elements&& elements, std::wstring_view noun) {
    VListing names;
    for (auto&& element : elements) {
        names.Add(Quoted(ToReference(element).GetShortName()));
    }
    return names.As(noun);
}

} // namespace NDIAGKIT
