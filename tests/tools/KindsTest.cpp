// SPDX-License-Identifier: Apache-2.0

// The list of kinds. Compiling the recorder shows that each is a kind of the traversers, and a walk over the sample
// that they are called.

#include <iterator>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace NTest {
namespace {

constexpr wchar_t const* kElementKinds[] = {
#define TRAVERSER_KIND(kind, element) L## #kind,
#define TRAVERSER_TEXT_KIND(kind)
#include <diagkit/tools/TraverserKinds.def>
};

constexpr wchar_t const* kTextKinds[] = {
#define TRAVERSER_KIND(kind, element)
#define TRAVERSER_TEXT_KIND(kind) L## #kind,
#include <diagkit/tools/TraverserKinds.def>
};

TEST(KindsTest, ThereAre66OfDictionariesAnd26OfLayers) {
    std::set<std::wstring> kinds(std::begin(kElementKinds), std::end(kElementKinds));
    kinds.insert(std::begin(kTextKinds), std::end(kTextKinds));
    EXPECT_EQ(kinds.size(), 66u + 26u);
    EXPECT_EQ(std::size(kElementKinds) + std::size(kTextKinds), kinds.size()) << "a kind is there twice";
}

TEST(KindsTest, TwoKindsAreTexts) {
    EXPECT_EQ(std::set<std::wstring>(std::begin(kTextKinds), std::end(kTextKinds)),
              (std::set<std::wstring>{L"AutMethod", L"Role"}));
}

} // namespace
} // namespace NTest
