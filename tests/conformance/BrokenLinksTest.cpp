// SPDX-License-Identifier: Apache-2.0

// Every promise about links and their targets, broken on purpose.

#include "BrokenModel.h"

namespace NTest {
namespace {

using NOwnModel::Tag;
using NOwnModel::VService;

/// A DIAG-COMM-REF whose target the test chooses.
struct VChosenLink : NOwnModel::VDiagCommRef {
    using VDiagCommRef::VDiagCommRef;
    bool HasDiagComm(NODX201::VDiagLayer&) override { return Remember(m_target); }
    NODX201::VDiagComm* m_target = nullptr;
};

class VBrokenLinks : public VBrokenModel {
protected:
    VService& AddService(std::wstring const& id) {
        NOwnModel::VOrigin const origin = Origin(Tag::DiagService, L"Service");
        m_rows.back().id = id;
        return Layer().DiagCommProxyCollection().Add(std::make_unique<VService>(origin));
    }

    template <class Link>
    Link& AddLink(std::wstring const& idRef) {
        NOwnModel::VOrigin const origin = Origin(Tag::DiagCommRef, L"");
        m_rows.back().idRef = idRef;
        return Layer().DiagCommProxyCollection().Add(std::make_unique<Link>(origin));
    }
};

TEST_F(VBrokenLinks, NothingIsFoundBeforeTheyAreBroken) {
    VService& service = AddService(L"S");
    AddLink<VChosenLink>(L"S").m_target = &service;
    AddLink<NOwnModel::VDiagCommRef>(L"S");
    AddLink<NOwnModel::VDiagCommRef>(L"Nowhere");
    EXPECT_EQ(Found(), "");
}

struct VFormlessLink : NOwnModel::VDiagCommRef {
    using VDiagCommRef::VDiagCommRef;
    struct VForm : NODX201::ILink {};
    NODX201::ILink& GetLink() override { return m_form; }
    VForm m_form;
};
TEST_F(VBrokenLinks, LinkIsByNameOrById) {
    AddLink<VFormlessLink>(L"S");
    EXPECT_EQ(Found(), "link-is-by-name-or-by-id");
}

struct VForgettingLink : VChosenLink {
    using VChosenLink::VChosenLink;
    bool HasDiagComm(NODX201::VDiagLayer& layer) override { return ++m_times == 1 && VChosenLink::HasDiagComm(layer); }
    int m_times = 0;
};
TEST_F(VBrokenLinks, LinkLeadsToOneTarget) {
    VService& service = AddService(L"S");
    AddLink<VForgettingLink>(L"S").m_target = &service;
    EXPECT_EQ(Found(), "link-leads-to-one-target");
}

TEST_F(VBrokenLinks, TargetBearsId) {
    AddService(L"S");
    VService& other = AddService(L"T");
    AddLink<VChosenLink>(L"S").m_target = &other;
    EXPECT_EQ(Lines(Check()), "target-bears-id: C/L/DIAG-COMM-REF 3: expected 'S', found 'T'\n");
}

TEST_F(VBrokenLinks, TargetBearsName) {
    auto& link = AddLink<VChosenLink>(L"");
    link.m_target = &AddService(L"S");
    EXPECT_EQ(Found(), "") << "an empty ID-REF names nothing";
    NOwnModel::VOrigin const origin = Origin(Tag::DiagCommSnref, L"");
    m_rows.back().snref = L"Another";
    Layer().DiagCommProxyCollection().Add(std::make_unique<VChosenLink>(origin)).m_target = link.m_target;
    EXPECT_EQ(Lines(Check()), "target-bears-name: C/L/DIAG-COMM-SNREF 3: expected 'Another', found 'Service'\n");
}

TEST_F(VBrokenLinks, TargetIsTheElement) {
    AddService(L"S");
    NOwnModel::VOrigin const origin = Origin(Tag::DiagService, L"Service");
    m_rows.back().id = L"S";
    VService second(origin);
    AddLink<VChosenLink>(L"S").m_target = &second;
    EXPECT_EQ(Found(), "target-is-the-element");
}

TEST_F(VBrokenLinks, TargetIsInDatabase) {
    NOwnModel::VOrigin origin = Origin(Tag::DiagService, L"Service");
    origin.owner = nullptr;
    m_rows.back().id = L"S";
    VService stray(origin);
    AddLink<VChosenLink>(L"S").m_target = &stray;
    EXPECT_EQ(Found(), "target-is-in-database");
}

} // namespace
} // namespace NTest
