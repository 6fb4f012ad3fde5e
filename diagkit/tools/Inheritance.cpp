// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/Inheritance.h>

#include <algorithm>
#include <optional>
#include <unordered_set>

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/ParentRefs.h>
#include <diagkit/model/Responses.h>
#include <diagkit/model/Visitors.h>

namespace NDIAGKIT {
namespace {

using Kinds = VLayerKinds;

constexpr Kinds kNone = Kinds::None;
constexpr Kinds kProtocol = Kinds::Protocol;
constexpr Kinds kGroup = Kinds::FunctionalGroup;
constexpr Kinds kBase = Kinds::BaseVariant;
constexpr Kinds kShared = Kinds::EcuSharedData;
constexpr Kinds kAll = kProtocol | kGroup | kBase | Kinds::EcuVariant | kShared;
constexpr Kinds kAllButProtocol = kGroup | kBase | Kinds::EcuVariant | kShared;

} // namespace

// clang-format off
//                                                       owners           PROTOCOL          FUNCTIONAL-GROUP      BASE-VARIANT                  ECU-VARIANT       exclusions  own doubles  asks first
VInheritanceRow const VInheritedDiagComms::kRow         {kAll,            {kShared, kNone}, {kProtocol, kShared}, {kProtocol | kGroup, kShared}, {kBase, kShared}, true,       true,        true};
VInheritanceRow const VInheritedDiagVariables::kRow     {kAllButProtocol, {kNone, kNone},   {kShared, kNone},     {kGroup, kShared},             {kBase, kShared}, false,      true,        false};
VInheritanceRow const VInheritedGlobalNegResponses::kRow{kAll,            {kShared, kNone}, {kProtocol, kShared}, {kProtocol | kGroup, kShared}, {kBase, kShared}, false,      true,        true};
VInheritanceRow const VInheritedDops::kRow              {kAll,            {kShared, kNone}, {kProtocol, kShared}, {kProtocol | kGroup, kShared}, {kBase, kShared}, false,      false,       false};
// clang-format on

VInheritancePasses VInheritanceRow::PassesOf(VLayerKinds layer) const {
    switch (layer) {
    case VLayerKinds::Protocol:
        return protocol;
    case VLayerKinds::FunctionalGroup:
        return functionalGroup;
    case VLayerKinds::BaseVariant:
        return baseVariant;
    case VLayerKinds::EcuVariant:
        return ecuVariant;
    default:
        return {};
    }
}

bool VInheritanceRow::TakesFrom(VLayerKinds layer, VLayerKinds parent) const {
    VInheritancePasses const passes = PassesOf(layer);
    return IsIn(parent, passes.first | passes.second);
}

// clang-format off
VLayerOfKind::VLayerOfKind(NODX201::VProtocol& protocol)               : layer(&protocol),        kind(Kinds::Protocol) {}
VLayerOfKind::VLayerOfKind(NODX201::VFunctionalGroup& functionalGroup) : layer(&functionalGroup), kind(Kinds::FunctionalGroup) {}
VLayerOfKind::VLayerOfKind(NODX201::VBaseVariant& baseVariant)         : layer(&baseVariant),     kind(Kinds::BaseVariant) {}
VLayerOfKind::VLayerOfKind(NODX201::VEcuVariant& ecuVariant)           : layer(&ecuVariant),      kind(Kinds::EcuVariant) {}
VLayerOfKind::VLayerOfKind(NODX201::VEcuSharedData& ecuSharedData)     : layer(&ecuSharedData),   kind(Kinds::EcuSharedData) {}
// clang-format on

namespace {

struct VKindFinder : NODX201::VDiagLayerVisitor {
    std::optional<VLayerOfKind> found;

