// SPDX-License-Identifier: Apache-2.0
#include <map>
#include <optional>
#include <unordered_map>
#include <unordered_set>

#include <diagkit/check/ReadingPlaces.h>
#include <diagkit/check/Topics.h>
#include <diagkit/check/VisibleNames.h>
#include <diagkit/memory/Flash.h>

namespace NCheck {
namespace {

/// A reference by short name, and the number of layers tried in which it has no target.
struct VPending {
    NODX201::VLink* reference;
    VWantedName wanted;
    NODX201::VDiagLayer* latest = nullptr; ///< of the layers tried
    std::size_t tried = 0;
    std::size_t failed = 0;
    std::vector<NODX201::VDiagLayer*> failedIn{};    ///< the first ones, to be named
    NMemory::VMemMultipleEcuJobSpec* spec = nullptr; ///< that it stands in, and that does not have the name itself
};

/// The required kind of target, in messages.
char const* TextOf(VWantedName wanted) {
    switch (wanted) {
    case VWantedName::Dop:
        return "no DOP of that name is visible";
    case VWantedName::DataObjectProp:
        return "no DATA-OBJECT-PROP of that name is visible";
    case VWantedName::DiagComm:
        return "no DIAG-COMM of that name is visible";
    case VWantedName::Protocol:
        return "there is no PROTOCOL of that name in the container nor among the parents";
    case VWantedName::Table:
        return "there is no TABLE of that name among its own and its parents'";
    case VWantedName::ParamOfMessages:
        return "no DIAG-SERVICE that leads to it has an output parameter of that name";
    case VWantedName::OutParam:
        return "the DIAG-COMM has no output parameter of that name";
    case VWantedName::InParam:
        break;
    }
    return "the DIAG-COMM has no input parameter of that name";
}

std::string Named(NODX201::VLink& reference) {
    return TagOf(reference) + " names " +
           Quoted(dynamic_cast<NODX201::VSnref const&>(reference.GetLink()).GetShortName());
}

class VShortNameReferences {
public:
    explicit VShortNameReferences(VChecked const& checked) : m_checked(checked) {
        for (NODX201::VOdxElement* const element : checked.elements) {
            auto* const reference = dynamic_cast<NODX201::VLink*>(element);
            auto const wanted = reference != nullptr ? WantedNameOf(*reference) : std::nullopt;
            if (wanted.has_value()) {
                Add(*reference, *wanted);
            }
        }
    }

    void Check(VFindings& findings) {
        if (m_pending.empty()) {
            return;
        }
        VPlacesById const byId(m_checked.elements, DopsAmong(m_at));
        for (NODX201::VDiagLayer* const layer : LayersOf(m_checked.database)) {
            TryIn(*layer, byId);
            m_checked.layerDone();
        }
        for (VPending const& pending : m_pending) {
            Report(pending, findings);
        }
    }

private:
    using VIndices = std::vector<std::size_t>; // of pending ones

    /// A MULTIPLE-ECU-JOB-SPEC, and its references that its own dictionary does not resolve.
    struct VSpec {
        explicit VSpec(NMemory::VMemMultipleEcuJobSpec& spec) : names(spec), layers(LayersOfJobs(spec)) {}

        VNamesOfSpec names;
        std::optional<std::vector<NODX201::VDiagLayer*>> layers; ///< nothing when one is not loaded
        VIndices pending{};
    };

    void Add(NODX201::VLink& reference, VWantedName wanted) {
        std::size_t const index = m_pending.size();
        m_pending.push_back({&reference, wanted});
        if (NODX201::VDiagLayer* const home = NDIAGKIT::LayerOf(reference)) {
            m_at[home].push_back(index);
            if (NODX201::VOdxElement* const anchor = AnchorOf(reference)) {
                m_at[anchor].push_back(index);
            }
            return;
        }
        if (auto* const spec = Around<NMemory::VMemMultipleEcuJobSpec>(reference)) {
            AddOfSpec(*spec, index);
            return;
        }
        for (NODX201::VDiagLayer* const layer : LayersOfConnector(reference)) {
            m_at[layer].push_back(index);
        }
    }

    /// References that the dictionary of the job's document does not resolve may be resolved in the layers in which its
    /// jobs run.
    void AddOfSpec(NMemory::VMemMultipleEcuJobSpec& spec, std::size_t index) {
        auto const [known, isNew] = m_specs.try_emplace(&spec, spec);
        VSpec& of = known->second;
        if (isNew && of.layers.has_value()) {
            for (NODX201::VDiagLayer* const layer : *of.layers) {
                m_specsOf[layer].insert(&of);
            }
        }
        VPending& pending = m_pending[index];
        if (pending.wanted == VWantedName::ParamOfMessages || of.names.Find(*pending.reference) != nullptr ||
            !of.layers.has_value()) {
            return;
        }
        pending.spec = &spec;
        of.pending.push_back(index);
    }

