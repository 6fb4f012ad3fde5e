// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Literals.h>
#include <diagkit/reader/RowParts.h>

// COMPU-METHOD, coded and physical types, constraints.

// clang-format off

namespace NReader {

using namespace NMemory;

VElementType const& TypeOf(VMemLimit*) {
    using T = VMemLimit;
    static VElementType const type = TextTable<T, &T::SetText>({LiteralAttribute<T, &T::SetIntervalType, &Mapper::GetIntervalTypeStr>("INTERVAL-TYPE")});
    return type;
}

VElementType const& TypeOf(VMemVt*) {
    using T = VMemVt;
    using R = VRows<T>;
    static VElementType const type = TextTable<T, &T::SetText>({R::Attribute<&T::SetTextId>("TI")});
    return type;
}

VElementType const& TypeOf(VMemCompuConst*) {
    using T = VMemCompuConst;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Text<&T::SetV>("V", Required, VContent::Double, nullptr, 1),
        R::Child<&T::MakeVt>("VT", Required, 1),
    });
    return type;
}

VElementType const& TypeOf(VMemCompuDefaultValue*) {
    using T = VMemCompuDefaultValue;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Text<&T::SetV>("V", Required, VContent::Double, nullptr, 1),
        R::Child<&T::MakeVt>("VT", Required, 1),
    });
    return type;
}

VElementType const& TypeOf(VMemCompuInverseValue*) {
    using T = VMemCompuInverseValue;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Text<&T::SetV>("V", Required, VContent::Double, nullptr, 1),
        R::Child<&T::MakeVt>("VT", Optional, 1),
    });
    return type;
}

VElementType const& TypeOf(VMemCompuRationalCoeffs*) {
    using T = VMemCompuRationalCoeffs;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::PlainWrapper("COMPU-NUMERATOR", Required, {R::Text<&T::AddNumerator>("V", Many, VContent::Double)}),
        R::PlainWrapper("COMPU-DENOMINATOR", Optional, {R::Text<&T::AddDenominator>("V", Many, VContent::Double)}),
    });
    return type;
}

VElementType const& TypeOf(VMemCompuScale*) {
    using T = VMemCompuScale;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Text<&T::SetShortLabel>("SHORT-LABEL"),
        R::Markup<&T::SetDesc>("DESC"),
        R::Child<&T::MakeLowerLimit>("LOWER-LIMIT"),
        R::Child<&T::MakeUpperLimit>("UPPER-LIMIT"),
        R::Child<&T::MakeCompuInverseValue>("COMPU-INVERSE-VALUE"),
        R::Child<&T::MakeCompuConst>("COMPU-CONST", Required, 1),
        R::Child<&T::MakeCompuRationalCoeffs>("COMPU-RATIONAL-COEFFS", Required, 1),
    });
    return type;
}

VElementType const& TypeOf(VMemCompuScales*) {
    using T = VMemCompuScales;
    using R = VRows<T>;
    static VElementType const type = ListTable(Table({}, {
        R::Item<&T::AddCompuScale>("COMPU-SCALE"),
    }));
    return type;
}

VElementType const& TypeOf(VMemCompuInternalToPhys*) {
    using T = VMemCompuInternalToPhys;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Child<&T::MakeCompuScales>("COMPU-SCALES", Required, 1),
        R::Child<&T::MakeProgCode>("PROG-CODE", Required, 1),
        R::Child<&T::MakeCompuDefaultValue>("COMPU-DEFAULT-VALUE"),
    });
    return type;
}

VElementType const& TypeOf(VMemCompuPhysToInternal*) {
    using T = VMemCompuPhysToInternal;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Child<&T::MakeProgCode>("PROG-CODE", Required),
    });
    return type;
}

VElementType const& TypeOf(VMemCompuMethod*) {
    using T = VMemCompuMethod;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        LiteralText<T, &T::SetCategory, &Mapper::GetCompuCategoryStr>("CATEGORY", Required),
        R::Child<&T::MakeCompuInternalToPhys>("COMPU-INTERNAL-TO-PHYS"),
        R::Child<&T::MakeCompuPhysToInternal>("COMPU-PHYS-TO-INTERNAL"),
    });
    return type;
}

