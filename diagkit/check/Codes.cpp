// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/Codes.h>

#include <algorithm>

namespace NCheck {

std::vector<VCode> const& Codes() {
    constexpr auto Error = NReader::VSeverity::Error;
    constexpr auto Warning = NReader::VSeverity::Warning;
    // clang-format off
    static std::vector<VCode> const codes{
        {"ambiguous-document",         Error,   "Several documents of the name in a DOCREF have what a reference names"},
        {"ambiguous-name",             Warning, "Two parents of equal rank offer different elements under one short name"},
        {"containment-cycle",          Error,   "A DOP contains itself"},
        {"contradicting-type",         Error,   "An element holds what another xsi:type has"},
        {"document-type",              Error,   "A document type declaration"},
        {"duplicate-id",               Error,   "An ID is used twice in one document"},
        {"duplicate-member",           Error,   "A package holds several members of one name"},
        {"duplicate-short-name",       Error,   "A short name is used twice in one list"},
        {"empty",                      Error,   "The file is empty"},
        {"encoding",                   Warning, "The bytes are not in the encoding that the document declares"},
        {"excludes-nothing",           Warning, "A NOT-INHERITED entry names nothing that the parent has"},
        {"import-cycle",               Warning, "Layers import each other in a ring"},
        {"misplaced-child",            Warning, "An element stands in another order than ODX gives"},
        {"missing-attribute",          Error,   "A required attribute is missing"},
        {"missing-child",              Error,   "A required element is missing"},
        {"missing-model-version",      Warning, "The document says no MODEL-VERSION"},
        {"missing-wrapper",            Warning, "An item stands beside the element that should hold it"},
        {"no-category",                Warning, "The document holds nothing that the model has a place for"},
        {"no-file",                    Error,   "The file is not there"},
        {"no-package",                 Error,   "The file is no PDX package"},
        {"not-a-value",                Error,   "A text is no value of the type that ODX wants"},
        {"not-odx",                    Error,   "The root element is not ODX"},
        {"not-xml",                    Error,   "The document is not well-formed XML"},
        {"parent-itself",              Error,   "A layer names itself as a parent"},
        {"parent-kind",                Error,   "A layer has a parent of a kind that ODX does not allow"},
        {"reference-kind",             Error,   "A reference names an element of the wrong kind"},
        {"related-diag-comm-cycle",    Warning, "Related DIAG-COMMs lead back to where they started"},
        {"repeated-child",             Error,   "An element stands twice where ODX allows one"},
        {"repeated-document",          Warning, "Two documents of one kind have one short name"},
        {"repeated-file",              Warning, "A file is named twice in one call"},
        {"repeated-import",            Warning, "A layer imports another one twice"},
        {"repeated-parent",            Warning, "A layer names a parent twice"},
        {"second-alternative",         Error,   "Two alternatives stand where ODX allows one"},
        {"short-name-characters",      Warning, "A short name is longer or of other characters than ODX tools take"},
        {"short-name-not-allowed",     Error,   "A reference by short name where ODX allows only one by ID"},
        {"short-name-not-everywhere",  Warning, "A reference by short name resolves in some layers only"},
        {"stray-text",                 Warning, "Text where ODX has elements only"},
        {"table-row-cycle",            Warning, "A table's rows lead back to the table"},
        {"target-left-out",            Warning, "A reference names an element for which the model has no place"},
        {"too-compressed",             Error,   "A member of a package is packed more tightly than the limit"},
        {"too-deep",                   Error,   "Elements are nested deeper than the limit"},
        {"too-large",                  Error,   "A file, member, package, tag or text is larger than the limit"},
        {"too-many",                   Error,   "There are more members, elements or attributes than the limit"},
        {"too-many-diagnostics",       Warning, "There are more diagnostics than the limit"},
        {"unknown-child",              Warning, "An element that ODX does not have here"},
        {"unknown-literal",            Error,   "A text is none of the literals of its enumeration"},
        {"unknown-model-version",      Warning, "The MODEL-VERSION is no version"},
        {"unknown-type",               Error,   "An xsi:type that ODX does not have here"},
        {"unprefixed-type",            Warning, "The attribute type lacks its prefix xsi"},
        {"unreadable",                 Error,   "A file or a member of a package cannot be read"},
        {"unresolved-reference",       Error,   "A reference by ID names nothing"},
        {"unresolved-short-name",      Error,   "A reference by short name names nothing in any layer"},
        {"unsafe-name",                Error,   "A member's name leads out of its package"},
        {"wrong-docref",               Warning, "DOCREF or DOCTYPE name another place than the target's"},
    };
    // clang-format on
    return codes;
}

VCode const* FindCode(std::string_view code) {
    auto const found =
        std::find_if(Codes().begin(), Codes().end(), [code](VCode const& row) { return row.code == code; });
    return found != Codes().end() ? &*found : nullptr;
}

} // namespace NCheck
