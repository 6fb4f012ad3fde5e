// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/DiagVariables.h>
#include <diagkit/memory/ParentRefs.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Visitors.h>

/// Containers, the five kinds of layer and their parts.

namespace NMemory {

/// Members common to the five kinds of layer that are not in their contract.
template <class Base>
class VWithSeveredGroups : public Base, public IMemLayer {
public:
    using Base::Base;

    std::vector<std::uint64_t>& SeveredGroups() override { return m_severedGroups; }

private:
    std::vector<std::uint64_t> m_severedGroups;
};

/// PARENT-REFS
using VMemParentRefCollection = VMemCollection<NODX201::VParentRefCollection>;

/// Inserts a new PARENT-REF of the kind before the position.
IMemParentRef& InsertParentRef(VMemParentRefCollection& parentRefs, VMemParentRefCollection::List::iterator before,
                               VPlace const& place, VParentRefKind kind, VReference const& reference);
/// See `VWithParents::ChangeParentRefKind`.
IMemParentRef& ChangeParentRefKind(VMemParentRefCollection& parentRefs, VPlace const& place, IMemParentRef& parentRef,
                                   VParentRefKind kind);

/// Members common to the four kinds of layer with parents.
template <class Base>
class VWithParents : public Base {
public:
    using Base::Base;

    bool HasParentRefCollection() const override { return m_parentRef.IsPresent(); }
    NODX201::VParentRefCollection& ParentRefCollection() override { return m_parentRef.Get(); } ///< PARENT-REFS
    VMemCollection<NODX201::VParentRefCollection>& MakeParentRefCollection() { return m_parentRef.Make(); }
    /// Of the kind that fits the parent's; whether ODX allows that kind here is not checked.
    template <class Parent, class = decltype(std::declval<Parent&>().EnsureId())>
    IMemParentRef& AddParentRef(Parent& parent) {
        return AddParentRef(ParentRefKindOf(parent), parent);
    }
    /// Of this kind, to a layer that need not exist yet.
    IMemParentRef& AddParentRef(VParentRefKind kind, VReference const& reference) {
        auto& parentRefs = m_parentRef.Make();
        return InsertParentRef(parentRefs, parentRefs.EndPosition(), this->Inside(), kind, reference);
    }
    /// Replaces a PARENT-REF by one of another kind with the same reference, exclusions and position in file; the old
    /// one is destroyed.
    IMemParentRef& ChangeParentRefKind(IMemParentRef& parentRef, VParentRefKind kind) {
        return NMemory::ChangeParentRefKind(m_parentRef.Make(), this->Inside(), parentRef, kind);
    }

private:
    VMemMany<NODX201::VParentRefCollection> m_parentRef;
};

/// The layers of a container; it is their owner.
class VMemDiagLayerCollection final : public NODX201::VDiagLayerCollection, public VMemHome {
public:
    explicit VMemDiagLayerCollection(NODX201::VOdxObject& container) : m_container(&container) {} ///< empty
    ~VMemDiagLayerCollection() override;

    NODX201::VOdxObject* GetOwner() const override { return m_container; }
    void Forget(VListPosition const& position) override;

    /// A new layer at the end.
    template <class Layer>
    Layer& Add(VPart& part, wchar_t const* shortName);

    /// Moves a layer of the same database here, to the end. Throws std::invalid_argument for one of another database.
    template <class Layer>
    void Adopt(Layer& layer);

private:
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

/// The layers of a container as a member of it.
template <class Base>
class VWithDiagLayers : public Base {
public:
    using Base::Base;

    VMemDiagLayerCollection& DiagLayerCollection() override { return m_diagLayer; }
    VMemProtocol& AddProtocol(wchar_t const* shortName) { return Add<VMemProtocol>(shortName); }
    VMemFunctionalGroup& AddFunctionalGroup(wchar_t const* shortName) { return Add<VMemFunctionalGroup>(shortName); }
    VMemBaseVariant& AddBaseVariant(wchar_t const* shortName) { return Add<VMemBaseVariant>(shortName); }
    VMemEcuVariant& AddEcuVariant(wchar_t const* shortName) { return Add<VMemEcuVariant>(shortName); }
    VMemEcuSharedData& AddEcuSharedData(wchar_t const* shortName) { return Add<VMemEcuSharedData>(shortName); }

private:
    template <class Layer>
    Layer& Add(wchar_t const* shortName) {
        return m_diagLayer.template Add<Layer>(this->Part(), shortName);
    }

    VMemDiagLayerCollection m_diagLayer{*this};
};

template <class Names>
struct VByHand<Tag::Protocol, Names> {
    using Type = VWithParents<VWithSeveredGroups<Names>>;
};
template <class Names>
struct VByHand<Tag::FunctionalGroup, Names> {
    using Type = VWithParents<VWithSeveredGroups<Names>>;
};
template <class Names>
struct VByHand<Tag::BaseVariant, Names> {
    using Type = VWithParents<VWithSeveredGroups<Names>>;
};
template <class Names>
struct VByHand<Tag::EcuVariant, Names> {
    using Type = VWithParents<VWithSeveredGroups<Names>>;
};
template <class Names>
struct VByHand<Tag::EcuSharedData, Names> {
    using Type = VWithSeveredGroups<Names>;
};
template <class Names>
struct VByHand<Tag::DiagLayerContainer, Names> {
    using Type = VWithDiagLayers<Names>;
};

#include <diagkit/memory/Classes.def>

#include <diagkit/model/facts/Layers.def>

#include <diagkit/memory/ClassesEnd.def>

} // namespace NMemory
