// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include <diagkit/memory/Database.h>
#include <diagkit/reader/CycleSearch.h>
#include <diagkit/tools/Containment.h>
#include <diagkit/tools/Inheritance.h>

namespace NReader {

/// The targets of some short names of DOPs in layers. Layers in which all of them have the same targets are one class:
/// of thousands of variants with one base only few differ in the names that matter.
class VDopMeanings {
public:
    using VNames = std::unordered_set<std::wstring_view>;

    /// One class of layers, in document order.
    class VClass {
    public:
        std::vector<NODX201::VDiagLayer*> const& Layers() const { return m_layers; }
        NODX201::VDopBase* Find(std::wstring_view shortName) const; ///< null when the name has no target
        VReferencables Visible() const;                             ///< the DOPs that are the targets of the names

    private:
        friend class VDopMeanings;

        std::unordered_map<std::wstring_view, NODX201::VDopBase*> m_own;
        std::vector<VClass*> m_parents; // in the order of the passes; each once
        std::vector<NODX201::VDiagLayer*> m_layers;
        mutable std::unordered_map<std::wstring_view, NODX201::VDopBase*> m_known; // names that parents were asked for
    };

    VDopMeanings(NMemory::VDatabase& database, VNames names);

    /// In the order of their first layers; layers in which the names have no targets are in none.
    std::vector<VClass const*> Classes() const;

private:
    VClass* ClassOf(NDIAGKIT::VLayerOfKind layer);
    VClass* MakeClass(NDIAGKIT::VLayerOfKind layer);

    VNames m_names;
    std::vector<std::unique_ptr<VClass>> m_classes;
    std::unordered_map<NODX201::VDiagLayer const*, VClass*> m_byLayer; // null where the names have no targets
    std::map<std::vector<VClass*>, VClass*> m_byParents;               // those that add nothing to their parents
    std::vector<VClass const*> m_used;                                 // those with layers
};

/// The targets of references in a class of layers, except references that are severed there and some that are left out.
class VDopsOfClass final : public NDIAGKIT::IDopFinder {
public:
    explicit VDopsOfClass(VDopMeanings::VClass const& meaning) : m_meaning(meaning) {}

    NODX201::VDopBase* Find(NODX201::VDopBaseLink& link) override;
    void LeaveOut(NODX201::VLink const& link) { m_leftOut.insert(&link); }

private:
    bool IsSevered(NODX201::VDopBaseLink& link) const;

    VDopMeanings::VClass const& m_meaning;
    std::unordered_set<NODX201::VLink const*> m_leftOut;
};

} // namespace NReader
