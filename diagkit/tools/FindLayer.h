// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>
#include <vector>

#include <diagkit/Export.h>
#include <diagkit/model/Forward.h>

/// The layers of a database, and those of a name. All of these also take whatever has `GetOdx()`, as
/// `NMemory::VDatabase` does, in place of the root.

namespace NDIAGKIT {

/// Every layer, container by container, in document order.
DIAGKIT_EXPORT std::vector<NODX201::VDiagLayer*> LayersOf(NODX201::VOdx& odx);

/// The layers that the name fits, in document order: their SHORT-NAME or ID, or, with the SHORT-NAME of their container
/// before it, CONTAINER/SHORT-NAME or CONTAINER/ID. Compared exactly; "" fits none.
DIAGKIT_EXPORT std::vector<NODX201::VDiagLayer*> FindLayers(NODX201::VOdx& odx, std::wstring_view name);

/// The first of them; null when there is none.
DIAGKIT_EXPORT NODX201::VDiagLayer* FindLayer(NODX201::VOdx& odx, std::wstring_view name);

/// The same of a database that has a root.
template <class Database>
auto LayersOf(Database& database) -> decltype(LayersOf(database.GetOdx())) {
    return LayersOf(database.GetOdx());
}

/// The same of a database that has a root.
template <class Database>
auto FindLayers(Database& database, std::wstring_view name) -> decltype(FindLayers(database.GetOdx(), name)) {
    return FindLayers(database.GetOdx(), name);
}

/// The same of a database that has a root.
template <class Database>
auto FindLayer(Database& database, std::wstring_view name) -> decltype(FindLayer(database.GetOdx(), name)) {
    return FindLayer(database.GetOdx(), name);
}

} // namespace NDIAGKIT
