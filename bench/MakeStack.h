// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/Layers.h>

namespace NBench {

/// A stack of layers of all five kinds, ECU-VARIANT < BASE-VARIANT < FUNCTIONAL-GROUP and PROTOCOL < ECU-SHARED-DATA,
/// with so many DIAG-COMMs visible in the ECU-VARIANT: a fifth of them in each layer, every name once. The FUNCTIONAL-
/// GROUP inherits from the PROTOCOL too, so that one layer is reached in two ways.
struct VStack {
    explicit VStack(std::size_t visible);

    NMemory::VDatabase database;
    NMemory::VMemEcuSharedData* ecuSharedData;
    NMemory::VMemProtocol* protocol;
    NMemory::VMemFunctionalGroup* functionalGroup;
    NMemory::VMemBaseVariant* baseVariant;
    NMemory::VMemEcuVariant* ecuVariant;
};

} // namespace NBench
