// SPDX-License-Identifier: Apache-2.0
#include "MakeLayer.h"

#include <iterator>

namespace NBench {
namespace {

constexpr char const* kVerbs[] = {"Read", "Write", "Control", "Start", "Request"};
constexpr char const* kFunctClasses[] = {"Identification", "Measurement", "Actuation", "Coding", "TroubleCodes"};

std::size_t Hash(std::string_view text) {
    std::size_t hash = 7;
    for (char const character : text) {
        hash = (hash * 31 + static_cast<unsigned char>(character)) % 1000003;
    }
    return hash;
}

} // namespace

VLayerMaker::VLayerMaker(VXmlWriter& xml, VLayerPlan const& plan, std::uint64_t seed)
    : m_xml(xml), m_plan(plan), m_random(seed + Hash(plan.name)),
      m_names(Hash(plan.base != nullptr ? plan.base->name : plan.name)) {}

std::string VLayerMaker::Id(char const* kind, std::string const& shortName) const {
    return m_plan.name + '.' + kind + '.' + shortName;
}

/// An ECU-VARIANT's first services have the names of the base's, the others have new ones.
std::size_t VLayerMaker::ServiceNumber(std::size_t service) const {
    bool const isNew = m_plan.base != nullptr && service >= OverridingCount();
    return isNew ? m_plan.base->services + service - OverridingCount() : service;
}

std::size_t VLayerMaker::DopNumber(std::size_t dop) const {
    return m_plan.base != nullptr ? m_plan.base->services + 4 + dop : dop;
}

std::string VLayerMaker::ServiceName(std::size_t service) const {
    std::size_t const number = ServiceNumber(service);
    return kVerbs[number % std::size(kVerbs)] + m_names.ShortName(number) + m_plan.suffix;
}

std::string VLayerMaker::ValueName(std::size_t service, std::size_t value) const {
    return m_names.ShortName(ServiceNumber(service) + 41 * value);
}

std::string VLayerMaker::DopName(std::size_t dop) const { return m_names.ShortName(DopNumber(dop)) + m_plan.suffix; }

std::string VLayerMaker::StructureName(std::size_t structure) const {
    return m_names.ShortName(DopNumber(structure)) + "Record" + m_plan.suffix;
}

std::string VLayerMaker::FewName(std::size_t number, char const* suffix) const {
    return m_names.ShortName(DopNumber(number)) + suffix + m_plan.suffix;
}

std::string VLayerMaker::Oid() {
    static constexpr char kDigits[] = "0123456789abcdef";
    std::string text;
    for (int digit = 0; digit < 8; ++digit) {
        text += kDigits[m_random.Below(16)];
    }
    return text;
}

void VLayerMaker::WriteNames(std::string const& shortName, std::string const& longName, bool isDescribed) {
    m_xml.Text("SHORT-NAME", shortName);
    m_xml.Text("LONG-NAME", longName);
    if (isDescribed) {
        m_xml.Element("DESC", [&] { m_xml.Text("p", Sentences(m_random, longName)); });
    }
}

void VLayerMaker::Write() {
    std::string const oid = Oid();
    auto const inside = [&] {
        WriteNames(m_plan.name, m_names.LongName(0) + " control", true);
        WriteAdminData();
        m_xml.Element("FUNCT-CLASSS", [&] {
            for (char const* const functClass : kFunctClasses) {
                m_xml.Element("FUNCT-CLASS", {{"ID", Id("FunctClass", functClass)}},
                              [&] { m_xml.Text("SHORT-NAME", functClass); });
            }
        });
        WriteDictionary();
        WriteServices();
        WriteMessages();
        if (IsHierarchical()) {
            WriteHierarchyParts();
        } else {
            WriteVariables();
        }
    };
    bool const isProtocol = std::string_view(m_plan.tag) == "PROTOCOL";
    m_xml.Element(m_plan.tag,
                  {{"ID", m_plan.name}, {"OID", oid}, {isProtocol ? "TYPE" : nullptr, "ISO_15765_3_on_ISO_15765_2"}},
                  inside);
}

void VLayerMaker::WriteAdminData() {
    m_xml.Element("ADMIN-DATA", [&] {
        m_xml.Text("LANGUAGE", "en-GB");
        m_xml.Element("DOC-REVISIONS", [&] {
            std::size_t const count = 1 + m_random.Below(4);
            for (std::size_t revision = 0; revision < count; ++revision) {
                m_xml.Element("DOC-REVISION", [&] {
                    m_xml.Text("REVISION-LABEL", "1." + std::to_string(revision));
                    m_xml.Text("STATE", revision + 1 < count ? "released" : "draft");
                    m_xml.Text("DATE", "2006-0" + std::to_string(revision + 1) + "-15T09:30:00");
                    m_xml.Element("MODIFICATIONS", [&] {
                        m_xml.Element("MODIFICATION", [&] {
                            std::string const about = m_names.LongName(m_random.Below(m_plan.services));
                            m_xml.Text("CHANGE", Sentences(m_random, about));
                        });
                    });
                });
            }
        });
    });
}

void VLayerMaker::WriteServices() {
    m_xml.Element("DIAG-COMMS", [&] {
        for (std::size_t service = 0; service < m_plan.services; ++service) {
            WriteService(service);
        }
        for (std::size_t job = 0; job < Few(); ++job) {
            WriteJob(job);
        }
    });
}

void VLayerMaker::WriteService(std::size_t service) {
    std::string const shortName = ServiceName(service);
    std::string const oid = Oid();
    m_xml.Element("DIAG-SERVICE",
                  {{"ID", Id("Service", shortName)},
                   {"OID", oid},
                   {"SEMANTIC", service % 5 == 0 ? "CURRENTDATA" : "STOREDDATA"},
                   {"ADDRESSING", "PHYSICAL"}},
                  [&] {
                      WriteNames(shortName, m_names.LongName(ServiceNumber(service)), m_random.Chance(2));
                      WriteServiceParts(service);
                      m_xml.Empty("REQUEST-REF", {{"ID-REF", Id("Request", shortName)}});
                      m_xml.Element("POS-RESPONSE-REFS", [&] {
                          m_xml.Empty("POS-RESPONSE-REF", {{"ID-REF", Id("PosResponse", shortName)}});
                      });
                      m_xml.Element("NEG-RESPONSE-REFS", [&] {
                          m_xml.Empty("NEG-RESPONSE-REF", {{"ID-REF", Id("NegResponse", "NotNow")}});
                      });
                  });
}

void VLayerMaker::WriteServiceParts(std::size_t service) {
    if (m_random.Chance(3)) {
        m_xml.Element("SDGS", [&] {
            m_xml.Element("SDG", [&] {
                m_xml.Element("SDG-CAPTION", {{"ID", Id("Caption", ServiceName(service))}},
                              [&] { m_xml.Text("SHORT-NAME", "Authoring"); });
                m_xml.Text("SD", "R" + std::to_string(m_random.Below(100000)), {{"SI", "requirement"}});
                m_xml.Text("SD", StateName(m_random.Below(32)), {{"SI", "review"}});
                m_xml.Element("SDG", [&] { m_xml.Text("SD", Sentences(m_random, "Remark: it")); });
            });
        });
    }
    if (IsHierarchical() && m_random.Chance(8)) {
        m_xml.Element("COMPARAM-REFS", [&] {
            m_xml.Element("COMPARAM-REF",
                          {{"ID-REF", std::string(kComparamSpec) + ".P2Max"},
                           {"DOCREF", kComparamSpec},
                           {"DOCTYPE", "COMPARAM-SPEC"}},
                          [&] { m_xml.Text("VALUE", std::to_string(50 * m_random.Below(20))); });
        });
    }
    m_xml.Element("FUNCT-CLASS-REFS", [&] {
        m_xml.Empty("FUNCT-CLASS-REF",
                    {{"ID-REF", Id("FunctClass", kFunctClasses[service % std::size(kFunctClasses)])}});
    });
    m_xml.Empty("AUDIENCE", {{"IS-AFTERMARKET", m_random.Chance(2) ? "true" : "false"}});
    if (service % 16 == 7) {
        m_xml.Element("RELATED-DIAG-COMM-REFS", [&] {
            m_xml.Element("RELATED-DIAG-COMM-REF", {{"ID-REF", Id("Service", ServiceName(service - 1))}},
                          [&] { m_xml.Text("RELATION-TYPE", "PRECONDITION"); });
        });
    }
}

void VLayerMaker::WriteJob(std::size_t job) {
    std::string const shortName = FewName(job, "Routine");
    m_xml.Element("SINGLE-ECU-JOB", {{"ID", Id("Job", shortName)}, {"SEMANTIC", "ROUTINE"}}, [&] {
        WriteNames(shortName, "Routine: " + m_names.LongName(DopNumber(job)), true);
        m_xml.Empty("AUDIENCE", {{"IS-SUPPLIER", "false"}});
        m_xml.Element("PROG-CODES", [&] {
            m_xml.Element("PROG-CODE", [&] {
                m_xml.Text("CODE-FILE", "routines.jar");
                m_xml.Text("SYNTAX", "JAR");
                m_xml.Text("REVISION", "1.2");
                m_xml.Text("ENTRYPOINT", shortName);
            });
        });
        m_xml.Element("INPUT-PARAMS", [&] {
            m_xml.Element("INPUT-PARAM", {{"SEMANTIC", "DATA"}}, [&] {
                m_xml.Text("SHORT-NAME", "Repetitions");
                m_xml.Text("PHYSICAL-DEFAULT-VALUE", "3");
                m_xml.Empty("DOP-BASE-REF", {{"ID-REF", DopId(0)}});
            });
        });
        m_xml.Element("OUTPUT-PARAMS", [&] {
            m_xml.Element("OUTPUT-PARAM", {{"ID", Id("Output", shortName)}}, [&] {
                m_xml.Text("SHORT-NAME", "Result");
                m_xml.Empty("DOP-BASE-REF", {{"ID-REF", RandomStructureId()}});
            });
        });
        m_xml.Element("NEG-OUTPUT-PARAMS", [&] {
            m_xml.Element("NEG-OUTPUT-PARAM", [&] {
                m_xml.Text("SHORT-NAME", "Failure");
                m_xml.Empty("DOP-BASE-REF", {{"ID-REF", DopId(0)}});
            });
        });
    });
}

void VLayerMaker::WriteVariables() {
    std::string const group = Id("VariableGroup", "Measurements");
    m_xml.Element("DIAG-VARIABLES", [&] {
        for (std::size_t service = 0; service < m_plan.services; service += 8) {
            std::string const shortName = m_names.ShortName(ServiceNumber(service)) + "Variable" + m_plan.suffix;
            m_xml.Element("DIAG-VARIABLE", {{"ID", Id("Variable", shortName)}}, [&] {
                WriteNames(shortName, m_names.LongName(ServiceNumber(service)), false);
                m_xml.Empty("VARIABLE-GROUP-REF", {{"ID-REF", group}});
                m_xml.Element("SW-VARIABLES", [&] {
                    m_xml.Element("SW-VARIABLE", [&] { m_xml.Text("SHORT-NAME", "v_" + std::to_string(service)); });
                });
                m_xml.Element("COMM-RELATIONS", [&] {
                    m_xml.Element("COMM-RELATION", {{"VALUE-TYPE", "CURRENT"}}, [&] {
                        m_xml.Text("RELATION-TYPE", "READ");
                        m_xml.Empty("DIAG-COMM-SNREF", {{"SHORT-NAME", ServiceName(service)}});
                        m_xml.Empty("OUT-PARAM-IF-SNREF", {{"SHORT-NAME", ValueName(service, 0)}});
                    });
                });
            });
        }
    });
    m_xml.Element("VARIABLE-GROUPS", [&] {
        m_xml.Element("VARIABLE-GROUP", {{"ID", group}}, [&] { m_xml.Text("SHORT-NAME", "Measurements"); });
    });
}

void VLayerMaker::WriteHierarchyParts() {
    std::string_view const tag = m_plan.tag;
    m_xml.Element("COMPARAM-REFS", [&] {
        for (char const* const comparam : {"P2Max", "P3Min", "TesterPresentTime"}) {
            m_xml.Element("COMPARAM-REF",
                          {{"ID-REF", std::string(kComparamSpec) + '.' + comparam},
                           {"DOCREF", kComparamSpec},
                           {"DOCTYPE", "COMPARAM-SPEC"}},
                          [&] { m_xml.Text("VALUE", std::to_string(10 * m_random.Below(300))); });
        }
    });
    m_xml.Element("IMPORT-REFS", [&] {
        m_xml.Empty("IMPORT-REF", {{"ID-REF", kSharedLibrary}, {"DOCREF", kSharedLibrary}, {"DOCTYPE", "LAYER"}});
    });
    if (tag == "PROTOCOL") {
        m_xml.Empty("COMPARAM-SPEC-REF",
                    {{"ID-REF", kComparamSpec}, {"DOCREF", kComparamSpec}, {"DOCTYPE", "COMPARAM-SPEC"}});
    } else {
        WriteVariables();
    }
    if (tag == "ECU-VARIANT") {
        m_xml.Element("ECU-VARIANT-PATTERNS", [&] {
            m_xml.Element("ECU-VARIANT-PATTERN", [&] {
                m_xml.Element("MATCHING-PARAMETERS", [&] {
                    m_xml.Element("MATCHING-PARAMETER", [&] {
                        m_xml.Text("EXPECTED-VALUE", std::to_string(m_random.Below(256)));
                        m_xml.Empty("DIAG-COMM-SNREF", {{"SHORT-NAME", ServiceName(0)}});
                        m_xml.Empty("OUT-PARAM-IF-SNREF", {{"SHORT-NAME", ValueName(0, 0)}});
                    });
                });
            });
        });
    }
    m_xml.Element("ACCESS-LEVELS", [&] {
        m_xml.Element("ACCESS-LEVEL", [&] {
            m_xml.Text("VALUE", "1");
            m_xml.Element("DESC", [&] { m_xml.Text("p", "Workshop"); });
            m_xml.Empty("DIAG-COMM-SNREF", {{"SHORT-NAME", ServiceName(0)}});
        });
    });
    WriteParentRefs();
}

void VLayerMaker::WriteParentRefs() {
    m_xml.Element("PARENT-REFS", [&] {
        for (VLayerPlan::VParentRefPlan const& parent : m_plan.parents) {
            m_xml.Element(
                "PARENT-REF",
                {{"xsi:type", parent.xsiType}, {"ID-REF", parent.name}, {"DOCREF", parent.name}, {"DOCTYPE", "LAYER"}},
                [&] {
                    if (m_plan.base == nullptr) {
                        return;
                    }
                    // A service of the base that nothing refers to and that this layer does not override.
                    std::size_t const last = m_plan.base->services - 1;
                    std::size_t const excluded = last % 8 == 0 ? last - 1 : last;
                    VLayerMaker const base(m_xml, *m_plan.base, 0);
                    m_xml.Element("NOT-INHERITED-DIAG-COMMS", [&] {
                        m_xml.Element("NOT-INHERITED-DIAG-COMM", [&] {
                            m_xml.Empty("DIAG-COMM-SNREF", {{"SHORT-NAME", base.ServiceName(excluded)}});
                        });
                    });
                });
        }
    });
}

} // namespace NBench
