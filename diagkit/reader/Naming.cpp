// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Naming.h>

#include <algorithm>
#include <iterator>
#include <string_view>
#include <unordered_set>

#include <diagkit/reader/Findings.h>
#include <diagkit/reader/Utf8.h>

namespace NReader {

std::string ToUtf8Cut(wchar_t const* text) {
    std::size_t length = 0;
    while (length < kLongestMessage && text[length] != L'\0') {
        ++length;
    }
    return ToUtf8(std::wstring_view(text, length));
}

std::string Quoted(wchar_t const* text) { return "'" + ToUtf8Cut(text) + "'"; }

std::string Quoted(NODX201::VOdxElement const& element) { return Quoted(element.GetShortName()); }

std::string TagOf(NODX201::VOdxElement const& element) { return ToUtf8(NODX201::OdxTagText(element.GetOdxTag())); }

std::string Titled(NODX201::VOdxElement const& element) { return TagOf(element) + ' ' + Quoted(element); }

NMemory::VPosition PositionOf(NODX201::VOdxElement const& element) {
    auto const* const node = dynamic_cast<NMemory::VMemNode const*>(&element);
    return node != nullptr ? node->GetPosition() : NMemory::VPosition{};
}

std::string ListedOf(std::vector<std::string> const& items, std::size_t count) {
    std::string text;
    std::size_t const listed = std::min(items.size(), kMostListed);
    for (std::size_t index = 0; index < listed; ++index) {
        text += (index > 0 ? ", " : "") + items[index];
    }
    return count > listed ? text + " and " + std::to_string(count - listed) + " more" : text;
}

std::string Listed(std::vector<std::string> const& items) { return ListedOf(items, items.size()); }

std::string InLayers(std::vector<NODX201::VDiagLayer*> const& layers, std::size_t count) {
    std::vector<std::string> names;
    for (std::size_t index = 0; index < std::min(layers.size(), kMostListed); ++index) {
        names.push_back(Quoted(*layers[index]));
    }
    return (count == 1 ? "in the layer " : "in the layers ") + ListedOf(names, count);
}

std::string InLayers(std::vector<VSharedLayers> const& groups, std::vector<NODX201::VDiagLayer*> const& all) {
    if (groups.size() == 1) {
        return InLayers(*groups.front(), groups.front()->size());
    }
    std::unordered_set<NODX201::VDiagLayer*> wanted;
    for (VSharedLayers const& group : groups) {
        wanted.insert(group->begin(), group->end());
    }
    std::vector<NODX201::VDiagLayer*> layers;
    std::copy_if(all.begin(), all.end(), std::back_inserter(layers),
                 [&wanted](NODX201::VDiagLayer* layer) { return wanted.count(layer) != 0; });
    return InLayers(layers, layers.size());
}

} // namespace NReader
