// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/Layers.h>
#include <diagkit/tools/oem/Reasons.h>
#include <diagkit/util/CheckedCast.h>

namespace NDIAGKIT {

/// Whether a layer has DIAG-COMMs of its own, of whatever kind.
inline bool HasOwnDiagComms(NODX201::VDiagLayer& layer) {
    return layer.HasDiagCommProxyCollection() && layer.DiagCommProxyCollection().Count() != 0;
}

/// Whether a PROTOCOL has none, as for manufacturers that keep services elsewhere.
inline bool HasNoOwnDiagComms(VOemCheckContext const& context, NODX201::VProtocol& protocol) {
    if (!HasOwnDiagComms(protocol)) {
        return true;
    }
    return No(context, [&protocol] {
        auto const count = static_cast<std::size_t>(protocol.DiagCommProxyCollection().Count());
        return VOemReason{L"no DIAG-COMMs in a PROTOCOL", Counted(count, L"DIAG-COMM"), &protocol};
    });
}

/// Whether all DIAG-SERVICEs among a layer's own DIAG-COMMs meet a condition; evaluated in order up to the first that
/// does not. Jobs and references are skipped.
template <class Condition>
bool AllOwnServices(NODX201::VDiagLayer& layer, Condition condition) {
    if (!layer.HasDiagCommProxyCollection()) {
        return true;
    }
    NPavonaUtil::VCheckedCast<NODX201::VDiagService, NODX201::IDiagCommProxy> cast;
    for (NODX201::IDiagCommProxy& proxy : layer.DiagCommProxyCollection()) {
        NODX201::VDiagService* service = cast.Again(proxy);
        if (service == nullptr && proxy.IsDiagService()) {
            service = cast(proxy);
        }
        if (service != nullptr && !condition(*service)) {
            return false;
        }
    }
    return true;
}

} // namespace NDIAGKIT
