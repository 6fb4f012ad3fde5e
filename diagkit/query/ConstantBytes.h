// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <diagkit/query/MessageLayout.h>

/// The bytes of a message that are the same whenever it is sent.

namespace NQuery {

/// A byte of a message. The bits in `mask` always have the values in `value`; the others depend on data.
struct VConstantByte {
    std::uint8_t value = 0;
    std::uint8_t mask = 0;
};

/// The constant bytes of a layout, from its first byte to the end of its fixed part or to `maxBytes`. Constant are the
/// bits of CODED-CONST and RESERVED parameters at a fixed position whose CODED-VALUE is a number (A_UINT32, A_INT32) or
/// hexadecimal (A_BYTEFIELD); a RESERVED parameter without CODED-VALUE is 0. Where parameters overlap, the later one
/// counts, as it is written last.
std::vector<VConstantByte> ConstantBytesOf(VMessageLayout const& layout, std::size_t maxBytes = 4096);

/// The same as hexadecimal text, two digits for each byte with a blank between. A digit that is not constant is '.';
/// "..." at the end stands for further bytes whose number depends on data, or which are beyond `maxBytes`: "22 F1 90",
/// "BA .. ..", "2E 0. ...".
std::string ConstantBytesText(VMessageLayout const& layout, std::size_t maxBytes = 64);

} // namespace NQuery
