// SPDX-License-Identifier: Apache-2.0

// The tables of the data dictionary, and of references.

#include <diagkit/memory/Comparams.h>
#include <diagkit/memory/Dops.h>
#include <diagkit/reader/Facts.h>
#include <diagkit/reader/Literals.h>
#include <diagkit/reader/SpecialRows.h>

namespace NReader {

#include <diagkit/reader/Tables.def>

#include <diagkit/model/facts/Compu.def>
#include <diagkit/model/facts/Dops.def>
#include <diagkit/model/facts/Params.def>
#include <diagkit/model/facts/References.def>
#include <diagkit/model/facts/Tables.def>
#include <diagkit/model/facts/Units.def>

#include <diagkit/reader/TablesEnd.def>

} // namespace NReader
