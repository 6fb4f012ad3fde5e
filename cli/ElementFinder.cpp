// SPDX-License-Identifier: Apache-2.0
#include <cli/ElementFinder.h>

#include <set>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include <cli/Columns.h>
#include <cli/Layers.h>
#include <cli/NearNames.h>
#include <cli/Text.h>
#include <cli/WhyNot.h>
#include <diagkit/check/Views.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/model/Odx.h>
#include <diagkit/reader/Utf8.h>

namespace NCli {
namespace {

/// A possible match, and its owner for messages; null for one directly in the database.
template <class Element>
struct VCandidate {
    Element* element;
    NODX201::VReferencable const* place = nullptr;
};

template <class Element>
using VCandidates = std::vector<VCandidate<Element>>;

/// The names in messages for the kind of an element and the kind of its owner.
struct VKindOfElement {
    char const* name;
    char const* place = "";
};

using VAnyCandidate = VCandidate<NODX201::VReferencable const>;

std::wstring InPlace(VAnyCandidate const& candidate, wchar_t const* name) {
    return candidate.place != nullptr ? std::wstring(candidate.place->GetShortName()) + L"/" + name : L"";
}

// All ways to select an element.
std::wstring ById(VAnyCandidate const& candidate) { return candidate.element->GetId(); }
std::wstring ByShortName(VAnyCandidate const& candidate) { return candidate.element->GetShortName(); }
std::wstring ByPlaceAndShortName(VAnyCandidate const& candidate) {
    return InPlace(candidate, candidate.element->GetShortName());
}
std::wstring ByPlaceAndId(VAnyCandidate const& candidate) { return InPlace(candidate, candidate.element->GetId()); }

bool IsNamed(VAnyCandidate const& candidate, std::wstring_view wanted) {
    return wanted == ByShortName(candidate) || wanted == ById(candidate) || wanted == ByPlaceAndShortName(candidate) ||
           wanted == ByPlaceAndId(candidate);
}

/// With an explanatory note, and similar names.
std::string MissingMessage(std::string_view kind, std::wstring_view wanted, std::vector<VAnyCandidate> const& all,
                           std::string const& whyNot = "") {
    std::vector<std::wstring_view> names;
    for (VAnyCandidate const& candidate : all) {
        names.emplace_back(candidate.element->GetShortName());
        names.emplace_back(candidate.element->GetId());
    }
    return fmt::format("no {} has the short name or ID '{}'{}{}", kind, Shown(wanted), whyNot, NearNote(wanted, names));
}

/// Whether a way to select elements distinguishes these.
bool TellsApart(std::vector<VAnyCandidate> const& candidates, std::wstring (*way)(VAnyCandidate const& candidate)) {
    std::set<std::wstring> names;
    for (VAnyCandidate const& candidate : candidates) {
        std::wstring name = way(candidate);
        if (name.empty() || !names.insert(std::move(name)).second) {
            return false;
        }
    }
    return true;
}

std::string AdviceFor(VKindOfElement const& kind, std::vector<VAnyCandidate> const& candidates) {
    if (TellsApart(candidates, &ById)) {
        return "choose one by its ID";
    }
    if (TellsApart(candidates, &ByPlaceAndShortName)) {
        return fmt::format("choose one as {}/SHORT-NAME", kind.place);
    }
    if (TellsApart(candidates, &ByPlaceAndId)) {
        return fmt::format("choose one as {}/ID", kind.place);
    }
    return "and no name tells them apart; leave out the files of the others";
}

std::string AmbiguousMessage(VKindOfElement const& kind, std::wstring_view wanted,
                             std::vector<VAnyCandidate> const& candidates) {
    VColumns columns;
    for (VAnyCandidate const& candidate : candidates) {
        columns.Add({ShownName(*candidate.element), TagTextOf(*candidate.element), ShownId(*candidate.element),
                     candidate.place != nullptr ? "in " + ShownName(*candidate.place) : ""});
    }
    std::string message = fmt::format("'{}' fits {}, {}:\n{}", Shown(wanted), Counted(candidates.size(), kind.name),
                                      AdviceFor(kind, candidates), columns.Format());
    message.pop_back(); // the last line end
    return message;
}

template <class Element>
std::vector<VAnyCandidate> AnyOf(VCandidates<Element> const& candidates) {
    std::vector<VAnyCandidate> any;
    for (VCandidate<Element> const& candidate : candidates) {
        any.push_back({candidate.element, candidate.place});
    }
    return any;
}

/// An ID takes precedence: it selects the element also where it is the short name of another one.
template <class Element>
VCandidates<Element> Fitting(VCandidates<Element> const& all, std::wstring_view wanted) {
    VCandidates<Element> byId;
    VCandidates<Element> byName;
    for (VCandidate<Element> const& candidate : all) {
        if (wanted == ById({candidate.element, candidate.place})) {
            byId.push_back(candidate);
        } else if (IsNamed({candidate.element, candidate.place}, wanted)) {
            byName.push_back(candidate);
        }
    }
    return byId.empty() ? byName : byId;
}

template <class Element>
Element* FindOne(VKindOfElement const& kind, VCandidates<Element> const& all, std::string const& name,
                 VOutput const& output) {
    std::wstring const wanted = NReader::FromUtf8(name);
    VCandidates<Element> const fitting = Fitting(all, wanted);
    if (fitting.size() == 1) {
        return fitting.front().element;
    }
    output.Complain(fitting.empty() ? MissingMessage(kind.name, wanted, AnyOf(all))
                                    : AmbiguousMessage(kind, wanted, AnyOf(fitting)));
    return nullptr;
}

VCandidates<NMemory::VMemMultipleEcuJob> JobsOf(NMemory::VDatabase& database) {
    VCandidates<NMemory::VMemMultipleEcuJob> jobs;
    for (NMemory::VMemMultipleEcuJobSpec& spec : database.MultipleEcuJobSpecCollection()) {
        for (NMemory::VMemMultipleEcuJob& job : spec.MultipleEcuJobCollection()) {
            jobs.push_back({&job, &spec});
        }
    }
    return jobs;
}

/// The first DIAG-COMM of this short name or ID in any layer; null when there is none.
NODX201::VDiagComm const* DiagCommOfLayers(NMemory::VDatabase& database, std::wstring_view wanted) {
    for (VPlacedLayer const& placed : LayersOf(database)) {
        if (!placed.layer->HasDiagCommProxyCollection()) {
            continue;
        }
        for (NODX201::IDiagCommProxy& proxy : placed.layer->DiagCommProxyCollection()) {
            auto const* const diagComm = dynamic_cast<NODX201::VDiagComm const*>(&proxy);
            if (diagComm != nullptr && IsNamed({diagComm}, wanted)) {
                return diagComm;
            }
        }
    }
    return nullptr;
}

VCandidates<NODX201::VDiagLayer> LayerCandidates(NMemory::VDatabase& database) {
    VCandidates<NODX201::VDiagLayer> layers;
    for (VPlacedLayer const& placed : LayersOf(database)) {
        layers.push_back({placed.layer, placed.container});
    }
    return layers;
}

} // namespace

NODX201::VDiagLayer* FindLayer(NMemory::VDatabase& database, std::string const& name, VOutput const& output) {
    return FindOne({"layer", "CONTAINER"}, LayerCandidates(database), name, output);
}

std::vector<NODX201::VDiagLayer*> FindLayerInEither(NMemory::VDatabase& oldDatabase, NMemory::VDatabase& newDatabase,
                                                    std::string const& name, VOutput const& output) {
    std::wstring const wanted = NReader::FromUtf8(name);
    std::vector<NODX201::VDiagLayer*> found;
    VCandidates<NODX201::VDiagLayer> all;
    for (NMemory::VDatabase* const database : {&oldDatabase, &newDatabase}) {
        VCandidates<NODX201::VDiagLayer> const layers = LayerCandidates(*database);
        VCandidates<NODX201::VDiagLayer> const fitting = Fitting(layers, wanted);
        if (fitting.size() > 1) {
            output.Complain(AmbiguousMessage({"layer", "CONTAINER"}, wanted, AnyOf(fitting)));
            return {};
        }
        if (fitting.size() == 1) {
            found.push_back(fitting.front().element);
        }
        all.insert(all.end(), layers.begin(), layers.end());
    }
    if (found.empty()) {
        output.Complain(MissingMessage("layer of either database", wanted, AnyOf(all)));
    }
    return found;
}

NODX201::VDiagLayerContainer* FindContainer(NMemory::VDatabase& database, std::string const& name,
                                            VOutput const& output) {
    VCandidates<NODX201::VDiagLayerContainer> containers;
    for (NODX201::VDiagLayerContainer& container : database.GetOdx().DiagLayerContainerCollection()) {
        containers.push_back({&container});
    }
    return FindOne({"container"}, containers, name, output);
}

NMemory::VMemFlash* FindFlash(NMemory::VDatabase& database, std::string const& name, VOutput const& output) {
    VCandidates<NMemory::VMemFlash> flashes;
    for (NMemory::VMemFlash& flash : database.FlashCollection()) {
        flashes.push_back({&flash});
    }
    return FindOne({"flash"}, flashes, name, output);
}

NMemory::VMemMultipleEcuJob* FindJob(NMemory::VDatabase& database, std::string const& name, VOutput const& output) {
    VCandidates<NMemory::VMemMultipleEcuJob> const jobs = JobsOf(database);
    std::wstring const wanted = NReader::FromUtf8(name);
    NODX201::VDiagComm const* const other =
        Fitting(jobs, wanted).empty() ? DiagCommOfLayers(database, wanted) : nullptr;
    if (other != nullptr) {
        output.Complain(fmt::format("'{}' is a {}; use --layer with --diag-comm instead of --job", Shown(wanted),
                                    TagTextOf(*other)));
        return nullptr;
    }
    return FindOne({"multiple-ECU job", "MULTIPLE-ECU-JOB-SPEC"}, jobs, name, output);
}

NODX201::VDiagComm* FindDiagComm(NMemory::VDatabase& database, NODX201::VDiagLayer& layer, std::string const& name,
                                 std::string const& layerInCall, VOutput const& output) {
    VCandidates<NODX201::VDiagComm> visible;
    for (NODX201::VDiagComm* const diagComm : NCheck::DiagCommsIn(layer)) {
        visible.push_back({diagComm});
    }
    std::wstring const wanted = NReader::FromUtf8(name);
    for (auto const way : {&ByShortName, &ById}) { // a name in the view has precedence over an equal ID
        for (VCandidate<NODX201::VDiagComm> const& candidate : visible) {
            if (wanted == way({candidate.element})) {
                return candidate.element;
            }
        }
    }
    if (!Fitting(JobsOf(database), wanted).empty()) {
        output.Complain(fmt::format("'{}' is a MULTIPLE-ECU-JOB; use --job instead of --diag-comm", Shown(wanted)));
        return nullptr;
    }
    std::string whyNot = WhyNotNote(database, layer, NQuery::VInheritedKind::DiagComm, wanted, layerInCall);
    NODX201::VDiagComm const* const meant = whyNot.empty() ? DiagCommOfLayers(database, wanted) : nullptr;
    if (meant != nullptr) { // by its ID
        whyNot = WhyNotNote(database, layer, NQuery::VInheritedKind::DiagComm, meant->GetShortName(), layerInCall,
                            [meant](NODX201::VOdxElement const& element) { return &element == meant; });
    }
    output.Complain(
        fmt::format("in {}, {}", Titled(layer), MissingMessage("visible DIAG-COMM", wanted, AnyOf(visible), whyNot)));
    return nullptr;
}

} // namespace NCli
