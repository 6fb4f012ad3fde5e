// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/DiagVariables.h>
#include <diagkit/memory/Importing.h>
#include <diagkit/memory/LayerParts.h>
#include <diagkit/memory/ParentRefs.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Visitors.h>

/// Containers and the five kinds of layer.

namespace NMemory {

/// What the five kinds of layer share.
template <class Base>
class VWithLayer : public Base, public IMemLayer {
public:
    using Base::Base;

    bool HasDiagDataDictionarySpec() const override { return m_dictionary != nullptr; }
    VMemDiagDataDictionarySpec& GetDiagDataDictionarySpec() override { return *m_dictionary; }
    VMemDiagDataDictionarySpec& MakeDiagDataDictionarySpec() { return MakeChild(m_dictionary, this->Inside()); }
    void RemoveDiagDataDictionarySpec() { m_dictionary.reset(); }

    bool HasDiagCommProxyCollection() const override { return m_diagCommProxy.IsPresent(); }
    NODX201::VDiagCommProxyCollection& DiagCommProxyCollection() override {
        return m_diagCommProxy.Get();
    } ///< DIAG-COMMS
    VMemCollection<NODX201::VDiagCommProxyCollection>& MakeDiagCommProxyCollection() { return m_diagCommProxy.Make(); }
    VMemDiagService& AddDiagService(wchar_t const* shortName) {
        return AddNamed<VMemDiagService>(m_diagCommProxy, this->Inside(), shortName);
    }
    VMemSingleEcuJob& AddSingleEcuJob(wchar_t const* shortName) {
        return AddNamed<VMemSingleEcuJob>(m_diagCommProxy, this->Inside(), shortName);
    }
    /// REQUIRES: a reference by ID. A short name could only resolve against the very view that the entry is part of.
    VMemDiagCommLink& AddDiagCommRef(VReference const& reference) {
        RequireById(reference);
        return AddLink<VMemDiagCommLink>(m_diagCommProxy, this->Inside(), reference);
    }

    NODX201::VRequestCollection& RequestCollection() override { return m_request.Get(); } ///< REQUESTS
    VMemCollection<NODX201::VRequestCollection>& MakeRequestCollection() { return m_request.Make(); }
    VMemRequest& AddRequest(wchar_t const* shortName) {
        return AddNamed<VMemRequest>(m_request, this->Inside(), shortName);
    }

    NODX201::VResponseCollection& ResponseCollection() override { return m_response.Get(); } ///< of all three kinds
    VMemCollection<NODX201::VResponseCollection>& MakeResponseCollection() { return m_response.Make(); }
    VMemPosResponse& AddPosResponse(wchar_t const* shortName) {
        return AddNamed<VMemPosResponse>(m_response, this->Inside(), shortName);
    }
    VMemNegResponse& AddNegResponse(wchar_t const* shortName) {
        return AddNamed<VMemNegResponse>(m_response, this->Inside(), shortName);
    }
    VMemGlobalNegResponse& AddGlobalNegResponse(wchar_t const* shortName) {
        return AddNamed<VMemGlobalNegResponse>(m_response, this->Inside(), shortName);
    }

    std::vector<std::uint64_t>& SeveredGroups() override { return m_severedGroups; }

