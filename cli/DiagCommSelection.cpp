// SPDX-License-Identifier: Apache-2.0
#include <cli/DiagCommSelection.h>

#include <cli/ElementFinder.h>

namespace NCli {
namespace {

/// Calls `make` with the DIAG-COMM by its class: a MULTIPLE-ECU-JOB must never be treated as a single-ECU job.
template <class Make>
auto MakeFor(VDiagCommSelection const& selection, Make make) {
    if (selection.job != nullptr) {
        return make(*selection.job);
    }
    if (auto* const service = dynamic_cast<NODX201::VDiagService*>(selection.diagComm)) {
        return make(*service);
    }
    return make(dynamic_cast<NODX201::VSingleEcuJob&>(*selection.diagComm));
}

} // namespace

VDiagCommSelection SelectDiagComm(VArguments const& arguments, NMemory::VDatabase& database, VOutput const& output) {
    VDiagCommSelection selection;
    if (!arguments.layer.empty()) {
        selection.layer = FindLayer(database, arguments.layer, output);
        if (selection.layer == nullptr) {
            return selection;
        }
    }
    if (!arguments.job.empty()) {
        selection.job = FindJob(database, arguments.job, output);
        selection.diagComm = selection.job;
    } else {
        selection.diagComm = FindDiagComm(database, *selection.layer, arguments.diagComm, arguments.layer, output);
    }
    return selection;
}

std::unique_ptr<NDIAGKIT::VInParamIfView> InParamsOf(VDiagCommSelection const& selection) {
    return MakeFor(selection, [](auto& diagComm) { return std::make_unique<NDIAGKIT::VInParamIfView>(diagComm); });
}

std::unique_ptr<NDIAGKIT::VOutParamIfView> OutParamsOf(VDiagCommSelection const& selection, int range) {
    struct VMake {
        NODX201::VSearchRange range;
        using Made = std::unique_ptr<NDIAGKIT::VOutParamIfView>;
        Made operator()(NODX201::VDiagService& service) const {
            return std::make_unique<NDIAGKIT::VOutParamIfView>(service, range);
        }
        Made operator()(NODX201::VSingleEcuJob& job) const { return std::make_unique<NDIAGKIT::VOutParamIfView>(job); }
        Made operator()(NODX201::VMultipleEcuJob& job) const {
            return std::make_unique<NDIAGKIT::VOutParamIfView>(job);
        }
    };
    return MakeFor(selection, VMake{static_cast<NODX201::VSearchRange>(range)});
}

} // namespace NCli
