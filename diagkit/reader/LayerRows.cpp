// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Literals.h>
#include <diagkit/reader/Loader.h>
#include <diagkit/reader/RowParts.h>

// The five kinds of layer and their parts.

// clang-format off

namespace NReader {

using namespace NMemory;

VElementType const& TypeOf(VMemFunctClass*) {
    using T = VMemFunctClass;
    static VElementType const type = IdentTable<T>({}, {
        AdminDataRow<T>(),
    });
    return type;
}

VElementType const& TypeOf(VMemVariableGroup*) {
    using T = VMemVariableGroup;
    static VElementType const type = IdentTable<T>({}, {});
    return type;
}

VElementType const& TypeOf(VMemSwVariable*) {
    using T = VMemSwVariable;
    using R = VRows<T>;
    static VElementType const type = NamedTable<T>({R::Attribute<&T::SetOid>("OID")}, {
        R::Text<&T::SetOrigin>("ORIGIN"),
    });
    return type;
}

VElementType const& TypeOf(VMemCommRelation*) {
    using T = VMemCommRelation;
    using R = VRows<T>;
    static VElementType const type = Table({LiteralAttribute<T, &T::SetValueType, &Mapper::GetCommRelationValueTypeStr>("VALUE-TYPE")}, {
        R::Markup<&T::SetDesc>("DESC"),
        R::Text<&T::SetRelationType>("RELATION-TYPE", Required),
        R::Link<&T::SetDiagCommLink>("DIAG-COMM-REF", Required, 1),
        R::Snref<&T::SetDiagCommLink>("DIAG-COMM-SNREF", Required, 1),
        R::Snref<&T::SetInParamIfSnref>("IN-PARAM-IF-SNREF", Optional, 2),
        R::Snref<&T::SetOutParamIfSnref>("OUT-PARAM-IF-SNREF", Optional, 2),
    });
    return type;
}

VElementType const& TypeOf(VMemDiagVariable*) {
    using T = VMemDiagVariable;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({R::Flag<&T::SetIsReadBeforeWrite>("IS-READ-BEFORE-WRITE")}, {
        AdminDataRow<T>(),
        R::Link<&T::SetVariableGroupRef>("VARIABLE-GROUP-REF"),
        R::Wrapper<&T::MakeSwVariableCollection>("SW-VARIABLES", Optional, {R::Item<&T::AddSwVariable>("SW-VARIABLE")}),
        R::Wrapper<&T::MakeCommRelationCollection>("COMM-RELATIONS", Optional, {R::Item<&T::AddCommRelation>("COMM-RELATION")}),
    });
    return type;
}

VElementType const& TypeOf(VMemAccessLevel*) {
    using T = VMemAccessLevel;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Text<&T::SetValue>("VALUE", Required, VContent::Uint),
        R::Markup<&T::SetDesc>("DESC", Required),
        R::Snref<&T::SetDiagCommSnref>("DIAG-COMM-SNREF", Required, 1),
        R::Text<&T::SetExternalAccessMethod>("EXTERNAL-ACCESS-METHOD", Required, VContent::Text, nullptr, 1),
    });
    return type;
}

VElementType const& TypeOf(VMemByteStream*) {
    using T = VMemByteStream;
    static VElementType const type = TextTable<T, &T::SetText>({}, VContent::Hex);
    return type;
}

VElementType const& TypeOf(VMemDynIdDefModeInfo*) {
    using T = VMemDynIdDefModeInfo;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Text<&T::SetDefMode>("DEF-MODE", Required),
        R::Link<&T::SetClearDynDefMessageRef>("CLEAR-DYN-DEF-MESSAGE-REF", Required, 1),
        R::Snref<&T::SetClearDynDefMessageRef>("CLEAR-DYN-DEF-MESSAGE-SNREF", Required, 1),
        R::Link<&T::SetReadDynDefMessageRef>("READ-DYN-DEF-MESSAGE-REF", Required, 2),
        R::Snref<&T::SetReadDynDefMessageRef>("READ-DYN-DEF-MESSAGE-SNREF", Required, 2),
        R::Link<&T::SetDynDefMessageRef>("DYN-DEF-MESSAGE-REF", Required, 3),
        R::Snref<&T::SetDynDefMessageRef>("DYN-DEF-MESSAGE-SNREF", Required, 3),
        R::Wrapper<&T::MakeSupportedDynIdCollection>("SUPPORTED-DYN-IDS", Optional, {R::Item<&T::AddSupportedDynId>("SUPPORTED-DYN-ID")}),
        R::Wrapper<&T::MakeTableLinkCollection>("SELECTION-TABLE-REFS", Optional, {R::Link<&T::AddSelectionTableRef>("SELECTION-TABLE-REF", Many), R::Snref<&T::AddSelectionTableRef>("SELECTION-TABLE-SNREF", Many)}),
    });
    return type;
}

