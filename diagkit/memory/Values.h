// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>

#include <diagkit/model/Compu.h>

/// Values that several classes hold, asked of any element, with no cast to its class: the contract does not have them.
/// An element that has no such value, or is of another model, answers as one in which it is absent.

namespace NMemory {

/// BYTE-POSITION: of a PARAM of any kind, a MUX, a SWITCH-KEY, a DETERMINE-NUMBER-OF-ITEMS. None where it is absent or
/// no number.
std::optional<std::uint32_t> BytePositionOf(NODX201::VOdxElement const& element);
std::optional<std::uint32_t> BitPositionOf(NODX201::VOdxElement const& element); ///< BIT-POSITION of the same
/// BIT-LENGTH: of a RESERVED, and of a DIAG-CODED-TYPE that has one.
std::optional<std::uint32_t> BitLengthOf(NODX201::VOdxElement const& element);

/// The constant that an element stands for, as written; "" without one. CODED-VALUE of a CODED-CONST or RESERVED,
/// PHYS-CONSTANT-VALUE of a PHYS-CONST, PHYSICAL-DEFAULT-VALUE of a VALUE, INPUT-PARAM or COMPARAM, EXPECTED-VALUE of a
/// MATCHING-PARAMETER, V or else VT of a COMPU-CONST, COMPU-DEFAULT-VALUE or COMPU-INVERSE-VALUE.
wchar_t const* ConstantOf(NODX201::VOdxElement& element);

/// A limit, as written.
struct VLimitValue {
    wchar_t const* text;         ///< "" without a number, as in an INFINITE one
    wchar_t const* intervalType; ///< OPEN, CLOSED or INFINITE: CLOSED where it is absent
};

/// A LOWER-LIMIT or UPPER-LIMIT; none for one of another model.
std::optional<VLimitValue> LimitOf(NODX201::VLimit const& limit);

/// What lies between two limits.
struct VLimits {
    std::optional<VLimitValue> lower; ///< none without a LOWER-LIMIT
    std::optional<VLimitValue> upper; ///< none without an UPPER-LIMIT
};

/// The limits of a COMPU-SCALE, SCALE-CONSTR, INTERNAL-CONSTR or CASE.
VLimits LimitsOf(NODX201::VOdxElement& element);

} // namespace NMemory
