// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/DopView.h>

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include <diagkit/model/Dops.h>
#include <diagkit/tools/Inheritance.h>
#include <diagkit/util/Assertion.h>

namespace NDIAGKIT {

DIAGKIT_TEMPLATE_DEFINITION(VMapExternalIterator<VDopView::Map::iterator, NODX201::VDopBase&>);

namespace {

constexpr NPavonaUtil::VAssertion kDopNotFound{L"false", L"DopView", 344};
constexpr NPavonaUtil::VAssertion kRemoveAtEnd{L"iter != End()", L"DopView", 352};
constexpr NPavonaUtil::VAssertion kRemoveStepAtEnd{L"iter != m_collection.end()", L"DopView", 416};

/// Where a map, constant or not, holds this very object.
template <class Map>
auto FindDop(Map& map, NODX201::VDopBase const& dop) {
    return std::find_if(map.begin(), map.end(), [&dop](auto const& entry) { return entry.second == &dop; });
}

} // namespace

VDopView::VDopView() = default;

VDopView::~VDopView() = default;

// clang-format off
VDopView::VDopView(NODX201::VEcuSharedData& layer)   : VDopView() { Inherit(layer); }
VDopView::VDopView(NODX201::VProtocol& layer)        : VDopView() { Inherit(layer); }
VDopView::VDopView(NODX201::VFunctionalGroup& layer) : VDopView() { Inherit(layer); }
VDopView::VDopView(NODX201::VBaseVariant& layer)     : VDopView() { Inherit(layer); }
VDopView::VDopView(NODX201::VEcuVariant& layer)      : VDopView() { Inherit(layer); }
// clang-format on

void VDopView::Inherit(VLayerOfKind const& layer) {
    auto const dops = VInheritance<VInheritedDops>().EntriesOf(layer);
    std::vector<std::pair<std::wstring_view, std::size_t>> names; // with places in `dops`
    names.reserve(dops.size());
    for (NODX201::VDopBase* const dop : dops) {
        names.emplace_back(dop->GetShortName(), names.size());
    }
    // Sorted as in the map, so that each insertion is at the end. Of names that the map treats as equal, the first one
    // is inserted.
    NPavonaUtil::VUtf16Less const isLess;
    std::sort(names.begin(), names.end(), [isLess](auto const& a, auto const& b) {
        return isLess(a.first, b.first) || (!isLess(b.first, a.first) && a.second < b.second);
    });
    for (auto const& [shortName, index] : names) {
        m_collection.emplace_hint(m_collection.end(), shortName, dops[index]);
    }
}

unsigned long long VDopView::Count() const { return m_collection.size(); }

bool VDopView::IsEmpty() const { return Count() == 0; }

VDopView::Iterator VDopView::Begin() { return Iterator(m_collection.begin()); }

VDopView::Iterator VDopView::End() { return Iterator(m_collection.end()); }

VDopView::ConstIterator VDopView::Begin() const { return ConstIterator(m_collection.begin()); }

VDopView::ConstIterator VDopView::End() const { return ConstIterator(m_collection.end()); }

VDopView::Iterator VDopView::Find(wchar_t const* shortName) {
    return shortName != nullptr ? Iterator(m_collection.find(std::wstring_view(shortName))) : End();
}

VDopView::Iterator VDopView::Find(NODX201::VDopBase& dop) { return Iterator(_Find(dop)); }

VDopView::ConstIterator VDopView::Find(wchar_t const* shortName) const {
    return shortName != nullptr ? ConstIterator(m_collection.find(std::wstring_view(shortName))) : End();
}

VDopView::ConstIterator VDopView::Find(NODX201::VDopBase const& dop) const {
    return ConstIterator(FindDop(m_collection, dop));
}

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

VDopView::Map::iterator VDopView::_Find(NODX201::VDopBase& dop) { return FindDop(m_collection, dop); }

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