    // clang-format off
    void VisitBaseVariant    (NODX201::VBaseVariant& layer)     override { found = layer; }
    void VisitProtocol       (NODX201::VProtocol& layer)        override { found = layer; }
    void VisitFunctionalGroup(NODX201::VFunctionalGroup& layer) override { found = layer; }
    void VisitEcuVariant     (NODX201::VEcuVariant& layer)      override { found = layer; }
    void VisitEcuSharedData  (NODX201::VEcuSharedData& layer)   override { found = layer; }
    // clang-format on
};

} // namespace

VLayerOfKind::VLayerOfKind(NODX201::VDiagLayer& anyLayer) : layer(&anyLayer), kind(Kinds::None) {
    VKindFinder finder;
    anyLayer.Accept(finder);
    *this = finder.found.value_or(*this);
}

NODX201::VDiagLayer const* LayerOf(NODX201::VOdxObject const& object) {
    for (NODX201::VOdxObject const* place = &object; place != nullptr; place = place->GetOwner()) {
        if (auto const* const layer = dynamic_cast<NODX201::VDiagLayer const*>(place)) {
            return layer;
        }
    }
    return nullptr;
}

NODX201::VDiagLayer* LayerOf(NODX201::VOdxObject& object) {
    return const_cast<NODX201::VDiagLayer*>(LayerOf(static_cast<NODX201::VOdxObject const&>(object)));
}

namespace {

template <class Layer>
NODX201::VParentRefCollection* ParentRefsIn(NODX201::VDiagLayer& layer, bool asksFirst) {
    auto& self = static_cast<Layer&>(layer);
    return !asksFirst || self.HasParentRefCollection() ? &self.ParentRefCollection() : nullptr;
}

} // namespace

NODX201::VParentRefCollection* ParentRefsOf(VLayerOfKind const& layer, bool asksFirst) {
    switch (layer.kind) {
    case Kinds::Protocol:
        return ParentRefsIn<NODX201::VProtocol>(*layer.layer, asksFirst);
    case Kinds::FunctionalGroup:
        return ParentRefsIn<NODX201::VFunctionalGroup>(*layer.layer, asksFirst);
    case Kinds::BaseVariant:
        return ParentRefsIn<NODX201::VBaseVariant>(*layer.layer, asksFirst);
    case Kinds::EcuVariant:
        return ParentRefsIn<NODX201::VEcuVariant>(*layer.layer, asksFirst);
    default:
        return nullptr;
    }
}

namespace {

// The target of a parent reference, or null when it has none.
// clang-format off
NODX201::VProtocol*        TargetOf(NODX201::VProtocolRef& ref)        { return ref.HasProtocol()        ? &ref.GetProtocol()        : nullptr; }
NODX201::VFunctionalGroup* TargetOf(NODX201::VFunctionalGroupRef& ref) { return ref.HasFunctionalGroup() ? &ref.GetFunctionalGroup() : nullptr; }
NODX201::VBaseVariant*     TargetOf(NODX201::VBaseVariantRef& ref)     { return ref.HasBaseVariant()     ? &ref.GetBaseVariant()     : nullptr; }
NODX201::VEcuSharedData*   TargetOf(NODX201::VEcuSharedDataRef& ref)   { return ref.HasEcuSharedData()   ? &ref.GetEcuSharedData()   : nullptr; }
// clang-format on

/// The target, when the reference is of this kind and has one.
template <class Ref>
std::optional<VLayerOfKind> TargetIfKind(NODX201::VParentRef& parentRef) {
    auto* const ref = dynamic_cast<Ref*>(&parentRef);
    auto* const target = ref != nullptr ? TargetOf(*ref) : nullptr;
    return target != nullptr ? std::optional<VLayerOfKind>(*target) : std::nullopt;
}

} // namespace

std::optional<VLayerOfKind> ParentBy(NODX201::VParentRef& parentRef, VLayerKinds kinds) {
    static constexpr struct {
        Kinds kind;
        std::optional<VLayerOfKind> (*target)(NODX201::VParentRef& parentRef);
    } kRows[] = {
        {Kinds::Protocol, &TargetIfKind<NODX201::VProtocolRef>},
        {Kinds::FunctionalGroup, &TargetIfKind<NODX201::VFunctionalGroupRef>},
        {Kinds::BaseVariant, &TargetIfKind<NODX201::VBaseVariantRef>},
        {Kinds::EcuSharedData, &TargetIfKind<NODX201::VEcuSharedDataRef>},
    };
    for (auto const& row : kRows) {
        if (!IsIn(row.kind, kinds)) {
            continue;
        }
        if (auto const target = row.target(parentRef)) {
            return target;
        }
    }
    return std::nullopt;
}

namespace {

/// The PARENT-REFS that a layer's passes go over; null for none.
NODX201::VParentRefCollection* WalkedParentRefs(VLayerOfKind const& layer, VInheritanceRow const& row) {
    bool const hasPasses = row.PassesOf(layer.kind).first != kNone;
    return hasPasses ? ParentRefsOf(layer, row.asksForParentRefs) : nullptr;
}

/// Calls `see` with each PARENT-REF, the kinds of parent from which the pass takes elements, and the pass.
template <class See>
void WalkPasses(NODX201::VParentRefCollection* parentRefs, VInheritancePasses const& passes, See const& see) {
    int pass = 0;
    for (VLayerKinds const kinds : {passes.first, passes.second}) {
        ++pass;
        if (parentRefs == nullptr || kinds == kNone) {
            continue;
        }
        for (NODX201::VParentRef& parentRef : *parentRefs) {
            see(parentRef, kinds, pass);
        }
    }
}

} // namespace

std::vector<std::vector<VParent>> VInheritanceRow::ParentsOf(VLayerOfKind const& layer) const {
    std::vector<std::vector<VParent>> parents;
    WalkPasses(WalkedParentRefs(layer, *this), PassesOf(layer.kind),
               [&parents](NODX201::VParentRef& parentRef, VLayerKinds kinds, int pass) {
                   parents.resize(static_cast<std::size_t>(pass));
                   if (auto const parent = ParentBy(parentRef, kinds)) {
                       parents.back().push_back({&parentRef, *parent});
                   }
               });
    return parents;
}

bool InheritsFrom(VLayerKinds layer, VLayerKinds parent) {
#define OR_TAKES_FROM(Kind) || Kind::kRow.TakesFrom(layer, parent)
    return false DIAGKIT_INHERITED_KINDS(OR_TAKES_FROM);
}

std::vector<VParent> ParentsOf(VLayerOfKind const& layer) {
    std::vector<VParent> parents;
    if (NODX201::VParentRefCollection* const parentRefs = ParentRefsOf(layer)) {
        for (NODX201::VParentRef& parentRef : *parentRefs) {
            auto const parent = ParentBy(parentRef);
            if (parent.has_value() && InheritsFrom(layer.kind, parent->kind)) {
                parents.push_back({&parentRef, *parent});
            }
        }
    }
    return parents;
}

std::vector<VLayerOfKind> LayersAbove(VLayerOfKind const& layer) {
    std::vector<VLayerOfKind> layers{layer};
    std::unordered_set<NODX201::VDiagLayer const*> met{layer.layer};
    for (std::size_t index = 0; index < layers.size(); ++index) {
        NODX201::VParentRefCollection* const parentRefs = ParentRefsOf(VLayerOfKind(layers[index]), false);
        if (parentRefs == nullptr) {
            continue;
        }
        for (NODX201::VParentRef& parentRef : *parentRefs) {
            auto const parent = ParentBy(parentRef);
            if (parent.has_value() && met.insert(parent->layer).second) {
                layers.push_back(*parent);
            }
        }
    }
    return layers;
}

namespace {

// A layer's own elements, by kind of element.

void AddOwn(std::vector<NODX201::VDiagComm*>& own, VLayerOfKind const& layer) {
    if (!layer.layer->HasDiagCommProxyCollection()) {
        return;
    }
    NODX201::VDiagCommProxyCollection& proxies = layer.layer->DiagCommProxyCollection();
    own.reserve(proxies.Count());
    for (NODX201::IDiagCommProxy& proxy : proxies) {
        if (proxy.IsDiagService() || proxy.IsSingleEcuJob()) {
            if (auto* const diagComm = dynamic_cast<NODX201::VDiagComm*>(&proxy)) {
                own.push_back(diagComm);
            }
        } else if (proxy.IsDiagCommLink()) {
            auto* const link = dynamic_cast<NODX201::VDiagCommLink*>(&proxy);
            if (link != nullptr && link->HasDiagComm(*layer.layer)) {
                own.push_back(&link->GetDiagComm());
            }
        }
    }
}

NODX201::VDiagVariableProxyCollection& DiagVariablesOf(VLayerOfKind const& layer) {
    switch (layer.kind) {
    case Kinds::FunctionalGroup:
        return static_cast<NODX201::VFunctionalGroup&>(*layer.layer).DiagVariableProxyCollection();
    case Kinds::BaseVariant:
        return static_cast<NODX201::VBaseVariant&>(*layer.layer).DiagVariableProxyCollection();
    case Kinds::EcuVariant:
        return static_cast<NODX201::VEcuVariant&>(*layer.layer).DiagVariableProxyCollection();
    default:
        return static_cast<NODX201::VEcuSharedData&>(*layer.layer).DiagVariableProxyCollection();
    }
}

void AddOwn(std::vector<NODX201::VDiagVariable*>& own, VLayerOfKind const& layer) {
    NODX201::VDiagVariableProxyCollection& proxies = DiagVariablesOf(layer);
    own.reserve(proxies.Count());
    for (NODX201::IDiagVariableProxy& proxy : proxies) {
        if (proxy.IsDiagVariable()) {
            if (auto* const diagVariable = dynamic_cast<NODX201::VDiagVariable*>(&proxy)) {
                own.push_back(diagVariable);
            }
        } else {
            auto* const link = dynamic_cast<NODX201::VDiagVariableLink*>(&proxy);
            if (link != nullptr && link->HasDiagVariable(*layer.layer)) {
                own.push_back(&link->GetDiagVariable());
            }
        }
    }
}

void AddOwn(std::vector<NODX201::VGlobalNegResponse*>& own, VLayerOfKind const& layer) {
    NODX201::VResponseCollection& responses = layer.layer->ResponseCollection();
    if (responses.Count() == 0) {
        return;
    }
    for (NODX201::VResponse& response : responses) {
        if (response.GetOdxTag() != NODX201::VOdxTagEnum::GlobalNegResponse) {
            continue;
        }
        if (auto* const globalNegResponse = dynamic_cast<NODX201::VGlobalNegResponse*>(&response)) {
            own.push_back(globalNegResponse);
        }
    }
}

void AddOwn(std::vector<NODX201::VDopBase*>& own, VLayerOfKind const& layer) {
    if (!layer.layer->HasDiagDataDictionarySpec()) {
        return;
    }
    NODX201::VDopBaseCollection& dops = layer.layer->GetDiagDataDictionarySpec().DopBaseCollection();
    own.reserve(dops.Count());
    for (NODX201::VDopBase& dop : dops) {
        own.push_back(&dop);
    }
}

} // namespace

namespace {

/// Notes of a merge that is not recorded: does nothing.
struct VNoNotes {
    using VOfParents = VNoNotes;
    static constexpr bool kAreTaken = false;
    static constexpr bool kHaveWays = false;

