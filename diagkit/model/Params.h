// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Collections.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/model/Reference.h>

/// The eleven kinds of PARAM, distinguished in XML by xsi:type.

namespace NODX201 {

/// PARAM
class DIAGKIT_EXPORT VParam : public VReferencable {
public:
    ~VParam() override;

    /// Calls back the Visit operation of the parameter's kind, exactly once.
    virtual void Accept(VParamVisitor& visitor) = 0;

    /// The processing instructions directly inside the PARAM.
    virtual VProcessingInstructionCollection& ProcessingInstructionCollection() = 0;
};

/// PARAM of xsi:type CODED-CONST
class DIAGKIT_EXPORT VCodedConst : public VParam {
public:
    ~VCodedConst() override;
    virtual bool HasDiagCodedType() const = 0;
    virtual VDiagCodedType& GetDiagCodedType() = 0;
};

/// PARAM of xsi:type DYNAMIC
class DIAGKIT_EXPORT VDynamic : public VParam {
public:
    ~VDynamic() override;
};

/// PARAM of xsi:type LENGTH-KEY
class DIAGKIT_EXPORT VLengthKey : public VParam {
public:
    ~VLengthKey() override;
    virtual bool HasDataObjectPropLink() const = 0;
    virtual VDataObjectPropLink& GetDataObjectPropLink() = 0;
};

/// PARAM of xsi:type MATCHING-REQUEST-PARAM
class DIAGKIT_EXPORT VMatchingRequestParam : public VParam {
public:
    ~VMatchingRequestParam() override;
};

/// PARAM of xsi:type PHYS-CONST
class DIAGKIT_EXPORT VPhysConst : public VParam {
public:
    ~VPhysConst() override;
    virtual bool HasDataObjectPropLink() const = 0;
    virtual VDataObjectPropLink& GetDataObjectPropLink() = 0;
};

/// PARAM of xsi:type RESERVED
class DIAGKIT_EXPORT VReserved : public VParam {
public:
    ~VReserved() override;
    virtual bool HasDiagCodedType() const = 0;
    virtual VDiagCodedType& GetDiagCodedType() = 0;
};

/// PARAM of xsi:type SYSTEM
class DIAGKIT_EXPORT VSystem : public VParam {
public:
    ~VSystem() override;
    virtual bool HasDataObjectPropLink() const = 0;
    virtual VDataObjectPropLink& GetDataObjectPropLink() = 0;
};

/// The target of a TABLE-KEY: a whole table or one row.
class DIAGKIT_EXPORT ITableRefTableRowRefChoice {
public:
    virtual bool IsTableLink() const = 0;    ///< castable to `VTableLink`
    virtual bool IsTableRowLink() const = 0; ///< castable to `VTableRowLink`

protected:
    ITableRefTableRowRefChoice() = default;
    ~ITableRefTableRowRefChoice() = default;
};

/// PARAM of xsi:type TABLE-KEY
class DIAGKIT_EXPORT VTableKey : public VParam {
public:
    ~VTableKey() override;
    virtual bool HasTableRefTableRowRefChoice() const = 0;
    virtual ITableRefTableRowRefChoice& GetTableRefTableRowRefChoice() = 0;
};

/// TABLE-KEY-REF
class DIAGKIT_EXPORT VTableKeyLink : public VLink {
public:
    ~VTableKeyLink() override;
    virtual bool HasTableKey() const = 0;
    virtual VTableKey& GetTableKey() = 0;
};

/// PARAM of xsi:type TABLE-STRUCT
class DIAGKIT_EXPORT VTableStruct : public VParam {
public:
    ~VTableStruct() override;
    virtual bool HasTableKeyRef() const = 0;
    virtual VTableKeyLink& GetTableKeyRef() = 0;
};

/// PARAM of xsi:type TABLE-ENTRY
class DIAGKIT_EXPORT VTableEntry : public VParam {
public:
    /// TARGET
    enum class VRowFragment : int { Key = 0, Struct, KeyAndStruct };

    ~VTableEntry() override;
    virtual bool HasTableRowRef() const = 0;
    virtual VTableRowLink& GetTableRowRef() = 0;
};

/// PARAM of xsi:type VALUE: the only kind that short names of input and output parameters may refer to.
class DIAGKIT_EXPORT VValue : public VParam, public IInParamIf, public IOutParamIf {
public:
    ~VValue() override;
    bool IsValue() const final { return true; }
    bool IsInputParam() const final { return false; }
    bool IsOutputParam() const final { return false; }
    virtual bool HasDopBaseLink() const = 0;
    virtual VDopBaseLink& GetDopBaseLink() = 0;
};

} // namespace NODX201
