// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include <diagkit/conformance/Conformance.h>

#include "ConformanceTest.h"
#include "own_model/Database.h"

namespace NTest {

/// The model of examples/own_model with one ECU-SHARED-DATA, to which a test adds something that breaks a promise.
class VBrokenModel : public testing::Test {
protected:
    VBrokenModel() : m_text(L"DIAG-LAYER-CONTAINER name=C id=C\n  ECU-SHARED-DATA name=L id=L\n"), m_database(m_text) {}

    NOwnModel::VContainer& Container() {
        return static_cast<NOwnModel::VContainer&>(*m_database.GetRoot().DiagLayerContainerCollection().Begin());
    }
    NOwnModel::VEcuSharedDataLayer& Layer() {
        return dynamic_cast<NOwnModel::VEcuSharedDataLayer&>(*Container().DiagLayerCollection().Begin());
    }

    /// An origin in the layer for an element of a tag.
    NOwnModel::VOrigin Origin(NOwnModel::Tag tag, std::wstring const& name = L"X") {
        m_rows.emplace_back();
        m_rows.back().tag = tag;
        m_rows.back().name = name;
        return {m_rows.back(), &Layer(), m_database.GetIndex()};
    }

    /// Puts a broken element among the layer's DIAG-COMMs.
    template <class DiagComm>
    DiagComm& Add(NOwnModel::Tag tag, std::wstring const& name = L"X") {
        return Layer().DiagCommProxyCollection().Add(std::make_unique<DiagComm>(Origin(tag, name)));
    }

    std::vector<NConformance::VViolation> Check() { return NConformance::CheckModel({m_database.GetOdx()}); }

    /// The names of the checks that report something, each once, in the order of the violations.
    std::string Found() { return Found(m_database.GetOdx()); }
    static std::string Found(NODX201::VOdx& odx) {
        std::string names;
        std::wstring last;
        for (NConformance::VViolation const& violation : NConformance::CheckModel({odx})) {
            if (violation.check != last) {
                names += (names.empty() ? "" : " ") + std::string(violation.check.begin(), violation.check.end());
                last = violation.check;
            }
        }
        return names;
    }

    std::wistringstream m_text;
    NOwnModel::VDatabase m_database;
    std::deque<NOwnModel::VRow> m_rows;
};

} // namespace NTest
