// SPDX-License-Identifier: Apache-2.0

// The contents of flash data.

#include <diagkit/memory/Flash.h>
#include <diagkit/query/ContentTable.h>

namespace NQuery {
namespace {

/// DATAFILE is a text with a required attribute.
void LateboundOfDatafile(NODX201::VOdxElement& owner, VContentRow const& row, IPartSink& sink) {
    auto const& flashdata = static_cast<NMemory::VMemFlashdata const&>(owner);
    if (*flashdata.GetDatafile() != L'\0') {
        EmitText(sink, VPartRole::Attribute, row.tag, row.wrapper, flashdata.IsLatebound() ? L"true" : L"false");
    }
}

} // namespace

#include <diagkit/query/ContentTables.def>

#include <diagkit/model/facts/Flash.def>

#include <diagkit/query/ContentTablesEnd.def>

} // namespace NQuery
