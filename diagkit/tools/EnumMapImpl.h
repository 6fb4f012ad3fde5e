// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <string>
#include <string_view>

#include <diagkit/util/Utf16.h>

namespace NDIAGKIT {

/// A two-way table between the literals of one ODX enumeration and its values. All members are public, as in a record.
///
/// Lookups never fail: a literal that is not in the table gives the default, which is the value of the first pair ever
/// added; a value that is not in the table gives "?". Literals compare exactly.
template <class T>
class EnumMapImpl {
public:
    explicit EnumMapImpl(wchar_t const* name); ///< empty; the name is copied and kept for users; null means no name

    /// Adds a pair; a literal that is there already keeps its value. Texts are copied. Null is not a literal: nothing
    /// is added.
    void Add(wchar_t const* literal, T value);

    T Get(wchar_t const* literal) const; ///< the default when unknown, and for null

    /// The first literal, in the order of code units of UTF-16, that has the value; it stays valid as long as the table
    /// exists.
    wchar_t const* GetStr(T value) const;

    std::map<std::wstring, T, NPavonaUtil::VUtf16Less> m_map; ///< values by literal
    std::wstring m_name;                                      ///< of the enumeration
    T m_default = T();                                        ///< of the first pair added
    bool m_isDefaultSet = false;                              ///< whether a pair was added
};

template <class T>
EnumMapImpl<T>::EnumMapImpl(wchar_t const* name) : m_name(name != nullptr ? name : L"") {}

template <class T>
void EnumMapImpl<T>::Add(wchar_t const* literal, T value) {
    if (literal == nullptr) {
        return;
    }
    m_map.emplace(literal, value);
    if (!m_isDefaultSet) {
        m_isDefaultSet = true;
        m_default = value;
    }
}

template <class T>
T EnumMapImpl<T>::Get(wchar_t const* literal) const {
    auto const found = literal != nullptr ? m_map.find(std::wstring_view(literal)) : m_map.end();
    return found != m_map.end() ? found->second : m_default;
}

template <class T>
wchar_t const* EnumMapImpl<T>::GetStr(T value) const {
    for (auto const& [literal, held] : m_map) {
        if (static_cast<int>(held) == static_cast<int>(value)) {
            return literal.c_str();
        }
    }
    return L"?";
}

} // namespace NDIAGKIT
