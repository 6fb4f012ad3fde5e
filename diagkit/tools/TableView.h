// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <list>

#include <diagkit/tools/InheritedView.h>

namespace NDIAGKIT {

struct VInheritedTables;

/// What `VTableView` holds and where it asserts; see `VInheritedView`.
struct VTableViewTraits : VNamedElements<NODX201::VTable> {
    using Inherited = VInheritedTables;
    static constexpr wchar_t const* kSource = L"TableView";
    static constexpr int kRemoveElementLine = 344;
    static constexpr int kRemovePositionLine = 352;
    static constexpr int kRemoveStepLine = 416;
};

DIAGKIT_TEMPLATE_DECLARATION(VExternalIterator<std::list<NODX201::VTable*>::iterator, NODX201::VTable&>);
DIAGKIT_TEMPLATE_DECLARATION(VListView<VTableViewTraits>);
DIAGKIT_TEMPLATE_DECLARATION(VNamedListView<VTableViewTraits>);
DIAGKIT_TEMPLATE_DECLARATION(VInheritedView<VTableViewTraits>);

/// The TABLEs visible in one layer: those of its DIAG-DATA-DICTIONARY-SPEC, in document order, then those that it
/// inherits. Passes and rules are those of `VDopView`. Otherwise as `VDiagCommView`.
class DIAGKIT_EXPORT VTableView : public VInheritedView<VTableViewTraits> {
public:
    using VInheritedView::VInheritedView;
};

DIAGKIT_TEMPLATE_DECLARATION(VInheritedViewBuilder<VTableView>);

/// Builds the TABLE view of a layer whose kind the caller does not know.
class DIAGKIT_EXPORT VOpBuildTableView : public VInheritedViewBuilder<VTableView> {
public:
    VTableView* CreateTableView(NODX201::VDiagLayer& layer);
    void DestroyTableView(VTableView& view);
};

} // namespace NDIAGKIT
