// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <list>

#include <diagkit/model/ExternalIterator.h>

namespace NODX201 {

/// An ordered collection of model elements, in document order. It contains pointers. The model decides who owns the
/// elements; the toolkit never does.
///
/// `Begin()`/`End()` are the contract's names, `begin()`/`end()` let a range-for walk the same elements.
template <class T>
class VElementCollection {
public:
    using List = std::list<T*>;
    using Iterator = VExternalIterator<typename List::iterator, T&>;

    VElementCollection(VElementCollection const&) = delete;
    VElementCollection& operator=(VElementCollection const&) = delete;

    Iterator Begin() { return Iterator(m_elements.begin()); }
    Iterator End() { return Iterator(m_elements.end()); }
    Iterator begin() { return Begin(); }
    Iterator end() { return End(); }

    std::size_t Count() const { return m_elements.size(); }

protected:
    VElementCollection() = default;
    ~VElementCollection() = default;

    List m_elements;
};

} // namespace NODX201
