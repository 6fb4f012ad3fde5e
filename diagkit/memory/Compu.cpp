// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Compu.h>

namespace NMemory {

NODX201::ICompuScalesProgCodeChoice& VMemCompuInternalToPhys::GetCompuScalesProgCodeChoice() {
    if (m_compuScales != nullptr) {
        return m_compuScales->CompuScaleCollection();
    }
    return *m_progCode;
}

VMemCompuScales& VMemCompuInternalToPhys::MakeCompuScales() {
    m_progCode.reset();
    return MakeChild(m_compuScales, Inside());
}

VMemProgCode& VMemCompuInternalToPhys::MakeProgCode() {
    m_compuScales.reset();
    return MakeChild(m_progCode, Inside());
}

} // namespace NMemory
