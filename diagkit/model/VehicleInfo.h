// SPDX-License-Identifier: Apache-2.0
#pragma once

/// The two enumerations of VEHICLE-INFO-SPEC. The toolkit reads nothing else of that category, so the classes exist
/// only as scopes of the enumerations.

namespace NODX201 {

/// PHYSICAL-VEHICLE-LINK
class VPhysicalVehicleLink {
public:
    /// @TYPE
    enum class VPhysicalLinkType : int {
        Iso118982Dwcan = 0,
        Iso118983Dwftcan,
        Iso119921Dwcan,
        Iso91412Uart,
        Iso142301Uart,
        Iso11898Raw,
        SaeJ1850Vpw,
        SaeJ1850Pwm,
        SaeJ2610Uart,
        SaeJ1708Uart,
        SaeJ193911Dwcan,
        Gmw3089Swcan,
        Xde5024Uart,
        CcdUart
    };

    VPhysicalVehicleLink() = delete;
};

/// VEHICLE-CONNECTOR-PIN
class VVehicleConnectorPin {
public:
    /// @TYPE
    enum class VPinType : int { Hi = 0, Low, K, L, Tx, Rx, Plus, Minus, Single };

    VVehicleConnectorPin() = delete;
};

} // namespace NODX201