    VImportRefCollection& ImportRefCollection() override { return m_importRef.Get(); } ///< IMPORT-REFS
    VMemCollection<VImportRefCollection>& MakeImportRefCollection() { return m_importRef.Make(); }
    VMemImportRef& AddImportRef(VReference const& reference) {
        return AddLink<VMemImportRef>(m_importRef, this->Inside(), reference);
    }

private:
    std::vector<std::uint64_t> m_severedGroups;
    std::unique_ptr<VMemDiagDataDictionarySpec> m_dictionary;
    VMemMany<NODX201::VDiagCommProxyCollection> m_diagCommProxy;
    VMemMany<NODX201::VRequestCollection> m_request;
    VMemMany<NODX201::VResponseCollection> m_response;
    VMemMany<VImportRefCollection> m_importRef;
};

/// PARENT-REFS
using VMemParentRefCollection = VMemCollection<NODX201::VParentRefCollection>;

/// A new PARENT-REF of the kind before the position.
IMemParentRef& InsertParentRef(VMemParentRefCollection& parentRefs, VMemParentRefCollection::List::iterator before,
                               VPlace const& place, VParentRefKind kind, VReference const& reference);
/// See `VWithParents::ChangeParentRefKind`.
IMemParentRef& ChangeParentRefKind(VMemParentRefCollection& parentRefs, VPlace const& place, IMemParentRef& parentRef,
                                   VParentRefKind kind);

/// What the four kinds of layer with parents share.
template <class Base>
class VWithParents : public Base {
public:
    using Base::Base;

    bool HasParentRefCollection() const override { return m_parentRef.IsPresent(); }
    NODX201::VParentRefCollection& ParentRefCollection() override { return m_parentRef.Get(); } ///< PARENT-REFS
    VMemCollection<NODX201::VParentRefCollection>& MakeParentRefCollection() { return m_parentRef.Make(); }
    /// Of the kind that fits the parent's; whether ODX allows that kind here is not asked.
    template <class Parent, class = decltype(std::declval<Parent&>().EnsureId())>
    IMemParentRef& AddParentRef(Parent& parent) {
        return AddParentRef(ParentRefKindOf(parent), parent);
    }
    /// Of this kind, to a layer that need not be there yet.
    IMemParentRef& AddParentRef(VParentRefKind kind, VReference const& reference) {
        auto& parentRefs = m_parentRef.Make();
        return InsertParentRef(parentRefs, parentRefs.EndPosition(), this->Inside(), kind, reference);
    }
    /// Puts a PARENT-REF of another kind, with the same reference, exclusions and position in file, into the place of
    /// this one, which is destroyed.
    IMemParentRef& ChangeParentRefKind(IMemParentRef& parentRef, VParentRefKind kind) {
        return NMemory::ChangeParentRefKind(m_parentRef.Make(), this->Inside(), parentRef, kind);
    }

    NODX201::VAccessLevelCollection& AccessLevelCollection() override { return m_accessLevel.Get(); } ///< ACCESS-LEVELS
    VMemCollection<NODX201::VAccessLevelCollection>& MakeAccessLevelCollection() { return m_accessLevel.Make(); }
    VMemAccessLevel& AddAccessLevel() { return AddPlain<VMemAccessLevel>(m_accessLevel, this->Inside()); }

    NODX201::VStringCollection& AutMethodCollection() override { return m_autMethod.Get(); } ///< AUT-METHODS
    void AddAutMethod(wchar_t const* text) { m_autMethod.Add(this->Part(), text); }

private:
    VMemMany<NODX201::VParentRefCollection> m_parentRef;
    VMemMany<NODX201::VAccessLevelCollection> m_accessLevel;
    VMemStrings m_autMethod;
};

/// Adds DIAG-VARIABLES and VARIABLE-GROUPS to a layer.
template <class Base>
class VWithDiagVariables : public Base {
public:
    using Base::Base;

    NODX201::VDiagVariableProxyCollection& DiagVariableProxyCollection() override {
        return m_diagVariableProxy.Get();
    } ///< DIAG-VARIABLES
    VMemCollection<NODX201::VDiagVariableProxyCollection>& MakeDiagVariableProxyCollection() {
        return m_diagVariableProxy.Make();
    }
    VMemDiagVariable& AddDiagVariable(wchar_t const* shortName) {
        return AddNamed<VMemDiagVariable>(m_diagVariableProxy, this->Inside(), shortName);
    }
    /// REQUIRES: a reference by ID, as for `AddDiagCommRef`.
    VMemDiagVariableLink& AddDiagVariableRef(VReference const& reference) {
        RequireById(reference);
        return AddLink<VMemDiagVariableLink>(m_diagVariableProxy, this->Inside(), reference);
    }

