// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <diagkit/Export.h>
#include <diagkit/model/Collections.h>

/// What layers inherit: one table, and the one merge that works along it.

namespace NDIAGKIT {

/// A kind of layer; together a set of them.
enum class VLayerKinds : unsigned {
    None = 0,
    Protocol = 1,
    FunctionalGroup = 2,
    BaseVariant = 4,
    EcuVariant = 8,
    EcuSharedData = 16,
};

constexpr VLayerKinds operator|(VLayerKinds a, VLayerKinds b) {
    return static_cast<VLayerKinds>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}
/// Whether the kind is one of the set.
constexpr bool IsIn(VLayerKinds kind, VLayerKinds set) {
    return (static_cast<unsigned>(kind) & static_cast<unsigned>(set)) != 0;
}

/// The kinds of layer that a PARENT-REF can name.
inline constexpr VLayerKinds kAllParents =
    VLayerKinds::Protocol | VLayerKinds::FunctionalGroup | VLayerKinds::BaseVariant | VLayerKinds::EcuSharedData;

/// A layer and which of the five kinds it is of. It converts from any layer; of a `VDiagLayer` it takes what the
/// layer's `Accept` calls back with, and is the layer itself, of no kind, when nothing is called back.
struct DIAGKIT_EXPORT VLayerOfKind {
    VLayerOfKind(NODX201::VProtocol& protocol);
    VLayerOfKind(NODX201::VFunctionalGroup& functionalGroup);
    VLayerOfKind(NODX201::VBaseVariant& baseVariant);
    VLayerOfKind(NODX201::VEcuVariant& ecuVariant);
    VLayerOfKind(NODX201::VEcuSharedData& ecuSharedData);
    VLayerOfKind(NODX201::VDiagLayer& anyLayer);

    NODX201::VDiagLayer* layer;
    VLayerKinds kind; ///< one kind, or none
};

/// The layer that an element stands in, however deep; null outside layers. A layer stands in itself.
DIAGKIT_EXPORT NODX201::VDiagLayer* LayerOf(NODX201::VOdxObject& object);
DIAGKIT_EXPORT NODX201::VDiagLayer const* LayerOf(NODX201::VOdxObject const& object); ///< the same

/// The PARENT-REFS of a layer; null for one that says to have none, unless it is not asked, and for every
/// ECU-SHARED-DATA.
DIAGKIT_EXPORT NODX201::VParentRefCollection* ParentRefsOf(VLayerOfKind const& layer, bool asksFirst = true);

/// The layer that a PARENT-REF names, where the reference is of one of these kinds and has a target. References of no
/// known kind name none.
DIAGKIT_EXPORT std::optional<VLayerOfKind> ParentBy(NODX201::VParentRef& parentRef, VLayerKinds kinds = kAllParents);

/// A PARENT-REF and the layer that it leads to.
struct VParent {
    NODX201::VParentRef* parentRef;
    VLayerOfKind layer;
};

/// The kinds of parent from which a layer takes elements: first from all parents of the first pass, in the order of its
/// PARENT-REFs, then from those of the second.
struct VInheritancePasses {
    VLayerKinds first = VLayerKinds::None;
    VLayerKinds second = VLayerKinds::None;
};

/// A row of the table of inheritance: how elements of one kind are inherited.
struct DIAGKIT_EXPORT VInheritanceRow {
    VLayerKinds owners; ///< the kinds of layer that have elements of their own
    VInheritancePasses protocol;
    VInheritancePasses functionalGroup;
    VInheritancePasses baseVariant;
    VInheritancePasses ecuVariant;
    bool appliesExclusions; ///< whether the NOT-INHERITED-DIAG-COMMS of a PARENT-REF hold for what comes by it
    bool showsOwnDoubles;   ///< whether all own elements of one short name are visible, or the first alone
    bool
        asksForParentRefs; ///< whether a layer that says to have no PARENT-REFS is believed, or they are walked at once

    VInheritancePasses PassesOf(VLayerKinds layer) const; ///< none for an ECU-SHARED-DATA

    /// Whether a layer takes from parents of a kind, in either pass.
    bool TakesFrom(VLayerKinds layer, VLayerKinds parent) const;

