// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/DiagCommView.h>

#include <diagkit/model/DiagComms.h>
#include <diagkit/tools/ListViewImpl.h>
#include <diagkit/tools/NameSet.h>
#include <diagkit/tools/ParentPass.h>

namespace NDIAGKIT {

using EcuSharedDataRef = NODX201::VEcuSharedDataRef;
using ProtocolRef = NODX201::VProtocolRef;
using FunctionalGroupRef = NODX201::VFunctionalGroupRef;
using BaseVariantRef = NODX201::VBaseVariantRef;

/// What lives for one construction only.
struct VDiagCommConstruction {
    VNameMerge merge;
    VNameSet excluded; ///< the not-inherited names of the reference being processed
};

wchar_t const* VDiagCommViewTraits::ShortNameOf(Element& diagComm) { return diagComm.GetShortName(); }

VDiagCommView::VDiagCommView() = default;

VDiagCommView::~VDiagCommView() = default;

VDiagCommView::VDiagCommView(NODX201::VEcuSharedData& layer) : VDiagCommView() { InheritFromOwn(layer); }

VDiagCommView::VDiagCommView(NODX201::VProtocol& layer) : VDiagCommView() {
    Construction construction;
    InheritFromOwn(layer);
    Pass<EcuSharedDataRef>(layer, construction);
}

VDiagCommView::VDiagCommView(NODX201::VFunctionalGroup& layer) : VDiagCommView() {
    Construction construction;
    InheritFromOwn(layer);
    Pass<ProtocolRef>(layer, construction);
    Pass<EcuSharedDataRef>(layer, construction);
}

VDiagCommView::VDiagCommView(NODX201::VBaseVariant& layer) : VDiagCommView() {
    Construction construction;
    InheritFromOwn(layer);
    Pass<ProtocolRef, FunctionalGroupRef>(layer, construction);
    Pass<EcuSharedDataRef>(layer, construction);
}

VDiagCommView::VDiagCommView(NODX201::VEcuVariant& layer) : VDiagCommView() {
    Construction construction;
    InheritFromOwn(layer);
    Pass<BaseVariantRef>(layer, construction);
    Pass<EcuSharedDataRef>(layer, construction);
}

template <class... Refs, class Layer>
void VDiagCommView::Pass(Layer& layer, Construction& construction) {
    if (!layer.HasParentRefCollection()) {
        return;
    }
    struct VInherit {
        VDiagCommView& view;
        Construction& construction;
        void operator()(NODX201::VProtocol& parent) { view.InheritFromProtocol(parent, construction); }
        void operator()(NODX201::VFunctionalGroup& parent) { view.InheritFromFunctionalGroup(parent, construction); }
        void operator()(NODX201::VBaseVariant& parent) { view.InheritFromBaseVariant(parent, construction); }
        void operator()(NODX201::VEcuSharedData& parent) { view.InheritFromEcuSharedData(parent, construction); }
    };
    ParentPass<Refs...>(
        layer.ParentRefCollection(),
        [&](NODX201::VParentRef& parentRef) { SetNotInheritedList(parentRef, construction); },
        VInherit{*this, construction});
}

void VDiagCommView::InheritFromOwn(NODX201::VDiagLayer& layer) {
    if (!layer.HasDiagCommProxyCollection()) {
        return;
    }
    for (NODX201::IDiagCommProxy& proxy : layer.DiagCommProxyCollection()) {
        if (proxy.IsDiagService() || proxy.IsSingleEcuJob()) {
            if (auto* const diagComm = dynamic_cast<NODX201::VDiagComm*>(&proxy)) {
                Append(*diagComm);
            }
        } else if (proxy.IsDiagCommLink()) {
            auto* const link = dynamic_cast<NODX201::VDiagCommLink*>(&proxy);
            if (link != nullptr && link->HasDiagComm(layer)) {
                Append(link->GetDiagComm());
            }
        }
    }
}

void VDiagCommView::SetNotInheritedList(NODX201::VParentRef& parentRef, Construction& construction) {
    construction.excluded.clear();
    m_notInherited.Clear();
    if (!parentRef.HasNotInheritedDiagCommCollection()) {
        return;
    }
    for (NODX201::VNotInheritedDiagComm& notInherited : parentRef.NotInheritedDiagCommCollection()) {
        NODX201::ILink& link = notInherited.GetDiagCommSnref().GetLink();
        if (auto const* const snref = dynamic_cast<NODX201::VSnref*>(&link)) {
            m_notInherited.AddCopy(snref->GetShortName());
        }
    }
    for (std::wstring const& shortName : m_notInherited) {
        construction.excluded.insert(shortName);
    }
}

bool VDiagCommView::IsInNotInheritedList(wchar_t const* shortName, Construction const& construction) const {
    return construction.excluded.count(shortName) != 0;
}

void VDiagCommView::InheritFromProtocol(NODX201::VProtocol& layer, Construction& construction) {
    VDiagCommView parent(layer);
    InheritDiagComms(parent, construction);
}

void VDiagCommView::InheritFromEcuSharedData(NODX201::VEcuSharedData& layer, Construction& construction) {
    VDiagCommView parent;
    parent.InheritFromOwn(layer);
    InheritDiagComms(parent, construction);
}

void VDiagCommView::InheritFromFunctionalGroup(NODX201::VFunctionalGroup& layer, Construction& construction) {
    VDiagCommView parent(layer);
    InheritDiagComms(parent, construction);
}

void VDiagCommView::InheritFromBaseVariant(NODX201::VBaseVariant& layer, Construction& construction) {
    VDiagCommView parent(layer);
    InheritDiagComms(parent, construction);
}

void VDiagCommView::InheritDiagComms(VDiagCommView& source, Construction& construction) {
    construction.merge.Merge(m_collection, source.m_collection,
                             [&](wchar_t const* shortName) { return IsInNotInheritedList(shortName, construction); });
}

} // namespace NDIAGKIT
