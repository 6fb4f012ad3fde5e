// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Literals.h>
#include <diagkit/reader/RowParts.h>

// Services, jobs and their parameters.

// clang-format off

namespace NReader {

using namespace NMemory;

/// The attributes that services and jobs share.
template <class T>
std::vector<VAttributeRow> DiagCommAttributes() {
    using R = VRows<T>;
    return {
        R::template Attribute<&T::SetSemantic>("SEMANTIC"),
        LiteralAttribute<T, &T::SetDiagnosticClass, &Mapper::GetDiagClassTypeStr>("DIAGNOSTIC-CLASS"),
        R::template Attribute<&T::SetSecurityAccessLevel>("SECURITY-ACCESS-LEVEL", Optional, VContent::Uint),
        R::template Flag<&T::SetIsMandatory>("IS-MANDATORY"),
        R::template Flag<&T::SetIsExecutable>("IS-EXECUTABLE"),
        R::template Flag<&T::SetIsFinal>("IS-FINAL"),
    };
}

template <class T>
VRow FunctClassRefsRow() {
    using R = VRows<T>;
    return R::template Wrapper<&T::MakeFunctClassLinkCollection>("FUNCT-CLASS-REFS", Optional, {R::template Link<&T::AddFunctClassRef>("FUNCT-CLASS-REF", Many)});
}

/// The children that services and single-ECU jobs share.
template <class T>
std::vector<VRow> DiagCommRows() {
    using R = VRows<T>;
    return {
        AdminDataRow<T>(),
        SdgsRow<T>(),
        ComparamRefsRow<T>(),
        FunctClassRefsRow<T>(),
        R::template Child<&T::MakeAudience>("AUDIENCE", Required),
        R::template Wrapper<&T::MakeProtocolSnrefCollection>("PROTOCOL-SNREFS", Optional, {R::template Snref<&T::AddProtocolSnref>("PROTOCOL-SNREF", Many)}),
        R::template Wrapper<&T::MakeRelatedDiagCommRefCollection>("RELATED-DIAG-COMM-REFS", Optional, {R::template Link<&T::AddRelatedDiagCommRef>("RELATED-DIAG-COMM-REF", Many)}),
    };
}

/// What the two kinds of job share after their heads.
template <class T>
std::vector<VRow> JobRows() {
    using R = VRows<T>;
    return {
        R::template Wrapper<&T::MakeProgCodeCollection>("PROG-CODES", Required, {R::template Item<&T::AddProgCode>("PROG-CODE")}),
        R::template Wrapper<&T::MakeInputParamCollection>("INPUT-PARAMS", Optional, {R::template Item<&T::AddInputParam>("INPUT-PARAM")}),
        R::template Wrapper<&T::MakeOutputParamCollection>("OUTPUT-PARAMS", Optional, {R::template Item<&T::AddOutputParam>("OUTPUT-PARAM")}),
        R::template Wrapper<&T::MakeNegOutputParamCollection>("NEG-OUTPUT-PARAMS", Optional, {R::template Item<&T::AddNegOutputParam>("NEG-OUTPUT-PARAM")}),
    };
}

/// DOP-BASE-REF, and the other ways in which real data names the DOP of a job's parameter.
template <class T>
std::vector<VRow> DopBaseRefRows() {
    using R = VRows<T>;
    return {
        R::template Link<&T::SetDopBaseRef>("DOP-BASE-REF", Required, 1),
        R::template Snref<&T::SetDopBaseRef>("DOP-BASE-SNREF", Optional, 1),
        R::template Link<&T::SetDopBaseRef>("DOP-REF", Optional, 1),
        R::template Snref<&T::SetDopBaseRef>("DOP-SNREF", Optional, 1),
    };
}

VElementType const& TypeOf(VMemAudience*) {
    using T = VMemAudience;
    using R = VRows<T>;
    static VElementType const type = Table({
        R::Flag<&T::SetIsSupplier>("IS-SUPPLIER"),
        R::Flag<&T::SetIsDevelopment>("IS-DEVELOPMENT"),
        R::Flag<&T::SetIsManufacturing>("IS-MANUFACTURING"),
        R::Flag<&T::SetIsAftersales>("IS-AFTERSALES"),
        R::Flag<&T::SetIsAftermarket>("IS-AFTERMARKET"),
    }, {});
    return type;
}

VElementType const& TypeOf(VMemInputParam*) {
    using T = VMemInputParam;
    using R = VRows<T>;
    static VElementType const type = NamedTable<T>({R::Attribute<&T::SetOid>("OID"), R::Attribute<&T::SetSemantic>("SEMANTIC")},
        Join({R::Text<&T::SetPhysicalDefaultValue>("PHYSICAL-DEFAULT-VALUE")}, DopBaseRefRows<T>()));
    return type;
}

VElementType const& TypeOf(VMemOutputParam*) {
    using T = VMemOutputParam;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({R::Attribute<&T::SetSemantic>("SEMANTIC")}, DopBaseRefRows<T>());
    return type;
}

VElementType const& TypeOf(VMemNegOutputParam*) {
    using T = VMemNegOutputParam;
    static VElementType const type = NamedTable<T>({}, DopBaseRefRows<T>());
    return type;
}

VElementType const& TypeOf(VMemRelatedDiagCommRef*) {
    using T = VMemRelatedDiagCommRef;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Text<&T::SetRelationType>("RELATION-TYPE", Required),
    });
    return type;
}

