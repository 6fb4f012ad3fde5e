// SPDX-License-Identifier: Apache-2.0

// The slots of the traversers' operations in their tables. Clients of the shared library rely on them.

#include <cstddef>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <diagkit/tools/DiagLayerTraverser.h>

#include "support/Slots.h"

#ifdef DIAGKIT_TEST_SLOTS

namespace NTest {
namespace {

constexpr std::size_t kDictionaryKinds = 66;
constexpr std::size_t kLayerKinds = 26;

// The operations that a traverser adds to those of the visitors, in the order of its table.
// clang-format off
#define VISITS_OF_DICTIONARIES(X)                                                                                      \
    X(AdminData) X(CompanyDocInfo) X(DocRevision) X(CompanyRevisionInfo) X(Modification) X(UnitSpec) X(SdgCaption)     \
    X(Sd) X(CompuDefaultValue) X(CompuScale) X(UnitGroup) X(Unit) X(PhysicalDimension) X(Dtc) X(CompuMethod)           \
    X(InternalConstr) X(DiagCodedType) X(PhysicalType) X(Sdg) X(CompuInternalToPhys) X(CompuPhysToInternal)            \
    X(Limit) X(ScaleConstr) X(ProgCode) X(Vt) X(CompuInverseValue) X(CompuConst) X(CompuRationalCoeffs) X(Field)       \
    X(DetermineNumberOfItems) X(ComplexDop) X(BasicStructure) X(Table) X(TableRow) X(TeamMember) X(Role)               \
    X(AllValue) X(DefaultCase) X(SwitchKey) X(Case) X(OutputParam) X(CompanyData) X(CompanySpecificInfo)               \
    X(RelatedDoc) X(Xdoc)
#define DESCENDS_OF_DICTIONARIES(X)                                                                                    \
    X(EnvData) X(Structure) X(EnvDataDesc) X(StaticField) X(DynamicLengthField) X(DynamicEndmarkerField)               \
    X(EndOfPduField) X(Mux) X(DataObjectProp) X(DtcDop) X(AdminData) X(CompanyDocInfo) X(DocRevision)                  \
    X(CompanyRevisionInfo) X(UnitSpec) X(CodedConst) X(LengthKey) X(PhysConst) X(Reserved) X(System) X(TableKey)       \
    X(TableStruct) X(Value) X(TableEntry) X(UnitGroup) X(Unit) X(Dtc) X(CompuMethod) X(InternalConstr) X(Sdg)          \
    X(CompuInternalToPhys) X(CompuPhysToInternal) X(ScaleConstr) X(CompuDefaultValue) X(CompuScale) X(CompuConst)      \
    X(Field) X(DetermineNumberOfItems) X(ComplexDop) X(BasicStructure) X(Table) X(TableRow) X(TeamMember)              \
    X(DefaultCase) X(SwitchKey) X(Case) X(OutputParam) X(CompanyData) X(CompanySpecificInfo) X(RelatedDoc)
#define VISITS_OF_LAYERS(X)                                                                                            \
    X(FunctClass) X(Request) X(Response) X(DiagComm) X(Audience) X(DiagVariable) X(VariableGroup) X(AutMethod)         \
    X(AccessLevel) X(DynDefinedSpec) X(EcuParentPattern) X(InputParam) X(NegOutputParam) X(SwVariable)                 \
    X(CommRelation) X(DynIdDefModeInfo) X(MatchingParameter) X(SupportedDynId) X(ComparamRef)
#define DESCENDS_OF_LAYERS(X)                                                                                          \
    X(DiagLayer) X(BaseVariant) X(Protocol) X(FunctionalGroup) X(EcuVariant) X(EcuSharedData) X(FunctClass)            \
    X(SingleEcuJob) X(DiagService) X(DiagVariable) X(AccessLevel) X(DynDefinedSpec) X(EcuParentPattern) X(Request)     \
    X(Response) X(NegOutputParam) X(InputParam) X(CommRelation) X(DynIdDefModeInfo) X(MatchingParameter)               \
    X(DiagComm)
// clang-format on

/// All operations as public members, none overridden.
class VOpen : public NDIAGKIT::VDiagLayerTraverser {
public:
#define TRAVERSER_KIND(kind, element)                                                                                  \
    using VDiagLayerTraverser::PreProcess##kind;                                                                       \
    using VDiagLayerTraverser::PostProcess##kind;
#define TRAVERSER_TEXT_KIND(kind) TRAVERSER_KIND(kind, )
#include <diagkit/tools/TraverserKinds.def>

#define OPEN_VISIT(kind) using VDiagLayerTraverser::Visit##kind;
#define OPEN_DESCEND(kind) using VDiagLayerTraverser::Descend##kind;
    VISITS_OF_DICTIONARIES(OPEN_VISIT)
    VISITS_OF_LAYERS(OPEN_VISIT)
    DESCENDS_OF_DICTIONARIES(OPEN_DESCEND)
    DESCENDS_OF_LAYERS(OPEN_DESCEND)

