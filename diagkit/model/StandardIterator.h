// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <iterator>
#include <type_traits>

namespace NODX201 {

/// What `std::iterator_traits` has for a position that hands out `Ref`.
template <class Ref>
struct VIteratorTraits {
    using iterator_category = std::forward_iterator_tag;
    using value_type = std::remove_cv_t<std::remove_reference_t<Ref>>; ///< may be abstract: elements are not copied
    using difference_type = std::ptrdiff_t;
    using pointer = std::remove_reference_t<Ref>*;
    using reference = Ref;
};

/// A position in a collection or a view with all that the standard library asks of a forward iterator: what `begin()`
/// and `end()` return. `Begin()`, `End()` and `Find` return the position alone, which algorithms take as well, and
/// which converts to this and back.
template <class Position>
class VStandardIterator : public Position {
public:
    // The names that std::iterator_traits looks for.
    using iterator_category = std::forward_iterator_tag;
    using value_type = typename std::iterator_traits<Position>::value_type;
    using difference_type = std::ptrdiff_t;
    using pointer = typename std::iterator_traits<Position>::pointer;
    using reference = typename std::iterator_traits<Position>::reference;

    VStandardIterator() = default;                                      ///< a null position
    VStandardIterator(Position const& position) : Position(position) {} ///< the same position

    pointer operator->() const { return &**this; }

    VStandardIterator& operator++() {
        Position::operator++();
        return *this;
    }

    /// Steps, and returns where it was.
    VStandardIterator operator++(int) {
        VStandardIterator const before = *this;
        Position::operator++();
        return before;
    }
};

} // namespace NODX201
