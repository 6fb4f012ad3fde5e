// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "support/Graph.h"
#include "support/PrintView.h"
#include "support/RecordedAssertions.h"

namespace NTest {

/// A test over one layer graph. Failed assertions are recorded; a test that expects some calls `Take`.
class VGraphTest : public testing::Test {
protected:
    void Graph(wchar_t const* text) { m_graph = std::make_unique<VGraph>(std::wstring(text)); }

    NODX201::VDiagLayer& Layer(wchar_t const* name) { return m_graph->Layer(name); }

    template <class Kind>
    Kind& LayerAs(wchar_t const* name) {
        return m_graph->LayerAs<Kind>(name);
    }

    NODX201::VDiagComm& DiagComm(wchar_t const* id) { return m_graph->DiagComm(id); }

    /// The DIAG-COMMs visible in a layer, as `name@owner name@owner`.
    std::wstring DiagComms(wchar_t const* layer) { return PrintDiagComms(Layer(layer)); }

    VRecordedAssertions m_assertions;
    std::unique_ptr<VGraph> m_graph;
};

using VAssertionList = std::vector<VRecordedAssertion>;

} // namespace NTest
