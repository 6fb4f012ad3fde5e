// SPDX-License-Identifier: Apache-2.0
#include <fmt/format.h>

#include <cli/Csv.h>
#include <cli/ElementFinder.h>
#include <cli/Layers.h>
#include <cli/Text.h>
#include <cli/ViewText.h>
#include <cli/Views.h>
#include <diagkit/tools/ProtocolView.h>

namespace NCli {
namespace {

std::string NoNote(NODX201::VOdxElement const&) { return {}; }

VStatus Answer(VArguments const& arguments, NODX201::VOdxElement const& context, NDIAGKIT::VProtocolView& view,
               VOutput& output) {
    std::vector<NODX201::VOdxElement const*> entries;
    for (NODX201::VProtocol& protocol : view) {
        entries.push_back(&protocol);
    }
    if (arguments.isJson) {
        WriteViewAsJson(arguments.kind, context, entries, output);
    } else if (arguments.isCsv) {
        WriteEntriesAsCsv(entries, output);
    } else {
        WriteEntries(fmt::format("PROTOCOLs of {} {}", TagTextOf(context), ShownName(context)), entries, &NoNote,
                     output);
    }
    return VStatus::Done;
}

} // namespace

VStatus ViewProtocols(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output) {
    if (!arguments.container.empty()) {
        NODX201::VDiagLayerContainer* const container = FindContainer(database, arguments.container, output);
        if (container == nullptr) {
            return VStatus::NotThere;
        }
        NDIAGKIT::VProtocolView view(*container);
        return Answer(arguments, *container, view, output);
    }
    NODX201::VDiagLayer* const layer = FindLayer(database, arguments.layer, output);
    if (layer == nullptr) {
        return VStatus::NotThere;
    }
    auto* const baseVariant = dynamic_cast<NODX201::VBaseVariant*>(layer);
    if (baseVariant == nullptr) {
        output.Complain(
            fmt::format("{} is no BASE-VARIANT; protocols are asked of a BASE-VARIANT or a container", Titled(*layer)));
        return VStatus::NotThere;
    }
    NDIAGKIT::VProtocolView view(*baseVariant);
    return Answer(arguments, *baseVariant, view, output);
}

} // namespace NCli
