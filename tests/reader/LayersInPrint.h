// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <diagkit/memory/Database.h>

namespace NTest {

/// The layers of a database in document order, a line each: kind, short name, and behind `<` the parents that resolve,
/// with `-name` for each DIAG-COMM that a parent's is not inherited. A parent that does not resolve is `?`.
std::wstring PrintLayers(NMemory::VDatabase& database);

/// The diag-comm views of all layers, a line each: `Layer: name@owner name@owner`.
std::wstring PrintDiagCommViews(NMemory::VDatabase& database);

/// The diag-variable views in the same form.
std::wstring PrintDiagVariableViews(NMemory::VDatabase& database);

} // namespace NTest
