// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <diagkit/model/Dops.h>
#include <diagkit/query/Content.h>
#include <diagkit/query/Diff.h>

/// The parts of an element as a comparison takes them. For the sources of this folder.

namespace NQuery {

/// A digest of contents. Equal contents have equal digests; others have different ones, with negligible exceptions.
struct VHash {
    std::uint64_t first = 0;
    std::uint64_t second = 0;

    bool operator==(VHash const& other) const { return first == other.first && second == other.second; }
    bool operator!=(VHash const& other) const { return !(*this == other); }

    /// Adds the digest of a part whose order does not count.
    void Add(VHash const& other) {
        first += other.first;
        second += other.second;
    }
};

/// As a key of a hash table.
struct VHashOfHash {
    std::size_t operator()(VHash const& hash) const { return static_cast<std::size_t>(hash.first); }
};

VHash HashOf(std::wstring_view text);
VHash HashOf(std::uint64_t number);
VHash Mixed(VHash const& a, VHash const& b); ///< in this order

/// The layer from which contents are seen.
class VSeenFrom {
public:
    /// The DOPs that are visible in the layer, in view order; both must outlive this object.
    VSeenFrom(NODX201::VDiagLayer& layer, std::vector<NODX201::VDopBase*> const& dops) : m_layer(layer), m_dops(dops) {}

    /// The target of a reference to a DOP by short name; null where it has none.
    NODX201::VOdxElement* TargetOf(NODX201::VLink& reference);
    /// Equal for layers in which all such references have the same targets.
    VHash const& Meaning();

private:
    NODX201::VDopBase* Find(std::wstring_view shortName);

    NODX201::VDiagLayer& m_layer;
    std::vector<NODX201::VDopBase*> const& m_dops;
    std::unordered_map<std::wstring_view, NODX201::VDopBase*> m_byName; // filled when first asked for
    VHash m_meaning;
    bool m_isFilled = false;
    bool m_hasMeaning = false;
};

/// A part of an element under the name that it has in a path.
struct VFacet {
    enum class VKind : std::uint8_t { Text, Element, Reference };

    VKind kind = VKind::Text;
    bool isItem = false;
    bool isMissing = false;      ///< a reference without a target
    std::uint32_t component = 0; ///< number of "PARAM", "@SEMANTIC", "LONG-NAME/@TI"
    std::uint32_t number = 0;    ///< of an item: the n-th of its name, or of those without one, from 1
    wchar_t const* name = L"";   ///< short name of an item or of what is referred to; "" without one
    wchar_t const* text = L"";
    NODX201::VOdxElement* element = nullptr; ///< the child or the reference
    NODX201::VOdxElement* target = nullptr;  ///< data to which the reference leads, to be compared as well

    bool HasName() const { return *name != L'\0'; }
};

/// Reads the parts of elements, except those that do not count.
class VFacets {
public:
    explicit VFacets(VDiffOptions const& options) : m_options(options) {}

    /// Adds the parts at the end of the list. `isNamed` says whether the owner has already reported the short name.
    /// True when the targets of references by short name depend on the layer.
    bool Read(NODX201::VOdxElement& element, VSeenFrom& from, bool isNamed, std::vector<VFacet>& facets);

    VHash const& HashOfComponent(std::uint32_t component) const { return m_components[component].hash; }
    std::wstring const& TextOfComponent(std::uint32_t component) const { return m_components[component].text; }

private:
    struct VComponent {
        std::wstring text;
        VHash hash;
    };
    struct VNames {
        wchar_t const* wrapper;
        wchar_t const* tag;
        bool isAttribute;

        bool operator==(VNames const& other) const {
            return wrapper == other.wrapper && tag == other.tag && isAttribute == other.isAttribute;
        }
    };
    struct VHashOfNames {
        std::size_t operator()(VNames const& names) const {
            return std::hash<void const*>()(names.tag) * 31 + std::hash<void const*>()(names.wrapper);
        }
    };

    bool Counts(VContentPart const& part, bool isNamed) const;
    std::uint32_t ComponentOf(VContentPart const& part);
    bool AddReference(VContentPart const& part, VSeenFrom& from, std::vector<VFacet>& facets);
    void AddPlace(NODX201::VOdxElement const& element, std::vector<VFacet>& facets);
    static void NumberItems(std::vector<VFacet>& facets, std::size_t start);

    VDiffOptions const& m_options;
    std::vector<VComponent> m_components;
    std::unordered_map<VNames, std::uint32_t, VHashOfNames> m_byPointers; // tags are texts that are valid for ever
    std::unordered_map<std::wstring, std::uint32_t> m_byText;
    std::unordered_map<NODX201::VOdxElement const*, wchar_t const*> m_before; // of PARAMs, the name of the previous one
};

/// Whether elements of this kind are data to which references are followed: messages, DOPs, units, tables,
/// FUNCT-CLASSs.
bool IsData(NODX201::VOdxTagEnum tag);

} // namespace NQuery
