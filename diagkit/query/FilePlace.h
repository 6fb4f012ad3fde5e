// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>

#include <diagkit/memory/Database.h>

namespace NQuery {

/// Where something stands in a file.
struct VFilePlace {
    std::string file;         ///< as named by the user, UTF-8; inside a package PACKAGE!MEMBER; "" when not known
    std::uint32_t line = 0;   ///< from 1; 0 when not known
    std::uint32_t column = 0; ///< from 1, in characters; 0 when not known
};

/// Where an element of the database starts. An element that a program made, and one of another model, stands nowhere.
VFilePlace FilePlaceOf(NMemory::VDatabase const& database, NODX201::VOdxElement const& element);

} // namespace NQuery