    using VDiagDataDictionarySpecTraverser::DefaultVisit;
};

using VSlots = std::vector<std::ptrdiff_t>;
using VTexts = std::vector<std::string>;

struct VOperation {
    char const* name;
    std::ptrdiff_t slot;
};

using VOperations = std::vector<VOperation>;

#define VISIT(kind) VOperation{"Visit" #kind, SlotOf(&VOpen::Visit##kind)},
#define DESCEND(kind) VOperation{"Descend" #kind, SlotOf(&VOpen::Descend##kind)},

/// Those that are not consecutive from the first place on.
VTexts Misplaced(std::ptrdiff_t first, VOperations const& operations) {
    VTexts texts;
    for (VOperation const& operation : operations) {
        if (operation.slot != first) {
            texts.push_back(operation.name + (" at " + std::to_string(operation.slot)));
        }
        ++first;
    }
    return texts;
}

VSlots Row(std::ptrdiff_t first, std::size_t count) {
    VSlots slots(count);
    std::iota(slots.begin(), slots.end(), first);
    return slots;
}

VSlots Joined(VSlots slots, VSlots const& more) {
    slots.insert(slots.end(), more.begin(), more.end());
    return slots;
}

VSlots const kPreProcess = {
#define TRAVERSER_KIND(kind, element) SlotOf(&VOpen::PreProcess##kind),
#define TRAVERSER_TEXT_KIND(kind) TRAVERSER_KIND(kind, )
#include <diagkit/tools/TraverserKinds.def>
};

VSlots const kPostProcess = {
#define TRAVERSER_KIND(kind, element) SlotOf(&VOpen::PostProcess##kind),
#define TRAVERSER_TEXT_KIND(kind) TRAVERSER_KIND(kind, )
#include <diagkit/tools/TraverserKinds.def>
};

// The dictionary's hooks are in the table of its traverser, those of the layers in that of theirs.

TEST(TraverserSlotsTest, PreProcess) {
    VSlots layers = Row(49, kLayerKinds);
    std::swap(layers[0], layers[1]); // in no other list does Protocol come first
    EXPECT_EQ(kPreProcess, Joined(Row(109, kDictionaryKinds), layers));
}

TEST(TraverserSlotsTest, PostProcess) {
    EXPECT_EQ(kPostProcess, Joined(Row(175, kDictionaryKinds), Row(75, kLayerKinds)));
}

TEST(TraverserSlotsTest, VisitsAndDescendsOfDictionaries) {
    VOperations const visits = {VISITS_OF_DICTIONARIES(VISIT)};
    EXPECT_EQ(Misplaced(14, visits), VTexts());
    VOperations const descends = {DESCENDS_OF_DICTIONARIES(DESCEND)};
    EXPECT_EQ(Misplaced(59, descends), VTexts());
}

TEST(TraverserSlotsTest, VisitsAndDescendsOfLayers) {
    VOperations const visits = {VISITS_OF_LAYERS(VISIT)};
    EXPECT_EQ(Misplaced(9, visits), VTexts());
    VOperations const descends = {DESCENDS_OF_LAYERS(DESCEND)};
    EXPECT_EQ(Misplaced(28, descends), VTexts());
}

TEST(TraverserSlotsTest, Walks) {
    EXPECT_EQ(SlotsOf(&VOpen::DefaultVisit, &VOpen::TraverseDiagDataDictionarySpec, &VOpen::TraverseParam,
                      &VOpen::TraverseParamCollection),
              Row(241, 4));
    EXPECT_EQ(SlotOf(&VOpen::TraverseDiagLayer), 8);
}

} // namespace
} // namespace NTest

#endif
