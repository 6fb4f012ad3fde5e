// SPDX-License-Identifier: Apache-2.0

// The traversers over every layer of the sample: all hooks are called, and no element of the layers is left out.

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <diagkit/model/Odx.h>
#include <diagkit/reader/OdxReader.h>
#include <diagkit/reader/Utf8.h>

#include "tools/Recorder.h"

namespace NTest {
namespace {

using VNames = std::set<std::wstring>;
using VCountByTag = std::map<std::wstring, std::size_t>;

std::vector<std::string> Documents() {
    std::vector<std::string> documents;
    for (char const* const name : {"BodyCommunication.odx-c", "BodyProtocols.odx-d", "SharedLibraries.odx-d",
                                   "WiperFamily.odx-d", "WiperFlash.odx-f", "WiperJobs.odx-m"}) {
        documents.push_back(std::string(DIAGKIT_SAMPLES) + '/' + name);
    }
    return documents;
}

VNames const kElementKinds = {
#define TRAVERSER_KIND(kind, element) L## #kind,
#define TRAVERSER_TEXT_KIND(kind)
#include <diagkit/tools/TraverserKinds.def>
};

VNames const kTextKinds = {L"AutMethod", L"Role"};

VNames NamesOf(std::map<std::wstring, std::size_t> const& counts) {
    VNames names;
    for (auto const& [name, count] : counts) {
        names.insert(name);
    }
    return names;
}

bool IsInALayer(NODX201::VOdxObject const* x) {
    for (; x != nullptr; x = x->GetOwner()) {
        if (dynamic_cast<NODX201::VDiagLayer const*>(x) != nullptr) {
            return true;
        }
    }
    return false;
}

class SampleCoverageTest : public testing::Test {
protected:
    SampleCoverageTest() {
        for (NODX201::VDiagLayerContainer& container : m_result.database->GetOdx().DiagLayerContainerCollection()) {
            for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
                m_layers.push_back(&layer);
            }
        }
    }

    /// The calls of all walks together.
    VTranscript WalkAllLayers() {
        VTranscript all;
        for (NODX201::VDiagLayer* const layer : m_layers) {
            VRecorder recorder(*layer);
            recorder.m_transcript = std::move(all);
            recorder.WalkedLayer();
            all = std::move(recorder.m_transcript);
        }
        return all;
    }

    NReader::VReadResult m_result = NReader::ReadOdx(Documents());
    std::vector<NODX201::VDiagLayer*> m_layers;
};

// No descent leads to VisitField and VisitComplexDop: fields are visited as the kind that they are, and ComplexDop only
// lends its children to others. Both are called by a test directly.
VNames const kKindsThatNoDescentLeadsTo = {L"Field", L"ComplexDop"};

TEST_F(SampleCoverageTest, EveryHookIsCalled) {
    VTranscript const all = WalkAllLayers();
    VNames expected = kElementKinds;
    expected.insert(kTextKinds.begin(), kTextKinds.end());
    for (std::wstring const& kind : kKindsThatNoDescentLeadsTo) {
        expected.erase(kind);
    }
    EXPECT_EQ(expected.size(), 90u);
    EXPECT_EQ(NamesOf(all.m_before), expected);
    EXPECT_EQ(all.m_before, all.m_after);
}

// An independent count, from the documents as text

/// Start tags inside layers by name, and the texts of ROLEs and AUT-METHODs there.
class VTagCount {
public:
    explicit VTagCount(std::string const& path) {
        std::ifstream file(path, std::ios::binary);
        m_text.assign(std::istreambuf_iterator<char>(file), {});
        while (Next()) {
        }
    }

    VCountByTag m_counts;
    VNames m_texts;

private:
    /// One tag, comment or instruction; false behind the last.
    bool Next() {
        std::size_t const begin = m_text.find('<', m_place);
        if (begin == std::string::npos) {
            return false;
        }
        if (m_text.compare(begin, 4, "<!--") == 0) {
            m_place = m_text.find("-->", begin) + 3;
            return true;
        }
        m_place = m_text.find('>', begin) + 1;
        std::string const tag = m_text.substr(begin + 1, m_place - begin - 2);
        if (tag.front() == '/') {
            m_open.pop_back();
        } else if (tag.front() != '?') {
            m_open.push_back(tag.substr(0, tag.find_first_of(" \n\t/")));
            Count();
            if (tag.back() == '/') {
                m_open.pop_back();
            }
        }
        return true;
    }

    static bool IsLayer(std::string const& tag) {
        return tag == "PROTOCOL" || tag == "FUNCTIONAL-GROUP" || tag == "BASE-VARIANT" || tag == "ECU-VARIANT" ||
               tag == "ECU-SHARED-DATA";
    }

    /// The element around the innermost open one, at this number of levels further out.
    std::string const& Above(std::size_t levels) const { return m_open[m_open.size() - 1 - levels]; }

    /// Elements that the walk leaves out: the text of a COMPU-INVERSE-VALUE, and a layer's own values of communication
    /// parameters.
    bool IsPassedBy() const {
        return (Above(0) == "VT" && Above(1) == "COMPU-INVERSE-VALUE") ||
               (Above(0) == "COMPARAM-REF" && IsLayer(Above(2)));
    }

