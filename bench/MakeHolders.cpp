// SPDX-License-Identifier: Apache-2.0
#include "MakeHolders.h"

#include <diagkit/memory/Database.h>
#include <diagkit/memory/Flash.h>
#include <diagkit/memory/Layers.h>

namespace NBench {
namespace {

constexpr std::size_t kEcuMems = 10;

std::wstring Named(std::size_t number) { return L"Entry_number_" + std::to_wstring(1000000 + number); }

} // namespace

struct VHolders::VMade {
    explicit VMade(std::size_t count) : middleName(Named(count / 2)) {
        NMemory::VMemPosResponse& positive = layer.AddPosResponse(L"Positive");
        NMemory::VMemNegResponse& negative = layer.AddNegResponse(L"Negative");
        service.AddPosResponseRef(positive);
        service.AddNegResponseRef(negative);
        NMemory::VMemMem* mem = nullptr;
        for (std::size_t number = 0; number < count; ++number) {
            std::wstring const name = Named(number);
            number < count / 2 ? positive.AddValue(name.c_str()) : negative.AddValue(name.c_str());
            job.AddInputParam(name.c_str());
            job.AddOutputParam(name.c_str());
            container.AddProtocol(name.c_str());
            if (number % (count / kEcuMems) == 0) {
                mem = &flash.AddEcuMem(name.c_str()).GetMem();
            }
            mem->AddSession(name.c_str()).AddExpectedIdent(name.c_str());
        }
    }

    std::wstring middleName;
    NMemory::VDatabase database;
    NMemory::VMemDiagLayerContainer& container = database.AddDiagLayerContainer(L"Container");
    NMemory::VMemEcuVariant& layer = container.AddEcuVariant(L"Layer");
    NMemory::VMemDiagService& service = layer.AddDiagService(L"Service");
    NMemory::VMemSingleEcuJob& job = layer.AddSingleEcuJob(L"Job");
    NMemory::VMemFlash& flash = database.AddFlash(L"Flash");
};

VHolders::VHolders(std::size_t count) : m_made(std::make_unique<VMade>(count)) {}

VHolders::~VHolders() = default;

NODX201::VDiagLayerContainer& VHolders::Container() { return m_made->container; }

NODX201::VDiagLayer& VHolders::Layer() { return m_made->layer; }

NODX201::VDiagService& VHolders::Service() { return m_made->service; }

NODX201::VSingleEcuJob& VHolders::Job() { return m_made->job; }

NODX201::VFlash& VHolders::Flash() { return m_made->flash; }

wchar_t const* VHolders::MiddleName() const { return m_made->middleName.c_str(); }

} // namespace NBench
