// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/Export.h>
#include <diagkit/model/Forward.h>

namespace NODX201 {

/// Turns short names into elements on behalf of a model. A model calls it for its SNREF links. The meaning of a short
/// name depends on its context, usually a layer with everything it inherits.
///
/// Every operation accepts a short name that is not null and returns an element of the model, or null where no element
/// of that name is visible. Names compare exactly.
class DIAGKIT_EXPORT VAbstractSnrefResolver {
public:
    virtual ~VAbstractSnrefResolver();

    virtual VDopBase* ResolveDopBaseSnref(wchar_t const* shortName, VDiagLayer& layer) = 0;
    virtual VDataObjectProp* ResolveDataObjectPropSnref(wchar_t const* shortName, VDiagLayer& layer) = 0;
    virtual VDiagComm* ResolveDiagCommSnref(wchar_t const* shortName, VDiagLayer& layer) = 0;
    virtual VDiagVariable* ResolveDiagVariableSnref(wchar_t const* shortName, VDiagLayer& layer) = 0;
    virtual IIdentIf* ResolveIdentIfSnref(wchar_t const* shortName, VFlash& flash) = 0;
    virtual VProtocol* ResolveProtocolSnref(wchar_t const* shortName, VDiagLayerContainer& container) = 0;
    virtual VSession* ResolveSessionSnref(wchar_t const* shortName, VFlash& flash) = 0;
    virtual IInParamIf* ResolveInParamIfSnref(wchar_t const* shortName, VMultipleEcuJob& job) = 0;
    virtual IInParamIf* ResolveInParamIfSnref(wchar_t const* shortName, VDiagComm& diagComm) = 0;
    virtual IOutParamIf* ResolveOutParamIfSnref(wchar_t const* shortName, VMultipleEcuJob& job, VDiagLayer& layer) = 0;
    virtual IOutParamIf* ResolveOutParamIfSnref(wchar_t const* shortName, VDiagComm& diagComm, VDiagLayer& layer,
                                                VSearchRange range) = 0;

    VAbstractSnrefResolver(VAbstractSnrefResolver const&) = delete;
    VAbstractSnrefResolver& operator=(VAbstractSnrefResolver const&) = delete;

protected:
    VAbstractSnrefResolver() = default;
};

} // namespace NODX201
