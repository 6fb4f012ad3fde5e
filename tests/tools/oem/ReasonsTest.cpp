// SPDX-License-Identifier: Apache-2.0

// Why each rule does not match, for each way in which it can fail; and when a "yes" is weak evidence.

#include <diagkit/tools/oem/Reasons.h>

#include <diagkit/tools/oem/AudiVwHeuristic.h>
#include <diagkit/tools/oem/BmwHeuristic.h>
#include <diagkit/tools/oem/ClaasHeuristic.h>
#include <diagkit/tools/oem/DaimlerHeuristic.h>
#include <diagkit/tools/oem/FiatHeuristic.h>
#include <diagkit/tools/oem/GmHeuristic.h>
#include <diagkit/tools/oem/PSAHeuristic.h>
#include <diagkit/tools/oem/PagHeuristic.h>
#include <diagkit/tools/oem/ProcessingInstructionRule.h>

#include "tools/oem/OemTest.h"

namespace NTest {
namespace {

using namespace NDIAGKIT; // nearly all of it

TEST(ReasonTextsTest, LongQuotationsAreCutOff) {
    EXPECT_EQ(Quoted(L"Engine"), L"'Engine'");
    EXPECT_EQ(Quoted(L""), L"''");
    EXPECT_EQ(Quoted(std::wstring(200, L'x')), L"'" + std::wstring(200, L'x') + L"'");
    EXPECT_EQ(Quoted(std::wstring(201, L'x')), L"'" + std::wstring(200, L'x') + L"'...");
}

TEST(ReasonTextsTest, WhatIsNotThereIsSaidToBeMissing) {
    EXPECT_EQ(Stated(L"ID", L"Engine"), L"the ID 'Engine'");
    EXPECT_EQ(Stated(L"ID", L""), L"no ID");
    EXPECT_EQ(LookedAt(L"none", 2, L"MUX"), L"none; 2 MUXes looked at");
    EXPECT_EQ(LookedAt(L"none", 0, L"MUX"), L"no MUX");
}

TEST(ReasonTextsTest, OfManyTextsTheFirstFiveAreListed) {
    VListing listing;
    EXPECT_EQ(listing.As(L"PROTOCOL"), L"no PROTOCOL");
    listing.Add(L"1");
    EXPECT_EQ(listing.As(L"PROTOCOL"), L"the PROTOCOL 1");
    for (wchar_t const* const text : {L"2", L"3", L"4", L"5"}) {
        listing.Add(text);
    }
    EXPECT_EQ(listing.As(L"FUNCT-CLASS"), L"the FUNCT-CLASSes 1, 2, 3, 4, 5");
    listing.Add(L"6");
    listing.Add(L"7");
    EXPECT_EQ(listing.As(L"PROTOCOL"), L"the PROTOCOLs 1, 2, 3, 4, 5 and 2 more");
}

class ReasonsTest : public VOemTest {
protected:
    NMemory::VMemProtocol& AddServingProtocol(wchar_t const* name = L"Uds") {
        NMemory::VMemProtocol& protocol = m_container.AddProtocol(name);
        protocol.AddDiagService(L"First");
        protocol.AddSingleEcuJob(L"Second");
        return protocol;
    }

