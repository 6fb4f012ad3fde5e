// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Layers.h>

namespace NMemory {

IMemParentRef& InsertParentRef(VMemParentRefCollection& parentRefs, VMemParentRefCollection::List::iterator before,
                               VPlace const& place, VParentRefKind kind, VReference const& reference) {
    switch (kind) {
    case VParentRefKind::Protocol:
        return parentRefs.Insert(before, New<VMemProtocolRef>(place, reference));
    case VParentRefKind::FunctionalGroup:
        return parentRefs.Insert(before, New<VMemFunctionalGroupRef>(place, reference));
    case VParentRefKind::BaseVariant:
        return parentRefs.Insert(before, New<VMemBaseVariantRef>(place, reference));
    case VParentRefKind::EcuSharedData:
        return parentRefs.Insert(before, New<VMemEcuSharedDataRef>(place, reference));
    case VParentRefKind::Unknown:
        break;
    }
    return parentRefs.Insert(before, New<VMemParentRef>(place, reference));
}

namespace {

/// What a PARENT-REF holds besides its kind and its reference.
void CopyContent(IMemParentRef& parentRef, IMemParentRef& changed) {
    NODX201::VParentRef& before = parentRef.ParentRef();
    changed.Node().SetPosition(parentRef.Node().GetPosition());
    if (before.HasNotInheritedDiagCommCollection()) {
        changed.MakeNotInheritedDiagCommCollection();
    }
    for (NODX201::VNotInheritedDiagComm& excluded : before.NotInheritedDiagCommCollection()) {
        changed.AddNotInheritedDiagComm(ReferenceOf(excluded.GetDiagCommSnref().GetLink()))
            .SetPosition(dynamic_cast<VMemNode&>(excluded).GetPosition());
    }
    if (before.HasNotInheritedVariableCollection()) {
        changed.MakeNotInheritedVariableCollection();
    }
    for (NODX201::VNotInheritedVariable& excluded : before.NotInheritedVariableCollection()) {
        changed.AddNotInheritedVariable(ReferenceOf(excluded.GetDiagVariableSnref().GetLink()))
            .SetPosition(dynamic_cast<VMemNode&>(excluded).GetPosition());
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
Layer& VMemDiagLayerCollection::Add(std::unique_ptr<Layer> layer) {
    layer->m_place = VListPosition(m_elements.insert(m_elements.end(), layer.get()));
    layer->m_home = this;
    return *layer.release();
}

template <class Layer>
Layer& VMemDiagLayerContainer::Add(wchar_t const* shortName) {
    auto layer = New<Layer>(VPlace{&m_diagLayer, &Part()});
    layer->SetShortName(shortName);
    return m_diagLayer.Add(std::move(layer));
}

VMemProtocol& VMemDiagLayerContainer::AddProtocol(wchar_t const* shortName) { return Add<VMemProtocol>(shortName); }

VMemFunctionalGroup& VMemDiagLayerContainer::AddFunctionalGroup(wchar_t const* shortName) {
    return Add<VMemFunctionalGroup>(shortName);
}

VMemBaseVariant& VMemDiagLayerContainer::AddBaseVariant(wchar_t const* shortName) {
    return Add<VMemBaseVariant>(shortName);
}

VMemEcuVariant& VMemDiagLayerContainer::AddEcuVariant(wchar_t const* shortName) {
    return Add<VMemEcuVariant>(shortName);
}

VMemEcuSharedData& VMemDiagLayerContainer::AddEcuSharedData(wchar_t const* shortName) {
    return Add<VMemEcuSharedData>(shortName);
}

} // namespace NMemory
