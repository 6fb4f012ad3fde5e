// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/Layers.h>

namespace NCli {

/// A DIAG-COMM that a parent offers.
struct VOfferedDiagComm {
    NODX201::VDiagComm* diagComm;
    NODX201::VDiagLayer* parent;   ///< through which it comes, which need not be the layer that owns it
    NODX201::VDiagComm* overrider; ///< a hidden one's: what the view has under its short name; null otherwise
};

/// The DIAG-COMM view of a layer with the way that each entry took, and what the parents offer in vain. A DIAG-COMM
/// that comes through several parents is listed once, and one that is visible after all is neither hidden nor excluded.
struct VDiagCommOrigins {
    std::vector<NODX201::VDiagComm*> own;    ///< the layer's DIAG-COMMS, in view order
    std::vector<VOfferedDiagComm> inherited; ///< the rest of the view, in view order
    std::vector<VOfferedDiagComm> hidden;    ///< not visible for their short name, in the order of the passes
    std::vector<VOfferedDiagComm> excluded;  ///< not visible for NOT-INHERITED-DIAG-COMMS, in the order of the passes
};

VDiagCommOrigins DiagCommOriginsOf(NODX201::VDiagLayer& layer);

} // namespace NCli
