// SPDX-License-Identifier: Apache-2.0

// The parameters found by the search below those of a service, and their order.

#include <functional>

#include <diagkit/tools/OpResolveSnref.h>
#include <diagkit/tools/OutParamIfView.h>

#include "tools/ParamTest.h"

namespace NTest {
namespace {

using NDIAGKIT::VOutParamIfView;
using NMemory::VReference;
using NODX201::VSearchRange;

class ParamRecursivSearchVisitorTest : public VParamTest {
protected:
    NMemory::VMemStructure& StructureOf(wchar_t const* value) {
        NMemory::VMemStructure& structure = m_dictionary.AddStructure(L"Structure");
        structure.AddValue(value).SetId((L"Id." + std::to_wstring(++m_values)).c_str());
        return structure;
    }

    /// A VALUE of the response that leads to the DOP.
    template <class Dop>
    void Root(Dop& dop) {
        m_response.AddValue(L"Root").SetDopBaseLink(dop);
    }

    NODX201::IOutParamIf* Found(wchar_t const* name) {
        return VOutParamIfView(m_service, VSearchRange::PosResponses).FindParam(name, m_layer);
    }

    /// The first parameter of a structure or ENV-DATA.
    template <class Structure>
    static NODX201::IOutParamIf* FirstOf(Structure& structure) {
        return dynamic_cast<NODX201::IOutParamIf*>(&*structure.ParamCollection().Begin());
    }

    template <class Field>
    void ExpectFieldIsFollowed(Field& (NMemory::VMemDiagDataDictionarySpec::*add)(wchar_t const*)) {
        auto const makeRoot = [&](wchar_t const* name) -> Field& {
            Field& field = std::invoke(add, m_dictionary, name);
            Root(field);
            return field;
        };
        NMemory::VMemStructure& structure = StructureOf(L"InStructure");
        NMemory::VMemEnvDataDesc& desc = m_dictionary.AddEnvDataDesc(L"Desc");
        NMemory::VMemEnvData& inDesc = desc.AddEnvData(L"EnvData");
        inDesc.AddValue(L"InDesc");
        NMemory::VMemEnvData& alone = m_dictionary.AddEnvData(L"Alone");
        alone.AddValue(L"InAlone");

        makeRoot(L"WithoutChoice");
        makeRoot(L"Unresolved").SetBasicStructureRef(VReference::ById(L"Gone"));
        makeRoot(L"Unresolved").SetEnvDataDescRef(VReference::ById(L"Gone"));
        EXPECT_EQ(Found(L"InStructure"), nullptr);
        makeRoot(L"ToStructure").SetBasicStructureRef(structure);
        EXPECT_EQ(Found(L"InStructure"), FirstOf(structure));
        makeRoot(L"ToDesc").SetEnvDataDescRef(desc);
        EXPECT_EQ(Found(L"InDesc"), FirstOf(inDesc));
        makeRoot(L"ToEnvData").SetBasicStructureRef(alone);
        EXPECT_EQ(Found(L"InAlone"), FirstOf(alone));
    }

