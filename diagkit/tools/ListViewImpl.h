// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <string_view>

#include <diagkit/tools/ListView.h>
#include <diagkit/util/Assertion.h>

/// The bodies of the list views, for the sources that instantiate them.

namespace NDIAGKIT {

template <class Traits>
VListView<Traits>::VListView() = default;

template <class Traits>
VListView<Traits>::~VListView() = default;

template <class Traits>
unsigned long long VListView<Traits>::Count() const {
    return m_collection.size();
}

template <class Traits>
bool VListView<Traits>::IsEmpty() const {
    return Count() == 0;
}

template <class Traits>
typename VListView<Traits>::Iterator VListView<Traits>::Begin() {
    return Iterator(m_collection.begin());
}

template <class Traits>
typename VListView<Traits>::Iterator VListView<Traits>::End() {
    return Iterator(m_collection.end());
}

template <class Traits>
typename VListView<Traits>::ConstIterator VListView<Traits>::Begin() const {
    return ConstIterator(m_collection.begin());
}

template <class Traits>
typename VListView<Traits>::ConstIterator VListView<Traits>::End() const {
    return ConstIterator(m_collection.end());
}

template <class Traits>
typename VListView<Traits>::Iterator VListView<Traits>::Find(Element& element) {
    return Iterator(_Find(element));
}

template <class Traits>
typename VListView<Traits>::ConstIterator VListView<Traits>::Find(Element const& element) const {
    return ConstIterator(std::find(m_collection.begin(), m_collection.end(), &element));
}

template <class Traits>
void VListView<Traits>::Append(Element& element) {
    _Insert(m_collection.end(), element);
}

template <class Traits>
void VListView<Traits>::Remove(Element& element) {
    auto const position = _Find(element);
    if (position == m_collection.end()) {
        NPavonaUtil::ReportAssertion({L"false", Traits::kSource, Traits::kRemoveElementLine});
        return;
    }
    m_collection.erase(position);
}

template <class Traits>
void VListView<Traits>::Remove(Iterator iter) {
    if (iter == End()) {
        NPavonaUtil::ReportAssertion({L"iter != End()", Traits::kSource, Traits::kRemovePositionLine});
    }
    _Remove(iter.Unwrap());
}

template <class Traits>
bool VListView<Traits>::operator==(VListView const& other) const {
    return m_collection == other.m_collection;
}

template <class Traits>
bool VListView<Traits>::operator!=(VListView const& other) const {
    return !(*this == other);
}

template <class Traits>
typename VListView<Traits>::List::iterator VListView<Traits>::_Find(Element& element) {
    return std::find(m_collection.begin(), m_collection.end(), &element);
}

template <class Traits>
void VListView<Traits>::_Insert(typename List::iterator position, Element& element) {
    m_collection.insert(position, &element);
}

template <class Traits>
void VListView<Traits>::_Remove(typename List::iterator position) {
    if (position == m_collection.end()) {
        NPavonaUtil::ReportAssertion({L"iter != m_collection.end()", Traits::kSource, Traits::kRemoveStepLine});
        return;
    }
    Element* const element = *position;
    m_collection.erase(position);
    // Deliberate: removal by position disposes of the element, removal by reference does not
    // (RemoveByIteratorDestroysTheElement, RemoveByReferenceLeavesTheElementAlive).
    delete element;
}

template <class Traits>
VNamedListView<Traits>::VNamedListView() = default;

template <class Traits>
VNamedListView<Traits>::~VNamedListView() = default;

/// The first entry of a list, constant or not, that has the short name; null is no name.
template <class Traits, class List>
auto FindByShortName(List& list, wchar_t const* shortName) {
    if (shortName == nullptr) {
        return list.end();
    }
    std::wstring_view const wanted(shortName);
    return std::find_if(list.begin(), list.end(), [wanted](typename Traits::Element* element) {
        wchar_t const* const held = Traits::ShortNameOf(*element);
        return held != nullptr && wanted == held;
    });
}

template <class Traits>
typename VNamedListView<Traits>::Iterator VNamedListView<Traits>::Find(wchar_t const* shortName) {
    return Iterator(FindByShortName<Traits>(this->m_collection, shortName));
}

template <class Traits>
typename VNamedListView<Traits>::ConstIterator VNamedListView<Traits>::Find(wchar_t const* shortName) const {
    return ConstIterator(FindByShortName<Traits>(this->m_collection, shortName));
}

} // namespace NDIAGKIT
