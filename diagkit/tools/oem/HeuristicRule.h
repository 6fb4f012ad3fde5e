// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/tools/oem/OemCheckContext.h>

namespace NDIAGKIT {

/// One habit of a manufacturer. Rules keep nothing from one evaluation to the next. One that does not match says why
/// where it finds that out, one that had nothing to look at says so (`Reasons.h`).
class VHeuristicRule {
public:
    explicit VHeuristicRule(VOemCheckContext* context) : mpContext(context) {}
    virtual ~VHeuristicRule();
    VHeuristicRule(VHeuristicRule const&) = delete;
    VHeuristicRule& operator=(VHeuristicRule const&) = delete;

    virtual bool Matches() = 0;                 ///< whether the database shows the habit
    virtual wchar_t const* GetName() const = 0; ///< of the class, for reports

protected:
    VOemCheckContext* mpContext;
};

} // namespace NDIAGKIT