    NMemory::VMemTeamMember& AddMember(NMemory::VMemEcuSharedData& layer, wchar_t const* company, wchar_t const* role) {
        NMemory::VMemCompanyData& data = layer.AddCompanyData(L"Company");
        data.SetLongName(company);
        NMemory::VMemTeamMember& member = data.AddTeamMember(L"Member");
        member.AddRole(role);
        return member;
    }
};

// Every manufacturer

TEST_F(ReasonsTest, ProcessingInstruction) {
    EXPECT_EQ(Told<VProcessingInstructionRule>(L"8"), L"vacuous");
    m_database.AddProcessingInstruction(L"PavonaTemplateManufacturer", L"8");
    EXPECT_EQ(Told<VProcessingInstructionRule>(L"8"), L"yes");
    m_database.AddProcessingInstruction(L"Other", L"4");
    m_database.AddProcessingInstruction(L"PavonaTemplateManufacturer", L"15");
    EXPECT_EQ(Told<VProcessingInstructionRule>(L"4"),
              L"the processing instruction PavonaTemplateManufacturer '4' | the contents '8', '15'");
}

// General Motors

TEST_F(ReasonsTest, GmProtocol) {
    EXPECT_EQ(Told<VGmProtocolRule>(), L"a PROTOCOL | none");
    m_container.AddProtocol(L"Empty");
    EXPECT_EQ(Told<VGmProtocolRule>(), L"yes");
    AddServingProtocol();
    EXPECT_EQ(Told<VGmProtocolRule>(), L"no DIAG-COMMs in a PROTOCOL | 2 DIAG-COMMs | Uds");
}

TEST_F(ReasonsTest, GmFunctionalGroup) {
    EXPECT_EQ(Told<VGmFunctionalGroupRule>(), L"yes") << "that there is none is the habit";
    m_container.AddFunctionalGroup(L"All");
    m_container.AddFunctionalGroup(L"Doors");
    EXPECT_EQ(Told<VGmFunctionalGroupRule>(), L"no FUNCTIONAL-GROUP | the FUNCTIONAL-GROUPs 'All', 'Doors' | All");
}

TEST_F(ReasonsTest, GmComparamSpec) {
    EXPECT_EQ(Told<VGmComparamSpecRule>(), L"a COMPARAM-SPEC | none");
    NMemory::VMemComparamSpec& spec = Identify(m_database.AddComparamSpec(L"Spec"), L"ID7", L"7");
    EXPECT_EQ(Told<VGmComparamSpecRule>(), L"yes");
    Identify(spec.AddComparam(L"Param"), L"ID8", L"");
    EXPECT_EQ(Told<VGmComparamSpecRule>(), L"an ID of 'ID' and the OID | the ID 'ID8' and no OID | Param");
    Identify(spec, L"7", L"7");
    EXPECT_EQ(Told<VGmComparamSpecRule>(), L"an ID of 'ID' and the OID | the ID '7' and the OID '7' | Spec");
}

// BMW

TEST_F(ReasonsTest, BmwId) {
    EXPECT_EQ(Told<VBmwIdRule>(), L"vacuous");
    NMemory::VMemEcuVariant& variant = Identify(m_container.AddEcuVariant(L"Variant"), L"1", L"1");
    EXPECT_EQ(Told<VBmwIdRule>(), L"yes");
    Identify(variant.MakeDiagDataDictionarySpec().AddDataObjectProp(L"Dop"), L"2", L"3");
    EXPECT_EQ(Told<VBmwIdRule>(), L"an ID that is the OID | the ID '2' and the OID '3' | Dop");
    Identify(m_container.AddProtocol(L"Uds"), L"4", L"");
    EXPECT_EQ(Told<VBmwIdRule>(), L"an ID that is the OID | the ID '4' and no OID | Uds") << "they come first";
}

TEST_F(ReasonsTest, BmwEcuSharedData) {
    std::wstring const expected = L"a COMPANY-DATA called BMW with the long name 'BMW', 'BMW AG' or "
                                  L"'Bayerische Motorenwerke' and the one role 'MANUFACTURER' | ";
    EXPECT_EQ(Told<VBmwEcuSharedDataRule>(), expected + L"no ECU-SHARED-DATA");
    NMemory::VMemEcuSharedData& layer = m_container.AddEcuSharedData(L"Library");
    layer.AddCompanyData(L"Other");
    EXPECT_EQ(Told<VBmwEcuSharedDataRule>(), expected + L"none; 1 ECU-SHARED-DATA looked at");
    layer.AddCompanyData(L"BMW_Group");
    EXPECT_EQ(Told<VBmwEcuSharedDataRule>(), expected + L"no long name and no role | BMW_Group");
    NMemory::VMemCompanyData& bmw = layer.AddCompanyData(L"BMW");
    bmw.SetLongName(L"BMW");
    bmw.AddRole(L"MANUFACTURER");
    EXPECT_EQ(Told<VBmwEcuSharedDataRule>(), L"yes");
}

TEST_F(ReasonsTest, BmwEcuSharedDataOfARoleTooMany) {
    NMemory::VMemCompanyData& bmw = m_container.AddEcuSharedData(L"Library").AddCompanyData(L"BMW");
    bmw.SetLongName(L"BMW AG");
    bmw.AddRole(L"MANUFACTURER");
    bmw.AddRole(L"Supplier");
    std::wstring const told = Told<VBmwEcuSharedDataRule>();
    EXPECT_EQ(told.substr(told.find(L" | ")),
              L" | the long name 'BMW AG' and the roles 'MANUFACTURER', 'Supplier' | BMW");
}

TEST_F(ReasonsTest, BmwProtocol) {
    std::wstring const expected = L"a PROTOCOL that inherits from the ECU-SHARED-DATA 'ISO_14229_SERVICES_BMW' or "
                                  L"'ISO_14230_SERVICES_BMW' | ";
    EXPECT_EQ(Told<VBmwProtocolRule>(), expected + L"no PROTOCOL");
    m_container.AddProtocol(L"Empty");
    EXPECT_EQ(Told<VBmwProtocolRule>(), expected + L"none; 1 PROTOCOL looked at");
    AddServingProtocol();
    EXPECT_EQ(Told<VBmwProtocolRule>(), L"no DIAG-COMMs in a PROTOCOL | 2 DIAG-COMMs | Uds");
}

TEST_F(ReasonsTest, BmwEcuSharedDataNew) {
    EXPECT_EQ(Told<VBmwEcuSharedDataRuleNew>(), L"the ECU-SHARED-DATA 'BMW_LIB' | no ECU-SHARED-DATA");
    m_container.AddEcuSharedData(L"BMW_LIB_2");
    EXPECT_EQ(Told<VBmwEcuSharedDataRuleNew>(), L"the ECU-SHARED-DATA 'BMW_LIB' | the ECU-SHARED-DATA 'BMW_LIB_2'");
}

TEST_F(ReasonsTest, BmwFunctionalGroup) {
    std::wstring const expected = L"the MUXes 'PRIM_DTC_MUX' and 'SEC_DTC_MUX' | ";
    EXPECT_EQ(Told<VBmwFunctionalGroupRule>(), expected + L"no FUNCTIONAL-GROUP");
    NMemory::VMemDiagDataDictionarySpec& dictionary =
        m_container.AddFunctionalGroup(L"All").MakeDiagDataDictionarySpec();
    EXPECT_EQ(Told<VBmwFunctionalGroupRule>(), expected + L"neither; 1 FUNCTIONAL-GROUP looked at");
    dictionary.AddMux(L"sec_dtc_mux");
    EXPECT_EQ(Told<VBmwFunctionalGroupRule>(), expected + L"only 'SEC_DTC_MUX'; 1 FUNCTIONAL-GROUP looked at");
}

// Audi and Volkswagen

TEST_F(ReasonsTest, AudiVwProtocol) {
    std::wstring const expected = L"a PROTOCOL whose short name begins with 'PR_OBDOnCAN' or 'PR_UDSOnCAN' | ";
    EXPECT_EQ(Told<VAudiVwProtocolRule>(), expected + L"no PROTOCOL");
    AddServingProtocol();
    EXPECT_EQ(Told<VAudiVwProtocolRule>(), expected + L"the PROTOCOL 'Uds'");
    m_container.AddProtocol(L"PR_UDSOnCAN");
    EXPECT_EQ(Told<VAudiVwProtocolRule>(), L"DIAG-COMMs in every PROTOCOL | none | PR_UDSOnCAN");
}

TEST_F(ReasonsTest, AudiVwTeamMembers) {
    std::wstring const expected = L"a TEAM-MEMBER of Audi or Volkswagen with the role 'contact person oem' | ";
    EXPECT_EQ(Told<VAudiVwTeamMembersRule>(), expected + L"no TEAM-MEMBER");
    NMemory::VMemEcuSharedData& layer = m_container.AddEcuSharedData(L"Library");
    AddMember(layer, L"Audi", L"author");
    EXPECT_EQ(Told<VAudiVwTeamMembersRule>(), expected + L"none; 1 TEAM-MEMBER looked at");
    AddMember(layer, L"Supplier", L"Contact Person OEM");
    EXPECT_EQ(Told<VAudiVwTeamMembersRule>(), expected + L"one of the company 'Supplier' | Member");
    AddMember(layer, L"Audi", L"Contact Person OEM");
    EXPECT_EQ(Told<VAudiVwTeamMembersRule>(), L"yes");
}

TEST_F(ReasonsTest, AudiVwTeamMembersOfLayersWithoutStaff) {
    NMemory::VMemEcuSharedData& staffed = m_container.AddEcuSharedData(L"Staffed");
    AddMember(staffed, L"Audi", L"Contact Person OEM");
    staffed.AddCompanyData(L"Deserted");
    EXPECT_EQ(Told<VAudiVwTeamMembersRule>(),
              L"TEAM-MEMBERs in every COMPANY-DATA of an ECU-SHARED-DATA | none | Deserted");
}

TEST_F(ReasonsTest, AudiVwTeamMembersOfLayersWithoutCompanies) {
    AddMember(m_container.AddEcuSharedData(L"Staffed"), L"Audi", L"Contact Person OEM");
    m_container.AddEcuSharedData(L"Empty");
    EXPECT_EQ(Told<VAudiVwTeamMembersRule>(), L"COMPANY-DATAs in every ECU-SHARED-DATA | none | Empty");
}

TEST_F(ReasonsTest, AudiVwCharacter) {
    EXPECT_EQ(Told<VAudiVwCharacterRule>(), L"a PROTOCOL | none");
    NMemory::VMemProtocol& protocol = m_container.AddProtocol(L"Uds");
    protocol.AddSingleEcuJob(L"Job");
    EXPECT_EQ(Told<VAudiVwCharacterRule>(), L"vacuous") << "jobs are not looked at";
    protocol.AddDiagService(L"DiagnServi_ReadData").SetLongName(L"Read data");
    EXPECT_EQ(Told<VAudiVwCharacterRule>(), L"yes");
    protocol.AddDiagService(L"WriteData").SetLongName(L"Write data");
    EXPECT_EQ(Told<VAudiVwCharacterRule>(), L"the short name 'DiagnServi_WriteData' | the short name 'WriteData' and "
                                            L"the long name 'Write data' | WriteData");
}

// Fiat

TEST_F(ReasonsTest, FiatStateSdg) {
    std::wstring const expected = L"an SDG 'State_Model' before any without caption | ";
    NMemory::VMemBaseVariant& variant = m_container.AddBaseVariant(L"Engine");
    EXPECT_EQ(Told<VFiatStateSdgRule>(), L"vacuous");
    NMemory::VMemDiagService& service = variant.AddDiagService(L"Read");
    EXPECT_EQ(Told<VFiatStateSdgRule>(), expected + L"no SDG | Read");
    service.AddSdg().MakeSdgCaption(L"Other");
    service.AddSdg();
    service.AddSdg().MakeSdgCaption(L"State_Model");
    EXPECT_EQ(Told<VFiatStateSdgRule>(), expected + L"the SDGs 'Other', without caption, 'State_Model' | Read");
}

TEST_F(ReasonsTest, FiatStateSdgOfAService) {
    m_container.AddEcuVariant(L"Variant").AddDiagService(L"Read").AddSdg().MakeSdgCaption(L"State_Model");
    EXPECT_EQ(Told<VFiatStateSdgRule>(), L"yes");
}

TEST_F(ReasonsTest, FiatAdditionalComparams) {
    std::wstring const expected = L"the six additional COMPARAMs for KWP on CAN, or the six for UDS | ";
    EXPECT_EQ(Told<VFiatAdditionalComparamsRule>(), expected + L"none for KWP on CAN, none for UDS");
    NMemory::VMemComparamSpec& spec = m_database.AddComparamSpec(L"Uds");
    for (wchar_t const* const name : {L"MaxDeltaP2Can", L"S3_Tester", L"NL_buffer_NormalCommunication",
                                      L"NL_buffer_FlashProgramming", L"Max_Waiting_Time_for_External_Tool"}) {
        spec.AddComparam(name).SetId((std::wstring(L"COMPARAM-SPEC.UDS_CPS.COMPARAM.") + name).c_str());
    }
    EXPECT_EQ(Told<VFiatAdditionalComparamsRule>(),
              expected + L"none for KWP on CAN, for UDS all but 'COMPARAM-SPEC.UDS_CPS.COMPARAM.S3_ECU'");
}

// Porsche

TEST_F(ReasonsTest, PagOid) {
    EXPECT_EQ(Told<VPagOidRule>(), L"vacuous");
    m_container.AddBaseVariant(L"Engine").SetOid(L"1");
    EXPECT_EQ(Told<VPagOidRule>(), L"yes");
    m_container.AddProtocol(L"Uds");
    EXPECT_EQ(Told<VPagOidRule>(), L"an OID | none | Uds");
}

TEST_F(ReasonsTest, PagModel) {
    EXPECT_EQ(Told<VPagModelRule>(), L"a PROTOCOL | none");
    m_container.AddProtocol(L"Uds");
    EXPECT_EQ(Told<VPagModelRule>(), L"a FUNCTIONAL-GROUP | none");
    m_container.AddFunctionalGroup(L"All");
    EXPECT_EQ(Told<VPagModelRule>(), L"a BASE-VARIANT | none");
    m_container.AddBaseVariant(L"Engine");
    EXPECT_EQ(Told<VPagModelRule>(), L"yes");
}

TEST_F(ReasonsTest, PagFunctionalGroup) {
    EXPECT_EQ(Told<VPagFunctionalGroupRule>(), L"one FUNCTIONAL-GROUP | no FUNCTIONAL-GROUP");
    m_container.AddFunctionalGroup(L"All");
    EXPECT_EQ(
        Told<VPagFunctionalGroupRule>(),
        L"a short name that begins with 'FunctionalGroupUDS' or 'FunctionalGroupKWP' | the short name 'All' | All");
    m_container.AddFunctionalGroup(L"Doors");
    EXPECT_EQ(Told<VPagFunctionalGroupRule>(), L"one FUNCTIONAL-GROUP | the FUNCTIONAL-GROUPs 'All', 'Doors'");
}

TEST_F(ReasonsTest, PagComparamSpec) {
    EXPECT_EQ(Told<VPagComparamSpecRule>(), L"the COMPARAM-SPEC 'VW2000_on_TP20' | no COMPARAM-SPEC");
    m_database.AddComparamSpec(L"VW2000");
    EXPECT_EQ(Told<VPagComparamSpecRule>(), L"the COMPARAM-SPEC 'VW2000_on_TP20' | the COMPARAM-SPEC 'VW2000'");
}

TEST_F(ReasonsTest, PagDop) {
    std::wstring const expected = L"the DATA-OBJECT-PROPs '_26_Temperatur_C' and '_21_Spannung_V' | ";
    EXPECT_EQ(Told<VPagDopRule>(), expected + L"no BASE-VARIANT");
    m_container.AddBaseVariant(L"Engine").MakeDiagDataDictionarySpec().AddDataObjectProp(L"_26_Temperatur_C");
    EXPECT_EQ(Told<VPagDopRule>(), expected + L"only '_26_Temperatur_C'; 1 BASE-VARIANT looked at");
    m_container.AddBaseVariant(L"Gear");
    EXPECT_EQ(Told<VPagDopRule>(), L"a DIAG-DATA-DICTIONARY-SPEC in every BASE-VARIANT | none | Gear");
}

// Daimler

TEST_F(ReasonsTest, DaimlerHierarchicalIds) {
    EXPECT_EQ(Told<VDaimlerHierarchicalIdsRule>(), L"a BASE-VARIANT | none");
    NMemory::VMemBaseVariant& variant = m_container.AddBaseVariant(L"Engine");
    EXPECT_EQ(Told<VDaimlerHierarchicalIdsRule>(), L"a PROTOCOL | none");
    m_container.AddProtocol(L"Uds").SetId(L"PT.Uds");
    EXPECT_EQ(Told<VDaimlerHierarchicalIdsRule>(), L"the ID 'BV.Engine' | no ID | Engine");
    variant.SetId(L"BV.Engine");
    EXPECT_EQ(Told<VDaimlerHierarchicalIdsRule>(), L"yes");
    variant.AddFunctClass(L"Diag").SetId(L"Diag");
    EXPECT_EQ(Told<VDaimlerHierarchicalIdsRule>(), L"the ID 'BV.Engine.FNC.Diag' | the ID 'Diag' | Diag");
}

TEST_F(ReasonsTest, DaimlerComparams) {
    std::wstring const expected = L"a COMPARAM-SPEC with the ID 'ISO_14230_3_on_ISO_14230_2', "
                                  L"'ISO_14230_3_on_ISO_15765_2' or 'ISO_15765_3_on_ISO_15765_2' | ";
    EXPECT_EQ(Told<VDaimlerComparamsRule>(), L"a PROTOCOL | none");
    NMemory::VMemProtocol& protocol = m_container.AddProtocol(L"Uds");
    EXPECT_EQ(Told<VDaimlerComparamsRule>(), expected + L"no COMPARAM-SPEC-REF | Uds");
    protocol.SetComparamSpecRef(NMemory::VReference::ById(L"Gone"));
    EXPECT_EQ(Told<VDaimlerComparamsRule>(), expected + L"a COMPARAM-SPEC-REF that does not resolve | Uds");
    NMemory::VMemComparamSpec& spec = m_database.AddComparamSpec(L"Spec");
    spec.SetId(L"ISO");
    protocol.SetComparamSpecRef(spec);
    EXPECT_EQ(Told<VDaimlerComparamsRule>(), expected + L"one with the ID 'ISO' | Uds");
}

// Claas

TEST_F(ReasonsTest, ClaasProcessingInstruction) {
    std::wstring const expected = L"a PARAM of a POS-RESPONSE with the processing instruction ClaasParamInformation | ";
    EXPECT_EQ(Told<VClaasProcessingInstructionRule>(), expected + L"no BASE-VARIANT");
    m_container.AddBaseVariant(L"Engine").AddPosResponse(L"Response");
    EXPECT_EQ(Told<VClaasProcessingInstructionRule>(), expected + L"none; 1 BASE-VARIANT looked at");
    m_container.AddBaseVariant(L"Gear");
    EXPECT_EQ(Told<VClaasProcessingInstructionRule>(), expected + L"no responses | Gear");
}

// PSA

TEST_F(ReasonsTest, PSAEcuSharedData) {
    EXPECT_EQ(Told<VPSAEcuSharedDataRule>(), L"a BASE-VARIANT | none");
    m_container.AddBaseVariant(L"Engine");
    EXPECT_EQ(Told<VPSAEcuSharedDataRule>(),
              L"one ECU-SHARED-DATA beside the first BASE-VARIANT | no ECU-SHARED-DATA | Engine");
    m_container.AddEcuSharedData(L"Library").AddFunctClass(L"DIAGNOSTIC_CONSTRUCTEUR");
    EXPECT_EQ(Told<VPSAEcuSharedDataRule>(),
              L"two FUNCT-CLASSes named 'DIAGNOSTIC_CONSTRUCTEUR' or 'DIAGNOSTIC_REGLEMENTAIRE' | the FUNCT-CLASS "
              L"'DIAGNOSTIC_CONSTRUCTEUR' | Library");
    m_container.AddEcuSharedData(L"Second");
    EXPECT_EQ(Told<VPSAEcuSharedDataRule>(),
              L"one ECU-SHARED-DATA beside the first BASE-VARIANT | 2 ECU-SHARED-DATAs | Engine");
}

} // namespace
} // namespace NTest
