// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <diagkit/tools/oem/Manufacturer.h>

/// Why a database was taken for a manufacturer's, or was not. Names are texts of the library, valid as long as it is
/// loaded.

namespace NDIAGKIT {

/// A rule and its own answer, whatever the others say.
struct VOemRuleReport {
    wchar_t const* name; ///< of the class: "VGmProtocolRule"
    bool matches;        ///< its own answer
    int list;            ///< 1, or 2 for the second list of a heuristic with two
    /// The first rule of its list that does not match: the one because of which the list does not. The others behind
    /// it may or may not match; a bare `GetManufacturer` does not ask them.
    bool isDecisive;
};

/// A heuristic: a manufacturer's habits. It matches when all rules of one of its lists do.
struct VOemHeuristicReport {
    wchar_t const* name;               ///< of the class: "VGmHeuristic"
    VManufacturer manufacturer;        ///< whose habits it looks for
    bool matches;                      ///< its own answer
    int lists;                         ///< how many lists of rules it has: 1 or 2
    std::vector<VOemRuleReport> rules; ///< in the order in which they are asked
};

/// All heuristics in the order in which they are asked (ascending codes), and what follows from them.
struct VOemReport {
    VManufacturer manufacturer;                  ///< what `GetManufacturer` answers
    std::vector<VOemHeuristicReport> heuristics; ///< in the order in which they are asked
};

} // namespace NDIAGKIT
