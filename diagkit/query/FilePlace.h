// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>

#include <diagkit/memory/Database.h>

namespace NQuery {

/// A place in a file.
struct VFilePlace {
    std::string file;         ///< as named by the user, UTF-8; inside a package PACKAGE!MEMBER; "" when not known
    std::uint32_t line = 0;   ///< from 1; 0 when not known
    std::uint32_t column = 0; ///< from 1, in characters; 0 when not known
};

/// The start of an element of the database. An element made by a program, or of another model, has no place.
VFilePlace FilePlaceOf(NMemory::VDatabase const& database, NODX201::VOdxElement const& element);

} // namespace NQuery
