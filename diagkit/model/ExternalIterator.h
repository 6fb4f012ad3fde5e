// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <iterator>

#include <diagkit/model/StandardIterator.h>

namespace NODX201 {

/// The position in a collection of the model: wraps the iterator of a list of element pointers and hands out the
/// element itself. Stepping is inline and never allocates.
///
/// A position stays valid while its own element stays in the collection. Dereferencing or incrementing `End()` or a
/// default-constructed iterator is undefined, as with standard iterators.
///
/// Algorithms of the standard library take it: they step it with `++iter` and compare it. `VStandardIterator` has
/// `iter++` and `iter->` besides.
template <class Iter, class Ref>
class VExternalIterator {
public:
    VExternalIterator() = default;
    explicit VExternalIterator(Iter const& position) : m_position(position) {} ///< at this position
    VExternalIterator(VExternalIterator const&) = default;
    VExternalIterator& operator=(VExternalIterator const&) = default;
    virtual ~VExternalIterator() = default;

    Ref operator*() const { return **m_position; }

    VExternalIterator& operator++() {
        ++m_position;
        return *this;
    }

    bool operator==(VExternalIterator const& other) const { return m_position == other.m_position; }
    bool operator!=(VExternalIterator const& other) const { return m_position != other.m_position; }

private:
    Iter m_position{};
};

} // namespace NODX201

/// For algorithms of the standard library.
template <class Iter, class Ref>
struct std::iterator_traits<NODX201::VExternalIterator<Iter, Ref>> : NODX201::VIteratorTraits<Ref> {};
