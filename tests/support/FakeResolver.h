// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <diagkit/memory/Database.h>
#include <diagkit/model/SnrefResolver.h>

namespace NTest {

/// The targets of short names in a context (a layer, flash, container or DIAG-COMM), and the calls of resolvers. It
/// outlives the resolvers that use it.
struct VFakeNames {
    using VKey = std::pair<std::wstring, NODX201::VOdxElement const*>;

    std::map<VKey, NODX201::VDiagComm*> diagComms;
    std::map<VKey, NODX201::VDiagVariable*> diagVariables;
    std::map<VKey, NODX201::VDopBase*> dops;
    std::map<VKey, NODX201::VDataObjectProp*> dataObjectProps;
    std::map<VKey, NODX201::VProtocol*> protocols;
    std::map<VKey, NODX201::VSession*> sessions;
    std::map<VKey, NODX201::IIdentIf*> idents;
    std::map<VKey, NODX201::IInParamIf*> inParams;
    std::map<VKey, NODX201::IOutParamIf*> outParams;

    std::vector<std::wstring> asked; ///< "operation name context", in order
    int started = 0;                 ///< resolvers made
    int alive = 0;

    /// A factory for `VDatabase::SetResolverFactory`.
    NMemory::VDatabase::VResolverFactory Factory();
};

} // namespace NTest
