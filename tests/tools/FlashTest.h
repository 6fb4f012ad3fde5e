// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <gtest/gtest.h>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/Flash.h>

#include "support/GraphTest.h"
#include "support/RecordedAssertions.h"
#include "support/VerifyModel.h"

namespace NTest {

/// A test over one FLASH. The elements that it adds have the names given by the test.
class VFlashTest : public testing::Test {
protected:
    NMemory::VMemMem& AddMem() { return m_flash.AddEcuMem(L"EcuMem").GetMem(); }

    template <class View>
    static std::wstring Names(View& view) {
        std::wstring text;
        for (auto& element : view) {
            text +=
                (text.empty() ? L"" : L" ") + std::wstring(dynamic_cast<NODX201::VOdxElement&>(element).GetShortName());
        }
        return text;
    }

    VRecordedAssertions m_assertions;
    NMemory::VDatabase m_database;
    NMemory::VMemFlash& m_flash = m_database.AddFlash(L"Flash");
};

} // namespace NTest
