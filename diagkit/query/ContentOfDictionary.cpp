// SPDX-License-Identifier: Apache-2.0

// The contents of the data dictionary, messages and references.

#include <diagkit/memory/Comparams.h>
#include <diagkit/memory/Dops.h>
#include <diagkit/query/ContentTable.h>

namespace NQuery {

#include <diagkit/query/ContentTables.def>

#include <diagkit/model/facts/Compu.def>
#include <diagkit/model/facts/Dops.def>
#include <diagkit/model/facts/Params.def>
#include <diagkit/model/facts/References.def>
#include <diagkit/model/facts/Tables.def>
#include <diagkit/model/facts/Units.def>

#include <diagkit/query/ContentTablesEnd.def>

} // namespace NQuery
