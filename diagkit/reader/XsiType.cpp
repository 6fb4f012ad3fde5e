// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/XsiType.h>

#include <algorithm>

#include <diagkit/reader/Loader.h>

namespace NReader {

namespace {

/// Name and value of xsi:type; null when absent.
char const* const* TypeAttribute(VAttributes const& attributes) {
    for (char const* const* attribute = attributes.Raw(); *attribute != nullptr; attribute += 2) {
        if (LocalName(*attribute) == "type") {
            return attribute;
        }
    }
    return nullptr;
}

bool IsBlank(char character) { return std::string_view(" \t\r\n").find(character) != std::string_view::npos; }

} // namespace

std::string XsiTypeIn(VAttributes const& attributes) {
    char const* const* const attribute = TypeAttribute(attributes);
    std::string value(attribute != nullptr ? LocalName(attribute[1]) : "");
    value.erase(std::remove_if(value.begin(), value.end(), &IsBlank), value.end());
    return value;
}

std::string XsiType(VLoader& loader, VAttributes const& attributes) {
    char const* const* const attribute = TypeAttribute(attributes);
    if (attribute != nullptr && std::string_view(*attribute) == "type") {
        loader.Report(NCode::UnprefixedType,
                      "the attribute 'type' lacks the prefix of the XMLSchema-instance namespace (xsi:type)");
    }
    return XsiTypeIn(attributes);
}

void ReportUnknownType(VLoader& loader, std::string const& type) {
    if (!type.empty()) {
        loader.Report(NCode::UnknownType,
                      "xsi:type is '" + type + "', which ODX does not have here; the kind is taken from the contents");
    }
}

void ReportShortNameNotAllowed(VLoader& loader, std::string const& what) {
    loader.Report(NCode::ShortNameNotAllowed,
                  what + " allows references by ID only; the entry is ignored; name the target by ID");
}

std::string InferType(std::string_view name, VAttributes const& attributes,
                      std::vector<std::string> const& childNames) {
    auto const has = [&childNames](char const* child) {
        return std::find(childNames.begin(), childNames.end(), child) != childNames.end();
    };
    if (LocalName(name) == "DIAG-CODED-TYPE") {
        if (has("LENGTH-KEY-REF")) {
            return "PARAM-LENGTH-INFO-TYPE";
        }
        bool const isMinMax = attributes.Find("TERMINATION") != nullptr || has("MIN-LENGTH") || has("MAX-LENGTH");
        return isMinMax ? "MIN-MAX-LENGTH-TYPE" : "STANDARD-LENGTH-TYPE";
    }
    if (LocalName(name) == "FLASHDATA") {
        return has("DATAFILE") ? "EXTERN-FLASHDATA" : "INTERN-FLASHDATA";
    }
    struct VRule {
        bool fits;
        char const* type;
    };
    bool const hasDop = has("DOP-REF") || has("DOP-SNREF");
    // The first matching rule applies.
    VRule const rules[] = {
        {has("REQUEST-BYTE-POS"), "MATCHING-REQUEST-PARAM"},
        {has("TARGET"), "TABLE-ENTRY"},
        {has("TABLE-KEY-REF"), "TABLE-STRUCT"},
        {has("TABLE-REF") || has("TABLE-ROW-REF"), "TABLE-KEY"},
        {has("BIT-LENGTH"), "RESERVED"},
        {has("CODED-VALUE"), "CODED-CONST"},
        {has("PHYS-CONSTANT-VALUE"), "PHYS-CONST"},
        {attributes.Find("SYSPARAM") != nullptr, "SYSTEM"},
        {attributes.Find("ID") != nullptr && hasDop, "LENGTH-KEY"},
        {hasDop, "VALUE"},
    };
    for (VRule const& rule : rules) {
        if (rule.fits) {
            return rule.type;
        }
    }
    return "DYNAMIC";
}

} // namespace NReader
