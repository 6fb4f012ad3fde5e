// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/Children.h>
#include <diagkit/model/Tables.h>

/// References to tables and their rows.

namespace NMemory {

/// TABLE-REF, SELECTION-TABLE-REF
class VMemTableLink final : public VMemLink<NODX201::VTableLink, Tag::TableRef, NODX201::VTable> {
public:
    using VMemLink::VMemLink;
    bool HasTable() const override { return FindById(); }
    NODX201::VTable& GetTable() override { return Found(); }
};

/// TABLE-ROW-REF
class VMemTableRowLink final : public VMemLink<NODX201::VTableRowLink, Tag::TableRowRef, NODX201::VTableRow> {
public:
    using VMemLink::VMemLink;
    bool HasTableRow() const override { return FindById(); }
    NODX201::VTableRow& GetTableRow() override { return Found(); }
};

} // namespace NMemory
