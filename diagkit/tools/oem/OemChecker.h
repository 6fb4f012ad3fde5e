// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <memory>

#include <diagkit/Export.h>
#include <diagkit/model/Forward.h>
#include <diagkit/tools/oem/OemReport.h>

namespace NDIAGKIT {

class VHeuristic;

/// Tells which manufacturer's tools wrote a database, by the habits that are visible in it: names of protocols and
/// communication parameters, team members, functional groups, processing instructions.
///
///     NDIAGKIT::VOemChecker checker;
///     NDIAGKIT::VManufacturer const manufacturer = checker.GetManufacturer(database.GetOdx());
///
/// There is a heuristic for each manufacturer, two for BMW. The answer is the manufacturer of the only one that
/// matches; `Unknown` when none does, or several. Deliberate: the two of BMW are counted like any others, so a database
/// that has both layouts is `Unknown` (OemCheckerTest.BothBmwLayoutsAtOnceAreUndetermined).
///
/// It reads the model, changes nothing and keeps nothing of it: a checker may be asked again, about the same database
/// or another, and answers as a new one would. Whatever is missing in a database answers the rules that look for it;
/// nothing is reported. Not for two threads at once, not even with a checker each: they share the process's buffer for
/// text conversion.
class DIAGKIT_EXPORT VOemChecker {
public:
    VOemChecker();
    ~VOemChecker();
    VOemChecker(VOemChecker const&) = delete;
    VOemChecker& operator=(VOemChecker const&) = delete;

    /// Asks no more than it takes: in a heuristic up to the first rule that does not match, and no heuristic after the
    /// second one that matches.
    VManufacturer GetManufacturer(NODX201::VOdx& odx);

    /// The same answer with its reasons: asks every rule of every heuristic. It points at elements of the model.
    VOemReport Report(NODX201::VOdx& odx);

private:
    class VRun;
    using VRegistry = std::multimap<VManufacturer, VHeuristic*>;

    std::unique_ptr<VRegistry> mpRegistry; // what a call registers is its own, and gone at its end
};

} // namespace NDIAGKIT
