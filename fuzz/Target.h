// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>

/// What libFuzzer calls with each input, and the replay program with each file. Every target defines it.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);
