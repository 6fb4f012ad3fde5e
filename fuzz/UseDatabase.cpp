// SPDX-License-Identifier: Apache-2.0
#include <fuzz/UseDatabase.h>

#include <cstdlib>
#include <unordered_set>

#include <diagkit/check/Check.h>
#include <diagkit/check/Cycles.h>
#include <diagkit/memory/Odx.h>
#include <diagkit/query/Content.h>
#include <diagkit/query/Diff.h>
#include <diagkit/query/Explain.h>
#include <diagkit/query/InheritanceGraph.h>
#include <diagkit/query/LayerView.h>
#include <diagkit/query/Uses.h>
#include <diagkit/tools/DiagCommView.h>
#include <diagkit/tools/GlobalNegResponseView.h>
#include <diagkit/tools/GuardedDiagLayerTraverser.h>
#include <diagkit/tools/IdentIfView.h>
#include <diagkit/tools/InParamIfView.h>
#include <diagkit/tools/OpBuildDiagCommView.h>
#include <diagkit/tools/OpBuildDiagVariableView.h>
#include <diagkit/tools/OpBuildDopView.h>
#include <diagkit/tools/OpResolveSnref.h>
#include <diagkit/tools/OutParamIfView.h>
#include <diagkit/tools/ProtocolView.h>
#include <diagkit/tools/SessionView.h>
#include <diagkit/tools/oem/OemChecker.h>

