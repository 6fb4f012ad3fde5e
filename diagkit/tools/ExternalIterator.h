// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <iterator>

#include <diagkit/model/StandardIterator.h>

namespace NDIAGKIT {

/// A position in a container of the toolkit: wraps the standard iterator of a list or set of pointers and hands out
/// the object itself.
///
/// Positions stay valid while their own entry stays in the container, whatever else is added or removed. Dereferencing
/// or incrementing `End()` or a default-constructed iterator is undefined, as with standard iterators.
///
/// Algorithms of the standard library take it: they step it with `++iter` and compare it. What `begin()` and `end()` of
/// the containers return has `iter++` and `iter->` besides.
template <class Iter, class Ref>
class VExternalIterator {
public:
    VExternalIterator() = default;                                             ///< a null position
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

    Iter& Unwrap() { return m_position; } ///< for the container's own protected operations

private:
    Iter m_position{};
};

/// The same over an ordered map from a name to a pointer: hands out the mapped object, in the order of the names, and
/// does not show the name.
template <class Iter, class Ref>
class VMapExternalIterator {
public:
    VMapExternalIterator() = default;                                             ///< a null position
    explicit VMapExternalIterator(Iter const& position) : m_position(position) {} ///< at this position
    VMapExternalIterator(VMapExternalIterator const&) = default;
    VMapExternalIterator& operator=(VMapExternalIterator const&) = default;
    virtual ~VMapExternalIterator() = default;

    Ref operator*() const { return *m_position->second; }

    VMapExternalIterator& operator++() {
        ++m_position;
        return *this;
    }

    bool operator==(VMapExternalIterator const& other) const { return m_position == other.m_position; }
    bool operator!=(VMapExternalIterator const& other) const { return m_position != other.m_position; }

    Iter& Unwrap() { return m_position; } ///< for the container's own protected operations

private:
    Iter m_position{};
};

} // namespace NDIAGKIT

/// For algorithms of the standard library.
template <class Iter, class Ref>
struct std::iterator_traits<NDIAGKIT::VExternalIterator<Iter, Ref>> : NODX201::VIteratorTraits<Ref> {};

/// The same for the map form.
template <class Iter, class Ref>
struct std::iterator_traits<NDIAGKIT::VMapExternalIterator<Iter, Ref>> : NODX201::VIteratorTraits<Ref> {};
