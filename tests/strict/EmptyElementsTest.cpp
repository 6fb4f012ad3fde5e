// SPDX-License-Identifier: Apache-2.0

// Elements that have nothing: what they answer, and what they leave to those who derive from them.

#include <diagkit/model/Empty.h>

#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include <diagkit/model/SearchRange.h>

namespace NTest {
namespace {

using namespace NODX201;

// What a class derived from an empty one says, and no more.

template <class Class>
class VOwned : public VEmpty<Class> {
public:
    VOdxObject* GetOwner() const override { return nullptr; }
    wchar_t const* GetShortName() const override { return L""; }
};

template <class Class, class = void>
class VFilled : public VOwned<Class> {};

template <class Class>
class VFilled<Class, std::enable_if_t<std::is_base_of_v<VReferencable, Class>>> : public VOwned<Class> {
public:
    wchar_t const* GetId() const override { return L""; }
};

[[noreturn]] void NobodyAsks() { throw std::runtime_error("not asked for"); }

template <class Class>
class VFilled<Class, std::enable_if_t<std::is_base_of_v<VLink, Class>>> : public VOwned<Class> {
public:
    ILink& GetLink() override { NobodyAsks(); }
};

template <>
class VFilled<VText> : public VOwned<VText> {
public:
    wchar_t const* GetBaseMember() const override { return L""; }
};

template <>
class VFilled<VLimit> : public VOwned<VLimit> {
public:
    VOdxTagEnum GetOdxTag() const override { return VOdxTagEnum::UpperLimit; }
};

template <>
class VFilled<VNotInheritedDiagComm> : public VOwned<VNotInheritedDiagComm> {
public:
    VDiagCommLink& GetDiagCommSnref() override { NobodyAsks(); }
};

template <>
class VFilled<VNotInheritedVariable> : public VOwned<VNotInheritedVariable> {
public:
    VDiagVariableLink& GetDiagVariableSnref() override { NobodyAsks(); }
};

template <>
class VFilled<VEcuMem> : public VOwned<VEcuMem> {
public:
    wchar_t const* GetId() const override { return L""; }
    VMem& GetMem() override { NobodyAsks(); }
};

class VNoLayers : public VDiagLayerCollection {
public:
    VOdxObject* GetOwner() const override { return nullptr; }
};

template <>
class VFilled<VDiagLayerContainer> : public VOwned<VDiagLayerContainer> {
public:
    wchar_t const* GetId() const override { return L""; }
    VDiagLayerCollection& DiagLayerCollection() override { return m_layers; }

private:
    VNoLayers m_layers;
};

#define CLASS(topic, name)                                                                                             \
    static_assert(std::is_base_of_v<name, VEmpty<name>>, #name);                                                       \
    static_assert(std::is_abstract_v<VEmpty<name>> == !std::is_same_v<name, VOdx>, #name " says who owns it");         \
    static_assert(!std::is_abstract_v<VFilled<name>>, #name " leaves more than is said");
#define OPERATION(topic, name, operation)
#include <contract/Operations.def>

/// Asks for everything that a class of the contract, a base or not, has.
template <class Class>
void Ask(Class& element);

#define PARTS(name)                                                                                                    \
    template <>                                                                                                        \
    void Ask<name>(name & element) {                                                                                   \
        static_cast<void>(element);
#define END }
#define TEXT(part) EXPECT_STREQ(element.Get##part(), L"");
#define OPTIONAL_TEXT(part)                                                                                            \
    EXPECT_FALSE(element.Has##part());                                                                                 \
    TEXT(part)
#define PART(part)
#define CHILD(part)                                                                                                    \
    EXPECT_FALSE(element.Has##part());                                                                                 \
    EXPECT_THROW(element.Get##part(), std::logic_error);
#define LIST(part)                                                                                                     \
    EXPECT_EQ(element.part().Count(), 0u);                                                                             \
    EXPECT_EQ(&element.part(), &element.part());
#define OPTIONAL_LIST(part)                                                                                            \
    EXPECT_FALSE(element.Has##part());                                                                                 \
    LIST(part)
#define LINK()
#include <contract/Parts.def>

template <class Part, class Class>
void AskAs(Class& element) {
    if constexpr (std::is_base_of_v<Part, Class>) {
        Ask<Part>(element);
    }
}

template <class Class>
void AskForAllOf(Class& element) {
#define PARTS(name) AskAs<name>(element);
#define END
#define TEXT(part)
#define OPTIONAL_TEXT(part)
#define PART(part)
#define CHILD(part)
#define LIST(part)
#define OPTIONAL_LIST(part)
#define LINK()
#include <contract/Parts.def>
}

TEST(EmptyElementsTest, NothingIsThereOfAnything){
#define CLASS(topic, name)                                                                                             \
    {                                                                                                                  \
        SCOPED_TRACE(#name);                                                                                           \
        VFilled<name> element;                                                                                         \
        AskForAllOf(element);                                                                                          \
    }
#define OPERATION(topic, name, operation)
#include <contract/Operations.def>
}

TEST(EmptyElementsTest, ReferencesLeadNowhere) {
    VFilled<VEcuVariant> layer;
    VFilled<VDiagService> service;
#define LINK(link, target)                                                                                             \
    EXPECT_FALSE(VFilled<link>().Has##target()) << #link;                                                              \
    EXPECT_THROW(VFilled<link>().Get##target(), std::logic_error) << #link;
#define LINK_IN_LAYER(link, target)                                                                                    \
    EXPECT_FALSE(VFilled<link>().Has##target(layer)) << #link;                                                         \
    EXPECT_THROW(VFilled<link>().Get##target(), std::logic_error) << #link;
#include <contract/Links.def>
    EXPECT_FALSE(VFilled<VOutParamIfLink>().HasOutParamIf(service, layer, VSearchRange::Responses));
    EXPECT_THROW(VFilled<VOutParamIfLink>().GetOutParamIf(), std::logic_error);
}

TEST(EmptyElementsTest, TagsAreThoseOfTheirClasses) {
    EXPECT_EQ(VFilled<VDiagService>().GetOdxTag(), VOdxTagEnum::DiagService);
    EXPECT_EQ(VFilled<VCodedConst>().GetOdxTag(), VOdxTagEnum::CodedConst);
    EXPECT_EQ(VFilled<VByteStream>().GetOdxTag(), VOdxTagEnum::SupportedDynId);
    EXPECT_EQ(VFilled<VUnitLink>().GetOdxTag(), VOdxTagEnum::UnitRef);
    EXPECT_EQ(VFilled<VDopBaseLink>().GetOdxTag(), VOdxTagEnum::DopBaseRef);
    EXPECT_EQ(VFilled<VOutParamIfLink>().GetOdxTag(), VOdxTagEnum::OutParamIfSnref);
    EXPECT_EQ(VFilled<VProtocolRef>().GetOdxTag(), VOdxTagEnum::ProtocolRef);
    EXPECT_EQ(VFilled<VNotInheritedVariable>().GetOdxTag(), VOdxTagEnum::NotInheritedVariable);
    EXPECT_EQ(VFilled<VOdx>().GetOdxTag(), VOdxTagEnum::Odx);
    EXPECT_EQ(VFilled<VText>().GetOdxTag(), VOdxTagEnum::LongName);
}

/// Writes down the kind that an element calls back.
class VKindRecorder : public VDiagLayerVisitor, public VDiagCommVisitor, public VDopBaseVisitor, public VParamVisitor {
public:
#define VISITED(name)                                                                                                  \
    void Visit##name(V##name&) override { m_kinds += #name " "; }
#define VISITED_OdxElement(name)
#define VISITED_Referencable(name)
#define VISITED_DiagCodedType(name)
#define VISITED_Response(name)
#define VISITED_UnvisitedDiagComm(name)
#define VISITED_DiagLayer(name) VISITED(name)
#define VISITED_DiagComm(name) VISITED(name)
#define VISITED_DopBase(name) VISITED(name)
#define VISITED_ComplexDop(name) VISITED(name)
#define VISITED_BasicStructure(name) VISITED(name)
#define VISITED_Field(name) VISITED(name)
#define VISITED_Param(name) VISITED(name)
#define ODX_CLASS(name, tag, base, names, value, element, type) VISITED_##base(name)
#include <diagkit/model/Facts.def>

    std::string m_kinds;
};

template <class Visitor, class Class>
void Accepted(Class& element, std::string const& kind) {
    VKindRecorder recorder;
    element.Accept(static_cast<Visitor&>(recorder));
    EXPECT_EQ(recorder.m_kinds, kind == "VMultipleEcuJob" ? "" : kind.substr(1) + " ");
}

template <class Class>
void CallsBackItsKind(Class& element, std::string const& kind) {
    if constexpr (std::is_base_of_v<VDiagLayer, Class>) {
        Accepted<VDiagLayerVisitor>(element, kind);
    } else if constexpr (std::is_base_of_v<VDiagComm, Class>) {
        Accepted<VDiagCommVisitor>(element, kind);
    } else if constexpr (std::is_base_of_v<VDopBase, Class>) {
        Accepted<VDopBaseVisitor>(element, kind);
    } else if constexpr (std::is_base_of_v<VParam, Class>) {
        Accepted<VParamVisitor>(element, kind);
    }
}

TEST(EmptyElementsTest, EachCallsBackItsKind) {
#define CLASS(topic, name)                                                                                             \
    {                                                                                                                  \
        VFilled<name> element;                                                                                         \
        CallsBackItsKind(element, #name);                                                                              \
    }
#define OPERATION(topic, name, operation)
#include <contract/Operations.def>
}

// What is answered and what is left, counted.

template <class Member>
struct VMemberOf;
template <class Result, class Class>
struct VMemberOf<Result Class::*> {
    using Type = Class;
};

struct VOperationRow {
    char const* topic;
    char const* operation;
    bool isAnswered; ///< by the empty element
};

/// The operation is that of the contract's class, or of a base of it, unless the empty one has it.
template <class Class, class Operation>
constexpr bool IsAnswered() {
    using VDeclaring = typename VMemberOf<Operation>::Type;
    return std::is_base_of_v<Class, VDeclaring> && !std::is_same_v<Class, VDeclaring> &&
           !std::is_same_v<VDeclaring, VEmpty<VDiagLayerContainer>>; // which declares once more what is left
}

std::vector<VOperationRow> const& Operations() {
    static std::vector<VOperationRow> const rows = {
#define CLASS(topic, name)
#define OPERATION(topic, name, operation) {#topic, #operation, IsAnswered<name, decltype(&VEmpty<name>::operation)>()},
#include <contract/Operations.def>
    };
    return rows;
}

std::map<std::string, int> const& ClassesByTopic() {
    static std::map<std::string, int> const classes = [] {
        std::map<std::string, int> counts;
#define CLASS(topic, name) ++counts[#topic];
#define OPERATION(topic, name, operation)
#include <contract/Operations.def>
        return counts;
    }();
    return classes;
}

TEST(EmptyElementsTest, WhatIsLeftIsWhatNoElementGoesWithout) {
    std::set<std::string> left;
    for (VOperationRow const& row : Operations()) {
        if (!row.isAnswered) {
            left.insert(row.operation);
        }
    }
    std::set<std::string> const expected{"DiagLayerCollection",
                                         "GetBaseMember",
                                         "GetDiagCommSnref",
                                         "GetDiagVariableSnref",
                                         "GetId",
                                         "GetLink",
                                         "GetMem",
                                         "GetOdxTag",
                                         "GetOwner",
                                         "GetShortName"};
    EXPECT_EQ(left, expected);
}

/// The rows of the guide's table: `| Units | 6 | 37 | 14 |`, with the classes, their operations and those that are
/// left.
std::set<std::string> CountedRows() {
    struct VCounts {
        int all = 0;
        int left = 0;
    };
    std::map<std::string, VCounts> counts;
    for (VOperationRow const& row : Operations()) {
        for (std::string const& topic : {std::string("`") + row.topic + ".h`", std::string("together")}) {
            ++counts[topic].all;
            counts[topic].left += row.isAnswered ? 0 : 1;
        }
    }
    std::set<std::string> rows;
    int all = 0;
    for (auto const& [topic, classes] : ClassesByTopic()) {
        VCounts const& count = counts["`" + topic + ".h`"];
        rows.insert("| `" + topic + ".h` | " + std::to_string(classes) + " | " + std::to_string(count.all) + " | " +
                    std::to_string(count.left) + " |");
        all += classes;
    }
    rows.insert("| together | " + std::to_string(all) + " | " + std::to_string(counts["together"].all) + " | " +
                std::to_string(counts["together"].left) + " |");
    return rows;
}

TEST(EmptyElementsTest, TheGuideSaysHowManyOperationsThereAre) {
    std::ifstream page(DIAGKIT_GUIDE "/own-model.md");
    ASSERT_TRUE(page.is_open());
    std::set<std::string> rows;
    bool isInTable = false;
    for (std::string line; std::getline(page, line);) {
        isInTable = line.rfind("| topic | classes |", 0) == 0 || (isInTable && line.rfind("|", 0) == 0);
        if (isInTable && line.rfind("| topic", 0) != 0 && line.rfind("|---", 0) != 0) {
            rows.insert(line);
        }
    }
    EXPECT_EQ(rows, CountedRows());
}

} // namespace
} // namespace NTest