    NODX201::VVariableGroupCollection& VariableGroupCollection() override {
        return m_variableGroup.Get();
    } ///< VARIABLE-GROUPS
    VMemCollection<NODX201::VVariableGroupCollection>& MakeVariableGroupCollection() { return m_variableGroup.Make(); }
    VMemVariableGroup& AddVariableGroup(wchar_t const* shortName) {
        return AddNamed<VMemVariableGroup>(m_variableGroup, this->Inside(), shortName);
    }

private:
    VMemMany<NODX201::VDiagVariableProxyCollection> m_diagVariableProxy;
    VMemMany<NODX201::VVariableGroupCollection> m_variableGroup;
};

/// Adds DYN-DEFINED-SPEC to a layer.
template <class Base>
class VWithDynDefinedSpec : public Base {
public:
    using Base::Base;

    bool HasDynDefinedSpec() const override { return m_dynDefinedSpec != nullptr; }
    VMemDynDefinedSpec& GetDynDefinedSpec() override { return *m_dynDefinedSpec; }
    VMemDynDefinedSpec& MakeDynDefinedSpec() { return MakeChild(m_dynDefinedSpec, this->Inside()); }
    void RemoveDynDefinedSpec() { m_dynDefinedSpec.reset(); }

private:
    std::unique_ptr<VMemDynDefinedSpec> m_dynDefinedSpec;
};

/// PROTOCOL
class VMemProtocol final
    : public VWithParents<VWithLayer<VWithComparamRefs<
          VWithFunctClasses<VWithCompanyDatas<VWithAdminData<VMemIdent<NODX201::VProtocol, Tag::Protocol>>>>>>> {
public:
    using VWithParents::VWithParents;

    void Accept(NODX201::VDiagLayerVisitor& visitor) override { visitor.VisitProtocol(*this); }

    wchar_t const* GetType() const { return m_type; } ///< @TYPE
    void SetType(wchar_t const* text) { m_type = Store(text); }

    bool HasComparamSpecRef() const override { return m_comparamSpecRef != nullptr; } ///< COMPARAM-SPEC-REF
    VMemComparamSpecLink& GetComparamSpecRef() override { return *m_comparamSpecRef; }
    VMemComparamSpecLink& SetComparamSpecRef(VReference const& reference) {
        return MakeLink(m_comparamSpecRef, Inside(), reference);
    }
    void RemoveComparamSpecRef() { m_comparamSpecRef.reset(); }

private:
    wchar_t const* m_type = L"";
    std::unique_ptr<VMemComparamSpecLink> m_comparamSpecRef;
};

/// FUNCTIONAL-GROUP
class VMemFunctionalGroup final
    : public VWithDiagVariables<VWithParents<VWithLayer<VWithComparamRefs<VWithFunctClasses<
          VWithCompanyDatas<VWithAdminData<VMemIdent<NODX201::VFunctionalGroup, Tag::FunctionalGroup>>>>>>>> {
public:
    using VWithDiagVariables::VWithDiagVariables;

    void Accept(NODX201::VDiagLayerVisitor& visitor) override { visitor.VisitFunctionalGroup(*this); }
};

/// BASE-VARIANT
class VMemBaseVariant final
    : public VWithDynDefinedSpec<VWithDiagVariables<VWithParents<VWithLayer<VWithComparamRefs<VWithFunctClasses<
          VWithCompanyDatas<VWithAdminData<VMemIdent<NODX201::VBaseVariant, Tag::BaseVariant>>>>>>>>> {
public:
    using VWithDynDefinedSpec::VWithDynDefinedSpec;

    void Accept(NODX201::VDiagLayerVisitor& visitor) override { visitor.VisitBaseVariant(*this); }
};

/// ECU-VARIANT
class VMemEcuVariant final
    : public VWithDynDefinedSpec<VWithDiagVariables<VWithParents<VWithLayer<VWithComparamRefs<
          VWithFunctClasses<VWithCompanyDatas<VWithAdminData<VMemIdent<NODX201::VEcuVariant, Tag::EcuVariant>>>>>>>>> {
public:
    using VWithDynDefinedSpec::VWithDynDefinedSpec;

    void Accept(NODX201::VDiagLayerVisitor& visitor) override { visitor.VisitEcuVariant(*this); }

    NODX201::VEcuVariantPatternCollection& EcuVariantPatternCollection() override {
        return m_ecuVariantPattern.Get();
    } ///< ECU-VARIANT-PATTERNS
    VMemCollection<NODX201::VEcuVariantPatternCollection>& MakeEcuVariantPatternCollection() {
        return m_ecuVariantPattern.Make();
    }
    VMemEcuVariantPattern& AddEcuVariantPattern() {
        return AddPlain<VMemEcuVariantPattern>(m_ecuVariantPattern, Inside());
    }

private:
    VMemMany<NODX201::VEcuVariantPatternCollection> m_ecuVariantPattern;
};

/// ECU-SHARED-DATA
class VMemEcuSharedData final
    : public VWithDiagVariables<VWithLayer<VWithComparamRefs<VWithFunctClasses<
          VWithCompanyDatas<VWithAdminData<VMemIdent<NODX201::VEcuSharedData, Tag::EcuSharedData>>>>>>> {
public:
    using VWithDiagVariables::VWithDiagVariables;

    void Accept(NODX201::VDiagLayerVisitor& visitor) override { visitor.VisitEcuSharedData(*this); }
};

/// The layers of a container; it is their owner.
class VMemDiagLayerCollection final : public NODX201::VDiagLayerCollection, public VMemHome {
public:
    explicit VMemDiagLayerCollection(NODX201::VOdxObject& container) : m_container(&container) {} ///< empty
    ~VMemDiagLayerCollection() override;