    static void StartReference(VParent const&, int) {}
    static void StartExclusions() {}
    static void Exclude(std::uint32_t, NODX201::VOdxElement&) {}
    static void Add(NODX201::VOdxElement&, std::uint32_t, bool, std::uint32_t) {}
};

/// Notes for the parents of a layer whose merge is recorded: the ways on which their entries came.
struct VWayNotes : VNoNotes {
    using VOfParents = VWayNotes;
    static constexpr bool kHaveWays = true;
};

class VNotes {
public:
    using VOfParents = VWayNotes;
    static constexpr bool kAreTaken = true;
    static constexpr bool kHaveWays = true;

    void StartReference(VParent const& parent, int pass) {
        m_parent = parent;
        m_pass = pass;
    }
    void StartExclusions() { m_exclusions.clear(); }
    void Exclude(std::uint32_t name, NODX201::VOdxElement& exclusion) { m_exclusions.try_emplace(name, &exclusion); }

    void Add(NODX201::VOdxElement& element, std::uint32_t name, bool isVisible, std::uint32_t way) {
        if (name >= m_holders.size()) {
            m_holders.resize(std::max<std::size_t>(name + std::size_t{1}, 2 * m_holders.size()));
        }
        VCandidate const*& holder = m_holders[name];
        candidates.push_back({&element, m_parent, m_pass, isVisible, holder, ExclusionOf(name), way});
        if (isVisible && holder == nullptr) {
            holder = &candidates.back();
        }
    }

