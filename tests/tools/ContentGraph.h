// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "support/Graph.h"
#include "support/GraphTest.h"
#include "support/PrintView.h"
#include "support/RecordedAssertions.h"
#include "support/VerifyModel.h"

namespace NTest {

/// What the entries of a layer graph represent. They keep their IDs.
enum class VContent {
    DiagComms,         ///< DIAG-COMMs
    Dops,              ///< `Read` a DATA-OBJECT-PROP, `Read!` a STRUCTURE; references become nothing
    DiagVariables,     ///< `Read` and `Read!` a DIAG-VARIABLE, `->Lib.Read` a DIAG-VARIABLE-REF; nothing in a PROTOCOL
    GlobalNegResponses ///< `Read` a GLOBAL-NEG-RESPONSE, `Read!` a NEG-RESPONSE; a reference becomes a POS-RESPONSE
};

/// The graph of the plan, with entries as given by the content. Exclusions also exclude DIAG-VARIABLEs.
std::unique_ptr<VGraph> MakeContentGraph(VGraphPlan const& plan, VContent content);

/// An element by its ID; throws when there is none of the class.
template <class Element>
Element& ElementById(NMemory::VDatabase& database, std::wstring const& id) {
    NMemory::VIdIndex::VEntry const* const entry = database.GetIdIndex().Find(id);
    if (entry == nullptr) {
        throw std::invalid_argument("no element has the ID");
    }
    return dynamic_cast<Element&>(*entry->first);
}

/// A view in print, `name@owner name@owner` in view order.
template <class View>
std::wstring PrintEntries(View& view) {
    std::wstring text;
    for (auto& element : view) {
        text += (text.empty() ? L"" : L" ") + std::wstring(element.GetShortName()) + L"@" + LayerNameOf(element);
    }
    return text;
}

/// A test over one layer graph with such content.
class VContentTest : public testing::Test {
protected:
    explicit VContentTest(VContent content) : m_content(content) {}

    void Graph(wchar_t const* text);

    NODX201::VDiagLayer& Layer(wchar_t const* name) { return m_graph->Layer(name); }
    NMemory::VDatabase& Database() { return m_graph->Database(); }

    template <class Kind>
    Kind& LayerAs(wchar_t const* name) {
        return m_graph->LayerAs<Kind>(name);
    }

    template <class Element>
    Element& ById(wchar_t const* id) {
        return ElementById<Element>(Database(), id);
    }

    VRecordedAssertions m_assertions;
    std::unique_ptr<VGraph> m_graph;

private:
    VContent m_content;
};

} // namespace NTest
