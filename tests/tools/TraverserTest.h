// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <gtest/gtest.h>

#include <diagkit/tools/OpResolveSnref.h>

#include "support/VerifyModel.h"
#include "tools/Recorder.h"

namespace NTest {

/// An ECU-VARIANT with a dictionary to fill, a library, and a recorder over the ECU-VARIANT. Where the order of
/// children matters, a test creates them in another one.
class VTraverserTest : public testing::Test {
protected:
    VTraverserTest() {
        m_database.SetResolverFactory([] { return std::make_unique<NDIAGKIT::VOpResolveSnref>(); });
    }

    static NMemory::VReference Nowhere() { return NMemory::VReference::ById(L"Nowhere"); }

    NMemory::VDatabase m_database;
    NMemory::VMemDiagLayerContainer& m_container = m_database.AddDiagLayerContainer(L"Container");
    NMemory::VMemEcuVariant& m_layer = m_container.AddEcuVariant(L"Layer");
    NMemory::VMemDiagDataDictionarySpec& m_dictionary = m_layer.MakeDiagDataDictionarySpec();
    NMemory::VMemEcuSharedData& m_library = m_container.AddEcuSharedData(L"Library");
    VRecorder m_recorder{m_layer};
};

} // namespace NTest
