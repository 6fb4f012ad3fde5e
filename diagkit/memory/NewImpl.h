// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/Children.h>

/// The bodies of Children.h and Collection.h, for the sources that instantiate them.

namespace NMemory {

template <class Element>
VMemMade<Element> New(VPlace const& place) {
    return VMemMade<Element>(new Element(place));
}

template <class Element>
VMemMade<Element> NewNamed(VPlace const& place, wchar_t const* shortName) {
    auto element = New<Element>(place);
    element->SetShortName(shortName);
    return element;
}

template <class Link>
VMemMade<Link> New(VPlace const& place, VReference const& reference) {
    return VMemMade<Link>(new Link(place, reference));
}

template <class Child>
VMemChild<Child>::~VMemChild() {
    delete m_child;
}

template <class Child>
Child& VMemChild<Child>::Make(VPlace const& place) {
    return Has() ? Get() : Take(New<Child>(place));
}

template <class Child>
Child& VMemChild<Child>::Take(VMemMade<Child> child) {
    delete std::exchange(m_child, child.Release());
    return *m_child;
}

template <class Child>
void VMemChild<Child>::Remove() {
    delete std::exchange(m_child, nullptr);
}

template <class Link>
VMemLinkChild<Link>::~VMemLinkChild() {
    delete m_link;
}

template <class Link>
Link& VMemLinkChild<Link>::Set(VPlace const& place, VReference const& reference) {
    if (Has()) {
        m_link->SetReference(reference);
    } else {
        m_link = New<Link>(place, reference).Release();
    }
    return *m_link;
}

template <class Link>
void VMemLinkChild<Link>::Remove() {
    delete std::exchange(m_link, nullptr);
}

template <class Collection>
VMemMany<Collection>::~VMemMany() {
    delete static_cast<VMemCollection<Collection>*>(m_collection);
}

template <class Collection>
Collection& VMemMany<Collection>::Empty() {
    static VMemCollection<Collection> empty;
    return empty;
}

template <class Collection>
VMemCollection<Collection>& VMemMany<Collection>::Make() {
    if (m_collection == nullptr) {
        m_collection = new VMemCollection<Collection>;
    }
    return static_cast<VMemCollection<Collection>&>(*m_collection);
}

template <class Collection>
void VMemMany<Collection>::TakeIn(Entry* entry, VMemNode& node) {
    Make().TakeIn(entry, node);
}

} // namespace NMemory
