// SPDX-License-Identifier: Apache-2.0
#include "MakeLayer.h"

#include <iterator>

namespace NBench {
namespace {

constexpr std::size_t kServiceIds[] = {0x22, 0x2E, 0x2F, 0x31, 0x21}; // of the verbs
constexpr std::size_t kPosResponse = 0x40;

} // namespace

template <class Inside>
void VLayerMaker::WriteParam(std::string const& shortName, VParam const& param, Inside inside) {
    m_xml.Element("PARAM", {param.attribute, {"SEMANTIC", "DATA"}, {"xsi:type", param.xsiType}}, [&] {
        m_xml.Text("SHORT-NAME", shortName);
        if (m_random.Chance(4)) {
            m_xml.Text("LONG-NAME", m_names.LongName(m_random.Below(m_plan.services)));
        }
        m_xml.Text("BYTE-POSITION", std::to_string(param.bytePosition));
        inside();
    });
}

void VLayerMaker::WriteCodedConst(char const* shortName, std::size_t bytePosition, std::size_t value,
                                  std::size_t bits) {
    m_xml.Element("PARAM", {{"SEMANTIC", "ID"}, {"xsi:type", "CODED-CONST"}}, [&] {
        m_xml.Text("SHORT-NAME", shortName);
        m_xml.Text("BYTE-POSITION", std::to_string(bytePosition));
        m_xml.Text("CODED-VALUE", std::to_string(value));
        WriteCodedType(m_xml, "A_UINT32", bits);
    });
}

void VLayerMaker::WriteValue(std::string const& shortName, std::size_t bytePosition, std::string const& dopId) {
    WriteParam(shortName, {"VALUE", bytePosition}, [&] { m_xml.Empty("DOP-REF", {{"ID-REF", dopId}}); });
}

/// VALUE parameters that refer to DOPs in all ways: by ID, by short name, and by ID in the library.
void VLayerMaker::WriteValues(std::size_t service, std::size_t count) {
    VLayerPlan const libraryPlan{"ECU-SHARED-DATA", kSharedLibrary, kLibraryServices, "Common"};
    VLayerMaker const library(m_xml, libraryPlan, 0);
    for (std::size_t value = 0; value < count; ++value) {
        WriteParam(ValueName(service, value), {"VALUE", 3 + 2 * value}, [&] {
            if (m_random.Chance(8)) {
                m_xml.Text("PHYSICAL-DEFAULT-VALUE", std::to_string(m_random.Below(100)));
            }
            std::size_t const way = m_random.Below(8);
            if (way < 2) {
                m_xml.Empty("DOP-SNREF", {{"SHORT-NAME", DopName(m_random.Below(DopCount()))}});
            } else if (way == 2) {
                m_xml.Empty("DOP-REF", {{"ID-REF", library.DopId(m_random.Below(kLibraryServices))},
                                        {"DOCREF", kSharedLibrary},
                                        {"DOCTYPE", "LAYER"}});
            } else {
                m_xml.Empty("DOP-REF", {{"ID-REF", RandomDopId()}});
            }
        });
    }
}

void VLayerMaker::WriteMessages() {
    auto const all = [&](void (VLayerMaker::*write)(std::size_t service)) {
        for (std::size_t service = 0; service < m_plan.services; ++service) {
            (this->*write)(service);
        }
    };
    m_xml.Element("REQUESTS", [&] { all(&VLayerMaker::WriteRequest); });
    m_xml.Element("POS-RESPONSES", [&] { all(&VLayerMaker::WritePosResponse); });
    m_xml.Element("NEG-RESPONSES", [&] { WriteNegResponse("NEG-RESPONSE", "NotNow"); });
    m_xml.Element("GLOBAL-NEG-RESPONSES",
                  [&] { WriteNegResponse("GLOBAL-NEG-RESPONSE", "GeneralReject" + m_plan.suffix); });
}

void VLayerMaker::WriteHead(std::size_t service, std::size_t offset) {
    WriteCodedConst("ServiceId", 0, kServiceIds[ServiceNumber(service) % std::size(kServiceIds)] + offset, 8);
}

void VLayerMaker::WriteRequest(std::size_t service) {
    std::string const shortName = ServiceName(service);
    m_xml.Element("REQUEST", {{"ID", Id("Request", shortName)}}, [&] {
        m_xml.Text("SHORT-NAME", shortName + "Request");
        m_xml.Element("PARAMS", [&] {
            WriteHead(service, 0);
            WriteCodedConst("Identifier", 1, m_random.Below(0xFFFF), 16);
            bool const writes = ServiceNumber(service) % 5 == 1 || ServiceNumber(service) % 5 == 2;
            WriteValues(service, writes ? 1 + m_random.Below(4) : 0);
            WriteSpecialRequestParams(service);
        });
    });
}

/// The kinds of PARAM that are used only occasionally.
void VLayerMaker::WriteSpecialRequestParams(std::size_t service) {
    switch (service % 16) {
    case 3:
        WriteParam("Mode", {"PHYS-CONST", 20}, [&] {
            m_xml.Text("PHYS-CONSTANT-VALUE", "3");
            m_xml.Empty("DOP-REF", {{"ID-REF", DopId(0)}});
        });
        break;
    case 5: {
        std::string const key = Id("TableKey", ServiceName(service));
        WriteParam("Selection", {"TABLE-KEY", 20, {"ID", key}}, [&] {
            m_xml.Empty("TABLE-REF", {{"ID-REF", Id("Table", FewName(0, "Table"))}});
        });
        WriteParam("SelectedData", {"TABLE-STRUCT", 21}, [&] { m_xml.Empty("TABLE-KEY-REF", {{"ID-REF", key}}); });
        break;
    }
    case 7:
        WriteParam("Stamp", {"SYSTEM", 20, {"SYSPARAM", "TIMESTAMP"}}, [&] {
            m_xml.Empty("DOP-SNREF", {{"SHORT-NAME", DopName(0)}});
        });
        break;
    case 9:
        m_xml.Element("PARAM", {{"xsi:type", "TABLE-ENTRY"}}, [&] {
            m_xml.Text("SHORT-NAME", "Entry");
            m_xml.Text("TARGET", "KEY");
            m_xml.Empty("TABLE-ROW-REF", {{"ID-REF", Id("Row", FewName(0, "Table") + ".Row0")}});
        });
        break;
    case 11:
        m_xml.Element("PARAM", {{"xsi:type", "DYNAMIC"}}, [&] { m_xml.Text("SHORT-NAME", "Definition"); });
        break;
    default:
        break;
    }
}

void VLayerMaker::WritePosResponse(std::size_t service) {
    std::string const shortName = ServiceName(service);
    m_xml.Element("POS-RESPONSE", {{"ID", Id("PosResponse", shortName)}}, [&] {
        m_xml.Text("SHORT-NAME", shortName + "Response");
        m_xml.Element("PARAMS", [&] {
            WriteHead(service, kPosResponse);
            WriteParam("Echo", {"MATCHING-REQUEST-PARAM", 1}, [&] {
                m_xml.Text("REQUEST-BYTE-POS", "1");
                m_xml.Text("BYTE-LENGTH", "2");
            });
            WriteValues(service, 1 + m_random.Below(6));
            WriteSpecialResponseParams(service);
        });
    });
}

void VLayerMaker::WriteSpecialResponseParams(std::size_t service) {
    if (service == 1) {
        WriteValue("TroubleCode", 20, Id("DTC-DOP", "TroubleCodes"));
        WriteValue("Environment", 23, Id("Field", "EnvironmentList"));
    } else if (service == 2) {
        WriteParam("Length", {"LENGTH-KEY", 20, {"ID", Id("LengthKey", "Content")}}, [&] {
            m_xml.Empty("DOP-REF", {{"ID-REF", DopId(0)}});
        });
        WriteValue("Content", 21, Id("DOP", "VariableLength"));
    } else if (service % 8 == 3) {
        WriteValue("Record", 20, RandomStructureId());
    } else if (service % 16 == 4) {
        WriteValue("Records", 20, Id("Field", FewName(m_random.Below(Few()), "StaticField")));
    } else if (service % 16 == 6) {
        WriteValue("Alternatives", 20, Id("Mux", FewName(m_random.Below(Few()), "Mux")));
    } else if (service % 4 == 1) {
        WriteParam("Reserved", {"RESERVED", 20}, [&] {
            m_xml.Text("BIT-POSITION", "4");
            m_xml.Text("BIT-LENGTH", "4");
        });
    }
}

void VLayerMaker::WriteNegResponse(char const* tag, std::string const& shortName) {
    m_xml.Element(tag, {{"ID", Id("NegResponse", shortName)}}, [&] {
        m_xml.Text("SHORT-NAME", shortName);
        m_xml.Element("PARAMS", [&] {
            WriteCodedConst("ServiceId", 0, 0x7F, 8);
            WriteParam("Echo", {"MATCHING-REQUEST-PARAM", 1}, [&] {
                m_xml.Text("REQUEST-BYTE-POS", "0");
                m_xml.Text("BYTE-LENGTH", "1");
            });
            WriteValue("Reason", 2, DopId(4));
        });
    });
}

} // namespace NBench
