// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Literals.h>
#include <diagkit/reader/RowParts.h>

// The eleven kinds of PARAM; requests and responses.

// clang-format off

namespace NReader {

using namespace NMemory;

/// What all kinds of PARAM begin with. Only LENGTH-KEY and TABLE-KEY must have an ID.
template <class T>
VElementType ParamTable(VOccurs id, std::vector<VAttributeRow> attributes, std::vector<VRow> rows, bool hasPosition = true) {
    using R = VRows<T>;
    std::vector<VAttributeRow> all = Join(IdentAttributes<T>(id), {R::template Attribute<&T::SetSemantic>("SEMANTIC")}, std::move(attributes));
    std::vector<VRow> children = NameRows<T>();
    if (hasPosition) {
        children = Join(std::move(children), {
            R::template Text<&T::SetBytePosition>("BYTE-POSITION", Optional, VContent::Uint),
            R::template Text<&T::SetBitPosition>("BIT-POSITION", Optional, VContent::Uint),
        });
    }
    VElementType type = Table(std::move(all), Join(std::move(children), std::move(rows)));
    type.addInstruction = [](void* object, std::wstring const& name, std::wstring const& content) {
        R::Owner(object).AddProcessingInstruction(name.c_str(), content.c_str());
    };
    return type;
}

VElementType const& TypeOf(VMemCodedConst*) {
    using T = VMemCodedConst;
    using R = VRows<T>;
    static VElementType const type = ParamTable<T>(Optional, {}, {
        R::Text<&T::SetCodedValue>("CODED-VALUE", Required),
        CodedTypeRow<T>(Required),
    });
    return type;
}

VElementType const& TypeOf(VMemDynamic*) {
    using T = VMemDynamic;
    static VElementType const type = ParamTable<T>(Optional, {}, {});
    return type;
}

VElementType const& TypeOf(VMemLengthKey*) {
    using T = VMemLengthKey;
    using R = VRows<T>;
    static VElementType const type = ParamTable<T>(Required, {}, {
        R::Link<&T::SetDataObjectPropLink>("DOP-REF", Required, 1),
        R::Snref<&T::SetDataObjectPropLink>("DOP-SNREF", Required, 1),
    });
    return type;
}

VElementType const& TypeOf(VMemMatchingRequestParam*) {
    using T = VMemMatchingRequestParam;
    using R = VRows<T>;
    static VElementType const type = ParamTable<T>(Optional, {}, {
        R::Text<&T::SetRequestBytePos>("REQUEST-BYTE-POS", Required, VContent::Int),
        R::Text<&T::SetByteLength>("BYTE-LENGTH", Required, VContent::Uint),
    });
    return type;
}

VElementType const& TypeOf(VMemPhysConst*) {
    using T = VMemPhysConst;
    using R = VRows<T>;
    static VElementType const type = ParamTable<T>(Optional, {}, {
        R::Text<&T::SetPhysConstantValue>("PHYS-CONSTANT-VALUE", Required),
        R::Link<&T::SetDataObjectPropLink>("DOP-REF", Required, 1),
        R::Snref<&T::SetDataObjectPropLink>("DOP-SNREF", Required, 1),
    });
    return type;
}

VElementType const& TypeOf(VMemReserved*) {
    using T = VMemReserved;
    using R = VRows<T>;
    static VElementType const type = ParamTable<T>(Optional, {}, {
        R::Text<&T::SetBitLength>("BIT-LENGTH", Required, VContent::Uint),
        R::Text<&T::SetCodedValue>("CODED-VALUE"),
        CodedTypeRow<T>(Optional),
    });
    return type;
}

VElementType const& TypeOf(VMemSystem*) {
    using T = VMemSystem;
    using R = VRows<T>;
    static VElementType const type = ParamTable<T>(Optional, {R::Attribute<&T::SetSysparam>("SYSPARAM", Required)}, {
        R::Link<&T::SetDataObjectPropLink>("DOP-REF", Required, 1),
        R::Snref<&T::SetDataObjectPropLink>("DOP-SNREF", Required, 1),
    });
    return type;
}

VElementType const& TypeOf(VMemTableKey*) {
    using T = VMemTableKey;
    using R = VRows<T>;
    static VElementType const type = ParamTable<T>(Required, {}, {
        R::Link<&T::SetTableRef>("TABLE-REF", Required, 1),
        R::Link<&T::SetTableRowRef>("TABLE-ROW-REF", Required, 1),
    });
    return type;
}

VElementType const& TypeOf(VMemTableStruct*) {
    using T = VMemTableStruct;
    using R = VRows<T>;
    static VElementType const type = ParamTable<T>(Optional, {}, {
        R::Link<&T::SetTableKeyRef>("TABLE-KEY-REF", Required),
    });
    return type;
}

// Later versions give a TABLE-ENTRY a position; in 2.0 it has none.
VElementType const& TypeOf(VMemTableEntry*) {
    using T = VMemTableEntry;
    using R = VRows<T>;
    static VElementType const type = ParamTable<T>(Optional, {}, {
        LiteralText<T, &T::SetTarget, &Mapper::GetRowFragmentStr>("TARGET", Required),
        R::Link<&T::SetTableRowRef>("TABLE-ROW-REF", Required),
        R::Text<&T::SetBytePosition>("BYTE-POSITION", Optional, VContent::Uint),
        R::Text<&T::SetBitPosition>("BIT-POSITION", Optional, VContent::Uint),
    }, false);
    return type;
}

VElementType const& TypeOf(VMemValue*) {
    using T = VMemValue;
    using R = VRows<T>;
    static VElementType const type = ParamTable<T>(Optional, {}, {
        R::Text<&T::SetPhysicalDefaultValue>("PHYSICAL-DEFAULT-VALUE"),
        R::Link<&T::SetDopBaseLink>("DOP-REF", Required, 1),
        R::Snref<&T::SetDopBaseLink>("DOP-SNREF", Required, 1),
    });
    return type;
}

VElementType const& TypeOf(VMemRequest*) {
    using T = VMemRequest;
    static VElementType const type = IdentTable<T>({}, {
        AdminDataRow<T>(),
        ParamsRow<T>(),
    });
    return type;
}

VElementType const& TypeOf(VMemPosResponse*) {
    using T = VMemPosResponse;
    static VElementType const type = IdentTable<T>({}, {
        AdminDataRow<T>(),
        ParamsRow<T>(),
    });
    return type;
}

VElementType const& TypeOf(VMemNegResponse*) {
    using T = VMemNegResponse;
    static VElementType const type = IdentTable<T>({}, {
        AdminDataRow<T>(),
        ParamsRow<T>(),
    });
    return type;
}

VElementType const& TypeOf(VMemGlobalNegResponse*) {
    using T = VMemGlobalNegResponse;
    static VElementType const type = IdentTable<T>({}, {
        AdminDataRow<T>(),
        ParamsRow<T>(),
    });
    return type;
}

} // namespace NReader

// clang-format on
