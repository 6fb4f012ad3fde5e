// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <list>

#include <diagkit/model/ExternalIterator.h>

namespace NODX201 {

/// An ordered collection of model elements, in document order. It contains pointers. The model decides who owns the
/// elements; the toolkit never does.
///
/// `Begin()`/`End()` are the contract's names; `begin()`/`end()` walk the same elements in a range-for and with the
/// algorithms of the standard library. A constant collection hands out the same elements: constant is what it lists,
/// not what they hold.
template <class T>
class VElementCollection {
public:
    using List = std::list<T*>;
    using Iterator = VExternalIterator<typename List::iterator, T&>;
    using ConstIterator = VExternalIterator<typename List::const_iterator, T&>;
    using iterator = VStandardIterator<Iterator>;            ///< of `begin()`
    using const_iterator = VStandardIterator<ConstIterator>; ///< of `begin()` of a constant collection

    VElementCollection(VElementCollection const&) = delete;
    VElementCollection& operator=(VElementCollection const&) = delete;

    Iterator Begin() { return Iterator(m_elements.begin()); }
    Iterator End() { return Iterator(m_elements.end()); }
    ConstIterator Begin() const { return ConstIterator(m_elements.begin()); }
    ConstIterator End() const { return ConstIterator(m_elements.end()); }
    iterator begin() { return Begin(); }
    iterator end() { return End(); }
    const_iterator begin() const { return Begin(); }
    const_iterator end() const { return End(); }

    std::size_t Count() const { return m_elements.size(); }

protected:
    VElementCollection() = default;
    ~VElementCollection() = default;

    List m_elements;
};

} // namespace NODX201
