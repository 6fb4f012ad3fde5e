// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/Export.h>
#include <diagkit/model/Forward.h>
#include <diagkit/model/Visitors.h>
#include <diagkit/tools/ListView.h>
#include <diagkit/util/Assertion.h>

/// The common base of the views of inherited elements, and that of their builders.

namespace NDIAGKIT {

/// A list view of the elements of one kind that are visible in a layer; see `VInheritance`. In addition to what
/// `VListView` requires, `Traits` names the row of the table: `using Inherited = VInheritedDiagComms`.
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
/// The builder remembers the view it made last and destroys it at the next Create, not when it is destroyed itself. So
/// either keep one builder per view and release the view with its Destroy, or let the builder release it by creating
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
    /// is logged and, unless the listener creates a view with this builder, asserted.
    View* Create(NODX201::VDiagLayer& layer, VBuilderSite const& site);

    View* CreateSilently(NODX201::VDiagLayer& layer); ///< neither logs nor asserts

    /// Destroys a view that a builder made; no effect for a reference to null.
    void Destroy(View& view);

private:
    View* mpView = nullptr;
};

} // namespace NDIAGKIT
