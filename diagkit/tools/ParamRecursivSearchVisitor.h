// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <diagkit/tools/OutParamIfView.h>
#include <diagkit/tools/ParamWalk.h>

namespace NDIAGKIT {

/// Looks for a VALUE parameter of one short name below parameters. Once it has found one, every further walk does
/// nothing.
class DIAGKIT_NO_EXPORT VOutParamIfView::VParamRecursivSearchVisitor : public VParamWalk {
public:
    VParamRecursivSearchVisitor(wchar_t const* shortName, NODX201::VDiagLayer& layer);
    ~VParamRecursivSearchVisitor() override;

    NODX201::VValue* GetResult() const { return m_result; } ///< null until found

protected:
    void VisitValue(NODX201::VValue& param) override;

private:
    std::wstring m_shortName;
    NODX201::VValue* m_result = nullptr;
    NODX201::VDiagLayer& m_layer;
    VDopsOfLayer m_dopsOfLayer;
};

} // namespace NDIAGKIT