    void Count() {
        if (std::none_of(m_open.begin(), m_open.end(), &IsLayer) || IsPassedBy()) {
            return;
        }
        std::string const& tag = m_open.back();
        ++m_counts[NReader::FromUtf8(tag)];
        if (tag == "ROLE" || tag == "AUT-METHOD") {
            m_texts.insert(NReader::FromUtf8(m_text.substr(m_place, m_text.find('<', m_place) - m_place)));
        }
    }

    std::string m_text;
    std::size_t m_place = 0;
    std::vector<std::string> m_open;
};

TEST_F(SampleCoverageTest, NoElementOfTheLayersIsMissed) {
    VTranscript const all = WalkAllLayers();
    VCountByTag walked;
    for (NODX201::VOdxElement const* const element : all.m_elements) {
        if (IsInALayer(element)) {
            ++walked[NODX201::OdxTagText(element->GetOdxTag())];
        }
    }
    VCountByTag written;
    VNames texts;
    for (std::string const& document : Documents()) {
        VTagCount const counted(document);
        for (auto const& [tag, count] : counted.m_counts) {
            if (walked.count(tag) == 1) {
                written[tag] += count;
            }
        }
        texts.insert(counted.m_texts.begin(), counted.m_texts.end());
    }
    EXPECT_EQ(walked, written);
    EXPECT_GT(walked.size(), 70u) << "or hardly anything was compared";
    EXPECT_GE(texts.size(), 2u);
    EXPECT_TRUE(std::includes(all.m_texts.begin(), all.m_texts.end(), texts.begin(), texts.end()));
}

/// Overrides only the hook that all elements have in common.
class VCounting : public NDIAGKIT::VDiagLayerTraverser {
public:
    using VDiagLayerTraverser::VDiagLayerTraverser;

    std::size_t m_count = 0;

protected:
    void DefaultVisit(NODX201::VOdxElement&) override { ++m_count; }
};

TEST_F(SampleCoverageTest, HooksThatAreNotOverriddenLeaveTheWalkAsItIs) {
    for (NODX201::VDiagLayer* const layer : m_layers) {
        VRecorder recorder(*layer);
        recorder.WalkedLayer();
        std::size_t expected = 0;
        for (auto const& [kind, count] : recorder.m_transcript.m_before) {
            expected += kTextKinds.count(kind) == 0 ? count : 0;
        }
        VCounting counting(*layer);
        counting.TraverseDiagLayer();
        EXPECT_EQ(counting.m_count, expected) << NReader::ToUtf8(layer->GetShortName());
        EXPECT_GT(expected, 1u);
    }
}

// The guarded traverser

TEST_F(SampleCoverageTest, WithoutCyclesTheGuardedTraverserWalksAsTheOtherDoes) {
    for (NODX201::VDiagLayer* const layer : m_layers) {
        EXPECT_EQ(VGuardedRecorder(*layer).WalkedLayer(), VRecorder(*layer).WalkedLayer());
    }
}

/// Enters every element again from its own PreProcess: for every kind, the second Visit only reports it.
class VEntersAgain : public NDIAGKIT::VGuardedDiagLayerTraverser {
public:
    using VGuardedDiagLayerTraverser::VGuardedDiagLayerTraverser;
    using VGuardedDiagLayerTraverser::VisitComplexDop;
    using VGuardedDiagLayerTraverser::VisitField;

    VNames m_guarded;
    bool m_isEntering = false;

protected:
    void OnCycle(wchar_t const* kind, NODX201::VOdxElement&) override {
        m_guarded.insert(kind);
        m_isEntering = false;
    }

#define TRAVERSER_KIND(kind, element)                                                                                  \
    void PreProcess##kind(NODX201::element& x) override {                                                              \
        ASSERT_FALSE(m_isEntering) << "entered again: " #kind;                                                         \
        m_isEntering = true;                                                                                           \
        Visit##kind(x);                                                                                                \
        m_isEntering = false;                                                                                          \
    }
#define TRAVERSER_TEXT_KIND(kind)
#include <diagkit/tools/TraverserKinds.def>
};

TEST_F(SampleCoverageTest, EveryKindIsGuarded) {
    VNames guarded;
    for (NODX201::VDiagLayer* const layer : m_layers) {
        VEntersAgain traverser(*layer);
        traverser.TraverseDiagLayer();
        if (layer->HasDiagDataDictionarySpec()) {
            for (NODX201::VDopBase& dop : layer->GetDiagDataDictionarySpec().DopBaseCollection()) {
                if (auto* const field = dynamic_cast<NODX201::VField*>(&dop)) {
                    traverser.VisitField(*field); // no descent leads to it
                    traverser.VisitComplexDop(*field);
                }
            }
        }
        guarded.insert(traverser.m_guarded.begin(), traverser.m_guarded.end());
    }
    EXPECT_EQ(guarded, kElementKinds);
}

} // namespace
} // namespace NTest
