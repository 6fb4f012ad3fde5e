// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Compu.h>

namespace NMemory {

VMade<VMemLimit> NewLimit(VPlace const& place, Tag tag, wchar_t const* text) {
    auto limit = NewWithText<VMemLimit>(place, text);
    limit->SetOdxTag(tag);
    return limit;
}

NODX201::ICompuScalesProgCodeChoice& VMemScalesOrProgCode::Get() const {
    if (m_scales.Has()) {
        return m_scales.Get().MakeCompuScaleCollection();
    }
    return m_progCode.Get();
}

VMemCompuScales& VMemScalesOrProgCode::MakeScales(VPlace const& place) {
    m_progCode.Remove();
    return m_scales.Make(place);
}

VMemProgCode& VMemScalesOrProgCode::MakeProgCode(VPlace const& place) {
    m_scales.Remove();
    return m_progCode.Make(place);
}

} // namespace NMemory
