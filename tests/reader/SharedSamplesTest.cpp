// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/Layers.h>

#include "reader/LayersInPrint.h"
#include "reader/ReaderTest.h"

/// Databases of other authors. They are not part of the project; these tests are built where they are found.

namespace NTest {
namespace {

class VSharedSamplesTest : public VReaderTest {
protected:
    void ReadSamples(std::vector<std::string> const& names) {
        std::vector<std::string> paths;
        for (std::string const& name : names) {
            paths.push_back(std::string(DIAGKIT_SHARED_SAMPLES) + '/' + name);
        }
        ReadFiles(paths);
    }

    /// Codes with their number, such as "parent-kind 2".
    std::string Codes() const {
        std::map<std::string, std::size_t> counts;
        for (NReader::VDiagnostic const& diagnostic : m_result.diagnostics) {
            ++counts[diagnostic.code];
        }
        std::string text;
        for (auto const& [code, count] : counts) {
            text += (text.empty() ? "" : ", ") + code + ' ' + std::to_string(count);
        }
        return text;
    }

    std::string Messages() const {
        std::string text;
        for (NReader::VDiagnostic const& diagnostic : m_result.diagnostics) {
            text += NReader::FormatDiagnostic(diagnostic) + '\n';
        }
        return text;
    }
};

// Both packages refer to a COMPLEX-COMPARAM, which the model does not support.

TEST_F(VSharedSamplesTest, Somersault) {
    ReadSamples({"somersault.pdx"});
    EXPECT_EQ(PrintLayers(Database()), L"PROTOCOL somersault_protocol\n"
                                       L"BASE-VARIANT somersault_base_variant < somersault_protocol\n"
                                       L"ECU-VARIANT somersault_lazy < somersault_base_variant -do_backward_flips "
                                       L"-set_operation_params\n"
                                       L"ECU-VARIANT somersault_assiduous < somersault_base_variant\n");
    EXPECT_EQ(m_result.documents.size(), 7U);
    EXPECT_EQ(Database().GetOdx().ComparamSpecCollection().Count(), 6U);
    EXPECT_EQ(Count(L"DIAG-SERVICE") + Count(L"SINGLE-ECU-JOB"), 10U);
    std::wstring const views = PrintDiagCommViews(Database());
    EXPECT_NE(views.find(L"somersault_assiduous: headstand@somersault_assiduous"), std::wstring::npos) << views.size();
    std::wstring const lazy = views.substr(views.find(L"somersault_lazy: "),
                                           views.find(L"somersault_assiduous: ") - views.find(L"somersault_lazy: "));
    EXPECT_EQ(lazy.find(L"do_backward_flips"), std::wstring::npos);
    EXPECT_EQ(lazy.find(L"set_operation_params"), std::wstring::npos);
    EXPECT_NE(lazy.find(L"do_forward_flips@somersault_base_variant"), std::wstring::npos);
    EXPECT_EQ(Codes(), "target-left-out 2") << Messages();
}

TEST_F(VSharedSamplesTest, Flxc1000) {
    ReadSamples({"FLXC1000.pdx"});
    EXPECT_EQ(PrintLayers(Database()), L"BASE-VARIANT FLXC1000 < UDS_Ethernet_DoIP UDS_Ethernet_DoIP_DOBT\n"
                                       L"ECU-VARIANT FLXC1000_Boot_Variant < FLXC1000\n"
                                       L"ECU-VARIANT FLXC1000_App_0101 < FLXC1000\n"
                                       L"PROTOCOL UDS_Ethernet_DoIP\n"
                                       L"PROTOCOL UDS_Ethernet_DoIP_DOBT\n");
    EXPECT_EQ(Count(L"DIAG-SERVICE"), 35U);
    EXPECT_EQ(Codes(), "duplicate-id 5, target-left-out 2") << Messages();
}

TEST_F(VSharedSamplesTest, Synthetic) {
    ReadSamples({"synthetic/base-variant.odx-d", "synthetic/comparam-spec.odx-c", "synthetic/comparam-subset.odx-cs",
                 "synthetic/ecu-variant.odx-d", "synthetic/functional-group.odx-d", "synthetic/protocol.odx-d"});
    EXPECT_EQ(PrintLayers(Database()),
              L"ECU-SHARED-DATA CommonSharedData\n"
              L"BASE-VARIANT SynthECU < UDS_on_CAN\n"
              L"ECU-VARIANT SynthVariantA < SynthECU -DiagnosticSessionControl CommonSharedData\n"
              L"FUNCTIONAL-GROUP SharedDiagnostics < SynthECU\n"
              L"PROTOCOL BaseProtocol\n"
              L"PROTOCOL UDS_on_CAN < BaseProtocol\n");
    EXPECT_EQ(Count(L"DIAG-SERVICE") + Count(L"SINGLE-ECU-JOB"), 8U);
    EXPECT_EQ(Codes(), "parent-kind 2, target-left-out 1") << Messages();
}

TEST_F(VSharedSamplesTest, ShortNameReferences) {
    ReadSamples({"snref-base.odx-d"});
    EXPECT_EQ(PrintDiagCommViews(Database()),
              L"SnrefECU: ReadWithTableSnref@SnrefECU ReadWithTableRowSnref@SnrefECU\n");
    EXPECT_EQ(Codes(), "") << Messages();
}

TEST_F(VSharedSamplesTest, MalformedDocumentIsLoadedAsFarAsItGoes) {
    ReadSamples({"minimal-malformed.odx"});
    EXPECT_EQ(PrintLayers(Database()), L"BASE-VARIANT TestECU_Base\n"
                                       L"ECU-VARIANT TestECU_HW1 < TestECU_Base -FlashECU\n"
                                       L"FUNCTIONAL-GROUP Diagnostics < ISO_15765_3\n"
                                       L"PROTOCOL ISO_15765_3\n"
                                       L"ECU-SHARED-DATA CommonSharedData\n");
    EXPECT_EQ(Codes(), "missing-model-version 1, not-a-value 1, unresolved-reference 2") << Messages();
}

TEST_F(VSharedSamplesTest, PrefixThatIsNeverBoundIsReadable) {
    ReadSamples({"CVC00000-unbound-prefix.odx"});
    EXPECT_EQ(m_result.documents.size(), 1U);
    EXPECT_EQ(Codes(), "missing-attribute 6, missing-model-version 1") << Messages();
}

} // namespace
} // namespace NTest
