// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <diagkit/conformance/Conformance.h>

/// One small database that every model must be able to represent, and the results it must give. It is
/// `reference.odx-d`, next to this header in the sources and in `share/diagkit/conformance` where diagkit is installed:
/// five layers, one of each kind, which inherit, override and exclude, and references of which some have no target. A
/// model loads it, or is filled by hand with the same contents; `reference.txt` next to it contains the results.

namespace NConformance {

/// Everything that a model returns, one per line: `PATH Operation: answer`. First the contents of the elements, in the
/// order of the walk, then the targets of references, then the results of the toolkit's views. Absent parts have no
/// line. Where the target of a reference depends on the layer given, there is a line `PATH leads, in LAYER, to` for
/// each layer with another target than the layer that contains the reference.
std::vector<std::wstring> AnswersOf(VModel const& model);

/// The answers for the reference database: the lines of `reference.txt`.
std::vector<std::wstring> const& ReferenceAnswers();

/// `CheckModel`, and a violation for every answer that is missing, unexpected or different from that for the reference
/// database. All of those are reported.
std::vector<VViolation> CheckReference(VModel const& model);

} // namespace NConformance
