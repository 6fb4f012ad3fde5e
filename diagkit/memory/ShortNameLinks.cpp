// SPDX-License-Identifier: Apache-2.0

// Links that may be by short name: these use the database's resolver in the context in which they are read, every time,
// because the result depends on the context and not only on the link.

#include <algorithm>
#include <atomic>
#include <utility>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/References.h>
#include <diagkit/model/Flash.h>

namespace NMemory {
namespace {

/// An entry of DIAG-COMMS or DIAG-VARIABLES is part of the view in which its short name would be looked up: it accepts
/// only an ID, whatever reference it was given since.
bool IsEntryOfALayer(NODX201::VOdxElement const& link) {
    return dynamic_cast<NODX201::VDiagLayer const*>(link.GetOwner()) != nullptr;
}

} // namespace

bool VMemDiagCommLink::HasDiagComm(NODX201::VDiagLayer& layer) {
    wchar_t const* const shortName = Snref();
    if (shortName == nullptr) {
        return FindById();
    }
    NODX201::VAbstractSnrefResolver* const resolver = IsEntryOfALayer(*this) ? nullptr : GetDatabase().GetResolver();
    return Remember(resolver != nullptr ? resolver->ResolveDiagCommSnref(shortName, layer) : nullptr);
}

bool VMemDiagVariableLink::HasDiagVariable(NODX201::VDiagLayer& layer) {
    wchar_t const* const shortName = Snref();
    if (shortName == nullptr) {
        return FindById();
    }
    NODX201::VAbstractSnrefResolver* const resolver = IsEntryOfALayer(*this) ? nullptr : GetDatabase().GetResolver();
    return Remember(resolver != nullptr ? resolver->ResolveDiagVariableSnref(shortName, layer) : nullptr);
}

bool VMemDopBaseLink::HasDopBase(NODX201::VDiagLayer& layer) {
    wchar_t const* const shortName = Snref();
    if (shortName == nullptr) {
        return FindById();
    }
    NODX201::VAbstractSnrefResolver* const resolver = GetDatabase().GetResolver();
    bool const canAsk = resolver != nullptr && !IsSeveredIn(layer);
    return Remember(canAsk ? resolver->ResolveDopBaseSnref(shortName, layer) : nullptr);
}

namespace {

std::atomic<std::uint64_t> numberOfGroups{0}; // of all databases, which threads may fill in parallel

} // namespace

VSeveredLayers::VSeveredLayers() : m_number(++numberOfGroups) {}

void VSeveredLayers::Add(NODX201::VDiagLayer& layer) {
    dynamic_cast<IMemLayer&>(layer).SeveredGroups().push_back(m_number);
}

void VMemDopBaseLink::SeverIn(VSeveredLayers const& layers) {
    if (m_severedIn == nullptr) {
        m_severedIn = std::make_unique<std::vector<std::uint64_t>>();
    }
    // Nearly always at the end: links are severed in one group after the other.
    m_severedIn->insert(std::upper_bound(m_severedIn->begin(), m_severedIn->end(), layers.GetNumber()),
                        layers.GetNumber());
}

bool VMemDopBaseLink::IsSeveredIn(NODX201::VDiagLayer& layer) const {
    auto* const own = m_severedIn != nullptr ? dynamic_cast<IMemLayer*>(&layer) : nullptr;
    if (own == nullptr) {
        return false;
    }
    std::vector<std::uint64_t> const& groups = own->SeveredGroups();
    return std::any_of(groups.begin(), groups.end(), [this](std::uint64_t group) {
        return std::binary_search(m_severedIn->begin(), m_severedIn->end(), group);
    });
}

bool VMemDataObjectPropLink::HasDataObjectProp(NODX201::VDiagLayer& layer) {
    wchar_t const* const shortName = Snref();
    if (shortName == nullptr) {
        return FindById();
    }
    NODX201::VAbstractSnrefResolver* const resolver = GetDatabase().GetResolver();
    return Remember(resolver != nullptr ? resolver->ResolveDataObjectPropSnref(shortName, layer) : nullptr);
}

// A MULTIPLE-ECU-JOB is a DIAG-COMM by class, and a resolver has separate operations for it.

bool VMemOutParamIfLink::HasOutParamIf(NODX201::VDiagComm& diagComm, NODX201::VDiagLayer& layer,
                                       NODX201::VSearchRange range) {
    wchar_t const* const shortName = Snref();
    NODX201::VAbstractSnrefResolver* const resolver = GetDatabase().GetResolver();
    if (shortName == nullptr || resolver == nullptr) {
        return Remember(nullptr);
    }
    if (auto* const job = dynamic_cast<NODX201::VMultipleEcuJob*>(&diagComm)) {
        return Remember(resolver->ResolveOutParamIfSnref(shortName, *job, layer));
    }
    return Remember(resolver->ResolveOutParamIfSnref(shortName, diagComm, layer, range));
}

bool VMemInParamIfLink::HasInParamIf(NODX201::VDiagComm& diagComm) {
    wchar_t const* const shortName = Snref();
    NODX201::VAbstractSnrefResolver* const resolver = GetDatabase().GetResolver();
    if (shortName == nullptr || resolver == nullptr) {
        return Remember(nullptr);
    }
    if (auto* const job = dynamic_cast<NODX201::VMultipleEcuJob*>(&diagComm)) {
        return Remember(resolver->ResolveInParamIfSnref(shortName, *job));
    }
    return Remember(resolver->ResolveInParamIfSnref(shortName, diagComm));
}

bool VMemProtocolSnref::HasProtocol(NODX201::VDiagLayerContainer& container) {
    wchar_t const* const shortName = Snref();
    NODX201::VAbstractSnrefResolver* const resolver = GetDatabase().GetResolver();
    bool const canAsk = shortName != nullptr && resolver != nullptr;
    return Remember(canAsk ? resolver->ResolveProtocolSnref(shortName, container) : nullptr);
}

bool VMemSessionLink::HasSession(NODX201::VFlash& flash) {
    wchar_t const* const shortName = Snref();
    NODX201::VAbstractSnrefResolver* const resolver = GetDatabase().GetResolver();
    bool const canAsk = shortName != nullptr && resolver != nullptr;
    return Remember(canAsk ? resolver->ResolveSessionSnref(shortName, flash) : nullptr);
}

bool VMemIdentIfLink::HasIdentIf(NODX201::VFlash& flash) {
    wchar_t const* const shortName = Snref();
    NODX201::VAbstractSnrefResolver* const resolver = GetDatabase().GetResolver();
    bool const canAsk = shortName != nullptr && resolver != nullptr;
    return Remember(canAsk ? resolver->ResolveIdentIfSnref(shortName, flash) : nullptr);
}

} // namespace NMemory
