// SPDX-License-Identifier: Apache-2.0

// Every promise about elements, broken on purpose: only the check of that name reports it.

#include <stdexcept>

#include "BrokenModel.h"

namespace NODX201 {

/// The common base of the DIAG-COMMs is no element, so the facts have no rows for it alone.
template <>
class VEmptyRows<VDiagComm> : public VDiagComm {
public:
    bool HasLongName() const override { return false; }
    VText& GetLongName() override { return VNothing::Get<VText&>(); }
    bool HasAdminData() const override { return false; }
    VAdminData& GetAdminData() override { return VNothing::Get<VAdminData&>(); }
    VSdgCollection& SdgCollection() override { return VNothing::Get<VSdgCollection&>(); }
    VComparamRefCollection& ComparamRefCollection() override { return VNothing::Get<VComparamRefCollection&>(); }
    VFunctClassLinkCollection& FunctClassLinkCollection() override {
        return VNothing::Get<VFunctClassLinkCollection&>();
    }
    VRelatedDiagCommRefCollection& RelatedDiagCommRefCollection() override {
        return VNothing::Get<VRelatedDiagCommRefCollection&>();
    }
};

} // namespace NODX201

namespace NTest {
namespace {

using NOwnModel::Tag;
using NOwnModel::VJob;
using NOwnModel::VService;

class VBrokenElements : public VBrokenModel {};

TEST_F(VBrokenElements, NothingIsFoundBeforeTheyAreBroken) {
    Add<VService>(Tag::DiagService);
    EXPECT_EQ(Found(), "");
}

struct VThrowing : VService {
    using VService::VService;
    bool HasAudience() const override { throw std::runtime_error("out of reach"); }
};
TEST_F(VBrokenElements, CallsThrowNothing) {
    Add<VThrowing>(Tag::DiagService);
    EXPECT_EQ(Lines(Check()), "calls-throw-nothing: C/L/DIAG-SERVICE X GetAudience: expected "
                              "no exception, found out of reach\n");
}

struct VThrowingNoException : VService {
    using VService::VService;
    wchar_t const* GetShortName() const override { throw 1; }
};
TEST_F(VBrokenElements, CallsThrowNothingButExceptionsEither) {
    Add<VThrowingNoException>(Tag::DiagService);
    EXPECT_EQ(Found(), "calls-throw-nothing");
}

struct VOwnedRoot : NOwnModel::VRoot {
    using VRoot::VRoot;
    NODX201::VOdxObject* GetOwner() const override { return const_cast<VOwnedRoot*>(this); }
};
TEST_F(VBrokenElements, RootHasNoOwner) {
    VOwnedRoot root(Origin(Tag::Odx, L""));
    EXPECT_EQ(Found(root), "root-has-no-owner");
}

struct VOrphan : VService {
    using VService::VService;
    NODX201::VOdxObject* GetOwner() const override { return nullptr; }
};
TEST_F(VBrokenElements, OwnerContainsElement) {
    Add<VOrphan>(Tag::DiagService);
    EXPECT_EQ(Lines(Check()),
              "owner-contains-element: C/L/DIAG-SERVICE X GetOwner: expected what contains it, found null\n");
}

TEST_F(VBrokenElements, OwnerOfALayerIsItsCollection) {
    NOwnModel::VOrigin origin = Origin(Tag::EcuSharedData);
    origin.owner = &Container();
    Container().DiagLayerCollection().Add(std::make_unique<NOwnModel::VEcuSharedDataLayer>(origin));
    EXPECT_EQ(Found(), "owner-contains-element");
}

struct VForeignLayers : NOwnModel::VContainer {
    using VContainer::VContainer;
    NOwnModel::VLayerCollection& DiagLayerCollection() override { return m_layers; }
    NOwnModel::VLayerCollection m_layers{static_cast<NODX201::VOdxObject&>(VContainer::DiagLayerCollection())};
};
TEST_F(VBrokenElements, OwnerOfALayerCollectionIsItsContainer) {
    NOwnModel::VOrigin origin = Origin(Tag::DiagLayerContainer);
    origin.owner = &m_database.GetRoot();
    m_database.GetRoot().DiagLayerContainerCollection().Add(std::make_unique<VForeignLayers>(origin));
    EXPECT_EQ(Found(), "owner-contains-element");
}

struct VFickle : VService {
    using VService::VService;
    bool HasAudience() const override { return m_answer = !m_answer; }
    mutable bool m_answer = false;
};
TEST_F(VBrokenElements, PresenceIsStable) {
    Add<VFickle>(Tag::DiagService);
    EXPECT_EQ(Found(), "presence-is-stable");
}

struct VMaking : VService {
    explicit VMaking(NOwnModel::VOrigin const& origin) : VService(origin) { m_row.tag = Tag::Audience; }
    bool HasAudience() const override { return true; }
    NODX201::VAudience& GetAudience() override {
        m_made.push_back(std::make_unique<NOwnModel::VAudienceRow>(Inside(m_row)));
        return *m_made.back();
    }
    NOwnModel::VRow m_row;
    std::vector<std::unique_ptr<NOwnModel::VAudienceRow>> m_made;
};
TEST_F(VBrokenElements, ChildIsOneObject) {
    Add<VMaking>(Tag::DiagService);
    EXPECT_EQ(Found(), "child-is-one-object");
}

struct VNullText : VService {
    using VService::VService;
    wchar_t const* GetId() const override { return nullptr; }
};
TEST_F(VBrokenElements, TextIsNeverNull) {
    Add<VNullText>(Tag::DiagService);
    EXPECT_EQ(Found(), "text-is-never-null");
}

/// Returns texts in one buffer that all its elements share, as a model that converts on the fly might.
struct VSharedText : VService {
    using VService::VService;
    wchar_t const* GetId() const override {
        static std::wstring text;
        text.reserve(10);
        text.assign(Row().name);
        return text.c_str();
    }
};
TEST_F(VBrokenElements, TextStaysValid) {
    Add<VSharedText>(Tag::DiagService, L"X");
    EXPECT_EQ(Found(), "");
    Add<VSharedText>(Tag::DiagService, L"Y");
    EXPECT_EQ(Found(), "text-stays-valid");
}

struct VCountingText : VService {
    using VService::VService;
    wchar_t const* GetId() const override {
        m_texts.push_back(std::to_wstring(m_texts.size()));
        return m_texts.back().c_str();
    }
    mutable std::deque<std::wstring> m_texts;
};
TEST_F(VBrokenElements, TextReadsTheSameEachTime) {
    Add<VCountingText>(Tag::DiagService);
    EXPECT_EQ(Found(), "text-stays-valid");
}

struct VEmptyOid : NOwnModel::VEcuSharedDataLayer {
    using VEcuSharedDataLayer::VEcuSharedDataLayer;
    bool HasOid() const override { return true; }
};
TEST_F(VBrokenElements, PresentOidIsNotEmpty) {
    NOwnModel::VOrigin origin = Origin(Tag::EcuSharedData);
    origin.owner = &Container().DiagLayerCollection();
    Container().DiagLayerCollection().Add(std::make_unique<VEmptyOid>(origin));
    EXPECT_EQ(Found(), "present-oid-is-not-empty");
}

/// A DIAG-COMM of a kind that ODX does not know.
struct VFourthKind : NOwnModel::VDiagCommOf<NODX201::VDiagComm>, NODX201::IDiagCommProxy {
    using VDiagCommOf::VDiagCommOf;
    void Accept(NODX201::VDiagCommVisitor&) override {}
    bool IsDiagService() const override { return false; }
    bool IsSingleEcuJob() const override { return false; }
    bool IsDiagCommLink() const override { return false; }
};
TEST_F(VBrokenElements, ElementHasOneKind) {
    Add<VFourthKind>(Tag::DiagService);
    EXPECT_EQ(Found(), "alternative-is-exactly-one element-has-one-kind accept-calls-once");
}

TEST_F(VBrokenElements, TagFitsKind) {
    Add<VService>(Tag::SingleEcuJob);
    EXPECT_EQ(Lines(Check()),
              "tag-fits-kind: C/L/SINGLE-ECU-JOB X GetOdxTag: expected one of VDiagService, found SINGLE-ECU-JOB\n");
}

struct VLyingProxy : VFourthKind {
    using VFourthKind::VFourthKind;
    bool IsDiagService() const override { return true; }
};
TEST_F(VBrokenElements, AlternativeIsCastable) {
    Add<VLyingProxy>(Tag::DiagService);
    EXPECT_EQ(Found(), "alternative-is-castable element-has-one-kind accept-calls-once");
}

struct VTwofold : VLyingProxy {
    using VLyingProxy::VLyingProxy;
    bool IsSingleEcuJob() const override { return true; }
};
TEST_F(VBrokenElements, AlternativeIsExactlyOne) {
    Add<VTwofold>(Tag::DiagService);
    std::string const found = Lines(Check());
    EXPECT_NE(found.find("alternative-is-exactly-one: C/L DiagCommProxyCollection 1: expected one test that is true, "
                         "found IsDiagService, IsSingleEcuJob\n"),
              std::string::npos)
        << found;
}

struct VTwiceVisiting : VService {
    using VService::VService;
    void Accept(NODX201::VDiagCommVisitor& visitor) override {
        visitor.VisitDiagService(*this);
        visitor.VisitDiagService(*this);
    }
};
TEST_F(VBrokenElements, AcceptCallsOnce) {
    Add<VTwiceVisiting>(Tag::DiagService);
    EXPECT_EQ(Found(), "accept-calls-once");
}

struct VSilent : NOwnModel::VEcuSharedDataLayer {
    using VEcuSharedDataLayer::VEcuSharedDataLayer;
    void Accept(NODX201::VDiagLayerVisitor&) override {}
};
TEST_F(VBrokenElements, AcceptCalls) {
    NOwnModel::VOrigin origin = Origin(Tag::EcuSharedData);
    origin.owner = &Container().DiagLayerCollection();
    Container().DiagLayerCollection().Add(std::make_unique<VSilent>(origin));
    EXPECT_EQ(Found(), "accept-calls-once");
}

struct VPushing : VService {
    using VService::VService;
    void Accept(NODX201::VDiagCommVisitor& visitor) override { visitor.VisitDiagService(*m_other); }
    VService* m_other = nullptr;
};
TEST_F(VBrokenElements, AcceptHandsOverItself) {
    auto& other = Add<VService>(Tag::DiagService, L"Other");
    Add<VPushing>(Tag::DiagService).m_other = &other;
    EXPECT_EQ(Found(), "accept-hands-over-itself");
}

TEST_F(VBrokenElements, OfEachCheckTenAreTold) {
    for (int count = 0; count < 12; ++count) {
        Add<VOrphan>(Tag::DiagService, L"X" + std::to_wstring(count));
    }
    EXPECT_EQ(Check().size(), 10u);
}

} // namespace
} // namespace NTest
