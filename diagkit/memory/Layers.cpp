// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Layers.h>

namespace NMemory {

IMemParentRef& InsertParentRef(VMemParentRefCollection& parentRefs, VMemParentRefCollection::List::iterator before,
                               VPlace const& place, VParentRefKind kind, VReference const& reference) {
    switch (kind) {
#define ODX_PARENT_REF(name, target, value, type)                                                                      \
    case VParentRefKind::target:                                                                                       \
        return parentRefs.Insert(before, New<VMem##name>(place, reference));
#include <diagkit/model/facts/Vocabulary.def>

#include <diagkit/model/facts/ParentRefs.def>

#include <diagkit/model/facts/Clear.def>
    case VParentRefKind::Unknown:
        break;
    }
    return parentRefs.Insert(before, New<VMemParentRef>(place, reference));
}

namespace {

void CopyPositions(NODX201::VOdxElement& from, NODX201::VOdxElement& fromReference, VMemNode& to,
                   VMemNode& toReference) {
    to.SetPosition(dynamic_cast<VMemNode&>(from).GetPosition());
    toReference.SetPosition(dynamic_cast<VMemNode&>(fromReference).GetPosition());
}

/// The contents of a PARENT-REF apart from its kind and its reference.
void CopyContent(IMemParentRef& parentRef, IMemParentRef& changed) {
    NODX201::VParentRef& before = parentRef.ParentRef();
    changed.Node().SetPosition(parentRef.Node().GetPosition());
    if (before.HasNotInheritedDiagCommCollection()) {
        changed.MakeNotInheritedDiagCommCollection();
    }
    for (NODX201::VNotInheritedDiagComm& excluded : before.NotInheritedDiagCommCollection()) {
        auto& copy = changed.AddNotInheritedDiagComm(ReferenceOf(excluded.GetDiagCommSnref().GetLink()));
        CopyPositions(excluded, excluded.GetDiagCommSnref(), copy, copy.GetDiagCommSnref());
    }
    if (before.HasNotInheritedVariableCollection()) {
        changed.MakeNotInheritedVariableCollection();
    }
    for (NODX201::VNotInheritedVariable& excluded : before.NotInheritedVariableCollection()) {
        auto& copy = changed.AddNotInheritedVariable(ReferenceOf(excluded.GetDiagVariableSnref().GetLink()));
        CopyPositions(excluded, excluded.GetDiagVariableSnref(), copy, copy.GetDiagVariableSnref());
    }
}

} // namespace

IMemParentRef& ChangeParentRefKind(VMemParentRefCollection& parentRefs, VPlace const& place, IMemParentRef& parentRef,
                                   VParentRefKind kind) {
    NODX201::VParentRef& before = parentRef.ParentRef();
    IMemParentRef& changed =
        InsertParentRef(parentRefs, parentRefs.Position(parentRef.Node()), place, kind, ReferenceOf(before.GetLink()));
    try {
        CopyContent(parentRef, changed);
    } catch (...) {
        delete &changed.ParentRef();
        throw;
    }
    delete &before;
    return changed;
}

VMemDiagLayerCollection::~VMemDiagLayerCollection() {
    m_isClosing = true;
    for (NODX201::VDiagLayer* const layer : m_elements) {
        delete layer;
    }
}

void VMemDiagLayerCollection::Forget(VListPosition const& position) {
    if (!m_isClosing) {
        m_elements.erase(position.In(m_elements));
    }
}

template <class Layer>
Layer& VMemDiagLayerCollection::Add(VPart& part, wchar_t const* shortName) {
    auto layer = NewNamed<Layer>(VPlace{this, &part}, shortName);
    layer->m_place = VListPosition(m_elements.insert(m_elements.end(), &*layer));
    layer->m_home = this;
    return *layer.Release();
}

template VMemProtocol& VMemDiagLayerCollection::Add(VPart& part, wchar_t const* shortName);
template VMemFunctionalGroup& VMemDiagLayerCollection::Add(VPart& part, wchar_t const* shortName);
template VMemBaseVariant& VMemDiagLayerCollection::Add(VPart& part, wchar_t const* shortName);
template VMemEcuVariant& VMemDiagLayerCollection::Add(VPart& part, wchar_t const* shortName);
template VMemEcuSharedData& VMemDiagLayerCollection::Add(VPart& part, wchar_t const* shortName);

} // namespace NMemory
