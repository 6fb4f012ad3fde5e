// SPDX-License-Identifier: Apache-2.0
#include "MakeStack.h"

#include <string>

namespace NBench {
namespace {

template <class Layer>
void AddServices(Layer& layer, wchar_t const* prefix, std::size_t count) {
    for (std::size_t number = 0; number < count; ++number) {
        layer.AddDiagService((prefix + std::to_wstring(1000000 + number)).c_str());
    }
}

} // namespace

VStack::VStack(std::size_t visible) {
    NMemory::VMemDiagLayerContainer& container = database.AddDiagLayerContainer(L"Stack");
    ecuSharedData = &container.AddEcuSharedData(L"Shared");
    protocol = &container.AddProtocol(L"Protocol");
    functionalGroup = &container.AddFunctionalGroup(L"Group");
    baseVariant = &container.AddBaseVariant(L"Base");
    ecuVariant = &container.AddEcuVariant(L"Ecu");
    AddServices(*ecuSharedData, L"Shared_", visible / 5);
    AddServices(*protocol, L"Protocol_", visible / 5);
    AddServices(*functionalGroup, L"Group_", visible / 5);
    AddServices(*baseVariant, L"Base_", visible / 5);
    AddServices(*ecuVariant, L"Ecu_", visible / 5);
    protocol->AddParentRef(*ecuSharedData);
    functionalGroup->AddParentRef(*protocol);
    baseVariant->AddParentRef(*functionalGroup);
    baseVariant->AddParentRef(*protocol);
    ecuVariant->AddParentRef(*baseVariant);
}

} // namespace NBench
