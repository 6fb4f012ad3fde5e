// SPDX-License-Identifier: Apache-2.0

// The contents of vehicle information.

#include <diagkit/memory/VehicleInfo.h>
#include <diagkit/query/ContentTable.h>

namespace NQuery {

#include <diagkit/query/ContentTables.def>

#include <diagkit/model/facts/VehicleInfo.def>

#include <diagkit/query/ContentTablesEnd.def>

} // namespace NQuery
