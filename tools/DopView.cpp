// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/DopView.h>

#include <algorithm>
#include <string_view>

#include <diagkit/model/Dops.h>
#include <diagkit/tools/ParentPass.h>
#include <diagkit/util/Assertion.h>

namespace NDIAGKIT {

DIAGKIT_TEMPLATE_DEFINITION(VMapExternalIterator<VDopView::Map::iterator, NODX201::VDopBase&>);

namespace {

constexpr NPavonaUtil::VAssertion kDopNotFound{L"false", L"DopView", 344};
constexpr NPavonaUtil::VAssertion kRemoveAtEnd{L"iter != End()", L"DopView", 352};
constexpr NPavonaUtil::VAssertion kRemoveStepAtEnd{L"iter != m_collection.end()", L"DopView", 416};

using EcuSharedDataRef = NODX201::VEcuSharedDataRef;
using ProtocolRef = NODX201::VProtocolRef;
using FunctionalGroupRef = NODX201::VFunctionalGroupRef;
using BaseVariantRef = NODX201::VBaseVariantRef;

} // namespace

VDopView::VDopView() = default;

VDopView::~VDopView() = default;

VDopView::VDopView(NODX201::VEcuSharedData& layer) : VDopView() { InheritFromOwn(layer); }

VDopView::VDopView(NODX201::VProtocol& layer) : VDopView() {
    InheritFromOwn(layer);
    Pass<EcuSharedDataRef>(layer);
}

VDopView::VDopView(NODX201::VFunctionalGroup& layer) : VDopView() {
    InheritFromOwn(layer);
    Pass<ProtocolRef>(layer);
    Pass<EcuSharedDataRef>(layer);
}

VDopView::VDopView(NODX201::VBaseVariant& layer) : VDopView() {
    InheritFromOwn(layer);
    Pass<ProtocolRef, FunctionalGroupRef>(layer);
    Pass<EcuSharedDataRef>(layer);
}

VDopView::VDopView(NODX201::VEcuVariant& layer) : VDopView() {
    InheritFromOwn(layer);
    Pass<BaseVariantRef>(layer);
    Pass<EcuSharedDataRef>(layer);
}

template <class... Refs, class Layer>
void VDopView::Pass(Layer& layer) {
    struct VInherit {
        VDopView& view;
        void operator()(NODX201::VProtocol& parent) { view.InheritFromProtocol(parent); }
        void operator()(NODX201::VFunctionalGroup& parent) { view.InheritFromFunctionalGroup(parent); }
        void operator()(NODX201::VBaseVariant& parent) { view.InheritFromBaseVariant(parent); }
        void operator()(NODX201::VEcuSharedData& parent) { view.InheritFromEcuSharedData(parent); }
    };
    ParentPass<Refs...>(layer.ParentRefCollection(), VInherit{*this});
}

void VDopView::InheritFromOwn(NODX201::VDiagLayer& layer) {
    if (!layer.HasDiagDataDictionarySpec()) {
        return;
    }
    for (NODX201::VDopBase& dop : layer.GetDiagDataDictionarySpec().DopBaseCollection()) {
        Append(dop);
    }
}

void VDopView::InheritFromProtocol(NODX201::VProtocol& layer) {
    VDopView parent(layer);
    InheritDops(parent);
}

void VDopView::InheritFromEcuSharedData(NODX201::VEcuSharedData& layer) {
    VDopView parent(layer);
    InheritDops(parent);
}

void VDopView::InheritFromFunctionalGroup(NODX201::VFunctionalGroup& layer) {
    VDopView parent(layer);
    InheritDops(parent);
}

void VDopView::InheritFromBaseVariant(NODX201::VBaseVariant& layer) {
    VDopView parent(layer);
    InheritDops(parent);
}

void VDopView::InheritDops(VDopView& source) {
    // The source is a temporary that is discarded afterwards: its entries move over, those whose name is taken stay.
    m_collection.merge(source.m_collection);
}

unsigned long long VDopView::Count() const { return m_collection.size(); }

bool VDopView::IsEmpty() const { return Count() == 0; }

VDopView::Iterator VDopView::Begin() { return Iterator(m_collection.begin()); }

VDopView::Iterator VDopView::End() { return Iterator(m_collection.end()); }

VDopView::Iterator VDopView::Find(wchar_t const* shortName) {
    return shortName != nullptr ? Iterator(m_collection.find(std::wstring_view(shortName))) : End();
}

VDopView::Iterator VDopView::Find(NODX201::VDopBase& dop) { return Iterator(_Find(dop)); }

void VDopView::Append(NODX201::VDopBase& dop) { m_collection.emplace(dop.GetShortName(), &dop); }

void VDopView::Remove(NODX201::VDopBase& dop) {
    auto const position = _Find(dop);
    if (position == m_collection.end()) {
        NPavonaUtil::ReportAssertion(kDopNotFound);
        return;
    }
    m_collection.erase(position);
}

void VDopView::Remove(Iterator iter) {
    if (iter == End()) {
        NPavonaUtil::ReportAssertion(kRemoveAtEnd);
    }
    _Remove(iter.Unwrap());
}

bool VDopView::operator==(VDopView const& other) const { return m_collection == other.m_collection; }

bool VDopView::operator!=(VDopView const& other) const { return !(*this == other); }

VDopView::Map::iterator VDopView::_Find(NODX201::VDopBase& dop) {
    return std::find_if(m_collection.begin(), m_collection.end(),
                        [&dop](Map::value_type const& entry) { return entry.second == &dop; });
}

void VDopView::_Remove(Map::iterator position) {
    if (position == m_collection.end()) {
        NPavonaUtil::ReportAssertion(kRemoveStepAtEnd);
        return;
    }
    NODX201::VDopBase* const dop = position->second;
    m_collection.erase(position);
    // Deliberate: removal by position disposes of the DOP, removal by reference does not
    // (RemoveByIteratorDeletesTheDop, RemoveByReferenceLeavesTheDopAlive).
    delete dop;
}

} // namespace NDIAGKIT
