// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/tools/oem/OemCheckContext.h>

namespace NDIAGKIT {

/// One characteristic of a manufacturer's databases. Rules keep no state between evaluations. A rule that does not
/// match gives the reason where it finds out, and one that had nothing to look at reports that (`Reasons.h`).
class VHeuristicRule {
public:
    explicit VHeuristicRule(VOemCheckContext* context) : mpContext(context) {}
    virtual ~VHeuristicRule();
    VHeuristicRule(VHeuristicRule const&) = delete;
    VHeuristicRule& operator=(VHeuristicRule const&) = delete;

    virtual bool Matches() = 0;                 ///< whether the database has the characteristic
    virtual wchar_t const* GetName() const = 0; ///< of the class, for reports

protected:
    VOemCheckContext* mpContext;
};

} // namespace NDIAGKIT