    /// The parents from which a layer takes, pass by pass, each pass in the order of the PARENT-REFs.
    std::vector<std::vector<VParent>> ParentsOf(VLayerOfKind const& layer) const;
};

/// Whether any row of the table says that a layer takes from parents of a kind.
DIAGKIT_EXPORT bool InheritsFrom(VLayerKinds layer, VLayerKinds parent);

/// The parents from which a layer takes anything by any row of the table, in the order of its PARENT-REFs.
DIAGKIT_EXPORT std::vector<VParent> ParentsOf(VLayerOfKind const& layer);

/// The layer and all layers that chains of PARENT-REFs lead to, whatever they bring, each once. The layer comes first,
/// and each PARENT-REF leads to one of the list.
DIAGKIT_EXPORT std::vector<VLayerOfKind> LayersAbove(VLayerOfKind const& layer);

/// DIAG-COMMs: what the DIAG-COMMS of a layer hold or refer to.
struct DIAGKIT_EXPORT VInheritedDiagComms {
    using Element = NODX201::VDiagComm;
    static VInheritanceRow const kRow;
};

/// DIAG-VARIABLEs: what the DIAG-VARIABLES of a layer hold or refer to.
struct DIAGKIT_EXPORT VInheritedDiagVariables {
    using Element = NODX201::VDiagVariable;
    static VInheritanceRow const kRow;
};

/// GLOBAL-NEG-RESPONSEs: those among the responses of a layer.
struct DIAGKIT_EXPORT VInheritedGlobalNegResponses {
    using Element = NODX201::VGlobalNegResponse;
    static VInheritanceRow const kRow;
};

/// DOPs: what the DIAG-DATA-DICTIONARY-SPEC of a layer lists.
struct DIAGKIT_EXPORT VInheritedDops {
    using Element = NODX201::VDopBase;
    static VInheritanceRow const kRow;
};

/// Every row of the table.
#define DIAGKIT_INHERITED_KINDS(ROW)                                                                                   \
    ROW(VInheritedDiagComms)                                                                                           \
    ROW(VInheritedDiagVariables)                                                                                       \
    ROW(VInheritedGlobalNegResponses)                                                                                  \
    ROW(VInheritedDops)

/// What the merge of a layer looked at and what became of it: an own element of the layer, or one that a parent offers.
/// The model owns what it points to.
struct VCandidate {
    NODX201::VOdxElement* element;
    std::optional<VParent> parent;   ///< that offers it; none for an own one
    int pass;                        ///< 1 or 2; 0 for an own one
    bool isVisible;                  ///< whether it is an entry of the view
    VCandidate const* hiddenBy;      ///< what the layer has under its short name already; null when there is nothing
    NODX201::VOdxElement* exclusion; ///< the NOT-INHERITED-DIAG-COMM of the PARENT-REF that names it; null without one
    std::uint32_t way;               ///< on which it came, as `VInheritance::WayOf` numbers them; 0 for an own one
};

/// What is visible of one kind in layers: the own elements in document order, then what the parents offer, pass by pass
/// along the row of the table. What a parent offers is what is visible in it. Of a short name that is taken already,
/// nothing is inherited.
///
/// What is visible in a parent is made once, whichever ways lead to it, and kept. So an object serves any number of
/// layers, for as long as nothing in the model changes. It owns no element.
template <class Kind>
class DIAGKIT_EXPORT VInheritance {
public:
    using Element = typename Kind::Element;
    using VElements = std::vector<Element*>;

    VInheritance();
    explicit VInheritance(std::wstring_view shortName); ///< of elements of this short name alone: much cheaper
    ~VInheritance();
    VInheritance(VInheritance const&) = delete;
    VInheritance& operator=(VInheritance const&) = delete;

    /// What is visible in a layer. Not kept; what is visible in its parents is.
    VElements EntriesOf(VLayerOfKind layer);

    /// What is visible in a parent; valid as long as this object lives.
    VElements const& EntriesOfParent(VLayerOfKind layer);

    /// What a layer has of its own, doubles included.
    static VElements OwnOf(VLayerOfKind layer);

    /// Merges a layer and notes what it looks at, in this order. The name is looked for first, so what is hidden may be
    /// excluded as well. A parent that is named again offers once more what it did not bring before, and nothing else.
    /// Where all own elements of a name are visible, the later ones are, and have a `hiddenBy`. The candidates point to
    /// each other: they may be moved, not copied. Those of the parents are noted by asking for them.
    std::deque<VCandidate> CandidatesOf(VLayerOfKind layer);

    /// The way of a candidate that this object gave, PARENT-REF by PARENT-REF: from the layer whose candidate it is to
    /// the one that has the element. Empty for an own one. Candidates that came on the same way have its number.
    std::vector<VParent> WayOf(VCandidate const& candidate) const;

private:
    struct VList {
        VElements elements;
        std::vector<std::uint32_t> names; // of the elements, by number
        std::vector<std::uint32_t> ways;  // on which they came, by number; none where nobody asks

        void Add(Element& element, std::uint32_t name) {
            elements.push_back(&element);
            names.push_back(name);
        }
    };
    /// The first PARENT-REF of a way, and the number of the way from there; 0 is the empty one.
    struct VWayStep {
        VParent parent;
        std::uint32_t next;
    };
    using VKept = std::unordered_map<NODX201::VDiagLayer const*, VList>;
    /// What is held and excluded on one level of the way up: while a layer is being merged, its parents are, each a
    /// level above. By the number of the name, the latest merge that holds it and the latest reference that excludes
    /// it.
    struct VLevel {
        std::vector<std::uint32_t> heldBy;
        std::vector<std::uint32_t> excludedBy;
        std::uint32_t merge = 1;
        std::uint32_t reference = 1;
    };
    template <class Notes>
    class VMerge;

    static constexpr std::size_t kLevels = 5; // each kind of layer inherits from others alone

    template <class Notes>
    VList Make(VLayerOfKind layer, std::size_t level, Notes& notes);
    VElements LookedAtOf(VLayerOfKind layer) const;
    bool LooksAt(std::wstring_view shortName) const { return !m_shortName.has_value() || *m_shortName == shortName; }
    template <class Notes>
    VList const& Kept(VLayerOfKind layer, std::size_t level);
    std::uint32_t NumberOf(std::wstring_view shortName);
    void NumberNames(VList& list);

    std::optional<std::wstring> m_shortName;                        // of all that counts; none for any
    VKept m_kept;                                                   // parents
    VKept m_keptWithWays;                                           // parents as notes want them
    std::vector<VWayStep> m_ways;                                   // by number, which begins at 1
    std::unordered_map<std::wstring_view, std::uint32_t> m_numbers; // of short names, whose texts are the model's
    std::array<VLevel, kLevels> m_levels;
};

} // namespace NDIAGKIT
