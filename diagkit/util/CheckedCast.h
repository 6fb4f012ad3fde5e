// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <typeinfo>

namespace NPavonaUtil {

/// A checked downcast from an interface to a class that implements it, for who casts often: it remembers the last
/// class for which the cast succeeded, and finds objects of that class again without searching its bases. The answer
/// is always that of `dynamic_cast`.
///
/// What is remembered is the dynamic type and where in the whole object the interface lies, because a class may
/// implement an interface in several of its bases. Casts are remembered only where `To` itself implements `From`;
/// whatever else `dynamic_cast` finds (a `To` beside the interface), and what it does not find (another class, a
/// private base, two of them), is searched each time.
///
/// Keep one only as long as the classes it meets stay loaded: in a function, or in what walks one model. Not
/// thread-safe.
template <class To, class From>
class VCheckedCast {
public:
    /// Null when the object is no `To`.
    To* operator()(From& x) {
        To* const again = Again(x);
        return again != nullptr ? again : Search(x);
    }

    /// The object when it is of the class that is remembered; null otherwise, which does not say that it is no `To`.
    To* Again(From& x) const {
        bool const isSame = &typeid(x) == m_type && OffsetOf(x) == m_offset;
        return isSame ? static_cast<To*>(&x) : nullptr;
    }

private:
    static std::ptrdiff_t OffsetOf(From& x) {
        return static_cast<char*>(static_cast<void*>(&x)) - static_cast<char*>(dynamic_cast<void*>(&x));
    }

    To* Search(From& x) {
        To* const found = dynamic_cast<To*>(&x);
        if (found != nullptr && static_cast<From*>(found) == &x) {
            m_type = &typeid(x);
            m_offset = OffsetOf(x);
        }
        return found;
    }

    std::type_info const* m_type = nullptr;
    std::ptrdiff_t m_offset = 0;
};

} // namespace NPavonaUtil
