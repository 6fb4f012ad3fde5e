// SPDX-License-Identifier: Apache-2.0

// The tables of vehicle information.

#include <diagkit/memory/VehicleInfo.h>
#include <diagkit/reader/Facts.h>
#include <diagkit/reader/Literals.h>
#include <diagkit/reader/SpecialRows.h>

namespace NReader {

#include <diagkit/reader/Tables.def>

#include <diagkit/model/facts/VehicleInfo.def>

#include <diagkit/reader/TablesEnd.def>

} // namespace NReader