    std::deque<VCandidate> candidates;

private:
    NODX201::VOdxElement* ExclusionOf(std::uint32_t name) const {
        if (m_exclusions.empty()) {
            return nullptr;
        }
        auto const exclusion = m_exclusions.find(name);
        return exclusion != m_exclusions.end() ? exclusion->second : nullptr;
    }

    std::optional<VParent> m_parent; // that is being looked at
    int m_pass = 0;
    std::unordered_map<std::uint32_t, NODX201::VOdxElement*> m_exclusions; // of the reference, by name
    std::vector<VCandidate const*> m_holders;                              // of names, by number
};

} // namespace

/// Adds to the own elements of a layer what its parents offer.
template <class Kind>
template <class Notes>
class VInheritance<Kind>::VMerge {
public:
    VMerge(VInheritance& inheritance, VLevel& level, VList& list, Notes& notes)
        : m_inheritance(inheritance), m_level(level), m_list(list), m_notes(notes) {
        ++m_level.merge;
    }

    void TakeOwn() {
        m_inheritance.NumberNames(m_list);
        std::size_t kept = 0;
        for (std::size_t index = 0; index < m_list.elements.size(); ++index) {
            bool const isVisible = Hold(m_list.names[index]) || Kind::kRow.showsOwnDoubles;
            m_notes.Add(*m_list.elements[index], m_list.names[index], isVisible, 0);
            if (isVisible) {
                m_list.elements[kept] = m_list.elements[index];
                m_list.names[kept] = m_list.names[index];
                ++kept;
            }
        }
        m_list.elements.resize(kept);
        m_list.names.resize(kept);
        if constexpr (Notes::kHaveWays) {
            m_list.ways.resize(kept);
        }
    }

