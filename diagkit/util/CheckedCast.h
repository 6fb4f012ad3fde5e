// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <typeinfo>

namespace NPavonaUtil {

/// A checked downcast from an interface to a class that implements it, for code that casts often: it remembers the last
/// class for which the cast succeeded, and casts objects of that class again without searching its bases. The result is
/// always that of `dynamic_cast`.
///
/// It remembers the dynamic type and where the interface is in the whole object, because a class may implement an
/// interface in several of its bases. Only casts where `To` itself implements `From` are remembered. All other casts
/// are searched each time: those where another base implements the interface, and those that fail (another class, a
/// private base, an ambiguous base).
///
/// Keep one only as long as the classes it meets remain loaded: in a function, or in an object that walks one model.
/// Not thread-safe.
template <class To, class From>
class VCheckedCast {
public:
    /// Null when the object is not a `To`.
    To* operator()(From& x) {
        To* const again = Again(x);
        return again != nullptr ? again : Search(x);
    }

    /// The object when its class is the remembered one; null otherwise, which does not mean that it is not a `To`.
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
