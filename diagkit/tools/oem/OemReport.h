// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <diagkit/model/Forward.h>
#include <diagkit/tools/oem/Manufacturer.h>

/// Why a database was attributed to a manufacturer, or was not. Names are texts of the library, valid as long as it is
/// loaded; elements belong to the model, valid as long as they exist there.

namespace NDIAGKIT {

/// Why a rule does not match. Texts are English and quote the contents of the database; long quotations are cut off.
struct VOemReason {
    std::wstring expected; ///< "the ID 'BV.Engine'"; "" for a rule that matches
    std::wstring found;    ///< what is there instead: "the ID 'BV_Engine'"; "" for a rule that matches
    NODX201::VOdxElement const* where = nullptr; ///< where it was found; null where the whole database is meant
};

/// A rule and its result, independent of the other rules.
struct VOemRuleReport {
    wchar_t const* name; ///< of the class: "VGmProtocolRule"
    bool matches;        ///< the result of this rule
    int list;            ///< 1, or 2 for the second list of a heuristic with two
    /// It does not match, and its heuristic does not either: this rule alone excludes the manufacturer, or one of its
    /// two lists. A plain `GetManufacturer` stops at the first such rule of a list.
    bool isDecisive = false;
    bool isVacuous = false; ///< it matches only because the database contains nothing that it looks at
    VOemReason reason{};    ///< why it does not match
};

/// A heuristic: the characteristics of one manufacturer's databases. It matches when all rules of one of its lists do.
struct VOemHeuristicReport {
    wchar_t const* name;               ///< of the class: "VGmHeuristic"
    VManufacturer manufacturer;        ///< whose characteristics it looks for
    bool matches;                      ///< the result of this heuristic
    int lists;                         ///< how many lists of rules it has: 1 or 2
    std::vector<VOemRuleReport> rules; ///< in the order in which they are evaluated
};

/// All heuristics in the order in which they are evaluated (ascending codes), and the result.
struct VOemReport {
    VManufacturer manufacturer;                  ///< what `GetManufacturer` returns
    std::vector<VOemHeuristicReport> heuristics; ///< in the order in which they are evaluated
};

} // namespace NDIAGKIT
