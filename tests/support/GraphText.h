// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "support/GraphPlan.h"

/// Layer graphs as text, one line per layer:
///
///     KIND NAME : OWN OWN ... < PARENT PARENT ...
///
///     esd   Lib : Reset! Ident
///     prot  Uds : Read ->Lib.Ident   < Lib
///     base  Bv  : Start              < Uds-Reset Lib
///     ecu   Ecu                      < Bv
///
/// KIND is `esd`, `prot`, `func`, `base` or `ecu`.
///
/// OWN is an entry of DIAG-COMMS: `Read` a service, `Reset!` a single-ECU job, `->Lib.Ident` a DIAG-COMM-REF. `""` is
/// the empty name. The ID of an entry is LAYER.NAME; a second entry of one name gets LAYER.NAME#2 and so on. A colon
/// without entries makes an empty DIAG-COMMS, no colon makes none; likewise `<` and PARENT-REFS.
///
/// PARENT is a layer of the graph, with `-Name` for every NOT-INHERITED-DIAG-COMM by short name and `-@Lib.Name` for
/// one by ID; `-` alone makes an empty NOT-INHERITED-DIAG-COMMS. The kind of the reference is that of the target.
/// Another kind is given before a colon: `prot:Lib` is a PROTOCOL-REF to a layer that is not a PROTOCOL, `esd:Gone` has
/// no target, `any:Lib` has no known kind.

namespace NTest {

/// Throws std::invalid_argument when the text is not a graph.
VGraphPlan ParseGraph(std::wstring const& text);

/// The text of a plan, for messages: parsing it again gives the same plan.
std::wstring GraphText(VGraphPlan const& plan);

} // namespace NTest
