// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

namespace NDIAGKIT {

/// The manufacturer of a vehicle. The values are result codes that clients store; those in between are not in use.
enum class VManufacturer : std::int32_t {
    Daimler = 1,
    Claas = 3,
    Pag = 4, ///< Porsche
    AudiVw = 8,
    Bmw = 10,
    Fiat = 12,
    Gm = 15,
    Psa = 19,
    Unknown = 36, ///< undetermined: no manufacturer matches, or several do
};

} // namespace NDIAGKIT