    /// Applies until the next call.
    void SetNotInheritedList(NODX201::VParentRef& parentRef) {
        ++m_level.reference;
        m_notes.StartExclusions();
        if (!parentRef.HasNotInheritedDiagCommCollection()) {
            return;
        }
        for (NODX201::VNotInheritedDiagComm& notInherited : parentRef.NotInheritedDiagCommCollection()) {
            NODX201::ILink& link = notInherited.GetDiagCommSnref().GetLink();
            auto const* const snref = dynamic_cast<NODX201::VSnref*>(&link);
            if (snref != nullptr && m_inheritance.LooksAt(snref->GetShortName())) {
                std::uint32_t const name = m_inheritance.NumberOf(snref->GetShortName());
                At(m_level.excludedBy, name) = m_level.reference;
                m_notes.Exclude(name, notInherited);
            }
        }
    }

    void Inherit(VParent const& parent, VList const& offered) {
        VLongerWays ways(m_inheritance.m_ways, parent);
        auto const [seen, isFirst] = m_excluded.try_emplace(&offered);
        // A parent that is referenced again can only contribute what was excluded before.
        VList const again = std::move(seen->second);
        seen->second = {};
        VList const& candidates = isFirst ? offered : again;
        for (std::size_t index = 0; index < candidates.elements.size(); ++index) {
            std::uint32_t const name = candidates.names[index];
            Element& element = *candidates.elements[index];
            std::uint32_t const wayOfParent = Notes::kHaveWays ? candidates.ways[index] : 0;
            std::uint32_t const way = Notes::kHaveWays ? ways.Longer(wayOfParent) : 0;
            if (IsHeld(name)) {
                if constexpr (Notes::kAreTaken) {
                    m_notes.Add(element, name, false, way);
                    Add(seen->second, element, name, wayOfParent);
                }
                continue;
            }
            bool const isExcluded = IsInNotInheritedList(name);
            m_notes.Add(element, name, !isExcluded, way);
            if (isExcluded) {
                Add(seen->second, element, name, wayOfParent);
                continue;
            }
            Add(m_list, element, name, way);
            Hold(name);
        }
    }

private:
    /// The ways that begin with a PARENT-REF, by the rest of the way.
    class VLongerWays {
    public:
        VLongerWays(std::vector<VWayStep>& ways, VParent const& parent) : m_ways(ways), m_parent(parent) {}