VElementType const& TypeOf(VMemDiagService*) {
    using T = VMemDiagService;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>(
        Join(DiagCommAttributes<T>(), {
            R::Flag<&T::SetIsCyclic>("IS-CYCLIC"),
            R::Flag<&T::SetIsMultiple>("IS-MULTIPLE"),
            LiteralAttribute<T, &T::SetAddressing, &Mapper::GetAddressingStr>("ADDRESSING"),
        }),
        Join(DiagCommRows<T>(), {
            R::Link<&T::SetRequestRef>("REQUEST-REF"),
            R::Wrapper<&T::MakePosResponseLinkCollection>("POS-RESPONSE-REFS", Optional, {R::Link<&T::AddPosResponseRef>("POS-RESPONSE-REF", Many)}),
            R::Wrapper<&T::MakeNegResponseLinkCollection>("NEG-RESPONSE-REFS", Optional, {R::Link<&T::AddNegResponseRef>("NEG-RESPONSE-REF", Many)}),
        }));
    return type;
}

VElementType const& TypeOf(VMemSingleEcuJob*) {
    using T = VMemSingleEcuJob;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>(
        Join(DiagCommAttributes<T>(), {R::Flag<&T::SetIsReducedResultEnabled>("IS-REDUCED-RESULT-ENABLED")}),
        Join(DiagCommRows<T>(), JobRows<T>()));
    return type;
}

VElementType const& TypeOf(VMemMultipleEcuJob*) {
    using T = VMemMultipleEcuJob;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>(
        {
            R::Attribute<&T::SetSemantic>("SEMANTIC"),
            R::Attribute<&T::SetSecurityAccessLevel>("SECURITY-ACCESS-LEVEL", Optional, VContent::Uint),
            R::Flag<&T::SetIsExecutable>("IS-EXECUTABLE"),
            R::Flag<&T::SetIsReducedResultEnabled>("IS-REDUCED-RESULT-ENABLED"),
        },
        Join({AdminDataRow<T>(), SdgsRow<T>(), FunctClassRefsRow<T>()}, JobRows<T>(), std::vector<VRow>{
            R::Wrapper<&T::MakeDiagLayerLinkCollection>("DIAG-LAYER-REFS", Required, {R::Link<&T::AddDiagLayerRef>("DIAG-LAYER-REF", Many)}),
            R::Child<&T::MakeAudience>("AUDIENCE", Required),
        }));
    return type;
}

} // namespace NReader

// clang-format on