    NMemory::VMemPosResponse& m_response = PosResponse();
    int m_values = 0;
};

TEST_F(ParamRecursivSearchVisitorTest, AStructureIsSearchedParameterByParameter) {
    NMemory::VMemStructure& structure = m_dictionary.AddStructure(L"Structure");
    structure.AddCodedConst(L"X");
    NMemory::VMemValue& first = structure.AddValue(L"X");
    structure.AddValue(L"X");
    Root(structure);
    EXPECT_EQ(Found(L"X"), &first);
}

TEST_F(ParamRecursivSearchVisitorTest, AValueThatMatchesIsNotDescendedInto) {
    NMemory::VMemStructure& outer = m_dictionary.AddStructure(L"Outer");
    NMemory::VMemValue& matching = outer.AddValue(L"X");
    matching.SetDopBaseLink(StructureOf(L"X"));
    Root(outer);
    EXPECT_EQ(Found(L"X"), &matching);
}

TEST_F(ParamRecursivSearchVisitorTest, TheSearchIsDepthFirst) {
    NMemory::VMemStructure& inner = StructureOf(L"X");
    NMemory::VMemStructure& outer = m_dictionary.AddStructure(L"Outer");
    outer.AddValue(L"Step").SetDopBaseLink(inner);
    outer.AddValue(L"X");
    Root(outer);
    EXPECT_EQ(Found(L"X"), FirstOf(inner));
}

TEST_F(ParamRecursivSearchVisitorTest, AStaticFieldIsFollowed) {
    ExpectFieldIsFollowed(&NMemory::VMemDiagDataDictionarySpec::AddStaticField);
}

TEST_F(ParamRecursivSearchVisitorTest, ADynamicLengthFieldIsFollowed) {
    ExpectFieldIsFollowed(&NMemory::VMemDiagDataDictionarySpec::AddDynamicLengthField);
}

TEST_F(ParamRecursivSearchVisitorTest, ADynamicEndmarkerFieldIsFollowed) {
    ExpectFieldIsFollowed(&NMemory::VMemDiagDataDictionarySpec::AddDynamicEndmarkerField);
}

TEST_F(ParamRecursivSearchVisitorTest, AnEndOfPduFieldIsFollowed) {
    ExpectFieldIsFollowed(&NMemory::VMemDiagDataDictionarySpec::AddEndOfPduField);
}

TEST_F(ParamRecursivSearchVisitorTest, AMuxesDefaultCaseComesFirst) {
    NMemory::VMemMux& mux = m_dictionary.AddMux(L"Mux");
    NMemory::VMemStructure& ofFirst = StructureOf(L"C");
    NMemory::VMemStructure& ofSecond = StructureOf(L"C");
    ofSecond.AddValue(L"InSecond");
    NMemory::VMemStructure& ofDefault = StructureOf(L"C");
    mux.AddCase(L"First").SetStructureRef(ofFirst);
    mux.AddCase(L"Second").SetStructureRef(ofSecond);
    mux.MakeDefaultCase(L"Default").SetStructureRef(ofDefault);
    Root(mux);
    EXPECT_EQ(Found(L"C"), FirstOf(ofDefault));
    EXPECT_NE(Found(L"InSecond"), nullptr);
    mux.RemoveDefaultCase();
    EXPECT_EQ(Found(L"C"), FirstOf(ofFirst)) << "then the cases in order";
}

TEST_F(ParamRecursivSearchVisitorTest, MuxCasesWithoutAResolvedStructureAreSkipped) {
    NMemory::VMemMux& mux = m_dictionary.AddMux(L"Mux");
    mux.MakeDefaultCase(L"Default");
    mux.AddCase(L"Without");
    mux.AddCase(L"Unresolved").SetStructureRef(VReference::ById(L"Gone"));
    NMemory::VMemStructure& structure = StructureOf(L"X");
    mux.AddCase(L"Last").SetStructureRef(structure);
    Root(mux);
    EXPECT_EQ(Found(L"X"), FirstOf(structure));
    mux.GetDefaultCase().SetStructureRef(VReference::ById(L"Gone"));
    EXPECT_EQ(Found(L"X"), FirstOf(structure));
}

TEST_F(ParamRecursivSearchVisitorTest, AnEnvDataDescIsSearchedEntryByEntry) {
    NMemory::VMemEnvData& referenced = m_dictionary.AddEnvData(L"Referenced");
    referenced.AddValue(L"X");
    NMemory::VMemEnvDataDesc& desc = m_dictionary.AddEnvDataDesc(L"Desc");
    desc.AddEnvDataRef(VReference::ById(L"Gone"));
    NMemory::VMemEnvData& direct = desc.AddEnvData(L"Direct");
    direct.AddValue(L"Y");
    desc.AddEnvDataRef(referenced);
    NMemory::VMemEnvData& last = desc.AddEnvData(L"Last");
    last.AddValue(L"X");
    last.AddValue(L"Y");
    Root(desc);
    EXPECT_EQ(Found(L"X"), FirstOf(referenced));
    EXPECT_EQ(Found(L"Y"), FirstOf(direct));
}

TEST_F(ParamRecursivSearchVisitorTest, ATableIsSearchedRowByRow) {
    NMemory::VMemTable& other = m_dictionary.AddTable(L"Other");
    NMemory::VMemStructure& ofReferenced = StructureOf(L"X");
    NMemory::VMemTableRow& referenced = other.AddTableRow(L"Referenced");
    referenced.SetStructureRef(ofReferenced);
    NMemory::VMemTable& table = m_dictionary.AddTable(L"Table");
    table.AddTableRow(L"WithoutStructure");
    table.AddTableRow(L"Unresolved").SetStructureRef(VReference::ById(L"Gone"));
    table.AddTableRowRef(VReference::ById(L"Gone"));
    NMemory::VMemStructure& ofDirect = StructureOf(L"Y");
    table.AddTableRow(L"Direct").SetStructureRef(ofDirect);
    table.AddTableRowRef(referenced);
    NMemory::VMemStructure& ofLast = StructureOf(L"X");
    ofLast.AddValue(L"Y");
    table.AddTableRow(L"Last").SetStructureRef(ofLast);
    NMemory::VMemTableKey& key = m_response.AddTableKey(L"Key");
    key.SetTableRef(table);
    EXPECT_EQ(Found(L"X"), nullptr) << "a TABLE-KEY alone leads nowhere";
    m_response.AddTableStruct(L"TableStruct").SetTableKeyRef(key);
    EXPECT_EQ(Found(L"X"), FirstOf(ofReferenced));
    EXPECT_EQ(Found(L"Y"), FirstOf(ofDirect));
}

TEST_F(ParamRecursivSearchVisitorTest, ATableKeyThatNamesARowLeadsToThatRowAlone) {
    NMemory::VMemTable& table = m_dictionary.AddTable(L"Table");
    table.AddTableRow(L"First").SetStructureRef(StructureOf(L"X"));
    NMemory::VMemStructure& ofSecond = StructureOf(L"X");
    NMemory::VMemTableRow& second = table.AddTableRow(L"Second");
    second.SetStructureRef(ofSecond);
    NMemory::VMemTableKey& key = m_response.AddTableKey(L"Key");
    key.SetTableRowRef(second);
    m_response.AddTableStruct(L"TableStruct").SetTableKeyRef(key);
    EXPECT_EQ(Found(L"X"), FirstOf(ofSecond));
    second.RemoveStructureRef();
    EXPECT_EQ(Found(L"X"), nullptr);
}

TEST_F(ParamRecursivSearchVisitorTest, UnresolvedLinksOnTheWayToATableAreSkipped) {
    NMemory::VMemTableKey& withoutChoice = m_response.AddTableKey(L"WithoutChoice");
    NMemory::VMemTableKey& goneTable = m_response.AddTableKey(L"GoneTable");
    goneTable.SetTableRef(VReference::ById(L"Gone"));
    NMemory::VMemTableKey& goneRow = m_response.AddTableKey(L"GoneRow");
    goneRow.SetTableRowRef(VReference::ById(L"Gone"));
    m_response.AddTableStruct(L"WithoutKey");
    m_response.AddTableStruct(L"GoneKey").SetTableKeyRef(VReference::ById(L"Gone"));
    m_response.AddTableStruct(L"1").SetTableKeyRef(withoutChoice);
    m_response.AddTableStruct(L"2").SetTableKeyRef(goneTable);
    m_response.AddTableStruct(L"3").SetTableKeyRef(goneRow);
    NMemory::VMemStructure& structure = StructureOf(L"X");
    Root(structure);
    EXPECT_EQ(Found(L"X"), FirstOf(structure)) << "reached past all of them";
    EXPECT_EQ(Found(L"Gone"), nullptr);
}

TEST_F(ParamRecursivSearchVisitorTest, ParametersOfOtherKindsAreNeitherMatchedNorDescendedInto) {
    NMemory::VMemDataObjectProp& dop = m_dictionary.AddDataObjectProp(L"X");
    m_response.AddCodedConst(L"X");
    m_response.AddDynamic(L"X");
    m_response.AddLengthKey(L"X").SetDataObjectPropLink(dop);
    m_response.AddMatchingRequestParam(L"X");
    m_response.AddPhysConst(L"X").SetDataObjectPropLink(dop);
    m_response.AddReserved(L"X");
    m_response.AddSystem(L"X").SetDataObjectPropLink(dop);
    m_response.AddTableKey(L"X");
    m_response.AddTableStruct(L"X");
    NMemory::VMemTableRow& row = m_dictionary.AddTable(L"Table").AddTableRow(L"Row");
    row.SetStructureRef(StructureOf(L"X"));
    m_response.AddTableEntry(L"X").SetTableRowRef(row);
    EXPECT_EQ(Found(L"X"), nullptr);
}

TEST_F(ParamRecursivSearchVisitorTest, DopsOfOtherKindsLeadNowhere) {
    Root(m_dictionary.AddDataObjectProp(L"X"));
    Root(m_dictionary.AddDtcDop(L"X"));
    m_response.AddValue(L"Unresolved").SetDopBaseLink(VReference::ById(L"Gone"));
    m_response.AddValue(L"WithoutLink");
    EXPECT_EQ(Found(L"X"), nullptr);
}

TEST_F(ParamRecursivSearchVisitorTest, ShortNameReferencesResolveInTheLayerThatTheSearchIsGiven) {
    m_database.SetResolverFactory([] { return std::make_unique<NDIAGKIT::VOpResolveSnref>(); });
    NMemory::VMemStructure& here = StructureOf(L"X");
    NMemory::VMemEcuVariant& elsewhere = m_container.AddEcuVariant(L"Elsewhere");
    NMemory::VMemStructure& there = elsewhere.MakeDiagDataDictionarySpec().AddStructure(L"Structure");
    there.AddValue(L"X");
    NMemory::VMemEcuVariant& nowhere = m_container.AddEcuVariant(L"Nowhere");
    m_response.AddValue(L"Root").SetDopBaseLink(VReference::ByShortName(L"Structure"));
    auto const found = [this](NODX201::VDiagLayer& layer) {
        return VOutParamIfView(m_service, VSearchRange::PosResponses).FindParam(L"X", layer);
    };
    EXPECT_EQ(found(m_layer), FirstOf(here));
    EXPECT_EQ(found(elsewhere), FirstOf(there));
    EXPECT_EQ(found(nowhere), nullptr);
}

} // namespace
} // namespace NTest
