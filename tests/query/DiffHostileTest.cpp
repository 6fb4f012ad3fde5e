// SPDX-License-Identifier: Apache-2.0
#include <string>

#include "query/DiffTest.h"

/// Databases in which everything leads to everything: compared up to the limits, in time, and parts that are left out
/// are reported.

namespace NTest {
namespace {

class VDiffHostileTest : public VDiffTest {
protected:
    NQuery::VDiff DiffOf(std::string const& old, std::string const& now) {
        m_old = Loaded(old);
        m_new = Loaded(now);
        return NQuery::DiffDatabases(*m_old.database, *m_new.database, m_diffOptions);
    }

    static NQuery::VChange const& FirstChange(NQuery::VDiff const& diff) {
        return diff.layers.at(0).views.at(0).changes.at(0);
    }

    NReader::VReadResult m_old;
    NReader::VReadResult m_new;
};

std::string ToDop(std::string const& param, std::string const& dop) {
    return Value(param, "<DOP-REF ID-REF=\"" + dop + "\"/>");
}

std::string InLayer(std::string const& structures, std::string const& dops) {
    return ContainerOfLayers(LayerXml("BASE-VARIANT", "L",
                                      InDictionary("<DATA-OBJECT-PROPS>" + dops + "</DATA-OBJECT-PROPS><STRUCTURES>" +
                                                   structures + "</STRUCTURES>")));
}

std::string Struct(std::string const& name, std::string const& params) {
    return Xml("STRUCTURE", name, "<PARAMS>" + params + "</PARAMS>");
}

/// Each structure leads to the next one twice, the last one to a DOP.
std::string Lattice(int levels, std::string const& bits) {
    std::string structures;
    for (int level = 0; level < levels; ++level) {
        std::string const next = level + 1 < levels ? "S" + std::to_string(level + 1) : "D";
        structures += Struct("S" + std::to_string(level), ToDop("A", next) + ToDop("B", next));
    }
    return InLayer(structures, Dop("D", bits));
}

TEST_F(VDiffHostileTest, ALatticeThatDoesNotDifferIsEqual) {
    EXPECT_TRUE(DiffOf(Lattice(60, "8"), Lattice(60, "8")).IsEqual());
}

TEST_F(VDiffHostileTest, OfALatticeThatDiffersTheFirstDetailsAreToldAndTheRestIsSaidToBeMissing) {
    NQuery::VDiff const diff = DiffOf(Lattice(60, "8"), Lattice(60, "16"));
    auto const& changes = diff.layers.at(0).views.at(0).changes;
    EXPECT_EQ(61U, changes.size()); // every structure, and the DOP
    for (NQuery::VChange const& change : changes) {
        EXPECT_LE(change.details->size(), NQuery::kMostDetails);
    }
    EXPECT_EQ(51U, diff.cutDetails); // 2 ^ 10 ways and more
}

/// A chain of structures, too long for any call stack.
std::string Chain(int links, std::string const& bits) {
    std::string structures;
    for (int link = 0; link < links; ++link) {
        std::string const next = link + 1 < links ? "S" + std::to_string(link + 1) : "D";
        structures += Struct("S" + std::to_string(link), ToDop("A", next));
    }
    std::string const services = DiagComms(ServiceXml("S")) + RequestsXml(RequestXml("S", ToDop("P", "S0")));
    return ContainerOfLayers(LayerXml("BASE-VARIANT", "L",
                                      InDictionary("<DATA-OBJECT-PROPS>" + Dop("D", bits) +
                                                   "</DATA-OBJECT-PROPS><STRUCTURES>" + structures + "</STRUCTURES>") +
                                          services));
}

TEST_F(VDiffHostileTest, AChainOfAnyLengthIsComparedAndToldUpToALength) {
    EXPECT_TRUE(DiffOf(Chain(20000, "8"), Chain(20000, "8")).IsEqual());
    NQuery::VDiff const diff = DiffOf(Chain(20000, "8"), Chain(20000, "16"));
    ASSERT_FALSE(diff.IsEqual());
    ASSERT_EQ(1U, FirstChange(diff).details->size());
    NQuery::VDetail const& detail = FirstChange(diff).details->front();
    EXPECT_EQ(0U, detail.path.find(L"REQUEST/PARAM[P]/DOP/PARAM[A]/DOP/PARAM[A]/DOP"));
    EXPECT_EQ(L"S99", detail.oldText);
    EXPECT_EQ(L"S99", detail.newText);
    EXPECT_EQ(20000U - NQuery::kMostReferences + 1U,
              diff.cutDetails); // the structures before the last, and the service
}

/// Tables that each lead to all others: as many ways as there are permutations.
std::string Clique(int tables, std::string const& label) {
    std::string structures;
    std::string text;
    for (int table = 0; table < tables; ++table) {
        std::string const name = std::to_string(table);
        std::string keys;
        for (int other = 0; other < tables; ++other) {
            keys += "<PARAM xsi:type=\"TABLE-KEY\" ID=\"K" + name + "." + std::to_string(other) + "\"><SHORT-NAME>K" +
                    std::to_string(other) + "</SHORT-NAME><TABLE-REF ID-REF=\"T" + std::to_string(other) +
                    "\"/></PARAM>";
        }
        structures += Struct("S" + name, keys);
        text += Xml("TABLE", "T" + name,
                    (table == 0 ? "<KEY-LABEL>" + label + "</KEY-LABEL>" : "") +
                        Xml("TABLE-ROW", "R" + name, "<KEY>1</KEY><STRUCTURE-REF ID-REF=\"S" + name + "\"/>"));
    }
    return ContainerOfLayers(LayerXml(
        "BASE-VARIANT", "L", InDictionary("<STRUCTURES>" + structures + "</STRUCTURES><TABLES>" + text + "</TABLES>")));
}

TEST_F(VDiffHostileTest, ElementsThatAllLeadToEachOtherAreComparedInTime) {
    EXPECT_TRUE(DiffOf(Clique(12, "x"), Clique(12, "x")).IsEqual());
    NQuery::VDiff const diff = DiffOf(Clique(12, "x"), Clique(12, "y"));
    EXPECT_EQ(12U, diff.layers.at(0).views.at(0).changes.size());
    EXPECT_EQ(12U, diff.cutDetails);
}

/// Nested groups.
std::string Groups(int depth, std::string const& text) {
    std::string open;
    std::string close;
    for (int level = 0; level < depth; ++level) {
        open += "<SDG>";
        close += "</SDG>";
    }
    return ContainerOfLayers(LayerXml(
        "BASE-VARIANT", "L", DiagComms(Service("S", "<SDGS>" + open + "<SD>" + text + "</SD>" + close + "</SDGS>"))));
}

TEST_F(VDiffHostileTest, WhatIsInsideTooManyOthersIsLeftOutAndSaidToBe) {
    EXPECT_EQ("L changed\n  diag-comms\n    S changed\n      SDG[1]/SDG[1]/SDG[1]/SD[1]: x -> y\n",
              InPrint(DiffOf(Groups(3, "x"), Groups(3, "y"))));
    NQuery::VDiff const diff = DiffOf(Groups(900, "x"), Groups(900, "y"));
    EXPECT_TRUE(diff.IsEqual());
    EXPECT_EQ(2U, diff.tooDeep);
}

TEST_F(VDiffHostileTest, ReferencesThatLeadNowhereAreCounted) {
    std::string const params = ToDop("P", "None") + Value("Q", "<DOP-SNREF SHORT-NAME=\"None\"/>");
    auto const database = [](std::string const& content) {
        return ContainerOfLayers(
            LayerXml("BASE-VARIANT", "L", DiagComms(ServiceXml("S")) + RequestsXml(RequestXml("S", content))));
    };
    NQuery::VDiff const diff = DiffOf(database(params), database(ToDop("P", "None")));
    EXPECT_EQ(2U, diff.unresolvedOld);
    EXPECT_EQ(1U, diff.unresolvedNew);
}

/// Many layers over one shared base, in each of which a short name has its own meaning.
std::string Variants(int count, std::string const& bits, bool ownDops) {
    std::string variants;
    for (int variant = 0; variant < count; ++variant) {
        std::string const name = "V" + std::to_string(variant);
        std::string const own =
            "<DATA-OBJECT-PROP ID=\"" + name + ".D\">" + Dop("D", bits + std::to_string(variant)).substr(25);
        variants += LayerXml("ECU-VARIANT", name, (ownDops ? DopList(own) : "") + ParentRefs({{"BASE-VARIANT", "B"}}));
    }
    std::string const base = DopList(Dop("D", ownDops ? "8" : bits)) + DiagComms(ServiceXml("S")) +
                             RequestsXml(RequestXml("S", Value("P", "<DOP-SNREF SHORT-NAME=\"D\"/>")));
    return ContainerOfLayers(LayerXml("BASE-VARIANT", "B", base) + variants);
}

TEST_F(VDiffHostileTest, WhatManyLayersInheritIsComparedOnceAndSharesItsDetails) {
    NQuery::VDiff const diff = DiffOf(Variants(50, "8", false), Variants(50, "16", false));
    ASSERT_EQ(51U, diff.layers.size());
    auto const* const details = FirstChange(diff).details.get();
    for (NQuery::VLayerChange const& layer : diff.layers) {
        EXPECT_EQ(details, layer.views.at(0).changes.at(0).details.get());
    }
}

TEST_F(VDiffHostileTest, AShortNameOfItsOwnInEachLayerIsComparedInEach) {
    NQuery::VDiff const diff = DiffOf(Variants(50, "8", true), Variants(50, "16", true));
    ASSERT_EQ(50U, diff.layers.size());
    for (std::size_t variant = 0; variant < diff.layers.size(); ++variant) {
        ASSERT_EQ(2U, diff.layers[variant].views.size());
        NQuery::VDetail const& detail = diff.layers[variant].views.at(0).changes.at(0).details->front();
        EXPECT_EQ(L"REQUEST/PARAM[P]/DOP/DIAG-CODED-TYPE/BIT-LENGTH", detail.path);
        EXPECT_EQ(L"16" + std::to_wstring(variant), detail.newText);
    }
}

TEST_F(VDiffHostileTest, AThrowingProgressFunctionEndsTheComparison) {
    m_diffOptions.progress = [](std::uint64_t, std::uint64_t) { throw std::runtime_error("enough"); };
    EXPECT_THROW(DiffOf(Variants(2, "8", false), Variants(2, "16", false)), std::runtime_error);
}

} // namespace
} // namespace NTest
