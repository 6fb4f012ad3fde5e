// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/TableView.h>

#include <gtest/gtest.h>

#include <diagkit/memory/Tables.h>

#include "support/GraphTest.h"

namespace NTest {
namespace {

class VTableViewTest : public VGraphTest {
protected:
    template <class Kind>
    void AddTable(wchar_t const* layer, wchar_t const* shortName) {
        LayerAs<Kind>(layer).MakeDiagDataDictionarySpec().AddTable(shortName);
    }

    std::wstring Tables(wchar_t const* layer) {
        NDIAGKIT::VOpBuildTableView builder;
        NDIAGKIT::VTableView& view = *builder.CreateTableView(Layer(layer));
        std::wstring text;
        for (NODX201::VTable& table : view) {
            text += (text.empty() ? L"" : L" ") + std::wstring(table.GetShortName()) + L"@" + LayerNameOf(table);
        }
        builder.DestroyTableView(view);
        return text;
    }
};

TEST_F(VTableViewTest, OwnTablesHideInheritedOnesOfTheirNames) {
    Graph(L"esd Lib \n prot Uds \n base Bv < Lib Uds-Speeds \n ecu Ecu < Bv");
    AddTable<NMemory::VMemEcuSharedData>(L"Lib", L"Speeds");
    AddTable<NMemory::VMemEcuSharedData>(L"Lib", L"Gears");
    AddTable<NMemory::VMemProtocol>(L"Uds", L"Speeds");
    AddTable<NMemory::VMemEcuVariant>(L"Ecu", L"Gears");
    EXPECT_EQ(Tables(L"Bv"), L"Speeds@Uds Gears@Lib");
    EXPECT_EQ(Tables(L"Ecu"), L"Gears@Ecu Speeds@Uds");
}

} // namespace
} // namespace NTest
