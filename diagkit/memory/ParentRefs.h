// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/DiagCommLinks.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/ParentRefs.h>

/// PARENT-REFs and their exclusions.

namespace NMemory {

/// NOT-INHERITED-DIAG-COMM
class VMemNotInheritedDiagComm final : public VMemElement<NODX201::VNotInheritedDiagComm, Tag::NotInheritedDiagComm> {
public:
    VMemNotInheritedDiagComm(VPlace const& place, VReference const& reference)
        : VMemElement(place), m_diagCommSnref(Inside(), reference) {
        if (reference.IsByShortName()) {
            m_diagCommSnref.SetOdxTag(Tag::DiagCommSnref);
        }
    }

    VMemDiagCommLink& GetDiagCommSnref() override { return m_diagCommSnref; }

private:
    VMemDiagCommLink m_diagCommSnref;
};

/// NOT-INHERITED-VARIABLE
class VMemNotInheritedVariable final : public VMemElement<NODX201::VNotInheritedVariable, Tag::NotInheritedVariable> {
public:
    VMemNotInheritedVariable(VPlace const& place, VReference const& reference)
        : VMemElement(place), m_diagVariableSnref(Inside(), reference) {
        if (reference.IsByShortName()) {
            m_diagVariableSnref.SetOdxTag(Tag::DiagVariableSnref);
        }
    }

    VMemDiagVariableLink& GetDiagVariableSnref() override { return m_diagVariableSnref; }

private:
    VMemDiagVariableLink m_diagVariableSnref;
};

/// The kinds of PARENT-REF; `Unknown` is one that no view follows.
enum class VParentRefKind { Unknown, Protocol, FunctionalGroup, BaseVariant, EcuSharedData };

// clang-format off
inline VParentRefKind ParentRefKindOf(NODX201::VProtocol const&)        { return VParentRefKind::Protocol; }        ///< PROTOCOL-REF
inline VParentRefKind ParentRefKindOf(NODX201::VFunctionalGroup const&) { return VParentRefKind::FunctionalGroup; } ///< FUNCTIONAL-GROUP-REF
inline VParentRefKind ParentRefKindOf(NODX201::VBaseVariant const&)     { return VParentRefKind::BaseVariant; }     ///< BASE-VARIANT-REF
inline VParentRefKind ParentRefKindOf(NODX201::VEcuSharedData const&)   { return VParentRefKind::EcuSharedData; }   ///< ECU-SHARED-DATA-REF
// clang-format on

/// The kind of reference that names a layer; `Unknown` for an ECU-VARIANT, which nothing inherits from.
VParentRefKind ParentRefKindOf(NODX201::VDiagLayer& layer);

/// What a program does with a PARENT-REF without knowing its kind.
class IMemParentRef {
public:
    virtual void MakeNotInheritedDiagCommCollection() = 0; ///< present from now on, with contents or without
    virtual void MakeNotInheritedVariableCollection() = 0; ///< present from now on, with contents or without
    virtual VMemNotInheritedDiagComm& AddNotInheritedDiagComm(VReference const& reference) = 0;
    virtual VMemNotInheritedVariable& AddNotInheritedVariable(VReference const& reference) = 0;
    virtual NODX201::VParentRef& ParentRef() = 0; ///< the same element as the contract has it
    virtual VMemNode& Node() = 0;                 ///< the same element, for its position and database

    /// Adds a NOT-INHERITED-DIAG-COMM; returns this reference, for more of them.
    IMemParentRef& ExcludeDiagComm(wchar_t const* shortName) {
        AddNotInheritedDiagComm(VReference::ByShortName(shortName));
        return *this;
    }
    /// Adds a NOT-INHERITED-VARIABLE; returns this reference, for more of them.
    IMemParentRef& ExcludeVariable(wchar_t const* shortName) {
        AddNotInheritedVariable(VReference::ByShortName(shortName));
        return *this;
    }

protected:
    IMemParentRef() = default;
    ~IMemParentRef() = default;
};

/// What the kinds of PARENT-REF share.
template <class Contract, Tag TheTag, class Target>
class VMemAnyParentRef : public VMemLink<Contract, TheTag, Target>, public IMemParentRef {
public:
    VMemAnyParentRef(VPlace const& place, VReference const& reference)
        : VMemLink<Contract, TheTag, Target>(place, reference) {}

