// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Collections.h>
#include <diagkit/model/Reference.h>

/// Conversion between coded and physical values, and the types and constraints of both.

namespace NODX201 {

/// LOWER-LIMIT and UPPER-LIMIT
class DIAGKIT_EXPORT VLimit : public VOdxElement {
public:
    /// @INTERVAL-TYPE
    enum class VIntervalType : int { Open = 0, Closed, Infinite };

    ~VLimit() override;
};

/// COMPU-METHOD
class DIAGKIT_EXPORT VCompuMethod : public VOdxElement {
public:
    /// CATEGORY
    enum class VCompuCategory : int {
        Identical = 0,
        Linear,
        ScaleLinear,
        Texttable,
        Compucode,
        TabIntp,
        RatFunc,
        ScaleRatFunc
    };

    ~VCompuMethod() override;
    virtual bool HasCompuInternalToPhys() const = 0;
    virtual VCompuInternalToPhys& GetCompuInternalToPhys() = 0;
    virtual bool HasCompuPhysToInternal() const = 0;
    virtual VCompuPhysToInternal& GetCompuPhysToInternal() = 0;
};

/// COMPU-INTERNAL-TO-PHYS
class DIAGKIT_EXPORT VCompuInternalToPhys : public VOdxElement {
public:
    ~VCompuInternalToPhys() override;
    virtual bool HasCompuScalesProgCodeChoice() const = 0;
    virtual ICompuScalesProgCodeChoice& GetCompuScalesProgCodeChoice() = 0;
    virtual bool HasCompuDefaultValue() const = 0;
    virtual VCompuDefaultValue& GetCompuDefaultValue() = 0;
};

/// COMPU-PHYS-TO-INTERNAL
class DIAGKIT_EXPORT VCompuPhysToInternal : public VOdxElement {
public:
    ~VCompuPhysToInternal() override;
    virtual bool HasProgCode() const = 0;
    virtual VProgCode& GetProgCode() = 0;
};

/// What a scale yields: a constant or a rational function.
class DIAGKIT_EXPORT ICompuConstCompuRationalCoeffsChoice {
public:
    virtual bool IsCompuConst() const = 0;          ///< castable to `VCompuConst`
    virtual bool IsCompuRationalCoeffs() const = 0; ///< castable to `VCompuRationalCoeffs`

protected:
    ICompuConstCompuRationalCoeffsChoice() = default;
    ~ICompuConstCompuRationalCoeffsChoice() = default;
};

/// COMPU-SCALE
class DIAGKIT_EXPORT VCompuScale : public VOdxElement {
public:
    ~VCompuScale() override;
    virtual bool HasLowerLimit() const = 0;
    virtual VLimit& GetLowerLimit() = 0;
    virtual bool HasUpperLimit() const = 0;
    virtual VLimit& GetUpperLimit() = 0;
    virtual bool HasCompuInverseValue() const = 0;
    virtual VCompuInverseValue& GetCompuInverseValue() = 0;
    virtual bool HasCompuConstCompuRationalCoeffsChoice() const = 0;
    virtual ICompuConstCompuRationalCoeffsChoice& GetCompuConstCompuRationalCoeffsChoice() = 0;
};

/// COMPU-CONST
class DIAGKIT_EXPORT VCompuConst : public VOdxElement, public ICompuConstCompuRationalCoeffsChoice {
public:
    ~VCompuConst() override;
    bool IsCompuConst() const final { return true; }
    bool IsCompuRationalCoeffs() const final { return false; }
    virtual bool HasVt() const = 0;
    virtual VVt& GetVt() = 0;
};

/// COMPU-RATIONAL-COEFFS
class DIAGKIT_EXPORT VCompuRationalCoeffs : public VOdxElement, public ICompuConstCompuRationalCoeffsChoice {
public:
    ~VCompuRationalCoeffs() override;
    bool IsCompuConst() const final { return false; }
    bool IsCompuRationalCoeffs() const final { return true; }
};

/// COMPU-DEFAULT-VALUE
class DIAGKIT_EXPORT VCompuDefaultValue : public VOdxElement {
public:
    ~VCompuDefaultValue() override;
    virtual bool HasVt() const = 0;
    virtual VVt& GetVt() = 0;
};

/// COMPU-INVERSE-VALUE
class DIAGKIT_EXPORT VCompuInverseValue : public VOdxElement {
public:
    ~VCompuInverseValue() override;
};

/// INTERNAL-CONSTR
class DIAGKIT_EXPORT VInternalConstr : public VOdxElement {
public:
    ~VInternalConstr() override;
    virtual bool HasLowerLimit() const = 0;
    virtual VLimit& GetLowerLimit() = 0;
    virtual bool HasUpperLimit() const = 0;
    virtual VLimit& GetUpperLimit() = 0;
    virtual VScaleConstrCollection& ScaleConstrCollection() = 0;
};

/// SCALE-CONSTR
class DIAGKIT_EXPORT VScaleConstr : public VOdxElement {
public:
    /// @VALIDITY
    enum class VValidType : int { Valid = 0, NotValid, NotDefined, NotAvailable };

