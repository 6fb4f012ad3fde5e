// SPDX-License-Identifier: Apache-2.0

// The tables of flash data.

#include <diagkit/memory/Flash.h>
#include <diagkit/reader/Facts.h>
#include <diagkit/reader/Literals.h>
#include <diagkit/reader/SpecialRows.h>

namespace NReader {

#include <diagkit/reader/Tables.def>

#include <diagkit/model/facts/Flash.def>

#include <diagkit/reader/TablesEnd.def>

} // namespace NReader
