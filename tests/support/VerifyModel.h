// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <diagkit/memory/Database.h>

namespace NTest {

/// The inconsistencies of a model, one per line: owners, link targets, collection counts and the database's own counts.
/// Empty for a consistent model.
std::vector<std::wstring> FaultsOf(NMemory::VDatabase& database);

/// Fails the test for every fault. Every model set up by a test is checked here, and every model after a removal.
void VerifyModel(NMemory::VDatabase& database);

} // namespace NTest
