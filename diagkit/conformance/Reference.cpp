// SPDX-License-Identifier: Apache-2.0
#include <diagkit/conformance/Reference.h>

#include <memory>
#include <utility>

#include <diagkit/conformance/ReferenceText.h>
#include <diagkit/conformance/Walk.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Odx.h>
#include <diagkit/model/Responses.h>
#include <diagkit/tools/DiagCommView.h>
#include <diagkit/tools/DiagVariableView.h>
#include <diagkit/tools/GlobalNegResponseView.h>
#include <diagkit/tools/InParamIfView.h>
#include <diagkit/tools/OpBuildDiagCommView.h>
#include <diagkit/tools/OpBuildDiagVariableView.h>
#include <diagkit/tools/OpBuildDopView.h>
#include <diagkit/tools/OpBuildGlobalNegResponseView.h>
#include <diagkit/tools/OpBuildProtocolView.h>
#include <diagkit/tools/OutParamIfView.h>
#include <diagkit/tools/ProtocolView.h>

namespace NConformance {
namespace {

using namespace NODX201;

/// Records the results of the toolkit's views for a model that was walked.
class VViewAnswers {
public:
    VViewAnswers(VWalk const& walk, std::vector<std::wstring>& answers) : m_walk(walk), m_answers(answers) {}

    void AnswerContainer(VDiagLayerContainer& container) {
        AnswerBuilt(container, L"protocols", NDIAGKIT::VOpBuildProtocolView().CreateProtocolView(container));
    }

    void AnswerLayer(VDiagLayer& layer) {
        using namespace NDIAGKIT;
        AnswerBuilt(layer, L"visible DIAG-COMMs", VOpBuildDiagCommView().CreateDiagCommView(layer));
        AnswerBuilt(layer, L"visible DIAG-VARIABLEs", VOpBuildDiagVariableView().CreateDiagVariableView(layer));
        AnswerBuilt(layer, L"visible DOPs", VOpBuildDopView().CreateDopView(layer));
        AnswerBuilt(layer, L"visible GLOBAL-NEG-RESPONSEs",
                    VOpBuildGlobalNegResponseView().CreateGlobalNegResponseView(layer));
        for (IDiagCommProxy& proxy : layer.DiagCommProxyCollection()) {
            if (auto* const service = dynamic_cast<VDiagService*>(&proxy); service != nullptr) {
                VInParamIfView inParams(*service);
                Answer(*service, L"input parameters", inParams);
                VOutParamIfView outParams(*service, VSearchRange::RequestAndResponses);
                Answer(*service, L"output parameters", outParams);
            }
        }
    }

private:
    template <class View>
    void AnswerBuilt(VOdxElement& element, wchar_t const* what, View* built) {
        std::unique_ptr<View> const view(built);
        Answer(element, what, *view);
    }

    template <class View>
    void Answer(VOdxElement& element, wchar_t const* what, View& view) {
        std::wstring entries;
        for (auto& entry : view) {
            entries += (entries.empty() ? L"" : L", ") + m_walk.PathOf(*ChildOf(entry).element);
        }
        m_answers.push_back(m_walk.PathOf(element) + L" " + what + L": " + (entries.empty() ? L"none" : entries));
    }

    VWalk const& m_walk;
    std::vector<std::wstring>& m_answers;
};

std::vector<std::wstring> Walk(VModel const& model, VViolations& violations) {
    std::vector<std::wstring> answers;
    VWalk walk(violations, &answers);
    walk.WalkModel(model);
    VViewAnswers views(walk, answers);
    for (VDiagLayerContainer& container : model.odx.DiagLayerContainerCollection()) {
        views.AnswerContainer(container);
    }
    for (VDiagLayer* const layer : walk.Layers()) {
        views.AnswerLayer(*layer);
    }
    return answers;
}

std::vector<std::wstring> LinesOf(std::wstring const& text) {
    std::vector<std::wstring> lines;
    for (std::size_t begin = 0, end = 0; (end = text.find(L'\n', begin)) != std::wstring::npos; begin = end + 1) {
        if (end != begin && text[begin] != L'#') {
            lines.push_back(text.substr(begin, end - begin));
        }
    }
    return lines;
}

} // namespace

std::vector<std::wstring> AnswersOf(VModel const& model) {
    VViolations violations;
    return Walk(model, violations);
}

std::vector<std::wstring> const& ReferenceAnswers() {
    static std::vector<std::wstring> const answers = LinesOf(kReferenceText);
    return answers;
}

std::vector<VViolation> CheckModel(VModel const& model) {
    VViolations violations;
    VWalk(violations, nullptr).WalkModel(model);
    return violations.Take();
}

std::vector<VViolation> CheckReference(VModel const& model) {
    VViolations violations;
    std::vector<std::wstring> const answers = Walk(model, violations);
    std::vector<VViolation> all = violations.Take();
    for (VViolation& violation : CompareAnswers(ReferenceAnswers(), answers)) {
        all.push_back(std::move(violation));
    }
    return all;
}

} // namespace NConformance
