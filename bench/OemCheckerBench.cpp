// SPDX-License-Identifier: Apache-2.0

// Detecting the manufacturer, by DIAG-SERVICEs of a database of 200 layers and by characters of one long name:
//
//     oem/N, oem-bare/N                        half of the services are in PROTOCOLs, named as by Volkswagen,
//                                              half in variants with the state models of Fiat
//     oem-names/N, oem-names-bare/N            all of the first kind
//     oem-states/N, oem-states-bare/N          all of the second
//     oem-long-name/N, oem-long-name-bare/N    one service with a long name of N characters
//
// Every service is examined to its last character. The bare ones are one walk over the same services through the same
// interface, and one access to each character of the long name.

#include <string>

#include <benchmark/benchmark.h>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/Odx.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/tools/oem/OemChecker.h>

namespace NBench {
namespace {

constexpr std::size_t kLayers = 200;
constexpr wchar_t const* kProtocolName = L"PR_UDSOnCAN";

/// Satisfies the two rules of Audi and Volkswagen before the one that examines names.
void AddContactPerson(NMemory::VMemProtocol& protocol) {
    NMemory::VMemCompanyData& company = protocol.AddCompanyData(L"Audi");
    company.SetLongName(L"Audi");
    company.AddTeamMember(L"Contact").AddRole(L"contact person oem");
}

void AddNamedService(NMemory::VMemProtocol& protocol, std::size_t number) {
    std::wstring const digits = std::to_wstring(10000 + number);
    protocol.AddDiagService((L"DiagnServi_ReadECUIdent" + digits).c_str())
        .SetLongName((L"Read (ECU) identification " + digits).c_str());
}

void AddServiceWithStates(NMemory::VMemEcuVariant& variant, std::size_t number) {
    variant.AddDiagService((L"Service_" + std::to_wstring(10000 + number)).c_str())
        .AddSdg()
        .MakeSdgCaption(L"State_Model");
}

/// Satisfies the rule that examines state models, and the one after it.
void AddComparamsOfFiat(NMemory::VDatabase& database) {
    NMemory::VMemComparamSpec& spec = database.AddComparamSpec(L"Uds");
    for (wchar_t const* const name : {L"MaxDeltaP2Can", L"S3_Tester", L"S3_ECU", L"NL_buffer_NormalCommunication",
                                      L"NL_buffer_FlashProgramming", L"Max_Waiting_Time_for_External_Tool"}) {
        spec.AddComparam(name).SetId((std::wstring(L"COMPARAM-SPEC.UDS_CPS.COMPARAM.") + name).c_str());
    }
}

/// Every second layer is a PROTOCOL, or all are, or none.
enum class VShape { Mixed, Names, States };

struct VManyLayers {
    VManyLayers(VShape shape, std::size_t services) {
        NMemory::VMemDiagLayerContainer& container = database.AddDiagLayerContainer(L"Container");
        for (std::size_t layer = 0; layer < kLayers; ++layer) {
            bool const isProtocol = shape == VShape::Names || (shape == VShape::Mixed && layer % 2 == 0);
            isProtocol ? AddProtocol(container, services / kLayers) : AddVariant(container, services / kLayers);
        }
        if (shape == VShape::States) {
            AddComparamsOfFiat(database);
        }
    }

    static void AddProtocol(NMemory::VMemDiagLayerContainer& container, std::size_t services) {
        NMemory::VMemProtocol& protocol = container.AddProtocol(kProtocolName);
        AddContactPerson(protocol);
        for (std::size_t number = 0; number < services; ++number) {
            AddNamedService(protocol, number);
        }
    }

    static void AddVariant(NMemory::VMemDiagLayerContainer& container, std::size_t services) {
        NMemory::VMemEcuVariant& variant = container.AddEcuVariant(L"Variant");
        for (std::size_t number = 0; number < services; ++number) {
            AddServiceWithStates(variant, number);
        }
    }

    NMemory::VDatabase database;
};

void Detect(benchmark::State& state, NODX201::VOdx& odx, NDIAGKIT::VManufacturer expected) {
    NDIAGKIT::VOemChecker checker;
    if (checker.GetManufacturer(odx) != expected) {
        state.SkipWithError("not everything was looked at");
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(checker.GetManufacturer(odx));
    }
}

template <VShape Shape>
void Oem(benchmark::State& state) {
    VManyLayers layers(Shape, static_cast<std::size_t>(state.range(0)));
    Detect(state, layers.database.GetOdx(),
           Shape == VShape::States ? NDIAGKIT::VManufacturer::Fiat : NDIAGKIT::VManufacturer::AudiVw);
}

template <VShape Shape>
void OemBare(benchmark::State& state) {
    VManyLayers layers(Shape, static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        for (NODX201::VDiagLayerContainer& container : layers.database.GetOdx().DiagLayerContainerCollection()) {
            for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
                for (NODX201::IDiagCommProxy& proxy : layer.DiagCommProxyCollection()) {
                    auto* const service = dynamic_cast<NODX201::VDiagService*>(&proxy);
                    benchmark::DoNotOptimize(service->GetShortName());
                }
            }
        }
    }
}

struct VLongName {
    explicit VLongName(std::size_t length) {
        std::wstring name;
        std::wstring abbreviation;
        while (name.size() < length) {
            name += L"word-";
            abbreviation += L"Word";
        }
        NMemory::VMemProtocol& protocol = database.AddDiagLayerContainer(L"Container").AddProtocol(kProtocolName);
        AddContactPerson(protocol);
        service = &protocol.AddDiagService((L"DiagnServi_" + abbreviation).c_str());
        service->SetLongName(name.c_str());
    }

    NMemory::VDatabase database;
    NMemory::VMemDiagService* service;
};

void OemLongName(benchmark::State& state) {
    VLongName name(static_cast<std::size_t>(state.range(0)));
    Detect(state, name.database.GetOdx(), NDIAGKIT::VManufacturer::AudiVw);
}

void OemLongNameBare(benchmark::State& state) {
    VLongName const name(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        for (wchar_t const* text = name.service->GetLongName().GetBaseMember(); *text != L'\0'; ++text) {
            benchmark::DoNotOptimize(*text);
        }
    }
}

// clang-format off
BENCHMARK(Oem<VShape::Mixed>)->Name("oem")->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(OemBare<VShape::Mixed>)->Name("oem-bare")->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(Oem<VShape::Names>)->Name("oem-names")->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(OemBare<VShape::Names>)->Name("oem-names-bare")->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(Oem<VShape::States>)->Name("oem-states")->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(OemBare<VShape::States>)->Name("oem-states-bare")->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(OemLongName)->Name("oem-long-name")->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(OemLongNameBare)->Name("oem-long-name-bare")->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
// clang-format on

} // namespace
} // namespace NBench
