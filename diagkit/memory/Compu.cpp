// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Compu.h>

namespace NMemory {

VMemMade<VMemLimit> NewLimit(VPlace const& place, Tag tag, wchar_t const* text) {
    auto limit = NewWithText<VMemLimit>(place, text);
    limit->SetOdxTag(tag);
    return limit;
}

NODX201::ICompuScalesProgCodeChoice& VMemScalesOrProgCode::Get() const {
    if (m_scales.Has()) {
        return m_scales.Get().CompuScaleCollection();
    }
    return m_progCode.Get();
}

VMemCompuScales& VMemScalesOrProgCode::MakeScales(VPlace const& place) {
    VMemCompuScales& scales = m_scales.Make(place);
    scales.MakeCompuScaleCollection(); // the contract knows it by its collection, even an empty one
    m_progCode.Remove();
    return scales;
}

VMemProgCode& VMemScalesOrProgCode::MakeProgCode(VPlace const& place) {
    VMemProgCode& progCode = m_progCode.Make(place);
    m_scales.Remove();
    return progCode;
}

} // namespace NMemory
