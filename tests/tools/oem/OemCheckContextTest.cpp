// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/OemCheckContext.h>

#include "tools/oem/OemTest.h"

namespace NTest {
namespace {

using NDIAGKIT::VOemCheckContext;

template <class List>
std::wstring NamesOf(List const& list) {
    std::wstring names;
    for (auto* const element : list) {
        names += std::wstring(element->GetShortName()) + L' ';
    }
    return names;
}

using OemCheckContextTest = VOemTest;

TEST_F(OemCheckContextTest, AnEmptyDatabaseGivesEmptyLists) {
    VOemCheckContext const context(Odx());
    EXPECT_EQ(&context.m_odx, &Odx());
    EXPECT_TRUE(context.m_protocols.empty());
    EXPECT_TRUE(context.m_functionalGroups.empty());
    EXPECT_TRUE(context.m_baseVariants.empty());
    EXPECT_TRUE(context.m_ecuVariants.empty());
    EXPECT_TRUE(context.m_ecuSharedDatas.empty());
    EXPECT_TRUE(context.m_teamMembers.empty());
}

TEST_F(OemCheckContextTest, LayersOfEachKindInTheOrderOfContainersAndLayers) {
    NMemory::VMemDiagLayerContainer& other = m_database.AddDiagLayerContainer(L"Other");
    for (NMemory::VMemDiagLayerContainer* const container : {&other, &m_container}) {
        std::wstring const suffix = container == &other ? L"3" : L"1";
        for (int times = 0; times < 2; ++times) {
            std::wstring const number = suffix + std::to_wstring(times);
            container->AddEcuSharedData((L"S" + number).c_str());
            container->AddEcuVariant((L"E" + number).c_str());
            container->AddProtocol((L"P" + number).c_str());
            container->AddBaseVariant((L"B" + number).c_str());
            container->AddFunctionalGroup((L"F" + number).c_str());
        }
    }
    VOemCheckContext const context(Odx());
    EXPECT_EQ(NamesOf(context.m_protocols), L"P10 P11 P30 P31 ");
    EXPECT_EQ(NamesOf(context.m_functionalGroups), L"F10 F11 F30 F31 ");
    EXPECT_EQ(NamesOf(context.m_baseVariants), L"B10 B11 B30 B31 ");
    EXPECT_EQ(NamesOf(context.m_ecuVariants), L"E10 E11 E30 E31 ");
    EXPECT_EQ(NamesOf(context.m_ecuSharedDatas), L"S10 S11 S30 S31 ");
}

TEST_F(OemCheckContextTest, TeamMembersOfAllLayersInOrder) {
    NMemory::VMemEcuVariant& variant = m_container.AddEcuVariant(L"Variant");
    NMemory::VMemCompanyData& first = variant.AddCompanyData(L"First");
    variant.AddCompanyData(L"Empty");
    variant.AddCompanyData(L"Second").AddTeamMember(L"Three");
    first.AddTeamMember(L"One");
    first.AddTeamMember(L"Two");
    m_container.AddProtocol(L"Protocol").AddCompanyData(L"Third").AddTeamMember(L"Four");
    m_container.AddCompanyData(L"OfTheContainer").AddTeamMember(L"NotOfALayer");
    VOemCheckContext const context(Odx());
    EXPECT_EQ(NamesOf(context.m_teamMembers), L"One Two Three Four ");
}

} // namespace
} // namespace NTest
