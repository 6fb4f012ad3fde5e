// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

namespace NDIAGKIT {

/// Who made a vehicle. The values are result codes that others store; those between are not in use.
enum class VManufacturer : std::int32_t {
    Daimler = 1,
    Claas = 3,
    Pag = 4, ///< Porsche
    AudiVw = 8,
    Bmw = 10,
    Fiat = 12,
    Gm = 15,
    Psa = 19,
    Unknown = 36, ///< undetermined: nobody's habits were found, or several makers'
};

} // namespace NDIAGKIT
