// SPDX-License-Identifier: Apache-2.0
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <cli/AnyElement.h>
#include <cli/Commands.h>
#include <cli/Entry.h>
#include <cli/Load.h>
#include <cli/ShowJson.h>
#include <cli/ShowText.h>
#include <cli/Text.h>
#include <cli/WhyNot.h>
#include <diagkit/reader/Utf8.h>
#include <diagkit/tools/Inheritance.h>

namespace NCli {
namespace {

using VElements = std::vector<NODX201::VOdxElement*>;

/// A call for each of several elements that one name fits, as far as a call can tell them apart.
std::string CallsFor(VArguments const& arguments, VElements const& found) {
    constexpr std::size_t kMost = 20;
    std::map<std::string, int> ids;
    std::map<std::string, int> tags;
    for (NODX201::VOdxElement const* const element : found) {
        ++ids[ShownId(*element)];
        ++tags[TagTextOf(*element)];
    }
    std::string const layer =
        arguments.layer.empty() ? "" : " --layer " + Quoted(Shown(std::string_view(arguments.layer)));
    std::string calls;
    std::size_t count = 0;
    for (NODX201::VOdxElement const* const element : found) {
        std::string const id = ShownId(*element);
        std::string const tag = TagTextOf(*element);
        if (++count > kMost) {
            break;
        }
        if (!id.empty() && ids[id] == 1) {
            calls += fmt::format("\n  diagkit show {} FILE...{}", Quoted(id), layer);
        } else if (tags[tag] == 1) {
            calls += fmt::format("\n  diagkit show {} FILE... --kind {}{}",
                                 Quoted(Shown(std::string_view(arguments.name))), tag, layer);
        }
    }
    return calls;
}

VStatus AnswerNothing(VArguments const& arguments, NReader::VReadResult const& result, VAnyName const& name,
                      VElements const& found, VOutput& output) {
    ComplainOfName(arguments, result, name, found, output);
    std::string const calls = CallsFor(arguments, found);
    if (!calls.empty()) {
        output.Complain("one of them is meant by" + calls);
    }
    if (arguments.isJson) {
        WriteJson(output, [&](VJsonWriter& json) {
            json.Object([&] {
                json.ArrayOf("candidates", found,
                             [&json](NODX201::VOdxElement const* element) { WriteEntry(json, *element); });
            });
        });
    }
    return VStatus::NotThere;
}

VStatus Show(VArguments const& arguments, NReader::VReadResult const& result, NODX201::VOdxElement& element,
             NODX201::VDiagLayer* layer, VOutput& output) {
    auto* const self = dynamic_cast<NODX201::VDiagLayer*>(&element);
    NODX201::VDiagLayer* const own = self != nullptr ? self : NDIAGKIT::LayerOf(element);
    NQuery::VLayoutOptions options;
    options.maxRows = arguments.maxRows;
    VShown const shown{*result.database, element, layer != nullptr ? layer : own, options};
    if (arguments.isJson ? WriteShownAsJson(shown, output) : WriteShown(shown, output)) {
        return VStatus::Done;
    }
    output.Complain(fmt::format("the layout ends after {} rows; --max-rows allows more", arguments.maxRows));
    return VStatus::Unreadable;
}

} // namespace

void DeclareShow(CLI::App& command, VArguments& arguments) {
    RefuseEmpty(*command.add_option("NAME", arguments.name, "A short name, or an ID")->type_name("")->required());
    DeclareLayer(command, arguments);
    DeclareTag(command, arguments, "The tag of the element, if elements of several kinds have the name");
    DeclareCount(command, "--max-rows", arguments.maxRows, "Stop after N parameters, with status 3");
    DeclareFiles(command, arguments);
}

VStatus RunShow(VArguments const& arguments, VOutput& output) {
    NReader::VReadResult result;
    if (VStatus const status = LoadElements(arguments, output, result); status != VStatus::Done) {
        return status;
    }
    std::optional<VAnyName> const name = AnyNameIn(arguments, *result.database, output);
    if (!name.has_value()) {
        return VStatus::NotThere;
    }
    VElements found = FindElements(result, *name);
    if (name->layer != nullptr && found.size() > 1) {
        found = InheritedFirst(found);
    }
    return found.size() == 1 ? Show(arguments, result, *found.front(), name->layer, output)
                             : AnswerNothing(arguments, result, *name, found, output);
}

} // namespace NCli
