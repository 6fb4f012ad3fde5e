// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/Export.h>
#include <diagkit/model/Forward.h>
#include <diagkit/model/Visitors.h>
#include <diagkit/tools/ListView.h>
#include <diagkit/util/Assertion.h>

/// What the views of what layers inherit share, and their builders.

namespace NDIAGKIT {

/// A list view of what is visible of one kind in a layer; see `VInheritance`. Beside what `VListView` asks of it,
/// `Traits` names the row of the table: `using Inherited = VInheritedDiagComms`.
template <class Traits>
class VInheritedView : public VNamedListView<Traits> {
public:
    explicit VInheritedView(NODX201::VEcuSharedData& layer);
    explicit VInheritedView(NODX201::VProtocol& layer);
    explicit VInheritedView(NODX201::VFunctionalGroup& layer);
    explicit VInheritedView(NODX201::VBaseVariant& layer);
    explicit VInheritedView(NODX201::VEcuVariant& layer);
    virtual ~VInheritedView();
};

/// Where and with which texts a builder reports that it made no view.
struct VBuilderSite {
    wchar_t const* logged;             ///< the text logged before "."
    NPavonaUtil::VAssertion assertion; ///< raised afterwards, unless there is a view by then
};

/// Builds a view of a layer whose kind the caller does not know.
///
/// The builder remembers the view it made last and destroys it at the next Create, not when it is destroyed itself.
/// So either keep one builder a view and release the view with its Destroy, or let the builder release it by creating
/// the next; never both: after Destroy the builder must not create again. A copy of a builder remembers the same view.
template <class View>
class VInheritedViewBuilder : public NODX201::VDiagLayerVisitor {
public:
    VInheritedViewBuilder();
    VInheritedViewBuilder(VInheritedViewBuilder const& other);
    VInheritedViewBuilder& operator=(VInheritedViewBuilder const& other);
    ~VInheritedViewBuilder() override;

    void VisitBaseVariant(NODX201::VBaseVariant& layer) override;
    void VisitProtocol(NODX201::VProtocol& layer) override;
    void VisitFunctionalGroup(NODX201::VFunctionalGroup& layer) override;
    void VisitEcuVariant(NODX201::VEcuVariant& layer) override;
    void VisitEcuSharedData(NODX201::VEcuSharedData& layer) override;

protected:
    /// The layer's view. Null only when its `Accept` calls back nothing and the builder has no view from before; that
    /// is logged and, unless the listener has this builder make a view, asserted.
    View* Create(NODX201::VDiagLayer& layer, VBuilderSite const& site);

    View* CreateSilently(NODX201::VDiagLayer& layer); ///< neither logs nor asserts

    /// Destroys a view that a builder made; nothing happens for a reference behind which there is none (null).
    void Destroy(View& view);

private:
    View* mpView = nullptr;
};

} // namespace NDIAGKIT
