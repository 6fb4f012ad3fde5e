// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <diagkit/memory/Database.h>

namespace NTest {

/// What is wrong with a model's inner agreement, a line each: owners, link targets, collection counts and the
/// database's own counts. Empty for a sound model.
std::vector<std::wstring> FaultsOf(NMemory::VDatabase& database);

/// Fails the test for every fault. Every set-up model passes here, and every model after a removal.
void VerifyModel(NMemory::VDatabase& database);

} // namespace NTest
