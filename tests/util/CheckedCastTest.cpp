// SPDX-License-Identifier: Apache-2.0
#include <diagkit/util/CheckedCast.h>

#include <vector>

#include <gtest/gtest.h>

namespace NTest {
namespace {

// An interface like those of the contract, the class to cast to, and classes of a model with both in every arrangement.

class IEntry {
public:
    virtual int Number() const { return 1; }

protected:
    ~IEntry() = default;
};

struct VElement {
    virtual ~VElement() = default;
    int m_id = 7;
};

struct VAnother {
    virtual ~VAnother() = default;
    int m_id = 9;
};

struct VRow : VElement, IEntry {
    int Number() const override { return m_number; }
    int m_number = 2;
};

struct VPlainRow final : VRow {};
struct VRowBehindAnother final : VAnother, VRow {}; // the interface is elsewhere in the whole object
struct VOther final : VElement, IEntry {};          // no row
struct VBareEntry final : IEntry {
    virtual ~VBareEntry() = default;
};

struct VEntryBase : IEntry {
    virtual ~VEntryBase() = default;
};
struct VEntryBesideRow final : VEntryBase, VRow {};               // two interfaces, one of them the row's
struct VEntryBesideHiddenRow final : VEntryBase, private VRow {}; // no cast from one to the other
struct VFirstRow : VRow {};
struct VSecondRow : VRow {};
struct VEntryBesideTwoRows final : VEntryBase, VFirstRow, VSecondRow {}; // which one?
struct VVirtualRow : virtual VRow {};
struct VRowAsVirtualBase final : VAnother, VVirtualRow {};
struct VHiddenRow final : private VRow {
    IEntry& Entry() { return *this; } // of a hidden row, which does not matter
};

using VCast = NPavonaUtil::VCheckedCast<VRow, IEntry>;

class CheckedCastTest : public testing::Test {
protected:
    VPlainRow m_plain, m_secondPlain;
    VRowBehindAnother m_behindAnother;
    VOther m_other;
    VBareEntry m_bare;
    VEntryBesideRow m_beside;
    VEntryBesideHiddenRow m_besideHidden;
    VEntryBesideTwoRows m_besideTwo;
    VRowAsVirtualBase m_virtual;
    VHiddenRow m_hidden;

    std::vector<IEntry*> m_entries{
        &m_plain,
        &m_secondPlain,
        &m_behindAnother,
        &m_other,
        &m_bare,
        static_cast<VEntryBase*>(&m_beside),
        static_cast<VRow*>(&m_beside),
        static_cast<VEntryBase*>(&m_besideHidden),
        static_cast<VEntryBase*>(&m_besideTwo),
        static_cast<VFirstRow*>(&m_besideTwo),
        static_cast<VSecondRow*>(&m_besideTwo),
        &m_virtual,
        &m_hidden.Entry(),
    };
};

TEST_F(CheckedCastTest, TheAnswerIsAlwaysThatOfDynamicCastWhateverCameBefore) {
    for (IEntry* const first : m_entries) {
        for (IEntry* const second : m_entries) {
            VCast cast;
            for (IEntry* const entry : {first, second, first, second, second}) {
                EXPECT_EQ(cast(*entry), dynamic_cast<VRow*>(entry)) << typeid(*entry).name();
            }
        }
    }
}

TEST_F(CheckedCastTest, NothingIsRememberedAtFirst) { EXPECT_EQ(VCast().Again(m_plain), nullptr); }

TEST_F(CheckedCastTest, ObjectsOfTheLastClassAreFoundAgain) {
    VCast cast;
    cast(m_plain);
    EXPECT_EQ(cast.Again(m_secondPlain), &m_secondPlain);
    EXPECT_EQ(cast.Again(m_behindAnother), nullptr) << "another class";
    cast(m_behindAnother);
    EXPECT_EQ(cast.Again(m_behindAnother), static_cast<VRow*>(&m_behindAnother));
    EXPECT_EQ(cast.Again(m_plain), nullptr) << "the last one alone";
}

TEST_F(CheckedCastTest, AClassThatIsNoneLeavesTheLastOneRemembered) {
    VCast cast;
    cast(m_plain);
    EXPECT_EQ(cast(m_other), nullptr);
    EXPECT_EQ(cast.Again(m_secondPlain), &m_secondPlain);
    EXPECT_EQ(cast.Again(m_other), nullptr);
}

TEST_F(CheckedCastTest, OfTwoInterfacesInOneObjectOnlyThatOfTheRowIsRemembered) {
    VCast cast;
    IEntry& ofRow = static_cast<VRow&>(m_beside);
    IEntry& besideIt = static_cast<VEntryBase&>(m_beside);
    EXPECT_EQ(cast(besideIt), static_cast<VRow*>(&m_beside)) << "found beside it";
    EXPECT_EQ(cast.Again(besideIt), nullptr) << "and each time anew";
    EXPECT_EQ(cast(ofRow), static_cast<VRow*>(&m_beside));
    EXPECT_EQ(cast.Again(ofRow), static_cast<VRow*>(&m_beside));
    EXPECT_EQ(cast.Again(besideIt), nullptr);
}

TEST_F(CheckedCastTest, AVirtualBaseIsFoundInItsPlace) {
    VCast cast;
    VRow& row = m_virtual;
    EXPECT_EQ(cast(row), &row);
    EXPECT_EQ(cast.Again(row), &row);
    EXPECT_EQ(cast(row)->m_number, 2);
}

} // namespace
} // namespace NTest
