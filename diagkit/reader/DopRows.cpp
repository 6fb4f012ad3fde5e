// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/RowParts.h>

// The data dictionary and the ten kinds of DOP.

// clang-format off

namespace NReader {

using namespace NMemory;

VElementType const& TypeOf(VMemDataObjectProp*) {
    using T = VMemDataObjectProp;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({}, {
        AdminDataRow<T>(),
        R::Child<&T::MakeCompuMethod>("COMPU-METHOD", Required),
        CodedTypeRow<T>(Required),
        R::Child<&T::MakePhysicalType>("PHYSICAL-TYPE", Required),
        R::Child<&T::MakeInternalConstr>("INTERNAL-CONSTR"),
        R::Link<&T::SetUnitRef>("UNIT-REF"),
    });
    return type;
}

// A DTC has neither LONG-NAME nor DESC.
VElementType const& TypeOf(VMemDtc*) {
    using T = VMemDtc;
    using R = VRows<T>;
    static VElementType const type = Table(IdentAttributes<T>(), {
        R::Text<&T::SetShortName>("SHORT-NAME", Required, VContent::Name),
        R::Text<&T::SetTroubleCode>("TROUBLE-CODE", Required, VContent::Int),
        R::Text<&T::SetDisplayTroubleCode>("DISPLAY-TROUBLE-CODE"),
        R::TextWithId<&T::SetText, &T::SetTextId>("TEXT", Required),
        R::Text<&T::SetLevel>("LEVEL", Optional, VContent::Uint),
        SdgsRow<T>(),
    });
    return type;
}

VElementType const& TypeOf(VMemDtcDop*) {
    using T = VMemDtcDop;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({R::Flag<&T::SetIsVisible>("IS-VISIBLE")}, {
        AdminDataRow<T>(),
        CodedTypeRow<T>(Required),
        R::Child<&T::MakePhysicalType>("PHYSICAL-TYPE", Required),
        R::Child<&T::MakeCompuMethod>("COMPU-METHOD", Required),
        R::Wrapper<&T::MakeDtcProxyCollection>("DTCS", Required, {R::Link<&T::AddDtcRef>("DTC-REF", Many), R::Item<&T::AddDtc>("DTC")}),
    });
    return type;
}

VElementType const& TypeOf(VMemStructure*) {
    using T = VMemStructure;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({R::Flag<&T::SetIsVisible>("IS-VISIBLE")}, {
        AdminDataRow<T>(),
        R::Text<&T::SetByteSize>("BYTE-SIZE", Optional, VContent::Uint),
        ParamsRow<T>(),
    });
    return type;
}

VElementType const& TypeOf(VMemAllValue*) {
    static VElementType const type = Table({}, {});
    return type;
}

VElementType const& TypeOf(VMemDtcValues*) {
    using T = VMemDtcValues;
    using R = VRows<T>;
    static VElementType const type = ListTable(Table({}, {
        R::Text<&T::AddValue>("DTC-VALUE", Many, VContent::Int),
    }));
    return type;
}

VElementType const& TypeOf(VMemEnvData*) {
    using T = VMemEnvData;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({}, {
        AdminDataRow<T>(),
        R::Text<&T::SetByteSize>("BYTE-SIZE", Optional, VContent::Uint),
        ParamsRow<T>(),
        R::Child<&T::MakeAllValue>("ALL-VALUE", Optional, 1),
        R::Child<&T::MakeDtcValues>("DTC-VALUES", Optional, 1),
    });
    return type;
}

VElementType const& TypeOf(VMemEnvDataDesc*) {
    using T = VMemEnvDataDesc;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({}, {
        AdminDataRow<T>(),
        R::Snref<&T::SetParamSnref>("PARAM-SNREF", Required),
        R::Wrapper<&T::MakeEnvDataProxyCollection>("ENV-DATAS", Required, {R::Link<&T::AddEnvDataRef>("ENV-DATA-REF", Many), R::Item<&T::AddEnvData>("ENV-DATA")}),
        R::Wrapper<&T::MakeEnvDataProxyCollection>("ENV-DATA-REFS", Optional, {R::Link<&T::AddEnvDataRef>("ENV-DATA-REF", Many)}),
    });
    return type;
}

// What the four kinds of field share comes before what is their own.
template <class T>
VElementType FieldTable(std::vector<VRow> own) {
    using R = VRows<T>;
    return IdentTable<T>({R::template Flag<&T::SetIsVisible>("IS-VISIBLE")}, Join<VRow>({
        AdminDataRow<T>(),
        R::template Link<&T::SetBasicStructureRef>("BASIC-STRUCTURE-REF", Required, 1),
        R::template Link<&T::SetEnvDataDescRef>("ENV-DATA-DESC-REF", Required, 1),
    }, std::move(own)));
}

template <class T>
VElementType PositionedDopTable() {
    using R = VRows<T>;
    return Table({}, {
        R::template Text<&T::SetBytePosition>("BYTE-POSITION", Required, VContent::Uint),
        R::template Text<&T::SetBitPosition>("BIT-POSITION", Optional, VContent::Uint),
        R::template Link<&T::SetDataObjectPropRef>("DATA-OBJECT-PROP-REF", Required),
    });
}

VElementType const& TypeOf(VMemStaticField*) {
    using T = VMemStaticField;
    using R = VRows<T>;
    static VElementType const type = FieldTable<T>({
        R::Text<&T::SetFixedNumberOfItems>("FIXED-NUMBER-OF-ITEMS", Required, VContent::Uint),
        R::Text<&T::SetItemByteSize>("ITEM-BYTE-SIZE", Required, VContent::Uint),
    });
    return type;
}

VElementType const& TypeOf(VMemDetermineNumberOfItems*) {
    using T = VMemDetermineNumberOfItems;
    static VElementType const type = PositionedDopTable<T>();
    return type;
}

VElementType const& TypeOf(VMemDynamicLengthField*) {
    using T = VMemDynamicLengthField;
    using R = VRows<T>;
    static VElementType const type = FieldTable<T>({
        R::Text<&T::SetOffset>("OFFSET", Required, VContent::Uint),
        R::Child<&T::MakeDetermineNumberOfItems>("DETERMINE-NUMBER-OF-ITEMS", Required),
    });
    return type;
}

VElementType const& TypeOf(VMemDynEndDopRef*) {
    using T = VMemDynEndDopRef;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Text<&T::SetTerminationValue>("TERMINATION-VALUE", Required),
    });
    return type;
}

