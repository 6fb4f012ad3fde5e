// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <memory>

#include <diagkit/Export.h>
#include <diagkit/model/Forward.h>
#include <diagkit/tools/oem/OemReport.h>

namespace NDIAGKIT {

class VHeuristic;

/// Detects which manufacturer's tools wrote a database, by characteristics of its data: names of protocols and
/// communication parameters, team members, functional groups, processing instructions.
///
///     NDIAGKIT::VOemChecker checker;
///     NDIAGKIT::VManufacturer const manufacturer = checker.GetManufacturer(database.GetOdx());
///
/// There is one heuristic per manufacturer, two for BMW. The result is the manufacturer of the only one that matches;
/// `Unknown` when none does, or several. Deliberate: the two of BMW are counted like any others, so a database that has
/// both layouts is `Unknown` (OemCheckerTest.BothBmwLayoutsAtOnceAreUndetermined).
///
/// It reads the model, changes nothing and keeps nothing of it: a checker may be used again, for the same database or
/// another, and gives the same result as a new one. Missing elements only affect the results of the rules that look for
/// them; they are not reported. Not thread-safe, not even with one checker per thread: all checkers share the process's
/// buffer for text conversion.
class DIAGKIT_EXPORT VOemChecker {
public:
    VOemChecker();
    ~VOemChecker();
    VOemChecker(VOemChecker const&) = delete;
    VOemChecker& operator=(VOemChecker const&) = delete;

    /// Evaluates no more than necessary: in a heuristic up to the first rule that does not match, and no heuristic
    /// after the second one that matches.
    VManufacturer GetManufacturer(NODX201::VOdx& odx);

    /// The same result with its reasons: evaluates every rule of every heuristic. The report points to elements of the
    /// model.
    VOemReport Report(NODX201::VOdx& odx);

private:
    class VRun;
    using VRegistry = std::multimap<VManufacturer, VHeuristic*>;

    std::unique_ptr<VRegistry> mpRegistry; // contains what the current call registers; empty between calls
};

} // namespace NDIAGKIT
