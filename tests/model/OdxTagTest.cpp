// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/OdxTag.h>

#include <set>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include <diagkit/model/SearchRange.h>

namespace NTest {
namespace {

using NODX201::VOdxTagEnum;

struct VTagRow {
    VOdxTagEnum tag;
    int value;
    std::wstring element;
    std::wstring type;
};

#define DIAGKIT_TEST_WIDE_(text) L##text
#define DIAGKIT_TEST_WIDE(text) DIAGKIT_TEST_WIDE_(text)

VTagRow const kRows[] = {
#define ODX_TAG(name, value, element, type)                                                                            \
    {VOdxTagEnum::name, value, DIAGKIT_TEST_WIDE(element), DIAGKIT_TEST_WIDE(type)},
#include <diagkit/model/OdxTags.def>
};

TEST(OdxTagTest, TheFixedValues) {
    EXPECT_EQ(static_cast<int>(VOdxTagEnum::DiagService), 111);
    EXPECT_EQ(static_cast<int>(VOdxTagEnum::GlobalNegResponse), 233);
}

TEST(OdxTagTest, EveryKindHasAValueAndATextOfItsOwn) {
    std::set<int> values{static_cast<int>(VOdxTagEnum::None)};
    std::set<std::pair<std::wstring, std::wstring>> texts;
    for (VTagRow const& row : kRows) {
        EXPECT_TRUE(values.insert(row.value).second) << row.element << " has the value of another kind";
        EXPECT_TRUE(texts.emplace(row.element, row.type).second) << row.element << " " << row.type << " comes twice";
        EXPECT_FALSE(row.element.empty()) << row.value;
    }
}

TEST(OdxTagTest, TextsAreThoseOfTheList) {
    for (VTagRow const& row : kRows) {
        EXPECT_EQ(NODX201::OdxTagText(row.tag), row.element);
        EXPECT_EQ(NODX201::OdxTypeText(row.tag), row.type);
    }
}

TEST(OdxTagTest, SomeTexts) {
    EXPECT_STREQ(NODX201::OdxTagText(VOdxTagEnum::DiagService), L"DIAG-SERVICE");
    EXPECT_STREQ(NODX201::OdxTypeText(VOdxTagEnum::DiagService), L"");
    EXPECT_STREQ(NODX201::OdxTagText(VOdxTagEnum::ProtocolRef), L"PARENT-REF");
    EXPECT_STREQ(NODX201::OdxTypeText(VOdxTagEnum::ProtocolRef), L"PROTOCOL-REF");
    EXPECT_STREQ(NODX201::OdxTagText(VOdxTagEnum::CodedConst), L"PARAM");
    EXPECT_STREQ(NODX201::OdxTypeText(VOdxTagEnum::CodedConst), L"CODED-CONST");
}

TEST(OdxTagTest, WhatIsNoKindHasNoText) {
    EXPECT_STREQ(NODX201::OdxTagText(VOdxTagEnum::None), L"");
    EXPECT_STREQ(NODX201::OdxTypeText(VOdxTagEnum::None), L"");
    EXPECT_STREQ(NODX201::OdxTagText(static_cast<VOdxTagEnum>(100000)), L"");
    EXPECT_STREQ(NODX201::OdxTypeText(static_cast<VOdxTagEnum>(-1)), L"");
}

TEST(SearchRangeTest, HasTheValuesZeroToFive) {
    EXPECT_EQ(static_cast<int>(NODX201::VSearchRange::Responses), 0);
    EXPECT_EQ(static_cast<int>(NODX201::VSearchRange::RequestAndNegResponses), 1);
    EXPECT_EQ(static_cast<int>(NODX201::VSearchRange::Nothing), 2);
    EXPECT_EQ(static_cast<int>(NODX201::VSearchRange::Request), 3);
    EXPECT_EQ(static_cast<int>(NODX201::VSearchRange::PosResponses), 4);
    EXPECT_EQ(static_cast<int>(NODX201::VSearchRange::RequestAndResponses), 5);
}

} // namespace
} // namespace NTest
