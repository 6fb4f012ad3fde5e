// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <list>

#include <diagkit/Export.h>
#include <diagkit/model/Collections.h>
#include <diagkit/model/Visitors.h>
#include <diagkit/tools/ListView.h>
#include <diagkit/tools/StringContainer.h>

namespace NDIAGKIT {

/// The element type of `ProtocolView` and the places of its assertions; see `VListView`.
struct DIAGKIT_EXPORT VProtocolViewTraits {
    using Element = NODX201::VProtocol;
    static constexpr wchar_t const* kSource = L"ProtocolView";
    static constexpr int kRemoveElementLine = 197;
    static constexpr int kRemovePositionLine = 205;
    static constexpr int kRemoveStepLine = 283;
    static wchar_t const* ShortNameOf(Element& protocol);
};

DIAGKIT_TEMPLATE_DECLARATION(VExternalIterator<std::list<NODX201::VProtocol*>::iterator, NODX201::VProtocol&>);
DIAGKIT_TEMPLATE_DECLARATION(VListView<VProtocolViewTraits>);
DIAGKIT_TEMPLATE_DECLARATION(VNamedListView<VProtocolViewTraits>);

/// PROTOCOL layers: those of one container, in document order; or those of a BASE-VARIANT's PARENT-REFs, in their
/// order, where a FUNCTIONAL-GROUP is replaced by its own PROTOCOLs.
///
/// There is no test for duplicates: a PROTOCOL is in the view once for each reference. A PROTOCOL's own parents are not
/// followed and no NOT-INHERITED list applies. Otherwise as `VDiagCommView`.
class DIAGKIT_EXPORT VProtocolView : public NODX201::VDiagLayerVisitor, public VNamedListView<VProtocolViewTraits> {
public:
    explicit VProtocolView(NODX201::VDiagLayerContainer& container);
    explicit VProtocolView(NODX201::VBaseVariant& baseVariant);
    ~VProtocolView() override;

protected:
    void VisitBaseVariant(NODX201::VBaseVariant& layer) override;
    void VisitProtocol(NODX201::VProtocol& layer) override; ///< appends it; the other kinds are ignored
    void VisitFunctionalGroup(NODX201::VFunctionalGroup& layer) override;
    void VisitEcuVariant(NODX201::VEcuVariant& layer) override;
    void VisitEcuSharedData(NODX201::VEcuSharedData& layer) override;

    void EvaluateAndAddProtocolsFrom(NODX201::VParentRefCollection& parentRefs); ///< those of BASE-VARIANTs

private:
    VProtocolView();

    VStringContainer m_notInherited; // never filled
};

} // namespace NDIAGKIT
