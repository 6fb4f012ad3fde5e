// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/check/Findings.h>

/// The topics, each in the source of its name. They report in no particular order, but the same one on every run.

namespace NCheck {

void CheckShortNames(VChecked const& checked, VFindings& findings);
void CheckDocrefs(VChecked const& checked, VFindings& findings);
void CheckLayerReferences(VChecked const& checked, VFindings& findings);
void CheckExclusions(VChecked const& checked, VFindings& findings);
void CheckAmbiguousNames(VChecked const& checked, VFindings& findings);
void CheckShortNameReferences(VChecked const& checked, VFindings& findings);
void CheckCycles(VChecked const& checked, VFindings& findings);

} // namespace NCheck
