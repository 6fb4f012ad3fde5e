// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/InParamIfView.h>

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/Params.h>
#include <diagkit/tools/ListViewImpl.h>
#include <diagkit/tools/ResponseParams.h>

namespace NDIAGKIT {

wchar_t const* VInParamIfViewTraits::ShortNameOf(Element& param) {
    if (param.IsValue()) {
        auto const* const value = dynamic_cast<NODX201::VValue*>(&param);
        return value != nullptr ? value->GetShortName() : L"";
    }
    auto const* const inputParam = dynamic_cast<NODX201::VInputParam*>(&param);
    return inputParam != nullptr ? inputParam->GetShortName() : L"";
}

VInParamIfView::VInParamIfView() = default;

VInParamIfView::~VInParamIfView() = default;

VInParamIfView::VInParamIfView(NODX201::VDiagService& service) : VInParamIfView() {
    auto const take = [this](NODX201::VParam& param) {
        if (auto* const value = dynamic_cast<NODX201::VValue*>(&param)) {
            Append(*value);
        }
    };
    ForEachPosResponseParam(service, take);
    ForEachNegResponseParam(service, take);
}

VInParamIfView::VInParamIfView(NODX201::VSingleEcuJob& job) : VInParamIfView() {
    if (job.HasInputParamCollection()) {
        for (NODX201::VInputParam& param : job.InputParamCollection()) {
            Append(param);
        }
    }
}

VInParamIfView::VInParamIfView(NODX201::VMultipleEcuJob& job) : VInParamIfView() {
    if (job.HasInputParamCollection()) {
        for (NODX201::VInputParam& param : job.InputParamCollection()) {
            Append(param);
        }
    }
}

} // namespace NDIAGKIT
