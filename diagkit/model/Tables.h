// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Collections.h>
#include <diagkit/model/Params.h>
#include <diagkit/model/Reference.h>

/// Tables: rows of structures, selected by a key.

namespace NODX201 {

/// An entry of a TABLE: exactly one test is true, and the entry is castable to that class.
class DIAGKIT_EXPORT IRowWrapper {
public:
    virtual bool IsTableRowLink() const = 0;
    virtual bool IsTableRow() const = 0;

protected:
    IRowWrapper() = default;
    ~IRowWrapper() = default;
};

/// TABLE
class DIAGKIT_EXPORT VTable : public VReferencable {
public:
    ~VTable() override;
    virtual bool HasAdminData() const = 0;
    virtual VAdminData& GetAdminData() = 0;
    virtual bool HasKeyDopRef() const = 0;
    virtual VDataObjectPropLink& GetKeyDopRef() = 0;
    virtual VRowWrapperCollection& RowWrapperCollection() = 0;
};

/// TABLE-ROW
class DIAGKIT_EXPORT VTableRow : public VReferencable, public IRowWrapper {
public:
    ~VTableRow() override;
    bool IsTableRowLink() const final { return false; }
    bool IsTableRow() const final { return true; }
    virtual bool HasStructureRef() const = 0;
    virtual VStructureLink& GetStructureRef() = 0;
};

/// TABLE-REF and SELECTION-TABLE-REF
class DIAGKIT_EXPORT VTableLink : public VLink, public ITableRefTableRowRefChoice {
public:
    ~VTableLink() override;
    bool IsTableLink() const final { return true; }
    bool IsTableRowLink() const final { return false; }
    virtual bool HasTable() const = 0;
    virtual VTable& GetTable() = 0;
};

/// TABLE-ROW-REF
class DIAGKIT_EXPORT VTableRowLink : public VLink, public ITableRefTableRowRefChoice, public IRowWrapper {
public:
    ~VTableRowLink() override;
    bool IsTableLink() const final { return false; }
    bool IsTableRowLink() const final { return true; }
    bool IsTableRow() const final { return false; }
    virtual bool HasTableRow() const = 0;
    virtual VTableRow& GetTableRow() = 0;
};

} // namespace NODX201
