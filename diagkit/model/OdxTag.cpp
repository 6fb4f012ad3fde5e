// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/OdxTag.h>

#include <string_view>

#define DIAGKIT_WIDE_(text) L##text
#define DIAGKIT_WIDE(text) DIAGKIT_WIDE_(text)

namespace NODX201 {

wchar_t const* OdxTagText(VOdxTagEnum tag) {
    switch (tag) {
    case VOdxTagEnum::None:
        return L"";
#define ODX_TAG(name, value, element, type)                                                                            \
    case VOdxTagEnum::name:                                                                                            \
        return DIAGKIT_WIDE(element);
#include <diagkit/model/OdxTags.def>
    }
    return L"";
}

wchar_t const* OdxTypeText(VOdxTagEnum tag) {
    switch (tag) {
    case VOdxTagEnum::None:
        return L"";
#define ODX_TAG(name, value, element, type)                                                                            \
    case VOdxTagEnum::name:                                                                                            \
        return DIAGKIT_WIDE(type);
#include <diagkit/model/OdxTags.def>
    }
    return L"";
}

VOdxTagEnum OdxTagOf(wchar_t const* element, wchar_t const* type) {
    struct VRow {
        VOdxTagEnum tag;
        std::wstring_view element;
        std::wstring_view type;
    };
    static constexpr VRow kRows[] = {
#define ODX_TAG(name, value, element, type) {VOdxTagEnum::name, DIAGKIT_WIDE(element), DIAGKIT_WIDE(type)},
#include <diagkit/model/OdxTags.def>
    };
    for (VRow const& row : kRows) {
        if (row.element == element && row.type == type) {
            return row.tag;
        }
    }
    return VOdxTagEnum::None;
}

} // namespace NODX201
