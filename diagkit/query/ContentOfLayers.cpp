// SPDX-License-Identifier: Apache-2.0

// The contents of layers and of their elements.

#include <diagkit/memory/Comparams.h>
#include <diagkit/memory/Layers.h>
#include <diagkit/query/ContentTable.h>

namespace NQuery {

#include <diagkit/query/ContentTables.def>

#include <diagkit/model/facts/AdminData.def>
#include <diagkit/model/facts/Comparams.def>
#include <diagkit/model/facts/DiagComms.def>
#include <diagkit/model/facts/DiagVariables.def>
#include <diagkit/model/facts/Layers.def>
#include <diagkit/model/facts/ParentRefs.def>

#include <diagkit/query/ContentTablesEnd.def>

} // namespace NQuery