// Some data writes DYN-END-DOP-REF, which is the name of the reference's type.
VElementType const& TypeOf(VMemDynamicEndmarkerField*) {
    using T = VMemDynamicEndmarkerField;
    using R = VRows<T>;
    static VElementType const type = FieldTable<T>({
        R::Link<&T::SetDataObjectPropRef>("DATA-OBJECT-PROP-REF", Required, 2),
        R::Link<&T::SetDataObjectPropRef>("DYN-END-DOP-REF", Required, 2),
    });
    return type;
}

VElementType const& TypeOf(VMemEndOfPduField*) {
    using T = VMemEndOfPduField;
    using R = VRows<T>;
    static VElementType const type = FieldTable<T>({
        R::Text<&T::SetMaxNumberOfItems>("MAX-NUMBER-OF-ITEMS", Optional, VContent::Uint),
        R::Text<&T::SetMinNumberOfItems>("MIN-NUMBER-OF-ITEMS", Optional, VContent::Uint),
    });
    return type;
}

VElementType const& TypeOf(VMemSwitchKey*) {
    using T = VMemSwitchKey;
    static VElementType const type = PositionedDopTable<T>();
    return type;
}

VElementType const& TypeOf(VMemDefaultCase*) {
    using T = VMemDefaultCase;
    using R = VRows<T>;
    static VElementType const type = NamedTable<T>({}, {
        R::Link<&T::SetStructureRef>("STRUCTURE-REF"),
    });
    return type;
}

VElementType const& TypeOf(VMemCase*) {
    using T = VMemCase;
    using R = VRows<T>;
    static VElementType const type = NamedTable<T>({}, {
        R::Link<&T::SetStructureRef>("STRUCTURE-REF"),
        R::Child<&T::MakeLowerLimit>("LOWER-LIMIT", Required),
        R::Child<&T::MakeUpperLimit>("UPPER-LIMIT", Required),
    });
    return type;
}

VElementType const& TypeOf(VMemMux*) {
    using T = VMemMux;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({R::Flag<&T::SetIsVisible>("IS-VISIBLE")}, {
        AdminDataRow<T>(),
        R::Text<&T::SetBytePosition>("BYTE-POSITION", Required, VContent::Uint),
        R::Child<&T::MakeSwitchKey>("SWITCH-KEY", Required),
        R::Child<&T::MakeDefaultCase>("DEFAULT-CASE"),
        R::Wrapper<&T::MakeCaseCollection>("CASES", Optional, {R::Item<&T::AddCase>("CASE")}),
    });
    return type;
}

VElementType const& TypeOf(VMemDiagDataDictionarySpec*) {
    using T = VMemDiagDataDictionarySpec;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        AdminDataRow<T>(),
        R::Wrapper<&T::MakeDopBaseCollection>("DTC-DOPS", Optional, {R::Item<&T::AddDtcDop>("DTC-DOP")}),
        R::Wrapper<&T::MakeDopBaseCollection>("ENV-DATA-DESCS", Optional, {R::Item<&T::AddEnvDataDesc>("ENV-DATA-DESC")}),
        R::Wrapper<&T::MakeDopBaseCollection>("DATA-OBJECT-PROPS", Optional, {R::Item<&T::AddDataObjectProp>("DATA-OBJECT-PROP")}),
        R::Wrapper<&T::MakeDopBaseCollection>("STRUCTURES", Optional, {R::Item<&T::AddStructure>("STRUCTURE")}),
        R::Wrapper<&T::MakeDopBaseCollection>("STATIC-FIELDS", Optional, {R::Item<&T::AddStaticField>("STATIC-FIELD")}),
        R::Wrapper<&T::MakeDopBaseCollection>("DYNAMIC-LENGTH-FIELDS", Optional, {R::Item<&T::AddDynamicLengthField>("DYNAMIC-LENGTH-FIELD")}),
        R::Wrapper<&T::MakeDopBaseCollection>("DYNAMIC-ENDMARKER-FIELDS", Optional, {R::Item<&T::AddDynamicEndmarkerField>("DYNAMIC-ENDMARKER-FIELD")}),
        R::Wrapper<&T::MakeDopBaseCollection>("END-OF-PDU-FIELDS", Optional, {R::Item<&T::AddEndOfPduField>("END-OF-PDU-FIELD")}),
        R::Wrapper<&T::MakeDopBaseCollection>("MUXS", Optional, {R::Item<&T::AddMux>("MUX")}),
        R::Wrapper<&T::MakeEnvDataProxyCollection>("ENV-DATAS", Optional, {R::Link<&T::AddEnvDataRef>("ENV-DATA-REF", Many), R::Item<&T::AddEnvData>("ENV-DATA")}),
        R::Child<&T::MakeUnitSpec>("UNIT-SPEC"),
        R::Wrapper<&T::MakeTableCollection>("TABLES", Optional, {R::Item<&T::AddTable>("TABLE")}),
    });
    return type;
}

} // namespace NReader

// clang-format on
