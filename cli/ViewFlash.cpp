// SPDX-License-Identifier: Apache-2.0
#include <fmt/format.h>

#include <cli/Csv.h>
#include <cli/ElementFinder.h>
#include <cli/Text.h>
#include <cli/ViewText.h>
#include <cli/Views.h>
#include <diagkit/tools/IdentIfView.h>
#include <diagkit/tools/SessionView.h>

namespace NCli {
namespace {

template <class View>
VStatus ViewFlash(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output, char const* title) {
    NODX201::VFlash* const flash = FindFlash(database, arguments.flash, output);
    if (flash == nullptr) {
        return VStatus::NotThere;
    }
    View view(*flash);
    std::vector<NODX201::VOdxElement const*> entries;
    for (auto& entry : view) {
        entries.push_back(&dynamic_cast<NODX201::VOdxElement const&>(entry));
    }
    if (arguments.isJson) {
        WriteViewAsJson(arguments.kind, *flash, entries, output);
    } else if (arguments.isCsv) {
        WriteEntriesAsCsv(entries, output);
    } else {
        WriteEntries(fmt::format("{} of FLASH {}", title, ShownName(*flash)), entries, &PlaceOf, output);
    }
    return VStatus::Done;
}

} // namespace

VStatus ViewIdents(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output) {
    return ViewFlash<NDIAGKIT::VIdentIfView>(arguments, database, output, "EXPECTED-IDENTs");
}

VStatus ViewSessions(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output) {
    return ViewFlash<NDIAGKIT::VSessionView>(arguments, database, output, "SESSIONs");
}

} // namespace NCli
