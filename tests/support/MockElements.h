// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/ParentRefs.h>
#include <diagkit/model/Visitors.h>

/// Elements of the contract for tests of behaviour that a correct model never shows: entries that are not what they
/// claim, layers that call back nothing, parts that must not be requested. Operations that no test uses throw.

namespace NTest {

[[noreturn]] void NotExpected(char const* operation); ///< throws std::logic_error

/// A collection that a test fills; it does not own its entries.
template <class Collection>
class VMockCollection : public Collection {
public:
    void Add(typename Collection::List::value_type entry) { this->m_elements.push_back(entry); }
};

/// The minimum of an element of the contract.
template <class Contract>
class VMockElement : public Contract {
public:
    explicit VMockElement(wchar_t const* shortName = L"") : m_shortName(shortName) {}

    NODX201::VOdxTagEnum GetOdxTag() const override { return NODX201::VOdxTagEnum::None; }
    wchar_t const* GetShortName() const override { return m_shortName.c_str(); }
    NODX201::VOdxObject* GetOwner() const override { return nullptr; }

    std::wstring m_shortName;
};

/// A DIAG-SERVICE that reports its destruction.
class VMockDiagService : public VMockElement<NODX201::VDiagService> {
public:
    explicit VMockDiagService(wchar_t const* shortName, bool* isDestroyed = nullptr)
        : VMockElement(shortName), m_isDestroyed(isDestroyed) {}
    ~VMockDiagService() override;

    // clang-format off
    wchar_t const* GetId() const override { return L""; }
    void Accept(NODX201::VDiagCommVisitor& visitor) override { visitor.VisitDiagService(*this); }
    bool HasLongName() const override { return false; }
    NODX201::VText& GetLongName() override { NotExpected("GetLongName"); }
    bool HasAdminData() const override { return false; }
    NODX201::VAdminData& GetAdminData() override { NotExpected("GetAdminData"); }
    NODX201::VSdgCollection& SdgCollection() override { NotExpected("SdgCollection"); }
    NODX201::VComparamRefCollection& ComparamRefCollection() override { NotExpected("ComparamRefCollection"); }
    NODX201::VFunctClassLinkCollection& FunctClassLinkCollection() override { NotExpected("FunctClassLinkCollection"); }
    bool HasAudience() const override { return false; }
    NODX201::VAudience& GetAudience() override { NotExpected("GetAudience"); }
    NODX201::VRelatedDiagCommRefCollection& RelatedDiagCommRefCollection() override { NotExpected("RelatedDiagCommRefCollection"); }
    bool HasRequestRef() const override { return false; }
    NODX201::VRequestLink& GetRequestRef() override { NotExpected("GetRequestRef"); }
    bool HasPosResponseLinkCollection() const override { return false; }
    NODX201::VPosResponseLinkCollection& PosResponseLinkCollection() override { NotExpected("PosResponseLinkCollection"); }
    bool HasNegResponseLinkCollection() const override { return false; }
    NODX201::VNegResponseLinkCollection& NegResponseLinkCollection() override { NotExpected("NegResponseLinkCollection"); }
    // clang-format on

private:
    bool* m_isDestroyed;
};

/// An entry of DIAG-COMMS that claims to be what the test sets and is none of it.
class VMockProxy : public NODX201::IDiagCommProxy {
public:
    VMockProxy(bool isService, bool isJob, bool isLink) : m_isService(isService), m_isJob(isJob), m_isLink(isLink) {}
    virtual ~VMockProxy() = default;

    bool IsDiagService() const override { return m_isService; }
    bool IsSingleEcuJob() const override { return m_isJob; }
    bool IsDiagCommLink() const override { return m_isLink; }

private:
    bool m_isService;
    bool m_isJob;
    bool m_isLink;
};

/// A DIAG-COMM-REF that remembers the layers for which it was asked; without a target it does not resolve.
class VMockDiagCommLink : public VMockElement<NODX201::VDiagCommLink> {
public:
    explicit VMockDiagCommLink(NODX201::VDiagComm* target) : m_target(target) {}

    NODX201::ILink& GetLink() override { NotExpected("GetLink"); }
    bool HasDiagComm(NODX201::VDiagLayer& layer) override;
    NODX201::VDiagComm& GetDiagComm() override;

    std::vector<NODX201::VDiagLayer*> m_askedFor;

private:
    NODX201::VDiagComm* m_target;
};

/// A layer of any kind, with the operations common to all kinds. Absent DIAG-COMMS must not be requested.
template <class Kind>
class VMockLayer : public VMockElement<Kind> {
public:
    using VMockElement<Kind>::VMockElement;

    // clang-format off
    wchar_t const* GetId() const override { return L""; }
    bool HasLongName() const override { return false; }
    NODX201::VText& GetLongName() override { NotExpected("GetLongName"); }
    bool HasOid() const override { return false; }
    wchar_t const* GetOid() const override { return L""; }
    bool HasAdminData() const override { return false; }
    NODX201::VAdminData& GetAdminData() override { NotExpected("GetAdminData"); }
    NODX201::VCompanyDataCollection& CompanyDataCollection() override { NotExpected("CompanyDataCollection"); }
    NODX201::VFunctClassCollection& FunctClassCollection() override { NotExpected("FunctClassCollection"); }
    bool HasDiagDataDictionarySpec() const override { return false; }
    NODX201::VDiagDataDictionarySpec& GetDiagDataDictionarySpec() override { NotExpected("GetDiagDataDictionarySpec"); }
    NODX201::VRequestCollection& RequestCollection() override { NotExpected("RequestCollection"); }
    NODX201::VResponseCollection& ResponseCollection() override { NotExpected("ResponseCollection"); }
    NODX201::VDiagVariableProxyCollection& DiagVariableProxyCollection() override { NotExpected("DiagVariableProxyCollection"); }
    NODX201::VVariableGroupCollection& VariableGroupCollection() override { NotExpected("VariableGroupCollection"); }
    // clang-format on

