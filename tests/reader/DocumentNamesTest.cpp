// SPDX-License-Identifier: Apache-2.0
#include "reader/ReaderTest.h"

namespace NTest {
namespace {

std::string Referenced(std::string const& tag, std::string const& attributes) {
    return "\n<" + tag + " " + attributes + "/>";
}

/// A BASE-VARIANT with a service "S.ID", which has the reference given, and with the REQUEST "RQ".
std::string BaseVariant(std::string const& id, std::string const& shortName, std::string const& reference) {
    return "<BASE-VARIANTS><BASE-VARIANT ID=\"" + id + "\"><SHORT-NAME>" + shortName + "</SHORT-NAME>" +
           (reference.empty() ? ""
                              : "<DIAG-COMMS><DIAG-SERVICE ID=\"S." + id + "\"><SHORT-NAME>S</SHORT-NAME><AUDIENCE/>" +
                                    reference + "</DIAG-SERVICE></DIAG-COMMS>") +
           "<REQUESTS><REQUEST ID=\"RQ\"><SHORT-NAME>RQ</SHORT-NAME><PARAMS/></REQUEST></REQUESTS>"
           "</BASE-VARIANT></BASE-VARIANTS>";
}

std::string ContainerOf(std::string const& id, std::string const& shortName, std::string const& layers) {
    return "<ODX MODEL-VERSION=\"2.0.1\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\">"
           "<DIAG-LAYER-CONTAINER ID=\"" +
           id + "\"><SHORT-NAME>" + shortName + "</SHORT-NAME>" + layers + "</DIAG-LAYER-CONTAINER></ODX>";
}

std::string EcuVariant(std::string const& parentRef) {
    return "<ECU-VARIANTS><ECU-VARIANT ID=\"V\"><SHORT-NAME>V</SHORT-NAME><PARENT-REFS>" + parentRef +
           "</PARENT-REFS></ECU-VARIANT></ECU-VARIANTS>";
}

class VDocumentNamesTest : public VReaderTest {
protected:
    /// Two containers of one name with the REQUEST "RQ" each, and one whose service refers to it.
    void ReadReference(std::string const& attributes) {
        Read({ContainerOf("C1", "C", BaseVariant("L1", "L", "")), ContainerOf("C2", "C", BaseVariant("L2", "L", "")),
              ContainerOf("D", "D", BaseVariant("L3", "M", Referenced("REQUEST-REF", attributes)))});
    }

    std::string MessageOf(std::string const& code) const {
        for (NReader::VDiagnostic const& diagnostic : m_result.diagnostics) {
            if (diagnostic.code == code) {
                std::string message = diagnostic.message;
                for (std::size_t at; (at = message.find(Path(""))) != std::string::npos;) {
                    message.erase(at, Path("").size());
                }
                return message;
            }
        }
        return "(none)";
    }
};

TEST_F(VDocumentNamesTest, TwoContainersOfOneName) {
    Read({ContainerOf("C1", "C", ""), ContainerOf("C2", "C", ""), ContainerOf("C3", "D", "")});
    EXPECT_EQ(Diagnostics(), "2.odx:1:82 warning repeated-document");
    EXPECT_EQ(MessageOf("repeated-document"),
              "DIAG-LAYER-CONTAINER 'C' has the short name of the one at 1.odx:1; a reference that names the document "
              "means what is found in that one first");
}

TEST_F(VDocumentNamesTest, DocumentsOfTwoCategoriesMayShareAName) {
    Read({ContainerOf("C1", "C", ""), Document("<COMPARAM-SPEC ID=\"P\"><SHORT-NAME>C</SHORT-NAME></COMPARAM-SPEC>")});
    EXPECT_EQ(MessageOf("repeated-document"), "(none)");
}

TEST_F(VDocumentNamesTest, ContainerNamedByAReferenceWhoseAnswerDependsOnIt) {
    ReadReference("ID-REF=\"RQ\" DOCREF=\"C\" DOCTYPE=\"CONTAINER\"");
    EXPECT_EQ(MessageOf("ambiguous-document"),
              "REQUEST-REF names the ID 'RQ' in 'C', but there are several of that name; the REQUEST at 1.odx:1 is "
              "taken, and not the REQUEST at 2.odx:1");
    EXPECT_EQ(Diagnostics(), "2.odx:1:82 warning repeated-document\n3.odx:2:1 error ambiguous-document");
}

TEST_F(VDocumentNamesTest, LayerNamedByAReferenceWhoseAnswerDependsOnIt) {
    ReadReference("ID-REF=\"RQ\" DOCREF=\"L\" DOCTYPE=\"LAYER\"");
    EXPECT_EQ(Diagnostics(), "2.odx:1:82 warning repeated-document\n3.odx:2:1 error ambiguous-document");
}

TEST_F(VDocumentNamesTest, ReferenceThatOneOfTheDocumentsAloneAnswers) {
    ReadReference("ID-REF=\"L2\" DOCREF=\"C\" DOCTYPE=\"CONTAINER\"");
    EXPECT_EQ(MessageOf("ambiguous-document"), "(none)");
}

TEST_F(VDocumentNamesTest, ReferenceWithoutDocref) {
    ReadReference("ID-REF=\"RQ\"");
    EXPECT_EQ(MessageOf("ambiguous-document"), "(none)");
}

TEST_F(VDocumentNamesTest, ParentInOneOfTwoContainers) {
    for (char const* const type : {"xsi:type=\"BASE-VARIANT-REF\" ", ""}) {
        Read({ContainerOf("C1", "C", BaseVariant("B", "B1", "")), ContainerOf("C2", "C", BaseVariant("B", "B2", "")),
              ContainerOf("D", "D",
                          EcuVariant(Referenced("PARENT-REF", type + std::string("ID-REF=\"B\" DOCREF=\"C\" "
                                                                                 "DOCTYPE=\"CONTAINER\""))))});
        EXPECT_EQ(MessageOf("ambiguous-document"),
                  "PARENT-REF names the ID 'B' in 'C', but there are several of that name; the BASE-VARIANT at "
                  "1.odx:1 is taken, and not the BASE-VARIANT at 2.odx:1")
            << type;
    }
}

} // namespace
} // namespace NTest
