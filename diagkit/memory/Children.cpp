// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Children.h>

#include <stdexcept>

#include <diagkit/memory/Sdgs.h>

namespace NMemory {

void RequireById(VReference const& reference) {
    if (reference.IsByShortName()) {
        throw std::invalid_argument("DIAG-COMMS and DIAG-VARIABLES take references by ID only");
    }
}

NODX201::VStringCollection& VMemStrings::Get() const {
    static VMemStringCollection empty;
    return m_collection != nullptr ? *m_collection : empty;
}

void VMemStrings::Make() {
    if (m_collection == nullptr) {
        m_collection = std::make_unique<VMemStringCollection>();
    }
}

void VMemStrings::Add(VPart& part, wchar_t const* text) {
    Make();
    m_collection->Add(part.StoreString(text));
}

VMemSdg::~VMemSdg() {
    if (!m_sdgSdChoice.IsPresent()) {
        return;
    }
    auto& dying = m_sdgSdChoice.Make();
    for (auto position = dying.Close(); position != dying.EndPosition(); ++position) {
        auto* const nested = dynamic_cast<VMemSdg*>(*position);
        if (nested != nullptr && nested->m_sdgSdChoice.IsPresent()) {
            dying.TakeDying(nested->m_sdgSdChoice.Make());
        }
    }
}

} // namespace NMemory
