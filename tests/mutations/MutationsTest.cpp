// SPDX-License-Identifier: Apache-2.0

// Ten thousand changes of the sample's documents: each is loaded, checked and used in all ways, and none of that may
// crash or take long. `DIAGKIT_MUTATIONS` sets another number of changes, `DIAGKIT_MUTATION` a single one.

#include <algorithm>
#include <cstdlib>
#include <ctime>

#include <expat.h>
#include <gtest/gtest.h>

#include <fuzz/ScratchFile.h>
#include <fuzz/UseDatabase.h>

#include "mutations/Mutations.h"

namespace NTest {
namespace {

constexpr std::uint32_t kMutations = 10000;
constexpr std::uint32_t kShards = 10; // run in parallel
constexpr double kMostSeconds = 1;    // of the processor: other load of the machine does not count

std::vector<VSampleDocument> const& Documents() {
    static std::vector<VSampleDocument> const documents = ReadSampleDocuments(DIAGKIT_SAMPLE_PARTS);
    return documents;
}

char const* NameOf(VMutationKind kind) {
    static constexpr char const* kNames[kMutationKinds] = {
        "element deleted", "element duplicated", "elements swapped",
        "element renamed", "attribute deleted",  "bytes flipped",
    };
    return kNames[static_cast<int>(kind)];
}

/// As defined by XML, by a parser without the reader's leniencies.
bool IsWellFormed(std::string const& bytes) {
    XML_Parser const parser = XML_ParserCreate(nullptr);
    bool const isWellFormed = XML_Parse(parser, bytes.data(), static_cast<int>(bytes.size()), 1) == XML_STATUS_OK;
    XML_ParserFree(parser);
    return isWellFormed;
}

bool IsOfMissing(NReader::VDiagnostic const& diagnostic) {
    return diagnostic.code == "missing-child" || diagnostic.code == "missing-attribute" ||
           diagnostic.code == "missing-model-version";
}

/// The result of loading and using a document.
struct VOutcome {
    bool isLoaded = false;
    std::size_t documents = 0;
    std::size_t diagnostics = 0;
    std::size_t missing = 0; ///< of these, that something required is missing
    double seconds = 0;
};

VOutcome LoadAndUse(std::vector<std::string> const& paths) {
    std::clock_t const start = std::clock();
    NReader::VReadOptions options;
    options.keepsElements = true;
    NReader::VReadResult result = NReader::ReadOdx(paths, options);
    VOutcome outcome;
    outcome.isLoaded = result.database != nullptr;
    outcome.documents = result.documents.size();
    auto const diagnostics = outcome.isLoaded ? NFuzz::UseDatabase(result) : result.diagnostics;
    outcome.diagnostics = diagnostics.size();
    outcome.missing = static_cast<std::size_t>(std::count_if(diagnostics.begin(), diagnostics.end(), &IsOfMissing));
    outcome.seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    return outcome;
}

std::vector<std::string> SamplePaths() {
    std::vector<std::string> paths;
    for (VSampleDocument const& document : Documents()) {
        paths.push_back(document.path);
    }
    return paths;
}

/// The files of a mutation: of every fifth the whole sample, with the changed document in place of its own; of the
/// others, to save time, that document alone.
std::vector<std::string> PathsOf(VMutation const& mutation, std::uint32_t number) {
    static NFuzz::VScratchFile file(".odx");
    file.Write(mutation.bytes);
    if (number % 5 != 0) {
        return {file.Path()};
    }
    std::vector<std::string> paths = SamplePaths();
    paths[mutation.document] = file.Path();
    return paths;
}

std::uint32_t NumberFrom(char const* variable, std::uint32_t otherwise) {
    char const* const text = std::getenv(variable);
    return text != nullptr ? static_cast<std::uint32_t>(std::strtoul(text, nullptr, 10)) : otherwise;
}

void Try(std::uint32_t number) {
    VMutation const mutation = Mutate(Documents(), number);
    SCOPED_TRACE("mutation " + std::to_string(number) + ": " + NameOf(mutation.kind) + " in document " +
                 std::to_string(mutation.document) + " at byte " + std::to_string(mutation.offset));
    std::vector<std::string> const paths = PathsOf(mutation, number);
    VOutcome const outcome = LoadAndUse(paths);
    EXPECT_LT(outcome.seconds, kMostSeconds);
    if (mutation.kind != VMutationKind::FlipBytes || (mutation.isCategoryIntact && IsWellFormed(mutation.bytes))) {
        EXPECT_TRUE(outcome.isLoaded);
        EXPECT_EQ(outcome.documents, paths.size());
    }
    if (mutation.isRequiredGone) {
        EXPECT_GE(outcome.missing, 1U) << "nothing is said of the required part that is gone";
    }
}

TEST(MutationsTest, TheSampleAsItIsHasNoDiagnostics) {
    VOutcome const outcome = LoadAndUse(SamplePaths());
    EXPECT_EQ(outcome.documents, Documents().size());
    EXPECT_EQ(outcome.diagnostics, 0U);
}

TEST(MutationsTest, EveryKindKeepsItsPromise) {
    std::size_t required[kMutationKinds] = {};
    std::size_t unreadable = 0;
    std::size_t unchanged = 0; // two equal elements were swapped
    for (std::uint32_t number = 0; number < kMutations; ++number) {
        VMutation const mutation = Mutate(Documents(), number);
        required[static_cast<int>(mutation.kind)] += mutation.isRequiredGone ? 1 : 0;
        bool const isWellFormed = IsWellFormed(mutation.bytes);
        unreadable += isWellFormed ? 0 : 1;
        EXPECT_TRUE(isWellFormed || mutation.kind == VMutationKind::FlipBytes) << number;
        unchanged += mutation.bytes == Documents()[mutation.document].bytes ? 1 : 0;
    }
    EXPECT_GT(required[static_cast<int>(VMutationKind::DeleteElement)], 500U);
    EXPECT_GT(required[static_cast<int>(VMutationKind::DeleteAttribute)], 500U);
    EXPECT_GT(unreadable, 100U);
    EXPECT_LT(unchanged, 50U);
}

class VMutationShardsTest : public testing::TestWithParam<std::uint32_t> {};

TEST_P(VMutationShardsTest, NoneCrashesHangsOrIsPassedOverInSilence) {
    std::uint32_t const count = NumberFrom("DIAGKIT_MUTATIONS", kMutations);
    std::uint32_t const alone = NumberFrom("DIAGKIT_MUTATION", count);
    for (std::uint32_t number = GetParam() * count / kShards; number < (GetParam() + 1) * count / kShards; ++number) {
        if (alone == count || alone == number) {
            Try(number);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, VMutationShardsTest, testing::Range(0U, kShards));

} // namespace
} // namespace NTest