VElementType const& TypeOf(VMemDynDefinedSpec*) {
    using T = VMemDynDefinedSpec;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Wrapper<&T::MakeDynIdDefModeInfoCollection>("DYN-ID-DEF-MODE-INFOS", Optional, {R::Item<&T::AddDynIdDefModeInfo>("DYN-ID-DEF-MODE-INFO")}),
    });
    return type;
}

VElementType const& TypeOf(VMemMatchingParameter*) {
    using T = VMemMatchingParameter;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Text<&T::SetExpectedValue>("EXPECTED-VALUE", Required),
        R::Snref<&T::SetDiagCommSnref>("DIAG-COMM-SNREF", Required),
        R::Snref<&T::SetOutParamIfSnref>("OUT-PARAM-IF-SNREF", Required),
    });
    return type;
}

VElementType const& TypeOf(VMemEcuVariantPattern*) {
    using T = VMemEcuVariantPattern;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Wrapper<&T::MakeMatchingParameterCollection>("MATCHING-PARAMETERS", Required, {R::Item<&T::AddMatchingParameter>("MATCHING-PARAMETER")}),
    });
    return type;
}

// PARENT-REF: the kinds share their children. The exclusions are short-name references by ODX; an ID reference is kept
// too, as one that excludes nothing.
template <class T, class Item, Item& (IMemParentRef::*Add)(VReference const&)>
VOpened OpenExcluded(VLoader& loader, void* owner, VAttributes const& attributes, bool isSnref) {
    IMemParentRef& parentRef = VRows<T>::Owner(owner);
    Item& excluded = (parentRef.*Add)(isSnref ? ShortNameReference(loader, attributes) : IdReference(loader, attributes));
    NotePosition(loader, excluded);
    return {&excluded, &LinkType()};
}

template <class T>
VElementType ParentRefTable() {
    using R = VRows<T>;
    return Table({}, {
        R::template Wrapper<&T::MakeNotInheritedDiagCommCollection>("NOT-INHERITED-DIAG-COMMS", Optional, {
            R::PlainWrapper("NOT-INHERITED-DIAG-COMM", Many, {
                R::Special("DIAG-COMM-SNREF", Required, [](VLoader& loader, void* owner, VRow const&, VAttributes const& attributes) {
                    return OpenExcluded<T, VMemNotInheritedDiagComm, &IMemParentRef::AddNotInheritedDiagComm>(loader, owner, attributes, true);
                }, 1),
                R::Special("DIAG-COMM-REF", Required, [](VLoader& loader, void* owner, VRow const&, VAttributes const& attributes) {
                    return OpenExcluded<T, VMemNotInheritedDiagComm, &IMemParentRef::AddNotInheritedDiagComm>(loader, owner, attributes, false);
                }, 1),
            }),
        }),
        R::template Wrapper<&T::MakeNotInheritedVariableCollection>("NOT-INHERITED-VARIABLES", Optional, {
            R::PlainWrapper("NOT-INHERITED-VARIABLE", Many, {
                R::Special("DIAG-VARIABLE-SNREF", Required, [](VLoader& loader, void* owner, VRow const&, VAttributes const& attributes) {
                    return OpenExcluded<T, VMemNotInheritedVariable, &IMemParentRef::AddNotInheritedVariable>(loader, owner, attributes, true);
                }),
            }),
        }),
    });
}

VElementType const& TypeOf(VMemParentRef*) {
    static VElementType const type = ParentRefTable<VMemParentRef>();
    return type;
}

VElementType const& TypeOf(VMemProtocolRef*) {
    static VElementType const type = ParentRefTable<VMemProtocolRef>();
    return type;
}

VElementType const& TypeOf(VMemFunctionalGroupRef*) {
    static VElementType const type = ParentRefTable<VMemFunctionalGroupRef>();
    return type;
}

VElementType const& TypeOf(VMemBaseVariantRef*) {
    static VElementType const type = ParentRefTable<VMemBaseVariantRef>();
    return type;
}

