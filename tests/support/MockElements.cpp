// SPDX-License-Identifier: Apache-2.0
#include "support/MockElements.h"

#include <stdexcept>

namespace NTest {

void NotExpected(char const* operation) { throw std::logic_error(operation); }

VMockDiagService::~VMockDiagService() {
    if (m_isDestroyed != nullptr) {
        *m_isDestroyed = true;
    }
}

bool VMockDiagCommLink::HasDiagComm(NODX201::VDiagLayer& layer) {
    m_askedFor.push_back(&layer);
    return m_target != nullptr;
}

NODX201::VDiagComm& VMockDiagCommLink::GetDiagComm() {
    if (m_target == nullptr) {
        NotExpected("GetDiagComm");
    }
    return *m_target;
}

NODX201::VEcuVariantPatternCollection& VMockEcuVariant::EcuVariantPatternCollection() {
    NotExpected("EcuVariantPatternCollection");
}

bool VMockProtocolRef::HasProtocol() const {
    Note(L"target");
    return false;
}

bool VMockFunctionalGroupRef::HasFunctionalGroup() const {
    Note(L"target");
    return false;
}

bool VMockBaseVariantRef::HasBaseVariant() const {
    Note(L"target");
    return false;
}

bool VMockEcuSharedDataRef::HasEcuSharedData() const {
    Note(L"target");
    return false;
}

} // namespace NTest