namespace NFuzz {
namespace {

constexpr std::size_t kSteps = 2000;    // of each part
constexpr std::size_t kQuestions = 200; // that use all layers

void Require(bool isTrue) {
    if (!isTrue) {
        std::abort();
    }
}

/// Reads the entries of a view and finds each of them by name; passes them on while there are steps left.
template <class View, class Take>
void Use(View& view, VBudget& budget, Take take) {
    unsigned long long count = 0;
    for (auto& entry : view) {
        ++count;
        if (budget.Take()) {
            Require(view.Find(entry) != view.End());
            take(entry);
        }
    }
    Require(count == view.Count());
}

template <class View>
void Use(View& view, VBudget& budget) {
    Use(view, budget, [](auto&) {});
}

/// The same for a view by short name, which finds the first entry of a name.
template <class View, class Take>
void UseNamed(View& view, VBudget& budget, Take take) {
    Use(view, budget, [&](auto& entry) {
        auto const first = view.Find(entry.GetShortName());
        Require(first != view.End() && std::wstring_view((*first).GetShortName()) == entry.GetShortName());
        take(entry, *first);
    });
}

template <class View>
void UseNamed(View& view, VBudget& budget) {
    UseNamed(view, budget, [](auto&, auto&) {});
}

wchar_t const* ShortNameOf(NODX201::IOutParamIf& param) {
    auto const* const element = dynamic_cast<NODX201::VOdxElement const*>(&param);
    Require(element != nullptr);
    return element->GetShortName();
}

void UseOutParams(NDIAGKIT::VOutParamIfView&& view, NODX201::VDiagLayer& layer, VBudget& budget) {
    std::vector<std::wstring> names{L"NoSuchParam"};
    Use(view, budget, [&](NODX201::IOutParamIf& param) { names.emplace_back(ShortNameOf(param)); });
    for (std::wstring const& name : names) {
        if (budget.Take()) {
            Require(view.FindParam(name.c_str(), layer) != nullptr || name == L"NoSuchParam");
        }
    }
}

void UseParams(NODX201::VDiagComm& diagComm, NODX201::VDiagLayer& layer, VBudget& budget) {
    if (auto* const service = dynamic_cast<NODX201::VDiagService*>(&diagComm)) {
        NDIAGKIT::VInParamIfView inParams(*service);
        Use(inParams, budget);
        for (int range = 0; range <= 5; ++range) {
            UseOutParams(NDIAGKIT::VOutParamIfView(*service, static_cast<NODX201::VSearchRange>(range)), layer, budget);
        }
    } else if (auto* const job = dynamic_cast<NODX201::VSingleEcuJob*>(&diagComm)) {
        NDIAGKIT::VInParamIfView inParams(*job);
        Use(inParams, budget);
        UseOutParams(NDIAGKIT::VOutParamIfView(*job), layer, budget);
    }
}

void ViewLayer(NODX201::VDiagLayer& layer, VBudget& budget) {
    NDIAGKIT::VOpResolveSnref resolver;
    NDIAGKIT::VOpBuildDiagCommView diagComms;
    NDIAGKIT::VDiagCommView& diagCommView = *diagComms.CreateDiagCommView(layer);
    UseNamed(diagCommView, budget, [&](NODX201::VDiagComm& diagComm, NODX201::VDiagComm& first) {
        UseParams(diagComm, layer, budget);
        if (diagCommView.Count() < 100) { // each call makes a view
            Require(resolver.ResolveDiagCommSnref(first.GetShortName(), layer) == &first);
        }
    });
    diagComms.DestroyDiagCommView(diagCommView);

    NDIAGKIT::VOpBuildDopView dops;
    NDIAGKIT::VDopView& dopView = *dops.CreateDopView(layer);
    UseNamed(dopView, budget, [&](NODX201::VDopBase&, NODX201::VDopBase& first) {
        Require(resolver.ResolveDopBaseSnref(first.GetShortName(), layer) == &first);
    });
    dops.DestroyDopView(dopView);

    NDIAGKIT::VOpBuildDiagVariableView variables;
    NDIAGKIT::VDiagVariableView& variableView = *variables.CreateDiagVariableView(layer);
    UseNamed(variableView, budget);
    variables.DestroyDiagVariableView(variableView);

    NDIAGKIT::VGlobalNegResponseView responses(layer);
    UseNamed(responses, budget);

    if (auto* const baseVariant = dynamic_cast<NODX201::VBaseVariant*>(&layer)) {
        NDIAGKIT::VProtocolView protocols(*baseVariant);
        UseNamed(protocols, budget);
    }
}

/// A view with reasons, and explanations of its first names.
void ExplainLayer(NMemory::VDatabase& database, NODX201::VDiagLayer& layer, VBudget& budget) {
    using NQuery::VInheritedKind;
    for (VInheritedKind const kind : {VInheritedKind::DiagComm, VInheritedKind::DiagVariable,
                                      VInheritedKind::GlobalNegResponse, VInheritedKind::Dop}) {
        NQuery::VLayerView const view = NQuery::ViewOf(layer, kind);
        Require(view.entries.size() == NQuery::EntriesOf(layer, kind).size());
        for (auto const* const entries : {&view.entries, &view.hidden, &view.excluded}) {
            std::size_t count = 0;
            for (NQuery::VViewEntry const& entry : *entries) {
                if (++count > 5 || !budget.Take()) { // each explanation uses all layers
                    break;
                }
                NQuery::VExplanation const explanation =
                    NQuery::Explain(database, layer, kind, entry.element->GetShortName(), 20);
                Require(!explanation.candidates.empty());
                Require(entries != &view.entries || explanation.visible.has_value());
            }
        }
    }
}

/// Walks a layer until the budget is used up.
class VBudgetedWalk : public NDIAGKIT::VGuardedDiagLayerTraverser {
public:
    VBudgetedWalk(NODX201::VDiagLayer& layer, VBudget& budget) : VGuardedDiagLayerTraverser(layer), m_budget(budget) {}

