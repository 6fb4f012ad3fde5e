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
/// A model that breaks a promise badly enough, such as by handing out what was destroyed, ends the program instead: run
/// the suite with sanitizers. `Reference.h` goes further: what must a model answer for one database that everybody has?

namespace NConformance {

/// One promise that is checked. Names are stable: `owner-contains-element`.
struct VCheck {
    wchar_t const* name;    ///< stable
    wchar_t const* promise; ///< in a sentence
};

/// All checks, in the order of docs/guide/own-model.md, those of `Reference.h` last. They live as long as the program.
std::vector<VCheck> const& Checks();

/// A promise that is not kept.
struct VViolation {
    std::wstring check;    ///< the name of the check
    std::wstring where;    ///< the element, as the path from the root, and the operation
    std::wstring expected; ///< what the promise says here
    std::wstring found;    ///< what the model did
};

/// `CHECK: WHERE: expected EXPECTED, found FOUND`
std::wstring ToText(VViolation const& violation);

/// What is checked. Nothing is owned; all must live while the checks run. The contract has no way from the root to
/// FLASH and MULTIPLE-ECU-JOB documents, so a model that has them names them.
struct VModel {
    NODX201::VOdx& odx;                                       ///< the root
    std::vector<NODX201::VFlash*> flashes{};                  ///< FLASH documents; none when empty
    std::vector<NODX201::VMultipleEcuJob*> multipleEcuJobs{}; ///< of all MULTIPLE-ECU-JOB-SPECs; none when empty
};

/// Walks everything that the contract reaches and asks everything twice. The violations come in the order of the walk,
/// those about links last; empty for a model that keeps its promises. Of each check only the first ten are told.
///
/// A reference is resolved in the layer that it stands in; a PARAM-SNREF with each DIAG-COMM of that layer.
std::vector<VViolation> CheckModel(VModel const& model);

} // namespace NConformance
