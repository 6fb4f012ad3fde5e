// SPDX-License-Identifier: Apache-2.0
#include "query/LayoutTest.h"

#include <diagkit/reader/Utf8.h>

namespace NTest {
namespace {

std::string RoleOf(NQuery::VLayoutRow const& row) {
    static constexpr char const* kRoles[] = {"", "key ", "case ", "count ", "items ", "marker ", "row ", "env "};
    return kRoles[static_cast<int>(row.role)];
}

std::string GapOf(NQuery::VLayoutRow const& row) {
    static constexpr char const* kGaps[] = {"", " broken", " cycle", " too deep"};
    return kGaps[static_cast<int>(row.gap)];
}

} // namespace

std::string Printed(NQuery::VExtent const& extent) {
    std::string const least = std::to_string(extent.least);
    return extent.IsFixed() ? least : least + ".." + (extent.most.has_value() ? std::to_string(*extent.most) : "");
}

std::string Printed(NQuery::VMessageLayout const& layout) {
    std::string text;
    for (NQuery::VLayoutRow const& row : layout.rows) {
        std::string const bit = row.bitPosition != 0 ? "." + std::to_string(row.bitPosition) : "";
        std::string const constant = *row.constant != L'\0' ? " =" + NReader::ToUtf8(row.constant) : "";
        text += std::string(2 * row.depth, ' ') + RoleOf(row) + NReader::ToUtf8(row.element->GetShortName()) + " @" +
                Printed(row.bytePosition) + bit + " " + Printed(row.bitLength) + constant + GapOf(row) + "\n";
    }
    return text + "all " + Printed(layout.bitLength) + (layout.isCut ? " cut" : "");
}

std::string Fixed(std::string const& bits, std::string const& type) {
    return "<DIAG-CODED-TYPE xsi:type=\"STANDARD-LENGTH-TYPE\" BASE-DATA-TYPE=\"" + type + "\"><BIT-LENGTH>" + bits +
           "</BIT-LENGTH></DIAG-CODED-TYPE>";
}

std::string MinMax(std::string const& limits) {
    return "<DIAG-CODED-TYPE xsi:type=\"MIN-MAX-LENGTH-TYPE\" BASE-DATA-TYPE=\"A_BYTEFIELD\" "
           "TERMINATION=\"END-OF-PDU\">" +
           limits + "</DIAG-CODED-TYPE>";
}

std::string DopOf(std::string const& id, std::string const& codedType) {
    return "<DATA-OBJECT-PROPS>" + Xml("DATA-OBJECT-PROP", id, codedType) + "</DATA-OBJECT-PROPS>";
}

std::string Param(std::string const& type, std::string const& name, std::string const& content) {
    return "<PARAM xsi:type=\"" + type + "\" ID=\"P." + name + "\"><SHORT-NAME>" + name + "</SHORT-NAME>" + content +
           "</PARAM>";
}

std::string At(std::string const& byte, std::string const& bit) {
    return "<BYTE-POSITION>" + byte + "</BYTE-POSITION>" +
           (bit.empty() ? "" : "<BIT-POSITION>" + bit + "</BIT-POSITION>");
}

void VLayoutTest::ReadLayer(std::string const& dictionary, std::string const& params) {
    Read(ContainerOfLayers(LayerXml("BASE-VARIANT", "L", InDictionary(dictionary) + Request("R", params))));
}

NQuery::VMessageLayout VLayoutTest::Layout(wchar_t const* id, wchar_t const* layer) const {
    return NQuery::LayoutOf(Element(id), layer != nullptr ? &Get<NODX201::VDiagLayer>(layer) : nullptr,
                            m_layoutOptions);
}

} // namespace NTest
