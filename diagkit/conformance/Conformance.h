// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <diagkit/model/Forward.h>

/// For authors of a model: whether it keeps the promises of the contract (`diagkit/model/`) that the toolkit relies on.
///
///     for (NConformance::VViolation const& violation : NConformance::CheckModel({myModel.GetOdx()})) {
///         std::wcerr << NConformance::ToText(violation) << L'\n';
///     }
///
/// A model that breaks a promise badly enough, such as by returning destroyed objects, crashes the program instead: run
/// the suite with sanitizers. `Reference.h` goes further: it compares a model's results for one known database.

namespace NConformance {

/// One promise that is checked. Names are stable: `owner-contains-element`.
struct VCheck {
    wchar_t const* name;    ///< stable
    wchar_t const* promise; ///< in one sentence
};

/// All checks, in the order of docs/guide/own-model.md, those of `Reference.h` last. They are valid as long as the
/// program runs.
std::vector<VCheck> const& Checks();

/// A promise that is not kept.
struct VViolation {
    std::wstring check;    ///< the name of the check
    std::wstring where;    ///< the element, as the path from the root, and the operation
    std::wstring expected; ///< what the promise requires here
    std::wstring found;    ///< what the model did
};

/// `CHECK: WHERE: expected EXPECTED, found FOUND`
std::wstring ToText(VViolation const& violation);

/// The input of the checks. Nothing is owned; all must live while the checks run. The contract has no way from the root
/// to FLASH and MULTIPLE-ECU-JOB documents, so they are listed here.
struct VModel {
    NODX201::VOdx& odx;                                       ///< the root
    std::vector<NODX201::VFlash*> flashes{};                  ///< FLASH documents; none when empty
    std::vector<NODX201::VMultipleEcuJob*> multipleEcuJobs{}; ///< of all MULTIPLE-ECU-JOB-SPECs; none when empty
};

/// Walks everything that the contract reaches and calls everything twice. The violations come in the order of the walk,
/// those about links last; empty for a model that keeps its promises. Only the first ten of each check are reported.
///
/// A reference is resolved in the layer that contains it; a PARAM-SNREF with each DIAG-COMM of that layer.
std::vector<VViolation> CheckModel(VModel const& model);

} // namespace NConformance