        std::uint32_t Longer(std::uint32_t next) {
            if (m_longer == 0 || next != m_next) { // adjacent elements mostly came on the same way
                m_next = next;
                m_longer = NumberOf(next);
            }
            return m_longer;
        }

    private:
        std::uint32_t NumberOf(std::uint32_t next) {
            auto const [number, isNew] = m_numbers.try_emplace(next, 0);
            if (isNew) {
                m_ways.push_back({m_parent, next});
                number->second = static_cast<std::uint32_t>(m_ways.size());
            }
            return number->second;
        }

        std::vector<VWayStep>& m_ways;
        VParent const& m_parent;
        std::unordered_map<std::uint32_t, std::uint32_t> m_numbers;
        std::uint32_t m_next = 0;
        std::uint32_t m_longer = 0;
    };

    static void Add(VList& list, Element& element, std::uint32_t name, std::uint32_t way) {
        list.Add(element, name);
        if constexpr (Notes::kHaveWays) {
            list.ways.push_back(way);
        }
    }

    /// The mark of a name, which may be a new one.
    std::uint32_t& At(std::vector<std::uint32_t>& marks, std::uint32_t name) {
        if (name >= marks.size()) {
            marks.resize(std::max<std::size_t>(m_inheritance.m_numbers.size(), 2 * marks.size()));
        }
        return marks[name];
    }

    bool IsHeld(std::uint32_t name) { return At(m_level.heldBy, name) == m_level.merge; }
    bool IsInNotInheritedList(std::uint32_t name) { return At(m_level.excludedBy, name) == m_level.reference; }

    /// Whether the name is new.
    bool Hold(std::uint32_t name) {
        std::uint32_t& mark = At(m_level.heldBy, name);
        bool const isNew = mark != m_level.merge;
        mark = m_level.merge;
        return isNew;
    }

