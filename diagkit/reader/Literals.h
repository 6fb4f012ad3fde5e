// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cwchar>
#include <vector>

#include <diagkit/tools/EnumMapper.h>

/// The literals of an enumeration, taken from the mapper, so that there is one list.

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

/// The literals of the enumeration whose texts `TextOf`, an operation of the mapper, returns; terminated by null.
template <auto TextOf>
wchar_t const* const* LiteralsOf() {
    static std::vector<wchar_t const*> const literals = AllLiterals(TextOf);
    return literals.data();
}

} // namespace NReader