    void TryIn(NODX201::VDiagLayer& layer, VPlacesById const& byId) {
        VVisibleNames names(layer, m_checked.views);
        if (auto const specs = m_specsOf.find(&layer); specs != m_specsOf.end()) {
            for (VSpec const* const spec : specs->second) {
                Try(spec->pending, names, layer);
            }
        }
        ForEachPlaceIn(layer, names, m_checked.views, byId,
                       [&](NODX201::VOdxElement const& place) { TryAt(place, names, layer); });
    }

    /// Tries the references inside an element, once in each layer.
    void TryAt(NODX201::VOdxElement const& place, VVisibleNames& names, NODX201::VDiagLayer& layer) {
        if (auto const found = m_at.find(&place); found != m_at.end()) {
            Try(found->second, names, layer);
        }
    }

    void Try(VIndices const& indices, VVisibleNames& names, NODX201::VDiagLayer& layer) {
        for (std::size_t const index : indices) {
            VPending& pending = m_pending[index];
            if (pending.latest == &layer) {
                continue;
            }
            pending.latest = &layer;
            std::optional<bool> const resolves = names.Resolves(*pending.reference);
            pending.tried += resolves.has_value() ? 1 : 0;
            if (!resolves.value_or(true)) {
                NoteFailure(pending, layer);
            }
        }
    }

    static void NoteFailure(VPending& pending, NODX201::VDiagLayer& layer) {
        ++pending.failed;
        if (pending.failedIn.size() < kMostListed) {
            pending.failedIn.push_back(&layer);
        }
    }

    static void Report(VPending const& pending, VFindings& findings) {
        if (pending.failed == 0 && (pending.spec == nullptr || pending.tried > 0)) {
            return;
        }
        bool const isNowhere = pending.failed == pending.tried;
        if (!isNowhere && pending.wanted == VWantedName::Protocol) {
            return; // it gives the PROTOCOL for which something applies, and not every layer has that one
        }
        char const* const rest = isNowhere ? "" : "; it is in the other layers that see the reference";
        findings.Add(PositionOf(*pending.reference),
                     isNowhere ? NCode::UnresolvedShortName : NCode::ShortNameNotEverywhere,
                     Named(*pending.reference) + ", but " + TextOf(pending.wanted) + ' ' + PlacesOf(pending) + rest);
    }

    static std::string PlacesOf(VPending const& pending) {
        std::string const layers = pending.failed > 0 ? InLayers(pending.failedIn, pending.failed) : "";
        if (pending.spec == nullptr) {
            return layers;
        }
        return "in the " + Titled(*pending.spec) + (layers.empty() ? "" : ", nor " + layers);
    }

    VChecked const& m_checked;
    std::map<NMemory::VMemMultipleEcuJobSpec*, VSpec> m_specs;
    std::unordered_map<NODX201::VDiagLayer*, std::unordered_set<VSpec*>> m_specsOf; // whose jobs run in the layer
    std::vector<VPending> m_pending;
    std::unordered_map<NODX201::VOdxElement const*, VIndices> m_at; // by layer and by anchor
};

void ReportInFlash(NODX201::VLink& reference, NMemory::VMemFlash const& flash, char const* kind, VFindings& findings) {
    findings.Add(PositionOf(reference), NCode::UnresolvedShortName,
                 Named(reference) + ", but the " + Titled(flash) + " has no " + kind + " of that name");
}

/// References from flash data to flash data.
void CheckFlash(NODX201::VLink& reference, VFindings& findings) {
    auto* const flash = Around<NMemory::VMemFlash>(reference);
    auto const* const snref = dynamic_cast<NODX201::VSnref const*>(&reference.GetLink());
    if (flash == nullptr || snref == nullptr || *snref->GetShortName() == L'\0') {
        return;
    }
    if (auto* const session = dynamic_cast<NMemory::VMemSessionLink*>(&reference)) {
        if (!session->HasSession(*flash)) {
            ReportInFlash(reference, *flash, "SESSION", findings);
        }
    } else if (auto* const ident = dynamic_cast<NMemory::VMemIdentIfLink*>(&reference)) {
        if (!ident->HasIdentIf(*flash)) {
            ReportInFlash(reference, *flash, "EXPECTED-IDENT and no OWN-IDENT", findings);
        }
    }
}

} // namespace

void CheckShortNameReferences(VChecked const& checked, VFindings& findings) {
    VShortNameReferences(checked).Check(findings);
    for (NODX201::VOdxElement* const element : checked.elements) {
        auto* const reference = dynamic_cast<NODX201::VLink*>(element);
        if (reference != nullptr && NDIAGKIT::LayerOf(*reference) == nullptr) {
            CheckFlash(*reference, findings);
        }
    }
}

} // namespace NCheck
