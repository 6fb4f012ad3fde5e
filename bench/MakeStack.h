// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/Layers.h>

namespace NBench {

/// A stack of layers of all five kinds, ECU-VARIANT < BASE-VARIANT < FUNCTIONAL-GROUP and PROTOCOL < ECU-SHARED-DATA.
/// The FUNCTIONAL-GROUP also inherits from the PROTOCOL, so that one layer is reached in two ways.
struct VStack {
    VStack();

    /// Calls `add` with each layer and the short names of the elements to add to it. Every name occurs once.
    template <class Add>
    void Fill(std::size_t inEachLayer, Add add) {
        FillLayer(*ecuSharedData, L"Shared_", inEachLayer, add);
        FillLayer(*protocol, L"Protocol_", inEachLayer, add);
        FillLayer(*functionalGroup, L"Group_", inEachLayer, add);
        FillLayer(*baseVariant, L"Base_", inEachLayer, add);
        FillLayer(*ecuVariant, L"Ecu_", inEachLayer, add);
    }

    NMemory::VDatabase database;
    NMemory::VMemDiagLayerContainer* container;
    NMemory::VMemEcuSharedData* ecuSharedData;
    NMemory::VMemProtocol* protocol;
    NMemory::VMemFunctionalGroup* functionalGroup;
    NMemory::VMemBaseVariant* baseVariant;
    NMemory::VMemEcuVariant* ecuVariant;

private:
    template <class Layer, class Add>
    static void FillLayer(Layer& layer, wchar_t const* prefix, std::size_t count, Add& add) {
        for (std::size_t number = 0; number < count; ++number) {
            add(layer, (prefix + std::to_wstring(1000000 + number)).c_str());
        }
    }
};

/// The given number of DIAG-COMMs visible in the ECU-VARIANT, a fifth of them in each layer.
struct VDiagCommStack : VStack {
    explicit VDiagCommStack(std::size_t visible);
};

/// The same with DOPs.
struct VDopStack : VStack {
    explicit VDopStack(std::size_t visible);
};

/// The same with GLOBAL-NEG-RESPONSEs.
struct VGlobalNegResponseStack : VStack {
    explicit VGlobalNegResponseStack(std::size_t visible);
};

/// The given number of DIAG-VARIABLEs visible in the ECU-VARIANT, a quarter of them in each layer but the PROTOCOL,
/// which has none. The ECU-SHARED-DATA is reached through the FUNCTIONAL-GROUP and through the BASE-VARIANT.
struct VDiagVariableStack : VStack {
    explicit VDiagVariableStack(std::size_t visible);
};

/// The given number of DIAG-COMMs in the layers below, a quarter of them in each, and the given number of ECU-VARIANTs
/// over them, each with some of its own.
struct VVariants : VStack {
    VVariants(std::size_t shared, std::size_t variants, std::size_t inEachVariant);

    std::vector<NMemory::VMemEcuVariant*> ecuVariants;
};

} // namespace NBench
