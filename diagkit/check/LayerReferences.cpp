// SPDX-License-Identifier: Apache-2.0
#include <map>
#include <optional>
#include <tuple>

#include <diagkit/check/Topics.h>
#include <diagkit/memory/References.h>
#include <diagkit/reader/CycleSearch.h>
#include <diagkit/tools/Inheritance.h>

namespace NCheck {
namespace {

/// A kind of reference from layer to layer, which is useless if repeated.
struct VLayerReference {
    VCode code;
    NODX201::VDiagLayer* (*targetOf)(NODX201::VOdxElement& element); ///< null for other elements too
    char const* effect;
};

NODX201::VDiagLayer* ParentOf(NODX201::VOdxElement& element) {
    auto* const parentRef = dynamic_cast<NODX201::VParentRef*>(&element);
    auto const parent = parentRef != nullptr ? NDIAGKIT::ParentBy(*parentRef) : std::nullopt;
    return parent.has_value() ? parent->layer : nullptr;
}

NODX201::VDiagLayer* ImportOf(NODX201::VOdxElement& element) {
    auto* const importRef = dynamic_cast<NMemory::VMemImportRef*>(&element);
    return importRef != nullptr && importRef->HasDiagLayer() ? &importRef->GetDiagLayer() : nullptr;
}

// clang-format off
constexpr VLayerReference kReferences[] = {
    {NCode::RepeatedParent, &ParentOf, "; what one of them excludes, the other still brings"},
    {NCode::RepeatedImport, &ImportOf, ""},
};
// clang-format on

void CheckRepeated(VChecked const& checked, VLayerReference const& kind, VFindings& findings) {
    std::map<std::tuple<NODX201::VOdxObject*, NODX201::VDiagLayer*>, NODX201::VOdxElement*> firsts;
    for (NODX201::VOdxElement* const element : checked.elements) {
        NODX201::VDiagLayer* const target = kind.targetOf(*element);
        if (target == nullptr || target == element->GetOwner()) {
            continue; // reported as unresolved, or as a layer that refers to itself
        }
        NODX201::VOdxElement* const first = firsts.try_emplace({element->GetOwner(), target}, element).first->second;
        if (first != element) {
            findings.Add(PositionOf(*element), kind.code,
                         TagOf(*element) + " names the " + Titled(*target) + ", as the one at line " +
                             std::to_string(PositionOf(*first).line) + " does" + kind.effect);
        }
    }
}

NReader::VEdges ImportsOf(NODX201::VReferencable& layer) {
    NReader::VEdges edges;
    for (NMemory::VMemImportRef& import : dynamic_cast<NMemory::IMemLayer&>(layer).ImportRefCollection()) {
        if (import.HasDiagLayer()) {
            edges.push_back({&import.GetDiagLayer(), &import});
        }
    }
    return edges;
}

void ReportCycle(NReader::VEdge const& closing, NReader::VCycleSearch::VChain const& chain, VFindings& findings) {
    std::string const ring = chain.Count() > 1 ? ", in the cycle of " + ListedIn(chain) : "";
    findings.Add(PositionOf(*closing.link), NCode::ImportCycle,
                 Titled(chain[0]) + " imports itself by this reference" + ring +
                     "; programs that follow imports may not terminate");
}

void CheckImportCycles(VChecked const& checked, VFindings& findings) {
    NReader::VCycleSearch search(
        &ImportsOf, &NReader::IsReference,
        [&findings](NReader::VEdge const& closing, NReader::VCycleSearch::VChain const& chain) {
            ReportCycle(closing, chain, findings);
        });
    for (NODX201::VDiagLayer* const layer : LayersOf(checked.database)) {
        search.From(*layer);
    }
}

} // namespace

void CheckLayerReferences(VChecked const& checked, VFindings& findings) {
    for (VLayerReference const& kind : kReferences) {
        CheckRepeated(checked, kind, findings);
    }
    CheckImportCycles(checked, findings);
}

} // namespace NCheck
