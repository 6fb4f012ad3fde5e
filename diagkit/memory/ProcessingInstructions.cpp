// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/ProcessingInstructions.h>

namespace NMemory {

VMemProcessingInstructions::VOwning::~VOwning() {
    for (NODX201::VProcessingInstruction* const instruction : m_elements) {
        delete instruction;
    }
}

void VMemProcessingInstructions::VOwning::Add(wchar_t const* name, wchar_t const* content) {
    auto instruction = std::make_unique<VMemProcessingInstruction>(name, content);
    m_elements.push_back(instruction.get());
    instruction.release();
}

NODX201::VProcessingInstructionCollection& VMemProcessingInstructions::Get() const {
    static VOwning empty;
    return m_collection != nullptr ? *m_collection : empty;
}

void VMemProcessingInstructions::Add(wchar_t const* name, wchar_t const* content) {
    if (m_collection == nullptr) {
        m_collection = std::make_unique<VOwning>();
    }
    m_collection->Add(name, content);
}

} // namespace NMemory
