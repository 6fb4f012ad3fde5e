// SPDX-License-Identifier: Apache-2.0
#include <diagkit/cli/ElementFinder.h>

#include <fmt/format.h>

#include <diagkit/cli/Columns.h>
#include <diagkit/cli/DiagCommOrigins.h>
#include <diagkit/cli/Layers.h>
#include <diagkit/cli/NearNames.h>
#include <diagkit/cli/Text.h>
#include <diagkit/model/Odx.h>
#include <diagkit/reader/Utf8.h>

namespace NCli {
namespace {

template <class Element>
std::string MissingMessage(std::string_view kind, std::wstring_view wanted, std::vector<Element*> const& elements) {
    std::vector<std::wstring_view> names;
    for (Element const* const element : elements) {
        names.emplace_back(element->GetShortName());
        names.emplace_back(element->GetId());
    }
    std::string message = fmt::format("no {} has the short name or ID '{}'", kind, Shown(wanted));
    char const* separator = "; near names: ";
    for (std::wstring_view const name : NearNames(wanted, names)) {
        message += separator + Shown(name);
        separator = ", ";
    }
    return message;
}

template <class Element>
std::string AmbiguousMessage(std::string_view kind, std::wstring_view wanted, std::vector<Element*> const& candidates) {
    VColumns columns;
    for (Element const* const element : candidates) {
        columns.Add({ShownName(*element), TagTextOf(*element), ShownId(*element)});
    }
    std::string message = fmt::format("'{}' fits {}, choose one by its ID:\n{}", Shown(wanted),
                                      Counted(candidates.size(), kind), columns.Format());
    message.pop_back(); // the last line end
    return message;
}

template <class Element>
std::vector<Element*> Fitting(std::vector<Element*> const& elements, std::wstring_view wanted) {
    std::vector<Element*> candidates;
    for (Element* const element : elements) {
        if (wanted == element->GetShortName() || wanted == element->GetId()) {
            candidates.push_back(element);
        }
    }
    return candidates;
}

template <class Element>
Element* FindOne(std::string_view kind, std::vector<Element*> const& elements, std::string const& name,
                 VOutput const& output) {
    std::wstring const wanted = NReader::FromUtf8(name);
    std::vector<Element*> const candidates = Fitting(elements, wanted);
    if (candidates.size() == 1) {
        return candidates.front();
    }
    output.Complain(candidates.empty() ? MissingMessage(kind, wanted, elements)
                                       : AmbiguousMessage(kind, wanted, candidates));
    return nullptr;
}

} // namespace

NODX201::VDiagLayerContainer* FindContainer(NMemory::VDatabase& database, std::string const& name,
                                            VOutput const& output) {
    std::vector<NODX201::VDiagLayerContainer*> containers;
    for (NODX201::VDiagLayerContainer& container : database.GetOdx().DiagLayerContainerCollection()) {
        containers.push_back(&container);
    }
    return FindOne("container", containers, name, output);
}

NMemory::VMemFlash* FindFlash(NMemory::VDatabase& database, std::string const& name, VOutput const& output) {
    std::vector<NMemory::VMemFlash*> flashes;
    for (NMemory::VMemFlash& flash : database.FlashCollection()) {
        flashes.push_back(&flash);
    }
    return FindOne("flash", flashes, name, output);
}

NMemory::VMemMultipleEcuJob* FindJob(NMemory::VDatabase& database, std::string const& name, VOutput const& output) {
    std::vector<NMemory::VMemMultipleEcuJob*> jobs;
    for (NMemory::VMemMultipleEcuJobSpec& spec : database.MultipleEcuJobSpecCollection()) {
        for (NMemory::VMemMultipleEcuJob& job : spec.MultipleEcuJobCollection()) {
            jobs.push_back(&job);
        }
    }
    return FindOne("multiple-ECU job", jobs, name, output);
}

NODX201::VDiagComm* FindDiagComm(NODX201::VDiagLayer& layer, std::string const& name, VOutput const& output) {
    std::vector<NODX201::VDiagComm*> const visible = VisibleDiagComms(layer);
    std::wstring const wanted = NReader::FromUtf8(name);
    std::vector<NODX201::VDiagComm*> const candidates = Fitting(visible, wanted);
    if (!candidates.empty()) {
        return candidates.front(); // of one name in a view, the first counts
    }
    output.Complain(fmt::format("in {}, {}", Titled(layer), MissingMessage("visible DIAG-COMM", wanted, visible)));
    return nullptr;
}

} // namespace NCli
