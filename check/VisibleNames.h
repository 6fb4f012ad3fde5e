// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include <diagkit/check/Containment.h>
#include <diagkit/check/Views.h>
#include <diagkit/memory/Odx.h>

namespace NCheck {

using VNamesByElement = std::unordered_map<NODX201::VReferencable const*, VNames>;

/// What short names mean in one layer. The views of the layer live as long as this object.
class VVisibleNames {
public:
    explicit VVisibleNames(NODX201::VDiagLayer& layer);

    /// Whether a reference by short name, which stands in an element visible in the layer, names something. Nothing for
    /// a reference to a parameter of a DIAG-COMM that is not there itself, and for the one of an ENV-DATA-DESC to which
    /// no DIAG-SERVICE of the layer leads: jobs make their answers themselves.
    std::optional<bool> Resolves(NODX201::VLink& reference);

    std::vector<NODX201::VDiagComm*> const& DiagComms() const { return m_diagComms; }
    std::vector<NODX201::VDopBase*> const& Dops() const { return m_dops; }

private:
    template <class Element>
    using VByName = std::unordered_map<std::wstring_view, Element*>;

    NODX201::VDopBase* FindDop(std::wstring_view shortName) const;
    NODX201::VDiagComm* FindDiagComm(std::wstring_view shortName) const;
    bool HasProtocol(std::wstring_view shortName);
    bool HasTable(std::wstring_view shortName);
    NReader::VShortNameTargets Targets() const;
    std::optional<bool> HasParamFor(NODX201::VEnvDataDesc& envDataDesc, std::wstring_view shortName);

    /// The DIAG-COMM that stands beside a reference to one of its parameters; null when it does not resolve.
    NODX201::VDiagComm* DiagCommBeside(NODX201::VLink& reference) const;
    NODX201::VDiagComm* TargetOf(NODX201::VDiagCommLink& link) const;
    bool HasParam(NODX201::VDiagComm& diagComm, std::wstring_view shortName, bool isInput) const;

    NODX201::VDiagLayer& m_layer;
    std::vector<NODX201::VDiagComm*> m_diagComms;
    std::vector<NODX201::VDopBase*> m_dops;
    VByName<NODX201::VDiagComm> m_diagCommsByName;
    VByName<NODX201::VDopBase> m_dopsByName;

    // Filled when first asked for.
    std::vector<NODX201::VProtocol*> m_protocols;
    std::optional<VNames> m_tables;
    std::optional<VNamesByElement> m_params; ///< of the DIAG-SERVICEs that lead to an ENV-DATA-DESC
};

/// Whether a reference to a DOP by short name, which stands in a MULTIPLE-ECU-JOB-SPEC, names one in its dictionary.
bool ResolvesInSpec(NODX201::VLink& reference, NMemory::VMemMultipleEcuJobSpec& spec);

} // namespace NCheck
