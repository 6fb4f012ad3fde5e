// SPDX-License-Identifier: Apache-2.0

// Builds a database by hand, reads it, changes it and reads it again:
//
//     build_database

#include <iostream>
#include <memory>

#include <diagkit/Memory.h>
#include <diagkit/Reader.h>
#include <diagkit/Toolkit.h>

void PrintDiagComms(NODX201::VEcuVariant& layer) {
    NDIAGKIT::VDiagCommView view(layer); // of a layer whose kind is known; no builder is needed
    for (NODX201::VDiagComm& diagComm : view) {
        std::cout << "  " << NReader::ToUtf8(diagComm.GetShortName()) << '\n';
    }
}

int main() {
    NMemory::VDatabase database;
    database.SetResolverFactory([] { return std::make_unique<NDIAGKIT::VOpResolveSnref>(); });

    auto& container = database.AddDiagLayerContainer(L"Doors");
    auto& protocol = container.AddProtocol(L"Uds");
    auto& reset = protocol.AddDiagService(L"Reset");
    protocol.AddDiagService(L"ReadIdent");

    auto& door = container.AddBaseVariant(L"Door");
    door.AddParentRef(protocol).ExcludeDiagComm(L"ReadIdent");
    door.MakeDiagDataDictionarySpec().AddDataObjectProp(L"Angle");
    auto& response = door.AddPosResponse(L"AngleResponse");
    auto& angle = response.AddValue(L"Angle");
    angle.SetDopBaseLink(NMemory::VReference::ByShortName(L"Angle"));
    angle.SetBytePosition(L"3");
    auto& readAngle = door.AddDiagService(L"ReadAngle");
    readAngle.AddPosResponseRef(response);

    auto& rearDoor = container.AddEcuVariant(L"RearDoor");
    rearDoor.AddParentRef(door);
    rearDoor.MakeDiagDataDictionarySpec().AddDataObjectProp(L"Angle").SetId(L"RearDoor.Angle");

    for (NODX201::VParam& param : response.ParamCollection()) {
        std::cout << NReader::ToUtf8(param.GetShortName()) << " begins at byte "
                  << NMemory::BytePositionOf(param).value_or(0) << '\n';
    }

    std::cout << "visible in RearDoor:\n";
    PrintDiagComms(rearDoor);
    if (angle.GetDopBaseLink().HasDopBase(rearDoor)) {
        std::cout << "Angle is " << NReader::ToUtf8(angle.GetDopBaseLink().GetDopBase().GetId()) << '\n';
    }

    delete &reset; // it is removed from its layer, and references no longer find it
    std::cout << "visible without Reset:\n";
    PrintDiagComms(rearDoor);
    std::cout << database.Count(NODX201::VOdxTagEnum::DiagService) << " DIAG-SERVICEs are left\n";
}
