// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <list>

#include <diagkit/Export.h>
#include <diagkit/model/Forward.h>
#include <diagkit/tools/InheritedView.h>
#include <diagkit/tools/StringContainer.h>

namespace NDIAGKIT {

struct VInheritedDiagVariables;

/// The element type of `DiagVariableView` and the places of its assertions; see `VInheritedView`.
struct VDiagVariableViewTraits : VNamedElements<NODX201::VDiagVariable> {
    using Inherited = VInheritedDiagVariables;
    static constexpr wchar_t const* kSource = L"DiagVariableView";
    static constexpr int kRemoveElementLine = 352;
    static constexpr int kRemovePositionLine = 360;
    static constexpr int kRemoveStepLine = 438;
};

DIAGKIT_TEMPLATE_DECLARATION(VExternalIterator<std::list<NODX201::VDiagVariable*>::iterator, NODX201::VDiagVariable&>);
DIAGKIT_TEMPLATE_DECLARATION(VListView<VDiagVariableViewTraits>);
DIAGKIT_TEMPLATE_DECLARATION(VNamedListView<VDiagVariableViewTraits>);
DIAGKIT_TEMPLATE_DECLARATION(VInheritedView<VDiagVariableViewTraits>);

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
class DIAGKIT_EXPORT VDiagVariableView : public VInheritedView<VDiagVariableViewTraits> {
public:
    using VInheritedView::VInheritedView; ///< of an ECU-SHARED-DATA, PROTOCOL, FUNCTIONAL-GROUP, BASE-VARIANT,
                                          ///< ECU-VARIANT

private:
    VStringContainer m_notInherited; // never filled: no exclusion applies to DIAG-VARIABLEs
};

} // namespace NDIAGKIT
