// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/Layers.h>

namespace NBench {

/// An ECU-VARIANT whose walk makes at least the given number of visits: services with a request and a response, whose
/// parameters lead to DATA-OBJECT-PROPs with everything that belongs to them and to structures, as in real databases.
struct VServiceLayer {
    explicit VServiceLayer(std::size_t visits);

    NMemory::VDatabase database;
    NMemory::VMemEcuVariant* layer;
};

/// An ECU-VARIANT with only a dictionary, whose walk makes at least the given number of visits.
struct VDictionaryLayer {
    explicit VDictionaryLayer(std::size_t visits);

    NMemory::VDatabase database;
    NMemory::VMemEcuVariant* layer;
};

} // namespace NBench
