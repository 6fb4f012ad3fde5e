// SPDX-License-Identifier: Apache-2.0
#include <cli/AnyElement.h>

#include <algorithm>
#include <functional>
#include <set>
#include <string_view>
#include <unordered_set>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <cli/Columns.h>
#include <cli/Layers.h>
#include <cli/NearNames.h>
#include <cli/Text.h>
#include <cli/ViewText.h>
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

/// Whether views say where elements of its kind are visible; an ENV-DATA is a DOP that no view holds.
bool IsInherited(NODX201::VOdxElement const& element) {
    return dynamic_cast<NODX201::VDiagComm const*>(&element) != nullptr ||
           dynamic_cast<NODX201::VDiagVariable const*>(&element) != nullptr ||
           dynamic_cast<NODX201::VGlobalNegResponse const*>(&element) != nullptr ||
           (dynamic_cast<NODX201::VDopBase const*>(&element) != nullptr &&
            dynamic_cast<NODX201::VEnvData const*>(&element) == nullptr);
}

/// What a layer sees: what its views hold, and its own elements of other kinds.
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

/// Of elements that share an ID, those that the layer sees, where it sees any.
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

std::string AmbiguousMessage(std::wstring_view wanted, VAnyElements const& found) {
    VColumns columns;
    std::set<std::string> ids;
    std::set<std::string> tags;
    for (NODX201::VOdxElement const* const element : found) {
        ids.insert(ShownId(*element));
        tags.insert(TagTextOf(*element));
        if (ids.size() <= kMostCandidates) {
            columns.Add({ShownName(*element), KindOf(*element), ShownId(*element), PlaceIn(*element)});
        }
    }
    bool const haveIds = ids.size() == found.size() && ids.count("") == 0;
    std::string const advice = haveIds                       ? "choose one by its ID"
                               : tags.size() == found.size() ? "choose one with --kind"
                                                             : "choose one with --kind, --layer or its ID";
    std::string message =
        fmt::format("'{}' fits {} elements, {}:\n{}", Shown(wanted), found.size(), advice, columns.Format());
    message.pop_back(); // the last line end
    return message;
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

void ComplainOfName(NReader::VReadResult const& result, VAnyName const& name, VAnyElements const& found,
                    VOutput const& output, std::string const& note) {
    std::wstring const wanted = NReader::FromUtf8(name.name);
    if (!found.empty()) {
        output.Complain(AmbiguousMessage(wanted, found));
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