    void Run() {
        try {
            TraverseDiagLayer();
        } catch (VBudget const&) {
            // Related DIAG-COMMs that all refer to each other make walks that take too long.
        }
    }

protected:
    void DefaultVisit(NODX201::VOdxElement& element) override {
        static_cast<void>(element.GetOdxTag());
        if (!m_budget.Take()) {
            throw m_budget;
        }
    }

private:
    VBudget& m_budget;
};

template <class Use>
void ForEachLayer(NODX201::VOdx& odx, Use use) {
    for (NODX201::VDiagLayerContainer& container : odx.DiagLayerContainerCollection()) {
        for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
            use(layer);
        }
    }
}

/// Every use of an element must be a reference of the database, with at least one layer if it has layers, and an
/// element without uses must be listed as unused where it may be.
void AskForUses(NReader::VReadResult const& result, VBudget& budget) {
    NQuery::VUses const uses(*result.database, result.elements);
    std::vector<NODX201::VOdxElement*> const unused = uses.Unused();
    std::unordered_set<NODX201::VOdxElement const*> const areUnused(unused.begin(), unused.end());
    for (NODX201::VOdxElement const* const element : result.elements) {
        if (!budget.Take()) {
            return;
        }
        for (NQuery::VUse const& use : uses.Of(*element)) {
            Require(!use.layers.has_value() || !use.layers->empty());
            NODX201::VOdxObject const* object = use.reference;
            while (object != nullptr && object != element) {
                object = object->GetOwner();
            }
            Require(object != nullptr || areUnused.count(element) == 0);
        }
    }
}

/// A database must equal itself, and adjacent layers that differ must differ in both directions.
void CompareLayers(NMemory::VDatabase& database) {
    constexpr std::size_t kMostPairs = 3;
    Require(NQuery::DiffDatabases(database, database).IsEqual());
    NODX201::VDiagLayer* before = nullptr;
    std::size_t pairs = 0;
    ForEachLayer(database.GetOdx(), [&](NODX201::VDiagLayer& layer) {
        if (before != nullptr && ++pairs <= kMostPairs) {
            bool const isEqual = NQuery::DiffLayers(*before, layer).IsEqual();
            Require(isEqual == NQuery::DiffLayers(layer, *before).IsEqual());
        }
        before = &layer;
    });
}

void AskForContents(std::vector<NODX201::VOdxElement*> const& elements) {
    for (NODX201::VOdxElement* const element : elements) {
        NQuery::ForEachPartOf(*element, [](NQuery::VContentPart const& part) {
            Require((part.element != nullptr) != (part.text != nullptr));
            if (part.role == NQuery::VPartRole::Reference) {
                static_cast<void>(NQuery::TargetOf(dynamic_cast<NODX201::VLink&>(*part.element), nullptr));
            }
        });
    }
}

} // namespace

std::vector<NReader::VDiagnostic> UseDatabase(NReader::VReadResult& result) {
    std::vector<NReader::VDiagnostic> diagnostics = NCheck::CheckDatabase(result);
    NMemory::VDatabase& database = *result.database;
    NCheck::FindCycles(database);
    NDIAGKIT::VOemChecker checker;
    Require(checker.GetManufacturer(database.GetOdx()) == checker.Report(database.GetOdx()).manufacturer);

    NQuery::VInheritanceGraph const graph = NQuery::InheritanceGraphOf(database);
    VBudget parts(kSteps / (1 + graph.nodes.size() + graph.edges.size()));
    ForEachLayer(database.GetOdx(), [&](NODX201::VDiagLayer& layer) {
        if (parts.Take()) {
            NQuery::VInheritanceGraph const part = NQuery::PartAround(graph, layer);
            Require(!part.nodes.empty() && part.nodes.size() <= graph.nodes.size());
        }
    });

    VBudget views(kSteps);
    ForEachLayer(database.GetOdx(), [&](NODX201::VDiagLayer& layer) { ViewLayer(layer, views); });
    VBudget questions(kQuestions);
    ForEachLayer(database.GetOdx(), [&](NODX201::VDiagLayer& layer) { ExplainLayer(database, layer, questions); });
    for (NODX201::VDiagLayerContainer& container : database.GetOdx().DiagLayerContainerCollection()) {
        NDIAGKIT::VProtocolView protocols(container);
        UseNamed(protocols, views);
    }
    for (NMemory::VMemFlash& flash : database.FlashCollection()) {
        NDIAGKIT::VIdentIfView idents(flash);
        Use(idents, views);
        NDIAGKIT::VSessionView sessions(flash);
        UseNamed(sessions, views);
    }
    CompareLayers(database);
    AskForContents(result.elements);
    VBudget references(kSteps);
    ResolveReferences(result, references);
    VBudget uses(kSteps);
    AskForUses(result, uses);
    VBudget walks(kSteps);
    ForEachLayer(database.GetOdx(), [&](NODX201::VDiagLayer& layer) { VBudgetedWalk(layer, walks).Run(); });
    return diagnostics;
}

} // namespace NFuzz
