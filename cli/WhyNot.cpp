// SPDX-License-Identifier: Apache-2.0
#include <cli/WhyNot.h>

#include <algorithm>
#include <utility>

#include <fmt/format.h>

#include <cli/Layers.h>
#include <cli/Text.h>
#include <diagkit/model/ParentRefs.h>
#include <diagkit/reader/Utf8.h>

namespace NCli {
namespace {

/// The PARENT-REF without a pass, as a step of the way.
NDIAGKIT::VParent const& StepWithoutPass(NDIAGKIT::VWay const& way) {
    return *std::find_if(way.path.begin(), way.path.end(),
                         [&way](NDIAGKIT::VParent const& step) { return step.parentRef == way.decidedBy; });
}

std::string HiddenText(NDIAGKIT::VWay const& way, std::string const& at) {
    NODX201::VDiagLayer const* const winner = LayerAround(*way.by);
    if (way.by == way.element) {
        return fmt::format("has come to {} before", at);
    }
    return fmt::format("is hidden in {} by that of {}", at, winner != nullptr ? Titled(*winner) : "-");
}

} // namespace

std::string Quoted(std::string const& word) {
    bool const isPlain = !word.empty() && std::all_of(word.begin(), word.end(), [](char character) {
        return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z') ||
               (character >= 'a' && character <= 'z') || std::string_view("_-./:").find(character) != std::string::npos;
    });
    if (isPlain) {
        return word;
    }
    std::string quoted = "'";
    for (char const character : word) {
        quoted += character == '\'' ? std::string("'\\''") : std::string(1, character);
    }
    return quoted + "'";
}

std::string FateOf(NDIAGKIT::VWay const& way, NODX201::VDiagLayer const& layer, VInheritedKindRow const& kind) {
    std::string const subject = "that of " + Titled(OwnerOn(way.path, layer));
    std::string const at = way.at != nullptr ? ShownName(*way.at) : "";
    switch (way.fate) {
    case NDIAGKIT::VFate::Hidden:
        return subject + " " + HiddenText(way, at);
    case NDIAGKIT::VFate::Excluded:
        return fmt::format("{} is excluded in {}", subject, at);
    case NDIAGKIT::VFate::NoPass:
        return fmt::format("{} is not taken: {} {} takes no {} from {}", subject, TagTextOf(*way.at), at, kind.noun,
                           WithArticle(TagTextOf(*StepWithoutPass(way).layer.layer)));
    default:
        return subject + " is visible";
    }
}

NDIAGKIT::VWay const& NearestOf(std::vector<NDIAGKIT::VWay> const& ways) {
    auto const stepsLeft = [](NDIAGKIT::VWay const& way) {
        auto const stop = std::find_if(way.path.begin(), way.path.end(),
                                       [&way](NDIAGKIT::VParent const& step) { return step.layer.layer == way.at; });
        return stop == way.path.end() ? 0 : stop - way.path.begin() + 1;
    };
    return *std::min_element(ways.begin(), ways.end(), [&](NDIAGKIT::VWay const& left, NDIAGKIT::VWay const& right) {
        auto const rank = [&](NDIAGKIT::VWay const& way) {
            return std::pair(way.fate == NDIAGKIT::VFate::NoPass, stepsLeft(way)); // forbidden ways are last
        };
        return rank(left) < rank(right);
    });
}

std::string WhyNotNote(NMemory::VDatabase& database, NODX201::VDiagLayer& layer, NQuery::VInheritedKind kind,
                       std::wstring_view shortName, std::string const& layerInCall, VIsMeant const& isMeant) {
    std::vector<NDIAGKIT::VWay> ways = NQuery::Explain(database, layer, kind, shortName).candidates;
    auto const isOther = [&isMeant](NDIAGKIT::VWay const& way) { return isMeant != nullptr && !isMeant(*way.element); };
    ways.erase(std::remove_if(ways.begin(), ways.end(), isOther), ways.end());
    if (ways.empty()) {
        return "";
    }
    VInheritedKindRow const& row = RowOf(kind);
    return fmt::format("; {}; diagkit explain {} {} FILE... --layer {} tells more", FateOf(NearestOf(ways), layer, row),
                       row.name, Quoted(Shown(shortName)), Quoted(Shown(std::string_view(layerInCall))));
}

std::string WhyNotInLayer(NMemory::VDatabase& database, NODX201::VDiagLayer* layer, std::string const& shortName,
                          VArguments const& arguments) {
    if (layer == nullptr) {
        return "";
    }
    auto const isMeant = [&arguments](NODX201::VOdxElement const& element) {
        return arguments.tag.empty() || arguments.tag == TagTextOf(element);
    };
    for (VInheritedKindRow const& row : kInheritedKinds) {
        std::string note =
            WhyNotNote(database, *layer, row.kind, NReader::FromUtf8(shortName), arguments.layer, isMeant);
        if (!note.empty()) {
            return note;
        }
    }
    return "";
}

} // namespace NCli