    ~VScaleConstr() override;
    virtual bool HasLowerLimit() const = 0;
    virtual VLimit& GetLowerLimit() = 0;
    virtual bool HasUpperLimit() const = 0;
    virtual VLimit& GetUpperLimit() = 0;
};

/// DIAG-CODED-TYPE: the coding of a value in the message. Its four kinds are distinguished in XML by xsi:type.
class DIAGKIT_EXPORT VDiagCodedType : public VOdxElement {
public:
    /// @BASE-DATA-TYPE
    enum class VDataType : int {
        AInt32 = 0,
        AUint32,
        AFloat32,
        AFloat64,
        AAsciistring,
        AUtf8string,
        AUnicode2string,
        ABytefield
    };

    /// @BASE-TYPE-ENCODING
    enum class VEncoding : int {
        BcdP = 0,
        BcdUp,
        OnesComplement,
        TwosComplement,
        SignMagnitude,
        Utf8,
        Ucs2,
        Iso88591,
        Iso88592,
        Windows1252,
        None
    };

    ~VDiagCodedType() override;
};

/// DIAG-CODED-TYPE of xsi:type STANDARD-LENGTH-TYPE
class DIAGKIT_EXPORT VStandardLengthType : public VDiagCodedType {
public:
    ~VStandardLengthType() override;
};

/// DIAG-CODED-TYPE of xsi:type LEADING-LENGTH-INFO-TYPE
class DIAGKIT_EXPORT VLeadingLengthInfoType : public VDiagCodedType {
public:
    ~VLeadingLengthInfoType() override;
};

/// DIAG-CODED-TYPE of xsi:type MIN-MAX-LENGTH-TYPE
class DIAGKIT_EXPORT VMinMaxLengthType : public VDiagCodedType {
public:
    /// @TERMINATION
    enum class VTermination : int { EndOfPdu = 0, Zero, HexFf };

    ~VMinMaxLengthType() override;
};

/// DIAG-CODED-TYPE of xsi:type PARAM-LENGTH-INFO-TYPE
class DIAGKIT_EXPORT VParamLengthInfoType : public VDiagCodedType {
public:
    ~VParamLengthInfoType() override;
};

/// PHYSICAL-TYPE
class DIAGKIT_EXPORT VPhysicalType : public VOdxElement {
public:
    /// @BASE-DATA-TYPE
    enum class VPhysicalDataType : int { AInt32 = 0, AUint32, AFloat32, AFloat64, AUnicode2string, ABytefield };

    /// @DISPLAY-RADIX
    enum class VRadix : int { Hex = 0, Dec, Bin, Oct };

    ~VPhysicalType() override;
};

} // namespace NODX201
