// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>

#include <diagkit/Export.h>
#include <diagkit/model/SnrefResolver.h>
#include <diagkit/tools/DopView.h>

namespace NDIAGKIT {

/// Resolves short names against what is visible in a context once inheritance has been applied: it builds the matching
/// view, looks for exactly the name, and discards the view. Results belong to the model; null when nothing of that name
/// is visible, and for a name that is null. Where several visible elements have the name, the first in view order wins.
///
/// Only DOP views are kept, one per layer, for the lifetime of the resolver. The DOPs of a layer are determined when
/// the first one is requested: a DOP that is added later to the layer or a parent is not found, and one that is
/// destroyed later must not be requested. After changing the model, create a new resolver. Not thread-safe.
class DIAGKIT_EXPORT VOpResolveSnref : public NODX201::VAbstractSnrefResolver {
public:
    VOpResolveSnref();
    ~VOpResolveSnref() override;
    VOpResolveSnref(VOpResolveSnref const&) = delete;
    VOpResolveSnref& operator=(VOpResolveSnref const&) = delete;

    NODX201::VDopBase* ResolveDopBaseSnref(wchar_t const* shortName, NODX201::VDiagLayer& layer) override;
    /// Also null for a DOP of another kind. Calls `ResolveDopBaseSnref`, including overrides.
    NODX201::VDataObjectProp* ResolveDataObjectPropSnref(wchar_t const* shortName, NODX201::VDiagLayer& layer) override;
    NODX201::VDiagComm* ResolveDiagCommSnref(wchar_t const* shortName, NODX201::VDiagLayer& layer) override;
    NODX201::VDiagVariable* ResolveDiagVariableSnref(wchar_t const* shortName, NODX201::VDiagLayer& layer) override;
    NODX201::IIdentIf* ResolveIdentIfSnref(wchar_t const* shortName, NODX201::VFlash& flash) override;
    NODX201::VProtocol* ResolveProtocolSnref(wchar_t const* shortName,
                                             NODX201::VDiagLayerContainer& container) override;
    NODX201::VSession* ResolveSessionSnref(wchar_t const* shortName, NODX201::VFlash& flash) override;
    NODX201::IInParamIf* ResolveInParamIfSnref(wchar_t const* shortName, NODX201::VMultipleEcuJob& job) override;
    /// A DIAG-SERVICE or SINGLE-ECU-JOB; null for anything else.
    NODX201::IInParamIf* ResolveInParamIfSnref(wchar_t const* shortName, NODX201::VDiagComm& diagComm) override;
    NODX201::IOutParamIf* ResolveOutParamIfSnref(wchar_t const* shortName, NODX201::VMultipleEcuJob& job,
                                                 NODX201::VDiagLayer& layer) override;
    /// A DIAG-SERVICE or SINGLE-ECU-JOB, for which the range has no effect; null for anything else. Searches below the
    /// parameters too, as `VOutParamIfView` says.
    NODX201::IOutParamIf* ResolveOutParamIfSnref(wchar_t const* shortName, NODX201::VDiagComm& diagComm,
                                                 NODX201::VDiagLayer& layer, NODX201::VSearchRange range) override;

private:
    VDopView* DopViewOf(NODX201::VDiagLayer& layer);

    std::map<NODX201::VDiagLayer const*, VDopView*> m_dopViews; // owned
};

} // namespace NDIAGKIT
