// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <utility>
#include <vector>

#include <diagkit/memory/IdIndex.h>
#include <diagkit/memory/Link.h>

namespace NMemory {

/// Where a reference by ID may look: the whole database, one particular layer or document, the layers of a short name,
/// the documents of a short name and category, or both for a short name.
enum class VPlaceKind { Anywhere, Element, NamedLayer, NamedDocument, Named };

/// Members that the kind does not use are empty.
struct VSearchPlace {
    VPlaceKind kind = VPlaceKind::Anywhere;
    NODX201::VOdxElement const* element = nullptr;
    std::wstring_view shortName{};
    NODX201::VOdxTagEnum category = NODX201::VOdxTagEnum::Odx;

    bool operator<(VSearchPlace const& other) const {
        return std::tie(kind, element, shortName, category) <
               std::tie(other.kind, other.element, other.shortName, other.category);
    }
    bool operator==(VSearchPlace const& other) const {
        return std::tie(kind, element, shortName, category) ==
               std::tie(other.kind, other.element, other.shortName, other.category);
    }
};

/// The layer and the category document that contain an element; a layer is in itself.
struct VScope {
    NODX201::VOdxElement* layer = nullptr;
    NODX201::VOdxElement* document = nullptr;
};

VScope ScopeOf(NODX201::VOdxElement& element);

/// Finds the elements of one ID by the places that contain them. Of an ID with few elements each is checked; the
/// elements of an ID with many are sorted by place once, until the database changes, so that many references to it take
/// no longer each. Which layer imports which is cached equally long.
///
/// `generation` is that of the database. A result that fails for lack of memory is not cached.
class VPlaceIndex {
public:
    /// The first element of the entry in load order that is of the expected class and in the place, or null.
    NODX201::VReferencable* Find(VIdIndex::VEntry const& entry, VExpect expect, VSearchPlace const& place,
                                 std::uint64_t generation);

    /// The first one in a place given by short names that is in another layer or document than the result of `Find`, or
    /// null.
    NODX201::VReferencable* FindOther(VIdIndex::VEntry const& entry, VExpect expect, VSearchPlace const& place,
                                      std::uint64_t generation);

    /// The same as `Find` in the layers that a layer imports; the layer imported first has precedence.
    NODX201::VReferencable* FindInImports(VIdIndex::VEntry const& entry, VExpect expect, NODX201::VOdxElement& layer,
                                          std::uint64_t generation);

private:
    struct VGroup {
        std::vector<NODX201::VReferencable*> elements;           // in load order
        std::map<VExpect, NODX201::VReferencable*> firstOfClass; // what has been asked for
        std::map<VExpect, NODX201::VReferencable*> otherOfClass; // the same for `FindOther`
    };
    using VGroups = std::map<VSearchPlace, VGroup>;

    /// The layers that a layer imports, each once in the order of its IMPORT-REFs, and what was found in them.
    struct VImports {
        std::vector<NODX201::VOdxElement const*> layers;
        std::unordered_map<NODX201::VOdxElement const*, std::size_t> ranks; // of the first import 0
        std::map<std::pair<VIdIndex::VEntry const*, VExpect>, NODX201::VReferencable*> found;
    };

    static VGroups Sort(VIdIndex::VEntry const& entry);
    VGroup* GroupOf(VIdIndex::VEntry const& entry, VSearchPlace const& place, std::uint64_t generation);
    static VImports ImportsOf(NODX201::VOdxElement& layer);
    NODX201::VReferencable* FirstImported(VIdIndex::VEntry const& entry, VExpect expect, VImports const& imports,
                                          std::uint64_t generation);
    void ForgetOld(std::uint64_t generation);

    std::unordered_map<VIdIndex::VEntry const*, VGroups> m_sorted;
    std::unordered_map<NODX201::VOdxElement const*, VImports> m_imports;
    std::uint64_t m_generation = 0;
};

} // namespace NMemory
