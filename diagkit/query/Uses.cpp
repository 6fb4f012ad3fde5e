// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/Uses.h>

#include <algorithm>
#include <functional>
#include <unordered_map>
#include <utility>

#include <diagkit/check/ReadingPlaces.h>
#include <diagkit/query/Used.h>
#include <diagkit/query/UsesByName.h>
#include <diagkit/reader/Containment.h>
#include <diagkit/reader/LinkTargets.h>

namespace NQuery {
namespace {

NODX201::VOdxElement* NamedAround(NODX201::VLink const& reference) {
    for (NODX201::VOdxObject* object = reference.GetOwner(); object != nullptr; object = object->GetOwner()) {
        auto* const element = dynamic_cast<NODX201::VOdxElement*>(object);
        if (element != nullptr && *element->GetShortName() != L'\0') {
            return element;
        }
    }
    return nullptr;
}

} // namespace

class VUses::VIndex {
public:
    VIndex(NMemory::VDatabase& database, std::vector<NODX201::VOdxElement*> const& elements, VProgress const& progress)
        : m_byName(NReader::LayersOf(database), m_used) {
        for (NODX201::VOdxElement* const element : elements) {
            if (auto* const reference = dynamic_cast<NODX201::VLink*>(element)) {
                Add(*reference);
            } else if (MayBeUnused(*element)) {
                m_mayBeUnused.push_back(element);
            }
        }
        std::uint64_t done = 0;
        m_byName.LookUp(elements, [&] {
            if (progress) {
                progress(++done, m_byName.Layers().size());
            }
        });
        std::sort(m_direct.begin(), m_direct.end(), Comes);
    }

    std::vector<VUse> UsesOf(NODX201::VOdxElement const& element) const {
        std::vector<VFound> found;
        auto const [first, end] =
            std::equal_range(m_direct.begin(), m_direct.end(), VDirect{&element, nullptr, 0},
                             [](VDirect const& a, VDirect const& b) { return std::less<>()(a.target, b.target); });
        for (auto direct = first; direct != end; ++direct) {
            found.push_back({direct->reference, direct->number, std::nullopt});
        }
        m_byName.ForEachUse(element, [&](NODX201::VLink& reference, NCheck::VWantedName wanted,
                                         VLayerRuns const& layers) {
            bool const isOfLayers = wanted != NCheck::VWantedName::Protocol;
            found.push_back({&reference, m_numbers.at(&reference), isOfLayers ? std::optional(layers) : std::nullopt});
        });
        return InOrder(std::move(found));
    }

    std::vector<NODX201::VOdxElement*> Unused() const {
        std::vector<NODX201::VOdxElement*> unused;
        std::copy_if(m_mayBeUnused.begin(), m_mayBeUnused.end(), std::back_inserter(unused),
                     [this](NODX201::VOdxElement const* element) { return !m_used.Has(*element); });
        return unused;
    }

private:
    /// A reference that has the same target wherever it is read.
    struct VDirect {
        NODX201::VOdxElement const* target;
        NODX201::VLink* reference;
        std::uint32_t number; ///< in document order
    };
    struct VFound {
        NODX201::VLink* reference;
        std::uint32_t number;
        std::optional<VLayerRuns> layers;
    };

    static bool Comes(VDirect const& a, VDirect const& b) {
        return a.target != b.target ? std::less<>()(a.target, b.target) : a.number < b.number;
    }

    void Add(NODX201::VLink& reference) {
        std::uint32_t const number = m_count++;
        NODX201::VOdxElement* target = NReader::TargetById(reference);
        if (target == nullptr) {
            target = AddByName(reference, number);
        }
        if (target != nullptr) {
            m_direct.push_back({target, &reference, number});
            m_used.Use(*target, [&reference](auto test) { return test(reference); });
        }
    }

    /// The target of the reference wherever it is read; null where there is none, or it differs from layer to layer.
    NODX201::VOdxElement* AddByName(NODX201::VLink& reference, std::uint32_t number) {
        auto const wanted = NCheck::WantedNameOf(reference);
        if (!wanted.has_value()) {
            return NReader::ShortNameIn(reference).empty() ? nullptr : NCheck::TargetInFlash(reference);
        }
        m_numbers.emplace(&reference, number);
        return m_byName.Add(reference, *wanted);
    }

    /// In document order, the layers of one reference together.
    std::vector<VUse> InOrder(std::vector<VFound> found) const {
        std::stable_sort(found.begin(), found.end(),
                         [](VFound const& a, VFound const& b) { return a.number < b.number; });
        std::vector<VUse> uses;
        for (auto first = found.begin(); first != found.end();) {
            auto next = first + 1;
            for (; next != found.end() && next->number == first->number; ++next) {
                if (first->layers.has_value() && next->layers.has_value()) {
                    first->layers = VLayerRuns::Joined(*first->layers, *next->layers);
                }
            }
            uses.push_back({first->reference, NamedAround(*first->reference), LayersIn(*first)});
            first = next;
        }
        return uses;
    }

    std::optional<std::vector<NODX201::VDiagLayer*>> LayersIn(VFound const& found) const {
        if (!found.layers.has_value()) {
            return std::nullopt;
        }
        std::vector<NODX201::VDiagLayer*> layers;
        found.layers->ForEach([&](std::uint32_t layer) { layers.push_back(m_byName.Layers()[layer]); });
        return layers;
    }

    std::vector<VDirect> m_direct; // by target and in document order
    VUsed m_used;
    VUsesByName m_byName;
    std::unordered_map<NODX201::VLink const*, std::uint32_t> m_numbers; // of references by short name
    std::vector<NODX201::VOdxElement*> m_mayBeUnused;                   // in document order
    std::uint32_t m_count = 0;
};

VUses::VUses(NMemory::VDatabase& database, std::vector<NODX201::VOdxElement*> const& elements,
             VProgress const& progress)
    : m_index(std::make_unique<VIndex>(database, elements, progress)) {
    database.StartNewResolver(); // most programs do not need the views that it caches, which use much memory
}

VUses::~VUses() = default;

std::vector<VUse> VUses::Of(NODX201::VOdxElement const& element) const { return m_index->UsesOf(element); }

std::vector<NODX201::VOdxElement*> VUses::Unused() const { return m_index->Unused(); }

void LeaveOut(std::vector<NODX201::VOdxElement*>& elements, NODX201::VOdxElement const& element) {
    elements.erase(
        std::remove_if(elements.begin(), elements.end(),
                       [&element](NODX201::VOdxElement const* candidate) { return StandsIn(*candidate, element); }),
        elements.end());
}

} // namespace NQuery
