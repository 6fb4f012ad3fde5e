// SPDX-License-Identifier: Apache-2.0

// The inherited views and their builders, one row per view, so that the bodies stay out of the public headers.

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Layers.h>
#include <diagkit/tools/InheritedViewImpl.h>
#include <diagkit/tools/OpBuildDiagCommView.h>
#include <diagkit/tools/OpBuildDiagVariableView.h>
#include <diagkit/tools/OpBuildDopView.h>
#include <diagkit/tools/OpBuildGlobalNegResponseView.h>

namespace NDIAGKIT {

#define LIST_VIEW(Name)                                                                                                \
    DIAGKIT_TEMPLATE_DEFINITION(VExternalIterator<std::list<NODX201::V##Name*>::iterator, NODX201::V##Name&>);         \
    DIAGKIT_TEMPLATE_DEFINITION(VListView<V##Name##ViewTraits>);                                                       \
    DIAGKIT_TEMPLATE_DEFINITION(VNamedListView<V##Name##ViewTraits>);                                                  \
    DIAGKIT_TEMPLATE_DEFINITION(VInheritedView<V##Name##ViewTraits>)

#define BUILDER(View, ...)                                                                                             \
    DIAGKIT_TEMPLATE_DEFINITION(VInheritedViewBuilder<V##View>);                                                       \
    V##View* VOpBuild##View::Create##View(NODX201::VDiagLayer& layer) { return __VA_ARGS__; }                          \
    void VOpBuild##View::Destroy##View(V##View& view) { Destroy(view); }                                               \
    static_assert(true, "")

/// The line is that of the builder's assertion.
#define LOUD_BUILDER(View, line)                                                                                       \
    BUILDER(View, Create(layer, {L"mp" #View " != NULL", {L"(mp" #View " != 0)", L"OpBuild" #View, line}}))

LIST_VIEW(DiagComm);
LIST_VIEW(DiagVariable);

LOUD_BUILDER(DiagCommView, 83);
LOUD_BUILDER(DiagVariableView, 83);
LOUD_BUILDER(DopView, 85);
// Deliberate: no message and no assertion where there is no view (BuilderWithoutViewIsSilent).
BUILDER(GlobalNegResponseView, CreateSilently(layer));

} // namespace NDIAGKIT
