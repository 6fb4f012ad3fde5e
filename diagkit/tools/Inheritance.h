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

/// Inheritance between layers: one table, and the merge that applies it.

namespace NDIAGKIT {

/// A kind of layer; combined, a set of kinds.
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

/// The kinds of layer that a PARENT-REF can refer to.
inline constexpr VLayerKinds kAllParents =
    VLayerKinds::Protocol | VLayerKinds::FunctionalGroup | VLayerKinds::BaseVariant | VLayerKinds::EcuSharedData;

/// A layer and its kind. It converts from any layer. From a `VDiagLayer` it takes the layer and kind that its `Accept`
/// passes to the visitor; when `Accept` calls back nothing, it is the layer itself, without a kind.
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

/// The layer that contains an element, at any depth; null outside layers. For a layer, the layer itself.
DIAGKIT_EXPORT NODX201::VDiagLayer* LayerOf(NODX201::VOdxObject& object);
DIAGKIT_EXPORT NODX201::VDiagLayer const* LayerOf(NODX201::VOdxObject const& object); ///< the same

/// The PARENT-REFS of a layer; null for every ECU-SHARED-DATA and, if `asksFirst`, for a layer that says it has none.
DIAGKIT_EXPORT NODX201::VParentRefCollection* ParentRefsOf(VLayerOfKind const& layer, bool asksFirst = true);

/// The target layer of a PARENT-REF, where the reference is of one of these kinds and has a target. References of
/// unknown kind give none.
DIAGKIT_EXPORT std::optional<VLayerOfKind> ParentBy(NODX201::VParentRef& parentRef, VLayerKinds kinds = kAllParents);

/// A PARENT-REF and its target layer.
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
    bool appliesExclusions; ///< whether the NOT-INHERITED-DIAG-COMMS of a PARENT-REF apply to what it brings
    bool showsOwnDoubles;   ///< whether all own elements of one short name are visible, or only the first
    bool asksForParentRefs; ///< whether PARENT-REFS are walked only where the layer says that it has some

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

/// The layer and all layers that chains of PARENT-REFs lead to, whether or not anything is inherited from them, each
/// once. The layer comes first, and each PARENT-REF leads to a layer in the list.
DIAGKIT_EXPORT std::vector<VLayerOfKind> LayersAbove(VLayerOfKind const& layer);

/// DIAG-COMMs: those that the DIAG-COMMS of a layer contain or refer to.
struct DIAGKIT_EXPORT VInheritedDiagComms {
    using Element = NODX201::VDiagComm;
    static VInheritanceRow const kRow;
};

/// DIAG-VARIABLEs: those that the DIAG-VARIABLES of a layer contain or refer to.
struct DIAGKIT_EXPORT VInheritedDiagVariables {
    using Element = NODX201::VDiagVariable;
    static VInheritanceRow const kRow;
};

/// GLOBAL-NEG-RESPONSEs: those among the responses of a layer.
struct DIAGKIT_EXPORT VInheritedGlobalNegResponses {
    using Element = NODX201::VGlobalNegResponse;
    static VInheritanceRow const kRow;
};

/// DOPs: those that the DIAG-DATA-DICTIONARY-SPEC of a layer lists.
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

/// An element that the merge of a layer considered, and the result: an own element of the layer, or one that a parent
/// offers. The model owns what it points to.
struct VCandidate {
    NODX201::VOdxElement* element;
    std::optional<VParent> parent;   ///< the parent that offers it; none for an own element
    int pass;                        ///< 1 or 2; 0 for an own element
    bool isVisible;                  ///< whether it is an entry of the view
    VCandidate const* hiddenBy;      ///< what the layer already has under its short name; null when there is nothing
    NODX201::VOdxElement* exclusion; ///< the NOT-INHERITED-DIAG-COMM of the PARENT-REF with its name; null without one
    std::uint32_t way;               ///< on which it came, as `VInheritance::WayOf` numbers them; 0 for an own element
};

/// The visible elements of one kind in layers: the own elements in document order, then those that the parents offer,
/// pass by pass as in the row of the table. A parent offers what is visible in it. An element whose short name is
/// already taken is not inherited.
///
/// What is visible in a parent is computed once, however many ways lead to it, and kept. So an object can be used for
/// any number of layers, as long as nothing in the model changes. It owns no element.
template <class Kind>
class DIAGKIT_EXPORT VInheritance {
public:
    using Element = typename Kind::Element;
    using VElements = std::vector<Element*>;

    VInheritance();
    explicit VInheritance(std::wstring_view shortName); ///< only elements of this short name: much cheaper
    ~VInheritance();
    VInheritance(VInheritance const&) = delete;
    VInheritance& operator=(VInheritance const&) = delete;

    /// What is visible in a layer. The result is not kept; that for its parents is.
    VElements EntriesOf(VLayerOfKind layer);

    /// What is visible in a parent; valid as long as this object exists.
    VElements const& EntriesOfParent(VLayerOfKind layer);

    /// A layer's own elements, including those whose short names repeat.
    static VElements OwnOf(VLayerOfKind layer);

    /// Merges a layer and records the elements that it considers, in this order. The short name is checked first, so a
    /// hidden element may also be excluded. A parent that is referenced again offers only what it did not contribute
    /// before. Where all own elements of a name are visible, the later ones are visible and have a `hiddenBy`. The
    /// candidates point to each other: they may be moved, not copied. Candidates of the parents are recorded by calling
    /// this for the parents.
    std::deque<VCandidate> CandidatesOf(VLayerOfKind layer);

    /// The way of a candidate that this object returned, PARENT-REF by PARENT-REF: from the layer whose candidate it is
    /// to the one that has the element. Empty for an own element. Candidates that came on the same way have the same
    /// number.
    std::vector<VParent> WayOf(VCandidate const& candidate) const;

private:
    struct VList {
        VElements elements;
        std::vector<std::uint32_t> names; // of the elements, by number
        std::vector<std::uint32_t> ways;  // on which they came, by number; empty where they are not recorded

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
    /// The names that are taken and excluded on one level of the way up: while a layer is merged, its parents are
    /// merged one level above, and so on. By the number of the name: the latest merge that has it and the latest
    /// reference that excludes it.
    struct VLevel {
        std::vector<std::uint32_t> heldBy;
        std::vector<std::uint32_t> excludedBy;
        std::uint32_t merge = 1;
        std::uint32_t reference = 1;
    };
    template <class Notes>
    class VMerge;

    static constexpr std::size_t kLevels = 5; // each kind of layer inherits only from other kinds

    template <class Notes>
    VList Make(VLayerOfKind layer, std::size_t level, Notes& notes);
    VElements LookedAtOf(VLayerOfKind layer) const;
    bool LooksAt(std::wstring_view shortName) const { return !m_shortName.has_value() || *m_shortName == shortName; }
    template <class Notes>
    VList const& Kept(VLayerOfKind layer, std::size_t level);
    std::uint32_t NumberOf(std::wstring_view shortName);
    void NumberNames(VList& list);

    std::optional<std::wstring> m_shortName;                        // the only one that counts; none: all count
    VKept m_kept;                                                   // parents
    VKept m_keptWithWays;                                           // parents with the ways that notes need
    std::vector<VWayStep> m_ways;                                   // by number, which begins at 1
    std::unordered_map<std::wstring_view, std::uint32_t> m_numbers; // of short names, whose texts are the model's
    std::array<VLevel, kLevels> m_levels;
};

} // namespace NDIAGKIT
