// SPDX-License-Identifier: Apache-2.0

// The tables of layers and their contents.

#include <diagkit/memory/Layers.h>
#include <diagkit/reader/Facts.h>
#include <diagkit/reader/Literals.h>
#include <diagkit/reader/SpecialRows.h>

namespace NReader {

#include <diagkit/reader/Tables.def>

#include <diagkit/model/facts/AdminData.def>
#include <diagkit/model/facts/Comparams.def>
#include <diagkit/model/facts/DiagComms.def>
#include <diagkit/model/facts/DiagVariables.def>
#include <diagkit/model/facts/Layers.def>
#include <diagkit/model/facts/ParentRefs.def>

#include <diagkit/reader/TablesEnd.def>

} // namespace NReader
