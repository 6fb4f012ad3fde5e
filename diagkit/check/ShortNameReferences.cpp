// SPDX-License-Identifier: Apache-2.0
#include <map>
#include <optional>
#include <unordered_map>
#include <unordered_set>

#include <diagkit/check/Topics.h>
#include <diagkit/check/VisibleNames.h>
#include <diagkit/memory/Flash.h>

namespace NCheck {
namespace {

/// A reference by short name, and in how many of the layers tried it names nothing.
struct VPending {
    NODX201::VLink* reference;
    NODX201::VDiagLayer* latest = nullptr; ///< of the layers tried
    std::size_t tried = 0;
    std::size_t failed = 0;
    std::vector<NODX201::VDiagLayer*> failedIn{};    ///< the first ones, to be named
    NMemory::VMemMultipleEcuJobSpec* spec = nullptr; ///< that it stands in, and that does not have the name itself
};

/// The element by which a reference is visible in layers besides its own: what views hold, or a message of a service.
/// Null where there is none.
NODX201::VOdxElement* AnchorOf(NODX201::VLink const& reference) {
    NODX201::VOdxElement* anchor = nullptr;
    for (NODX201::VOdxObject* object = reference.GetOwner(); object != nullptr; object = object->GetOwner()) {
        bool const isAnchor = dynamic_cast<NODX201::VDiagComm*>(object) != nullptr ||
                              dynamic_cast<NODX201::VRequest*>(object) != nullptr ||
                              dynamic_cast<NODX201::VResponse*>(object) != nullptr ||
                              dynamic_cast<NODX201::VDopBase*>(object) != nullptr ||
                              dynamic_cast<NODX201::VDiagVariable*>(object) != nullptr;
        if (isAnchor) {
            anchor = dynamic_cast<NODX201::VOdxElement*>(object); // the outermost: ENV-DATA stands in an ENV-DATA-DESC
        }
    }
    return anchor;
}

/// The layers in which a reference of flash data is read.
std::vector<NODX201::VDiagLayer*> LayersOfConnector(NODX201::VLink const& reference) {
    std::vector<NODX201::VDiagLayer*> layers;
    for (NODX201::VOdxObject* object = reference.GetOwner(); object != nullptr; object = object->GetOwner()) {
        auto* const connector = dynamic_cast<NMemory::VMemEcuMemConnector*>(object);
        if (connector == nullptr) {
            continue;
        }
        for (NMemory::VMemDiagLayerLink& link : connector->DiagLayerLinkCollection()) {
            if (link.HasDiagLayer()) {
                layers.push_back(&link.GetDiagLayer());
            }
        }
    }
    return layers;
}

/// The layers that the jobs of a MULTIPLE-ECU-JOB-SPEC run in; nothing when one of them is not loaded.
std::optional<std::vector<NODX201::VDiagLayer*>> LayersOfJobs(NMemory::VMemMultipleEcuJobSpec& spec) {
    std::vector<NODX201::VDiagLayer*> layers;
    for (NMemory::VMemMultipleEcuJob& job : spec.MultipleEcuJobCollection()) {
        for (NMemory::VMemDiagLayerLink& link : job.DiagLayerLinkCollection()) {
            if (!link.HasDiagLayer()) {
                return std::nullopt;
            }
            layers.push_back(&link.GetDiagLayer());
        }
    }
    return layers;
}

struct VWanted {
    bool (*is)(NODX201::VLink& reference);
    char const* what;
};

template <class Link>
bool Is(NODX201::VLink& reference) {
    return dynamic_cast<Link*>(&reference) != nullptr;
}

/// The PARAM-SNREF of an ENV-DATA-DESC, which is read in whatever message leads to it.
bool IsOfEnvDataDesc(NODX201::VLink& reference) {
    return dynamic_cast<NODX201::VEnvDataDesc*>(reference.GetOwner()) != nullptr;
}

/// The references that layers resolve, and what they want there.
constexpr VWanted kWanted[] = {
    {&Is<NODX201::VDopBaseLink>, "no DOP of that name is visible"},
    {&Is<NODX201::VDataObjectPropLink>, "no DATA-OBJECT-PROP of that name is visible"},
    {&Is<NODX201::VDiagCommLink>, "no DIAG-COMM of that name is visible"},
    {&Is<NMemory::VMemProtocolSnref>, "there is no PROTOCOL of that name in the container nor among the parents"},
    {&Is<NODX201::VTableLink>, "there is no TABLE of that name among its own and its parents'"},
    {&IsOfEnvDataDesc, "no DIAG-SERVICE that leads to it has an output parameter of that name"},
    {&Is<NODX201::VOutParamIfLink>, "the DIAG-COMM has no output parameter of that name"},
    {&Is<NMemory::VMemInParamIfLink>, "the DIAG-COMM has no input parameter of that name"},
};

char const* WantedBy(NODX201::VLink& reference) {
    for (VWanted const& row : kWanted) {
        if (row.is(reference)) {
            return row.what;
        }
    }
    return nullptr;
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
            if (reference != nullptr && IsByShortName(*reference) && WantedBy(*reference) != nullptr) {
                Add(*reference);
            }
        }
    }

