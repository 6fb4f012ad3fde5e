// SPDX-License-Identifier: Apache-2.0
#include "MakeStack.h"

#include <type_traits>

#include <diagkit/memory/Dops.h>

namespace NBench {

VStack::VStack() {
    container = &database.AddDiagLayerContainer(L"Stack");
    ecuSharedData = &container->AddEcuSharedData(L"Shared");
    protocol = &container->AddProtocol(L"Protocol");
    functionalGroup = &container->AddFunctionalGroup(L"Group");
    baseVariant = &container->AddBaseVariant(L"Base");
    ecuVariant = &container->AddEcuVariant(L"Ecu");
    protocol->AddParentRef(*ecuSharedData);
    functionalGroup->AddParentRef(*protocol);
    baseVariant->AddParentRef(*functionalGroup);
    baseVariant->AddParentRef(*protocol);
    ecuVariant->AddParentRef(*baseVariant);
}

VDiagCommStack::VDiagCommStack(std::size_t visible) {
    Fill(visible / 5, [](auto& layer, wchar_t const* shortName) { layer.AddDiagService(shortName); });
}

VDopStack::VDopStack(std::size_t visible) {
    Fill(visible / 5, [](auto& layer, wchar_t const* shortName) {
        auto& dictionary =
            layer.HasDiagDataDictionarySpec() ? layer.GetDiagDataDictionarySpec() : layer.MakeDiagDataDictionarySpec();
        dictionary.AddDataObjectProp(shortName);
    });
}

VGlobalNegResponseStack::VGlobalNegResponseStack(std::size_t visible) {
    Fill(visible / 5, [](auto& layer, wchar_t const* shortName) { layer.AddGlobalNegResponse(shortName); });
}

VDiagVariableStack::VDiagVariableStack(std::size_t visible) {
    functionalGroup->AddParentRef(*ecuSharedData);
    baseVariant->AddParentRef(*ecuSharedData);
    Fill(visible / 4, [](auto& layer, wchar_t const* shortName) {
        if constexpr (!std::is_same_v<decltype(layer), NMemory::VMemProtocol&>) {
            layer.AddDiagVariable(shortName);
        }
    });
}

VVariants::VVariants(std::size_t shared, std::size_t variants, std::size_t inEachVariant) {
    Fill(shared / 4, [](auto& layer, wchar_t const* shortName) {
        if constexpr (!std::is_same_v<decltype(layer), NMemory::VMemEcuVariant&>) {
            layer.AddDiagService(shortName);
        }
    });
    for (std::size_t number = 0; number < variants; ++number) {
        NMemory::VMemEcuVariant& variant = container->AddEcuVariant((L"Variant_" + std::to_wstring(number)).c_str());
        variant.AddParentRef(*baseVariant);
        for (std::size_t own = 0; own < inEachVariant; ++own) {
            variant.AddDiagService((L"Own_" + std::to_wstring(own)).c_str());
        }
        ecuVariants.push_back(&variant);
    }
}

} // namespace NBench
