// SPDX-License-Identifier: Apache-2.0
#include "MakeLayer.h"

#include <iterator>

namespace NBench {
namespace {

constexpr char kLetters[] = {'P', 'C', 'B', 'U'};

struct VUnitRow {
    char const* shortName;
    char const* displayName;
    char const* factor;
};

constexpr VUnitRow kUnits[] = {
    {"none", "-", "1"},
    {"volt", "V", "1"},
    {"millivolt", "mV", "1000"},
    {"ampere", "A", "1"},
    {"kelvin", "K", "1"},
    {"degree_celsius",
     "\xC2\xB0"
     "C",
     "1"},
    {"percent", "%", "100"},
    {"second", "s", "1"},
    {"millisecond", "ms", "1000"},
    {"revolutions", "1/min", "60"},
    {"kilometre", "km", "0.001"},
    {"speed", "km/h", "3.6"},
    {"bar", "bar", "0.00001"},
    {"ohm", "\xCE\xA9", "1"},
    {"newton_metre", "Nm", "1"},
};

std::string TroubleCodeName(std::size_t number) {
    static constexpr char kDigits[] = "0123456789ABCDEF";
    std::string name(1, kLetters[number % 4]);
    for (int shift = 12; shift >= 0; shift -= 4) {
        name += kDigits[(number / 4 >> shift) & 0xF];
    }
    return name;
}

} // namespace

std::string UnitId(std::string const& owner, std::size_t number) {
    return owner + ".Unit." + kUnits[number % std::size(kUnits)].shortName;
}

void WriteUnitSpec(VXmlWriter& xml, std::string const& owner) {
    std::string const dimension = owner + ".Dimension.any";
    xml.Element("UNIT-SPEC", [&] {
        xml.Element("UNIT-GROUPS", [&] {
            xml.Element("UNIT-GROUP", [&] {
                xml.Text("SHORT-NAME", "Europe");
                xml.Text("CATEGORY", "COUNTRY");
                xml.Element("UNIT-REFS", [&] { xml.Empty("UNIT-REF", {{"ID-REF", UnitId(owner, 5)}}); });
            });
        });
        xml.Element("UNITS", [&] {
            for (VUnitRow const& unit : kUnits) {
                xml.Element("UNIT", {{"ID", owner + ".Unit." + unit.shortName}}, [&] {
                    xml.Text("SHORT-NAME", unit.shortName);
                    xml.Text("DISPLAY-NAME", unit.displayName);
                    xml.Text("FACTOR-SI-TO-UNIT", unit.factor);
                    xml.Empty("PHYSICAL-DIMENSION-REF", {{"ID-REF", dimension}});
                });
            }
        });
        xml.Element("PHYSICAL-DIMENSIONS", [&] {
            xml.Element("PHYSICAL-DIMENSION", {{"ID", dimension}}, [&] {
                xml.Text("SHORT-NAME", "any");
                xml.Text("LENGTH-EXP", "0");
            });
        });
    });
}

void WriteCodedType(VXmlWriter& xml, char const* dataType, std::size_t bits) {
    xml.Element("DIAG-CODED-TYPE", {{"BASE-DATA-TYPE", dataType}, {"xsi:type", "STANDARD-LENGTH-TYPE"}},
                [&] { xml.Text("BIT-LENGTH", std::to_string(bits)); });
}

void WriteIdenticalType(VXmlWriter& xml, std::size_t bits) {
    xml.Element("COMPU-METHOD", [&] { xml.Text("CATEGORY", "IDENTICAL"); });
    WriteCodedType(xml, "A_UINT32", bits);
    xml.Empty("PHYSICAL-TYPE", {{"BASE-DATA-TYPE", "A_UINT32"}, {"DISPLAY-RADIX", "HEX"}});
}

void VLayerMaker::WriteDictionary() {
    auto const few = [&](char const* wrapper, std::size_t count, void (VLayerMaker::*write)(std::size_t number)) {
        m_xml.Element(wrapper, [&] {
            for (std::size_t number = 0; number < count; ++number) {
                (this->*write)(number);
            }
        });
    };
    m_xml.Element("DIAG-DATA-DICTIONARY-SPEC", [&] {
        WriteTroubleCodes();
        WriteEnvDataDesc();
        m_xml.Element("DATA-OBJECT-PROPS", [&] {
            for (std::size_t dop = 0; dop < DopCount(); ++dop) {
                WriteDop(dop);
            }
            WriteVariableLengthDop();
        });
        few("STRUCTURES", StructureCount(), &VLayerMaker::WriteStructure);
        WriteFields();
        few("MUXS", Few(), &VLayerMaker::WriteMux);
        m_xml.Element("ENV-DATAS", [&] { WriteEnvData("CommonEnvironment", [&] { m_xml.Empty("ALL-VALUE", {}); }); });
        if (IsLibrary()) {
            WriteUnitSpec(m_xml, kSharedLibrary);
        }
        few("TABLES", Few(), &VLayerMaker::WriteTable);
    });
}

void VLayerMaker::WriteTroubleCodes() {
    m_xml.Element("DTC-DOPS", [&] {
        m_xml.Element("DTC-DOP", {{"ID", Id("DTC-DOP", "TroubleCodes")}}, [&] {
            m_xml.Text("SHORT-NAME", "TroubleCodes");
            WriteCodedType(m_xml, "A_UINT32", 24);
            m_xml.Empty("PHYSICAL-TYPE", {{"BASE-DATA-TYPE", "A_UINT32"}, {"DISPLAY-RADIX", "HEX"}});
            m_xml.Element("COMPU-METHOD", [&] { m_xml.Text("CATEGORY", "IDENTICAL"); });
            m_xml.Element("DTCS", [&] {
                std::size_t const first = m_plan.base != nullptr ? m_plan.base->services : 0;
                if (m_plan.base != nullptr) {
                    m_xml.Empty("DTC-REF", {{"ID-REF", m_plan.base->name + ".DTC." + TroubleCodeName(0)},
                                            {"DOCREF", m_plan.base->name},
                                            {"DOCTYPE", "LAYER"}});
                }
                for (std::size_t number = 0; number < TroubleCodeCount(); ++number) {
                    WriteTroubleCode(first + number);
                }
            });
        });
    });
}

void VLayerMaker::WriteTroubleCode(std::size_t number) {
    std::string const shortName = TroubleCodeName(number);
    m_xml.Element("DTC", {{"ID", Id("DTC", shortName)}}, [&] {
        m_xml.Text("SHORT-NAME", shortName);
        m_xml.Text("TROUBLE-CODE", std::to_string(0x1000 + number));
        m_xml.Text("DISPLAY-TROUBLE-CODE", shortName);
        m_xml.Text("TEXT", m_names.LongName(number) + ": " + StateName(m_random.Below(32)));
        m_xml.Text("LEVEL", std::to_string(1 + m_random.Below(4)));
    });
}

void VLayerMaker::WriteEnvDataDesc() {
    m_xml.Element("ENV-DATA-DESCS", [&] {
        m_xml.Element("ENV-DATA-DESC", {{"ID", Id("EnvDataDesc", "Environment")}}, [&] {
            m_xml.Text("SHORT-NAME", "EnvironmentOfTroubleCode");
            m_xml.Empty("PARAM-SNREF", {{"SHORT-NAME", "TroubleCode"}});
            m_xml.Element("ENV-DATAS", [&] {
                m_xml.Empty("ENV-DATA-REF", {{"ID-REF", Id("EnvData", "CommonEnvironment")}});
                WriteEnvData("SpecialEnvironment", [&] {
                    m_xml.Element("DTC-VALUES", [&] {
                        for (std::size_t number = 0; number < TroubleCodeCount(); number += 4) {
                            m_xml.Text("DTC-VALUE", std::to_string(0x1000 + number));
                        }
                    });
                });
            });
        });
    });
}

template <class Inside>
void VLayerMaker::WriteEnvData(char const* shortName, Inside inside) {
    m_xml.Element("ENV-DATA", {{"ID", Id("EnvData", shortName)}}, [&] {
        m_xml.Text("SHORT-NAME", shortName);
        m_xml.Element("PARAMS", [&] {
            for (std::size_t value = 0; value < 3; ++value) {
                WriteValue(ValueName(0, value), 4 * value, RandomDopId());
            }
        });
        inside();
    });
}

void VLayerMaker::WriteDop(std::size_t dop) {
    std::string const shortName = DopName(dop);
    m_xml.Element("DATA-OBJECT-PROP", {{"ID", DopId(dop)}}, [&] {
        WriteNames(shortName, m_names.LongName(DopNumber(dop)), m_random.Chance(4));
        if (dop % 8 == 0) {
            WriteIdenticalType(m_xml, 8);
        } else if (dop % 8 < 4) {
            WriteLinearDop(dop);
        } else if (dop % 8 < 7) {
            WriteTextTableDop(dop);
        } else {
            WriteStringDop(dop);
        }
    });
}

void VLayerMaker::WriteLinearDop(std::size_t dop) {
    m_xml.Element("COMPU-METHOD", [&] {
        m_xml.Text("CATEGORY", "LINEAR");
        m_xml.Element("COMPU-INTERNAL-TO-PHYS", [&] {
            m_xml.Element("COMPU-SCALES", [&] {
                m_xml.Element("COMPU-SCALE", [&] {
                    m_xml.Element("COMPU-RATIONAL-COEFFS", [&] {
                        m_xml.Element("COMPU-NUMERATOR", [&] {
                            m_xml.Text("V", "-" + std::to_string(m_random.Below(100)));
                            m_xml.Text("V", "0." + std::to_string(1 + m_random.Below(9)));
                        });
                        m_xml.Element("COMPU-DENOMINATOR", [&] { m_xml.Text("V", "1"); });
                    });
                });
            });
        });
    });
    WriteCodedType(m_xml, dop % 2 == 0 ? "A_UINT32" : "A_INT32", 16);
    m_xml.Element("PHYSICAL-TYPE", {{"BASE-DATA-TYPE", "A_FLOAT64"}}, [&] { m_xml.Text("PRECISION", "1"); });
    m_xml.Element("INTERNAL-CONSTR", [&] {
        m_xml.Text("LOWER-LIMIT", "0", {{"INTERVAL-TYPE", "CLOSED"}});
        m_xml.Text("UPPER-LIMIT", std::to_string(1000 + m_random.Below(30000)), {{"INTERVAL-TYPE", "CLOSED"}});
    });
    m_xml.Empty("UNIT-REF", {{"ID-REF", UnitId(kSharedLibrary, m_random.Below(100))},
                             {IsLibrary() ? nullptr : "DOCREF", kSharedLibrary},
                             {IsLibrary() ? nullptr : "DOCTYPE", "LAYER"}});
}

void VLayerMaker::WriteTextTableDop(std::size_t dop) {
    std::size_t const count = dop % 16 == 4 ? 16 : 2 + m_random.Below(6);
    m_xml.Element("COMPU-METHOD", [&] {
        m_xml.Text("CATEGORY", "TEXTTABLE");
        m_xml.Element("COMPU-INTERNAL-TO-PHYS", [&] {
            m_xml.Element("COMPU-SCALES", [&] {
                for (std::size_t scale = 0; scale < count; ++scale) {
                    m_xml.Element("COMPU-SCALE", [&] {
                        m_xml.Text("LOWER-LIMIT", std::to_string(scale), {{"INTERVAL-TYPE", "CLOSED"}});
                        m_xml.Text("UPPER-LIMIT", std::to_string(scale), {{"INTERVAL-TYPE", "CLOSED"}});
                        m_xml.Element("COMPU-CONST", [&] { m_xml.Text("VT", StateName(dop + scale)); });
                    });
                }
            });
            m_xml.Element("COMPU-DEFAULT-VALUE", [&] { m_xml.Text("VT", "undefined"); });
        });
    });
    WriteCodedType(m_xml, "A_UINT32", 8);
    m_xml.Empty("PHYSICAL-TYPE", {{"BASE-DATA-TYPE", "A_UNICODE2STRING"}});
}

void VLayerMaker::WriteStringDop(std::size_t dop) {
    bool const isBytes = dop % 16 == 7;
    m_xml.Element("COMPU-METHOD", [&] { m_xml.Text("CATEGORY", "IDENTICAL"); });
    if (isBytes) {
        m_xml.Element("DIAG-CODED-TYPE", {{"BASE-DATA-TYPE", "A_BYTEFIELD"}, {"xsi:type", "LEADING-LENGTH-INFO-TYPE"}},
                      [&] { m_xml.Text("BIT-LENGTH", "8"); });
    } else {
        m_xml.Element(
            "DIAG-CODED-TYPE",
            {{"BASE-DATA-TYPE", "A_ASCIISTRING"}, {"TERMINATION", "ZERO"}, {"xsi:type", "MIN-MAX-LENGTH-TYPE"}}, [&] {
                m_xml.Text("MAX-LENGTH", "16");
                m_xml.Text("MIN-LENGTH", "0");
            });
    }
    m_xml.Empty("PHYSICAL-TYPE", {{"BASE-DATA-TYPE", isBytes ? "A_BYTEFIELD" : "A_UNICODE2STRING"}});
}

void VLayerMaker::WriteVariableLengthDop() {
    m_xml.Element("DATA-OBJECT-PROP", {{"ID", Id("DOP", "VariableLength")}}, [&] {
        m_xml.Text("SHORT-NAME", "VariableLength" + m_plan.suffix);
        m_xml.Element("COMPU-METHOD", [&] { m_xml.Text("CATEGORY", "IDENTICAL"); });
        m_xml.Element("DIAG-CODED-TYPE", {{"BASE-DATA-TYPE", "A_BYTEFIELD"}, {"xsi:type", "PARAM-LENGTH-INFO-TYPE"}},
                      [&] {
                          m_xml.Empty("LENGTH-KEY-REF", {{"ID-REF", Id("LengthKey", "Content")}});
                      });
        m_xml.Empty("PHYSICAL-TYPE", {{"BASE-DATA-TYPE", "A_BYTEFIELD"}});
    });
}

void VLayerMaker::WriteStructure(std::size_t structure) {
    m_xml.Element("STRUCTURE", {{"ID", StructureId(structure)}, {"IS-VISIBLE", "true"}}, [&] {
        WriteNames(StructureName(structure), m_names.LongName(DopNumber(structure)) + " record", false);
        m_xml.Text("BYTE-SIZE", structure % 4 == 3 ? "32" : "16"); // with another one inside
        m_xml.Element("PARAMS", [&] {
            WriteValues(structure, 2 + m_random.Below(5));
            if (structure % 4 == 3) {
                WriteValue("Inner", 16, StructureId(structure - 1));
            }
        });
    });
}

template <class Inside>
void VLayerMaker::WriteField(char const* tag, char const* suffix, std::size_t field, Inside inside) {
    std::string const shortName = FewName(field, suffix);
    m_xml.Element(tag, {{"ID", Id("Field", shortName)}}, [&] {
        WriteNames(shortName, m_names.LongName(DopNumber(field)), false);
        m_xml.Empty("BASIC-STRUCTURE-REF", {{"ID-REF", RandomStructureId()}});
        inside();
    });
}

void VLayerMaker::WriteFields() {
    auto const each = [&](char const* wrapper, char const* tag, char const* suffix, auto inside) {
        m_xml.Element(wrapper, [&] {
            for (std::size_t field = 0; field < Few(); ++field) {
                WriteField(tag, suffix, field, inside);
            }
        });
    };
    each("STATIC-FIELDS", "STATIC-FIELD", "StaticField", [&] {
        m_xml.Text("FIXED-NUMBER-OF-ITEMS", "4");
        m_xml.Text("ITEM-BYTE-SIZE", "32");
    });
    each("DYNAMIC-LENGTH-FIELDS", "DYNAMIC-LENGTH-FIELD", "CountedField", [&] {
        m_xml.Text("OFFSET", "1");
        m_xml.Element("DETERMINE-NUMBER-OF-ITEMS", [&] {
            m_xml.Text("BYTE-POSITION", "0");
            m_xml.Empty("DATA-OBJECT-PROP-REF", {{"ID-REF", DopId(0)}});
        });
    });
    each("DYNAMIC-ENDMARKER-FIELDS", "DYNAMIC-ENDMARKER-FIELD", "MarkedField", [&] {
        m_xml.Element("DATA-OBJECT-PROP-REF", {{"ID-REF", DopId(0)}}, [&] { m_xml.Text("TERMINATION-VALUE", "255"); });
    });
    m_xml.Element("END-OF-PDU-FIELDS", [&] {
        m_xml.Element("END-OF-PDU-FIELD", {{"ID", Id("Field", "EnvironmentList")}}, [&] {
            m_xml.Text("SHORT-NAME", "EnvironmentList");
            m_xml.Empty("ENV-DATA-DESC-REF", {{"ID-REF", Id("EnvDataDesc", "Environment")}});
            m_xml.Text("MAX-NUMBER-OF-ITEMS", "20");
            m_xml.Text("MIN-NUMBER-OF-ITEMS", "0");
        });
        for (std::size_t field = 0; field < Few(); ++field) {
            WriteField("END-OF-PDU-FIELD", "OpenField", field, [] {});
        }
    });
}

void VLayerMaker::WriteMux(std::size_t mux) {
    std::string const shortName = FewName(mux, "Mux");
    m_xml.Element("MUX", {{"ID", Id("Mux", shortName)}}, [&] {
        WriteNames(shortName, m_names.LongName(DopNumber(mux)), false);
        m_xml.Text("BYTE-POSITION", "1");
        m_xml.Element("SWITCH-KEY", [&] {
            m_xml.Text("BYTE-POSITION", "0");
            m_xml.Empty("DATA-OBJECT-PROP-REF", {{"ID-REF", DopId(0)}});
        });
        m_xml.Element("DEFAULT-CASE", [&] { m_xml.Text("SHORT-NAME", "Other"); });
        m_xml.Element("CASES", [&] {
            for (std::size_t number = 0; number < 4; ++number) {
                m_xml.Element("CASE", [&] {
                    m_xml.Text("SHORT-NAME", "Case" + std::to_string(number));
                    m_xml.Empty("STRUCTURE-REF", {{"ID-REF", RandomStructureId()}});
                    m_xml.Text("LOWER-LIMIT", std::to_string(number));
                    m_xml.Text("UPPER-LIMIT", std::to_string(number));
                });
            }
        });
    });
}

void VLayerMaker::WriteTable(std::size_t table) {
    std::string const shortName = FewName(table, "Table");
    m_xml.Element("TABLE", {{"ID", Id("Table", shortName)}, {"SEMANTIC", "DATA-ID"}}, [&] {
        WriteNames(shortName, m_names.LongName(DopNumber(table)), false);
        m_xml.Text("KEY-LABEL", "identifier");
        m_xml.Empty("KEY-DOP-REF", {{"ID-REF", DopId(0)}});
        for (std::size_t row = 0; row < 8; ++row) {
            std::string const rowName = "Row" + std::to_string(row);
            m_xml.Element("TABLE-ROW", {{"ID", Id("Row", shortName + '.' + rowName)}}, [&] {
                m_xml.Text("SHORT-NAME", rowName);
                m_xml.Text("KEY", std::to_string(row));
                m_xml.Empty("STRUCTURE-REF", {{"ID-REF", RandomStructureId()}});
            });
        }
    });
}

} // namespace NBench
