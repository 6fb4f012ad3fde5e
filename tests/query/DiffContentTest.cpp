// SPDX-License-Identifier: Apache-2.0
#include "query/DiffTest.h"

/// Differences between two entries, and where they are reported.

namespace NTest {
namespace {

class VDiffContentTest : public VDiffTest {
protected:
    /// A layer with one service, whose request has these parameters, and with the given further contents.
    static std::string Database(std::string const& params, std::string const& dictionary = "",
                                std::string const& service = "") {
        return ContainerOfLayers(
            LayerXml("BASE-VARIANT", "L",
                     dictionary + DiagComms(ServiceXml("S", service)) + RequestsXml(RequestXml("S", params))));
    }
    static std::string Of(std::string const& details) { return "L changed\n  diag-comms\n    S changed\n" + details; }
    static std::string OfDop(std::string const& name, std::string const& details) {
        return "L changed\n  dops\n    " + name + " changed\n" + details;
    }
    static std::string WithDop(std::string const& content) {
        return ContainerOfLayers(LayerXml("BASE-VARIANT", "L", DopList(Dop("D", "8", content))));
    }
    static std::string Scales(std::string const& scales) {
        return WithDop("<COMPU-METHOD><CATEGORY>TEXTTABLE</CATEGORY><COMPU-INTERNAL-TO-PHYS><COMPU-SCALES>" + scales +
                       "</COMPU-SCALES></COMPU-INTERNAL-TO-PHYS></COMPU-METHOD>");
    }
    static std::string Scale(std::string const& low, std::string const& text) {
        return "<COMPU-SCALE><LOWER-LIMIT>" + low + "</LOWER-LIMIT><COMPU-CONST><VT>" + text +
               "</VT></COMPU-CONST></COMPU-SCALE>";
    }
};

TEST_F(VDiffContentTest, AnAttributeIsToldWithAnAtSign) {
    EXPECT_EQ(Of("      REQUEST/PARAM[P]/@SEMANTIC: DATA -> null\n"),
              Diff(Database("<PARAM xsi:type=\"DYNAMIC\" SEMANTIC=\"DATA\"><SHORT-NAME>P</SHORT-NAME></PARAM>"),
                   Database("<PARAM xsi:type=\"DYNAMIC\"><SHORT-NAME>P</SHORT-NAME></PARAM>")));
}

TEST_F(VDiffContentTest, ATextIsToldUnderItsOwnTag) {
    EXPECT_EQ(Of("      REQUEST/PARAM[P]/CODED-VALUE: 34 -> 35\n"),
              Diff(Database(Const("P", "34")), Database(Const("P", "35"))));
}

TEST_F(VDiffContentTest, ItemsWithAShortNameAreMatchedByItWhateverTheirOrder) {
    std::string const p = Const("P", "34", "<BYTE-POSITION>0</BYTE-POSITION>");
    std::string const q = Const("Q", "1", "<BYTE-POSITION>1</BYTE-POSITION>");
    EXPECT_EQ("", Diff(Database(p + q), Database(q + p)));
}

TEST_F(VDiffContentTest, AParameterWithoutBytePositionStandsAfterTheOneBefore) {
    EXPECT_EQ(Of("      REQUEST/PARAM[Q]/@AFTER: P -> null\n      REQUEST/PARAM[P]/@AFTER: null -> Q\n"),
              Diff(Database(Const("P", "34") + Const("Q", "1")), Database(Const("Q", "1") + Const("P", "34"))));
}

TEST_F(VDiffContentTest, AnItemThatCameAndOneThatWentAreToldByTheirNames) {
    EXPECT_EQ(Of("      REQUEST/PARAM[Q]: null -> Q\n      REQUEST/PARAM[P]: P -> null\n"),
              Diff(Database(Const("P", "34")), Database(Const("Q", "34"))));
}

TEST_F(VDiffContentTest, AnotherKindOfParameterIsItsXsiType) {
    EXPECT_EQ(
        Of("      REQUEST/PARAM[P]/@xsi:type: DYNAMIC -> RESERVED\n"
           "      REQUEST/PARAM[P]/BIT-LENGTH: null -> 8\n"),
        Diff(Database("<PARAM xsi:type=\"DYNAMIC\"><SHORT-NAME>P</SHORT-NAME></PARAM>"),
             Database("<PARAM xsi:type=\"RESERVED\"><SHORT-NAME>P</SHORT-NAME><BIT-LENGTH>8</BIT-LENGTH></PARAM>")));
}

TEST_F(VDiffContentTest, ReferencesAreFollowedToDataAndThePathLeavesOutRef) {
    std::string const params = Value("P", "<DOP-REF ID-REF=\"D\"/>");
    EXPECT_EQ(Of("      REQUEST/PARAM[P]/DOP/DIAG-CODED-TYPE/BIT-LENGTH: 8 -> 16\n") +
                  "  dops\n    D changed\n      DIAG-CODED-TYPE/BIT-LENGTH: 8 -> 16\n",
              Diff(Database(params, DopList(Dop("D", "8"))), Database(params, DopList(Dop("D", "16")))));
}

TEST_F(VDiffContentTest, AReferenceToAnotherNameIsToldAtTheReference) {
    std::string const dops = DopList(Dop("D") + Dop("E", "16"));
    EXPECT_EQ(Of("      REQUEST/PARAM[P]/DOP: D -> E\n"), Diff(Database(Value("P", "<DOP-REF ID-REF=\"D\"/>"), dops),
                                                               Database(Value("P", "<DOP-REF ID-REF=\"E\"/>"), dops)));
}

TEST_F(VDiffContentTest, AReferenceByIdAndOneByShortNameToTheSameAreTheSame) {
    std::string const dops = DopList(Dop("D"));
    EXPECT_EQ("", Diff(Database(Value("P", "<DOP-REF ID-REF=\"D\"/>"), dops),
                       Database(Value("P", "<DOP-SNREF SHORT-NAME=\"D\"/>"), dops)));
}

TEST_F(VDiffContentTest, AReferenceThatLeadsNowhereIsToldAsNull) {
    std::string const params = Value("P", "<DOP-REF ID-REF=\"D\"/>");
    EXPECT_EQ(Of("      REQUEST/PARAM[P]/DOP: null -> D\n") + "  dops\n    D added\n",
              Diff(Database(params), Database(params, DopList(Dop("D")))));
}

TEST_F(VDiffContentTest, OtherIdsAreNoDifference) {
    EXPECT_EQ("", Diff(Database(Value("P", "<DOP-REF ID-REF=\"D\"/>"), DopList(Dop("D"))),
                       Database(Value("P", "<DOP-REF ID-REF=\"E\"/>"),
                                DopList("<DATA-OBJECT-PROP ID=\"E\" OID=\"O\">" + Dop("D").substr(25)))));
}

TEST_F(VDiffContentTest, OtherIdsAreADifferenceWhenAskedFor) {
    m_diffOptions.comparesIds = true;
    EXPECT_EQ(
        OfDop("D", "      @ID: D -> E\n"),
        Diff(WithDop(""), ContainerOfLayers(LayerXml("BASE-VARIANT", "L",
                                                     DopList("<DATA-OBJECT-PROP ID=\"E\">" + Dop("D").substr(25))))));
}

TEST_F(VDiffContentTest, ItemsWithoutAShortNameAreCountedFromOne) {
    EXPECT_EQ(OfDop("D", "      COMPU-METHOD/COMPU-SCALE[2]/LOWER-LIMIT: 1 -> 2\n"),
              Diff(Scales(Scale("0", "off") + Scale("1", "on")), Scales(Scale("0", "off") + Scale("2", "on"))));
}

TEST_F(VDiffContentTest, AnItemWithoutAShortNameIsToldByWhatItHolds) {
    EXPECT_EQ(OfDop("D", "      COMPU-METHOD/COMPU-SCALE[2]: null -> 1 on\n"),
              Diff(Scales(Scale("0", "off")), Scales(Scale("0", "off") + Scale("1", "on"))));
}

TEST_F(VDiffContentTest, TheOrderOfItemsWithoutAShortNameCountsUnlessIgnored) {
    std::string const old = Scales(Scale("0", "off") + Scale("1", "on"));
    std::string const now = Scales(Scale("1", "on") + Scale("0", "off"));
    EXPECT_NE("", Diff(old, now));
    m_diffOptions.ignoresOrder = true;
    EXPECT_EQ("", Diff(old, now));
    EXPECT_EQ(OfDop("D", "      COMPU-METHOD/COMPU-SCALE[2]: null -> 3 on\n"
                         "      COMPU-METHOD/COMPU-SCALE[2]: 1 on -> null\n"),
              Diff(old, Scales(Scale("0", "off") + Scale("3", "on"))));
}

TEST_F(VDiffContentTest, LongNamesDescriptionsAndAdminDataCountUnlessIgnored) {
    std::string const old = ContainerOfLayers(LayerXml("BASE-VARIANT", "L", DopList(Dop("D"))));
    std::string const now = WithDop("<LONG-NAME TI=\"T\">Data</LONG-NAME><DESC><p>It is.</p></DESC>"
                                    "<ADMIN-DATA><LANGUAGE>en</LANGUAGE></ADMIN-DATA>");
    EXPECT_EQ(OfDop("D", "      LONG-NAME: null -> Data\n      LONG-NAME/@TI: null -> T\n"
                         "      DESC: null -> <p>It is.</p>\n      ADMIN-DATA: null -> en\n"),
              Diff(old, now));
    m_diffOptions.ignoresLongNames = true;
    EXPECT_EQ(OfDop("D", "      DESC: null -> <p>It is.</p>\n      ADMIN-DATA: null -> en\n"), Diff(old, now));
    m_diffOptions.ignoresDescriptions = true;
    EXPECT_EQ(OfDop("D", "      ADMIN-DATA: null -> en\n"), Diff(old, now));
    m_diffOptions.ignoresAdminData = true;
    EXPECT_EQ("", Diff(old, now));
}

TEST_F(VDiffContentTest, AReferenceToADiagCommCountsByTheNameOfItsTarget) {
    auto const database = [](std::string const& target, std::string const& semantic) {
        return ContainerOfLayers(
            LayerXml("BASE-VARIANT", "L",
                     DiagComms(ServiceXml("S", "<RELATED-DIAG-COMM-REFS><RELATED-DIAG-COMM-REF ID-REF=\"" + target +
                                                   "\"><RELATION-TYPE>X</RELATION-TYPE></RELATED-DIAG-COMM-REF>"
                                                   "</RELATED-DIAG-COMM-REFS>") +
                               "<DIAG-SERVICE ID=\"T\" SEMANTIC=\"" + semantic +
                               "\"><SHORT-NAME>T</SHORT-NAME></DIAG-SERVICE>" + Service("U"))));
    };
    EXPECT_EQ(Of("      RELATED-DIAG-COMM[U]: null -> U\n      RELATED-DIAG-COMM[T]: T -> null\n"),
              Diff(database("T", "A"), database("U", "A")));
    EXPECT_EQ("L changed\n  diag-comms\n    T changed\n      @SEMANTIC: A -> B\n",
              Diff(database("T", "A"), database("T", "B")));
}

TEST_F(VDiffContentTest, DtcsAreComparedOneByOneBeTheyInsideOrReferredTo) {
    auto const dtc = [](std::string const& name, std::string const& code) {
        return "<DTC ID=\"" + name + "\"><SHORT-NAME>" + name + "</SHORT-NAME><TROUBLE-CODE>" + code +
               "</TROUBLE-CODE><TEXT>x</TEXT></DTC>";
    };
    auto const database = [](std::string const& first, std::string const& second) {
        return ContainerOfLayers(
            LayerXml("BASE-VARIANT", "L",
                     InDictionary("<DTC-DOPS>" + Xml("DTC-DOP", "A", "<DTCS>" + first + "</DTCS>") +
                                  Xml("DTC-DOP", "B", "<DTCS>" + second + "</DTCS>") + "</DTC-DOPS>")));
    };
    std::string const reference = "<DTC-REF ID-REF=\"One\"/>";
    EXPECT_EQ("", Diff(database(dtc("One", "1"), reference), database(reference, dtc("One", "1"))));
    EXPECT_EQ("L changed\n  dops\n    A changed\n      DTC[One]/TROUBLE-CODE: 1 -> 2\n"
              "      DTC[Two]: null -> Two\n    B changed\n      DTC[One]/TROUBLE-CODE: 1 -> 2\n",
              Diff(database(dtc("One", "1"), reference), database(dtc("One", "2") + dtc("Two", "3"), reference)));
}

TEST_F(VDiffContentTest, AnEntryOfAnotherKindIsToldAtTheEntryItself) {
    EXPECT_EQ(OfDop("D", "      : DATA-OBJECT-PROP -> STRUCTURE\n"),
              Diff(WithDop(""), ContainerOfLayers(LayerXml("BASE-VARIANT", "L", InDictionary(Structure("D", ""))))));
}

TEST_F(VDiffContentTest, ShortNamesMeanWhatTheyMeanInTheViewedLayer) {
    auto const database = [](std::string const& bits) {
        return ContainerOfLayers(
            LayerXml("BASE-VARIANT", "B",
                     DiagComms(ServiceXml("S")) + DopList(Dop("D")) +
                         RequestsXml(RequestXml("S", Value("P", "<DOP-SNREF SHORT-NAME=\"D\"/>")))) +
            LayerXml("ECU-VARIANT", "V",
                     DopList("<DATA-OBJECT-PROP ID=\"V.D\">" + Dop("D", bits).substr(25)) +
                         ParentRefs({{"BASE-VARIANT", "B"}})));
    };
    EXPECT_EQ("V changed\n  diag-comms\n    S changed\n      REQUEST/PARAM[P]/DOP/DIAG-CODED-TYPE/BIT-LENGTH: 8 -> 16\n"
              "  dops\n    D changed\n      DIAG-CODED-TYPE/BIT-LENGTH: 8 -> 16\n",
              Diff(database("8"), database("16")));
}

// Tables lead to each other in a cycle: the structure in a row has a key of the table.
TEST_F(VDiffContentTest, AnElementMetAgainInsideItselfCountsByItsName) {
    auto const database = [](std::string const& key) {
        auto const table = [](std::string const& name, std::string const& other, std::string const& rowKey) {
            return Xml("TABLE", name,
                       Xml("TABLE-ROW", name + ".Row",
                           "<KEY>" + rowKey + "</KEY><STRUCTURE-REF ID-REF=\"To" + other + "\"/>"));
        };
        auto const structure = [](std::string const& other) {
            return Xml("STRUCTURE", "To" + other,
                       "<PARAMS><PARAM xsi:type=\"TABLE-KEY\" ID=\"K" + other +
                           "\"><SHORT-NAME>K</SHORT-NAME>"
                           "<TABLE-REF ID-REF=\"" +
                           other + "\"/></PARAM></PARAMS>");
        };
        return ContainerOfLayers(
            LayerXml("BASE-VARIANT", "L",
                     InDictionary("<STRUCTURES>" + structure("A") + structure("B") + "</STRUCTURES><TABLES>" +
                                  table("A", "B", "1") + table("B", "A", key) + "</TABLES>")));
    };
    EXPECT_EQ(
        "L changed\n  dops\n"
        "    ToA changed\n      PARAM[K]/TABLE/TABLE-ROW[A.Row]/STRUCTURE/PARAM[K]/TABLE/TABLE-ROW[B.Row]/KEY: 2 -> 3\n"
        "    ToB changed\n      PARAM[K]/TABLE/TABLE-ROW[B.Row]/KEY: 2 -> 3\n",
        Diff(database("2"), database("3")));
}

} // namespace
} // namespace NTest