    bool HasDiagCommProxyCollection() const override { return m_hasOwn; }
    NODX201::VDiagCommProxyCollection& DiagCommProxyCollection() override {
        if (!m_hasOwn) {
            NotExpected("DiagCommProxyCollection");
        }
        return m_own;
    }

    void AddOwn(NODX201::IDiagCommProxy& proxy) {
        m_hasOwn = true;
        m_own.Add(&proxy);
    }

    VMockCollection<NODX201::VDiagCommProxyCollection> m_own;
    bool m_hasOwn = false;
};

class VMockEcuSharedData : public VMockLayer<NODX201::VEcuSharedData> {
public:
    using VMockLayer::VMockLayer;
    void Accept(NODX201::VDiagLayerVisitor& visitor) override { visitor.VisitEcuSharedData(*this); }
};

/// A layer with parents; absent PARENT-REFS must not be requested.
template <class Kind>
class VMockLayerWithParents : public VMockLayer<Kind> {
public:
    using VMockLayer<Kind>::VMockLayer;

    bool HasParentRefCollection() const override { return m_hasParents; }
    NODX201::VParentRefCollection& ParentRefCollection() override {
        if (!m_hasParents) {
            NotExpected("ParentRefCollection");
        }
        return m_parents;
    }

    // clang-format off
    NODX201::VAccessLevelCollection& AccessLevelCollection() override { NotExpected("AccessLevelCollection"); }
    NODX201::VStringCollection& AutMethodCollection() override { NotExpected("AutMethodCollection"); }
    bool HasDynDefinedSpec() const override { return false; }
    NODX201::VDynDefinedSpec& GetDynDefinedSpec() override { NotExpected("GetDynDefinedSpec"); }
    // clang-format on

    void AddParent(NODX201::VParentRef& parentRef) {
        m_hasParents = true;
        m_parents.Add(&parentRef);
    }

    VMockCollection<NODX201::VParentRefCollection> m_parents;
    bool m_hasParents = false;
};

class VMockBaseVariant : public VMockLayerWithParents<NODX201::VBaseVariant> {
public:
    using VMockLayerWithParents::VMockLayerWithParents;
    void Accept(NODX201::VDiagLayerVisitor& visitor) override { visitor.VisitBaseVariant(*this); }
};

class VMockEcuVariant : public VMockLayerWithParents<NODX201::VEcuVariant> {
public:
    using VMockLayerWithParents::VMockLayerWithParents;
    void Accept(NODX201::VDiagLayerVisitor& visitor) override { visitor.VisitEcuVariant(*this); }
    NODX201::VEcuVariantPatternCollection& EcuVariantPatternCollection() override;
};

/// A layer whose Accept calls back nothing.
class VSilentLayer : public VMockEcuVariant {
public:
    using VMockEcuVariant::VMockEcuVariant;
    void Accept(NODX201::VDiagLayerVisitor&) override {}
};

/// A PARENT-REF without exclusions, which must not be requested then. It records its calls.
template <class Contract>
class VMockParentRef : public VMockElement<Contract> {
public:
    VMockParentRef(wchar_t const* shortName, std::vector<std::wstring>& transcript)
        : VMockElement<Contract>(shortName), m_transcript(&transcript) {}

    // clang-format off
    NODX201::ILink& GetLink() override { NotExpected("GetLink"); }
    bool HasNotInheritedDiagCommCollection() const override { Note(L"exclusions"); return false; }
    NODX201::VNotInheritedDiagCommCollection& NotInheritedDiagCommCollection() override { NotExpected("NotInheritedDiagCommCollection"); }
    bool HasNotInheritedVariableCollection() const override { return false; }
    NODX201::VNotInheritedVariableCollection& NotInheritedVariableCollection() override { NotExpected("NotInheritedVariableCollection"); }
    // clang-format on

protected:
    void Note(std::wstring const& asked) const { m_transcript->push_back(this->m_shortName + L": " + asked); }

private:
    std::vector<std::wstring>* m_transcript;
};

/// References without a target, which must not be requested then.
class VMockProtocolRef : public VMockParentRef<NODX201::VProtocolRef> {
public:
    using VMockParentRef::VMockParentRef;
    bool HasProtocol() const override;
    NODX201::VProtocol& GetProtocol() override { NotExpected("GetProtocol"); }
};

class VMockFunctionalGroupRef : public VMockParentRef<NODX201::VFunctionalGroupRef> {
public:
    using VMockParentRef::VMockParentRef;
    bool HasFunctionalGroup() const override;
    NODX201::VFunctionalGroup& GetFunctionalGroup() override { NotExpected("GetFunctionalGroup"); }
};

class VMockBaseVariantRef : public VMockParentRef<NODX201::VBaseVariantRef> {
public:
    using VMockParentRef::VMockParentRef;
    bool HasBaseVariant() const override;
    NODX201::VBaseVariant& GetBaseVariant() override { NotExpected("GetBaseVariant"); }
};

class VMockEcuSharedDataRef : public VMockParentRef<NODX201::VEcuSharedDataRef> {
public:
    using VMockParentRef::VMockParentRef;
    bool HasEcuSharedData() const override;
    NODX201::VEcuSharedData& GetEcuSharedData() override { NotExpected("GetEcuSharedData"); }
};

} // namespace NTest
