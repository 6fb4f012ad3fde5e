// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/Export.h>

namespace NODX201 {

/// The kind of an element: one enumerator for each XML element of the model, and one for each xsi:type of an element
/// that has several kinds (`OdxTags.def` lists all). 111 and 233 are fixed by the contract.
enum class VOdxTagEnum : int {
    None = 0,
#define ODX_TAG(name, value, element, type) name = value,
#include <diagkit/model/OdxTags.def>
};

static_assert(static_cast<int>(VOdxTagEnum::DiagService) == 111);
static_assert(static_cast<int>(VOdxTagEnum::GlobalNegResponse) == 233);

/// The XML element of a kind: "DIAG-SERVICE", and "PARAM" for every kind of parameter. "" for `None`.
DIAGKIT_EXPORT wchar_t const* OdxTagText(VOdxTagEnum tag);

/// The xsi:type that distinguishes a kind: "CODED-CONST", "PROTOCOL-REF"; "" for kinds with an element name of their
/// own.
DIAGKIT_EXPORT wchar_t const* OdxTypeText(VOdxTagEnum tag);

/// The kind of an XML element; with an xsi:type where the element has several kinds. `None` for a tag that the model
/// does not know.
DIAGKIT_EXPORT VOdxTagEnum OdxTagOf(wchar_t const* element, wchar_t const* type = L"");

} // namespace NODX201
