// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <type_traits>
#include <vector>

#include <diagkit/model/AdminData.h>
#include <diagkit/model/Compu.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Flash.h>
#include <diagkit/model/Params.h>
#include <diagkit/model/Sdgs.h>
#include <diagkit/model/Tables.h>

/// The interfaces that only distinguish alternatives: the result of each test, and whether the cast works.

namespace NConformance {

struct VAlternative {
    wchar_t const* test;
    bool isSaid;
    bool isCastable;
};
using VAlternatives = std::vector<VAlternative>;

template <class Class, class Interface>
bool IsA(Interface& x) {
    return dynamic_cast<Class*>(&x) != nullptr;
}

#define ALTERNATIVE(test, element)                                                                                     \
    { L## #test, x.test(), IsA<NODX201::element>(x) }
#define TWO_ALTERNATIVES(interface, firstTest, first, secondTest, second)                                              \
    inline VAlternatives AlternativesOf(NODX201::interface& x) {                                                       \
        return {ALTERNATIVE(firstTest, first), ALTERNATIVE(secondTest, second)};                                       \
    }

// clang-format off
inline VAlternatives AlternativesOf(NODX201::IDiagCommProxy& x) {
    return {ALTERNATIVE(IsDiagService, VDiagService), ALTERNATIVE(IsSingleEcuJob, VSingleEcuJob),
            ALTERNATIVE(IsDiagCommLink, VDiagCommLink)};
}
TWO_ALTERNATIVES(IDiagVariableProxy,                   IsDiagVariableLink,   VDiagVariableLink,      IsDiagVariable,        VDiagVariable)
TWO_ALTERNATIVES(IDtcProxy,                            IsDtcLink,            VDtcLink,               IsDtc,                 VDtc)
TWO_ALTERNATIVES(IEnvDataProxy,                        IsEnvDataLink,        VEnvDataLink,           IsEnvData,             VEnvData)
TWO_ALTERNATIVES(IRowWrapper,                          IsTableRowLink,       VTableRowLink,          IsTableRow,            VTableRow)
TWO_ALTERNATIVES(ISdgSdChoice,                         IsSdg,                VSdg,                   IsSd,                  VSd)
TWO_ALTERNATIVES(IInParamIf,                           IsInputParam,         VInputParam,            IsValue,               VValue)
TWO_ALTERNATIVES(IOutParamIf,                          IsOutputParam,        VOutputParam,           IsValue,               VValue)
TWO_ALTERNATIVES(IIdentIf,                             IsExpectedIdent,      VExpectedIdent,         IsOwnIdent,            VOwnIdent)
TWO_ALTERNATIVES(ICompuScalesProgCodeChoice,           IsCompuScales,        VCompuScaleCollection,  IsProgCode,            VProgCode)
TWO_ALTERNATIVES(ICompuConstCompuRationalCoeffsChoice, IsCompuConst,         VCompuConst,            IsCompuRationalCoeffs, VCompuRationalCoeffs)
TWO_ALTERNATIVES(ITableRefTableRowRefChoice,           IsTableLink,          VTableLink,             IsTableRowLink,        VTableRowLink)
TWO_ALTERNATIVES(IAllValueDtcValuesChoice,             IsAllValue,           VAllValue,              IsDtcValues,           VDtcValues)
TWO_ALTERNATIVES(IBasicStructureEnvDataDescChoice,     IsBasicStructureLink, VBasicStructureLink,    IsEnvDataDescLink,     VEnvDataDescLink)
// clang-format on

#undef ALTERNATIVE
#undef TWO_ALTERNATIVES

/// The result of an operation: an element, by its class or by an interface.
struct VChild {
    void const* address = nullptr;
    NODX201::VOdxElement* element = nullptr; ///< null where the object behind an interface is not an element
    VAlternatives alternatives{};
};

template <class T>
VChild ChildOf(T& x) {
    if constexpr (std::is_base_of_v<NODX201::VOdxElement, T>) {
        return {&x, &x, {}};
    } else {
        return {&x, dynamic_cast<NODX201::VOdxElement*>(&x), AlternativesOf(x)};
    }
}

} // namespace NConformance
