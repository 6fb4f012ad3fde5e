// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

/// A graph of diagnostic layers as plain data: what a test needs, before any model is built from it. Tests write it as
/// text (`GraphText.h`) or generate it.

namespace NTest {

/// The kinds of layer, in the order in which they inherit: each kind only from those before it.
enum class VKind { EcuSharedData, Protocol, FunctionalGroup, BaseVariant, EcuVariant };

inline constexpr VKind kKinds[] = {VKind::EcuSharedData, VKind::Protocol, VKind::FunctionalGroup, VKind::BaseVariant,
                                   VKind::EcuVariant};

/// An entry of DIAG-COMMS.
struct VOwnPlan {
    enum class VForm { Service, Job, Reference };

    VForm form = VForm::Service;
    std::wstring name; ///< of a service or job; of a reference, its ID-REF
    std::wstring id{}; ///< of a service or job; empty for a reference
};

/// A NOT-INHERITED-DIAG-COMM.
struct VExclusionPlan {
    std::wstring name; ///< the short name; of a reference by ID, its ID-REF
    bool isById = false;
};

/// A PARENT-REF.
struct VParentPlan {
    /// `NoKind` is a PARENT-REF without a known kind; the others expect a target of that kind.
    enum class VRefKind { EcuSharedData, Protocol, FunctionalGroup, BaseVariant, NoKind };

    VRefKind kind = VRefKind::NoKind;
    std::wstring target; ///< the ID of a layer, which is its name; it need not exist
    bool hasExclusions = false;
    std::vector<VExclusionPlan> exclusions{};
};

struct VLayerPlan {
    VKind kind = VKind::EcuSharedData;
    std::wstring name; ///< also the ID
    bool hasOwn = false;
    std::vector<VOwnPlan> own{};
    bool hasParents = false;
    std::vector<VParentPlan> parents{};
};

struct VGraphPlan {
    std::vector<VLayerPlan> layers; ///< in document order; parents may come before or after

    VLayerPlan const* Find(std::wstring const& name) const; ///< null when there is none
};

/// The kind of reference that fits a layer of this kind. Nothing inherits from an ECU-VARIANT: `NoKind`.
VParentPlan::VRefKind RefKindFor(VKind kind);

} // namespace NTest
