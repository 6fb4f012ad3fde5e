// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <vector>

#include <diagkit/check/Messages.h>
#include <diagkit/check/PlacesById.h>
#include <diagkit/check/Views.h>
#include <diagkit/check/VisibleNames.h>
#include <diagkit/memory/DiagComms.h>
#include <diagkit/model/Reference.h>

/// The places of references by short name, and the layers that read them.

namespace NCheck {

/// The kinds of reference by short name that are read in layers.
enum class VWantedName {
    Dop,
    DataObjectProp,
    DiagComm,
    Protocol,
    Table,
    ParamOfMessages, ///< the PARAM-SNREF of an ENV-DATA-DESC, which is read in every message that leads to it
    OutParam,
    InParam,
};

/// The kind of target that a reference by short name requires; nothing for a reference by ID, one without a name, and
/// one that is not read in layers.
std::optional<VWantedName> WantedNameOf(NODX201::VLink& reference);

/// The reference to a DIAG-COMM that belongs to one to a parameter of it; null where there is none.
NODX201::VDiagCommLink* DiagCommLinkBeside(NODX201::VLink& reference);

/// The SESSION or ident to which a reference of flash data refers in its FLASH; null where there is none, and for any
/// other reference. Calls the resolver of the database.
NODX201::VOdxElement* TargetInFlash(NODX201::VLink& reference);

/// The element by which layers besides its own read a reference: the innermost DIAG-COMM, message, DOP or DIAG-VARIABLE
/// around it. Null where there is none.
NODX201::VOdxElement* AnchorOf(NODX201::VLink const& reference);

/// The layers in which a reference of flash data or vehicle information is read: that of the DIAG-COMM it belongs to.
std::vector<NODX201::VDiagLayer*> LayersOfConnector(NODX201::VLink const& reference);

/// The layers in which the jobs of a MULTIPLE-ECU-JOB-SPEC run; nothing when one of them is not loaded.
std::optional<std::vector<NODX201::VDiagLayer*>> LayersOfJobs(NMemory::VMemMultipleEcuJobSpec& spec);

/// Calls `take` with everything in which a layer reads the references that stand there: the layer itself, what its
/// views hold, the messages of its services, and what `byId` has of all these. Some come several times.
template <class Take>
void ForEachPlaceIn(NODX201::VDiagLayer& layer, VVisibleNames const& names, VViews& views, VPlacesById const& byId,
                    Take take) {
    VPlacesById::VMet met;
    auto const takeAll = [&](NODX201::VOdxElement const& place) {
        take(place);
        byId.ForEachFrom(place, met, take);
    };
    takeAll(layer);
    for (NODX201::VDiagComm* const diagComm : names.DiagComms()) {
        takeAll(*diagComm);
        if (auto* const service = dynamic_cast<NODX201::VDiagService*>(diagComm)) {
            ForEachMessage(*service, takeAll);
        }
    }
    for (NODX201::VDopBase* const dop : names.Dops()) {
        takeAll(*dop);
    }
    for (NODX201::VDiagVariable* const variable : views.diagVariables.EntriesOf(layer)) {
        takeAll(*variable);
    }
    for (NODX201::VGlobalNegResponse* const response : views.globalNegResponses.EntriesOf(layer)) {
        takeAll(*response);
    }
}

} // namespace NCheck
