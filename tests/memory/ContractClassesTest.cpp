// SPDX-License-Identifier: Apache-2.0

// The memory model has a concrete class for every class of the contract. That the list is complete is checked by
// tests/structure/check_contract_classes.py.

#include <type_traits>

#include <gtest/gtest.h>

#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/Flash.h>
#include <diagkit/memory/Odx.h>
#include <diagkit/memory/ProcessingInstructions.h>

namespace NTest {
namespace {

#define CONCRETE(contract, memory)                                                                                     \
    static_assert(std::is_abstract_v<NODX201::contract>, #contract);                                                   \
    static_assert(std::is_base_of_v<NODX201::contract, NMemory::memory>, #memory);                                     \
    static_assert(!std::is_abstract_v<NMemory::memory>, #memory " lacks an operation of the contract");
#define BASE(contract) static_assert(!std::is_default_constructible_v<NODX201::contract>, #contract);
#include "memory/ContractClasses.def"

} // namespace
} // namespace NTest
