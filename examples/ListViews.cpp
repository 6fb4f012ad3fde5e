// SPDX-License-Identifier: Apache-2.0

// Prints what is visible in a layer, through one view of each kind:
//
//     list_views FILE LAYER

#include <iostream>
#include <memory>

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Odx.h>
#include <diagkit/model/Responses.h>
#include <diagkit/reader/OdxReader.h>
#include <diagkit/reader/Utf8.h>
#include <diagkit/tools/Inheritance.h>
#include <diagkit/tools/OpBuildDiagCommView.h>
#include <diagkit/tools/OpBuildDiagVariableView.h>
#include <diagkit/tools/OpBuildDopView.h>
#include <diagkit/tools/OpBuildGlobalNegResponseView.h>
#include <diagkit/tools/OpBuildOutParamIfView.h>

void Print(NODX201::VOdxElement& element) {
    std::cout << "  " << NReader::ToUtf8(element.GetShortName()) << " of "
              << NReader::ToUtf8(NDIAGKIT::LayerOf(element)->GetShortName()) << '\n';
}

template <class View>
void PrintView(char const* what, View& view) {
    std::cout << view.Count() << ' ' << what << '\n';
    for (auto& element : view) {
        Print(element);
    }
}

/// The builders of parameter views look at no layer, so there is nothing to do in these.
class VParamViewBuilder : public NDIAGKIT::VOpBuildOutParamIfView {
    void VisitBaseVariant(NODX201::VBaseVariant&) override {}
    void VisitProtocol(NODX201::VProtocol&) override {}
    void VisitFunctionalGroup(NODX201::VFunctionalGroup&) override {}
    void VisitEcuVariant(NODX201::VEcuVariant&) override {}
    void VisitEcuSharedData(NODX201::VEcuSharedData&) override {}
};

void PrintOutputParamCounts(NDIAGKIT::VDiagCommView& diagComms) {
    std::cout << "output parameters\n";
    for (NODX201::VDiagComm& diagComm : diagComms) {
        VParamViewBuilder builder;
        std::unique_ptr<NDIAGKIT::VOutParamIfView> const view(
            builder.CreateOutParamIfView(diagComm, NODX201::VSearchRange::Responses));
        std::cout << "  " << NReader::ToUtf8(diagComm.GetShortName()) << ": " << view->Count() << '\n';
    }
}

void PrintViews(NODX201::VDiagLayer& layer) {
    NDIAGKIT::VOpBuildDiagCommView diagCommBuilder;
    NDIAGKIT::VDiagCommView& diagComms = *diagCommBuilder.CreateDiagCommView(layer);
    PrintView("DIAG-COMMs", diagComms);
    PrintOutputParamCounts(diagComms);
    diagCommBuilder.DestroyDiagCommView(diagComms);

    NDIAGKIT::VOpBuildDiagVariableView variableBuilder;
    NDIAGKIT::VDiagVariableView& variables = *variableBuilder.CreateDiagVariableView(layer);
    PrintView("DIAG-VARIABLEs", variables);
    variableBuilder.DestroyDiagVariableView(variables);

    NDIAGKIT::VOpBuildGlobalNegResponseView responseBuilder;
    NDIAGKIT::VGlobalNegResponseView& responses = *responseBuilder.CreateGlobalNegResponseView(layer);
    PrintView("GLOBAL-NEG-RESPONSEs", responses);
    responseBuilder.DestroyGlobalNegResponseView(responses);

    NDIAGKIT::VOpBuildDopView dopBuilder;
    NDIAGKIT::VDopView& dops = *dopBuilder.CreateDopView(layer);
    PrintView("DOPs", dops);
    dopBuilder.DestroyDopView(dops);
}

int main(int count, char** words) {
    if (count != 3) {
        std::cerr << "usage: list_views FILE LAYER\n";
        return 2;
    }
    NReader::VReadResult const result = NReader::ReadOdx({words[1]});
    if (result.database == nullptr) {
        std::cerr << words[1] << ": cannot be read\n";
        return 1;
    }
    for (NODX201::VDiagLayerContainer& container : result.database->GetOdx().DiagLayerContainerCollection()) {
        for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
            if (NReader::ToUtf8(layer.GetShortName()) == words[2]) {
                PrintViews(layer);
                return 0;
            }
        }
    }
    std::cerr << words[2] << ": no such layer\n";
    return 1;
}