    /// Names another layer from now on.
    void SetReference(VReference const& reference) {
        VMemLink<Contract, TheTag, Target>::SetReference(reference);
        this->NoteRedirection();
    }

    bool HasNotInheritedDiagCommCollection() const override { return m_diagComms.IsPresent(); }
    NODX201::VNotInheritedDiagCommCollection& NotInheritedDiagCommCollection() override { return m_diagComms.Get(); }
    void MakeNotInheritedDiagCommCollection() override { m_diagComms.Make(); }
    VMemNotInheritedDiagComm& AddNotInheritedDiagComm(VReference const& reference) override {
        return AddLink<VMemNotInheritedDiagComm>(m_diagComms, this->Inside(), reference);
    }

    bool HasNotInheritedVariableCollection() const override { return m_variables.IsPresent(); }
    NODX201::VNotInheritedVariableCollection& NotInheritedVariableCollection() override { return m_variables.Get(); }
    void MakeNotInheritedVariableCollection() override { m_variables.Make(); }
    VMemNotInheritedVariable& AddNotInheritedVariable(VReference const& reference) override {
        return AddLink<VMemNotInheritedVariable>(m_variables, this->Inside(), reference);
    }

    NODX201::VParentRef& ParentRef() override { return *this; }
    VMemNode& Node() override { return *this; }

private:
    VMemMany<NODX201::VNotInheritedDiagCommCollection> m_diagComms;
    VMemMany<NODX201::VNotInheritedVariableCollection> m_variables;
};

/// PARENT-REF of no known kind
class VMemParentRef final : public VMemAnyParentRef<NODX201::VParentRef, Tag::ParentRef, NODX201::VDiagLayer> {
public:
    using VMemAnyParentRef::VMemAnyParentRef;
    bool HasDiagLayer() const { return FindById(); } ///< the target, whatever its kind
    NODX201::VDiagLayer& GetDiagLayer() { return Found(); }
};

/// PARENT-REF of xsi:type PROTOCOL-REF
class VMemProtocolRef final : public VMemAnyParentRef<NODX201::VProtocolRef, Tag::ProtocolRef, NODX201::VProtocol> {
public:
    using VMemAnyParentRef::VMemAnyParentRef;
    bool HasProtocol() const override { return FindById(); }
    NODX201::VProtocol& GetProtocol() override { return Found(); }
};

/// PARENT-REF of xsi:type FUNCTIONAL-GROUP-REF
class VMemFunctionalGroupRef final
    : public VMemAnyParentRef<NODX201::VFunctionalGroupRef, Tag::FunctionalGroupRef, NODX201::VFunctionalGroup> {
public:
    using VMemAnyParentRef::VMemAnyParentRef;
    bool HasFunctionalGroup() const override { return FindById(); }
    NODX201::VFunctionalGroup& GetFunctionalGroup() override { return Found(); }
};

/// PARENT-REF of xsi:type BASE-VARIANT-REF
class VMemBaseVariantRef final
    : public VMemAnyParentRef<NODX201::VBaseVariantRef, Tag::BaseVariantRef, NODX201::VBaseVariant> {
public:
    using VMemAnyParentRef::VMemAnyParentRef;
    bool HasBaseVariant() const override { return FindById(); }
    NODX201::VBaseVariant& GetBaseVariant() override { return Found(); }
};

/// PARENT-REF of xsi:type ECU-SHARED-DATA-REF
class VMemEcuSharedDataRef final
    : public VMemAnyParentRef<NODX201::VEcuSharedDataRef, Tag::EcuSharedDataRef, NODX201::VEcuSharedData> {
public:
    using VMemAnyParentRef::VMemAnyParentRef;
    bool HasEcuSharedData() const override { return FindById(); }
    NODX201::VEcuSharedData& GetEcuSharedData() override { return Found(); }
};

} // namespace NMemory
