// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/Layers.h>

#include "support/GraphPlan.h"

namespace NTest {

/// A layer graph as a database of the memory model: one container, "Graph", with the layers in the order of the plan.
class VGraph {
public:
    explicit VGraph(VGraphPlan const& plan);
    explicit VGraph(std::wstring const& text); ///< in the language of `GraphText.h`; fails the test if unsound

    NMemory::VDatabase& Database() { return m_database; }
    NMemory::VMemDiagLayerContainer& Container() { return *m_container; }

    NODX201::VDiagLayer& Layer(std::wstring const& name); ///< throws when there is none

    template <class Kind>
    Kind& LayerAs(std::wstring const& name) {
        return dynamic_cast<Kind&>(Layer(name));
    }

    /// A service or job by ID, as `Lib.Reset`; throws when there is none.
    NODX201::VDiagComm& DiagComm(std::wstring const& id);

private:
    void Build(VLayerPlan const& plan);

    NMemory::VDatabase m_database;
    NMemory::VMemDiagLayerContainer* m_container;
};

} // namespace NTest
