// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <diagkit/conformance/Conformance.h>

/// One small database that a model must be able to hold, and what it must answer then. It is `reference.odx-d`, beside
/// this header in the sources and in `share/diagkit/conformance` where diagkit is installed: five layers, one of each
/// kind, which inherit, override and exclude, and references of which some lead nowhere. A model loads it, or is filled
/// by hand with the same; `reference.txt` beside it are the answers.

namespace NConformance {

/// Everything that a model answers, a line each: `PATH Operation: answer`. First what the elements hold, in the order
/// of the walk, then where references lead, then what the toolkit's views make of it. Absent parts have no line. Where
/// the answer of a reference depends on the layer it is asked for, it has a line `PATH leads, in LAYER, to` for each
/// layer that sees something else than the one it stands in.
std::vector<std::wstring> AnswersOf(VModel const& model);

/// The answers for the reference database: the lines of `reference.txt`.
std::vector<std::wstring> const& ReferenceAnswers();

/// `CheckModel`, and a violation for every answer that is missing, not meant or another than for the reference
/// database. Those are all told.
std::vector<VViolation> CheckReference(VModel const& model);

} // namespace NConformance