VElementType const& TypeOf(VMemEcuSharedDataRef*) {
    static VElementType const type = ParentRefTable<VMemEcuSharedDataRef>();
    return type;
}

template <class Layer>
VOpened OpenParentRef(VLoader& loader, void* owner, VRow const&, VAttributes const& attributes) {
    Layer& layer = VRows<Layer>::Owner(owner);
    std::string const type = XsiType(loader, attributes);
    VReference const reference = IdReference(loader, attributes);
    auto const opened = [&loader](auto& made, VLinkQuestions const& questions) {
        NoteElement(loader, made);
        NoteLink(loader, made, made, questions);
        return VOpened{&made, &TypeOf(&made)};
    };
    auto const add = [&](VParentRefKind kind) -> IMemParentRef& { return layer.AddParentRef(kind, reference); };
    if (type == "PROTOCOL-REF")         { return opened(dynamic_cast<VMemProtocolRef&>(add(VParentRefKind::Protocol)), kQuestionsTo<VMemProtocolRef>); }
    if (type == "FUNCTIONAL-GROUP-REF") { return opened(dynamic_cast<VMemFunctionalGroupRef&>(add(VParentRefKind::FunctionalGroup)), kQuestionsTo<VMemFunctionalGroupRef>); }
    if (type == "BASE-VARIANT-REF")     { return opened(dynamic_cast<VMemBaseVariantRef&>(add(VParentRefKind::BaseVariant)), kQuestionsTo<VMemBaseVariantRef>); }
    if (type == "ECU-SHARED-DATA-REF")  { return opened(dynamic_cast<VMemEcuSharedDataRef&>(add(VParentRefKind::EcuSharedData)), kQuestionsTo<VMemEcuSharedDataRef>); }
    if (!type.empty()) {
        ReportUnknownType(loader, type);
    }
    IMemParentRef& untyped = add(VParentRefKind::Unknown);
    NoteElement(loader, untyped.Node(), untyped.ParentRef());
    NoteUntypedParentRef(loader, untyped, [](IMemParentRef& parentRef, VParentRefKind kind) -> IMemParentRef& {
        return dynamic_cast<Layer&>(*parentRef.ParentRef().GetOwner()).ChangeParentRefKind(parentRef, kind);
    });
    auto& plain = dynamic_cast<VMemParentRef&>(untyped);
    return {&plain, &TypeOf(&plain)};
}

template <class T>
VRow DiagCommsRow() {
    using R = VRows<T>;
    return R::template Wrapper<&T::MakeDiagCommProxyCollection>("DIAG-COMMS", Optional, {
        R::template Item<&T::AddDiagService>("DIAG-SERVICE"),
        R::template Item<&T::AddSingleEcuJob>("SINGLE-ECU-JOB"),
        R::template Link<&T::AddDiagCommRef>("DIAG-COMM-REF", Many),
        R::Special("DIAG-COMM-SNREF", Many, [](VLoader& loader, void*, VRow const&, VAttributes const&) {
            ReportShortNameNotAllowed(loader, "DIAG-COMMS");
            return VOpened{};
        }),
    });
}

template <class T>
VRow DiagVariablesRow() {
    using R = VRows<T>;
    return R::template Wrapper<&T::MakeDiagVariableProxyCollection>("DIAG-VARIABLES", Optional, {
        R::template Link<&T::AddDiagVariableRef>("DIAG-VARIABLE-REF", Many),
        R::template Item<&T::AddDiagVariable>("DIAG-VARIABLE"),
        R::Special("DIAG-VARIABLE-SNREF", Many, [](VLoader& loader, void*, VRow const&, VAttributes const&) {
            ReportShortNameNotAllowed(loader, "DIAG-VARIABLES");
            return VOpened{};
        }),
    });
}

/// What the five kinds of layer begin with.
template <class T>
std::vector<VRow> LayerHead() {
    using R = VRows<T>;
    return {
        AdminDataRow<T>(),
        CompanyDatasRow<T>(),
        FunctClassesRow<T>(),
        Appending(R::template Child<&T::MakeDiagDataDictionarySpec>("DIAG-DATA-DICTIONARY-SPEC")),
        DiagCommsRow<T>(),
        R::template Wrapper<&T::MakeRequestCollection>("REQUESTS", Optional, {R::template Item<&T::AddRequest>("REQUEST")}),
        R::template Wrapper<&T::MakeResponseCollection>("POS-RESPONSES", Optional, {R::template Item<&T::AddPosResponse>("POS-RESPONSE")}),
        R::template Wrapper<&T::MakeResponseCollection>("NEG-RESPONSES", Optional, {R::template Item<&T::AddNegResponse>("NEG-RESPONSE")}),
        R::template Wrapper<&T::MakeResponseCollection>("GLOBAL-NEG-RESPONSES", Optional, {R::template Item<&T::AddGlobalNegResponse>("GLOBAL-NEG-RESPONSE")}),
        ComparamRefsRow<T>(),
        R::template Wrapper<&T::MakeImportRefCollection>("IMPORT-REFS", Optional, {R::template Link<&T::AddImportRef>("IMPORT-REF", Many)}),
    };
}

