// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <diagkit/model/Compu.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Units.h>

/// What the values of a DOP mean: unit, limits, conversion, texts.

namespace NQuery {

/// A LOWER-LIMIT or UPPER-LIMIT. The texts are the model's.
struct VBound {
    wchar_t const* text = L"";         ///< "" for none
    wchar_t const* intervalType = L""; ///< CLOSED, OPEN or INFINITE; "" without the element
};

/// A COMPU-SCALE, or a SCALE-CONSTR, which has no values but a validity.
struct VValueScale {
    VBound lower;
    VBound upper;
    wchar_t const* shortLabel = L"";
    wchar_t const* text = L"";               ///< VT of the COMPU-CONST
    wchar_t const* value = L"";              ///< V of the COMPU-CONST
    std::vector<wchar_t const*> numerator{}; ///< coefficients of COMPU-RATIONAL-COEFFS, that of x to the 0 first
    std::vector<wchar_t const*> denominator{};
    wchar_t const* inverse = L"";  ///< V or VT of the COMPU-INVERSE-VALUE
    wchar_t const* validity = L""; ///< VALIDITY of a SCALE-CONSTR
};

/// All of a DATA-OBJECT-PROP or DTC-DOP that says what its values mean.
struct VDopValues {
    NODX201::VDiagCodedType* codedType = nullptr;
    wchar_t const* codedBase = L"";    ///< BASE-DATA-TYPE of the coded type
    wchar_t const* physicalBase = L""; ///< that of the physical type
    wchar_t const* displayRadix = L""; ///< DEC, HEX, BIN or OCT
    wchar_t const* precision = L"";    ///< digits after the point
    wchar_t const* category = L"";     ///< of the COMPU-METHOD: IDENTICAL, LINEAR, TEXTTABLE and so on
    std::vector<VValueScale> scales;   ///< from coded to physical
    wchar_t const* defaultText = L"";  ///< V or VT of the COMPU-DEFAULT-VALUE
    VBound lower;                      ///< of INTERNAL-CONSTR, for coded values
    VBound upper;
    std::vector<VValueScale> constraints; ///< SCALE-CONSTRs
    NODX201::VLink* unitReference = nullptr;
    NODX201::VOdxElement* unit = nullptr;     ///< null where there is none, or where the reference leads nowhere
    wchar_t const* unitName = L"";            ///< DISPLAY-NAME
    std::vector<NODX201::VDtc*> troubleCodes; ///< of a DTC-DOP; without those whose reference leads nowhere
};

/// What the values of a DATA-OBJECT-PROP or DTC-DOP of the memory model mean; nothing for another element.
/// Throws std::bad_alloc.
VDopValues ValuesOf(NODX201::VOdxElement& dop);

} // namespace NQuery
