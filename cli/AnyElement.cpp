// SPDX-License-Identifier: Apache-2.0
#include <cli/AnyElement.h>

#include <algorithm>
#include <functional>
#include <set>
#include <string_view>
#include <unordered_set>
#include <utility>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <cli/Columns.h>
#include <cli/ElementFinder.h>
#include <cli/InheritedKinds.h>
#include <cli/Layers.h>
#include <cli/NearNames.h>
#include <cli/Text.h>
#include <cli/ViewText.h>
#include <cli/WhyNot.h>
#include <diagkit/check/Views.h>
#include <diagkit/reader/Utf8.h>
#include <diagkit/tools/Inheritance.h>

namespace NCli {
namespace {

using VAnyElements = std::vector<NODX201::VOdxElement*>;
using VSelects = std::function<bool(NODX201::VOdxElement const& element)>;

VAnyElements Selected(NReader::VReadResult const& result, VSelects const& selects) {
    VAnyElements selected;
    std::copy_if(result.elements.begin(), result.elements.end(), std::back_inserter(selected),
                 [&selects](NODX201::VOdxElement const* element) { return selects(*element); });
    return selected;
}

bool IsOfKind(NODX201::VOdxElement const& element, std::string const& tag) {
    return tag.empty() || TagTextOf(element) == tag;
}

/// Whether views show where elements of its kind are visible; an ENV-DATA is a DOP that is in no view.
bool IsInherited(NODX201::VOdxElement const& element) {
    return dynamic_cast<NODX201::VDiagComm const*>(&element) != nullptr ||
           dynamic_cast<NODX201::VDiagVariable const*>(&element) != nullptr ||
           dynamic_cast<NODX201::VGlobalNegResponse const*>(&element) != nullptr ||
           (dynamic_cast<NODX201::VDopBase const*>(&element) != nullptr &&
            dynamic_cast<NODX201::VEnvData const*>(&element) == nullptr);
}

/// The elements seen by a layer: the entries of its views, and its own elements of other kinds.
class VSeen {
public:
    explicit VSeen(NODX201::VDiagLayer& layer) : m_layer(layer) {
        Add(NCheck::DiagCommsIn(layer));
        Add(NCheck::DiagVariablesIn(layer));
        Add(NCheck::GlobalNegResponsesIn(layer));
        Add(NCheck::DopsIn(layer));
    }

    bool operator()(NODX201::VOdxElement const& element) const {
        return IsInherited(element) ? m_visible.count(&element) != 0 : NDIAGKIT::LayerOf(element) == &m_layer;
    }

private:
    template <class Element>
    void Add(std::vector<Element*> const& elements) {
        m_visible.insert(elements.begin(), elements.end());
    }

