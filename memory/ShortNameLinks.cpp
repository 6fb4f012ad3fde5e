// SPDX-License-Identifier: Apache-2.0

// Links that may stand by short name: these ask the database's resolver in the context they are read in, every time,
// because the answer belongs to the context and not to the link.

#include <algorithm>
#include <utility>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/DiagCommLinks.h>
#include <diagkit/memory/DopLinks.h>
#include <diagkit/memory/Flash.h>
#include <diagkit/memory/Importing.h>
#include <diagkit/model/Layers.h>

namespace NMemory {
namespace {

/// An entry of DIAG-COMMS or DIAG-VARIABLES is part of the very view in which its short name would be looked up: it
/// takes an ID only, whatever reference it was given since.
bool IsEntryOfALayer(NODX201::VOdxElement const& link) {
    return dynamic_cast<NODX201::VDiagLayer const*>(link.GetOwner()) != nullptr;
}

} // namespace

bool VMemDiagCommLink::HasDiagComm(NODX201::VDiagLayer& layer) {
    wchar_t const* const shortName = Snref();
    if (shortName == nullptr) {
        return FindById(&IsDiagCommOfLayer);
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

void VSeveredLayers::Add(NODX201::VDiagLayer& layer) {
    m_numbers.insert(dynamic_cast<IMemLayer&>(layer).GetLayerNumber());
}

bool VSeveredLayers::Holds(NODX201::VDiagLayer& layer) const {
    auto const* const own = dynamic_cast<IMemLayer*>(&layer);
    return own != nullptr && m_numbers.count(own->GetLayerNumber()) != 0;
}

void VMemDopBaseLink::SeverIn(std::shared_ptr<VSeveredLayers const> layers) {
    if (m_severedIn == nullptr) {
        m_severedIn = std::make_unique<std::vector<std::shared_ptr<VSeveredLayers const>>>();
    }
    m_severedIn->push_back(std::move(layers));
}

bool VMemDopBaseLink::IsSeveredIn(NODX201::VDiagLayer& layer) const {
    return m_severedIn != nullptr && std::any_of(m_severedIn->begin(), m_severedIn->end(),
                                                 [&layer](auto const& layers) { return layers->Holds(layer); });
}

bool VMemDataObjectPropLink::HasDataObjectProp(NODX201::VDiagLayer& layer) {
    wchar_t const* const shortName = Snref();
    if (shortName == nullptr) {
        return FindById();
    }
    NODX201::VAbstractSnrefResolver* const resolver = GetDatabase().GetResolver();
    return Remember(resolver != nullptr ? resolver->ResolveDataObjectPropSnref(shortName, layer) : nullptr);
}

// A MULTIPLE-ECU-JOB is a DIAG-COMM by class, and a resolver has operations of their own for it.

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
