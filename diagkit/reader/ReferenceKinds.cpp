// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/ReferenceKinds.h>

#include <string_view>

#include <diagkit/model/Dops.h>
#include <diagkit/model/ParentRefs.h>
#include <diagkit/reader/Utf8.h>

namespace NReader {
namespace {

template <class Link>
bool Is(NODX201::VLink& reference) {
    return dynamic_cast<Link*>(&reference) != nullptr;
}

struct VKindOfClass {
    bool (*is)(NODX201::VLink& reference);
    char const* kind;
};

/// Where several classes share a tag.
constexpr VKindOfClass kByClass[] = {
    {&Is<NODX201::VProtocolRef>, "PROTOCOL"},
    {&Is<NODX201::VFunctionalGroupRef>, "FUNCTIONAL-GROUP"},
    {&Is<NODX201::VBaseVariantRef>, "BASE-VARIANT"},
    {&Is<NODX201::VEcuSharedDataRef>, "ECU-SHARED-DATA"},
    {&Is<NODX201::VDataObjectPropLink>, "DATA-OBJECT-PROP"},
};

struct VKindOfTag {
    std::string_view tag;
    char const* kind;
};

/// Where the tag does not say it.
constexpr VKindOfTag kByTag[] = {
    {"CLEAR-DYN-DEF-MESSAGE-REF", "DIAG-COMM"},
    {"DIAG-LAYER-REF", "layer"},
    {"DOP-BASE-REF", "DOP"},
    {"DYN-DEF-MESSAGE-REF", "DIAG-COMM"},
    {"DYN-END-DOP-REF", "DATA-OBJECT-PROP"},
    {"IMPORT-REF", "layer"},
    {"KEY-DOP-REF", "DATA-OBJECT-PROP"},
    {"LAYER-REF", "layer"},
    {"LINK-COMPARAM-REF", "COMPARAM"},
    {"PARENT-REF", "layer"},
    {"READ-DYN-DEF-MESSAGE-REF", "DIAG-COMM"},
    {"RELATED-DIAG-COMM-REF", "DIAG-COMM"},
    {"SELECTION-TABLE-REF", "TABLE"},
};

} // namespace

std::string KindWantedBy(NODX201::VLink& reference) {
    for (VKindOfClass const& row : kByClass) {
        if (row.is(reference)) {
            return row.kind;
        }
    }
    std::string const tag = ToUtf8(NODX201::OdxTagText(reference.GetOdxTag()));
    for (VKindOfTag const& row : kByTag) {
        if (row.tag == tag) {
            return row.kind;
        }
    }
    return tag.substr(0, tag.rfind("-REF"));
}

} // namespace NReader
