// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <list>

#include <diagkit/Export.h>
#include <diagkit/model/Forward.h>
#include <diagkit/tools/ListView.h>
#include <diagkit/tools/StringContainer.h>

namespace NDIAGKIT {

struct VLayerOfKind;

/// What `DiagVariableView` holds and where it asserts; see `VListView`.
struct DIAGKIT_EXPORT VDiagVariableViewTraits {
    using Element = NODX201::VDiagVariable;
    static constexpr wchar_t const* kSource = L"DiagVariableView";
    static constexpr int kRemoveElementLine = 352;
    static constexpr int kRemovePositionLine = 360;
    static constexpr int kRemoveStepLine = 438;
    static wchar_t const* ShortNameOf(Element& diagVariable);
};

DIAGKIT_TEMPLATE_DECLARATION(VExternalIterator<std::list<NODX201::VDiagVariable*>::iterator, NODX201::VDiagVariable&>);
DIAGKIT_TEMPLATE_DECLARATION(VListView<VDiagVariableViewTraits>);
DIAGKIT_TEMPLATE_DECLARATION(VNamedListView<VDiagVariableViewTraits>);

/// The DIAG-VARIABLEs visible in one layer: its own, in document order, then those that it inherits, minus those whose
/// short name is already in the view.
///
///     layer               own     pass 1                pass 2
///     ECU-SHARED-DATA     yes     -                     -
///     PROTOCOL            none    -                     -
///     FUNCTIONAL-GROUP    yes     ECU-SHARED-DATA       -
///     BASE-VARIANT        yes     FUNCTIONAL-GROUP      ECU-SHARED-DATA
///     ECU-VARIANT         yes     BASE-VARIANT          ECU-SHARED-DATA
///
/// A PROTOCOL has no DIAG-VARIABLEs and contributes none. No NOT-INHERITED list applies. Otherwise as `VDiagCommView`.
class DIAGKIT_EXPORT VDiagVariableView : public VNamedListView<VDiagVariableViewTraits> {
public:
    explicit VDiagVariableView(NODX201::VEcuSharedData& layer);
    explicit VDiagVariableView(NODX201::VProtocol& layer);
    explicit VDiagVariableView(NODX201::VFunctionalGroup& layer);
    explicit VDiagVariableView(NODX201::VBaseVariant& layer);
    explicit VDiagVariableView(NODX201::VEcuVariant& layer);
    virtual ~VDiagVariableView();

private:
    VDiagVariableView();

    void Inherit(VLayerOfKind const& layer);

    VStringContainer m_notInherited; // never filled: no exclusion applies to DIAG-VARIABLEs
};

} // namespace NDIAGKIT
