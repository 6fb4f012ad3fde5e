// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Literals.h>
#include <diagkit/reader/RowParts.h>

// Units and tables.

// clang-format off

namespace NReader {

using namespace NMemory;

VElementType const& TypeOf(VMemPhysicalDimension*) {
    using T = VMemPhysicalDimension;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({}, {
        R::Text<&T::SetLengthExp>("LENGTH-EXP", Optional, VContent::Int),
        R::Text<&T::SetMassExp>("MASS-EXP", Optional, VContent::Int),
        R::Text<&T::SetTimeExp>("TIME-EXP", Optional, VContent::Int),
        R::Text<&T::SetCurrentExp>("CURRENT-EXP", Optional, VContent::Int),
        R::Text<&T::SetTemperatureExp>("TEMPERATURE-EXP", Optional, VContent::Int),
        R::Text<&T::SetMolarAmountExp>("MOLAR-AMOUNT-EXP", Optional, VContent::Int),
        R::Text<&T::SetLuminousIntensityExp>("LUMINOUS-INTENSITY-EXP", Optional, VContent::Int),
    });
    return type;
}

VElementType const& TypeOf(VMemUnit*) {
    using T = VMemUnit;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({}, {
        R::Text<&T::SetDisplayName>("DISPLAY-NAME", Required),
        R::Text<&T::SetFactorSiToUnit>("FACTOR-SI-TO-UNIT", Optional, VContent::Double),
        R::Text<&T::SetOffsetSiToUnit>("OFFSET-SI-TO-UNIT", Optional, VContent::Double),
        R::Link<&T::SetPhysicalDimensionRef>("PHYSICAL-DIMENSION-REF"),
    });
    return type;
}

VElementType const& TypeOf(VMemUnitGroup*) {
    using T = VMemUnitGroup;
    using R = VRows<T>;
    static VElementType const type = NamedTable<T>({R::Attribute<&T::SetOid>("OID")}, {
        LiteralText<T, &T::SetCategory, &Mapper::GetUnitGroupCategoryStr>("CATEGORY", Required),
        R::Wrapper<&T::MakeUnitLinkCollection>("UNIT-REFS", Optional, {R::Link<&T::AddUnitRef>("UNIT-REF", Many)}),
    });
    return type;
}

VElementType const& TypeOf(VMemUnitSpec*) {
    using T = VMemUnitSpec;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        AdminDataRow<T>(),
        R::Wrapper<&T::MakeUnitGroupCollection>("UNIT-GROUPS", Optional, {R::Item<&T::AddUnitGroup>("UNIT-GROUP")}),
        R::Wrapper<&T::MakeUnitCollection>("UNITS", Optional, {R::Item<&T::AddUnit>("UNIT")}),
        R::Wrapper<&T::MakePhysicalDimensionCollection>("PHYSICAL-DIMENSIONS", Optional, {R::Item<&T::AddPhysicalDimension>("PHYSICAL-DIMENSION")}),
    });
    return type;
}

VElementType const& TypeOf(VMemTableRow*) {
    using T = VMemTableRow;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({}, {
        R::Text<&T::SetKey>("KEY", Required),
        R::Link<&T::SetStructureRef>("STRUCTURE-REF", Required),
    });
    return type;
}

VElementType const& TypeOf(VMemTable*) {
    using T = VMemTable;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({R::Attribute<&T::SetSemantic>("SEMANTIC")}, {
        R::Text<&T::SetKeyLabel>("KEY-LABEL"),
        R::Text<&T::SetStructLabel>("STRUCT-LABEL"),
        AdminDataRow<T>(),
        R::Link<&T::SetKeyDopRef>("KEY-DOP-REF"),
        R::Link<&T::AddTableRowRef>("TABLE-ROW-REF", Many),
        R::Item<&T::AddTableRow>("TABLE-ROW"),
    });
    return type;
}

} // namespace NReader

// clang-format on
