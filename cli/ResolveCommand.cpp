// SPDX-License-Identifier: Apache-2.0
#include <array>
#include <memory>
#include <set>
#include <string_view>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <cli/Columns.h>
#include <cli/Commands.h>
#include <cli/DiagCommSelection.h>
#include <cli/ElementFinder.h>
#include <cli/Entry.h>
#include <cli/Layers.h>
#include <cli/Load.h>
#include <cli/NearNames.h>
#include <cli/OutParamPath.h>
#include <cli/Selections.h>
#include <cli/Text.h>
#include <cli/ViewText.h>
#include <cli/WhyNot.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Params.h>
#include <diagkit/reader/Utf8.h>
#include <diagkit/tools/IdentIfView.h>
#include <diagkit/tools/OpBuildDiagCommView.h>
#include <diagkit/tools/OpBuildDiagVariableView.h>
#include <diagkit/tools/OpBuildDopView.h>
#include <diagkit/tools/OpResolveSnref.h>
#include <diagkit/tools/ProtocolView.h>
#include <diagkit/tools/SessionView.h>

namespace NCli {
namespace {

/// The result of a resolution.
struct VAnswer {
    bool isSelected = false; ///< the selected element exists; otherwise a message has been given
    NODX201::VOdxElement const* found = nullptr;
    std::string where;                    ///< the place that was searched, for the message when nothing is found
    std::vector<std::wstring_view> names; ///< those visible there
    std::string path{};                   ///< the path of the search to its result, where it is more than the owners
    NODX201::VOdxElement const* other = nullptr; ///< an element with the name but of another kind; null without one
    std::string whyNot{};                        ///< what happens to the name on its way to a layer; "" for nothing
};

template <class Element>
NODX201::VOdxElement const* ElementOf(Element* element) {
    return dynamic_cast<NODX201::VOdxElement const*>(element);
}

template <class View>
std::vector<std::wstring_view> NamesIn(View& view) {
    std::vector<std::wstring_view> names;
    for (auto& entry : view) {
        names.emplace_back(dynamic_cast<NODX201::VOdxElement const&>(entry).GetShortName());
    }
    return names;
}

struct VQuestion {
    VArguments const& arguments;
    NMemory::VDatabase& database;
    VOutput const& output;
    std::wstring name;
    NDIAGKIT::VOpResolveSnref resolver{};
};

/// An answer looked up in a layer.
template <class Resolve, class Names>
VAnswer InLayer(VQuestion& question, NQuery::VInheritedKind kind, Resolve resolve, Names names,
                VIsMeant const& isMeant = nullptr) {
    NODX201::VDiagLayer* const layer = FindLayer(question.database, question.arguments.layer, question.output);
    if (layer == nullptr) {
        return {};
    }
    VAnswer answer{true, ElementOf(resolve(*layer)), Titled(*layer), names(*layer)};
    if (answer.found == nullptr) {
        answer.whyNot = WhyNotNote(question.database, *layer, kind, question.name, question.arguments.layer, isMeant);
    }
    return answer;
}

VAnswer ResolveDop(VQuestion& question) {
    return InLayer(
        question, NQuery::VInheritedKind::Dop,
        [&](auto& layer) { return question.resolver.ResolveDopBaseSnref(question.name.c_str(), layer); },
        [](auto& layer) {
            NDIAGKIT::VOpBuildDopView builder;
            return NamesIn(*std::unique_ptr<NDIAGKIT::VDopView>(builder.CreateDopView(layer)));
        });
}

VAnswer ResolveDataObjectProp(VQuestion& question) {
    NODX201::VOdxElement const* other = nullptr;
    VAnswer answer = InLayer(
        question, NQuery::VInheritedKind::Dop,
        [&](auto& layer) { return question.resolver.ResolveDataObjectPropSnref(question.name.c_str(), layer); },
        [&](auto& layer) {
            NDIAGKIT::VOpBuildDopView builder;
            std::unique_ptr<NDIAGKIT::VDopView> const view(builder.CreateDopView(layer));
            std::vector<std::wstring_view> names;
            for (NODX201::VDopBase& dop : *view) {
                if (dynamic_cast<NODX201::VDataObjectProp*>(&dop) != nullptr) {
                    names.emplace_back(dop.GetShortName());
                } else if (question.name == dop.GetShortName()) {
                    other = &dop;
                }
            }
            return names;
        },
        [](NODX201::VOdxElement const& element) {
            return dynamic_cast<NODX201::VDataObjectProp const*>(&element) != nullptr;
        });
    answer.other = other;
    return answer;
}

VAnswer ResolveDiagComm(VQuestion& question) {
    return InLayer(
        question, NQuery::VInheritedKind::DiagComm,
        [&](auto& layer) { return question.resolver.ResolveDiagCommSnref(question.name.c_str(), layer); },
        [](auto& layer) {
            NDIAGKIT::VOpBuildDiagCommView builder;
            return NamesIn(*std::unique_ptr<NDIAGKIT::VDiagCommView>(builder.CreateDiagCommView(layer)));
        });
}

VAnswer ResolveDiagVariable(VQuestion& question) {
    return InLayer(
        question, NQuery::VInheritedKind::DiagVariable,
        [&](auto& layer) { return question.resolver.ResolveDiagVariableSnref(question.name.c_str(), layer); },
        [](auto& layer) {
            NDIAGKIT::VOpBuildDiagVariableView builder;
            return NamesIn(*std::unique_ptr<NDIAGKIT::VDiagVariableView>(builder.CreateDiagVariableView(layer)));
        });
}

VAnswer ResolveProtocol(VQuestion& question) {
    NODX201::VDiagLayerContainer* const container =
        FindContainer(question.database, question.arguments.container, question.output);
    if (container == nullptr) {
        return {};
    }
    NDIAGKIT::VProtocolView view(*container);
    return {true, question.resolver.ResolveProtocolSnref(question.name.c_str(), *container),
            "DIAG-LAYER-CONTAINER " + ShownName(*container), NamesIn(view)};
}

VAnswer ResolveIdent(VQuestion& question) {
    NODX201::VFlash* const flash = FindFlash(question.database, question.arguments.flash, question.output);
    if (flash == nullptr) {
        return {};
    }
    NDIAGKIT::VIdentIfView view(*flash);
    return {true, ElementOf(question.resolver.ResolveIdentIfSnref(question.name.c_str(), *flash)),
            "FLASH " + ShownName(*flash), NamesIn(view)};
}

VAnswer ResolveSession(VQuestion& question) {
    NODX201::VFlash* const flash = FindFlash(question.database, question.arguments.flash, question.output);
    if (flash == nullptr) {
        return {};
    }
    NDIAGKIT::VSessionView view(*flash);
    return {true, question.resolver.ResolveSessionSnref(question.name.c_str(), *flash), "FLASH " + ShownName(*flash),
            NamesIn(view)};
}

std::string TitleOf(VDiagCommSelection const& selection) {
    std::string const title = TagTextOf(*selection.diagComm) + " " + ShownName(*selection.diagComm);
    return selection.layer != nullptr ? title + " in " + Titled(*selection.layer) : title;
}

VAnswer ResolveInParam(VQuestion& question) {
    VDiagCommSelection const selection = SelectDiagComm(question.arguments, question.database, question.output);
    if (selection.diagComm == nullptr) {
        return {};
    }
    NODX201::IInParamIf* const found =
        selection.job != nullptr ? question.resolver.ResolveInParamIfSnref(question.name.c_str(), *selection.job)
                                 : question.resolver.ResolveInParamIfSnref(question.name.c_str(), *selection.diagComm);
    return {true, ElementOf(found), TitleOf(selection), NamesIn(*InParamsOf(selection))};
}

VAnswer ResolveOutParam(VQuestion& question) {
    VDiagCommSelection const selection = SelectDiagComm(question.arguments, question.database, question.output);
    if (selection.diagComm == nullptr) {
        return {};
    }
    auto const range = static_cast<NODX201::VSearchRange>(question.arguments.Range());
    auto* const service = dynamic_cast<NODX201::VDiagService*>(selection.diagComm);
    VOutParamPath const path =
        service != nullptr ? PathToOutParam(*service, range, question.name, *selection.layer) : VOutParamPath();
    VAnswer answer;
    answer.isSelected = true;
    answer.where = TitleOf(selection);
    NODX201::IOutParamIf* const found =
        selection.job != nullptr
            ? question.resolver.ResolveOutParamIfSnref(question.name.c_str(), *selection.job, *selection.layer)
            : question.resolver.ResolveOutParamIfSnref(question.name.c_str(), *selection.diagComm, *selection.layer,
                                                       range);
    answer.found = ElementOf(found);
    answer.names = service != nullptr ? path.names : NamesIn(*OutParamsOf(selection, question.arguments.Range()));
    answer.path = Printed(path);
    return answer;
}

struct VResolveKind {
    char const* name;
    VSelectionRule const& selection;
    VAnswer (*resolve)(VQuestion& question);
};

// clang-format off
constexpr std::array kResolveKinds{
    VResolveKind{"dop",              kLayerSelection,           &ResolveDop},
    VResolveKind{"data-object-prop", kLayerSelection,           &ResolveDataObjectProp},
    VResolveKind{"diag-comm",        kLayerSelection,           &ResolveDiagComm},
    VResolveKind{"diag-variable",    kLayerSelection,           &ResolveDiagVariable},
    VResolveKind{"protocol",         kContainerSelection,       &ResolveProtocol},
    VResolveKind{"ident",            kFlashSelection,           &ResolveIdent},
    VResolveKind{"session",          kFlashSelection,           &ResolveSession},
    VResolveKind{"in-param",         kDiagCommSelection,        &ResolveInParam},
    VResolveKind{"out-param",        kOutParamSelectionInLayer, &ResolveOutParam},
};
// clang-format on

std::string MissingMessage(VQuestion const& question, VAnswer const& answer) {
    std::string const missing =
        fmt::format("no {} '{}' in {}", question.arguments.kind, Shown(question.name), answer.where);
    if (answer.other != nullptr) {
        return fmt::format("{}, where it is {}{}", missing, WithArticle(TagTextOf(*answer.other)), answer.whyNot);
    }
    std::size_t const count = std::set<std::wstring_view>(answer.names.begin(), answer.names.end()).size();
    return fmt::format("{}, where {} {} visible{}{}", missing, Counted(count, "name"), count == 1 ? "is" : "are",
                       answer.whyNot, NearNote(question.name, answer.names));
}

void WriteText(VAnswer const& answer, VOutput& output) {
    NODX201::VOdxElement const& found = *answer.found;
    NODX201::VDiagLayer const* const layer = LayerAround(found);
    std::string const path = answer.path.empty() ? PathTo(found) : answer.path;
    VColumns columns;
    columns.Add({ShownName(found), KindOf(found), ShownId(found), layer != nullptr ? "from " + Titled(*layer) : "",
                 path.empty() ? "" : "in " + path});
    output.Write(columns.Format(""));
}

void WriteAsJson(VJsonWriter& json, VQuestion const& question, VAnswer const& answer) {
    json.Object([&] {
        json.Member("kind", question.arguments.kind);
        json.Member("name", question.arguments.name);
        json.Member("found", answer.found != nullptr);
        WriteEntryOrNull(json, "entry", answer.found);
    });
}

VStatus Answer(VQuestion const& question, VAnswer const& answer, VOutput& output) {
    if (question.arguments.isJson) {
        WriteJson(output, [&](VJsonWriter& json) { WriteAsJson(json, question, answer); });
    } else if (answer.found != nullptr) {
        WriteText(answer, output);
    }
    if (answer.found != nullptr) {
        return VStatus::Done;
    }
    output.Complain(MissingMessage(question, answer));
    return VStatus::NotThere;
}

} // namespace

void DeclareResolve(CLI::App& command, VArguments& arguments) {
    DeclareKind(command, arguments, NamesOf(kResolveKinds), "The kind of element that the name stands for");
    command.add_option("NAME", arguments.name, "The short name")->required()->type_name("");
    DeclareSelections(command, arguments);
    DeclareFiles(command, arguments);
    command.footer(SelectionsOf(kResolveKinds) + "\n" + kRangesHelp);
}

VStatus RunResolve(VArguments const& arguments, VOutput& output) {
    VResolveKind const* const kind = FittingKind("resolve", kResolveKinds, arguments, output);
    if (kind == nullptr) {
        return VStatus::Usage;
    }
    NReader::VReadResult result;
    if (VStatus const status = Load(arguments, output, result); status != VStatus::Done) {
        return status;
    }
    VQuestion question{arguments, *result.database, output, NReader::FromUtf8(arguments.name)};
    VAnswer const answer = kind->resolve(question);
    return answer.isSelected ? Answer(question, answer, output) : VStatus::NotThere;
}

} // namespace NCli
