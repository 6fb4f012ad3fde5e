// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <diagkit/Export.h>
#include <diagkit/model/Forward.h>
#include <diagkit/model/SearchRange.h>
#include <diagkit/tools/DiagCommView.h>
#include <diagkit/tools/DiagVariableView.h>
#include <diagkit/tools/DopView.h>
#include <diagkit/tools/GlobalNegResponseView.h>
#include <diagkit/tools/IdentIfView.h>
#include <diagkit/tools/InParamIfView.h>
#include <diagkit/tools/OutParamIfView.h>
#include <diagkit/tools/ProtocolView.h>
#include <diagkit/tools/SessionView.h>

/// Views of whatever kind of layer or DIAG-COMM, each owned by the handle that it comes in. Keep the handle while the
/// view is walked: `for (auto& dop : *MakeDopView(layer))` destroys it before the first step.

namespace NDIAGKIT {

/// Destroys a view where it was made: in this library, by the operation of its builder where that has one.
struct DIAGKIT_EXPORT VViewDestroyer {
    void operator()(VDiagCommView* view) const;
    void operator()(VDiagVariableView* view) const;
    void operator()(VGlobalNegResponseView* view) const;
    void operator()(VDopView* view) const;
    void operator()(VProtocolView* view) const;
    void operator()(VInParamIfView* view) const;
    void operator()(VOutParamIfView* view) const;
    void operator()(VSessionView* view) const;
    void operator()(VIdentIfView* view) const;
};

/// Owns a view. It also takes over what a builder made, and then that builder must not create again.
template <class View>
using VViewHandle = std::unique_ptr<View, VViewDestroyer>;

// Of a layer of any kind. Null only for a layer whose `Accept` calls back nothing, which is logged and asserted as by
// the builder of the view.

DIAGKIT_EXPORT VViewHandle<VDiagCommView> MakeDiagCommView(NODX201::VDiagLayer& layer);         ///< its DIAG-COMMs
DIAGKIT_EXPORT VViewHandle<VDiagVariableView> MakeDiagVariableView(NODX201::VDiagLayer& layer); ///< its DIAG-VARIABLEs
DIAGKIT_EXPORT VViewHandle<VDopView> MakeDopView(NODX201::VDiagLayer& layer);                   ///< its DOPs

/// Its GLOBAL-NEG-RESPONSEs; empty for a layer whose `Accept` calls back nothing.
DIAGKIT_EXPORT VViewHandle<VGlobalNegResponseView> MakeGlobalNegResponseView(NODX201::VDiagLayer& layer);

/// The PROTOCOLs of a container.
DIAGKIT_EXPORT VViewHandle<VProtocolView> MakeProtocolView(NODX201::VDiagLayerContainer& container);
/// The PROTOCOLs that a BASE-VARIANT is attached to.
DIAGKIT_EXPORT VViewHandle<VProtocolView> MakeProtocolView(NODX201::VBaseVariant& baseVariant);

// Of a service or job, a MULTIPLE-ECU-JOB included. Null only for a DIAG-COMM that is none of these, which is logged
// and asserted as by the builder of the view.

DIAGKIT_EXPORT VViewHandle<VInParamIfView> MakeInParamIfView(NODX201::VDiagComm& diagComm); ///< its input parameters
/// Its output parameters; the range counts for services.
DIAGKIT_EXPORT VViewHandle<VOutParamIfView> MakeOutParamIfView(NODX201::VDiagComm& diagComm,
                                                               NODX201::VSearchRange range);

DIAGKIT_EXPORT VViewHandle<VSessionView> MakeSessionView(NODX201::VFlash& flash); ///< the SESSIONs of a FLASH
DIAGKIT_EXPORT VViewHandle<VIdentIfView> MakeIdentIfView(NODX201::VFlash& flash); ///< its EXPECTED-IDENTs

} // namespace NDIAGKIT
