// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/OdxCategoryInfo.h>

#include <memory>
#include <type_traits>

#include <gtest/gtest.h>

#include "support/Slots.h"

namespace NTest {
namespace {

using NDIAGKIT::VOdxCategoryInfo;

static_assert(std::has_virtual_destructor_v<VOdxCategoryInfo>);
static_assert(std::is_default_constructible_v<VOdxCategoryInfo> && std::is_copy_constructible_v<VOdxCategoryInfo>);

TEST(OdxCategoryInfoTest, BothNamesAreEmptyAtFirst) {
    VOdxCategoryInfo const info;
    EXPECT_EQ(info.GetFileName(), std::wstring());
    EXPECT_EQ(info.GetShortName(), std::wstring());
}

TEST(OdxCategoryInfoTest, TheSettersCopy) {
    VOdxCategoryInfo info;
    wchar_t fileName[] = L"Doors.odx";
    wchar_t shortName[] = L"Doors";
    info.SetFileName(fileName);
    info.SetShortName(shortName);
    fileName[0] = shortName[0] = L'X';
    EXPECT_EQ(info.GetFileName(), std::wstring(L"Doors.odx"));
    EXPECT_EQ(info.GetShortName(), std::wstring(L"Doors"));
    EXPECT_EQ(info.GetFileName(), info.GetFileName()) << "the stored text, not a copy of it";
}

TEST(OdxCategoryInfoTest, CreateFromFileAndShortNameMakesARecordThatTheCallerOwns) {
    std::unique_ptr<VOdxCategoryInfo> const info(&VOdxCategoryInfo::CreateFromFileAndShortName(L"Doors.odx", L"Doors"));
    EXPECT_EQ(info->GetFileName(), std::wstring(L"Doors.odx"));
    EXPECT_EQ(info->GetShortName(), std::wstring(L"Doors"));
}

TEST(OdxCategoryInfoTest, ACloneIsACopyOfItsOwn) {
    VOdxCategoryInfo original;
    original.SetFileName(L"Doors.odx");
    original.SetShortName(L"Doors");
    std::unique_ptr<VOdxCategoryInfo> const clone(&original.Clone());
    original.SetFileName(L"Other.odx");
    original.SetShortName(L"Other");
    EXPECT_NE(clone.get(), &original);
    EXPECT_EQ(clone->GetFileName(), std::wstring(L"Doors.odx"));
    EXPECT_EQ(clone->GetShortName(), std::wstring(L"Doors"));
}

TEST(OdxCategoryInfoTest, ACopyIsMadeThroughTheSourcesGetters) {
    class VAnswering : public VOdxCategoryInfo {
    public:
        wchar_t const* GetFileName() const override { return L"answered file"; }
        wchar_t const* GetShortName() const override { return L"answered name"; }
    } const answering;
    VOdxCategoryInfo const copy(static_cast<VOdxCategoryInfo const&>(answering));
    EXPECT_EQ(copy.GetFileName(), std::wstring(L"answered file"));
    EXPECT_EQ(copy.GetShortName(), std::wstring(L"answered name"));
}

#ifdef DIAGKIT_TEST_SLOTS
TEST(OdxCategoryInfoTest, TheOperationsStandInTheirOrder) {
    EXPECT_EQ(SlotsOf(&VOdxCategoryInfo::GetFileName, &VOdxCategoryInfo::SetFileName, &VOdxCategoryInfo::GetShortName,
                      &VOdxCategoryInfo::SetShortName),
              SlotsAfterDestructor(4));
}
#endif

} // namespace
} // namespace NTest
