// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <list>

#include <diagkit/Export.h>
#include <diagkit/model/Visitors.h>
#include <diagkit/tools/ListView.h>

namespace NDIAGKIT {

struct VLayerOfKind;

/// The element type of `GlobalNegResponseView` and the places of its assertions; see `VListView`.
struct VGlobalNegResponseViewTraits : VNamedElements<NODX201::VGlobalNegResponse> {
    static constexpr wchar_t const* kSource = L"GlobalNegResponseView";
    static constexpr int kRemoveElementLine = 338;
    static constexpr int kRemovePositionLine = 346;
    static constexpr int kRemoveStepLine = 423;
};

DIAGKIT_TEMPLATE_DECLARATION(
    VExternalIterator<std::list<NODX201::VGlobalNegResponse*>::iterator, NODX201::VGlobalNegResponse&>);
DIAGKIT_TEMPLATE_DECLARATION(VListView<VGlobalNegResponseViewTraits>);
DIAGKIT_TEMPLATE_DECLARATION(VNamedListView<VGlobalNegResponseViewTraits>);

/// The GLOBAL-NEG-RESPONSEs visible in one layer: its own, selected from its responses by ODX tag, then those that it
/// inherits, minus those whose short name is already in the view. The passes are those of `VDiagCommView`; no
/// NOT-INHERITED list applies.
///
/// The view is its own layer visitor: one constructor serves every kind of layer.
class DIAGKIT_EXPORT VGlobalNegResponseView : public NODX201::VDiagLayerVisitor,
                                              public VNamedListView<VGlobalNegResponseViewTraits> {
public:
    explicit VGlobalNegResponseView(NODX201::VDiagLayer& layer);
    ~VGlobalNegResponseView() override;

protected:
    void VisitBaseVariant(NODX201::VBaseVariant& layer) override;
    void VisitProtocol(NODX201::VProtocol& layer) override;
    void VisitFunctionalGroup(NODX201::VFunctionalGroup& layer) override;
    void VisitEcuVariant(NODX201::VEcuVariant& layer) override;
    void VisitEcuSharedData(NODX201::VEcuSharedData& layer) override;

    void BuildViewFor(NODX201::VBaseVariant& layer);     ///< own responses, then both passes
    void BuildViewFor(NODX201::VProtocol& layer);        ///< own responses, then its pass
    void BuildViewFor(NODX201::VFunctionalGroup& layer); ///< own responses, then both passes
    void BuildViewFor(NODX201::VEcuVariant& layer);      ///< own responses, then both passes
    void BuildViewFor(NODX201::VEcuSharedData& layer);   ///< own responses

private:
    VGlobalNegResponseView();

    void Inherit(VLayerOfKind const& layer);
};

} // namespace NDIAGKIT