template <class T>
VRow VariableGroupsRow() {
    using R = VRows<T>;
    return R::template Wrapper<&T::MakeVariableGroupCollection>("VARIABLE-GROUPS", Optional, {R::template Item<&T::AddVariableGroup>("VARIABLE-GROUP")});
}

template <class T>
VRow AccessLevelsRow() {
    using R = VRows<T>;
    return R::template Wrapper<&T::MakeAccessLevelCollection>("ACCESS-LEVELS", Optional, {R::template Item<&T::AddAccessLevel>("ACCESS-LEVEL")});
}

template <class T>
VRow AutMethodsRow() {
    using R = VRows<T>;
    return R::PlainWrapper("AUT-METHODS", Optional, {R::template Text<&T::AddAutMethod>("AUT-METHOD", Many)});
}

template <class T>
VRow ParentRefsRow() {
    using R = VRows<T>;
    return R::template Wrapper<&T::MakeParentRefCollection>("PARENT-REFS", Optional, {R::Special("PARENT-REF", Many, &OpenParentRef<T>)});
}

template <class T>
VRow DynDefinedSpecRow() {
    return VRows<T>::template Child<&T::MakeDynDefinedSpec>("DYN-DEFINED-SPEC");
}

VElementType const& TypeOf(VMemProtocol*) {
    using T = VMemProtocol;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({R::Attribute<&T::SetType>("TYPE", Required)}, Join(LayerHead<T>(), {
        R::Link<&T::SetComparamSpecRef>("COMPARAM-SPEC-REF", Required),
        AccessLevelsRow<T>(),
        AutMethodsRow<T>(),
        ParentRefsRow<T>(),
    }));
    return type;
}

VElementType const& TypeOf(VMemFunctionalGroup*) {
    using T = VMemFunctionalGroup;
    static VElementType const type = IdentTable<T>({}, Join(LayerHead<T>(), {
        DiagVariablesRow<T>(),
        VariableGroupsRow<T>(),
        AccessLevelsRow<T>(),
        AutMethodsRow<T>(),
        ParentRefsRow<T>(),
    }));
    return type;
}

VElementType const& TypeOf(VMemBaseVariant*) {
    using T = VMemBaseVariant;
    static VElementType const type = IdentTable<T>({}, Join(LayerHead<T>(), {
        DiagVariablesRow<T>(),
        VariableGroupsRow<T>(),
        AutMethodsRow<T>(),
        DynDefinedSpecRow<T>(),
        AccessLevelsRow<T>(),
        ParentRefsRow<T>(),
    }));
    return type;
}

VElementType const& TypeOf(VMemEcuVariant*) {
    using T = VMemEcuVariant;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({}, Join(LayerHead<T>(), {
        DiagVariablesRow<T>(),
        VariableGroupsRow<T>(),
        R::Wrapper<&T::MakeEcuVariantPatternCollection>("ECU-VARIANT-PATTERNS", Optional, {R::Item<&T::AddEcuVariantPattern>("ECU-VARIANT-PATTERN")}),
        AutMethodsRow<T>(),
        DynDefinedSpecRow<T>(),
        AccessLevelsRow<T>(),
        ParentRefsRow<T>(),
    }));
    return type;
}

VElementType const& TypeOf(VMemEcuSharedData*) {
    using T = VMemEcuSharedData;
    static VElementType const type = IdentTable<T>({}, Join(LayerHead<T>(), {
        DiagVariablesRow<T>(),
        VariableGroupsRow<T>(),
        VRows<T>::Special("PARENT-REFS", Optional, [](VLoader& loader, void*, VRow const&, VAttributes const&) {
            loader.Report(NCode::ParentKind, "an ECU-SHARED-DATA has no parents; its PARENT-REFS are left out");
            return VOpened{};
        }),
    }));
    return type;
}

} // namespace NReader

// clang-format on
