// SPDX-License-Identifier: Apache-2.0
#include <fmt/format.h>

#include <cli/Csv.h>
#include <cli/DiagCommSelection.h>
#include <cli/Text.h>
#include <cli/ViewText.h>
#include <cli/Views.h>
#include <diagkit/model/Params.h>
#include <diagkit/tools/InParamIfView.h>
#include <diagkit/tools/OutParamIfView.h>

namespace NCli {
namespace {

template <class View>
VStatus Answer(VArguments const& arguments, char const* title, NODX201::VDiagComm& context, View view,
               VOutput& output) {
    std::vector<NODX201::VOdxElement const*> entries;
    for (auto& param : *view) {
        entries.push_back(&dynamic_cast<NODX201::VOdxElement const&>(param));
    }
    if (arguments.isJson) {
        WriteViewAsJson(arguments.kind, context, entries, output);
    } else if (arguments.isCsv) {
        WriteEntriesAsCsv(entries, output);
    } else {
        WriteEntries(fmt::format("{} of {} {}", title, TagTextOf(context), ShownName(context)), entries, &PlaceOf,
                     output);
    }
    return VStatus::Done;
}

} // namespace

VStatus ViewInParams(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output) {
    VDiagCommSelection const selection = SelectDiagComm(arguments, database, output);
    if (selection.diagComm == nullptr) {
        return VStatus::NotThere;
    }
    return Answer(arguments, "Input parameters", *selection.diagComm, InParamsOf(selection), output);
}

VStatus ViewOutParams(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output) {
    VDiagCommSelection const selection = SelectDiagComm(arguments, database, output);
    if (selection.diagComm == nullptr) {
        return VStatus::NotThere;
    }
    return Answer(arguments, "Output parameters", *selection.diagComm, OutParamsOf(selection, arguments.Range()),
                  output);
}

} // namespace NCli