    NODX201::VDiagLayer& m_layer;
    std::unordered_set<NODX201::VOdxElement const*> m_visible;
};

VSelects SeenFrom(NODX201::VDiagLayer* layer) {
    if (layer == nullptr) {
        return [](NODX201::VOdxElement const&) { return true; };
    }
    return VSeen(*layer);
}

/// Of elements that share an ID, those that the layer sees, if it sees any.
VAnyElements Preferring(VAnyElements const& elements, VSelects const& isSeen) {
    VAnyElements seen;
    std::copy_if(elements.begin(), elements.end(), std::back_inserter(seen),
                 [&isSeen](NODX201::VOdxElement const* element) { return isSeen(*element); });
    return seen.empty() ? elements : seen;
}

std::string PlaceIn(NODX201::VOdxElement const& element) {
    NODX201::VDiagLayer const* const layer = LayerAround(element);
    std::string const path = PathTo(element);
    std::string const inLayer = layer != nullptr ? "in " + Titled(*layer) : "";
    if (path.empty()) {
        return inLayer;
    }
    return inLayer.empty() ? "in " + path : inLayer + " > " + path;
}

constexpr std::size_t kMostCandidates = 20; // that a message shows

using VTexts = std::vector<std::string>; // one of each candidate, "" where it has none

std::size_t CountDistinct(VTexts const& texts) { return std::set<std::string>(texts.begin(), texts.end()).size(); }

bool TellApart(VTexts const& texts) {
    return CountDistinct(texts) == texts.size() && std::find(texts.begin(), texts.end(), "") == texts.end();
}

/// Whether one of the texts is that of no other.
bool TellsOneApart(VTexts const& texts) {
    return std::any_of(texts.begin(), texts.end(), [&texts](std::string const& text) {
        return !text.empty() && std::count(texts.begin(), texts.end(), text) == 1;
    });
}

/// What helps to choose, which is nothing that all of them share.
std::string AdviceFor(VAnyElements const& found, bool hasLayer) {
    VTexts ids;
    VTexts tags;
    VTexts layers;
    VTexts tagsInLayers;
    for (NODX201::VOdxElement const* const element : found) {
        NODX201::VDiagLayer const* const layer = hasLayer ? nullptr : LayerAround(*element);
        ids.push_back(NReader::ToUtf8(IdOf(*element)));
        tags.push_back(TagTextOf(*element));
        layers.push_back(layer != nullptr ? fmt::format("{}", fmt::ptr(layer)) : "");
        tagsInLayers.push_back(layer != nullptr ? layers.back() + tags.back() : "");
    }
    if (TellApart(ids)) {
        return "choose one by its ID";
    }
    if (TellApart(tags) || TellApart(layers)) {
        return TellApart(tags) ? "choose one with --kind" : "choose one with --layer";
    }
    if (TellApart(tagsInLayers)) {
        return "choose one with --kind and --layer";
    }
    VTexts words;
    for (auto const& [word, helps] :
         {std::pair("--kind", CountDistinct(tags) > 1), std::pair("--layer", CountDistinct(layers) > 1),
          std::pair("its ID", TellsOneApart(ids))}) {
        if (helps) {
            words.emplace_back(word);
        }
    }
    return words.empty() ? "and neither kind, layer nor ID distinguishes them"
                         : fmt::format("choose one with {}, as far as it differs", fmt::join(words, " or "));
}

/// A line for each of the first candidates; with their places in files where they are equal otherwise.
std::string CandidateLines(NMemory::VDatabase const& database, VAnyElements const& found) {
    std::vector<VTexts> rows;
    for (NODX201::VOdxElement const* const element : found) {
        rows.push_back({ShownName(*element), KindOf(*element), ShownId(*element), PlaceIn(*element)});
    }
    bool const areEqual = std::set<VTexts>(rows.begin(), rows.end()).size() < rows.size();
    VColumns columns;
    for (std::size_t index = 0; index < std::min(rows.size(), kMostCandidates); ++index) {
        if (areEqual) {
            rows[index].push_back(ShownPlace(database, *found[index]));
        }
        columns.Add(std::move(rows[index]));
    }
    std::string lines = columns.Format();
    if (rows.size() > kMostCandidates) {
        lines += fmt::format("  and {} more\n", rows.size() - kMostCandidates);
    }
    lines.pop_back(); // the last line end
    return lines;
}

} // namespace

VAnyElements FindElements(NReader::VReadResult const& result, VAnyName const& name) {
    std::wstring const wanted = NReader::FromUtf8(name.name);
    VSelects const isSeen = SeenFrom(name.layer);
    VAnyElements const byId = Selected(result, [&](NODX201::VOdxElement const& element) {
        return wanted == IdOf(element) && IsOfKind(element, name.tag);
    });
    if (!byId.empty()) {
        return Preferring(byId, isSeen);
    }
    return Selected(result, [&](NODX201::VOdxElement const& element) {
        return wanted == element.GetShortName() && IsOfKind(element, name.tag) && isSeen(element);
    });
}

VAnyElements InheritedFirst(VAnyElements const& found) {
    return Preferring(found, [](NODX201::VOdxElement const& element) { return IsInherited(element); });
}

std::optional<VAnyName> AnyNameIn(VArguments const& arguments, NMemory::VDatabase& database, VOutput const& output) {
    NODX201::VDiagLayer* layer = nullptr;
    if (!arguments.layer.empty()) {
        layer = FindLayer(database, arguments.layer, output);
        if (layer == nullptr) {
            return std::nullopt;
        }
    }
    return VAnyName{arguments.name, arguments.tag, layer};
}

void ComplainOfName(VArguments const& arguments, NReader::VReadResult const& result, VAnyName const& name,
                    VAnyElements const& found, VOutput const& output) {
    std::wstring const wanted = NReader::FromUtf8(name.name);
    if (!found.empty()) {
        output.Complain(fmt::format("'{}' fits {} elements, {}:\n{}", Shown(wanted), found.size(),
                                    AdviceFor(found, name.layer != nullptr), CandidateLines(*result.database, found)));
        return;
    }
    std::set<std::string> others;
    std::vector<std::wstring_view> names;
    VSelects const isSeen = SeenFrom(name.layer);
    for (NODX201::VOdxElement const* const element : result.elements) {
        bool const isNamed = wanted == element->GetShortName() || wanted == IdOf(*element);
        if (isNamed && !wanted.empty()) {
            NODX201::VDiagLayer const* const layer = LayerAround(*element);
            others.insert(TagTextOf(*element) + (layer != nullptr ? " in " + Titled(*layer) : ""));
        }
        if (IsOfKind(*element, name.tag) && isSeen(*element)) {
            names.emplace_back(element->GetShortName());
            names.emplace_back(IdOf(*element));
        }
    }
    std::string const note = WhyNotInLayer(*result.database, name.layer, name.name, arguments);
    std::string const where = name.layer != nullptr ? "in " + Titled(*name.layer) + ", " : "";
    std::string const kind = name.tag.empty() ? "element" : Shown(std::string_view(name.tag));
    std::string const message = fmt::format("{}no {} has the short name or ID '{}'", where, kind, Shown(wanted));
    if (others.empty()) {
        output.Complain(message + note + NearNote(wanted, names));
        return;
    }
    bool const isMany = others.size() > kMostCandidates;
    others.erase(std::next(others.begin(), static_cast<std::ptrdiff_t>(std::min(others.size(), kMostCandidates))),
                 others.end());
    output.Complain(
        fmt::format("{}; it is the name of {}{}{}", message, fmt::join(others, ", "), isMany ? " and more" : "", note));
}

} // namespace NCli
