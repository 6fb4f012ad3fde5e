// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <diagkit/memory/Database.h>

namespace NTest {

/// The layers of a database in document order, one per line: kind, short name, and after `<` the parents that resolve,
/// with `-name` for each DIAG-COMM that is not inherited from a parent. A parent that does not resolve is `?`.
std::wstring PrintLayers(NMemory::VDatabase& database);

/// The diag-comm views of all layers, one per line: `Layer: name@owner name@owner`.
std::wstring PrintDiagCommViews(NMemory::VDatabase& database);

/// The diag-variable views in the same form.
std::wstring PrintDiagVariableViews(NMemory::VDatabase& database);

} // namespace NTest
