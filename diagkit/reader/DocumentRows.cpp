// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Literals.h>
#include <diagkit/reader/Loader.h>
#include <diagkit/reader/RowParts.h>

// The root, the categories and communication parameters.

// clang-format off

namespace NReader {

using namespace NMemory;

VElementType const& TypeOf(VMemComparamRef*) {
    using T = VMemComparamRef;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Text<&T::SetValue>("VALUE", Required, VContent::Text, nullptr, 1),
        R::Text<&T::SetValue>("SIMPLE-VALUE", Optional, VContent::Text, nullptr, 1),
        R::Markup<&T::SetDesc>("DESC"),
        R::Snref<&T::SetProtocolSnref>("PROTOCOL-SNREF"),
    });
    return type;
}

VElementType const& TypeOf(VMemComparam*) {
    using T = VMemComparam;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({
        R::Attribute<&T::SetParamClass>("PARAM-CLASS", Required),
        LiteralAttribute<T, &T::SetCptype, &Mapper::GetStandardisationLevelStr>("CPTYPE", Required),
        R::Attribute<&T::SetDisplayLevel>("DISPLAY-LEVEL", Required, VContent::Uint),
        R::Attribute<&T::SetPduApiIndex>("PDU-API-INDEX", Optional, VContent::Uint),
    }, {
        R::Text<&T::SetPhysicalDefaultValue>("PHYSICAL-DEFAULT-VALUE", Required),
        R::Link<&T::SetDataObjectPropRef>("DATA-OBJECT-PROP-REF", Required),
    });
    return type;
}

VElementType const& TypeOf(VMemComparamSpec*) {
    using T = VMemComparamSpec;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({}, {
        AdminDataRow<T>(),
        CompanyDatasRow<T>(),
        R::Wrapper<&T::MakeComparamCollection>("COMPARAMS", Optional, {R::Item<&T::AddComparam>("COMPARAM")}),
        R::Wrapper<&T::MakeDataObjectPropCollection>("DATA-OBJECT-PROPS", Optional, {R::Item<&T::AddDataObjectProp>("DATA-OBJECT-PROP")}),
        R::Child<&T::MakeUnitSpec>("UNIT-SPEC"),
    });
    return type;
}

VElementType const& TypeOf(VMemMultipleEcuJobSpec*) {
    using T = VMemMultipleEcuJobSpec;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({}, {
        AdminDataRow<T>(),
        CompanyDatasRow<T>(),
        R::Wrapper<&T::MakeMultipleEcuJobCollection>("MULTIPLE-ECU-JOBS", Optional, {R::Item<&T::AddMultipleEcuJob>("MULTIPLE-ECU-JOB")}),
        Appending(R::Child<&T::MakeDiagDataDictionarySpec>("DIAG-DATA-DICTIONARY-SPEC")),
        FunctClassesRow<T>(),
    });
    return type;
}

VElementType const& TypeOf(VMemDiagLayerContainer*) {
    using T = VMemDiagLayerContainer;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({}, {
        AdminDataRow<T>(),
        CompanyDatasRow<T>(),
        R::PlainWrapper("PROTOCOLS", Optional, {R::Item<&T::AddProtocol>("PROTOCOL")}),
        R::PlainWrapper("FUNCTIONAL-GROUPS", Optional, {R::Item<&T::AddFunctionalGroup>("FUNCTIONAL-GROUP")}),
        R::PlainWrapper("ECU-SHARED-DATAS", Optional, {R::Item<&T::AddEcuSharedData>("ECU-SHARED-DATA")}),
        R::PlainWrapper("BASE-VARIANTS", Optional, {R::Item<&T::AddBaseVariant>("BASE-VARIANT")}),
        R::PlainWrapper("ECU-VARIANTS", Optional, {R::Item<&T::AddEcuVariant>("ECU-VARIANT")}),
    });
    return type;
}

template <class Category>
VOpened OpenCategory(VLoader& loader, void*, VRow const& row, VAttributes const&) {
    Category& category = loader.Reading().MakeCategory<Category>(row.name);
    NoteElement(loader, category);
    return {&category, &TypeOf(&category)};
}

VElementType const& RootType() {
    using R = VRows<VLoader>;
    static VElementType const type = Table({}, {
        R::Special("DIAG-LAYER-CONTAINER", Many, &OpenCategory<VMemDiagLayerContainer>),
        R::Special("COMPARAM-SPEC", Many, &OpenCategory<VMemComparamSpec>),
        R::Special("FLASH", Many, &OpenCategory<VMemFlash>),
        R::Special("MULTIPLE-ECU-JOB-SPEC", Many, &OpenCategory<VMemMultipleEcuJobSpec>),
        // A category of later versions, which holds what a COMPARAM-SPEC held before.
        R::Special("COMPARAM-SUBSET", Many, &OpenCategory<VMemComparamSpec>),
    });
    return type;
}

} // namespace NReader

// clang-format on