VElementType const& TypeOf(VMemScaleConstr*) {
    using T = VMemScaleConstr;
    using R = VRows<T>;
    static VElementType const type = Table({LiteralAttribute<T, &T::SetValidity, &Mapper::GetValidTypeStr>("VALIDITY", Required)}, {
        R::Text<&T::SetShortLabel>("SHORT-LABEL"),
        R::Markup<&T::SetDesc>("DESC"),
        R::Child<&T::MakeLowerLimit>("LOWER-LIMIT", Required),
        R::Child<&T::MakeUpperLimit>("UPPER-LIMIT", Required),
    });
    return type;
}

VElementType const& TypeOf(VMemInternalConstr*) {
    using T = VMemInternalConstr;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Child<&T::MakeLowerLimit>("LOWER-LIMIT"),
        R::Child<&T::MakeUpperLimit>("UPPER-LIMIT"),
        R::Wrapper<&T::MakeScaleConstrCollection>("SCALE-CONSTRS", Optional, {R::Item<&T::AddScaleConstr>("SCALE-CONSTR")}),
    });
    return type;
}

VElementType const& TypeOf(VMemPhysicalType*) {
    using T = VMemPhysicalType;
    using R = VRows<T>;
    static VElementType const type = Table({
        LiteralAttribute<T, &T::SetBaseDataType, &Mapper::GetPhysicalDataTypeStr>("BASE-DATA-TYPE", Required),
        LiteralAttribute<T, &T::SetDisplayRadix, &Mapper::GetRadixStr>("DISPLAY-RADIX"),
    }, {
        R::Text<&T::SetPrecision>("PRECISION", Optional, VContent::Uint),
    });
    return type;
}

/// The attributes that the four kinds of DIAG-CODED-TYPE share.
template <class T>
std::vector<VAttributeRow> CodedTypeAttributes() {
    using R = VRows<T>;
    return {
        LiteralAttribute<T, &T::SetBaseTypeEncoding, &Mapper::GetEncodingStr>("BASE-TYPE-ENCODING"),
        LiteralAttribute<T, &T::SetBaseDataType, &Mapper::GetDataTypeStr>("BASE-DATA-TYPE", Required),
        R::template Flag<&T::SetIsHighlowByteOrder>("IS-HIGHLOW-BYTE-ORDER"),
    };
}

VElementType const& TypeOf(VMemStandardLengthType*) {
    using T = VMemStandardLengthType;
    using R = VRows<T>;
    static VElementType const type = Table(CodedTypeAttributes<T>(), {
        R::Text<&T::SetBitLength>("BIT-LENGTH", Required, VContent::Uint),
        R::Text<&T::SetBitMask>("BIT-MASK", Optional, VContent::Hex),
    });
    return type;
}

VElementType const& TypeOf(VMemLeadingLengthInfoType*) {
    using T = VMemLeadingLengthInfoType;
    using R = VRows<T>;
    static VElementType const type = Table(CodedTypeAttributes<T>(), {
        R::Text<&T::SetBitLength>("BIT-LENGTH", Required, VContent::Uint),
    });
    return type;
}

VElementType const& TypeOf(VMemMinMaxLengthType*) {
    using T = VMemMinMaxLengthType;
    using R = VRows<T>;
    static VElementType const type = Table(Join(CodedTypeAttributes<T>(), std::vector<VAttributeRow>{LiteralAttribute<T, &T::SetTermination, &Mapper::GetTerminationStr>("TERMINATION", Required)}), {
        R::Text<&T::SetMaxLength>("MAX-LENGTH", Optional, VContent::Uint),
        R::Text<&T::SetMinLength>("MIN-LENGTH", Required, VContent::Uint),
    });
    return type;
}

VElementType const& TypeOf(VMemParamLengthInfoType*) {
    using T = VMemParamLengthInfoType;
    using R = VRows<T>;
    static VElementType const type = Table(CodedTypeAttributes<T>(), {
        R::Link<&T::SetLengthKeyRef>("LENGTH-KEY-REF", Required),
    });
    return type;
}

VElementType const& TypeOf(VMemProgCode*) {
    using T = VMemProgCode;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Text<&T::SetCodeFile>("CODE-FILE", Required, VContent::Name),
        R::Text<&T::SetEncryption>("ENCRYPTION"),
        R::Text<&T::SetSyntax>("SYNTAX", Required),
        R::Text<&T::SetRevision>("REVISION", Required),
        R::Text<&T::SetEntrypoint>("ENTRYPOINT"),
    });
    return type;
}

} // namespace NReader

// clang-format on
