// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include <diagkit/check/ServiceGraph.h>
#include <diagkit/check/Views.h>
#include <diagkit/memory/Odx.h>
#include <diagkit/tools/Containment.h>

namespace NCheck {

/// The meaning of short names in one layer. Results are cached.
class VVisibleNames final : private NDIAGKIT::IDopFinder {
public:
    VVisibleNames(NODX201::VDiagLayer& layer, VViews& views);
    ~VVisibleNames() = default;
    VVisibleNames(VVisibleNames const&) = delete;
    VVisibleNames& operator=(VVisibleNames const&) = delete;

    /// Whether a reference by short name, in an element visible in the layer, has a target. Nothing for a reference to
    /// a parameter of a DIAG-COMM that is missing itself, and for that of an ENV-DATA-DESC to which no DIAG-SERVICE of
    /// the layer leads: jobs make their responses themselves.
    std::optional<bool> Resolves(NODX201::VLink& reference);

    /// The targets of such a reference; empty when it does not resolve. There can be several parameters for that of an
    /// ENV-DATA-DESC: those of the name below the messages of all services whose messages lead to it. Of parameters of
    /// one name in a DIAG-COMM only the first counts: those of the responses come before those of the request, and
    /// those of a message itself before nested ones. Valid until the next call.
    std::vector<NODX201::VOdxElement*> const& TargetsOf(NODX201::VLink& reference);

    std::vector<NODX201::VDiagComm*> const& DiagComms() const { return m_diagComms; }
    std::vector<NODX201::VDopBase*> const& Dops() const { return m_dops; }

private:
    using VElementsByName = std::unordered_map<std::wstring_view, NODX201::VOdxElement*>;
    template <class Element>
    using VByName = std::unordered_map<std::wstring_view, Element*>;

    NODX201::VDopBase* Find(NODX201::VDopBaseLink& link) override;
    NODX201::VDopBase* FindDop(std::wstring_view shortName) const;
    NODX201::VDiagComm* FindDiagComm(std::wstring_view shortName) const;
    NODX201::VOdxElement* FindProtocol(std::wstring_view shortName);
    NODX201::VOdxElement* FindTable(std::wstring_view shortName);
    VServiceGraph& Services();

    /// For references to anything but the parameters of an ENV-DATA-DESC. Nothing where `Resolves` returns nothing.
    std::optional<NODX201::VOdxElement*> FindOne(NODX201::VLink& reference);

    /// The DIAG-COMM to which a reference to one of its parameters belongs; null when it does not resolve.
    NODX201::VDiagComm* DiagCommBeside(NODX201::VLink& reference) const;
    NODX201::VDiagComm* TargetOf(NODX201::VDiagCommLink& link) const;
    NODX201::VOdxElement* FindParam(NODX201::VDiagComm& diagComm, std::wstring_view shortName, bool isInput);
    VElementsByName ParamsOf(NODX201::VDiagComm& diagComm, bool isInput);

    NODX201::VDiagLayer& m_layer;
    std::vector<NODX201::VDiagComm*> m_diagComms;
    std::vector<NODX201::VDopBase*> m_dops;
    VByName<NODX201::VDiagComm> m_diagCommsByName;
    VByName<NODX201::VDopBase> m_dopsByName;

    // Filled when first asked for.
    std::optional<VElementsByName> m_protocols;
    std::optional<VElementsByName> m_tables;
    std::optional<VServiceGraph> m_services;
    std::map<std::pair<NODX201::VDiagComm*, bool>, VElementsByName> m_params; ///< output or input parameters
    std::vector<NODX201::VOdxElement*> m_targets;                             ///< of the latest call
};

/// The meaning of short names of DOPs in a MULTIPLE-ECU-JOB-SPEC itself: its dictionary.
class VNamesOfSpec {
public:
    explicit VNamesOfSpec(NMemory::VMemMultipleEcuJobSpec& spec);

    /// Null when it has no target, and for a reference to anything but a DOP. REQUIRES: a reference by short name.
    NODX201::VDopBase* Find(NODX201::VLink& reference) const;

private:
    std::unordered_map<std::wstring_view, NODX201::VDopBase*> m_dops;
};

} // namespace NCheck
