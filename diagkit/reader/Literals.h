// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cwchar>
#include <vector>

#include <diagkit/reader/ElementTable.h>
#include <diagkit/tools/EnumMapper.h>

/// Rows whose text is a literal of an enumeration. The literals are those of the mapper, so that there is one list.

namespace NReader {

using Mapper = NDIAGKIT::VEnumMapper;

template <class Owner, class Enumeration>
std::vector<wchar_t const*> AllLiterals(wchar_t const* (Owner::*textOf)(Enumeration value) const) {
    std::vector<wchar_t const*> literals;
    for (int value = 0;; ++value) {
        wchar_t const* const literal = (Mapper::Instance().*textOf)(static_cast<Enumeration>(value));
        if (std::wcscmp(literal, L"?") == 0) {
            literals.push_back(nullptr);
            return literals;
        }
        literals.push_back(literal);
    }
}

/// The literals of the enumeration that `TextOf`, an operation of the mapper, tells the texts of; ended by null.
template <auto TextOf>
wchar_t const* const* LiteralsOf() {
    static std::vector<wchar_t const*> const literals = AllLiterals(TextOf);
    return literals.data();
}

template <class T, auto Set, auto TextOf>
VAttributeRow LiteralAttribute(char const* name, VOccurs occurs = Optional) {
    return VRows<T>::template Attribute<Set>(name, occurs, VContent::Name, LiteralsOf<TextOf>());
}

template <class T, auto Set, auto TextOf>
VRow LiteralText(char const* name, VOccurs occurs = Optional) {
    return VRows<T>::template Text<Set>(name, occurs, VContent::Name, LiteralsOf<TextOf>());
}

} // namespace NReader