    void Check(VFindings& findings) {
        if (m_pending.empty()) {
            return;
        }
        for (NODX201::VDiagLayer* const layer : LayersOf(m_checked.database)) {
            TryIn(*layer);
            m_checked.layerDone();
        }
        for (VPending const& pending : m_pending) {
            Report(pending, findings);
        }
    }

private:
    using VIndices = std::vector<std::size_t>; // of pending ones

    /// A MULTIPLE-ECU-JOB-SPEC, and its references that its own dictionary does not answer.
    struct VSpec {
        explicit VSpec(NMemory::VMemMultipleEcuJobSpec& spec) : names(spec), layers(LayersOfJobs(spec)) {}

        VNamesOfSpec names;
        std::optional<std::vector<NODX201::VDiagLayer*>> layers; ///< nothing when one is not loaded
        VIndices pending{};
    };

    static bool IsByShortName(NODX201::VLink& reference) {
        auto const* const snref = dynamic_cast<NODX201::VSnref const*>(&reference.GetLink());
        return snref != nullptr && *snref->GetShortName() != L'\0';
    }

    void Add(NODX201::VLink& reference) {
        std::size_t const index = m_pending.size();
        m_pending.push_back({&reference});
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

    /// What the dictionary of the job's document does not have, the layers in which its jobs run may.
    void AddOfSpec(NMemory::VMemMultipleEcuJobSpec& spec, std::size_t index) {
        NODX201::VLink& reference = *m_pending[index].reference;
        auto const [known, isNew] = m_specs.try_emplace(&spec, spec);
        VSpec& of = known->second;
        if (isNew && of.layers.has_value()) {
            for (NODX201::VDiagLayer* const layer : *of.layers) {
                m_specsOf[layer].insert(&of);
            }
        }
        if (IsOfEnvDataDesc(reference) || of.names.Resolves(reference) || !of.layers.has_value()) {
            return;
        }
        m_pending[index].spec = &spec;
        of.pending.push_back(index);
    }

    void TryIn(NODX201::VDiagLayer& layer) {
        VVisibleNames names(layer, m_checked.views);
        TryAt(layer, names, layer);
        if (auto const specs = m_specsOf.find(&layer); specs != m_specsOf.end()) {
            for (VSpec const* const spec : specs->second) {
                Try(spec->pending, names, layer);
            }
        }
        for (NODX201::VDiagComm* const diagComm : names.DiagComms()) {
            TryAt(*diagComm, names, layer);
            if (auto* const service = dynamic_cast<NODX201::VDiagService*>(diagComm)) {
                TryMessages(*service, names, layer);
            }
        }
        for (NODX201::VDopBase* const dop : names.Dops()) {
            TryAt(*dop, names, layer);
        }
        for (NODX201::VDiagVariable* const variable : m_checked.views.diagVariables.EntriesOf(layer)) {
            TryAt(*variable, names, layer);
        }
        for (NODX201::VGlobalNegResponse* const response : m_checked.views.globalNegResponses.EntriesOf(layer)) {
            TryAt(*response, names, layer);
        }
    }

    void TryMessages(NODX201::VDiagService& service, VVisibleNames& names, NODX201::VDiagLayer& layer) {
        if (service.HasRequestRef() && service.GetRequestRef().HasRequest()) {
            TryAt(service.GetRequestRef().GetRequest(), names, layer);
        }
        for (NODX201::VPosResponseLink& link : service.PosResponseLinkCollection()) {
            if (link.HasPosResponse()) {
                TryAt(link.GetPosResponse(), names, layer);
            }
        }
        for (NODX201::VNegResponseLink& link : service.NegResponseLinkCollection()) {
            if (link.HasNegResponse()) {
                TryAt(link.GetNegResponse(), names, layer);
            }
        }
    }

    /// Tries the references that stand in an element, once in each layer.
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
        if (!isNowhere && Is<NMemory::VMemProtocolSnref>(*pending.reference)) {
            return; // it says for which PROTOCOL something holds, and not every layer has that one
        }
        char const* const rest = isNowhere ? "" : "; it is in the other layers that see the reference";
        findings.Add(
            PositionOf(*pending.reference), isNowhere ? NCode::UnresolvedShortName : NCode::ShortNameNotEverywhere,
            Named(*pending.reference) + ", but " + WantedBy(*pending.reference) + ' ' + PlacesOf(pending) + rest);
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

/// References that stand in flash data and name flash data.
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
