// SPDX-License-Identifier: Apache-2.0
#include <fstream>
#include <iterator>
#include <map>
#include <regex>

#include <diagkit/reader/Utf8.h>

#include "query/UsesTest.h"

namespace NTest {
namespace {

/// References by ID as found by a search of the text: how often each ID occurs.
std::map<std::string, std::size_t> NamedIn(std::vector<std::string> const& files) {
    std::map<std::string, std::size_t> named;
    std::regex const reference("ID-REF\\s*=\\s*[\"']([^\"']*)");
    for (std::string const& file : files) {
        std::ifstream stream(file);
        std::string const text{std::istreambuf_iterator<char>(stream), {}};
        for (std::sregex_iterator match(text.begin(), text.end(), reference), end; match != end; ++match) {
            ++named[(*match)[1]];
        }
    }
    return named;
}

class VSamplesUsesTest : public VUsesTest {
protected:
    /// Every element with an ID has as many references as in the text; where no two elements share an ID.
    void CompareWithText(std::vector<std::string> const& files) {
        ReadFiles(files);
        std::map<std::string, std::size_t> named = NamedIn(files);
        NQuery::VUses const uses(Database(), m_result.elements);
        std::size_t count = 0;
        for (NODX201::VOdxElement const* const element : m_result.elements) {
            auto const* const referencable = dynamic_cast<NODX201::VReferencable const*>(element);
            if (referencable == nullptr || *referencable->GetId() == L'\0') {
                continue;
            }
            std::size_t byId = 0;
            for (NQuery::VUse const& use : uses.Of(*element)) {
                byId += dynamic_cast<NODX201::VOdxLink const*>(&use.reference->GetLink()) != nullptr ? 1 : 0;
            }
            std::string const id = NReader::ToUtf8(referencable->GetId());
            EXPECT_EQ(byId, named[id]) << id;
            count += byId;
        }
        EXPECT_GT(count, 0U);
    }
};

TEST_F(VSamplesUsesTest, OurOwnIsReferredToAsOftenAsItsTextNamesIds) {
    std::string const folder = std::string(DIAGKIT_SAMPLES) + '/';
    CompareWithText({folder + "BodyCommunication.odx-c", folder + "BodyProtocols.odx-d",
                     folder + "SharedLibraries.odx-d", folder + "WiperFamily.odx-d", folder + "WiperFlash.odx-f",
                     folder + "WiperJobs.odx-m"});
}

TEST_F(VSamplesUsesTest, NothingOfOurOwnIsUnused) {
    ReadFiles({std::string(DIAGKIT_SAMPLES) + "/WiperDatabase.pdx"});
    EXPECT_EQ(Unused(), "");
}

/// A structure of UdsOnCan refers to a DOP that FrontWiper has as well.
TEST_F(VSamplesUsesTest, AShortNameOfOurOwnMeansWhatEachLayerHas) {
    ReadFiles({std::string(DIAGKIT_SAMPLES) + "/WiperDatabase.pdx"});
    EXPECT_EQ(Uses("UdsOnCan.DataObject.TroubleCode"), "DOP-SNREF from TroubleCode in UdsOnCan BodyElectronics\n"
                                                       "DOP-REF from AllGroups\n");
    std::string const inFamily = " in FrontWiper FrontWiperBasic FrontWiperRainSensor FrontWiperRainLight\n";
    EXPECT_EQ(Uses("FrontWiper.TroubleCode"), "DOP-SNREF from TroubleCode" + inFamily + "DOP-SNREF from TroubleCode" +
                                                  inFamily + "DOP-REF from TroubleCode\n");
}

#ifdef DIAGKIT_SHARED_SAMPLES
TEST_F(VSamplesUsesTest, WhatOthersWroteIsReferredToAsOftenAsItsTextNamesIds) {
    CompareWithText({std::string(DIAGKIT_SHARED_SAMPLES) + "/snref-base.odx-d"});
    CompareWithText({std::string(DIAGKIT_SHARED_SAMPLES) + "/CVC00000-unbound-prefix.odx"});
}

TEST_F(VSamplesUsesTest, WhatOthersWroteHasTheseUnusedElements) {
    ReadFiles({std::string(DIAGKIT_SHARED_SAMPLES) + "/snref-base.odx-d"});
    EXPECT_EQ(Unused(), "table_a"); // TABLE-SNREF is of a later version
}
#endif

} // namespace
} // namespace NTest
