// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <diagkit/model/Forward.h>
#include <diagkit/tools/oem/Manufacturer.h>

/// Why a database was taken for a manufacturer's, or was not. Names are texts of the library, valid as long as it is
/// loaded; elements are the model's, valid as long as they stand there.

namespace NDIAGKIT {

/// Why a rule does not match. Texts are English and quote what the database holds, long quotations cut off.
struct VOemReason {
    std::wstring expected; ///< "the ID 'BV.Engine'"; "" for a rule that matches
    std::wstring found;    ///< what is there instead: "the ID 'BV_Engine'"; "" for a rule that matches
    NODX201::VOdxElement const* where = nullptr; ///< what it was found at; null where the whole database is meant
};

/// A rule and its own answer, whatever the others say.
struct VOemRuleReport {
    wchar_t const* name; ///< of the class: "VGmProtocolRule"
    bool matches;        ///< its own answer
    int list;            ///< 1, or 2 for the second list of a heuristic with two
    /// It does not match, and its heuristic does not either: this rule alone rules the manufacturer out, or one of his
    /// two lists. The first of a list is where a bare `GetManufacturer` stops, which asks none behind it.
    bool isDecisive = false;
    bool isVacuous = false; ///< it matches because the database holds nothing that it looks at, which says little
    VOemReason reason{};    ///< why it does not match
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
