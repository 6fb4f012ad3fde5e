// SPDX-License-Identifier: Apache-2.0

// Over diagkit::memory: a database made by hand, and what a layer of it inherits.

#include <cwchar>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/Layers.h>
#include <diagkit/memory/Odx.h>
#include <diagkit/tools/OpBuildDiagCommView.h>

int main() {
    NMemory::VDatabase database;
    auto& container = database.AddDiagLayerContainer(L"Doors");
    auto& protocol = container.AddProtocol(L"UDS");
    protocol.AddDiagService(L"ReadIdent");
    protocol.AddSingleEcuJob(L"Reset");
    auto& door = container.AddBaseVariant(L"Door");
    door.AddParentRef(protocol).ExcludeDiagComm(L"ReadIdent");
    door.AddDiagService(L"Open");

    NDIAGKIT::VOpBuildDiagCommView builder;
    NDIAGKIT::VDiagCommView& view = *builder.CreateDiagCommView(door);
    for (NODX201::VDiagComm& diagComm : view) {
        std::wprintf(L"%ls\n", diagComm.GetShortName());
    }
    builder.DestroyDiagCommView(view);
}