    VInheritance& m_inheritance;
    VLevel& m_level;
    VList& m_list;
    Notes& m_notes;
    std::unordered_map<VList const*, VList> m_excluded; // of each parent seen; with notes, what was hidden too
};

template <class Kind>
VInheritance<Kind>::VInheritance() = default;

template <class Kind>
VInheritance<Kind>::VInheritance(std::wstring_view shortName) : m_shortName(shortName) {}

template <class Kind>
VInheritance<Kind>::~VInheritance() = default;

template <class Kind>
typename VInheritance<Kind>::VElements VInheritance<Kind>::EntriesOf(VLayerOfKind layer) {
    auto const kept = m_kept.find(layer.layer);
    VNoNotes noNotes;
    return kept != m_kept.end() ? kept->second.elements : Make(layer, 0, noNotes).elements;
}

template <class Kind>
std::deque<VCandidate> VInheritance<Kind>::CandidatesOf(VLayerOfKind layer) {
    VNotes notes;
    Make(layer, 0, notes);
    return std::move(notes.candidates);
}

template <class Kind>
std::vector<VParent> VInheritance<Kind>::WayOf(VCandidate const& candidate) const {
    std::vector<VParent> path;
    for (std::uint32_t way = candidate.way; way != 0; way = m_ways[way - 1].next) {
        path.push_back(m_ways[way - 1].parent);
    }
    return path;
}

template <class Kind>
typename VInheritance<Kind>::VElements const& VInheritance<Kind>::EntriesOfParent(VLayerOfKind layer) {
    return Kept<VNoNotes>(layer, 0).elements;
}

template <class Kind>
typename VInheritance<Kind>::VElements VInheritance<Kind>::OwnOf(VLayerOfKind layer) {
    VElements own;
    if (IsIn(layer.kind, Kind::kRow.owners)) {
        AddOwn(own, layer);
    }
    return own;
}

/// A layer's own elements, as far as they count.
template <class Kind>
typename VInheritance<Kind>::VElements VInheritance<Kind>::LookedAtOf(VLayerOfKind layer) const {
    VElements own = OwnOf(layer);
    if (m_shortName.has_value()) {
        auto const isOther = [this](Element const* element) { return !LooksAt(element->GetShortName()); };
        own.erase(std::remove_if(own.begin(), own.end(), isOther), own.end());
    }
    return own;
}

template <class Kind>
template <class Notes>
typename VInheritance<Kind>::VList const& VInheritance<Kind>::Kept(VLayerOfKind layer, std::size_t level) {
    VKept& known = Notes::kHaveWays ? m_keptWithWays : m_kept;
    auto const kept = known.find(layer.layer);
    if (kept != known.end()) {
        return kept->second;
    }
    Notes notes;
    VList list = Make(layer, level, notes);
    NumberNames(list);
    return known.emplace(layer.layer, std::move(list)).first->second;
}

template <class Kind>
template <class Notes>
typename VInheritance<Kind>::VList VInheritance<Kind>::Make(VLayerOfKind layer, std::size_t level, Notes& notes) {
    VList list{LookedAtOf(layer), {}, {}};
    NODX201::VParentRefCollection* const parentRefs = WalkedParentRefs(layer, Kind::kRow);
    if (parentRefs == nullptr && Kind::kRow.showsOwnDoubles && !Notes::kAreTaken) {
        if constexpr (Notes::kHaveWays) {
            list.ways.resize(list.elements.size());
        }
        return list;
    }
    VMerge<Notes> merge(*this, m_levels[level], list, notes);
    merge.TakeOwn();
    WalkPasses(parentRefs, Kind::kRow.PassesOf(layer.kind),
               [&](NODX201::VParentRef& parentRef, VLayerKinds kinds, int pass) {
                   // Set the exclusions first, even if the reference has no target: those of the previous reference
                   // must not apply.
                   if (Kind::kRow.appliesExclusions) {
                       merge.SetNotInheritedList(parentRef);
                   }
                   if (auto const target = ParentBy(parentRef, kinds)) {
                       VParent const parent{&parentRef, *target};
                       notes.StartReference(parent, pass);
                       merge.Inherit(parent, Kept<typename Notes::VOfParents>(*target, level + 1));
                   }
               });
    return list;
}

template <class Kind>
void VInheritance<Kind>::NumberNames(VList& list) {
    std::size_t const more = list.elements.size() - list.names.size();
    if (static_cast<float>(m_numbers.size() + more) >
        m_numbers.max_load_factor() * static_cast<float>(m_numbers.bucket_count())) {
        m_numbers.reserve(m_numbers.size() + std::max(more, m_numbers.size()));
    }
    list.names.reserve(list.elements.size());
    for (std::size_t index = list.names.size(); index < list.elements.size(); ++index) {
        list.names.push_back(NumberOf(list.elements[index]->GetShortName()));
    }
}

template <class Kind>
std::uint32_t VInheritance<Kind>::NumberOf(std::wstring_view shortName) {
    auto const next = static_cast<std::uint32_t>(m_numbers.size());
    return m_numbers.try_emplace(shortName, next).first->second;
}

#define INSTANTIATE(Kind) template class VInheritance<Kind>;
DIAGKIT_INHERITED_KINDS(INSTANTIATE)

} // namespace NDIAGKIT
