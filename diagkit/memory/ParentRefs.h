// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/References.h>
#include <diagkit/model/ParentRefs.h>

/// PARENT-REFs and their exclusions.

namespace NMemory {

#define ODX_EXCLUSION(name, reference, link, value, element)                                                           \
    class VMem##name final : public VMemElement<NODX201::V##name, Tag::name> {                                         \
    public:                                                                                                            \
        VMem##name(VPlace const& place, VReference const& to);                                                         \
        ~VMem##name() override;                                                                                        \
        VMem##link& Get##reference() override { return m_reference; }                                                  \
                                                                                                                       \
    private:                                                                                                           \
        VMem##link m_reference;                                                                                        \
    };
#include <diagkit/model/facts/Vocabulary.def>

#include <diagkit/model/facts/ParentRefs.def>

#include <diagkit/model/facts/Clear.def>

/// The kinds of PARENT-REF, by the kind of layer that they lead to; no view follows `Unknown`.
enum class VParentRefKind {
    Unknown,
#define ODX_PARENT_REF(name, target, value, type) target,
#include <diagkit/model/facts/Vocabulary.def>

#include <diagkit/model/facts/ParentRefs.def>

#include <diagkit/model/facts/Clear.def>
};

/// The kind of reference to a layer; `Unknown` for an ECU-VARIANT, from which nothing inherits.
VParentRefKind ParentRefKindOf(NODX201::VDiagLayer& layer);

/// The operations on a PARENT-REF of any kind.
class IMemParentRef {
public:
    virtual void MakeNotInheritedDiagCommCollection() = 0; ///< makes it present, even if empty
    virtual void MakeNotInheritedVariableCollection() = 0; ///< makes it present, even if empty
    virtual VMemNotInheritedDiagComm& AddNotInheritedDiagComm(VReference const& reference) = 0;
    virtual VMemNotInheritedVariable& AddNotInheritedVariable(VReference const& reference) = 0;
    virtual NODX201::VParentRef& ParentRef() = 0; ///< the same element as a class of the contract
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

/// Members common to the kinds of PARENT-REF.
template <class Contract, Tag TheTag, class Target>
class VMemAnyParentRef : public VMemLink<Contract, TheTag, Target>, public IMemParentRef {
public:
    VMemAnyParentRef(VPlace const& place, VReference const& reference)
        : VMemLink<Contract, TheTag, Target>(place, reference) {}

    /// Gives the reference another layer as target.
    void SetReference(VReference const& reference) {
        VMemLink<Contract, TheTag, Target>::SetReference(reference);
        this->NoteRedirection();
    }

    bool HasNotInheritedDiagCommCollection() const override { return m_diagComms.IsPresent(); }
    NODX201::VNotInheritedDiagCommCollection& NotInheritedDiagCommCollection() override { return m_diagComms.Get(); }
    void MakeNotInheritedDiagCommCollection() override { m_diagComms.Make(); }
    VMemNotInheritedDiagComm& AddNotInheritedDiagComm(VReference const& reference) override {
        return m_diagComms.Add(New<VMemNotInheritedDiagComm>(this->Inside(), reference));
    }

    bool HasNotInheritedVariableCollection() const override { return m_variables.IsPresent(); }
    NODX201::VNotInheritedVariableCollection& NotInheritedVariableCollection() override { return m_variables.Get(); }
    void MakeNotInheritedVariableCollection() override { m_variables.Make(); }
    VMemNotInheritedVariable& AddNotInheritedVariable(VReference const& reference) override {
        return m_variables.Add(New<VMemNotInheritedVariable>(this->Inside(), reference));
    }

    NODX201::VParentRef& ParentRef() override { return *this; }
    VMemNode& Node() override { return *this; }

private:
    VMemMany<NODX201::VNotInheritedDiagCommCollection> m_diagComms;
    VMemMany<NODX201::VNotInheritedVariableCollection> m_variables;
};

/// PARENT-REF: a class for each xsi:type. `ParentRef`, of unknown kind, leads to layers of every kind.
#define ODX_PARENT_REF(name, target, value, type)                                                                      \
    DIAGKIT_LINK(name, VMemAnyParentRef, NODX201::V##name, name, target, NODX201::V##target) ODX_END
#define ODX_UNTYPED_PARENT_REF(name, target, value) ODX_PARENT_REF(name, target, value, "")
#include <diagkit/memory/Classes.def>

#include <diagkit/model/facts/ParentRefs.def>

#include <diagkit/memory/ClassesEnd.def>

} // namespace NMemory
