// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <list>

#include <diagkit/Export.h>
#include <diagkit/model/Forward.h>
#include <diagkit/tools/InheritedView.h>
#include <diagkit/tools/StringContainer.h>

namespace NDIAGKIT {

struct VInheritedDiagComms;

/// The element type of `VDiagCommView` and the places of its assertions; see `VInheritedView`.
struct VDiagCommViewTraits : VNamedElements<NODX201::VDiagComm> {
    using Inherited = VInheritedDiagComms;
    static constexpr wchar_t const* kSource = L"DiagCommView";
    static constexpr int kRemoveElementLine = 348;
    static constexpr int kRemovePositionLine = 356;
    static constexpr int kRemoveStepLine = 433;
};

DIAGKIT_TEMPLATE_DECLARATION(VExternalIterator<std::list<NODX201::VDiagComm*>::iterator, NODX201::VDiagComm&>);
DIAGKIT_TEMPLATE_DECLARATION(VListView<VDiagCommViewTraits>);
DIAGKIT_TEMPLATE_DECLARATION(VNamedListView<VDiagCommViewTraits>);
DIAGKIT_TEMPLATE_DECLARATION(VInheritedView<VDiagCommViewTraits>);

/// The DIAG-COMMs (services and single-ECU jobs) visible in one layer: its own, in document order, then those of its
/// parents, except those excluded by a PARENT-REF in its NOT-INHERITED-DIAG-COMMS, and those hidden by an entry of the
/// same short name.
///
/// Parents are merged in passes over the PARENT-REFs, each in document order:
///
///     layer               pass 1                            pass 2
///     ECU-SHARED-DATA     -                                 -
///     PROTOCOL            ECU-SHARED-DATA                   -
///     FUNCTIONAL-GROUP    PROTOCOL                          ECU-SHARED-DATA
///     BASE-VARIANT        PROTOCOL and FUNCTIONAL-GROUP     ECU-SHARED-DATA
///     ECU-VARIANT         BASE-VARIANT                      ECU-SHARED-DATA
///
/// A parent contributes its full view, so an exclusion also applies to what the parent itself inherited. An
/// ECU-SHARED-DATA ranks below every other parent, wherever its reference is. References without a target are skipped.
///
/// The view contains pointers; the model owns the elements and must outlive the view. Each construction reads the model
/// again, each parent once, however many ways lead to it. Time is linear in the entries of the views that are merged.
class DIAGKIT_EXPORT VDiagCommView : public VInheritedView<VDiagCommViewTraits> {
public:
    using VInheritedView::VInheritedView; ///< of an ECU-SHARED-DATA, PROTOCOL, FUNCTIONAL-GROUP, BASE-VARIANT,
                                          ///< ECU-VARIANT

private:
    VStringContainer m_notInherited; // never filled: the merge itself keeps the exclusions of the current reference
};

} // namespace NDIAGKIT
