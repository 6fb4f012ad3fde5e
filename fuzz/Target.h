// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>

/// Called by libFuzzer with each input, and by the replay program with each file. Every target defines it.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);
