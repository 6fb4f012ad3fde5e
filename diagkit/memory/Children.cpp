// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Children.h>

#include <stdexcept>

#include <diagkit/memory/AdminData.h>

namespace NMemory {

void RequireById(VReference const& reference) {
    if (reference.IsByShortName()) {
        throw std::invalid_argument("DIAG-COMMS and DIAG-VARIABLES allow references by ID only");
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

VMemSdg& VMemSdgContents::AddSdg(VPlace const& place) { return m_contents.Add(New<VMemSdg>(place)); }

VMemSd& VMemSdgContents::AddSd(VPlace const& place, wchar_t const* text) {
    return m_contents.Add(NewWithText<VMemSd>(place, text));
}

VMemSdgContents::~VMemSdgContents() {
    if (!m_contents.IsPresent()) {
        return;
    }
    auto& dying = m_contents.Make();
    for (auto position = dying.Close(); position != dying.EndPosition(); ++position) {
        auto* const nested = dynamic_cast<VMemSdg*>(*position);
        if (nested != nullptr && nested->m_contents.m_contents.IsPresent()) {
            dying.TakeDying(nested->m_contents.m_contents.Make());
        }
    }
}

} // namespace NMemory
