// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Children.h>

#include <stdexcept>

namespace NMemory {

void RequireById(VReference const& reference) {
    if (reference.IsByShortName()) {
        throw std::invalid_argument("DIAG-COMMS and DIAG-VARIABLES take references by ID only");
    }
}

VMemStrings::VMemStringCollection::~VMemStringCollection() {
    for (std::wstring const* const text : m_elements) {
        delete text;
    }
}

void VMemStrings::VMemStringCollection::Add(wchar_t const* text) {
    auto copy = std::make_unique<std::wstring const>(text);
    m_elements.push_back(copy.get());
    copy.release();
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

void VMemStrings::Add(wchar_t const* text) {
    Make();
    m_collection->Add(text);
}

} // namespace NMemory
