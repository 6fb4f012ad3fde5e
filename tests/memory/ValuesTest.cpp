// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Values.h>

#include <string>

#include <gtest/gtest.h>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/Dops.h>
#include <diagkit/memory/Layers.h>
#include <diagkit/memory/Params.h>
#include <diagkit/model/Empty.h>

namespace NTest {
namespace {

using NMemory::BitLengthOf;
using NMemory::BitPositionOf;
using NMemory::BytePositionOf;
using NMemory::ConstantOf;

class ValuesTest : public testing::Test {
protected:
    NMemory::VDatabase m_database;
    NMemory::VMemBaseVariant& m_layer = m_database.AddDiagLayerContainer(L"Doors").AddBaseVariant(L"Door");
    NMemory::VMemRequest& m_request = m_layer.AddRequest(L"Request");
    NMemory::VMemDataObjectProp& m_dop = m_layer.MakeDiagDataDictionarySpec().AddDataObjectProp(L"Angle");
};

TEST_F(ValuesTest, PositionsAreAskedOfAnyKindOfParameter) {
    std::wstring position = L"0";
    auto const place = [&position](auto& param) {
        param.SetBytePosition(position.c_str());
        param.SetBitPosition(L"7");
        ++position.back();
    };
    place(m_request.AddCodedConst(L"A"));
    place(m_request.AddDynamic(L"B"));
    place(m_request.AddLengthKey(L"C"));
    place(m_request.AddMatchingRequestParam(L"D"));
    place(m_request.AddPhysConst(L"E"));
    place(m_request.AddReserved(L"F"));
    place(m_request.AddSystem(L"G"));
    place(m_request.AddTableKey(L"H"));
    place(m_request.AddTableStruct(L"I"));
    place(m_request.AddValue(L"J"));
    position = L"4294967295";
    place(m_request.AddTableEntry(L"K"));
    std::wstring positions;
    for (NODX201::VParam const& param : m_request.ParamCollection()) {
        positions += std::to_wstring(BytePositionOf(param).value()) + L" ";
        EXPECT_EQ(BitPositionOf(param), 7u);
    }
    EXPECT_EQ(positions, L"0 1 2 3 4 5 6 7 8 9 4294967295 ");
}

TEST_F(ValuesTest, OtherElementsHavePositionsToo) {
    auto& mux = m_layer.MakeDiagDataDictionarySpec().AddMux(L"Mux");
    mux.SetBytePosition(L"2");
    mux.MakeSwitchKey().SetBitPosition(L"3");
    EXPECT_EQ(BytePositionOf(mux), 2u);
    EXPECT_EQ(BitPositionOf(mux.GetSwitchKey()), 3u);
}

TEST_F(ValuesTest, APositionThatIsAbsentOrNoNumberIsNone) {
    auto& param = m_request.AddValue(L"A");
    EXPECT_EQ(BytePositionOf(param), std::nullopt);
    for (wchar_t const* const text : {L"", L"x", L"-1", L"1 ", L"0x1", L"4294967296", L"99999999999999999999999"}) {
        param.SetBytePosition(text);
        EXPECT_EQ(BytePositionOf(param), std::nullopt) << text;
    }
    EXPECT_EQ(BytePositionOf(m_layer), std::nullopt);
    EXPECT_EQ(BitPositionOf(m_dop), std::nullopt);
}

TEST_F(ValuesTest, LengthsAreThoseOfReservedAndOfCodedTypes) {
    auto& reserved = m_request.AddReserved(L"A");
    reserved.SetBitLength(L"4");
    m_dop.MakeStandardLengthType().SetBitLength(L"16");
    EXPECT_EQ(BitLengthOf(reserved), 4u);
    EXPECT_EQ(BitLengthOf(m_dop.GetDiagCodedType()), 16u);
    EXPECT_EQ(BitLengthOf(m_dop), std::nullopt);
}

TEST_F(ValuesTest, ConstantsAreAskedOfWhateverHasOne) {
    auto& constant = m_request.AddCodedConst(L"A");
    constant.SetCodedValue(L"0x22");
    auto& reserved = m_request.AddReserved(L"B");
    reserved.SetCodedValue(L"255");
    auto& physical = m_request.AddPhysConst(L"C");
    physical.SetPhysConstantValue(L"on");
    auto& value = m_request.AddValue(L"D");
    value.SetPhysicalDefaultValue(L"3.5");
    auto& input = m_layer.AddSingleEcuJob(L"Job").AddInputParam(L"In");
    input.SetPhysicalDefaultValue(L"7");
    EXPECT_STREQ(ConstantOf(constant), L"0x22");
    EXPECT_STREQ(ConstantOf(reserved), L"255");
    EXPECT_STREQ(ConstantOf(physical), L"on");
    EXPECT_STREQ(ConstantOf(value), L"3.5");
    EXPECT_STREQ(ConstantOf(input), L"7");
    EXPECT_STREQ(ConstantOf(m_request.AddValue(L"E")), L"");
    EXPECT_STREQ(ConstantOf(m_layer), L"");
}

TEST_F(ValuesTest, TheConstantOfAScaleIsANumberOrElseAText) {
    auto& scale = m_dop.MakeCompuMethod().MakeCompuInternalToPhys().MakeCompuScales().AddCompuScale();
    auto& constant = scale.MakeCompuConst();
    EXPECT_STREQ(ConstantOf(constant), L"");
    constant.MakeVt().SetText(L"open");
    EXPECT_STREQ(ConstantOf(constant), L"open");
    constant.SetV(L"1");
    EXPECT_STREQ(ConstantOf(constant), L"1");
}

TEST_F(ValuesTest, LimitsAreAskedOfWhateverHasThem) {
    auto& scale = m_dop.MakeCompuMethod().MakeCompuInternalToPhys().MakeCompuScales().AddCompuScale();
    scale.MakeLowerLimit(L"10");
    NMemory::VLimits limits = NMemory::LimitsOf(scale);
    ASSERT_TRUE(limits.lower.has_value());
    EXPECT_STREQ(limits.lower->text, L"10");
    EXPECT_STREQ(limits.lower->intervalType, L"CLOSED");
    EXPECT_FALSE(limits.upper.has_value());

    auto& constraint = m_dop.MakeInternalConstr();
    constraint.MakeUpperLimit(L"90").SetIntervalType(L"OPEN");
    limits = NMemory::LimitsOf(constraint);
    EXPECT_FALSE(limits.lower.has_value());
    ASSERT_TRUE(limits.upper.has_value());
    EXPECT_STREQ(limits.upper->text, L"90");
    EXPECT_STREQ(limits.upper->intervalType, L"OPEN");
    EXPECT_FALSE(NMemory::LimitsOf(m_dop).lower.has_value());
}

class VForeignConst : public NODX201::VEmpty<NODX201::VCodedConst> {
public:
    wchar_t const* GetShortName() const override { return L"Foreign"; }
    NODX201::VOdxObject* GetOwner() const override { return nullptr; }
};

class VForeignLimit : public NODX201::VEmpty<NODX201::VLimit> {
public:
    NODX201::VOdxTagEnum GetOdxTag() const override { return NODX201::VOdxTagEnum::LowerLimit; }
    NODX201::VOdxObject* GetOwner() const override { return nullptr; }
};

TEST_F(ValuesTest, AnElementOfAnotherModelHasNoValues) {
    VForeignConst constant;
    EXPECT_EQ(BytePositionOf(constant), std::nullopt);
    EXPECT_STREQ(ConstantOf(constant), L"");
    EXPECT_EQ(NMemory::LimitOf(VForeignLimit()).has_value(), false);
}

} // namespace
} // namespace NTest
