// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <diagkit/query/Diff.h>

namespace NTest {

/// A result as text: a line for each layer, view, change and detail, indented by level.
///
///     L changed
///       diag-comms
///         S changed
///           REQUEST/PARAM[P]/BYTE-POSITION: 1 -> 2
std::string InPrint(NQuery::VDiff const& diff);

/// The same with the sides exchanged and the lines of each level sorted, to be compared with `Sorted`.
std::string Mirrored(NQuery::VDiff const& diff);
std::string Sorted(NQuery::VDiff const& diff);

} // namespace NTest