    NODX201::VOdxObject* GetOwner() const override { return m_container; }
    void Forget(VListPosition const& position) override;

    /// Moves a layer of the same database here, to the end. Throws std::invalid_argument for one of another database.
    template <class Layer>
    void Adopt(Layer& layer);

private:
    friend class VMemDiagLayerContainer;

    template <class Layer>
    Layer& Add(std::unique_ptr<Layer> layer);

    NODX201::VOdxObject* m_container;
    bool m_isClosing = false;
};

template <class Layer>
void VMemDiagLayerCollection::Adopt(Layer& layer) {
    VMemNode& node = layer;
    node.RequireMoveTo(dynamic_cast<VMemNode const&>(*m_container), *m_container, layer);
    auto const now = m_elements.insert(m_elements.end(), &layer);
    node.m_home->Forget(node.m_place);
    node.m_home = this;
    node.m_place = VListPosition(now);
    node.m_owner = this;
    node.NoteRedirection();
}

/// DIAG-LAYER-CONTAINER
class VMemDiagLayerContainer final
    : public VWithCompanyDatas<VWithAdminData<VMemIdent<NODX201::VDiagLayerContainer, Tag::DiagLayerContainer>>> {
public:
    using VWithCompanyDatas::VWithCompanyDatas;

    VMemDiagLayerCollection& DiagLayerCollection() override { return m_diagLayer; }
    VMemProtocol& AddProtocol(wchar_t const* shortName);
    VMemFunctionalGroup& AddFunctionalGroup(wchar_t const* shortName);
    VMemBaseVariant& AddBaseVariant(wchar_t const* shortName);
    VMemEcuVariant& AddEcuVariant(wchar_t const* shortName);
    VMemEcuSharedData& AddEcuSharedData(wchar_t const* shortName);

private:
    template <class Layer>
    Layer& Add(wchar_t const* shortName);

    VMemDiagLayerCollection m_diagLayer{*this};
};

} // namespace NMemory
