// SPDX-License-Identifier: Apache-2.0

// Prints what is visible in a layer, through one view of each kind:
//
//     list_views FILE LAYER

#include <iostream>

#include <diagkit/Reader.h>
#include <diagkit/Toolkit.h>

void Print(NODX201::VOdxElement& element) {
    std::cout << "  " << NReader::ToUtf8(element.GetShortName()) << " of "
              << NReader::ToUtf8(NDIAGKIT::LayerOf(element)->GetShortName()) << '\n';
}

template <class View>
void PrintView(char const* what, View const& view) {
    std::cout << view.Count() << ' ' << what << '\n';
    for (auto& element : view) {
        Print(element);
    }
}

void PrintOutputParamCounts(NDIAGKIT::VDiagCommView const& diagComms) {
    std::cout << "output parameters\n";
    for (NODX201::VDiagComm& diagComm : diagComms) {
        auto const view = NDIAGKIT::MakeOutParamIfView(diagComm, NODX201::VSearchRange::Responses);
        std::cout << "  " << NReader::ToUtf8(diagComm.GetShortName()) << ": " << view->Count() << '\n';
    }
}

void PrintViews(NODX201::VDiagLayer& layer) {
    auto const diagComms = NDIAGKIT::MakeDiagCommView(layer);
    PrintView("DIAG-COMMs", *diagComms);
    PrintOutputParamCounts(*diagComms);
    PrintView("DIAG-VARIABLEs", *NDIAGKIT::MakeDiagVariableView(layer));
    PrintView("GLOBAL-NEG-RESPONSEs", *NDIAGKIT::MakeGlobalNegResponseView(layer));
    PrintView("DOPs", *NDIAGKIT::MakeDopView(layer));
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
    NODX201::VDiagLayer* const layer = NDIAGKIT::FindLayer(*result.database, NReader::FromUtf8(words[2]));
    if (layer == nullptr) {
        std::cerr << words[2] << ": no such layer\n";
        return 1;
    }
    PrintViews(*layer);
    return 0;
}
