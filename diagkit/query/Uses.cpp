// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/Uses.h>

#include <algorithm>
#include <functional>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include <diagkit/check/ReadingPlaces.h>
#include <diagkit/query/UsesByName.h>
#include <diagkit/reader/Containment.h>
#include <diagkit/reader/LinkTargets.h>

namespace NQuery {
namespace {

using Tag = NODX201::VOdxTagEnum;

/// The kinds of which an element may be unused.
bool MayBeUnused(NODX201::VOdxElement const& element) {
    switch (element.GetOdxTag()) {
    case Tag::DataObjectProp:
    case Tag::DtcDop:
    case Tag::Structure:
    case Tag::EndOfPduField:
    case Tag::StaticField:
    case Tag::DynamicLengthField:
    case Tag::DynamicEndmarkerField:
    case Tag::Mux:
    case Tag::EnvDataDesc:
    case Tag::Table:
    case Tag::Unit:
    case Tag::PhysicalDimension:
    case Tag::Request:
    case Tag::PosResponse:
    case Tag::NegResponse:
    case Tag::FunctClass:
        return true;
    default:
        return false;
    }
}

bool StandsIn(NODX201::VOdxObject const& inner, NODX201::VOdxObject const& outer) {
    for (NODX201::VOdxObject const* object = &inner; object != nullptr; object = object->GetOwner()) {
        if (object == &outer) {
            return true;
        }
    }
    return false;
}

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
        : m_byName(NReader::LayersOf(database)) {
        for (NODX201::VOdxElement* const element : elements) {
            if (auto* const reference = dynamic_cast<NODX201::VLink*>(element)) {
                Add(*reference);
            } else if (MayBeUnused(*element)) {
                m_mayBeUnused.push_back(element);
            }
        }
        std::uint64_t done = 0;
        m_byName.LookUp([&] {
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
        VUsed used;
        for (auto first = m_direct.begin(); first != m_direct.end();) {
            auto const end = std::find_if(first, m_direct.end(), [target = first->target](VDirect const& direct) {
                return direct.target != target;
            });
            used.Note(*first->target, [first, end](auto test) {
                return std::any_of(first, end, [&test](VDirect const& direct) { return test(*direct.reference); });
            });
            first = end;
        }
        m_byName.ForEachTarget(
            [&used](NODX201::VOdxElement const& target, auto const& anyUse) { used.Note(target, anyUse); });
        std::vector<NODX201::VOdxElement*> unused;
        std::copy_if(m_mayBeUnused.begin(), m_mayBeUnused.end(), std::back_inserter(unused),
                     [&used](NODX201::VOdxElement const* element) { return !used.Has(*element); });
        return unused;
    }

private:
    /// Which elements are used, as what leads to them is told.
    class VUsed {
    public:
        /// Elements inside which the target stands, and itself, are used when a reference that leads to it stands
        /// outside: `any(test)` says whether the test holds for one of these references.
        template <class Any>
        void Note(NODX201::VOdxElement const& target, Any any) {
            for (NODX201::VOdxObject const* object = &target; object != nullptr; object = object->GetOwner()) {
                auto const* const whole = dynamic_cast<NODX201::VOdxElement const*>(object);
                if (whole == nullptr || !MayBeUnused(*whole) || Has(*whole)) {
                    continue;
                }
                if (any([whole](NODX201::VLink const& reference) { return !StandsIn(reference, *whole); })) {
                    m_used.insert(whole);
                }
            }
        }

        bool Has(NODX201::VOdxElement const& element) const { return m_used.count(&element) != 0; }

    private:
        std::unordered_set<NODX201::VOdxElement const*> m_used;
    };

    /// A reference that means the same wherever it is read.
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
        }
    }

    /// What the reference means wherever it is read; null where that is nothing, or differs from layer to layer.
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
    VUsesByName m_byName;
    std::unordered_map<NODX201::VLink const*, std::uint32_t> m_numbers; // of references by short name
    std::vector<NODX201::VOdxElement*> m_mayBeUnused;                   // in document order
    std::uint32_t m_count = 0;
};

VUses::VUses(NMemory::VDatabase& database, std::vector<NODX201::VOdxElement*> const& elements,
             VProgress const& progress)
    : m_index(std::make_unique<VIndex>(database, elements, progress)) {
    database.StartNewResolver(); // the views that it remembers are more than most programs want to hold
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
