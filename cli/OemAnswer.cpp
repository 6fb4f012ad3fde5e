// SPDX-License-Identifier: Apache-2.0
#include <cli/OemAnswer.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <cli/Columns.h>
#include <cli/Entry.h>
#include <cli/Layers.h>
#include <cli/Text.h>
#include <cli/ViewText.h>
#include <diagkit/reader/Utf8.h>

namespace NCli {
namespace {

using NDIAGKIT::VManufacturer;
using NDIAGKIT::VOemHeuristicReport;
using NDIAGKIT::VOemReason;
using NDIAGKIT::VOemReport;
using NDIAGKIT::VOemRuleReport;

struct VManufacturerRow {
    VManufacturer manufacturer;
    std::string_view name;  ///< of the value, for programs
    std::string_view title; ///< for people, who may not know that Pag is Porsche
};

// clang-format off
constexpr std::array kManufacturers{
    VManufacturerRow{VManufacturer::Daimler, "Daimler", "Daimler"},
    VManufacturerRow{VManufacturer::Claas,   "Claas",   "Claas"},
    VManufacturerRow{VManufacturer::Pag,     "Pag",     "Porsche"},
    VManufacturerRow{VManufacturer::AudiVw,  "AudiVw",  "AudiVw"},
    VManufacturerRow{VManufacturer::Bmw,     "Bmw",     "Bmw"},
    VManufacturerRow{VManufacturer::Fiat,    "Fiat",    "Fiat"},
    VManufacturerRow{VManufacturer::Gm,      "Gm",      "Gm"},
    VManufacturerRow{VManufacturer::Psa,     "Psa",     "Psa"},
    VManufacturerRow{VManufacturer::Unknown, "Unknown", "Unknown"},
};
// clang-format on

VManufacturerRow const& ManufacturerRowOf(VManufacturer manufacturer) {
    return *std::find_if(kManufacturers.begin(), kManufacturers.end() - 1,
                         [manufacturer](VManufacturerRow const& row) { return row.manufacturer == manufacturer; });
}

int CodeOf(VManufacturer manufacturer) { return static_cast<int>(manufacturer); }

std::vector<VOemHeuristicReport const*> MatchingIn(VOemReport const& report) {
    std::vector<VOemHeuristicReport const*> matching;
    for (VOemHeuristicReport const& heuristic : report.heuristics) {
        if (heuristic.matches) {
            matching.push_back(&heuristic);
        }
    }
    return matching;
}

// Text

/// "Daimler (1)", "Porsche (Pag, 4)"
std::string TitleOf(VManufacturer manufacturer) {
    VManufacturerRow const& row = ManufacturerRowOf(manufacturer);
    return row.name == row.title ? fmt::format("{} ({})", row.title, CodeOf(manufacturer))
                                 : fmt::format("{} ({}, {})", row.title, row.name, CodeOf(manufacturer));
}

/// Why several matching heuristics give no manufacturer.
std::string AmbiguityOf(std::vector<VOemHeuristicReport const*> const& matching) {
    std::vector<std::string> names;
    bool areOfOne = true;
    for (VOemHeuristicReport const* const heuristic : matching) {
        names.push_back(NReader::ToUtf8(heuristic->name));
        areOfOne = areOfOne && heuristic->manufacturer == matching.front()->manufacturer;
    }
    std::string const all = fmt::format("{}", fmt::join(names, ", "));
    return areOfOne ? fmt::format("two heuristics of one manufacturer, {}, match, which counts as not determined: {}",
                                  TitleOf(matching.front()->manufacturer), all)
                    : fmt::format("several match, {}", all);
}

std::string AnswerOf(VOemRuleReport const& rule) {
    if (!rule.matches) {
        return rule.isDecisive ? "no  <- decides" : "no";
    }
    return rule.isVacuous ? "yes, nothing to check" : "yes";
}

/// "DIAG-SERVICE Read, ID S.Read, in PROTOCOL UDS"
std::string PlaceOf(NODX201::VOdxElement const& element) {
    NODX201::VDiagLayer const* const layer = LayerAround(element);
    std::string const id = ShownId(element);
    return fmt::format("{} {}{}{}", KindOf(element), ShownName(element), id.empty() ? "" : ", ID " + id,
                       layer != nullptr ? ", in " + Titled(*layer) : "");
}

std::string LinesOf(VOemReason const& reason) {
    std::string lines =
        fmt::format("      expected {}\n      found    {}\n", Shown(reason.expected), Shown(reason.found));
    if (reason.where != nullptr) {
        lines += fmt::format("      at       {}\n", PlaceOf(*reason.where));
    }
    return lines;
}

void WriteHeuristic(VOemHeuristicReport const& heuristic, VOutput& output) {
    std::string const heading = fmt::format("{}, {}", NReader::ToUtf8(heuristic.name), TitleOf(heuristic.manufacturer));
    output.Write(fmt::format("\n{}: {}\n", output.Heading(heading), heuristic.matches ? "matches" : "does not match"));
    VColumns columns;
    for (VOemRuleReport const& rule : heuristic.rules) {
        columns.Add(
            {heuristic.lists > 1 ? fmt::format("list {}", rule.list) : "", NReader::ToUtf8(rule.name), AnswerOf(rule)});
    }
    std::string const lines = columns.Format();
    std::string_view rest = lines;
    for (VOemRuleReport const& rule : heuristic.rules) {
        std::size_t const length = rest.find('\n') + 1;
        output.Write(rest.substr(0, length));
        output.Write(rule.matches ? "" : LinesOf(rule.reason));
        rest.remove_prefix(length);
    }
}

// JSON

void WriteRule(VJsonWriter& json, VOemRuleReport const& rule, bool isListNamed) {
    json.Object([&] {
        json.Member("name", rule.name);
        json.Member("matches", rule.matches);
        if (isListNamed) {
            json.Member("list", rule.list);
        }
        json.Member("decides", rule.isDecisive);
        json.Member("vacuous", rule.isVacuous);
        json.TextOrNull("expected", rule.reason.expected);
        json.TextOrNull("found", rule.reason.found);
        WriteEntryOrNull(json, "where", rule.reason.where);
    });
}

void WriteHeuristic(VJsonWriter& json, VOemHeuristicReport const& heuristic) {
    json.Object([&] {
        json.Member("name", heuristic.name);
        json.Member("code", CodeOf(heuristic.manufacturer));
        json.Member("matches", heuristic.matches);
        json.ArrayOf("rules", heuristic.rules,
                     [&](VOemRuleReport const& rule) { WriteRule(json, rule, heuristic.lists > 1); });
    });
}

/// Why there is no manufacturer; "" when there is one.
std::string_view ReasonOf(VOemReport const& report) {
    if (report.manufacturer != VManufacturer::Unknown) {
        return "";
    }
    return MatchingIn(report).empty() ? "none" : "several";
}

} // namespace

std::string LineOf(VOemReport const& report) {
    std::string const title = TitleOf(report.manufacturer);
    if (report.manufacturer != VManufacturer::Unknown) {
        return title;
    }
    auto const matching = MatchingIn(report);
    return title + ": " + (matching.empty() ? "no heuristic matches" : AmbiguityOf(matching));
}

void WriteReport(VOemReport const& report, VOutput& output) {
    output.Write(output.Heading(LineOf(report)) + "\n");
    for (VOemHeuristicReport const& heuristic : report.heuristics) {
        WriteHeuristic(heuristic, output);
    }
}

void WriteReportMembers(VJsonWriter& json, VOemReport const& report) {
    json.Member("manufacturer", ManufacturerRowOf(report.manufacturer).name);
    json.Member("code", CodeOf(report.manufacturer));
    json.TextOrNull("reason", ReasonOf(report));
    json.ArrayOf("heuristics", report.heuristics,
                 [&json](VOemHeuristicReport const& heuristic) { WriteHeuristic(json, heuristic); });
}

} // namespace NCli
