// SPDX-License-Identifier: Apache-2.0

// Says why a DIAG-COMM is visible in a layer, or why not, and what is left out of the layer:
//
//     explain_name FILE LAYER NAME

#include <iostream>
#include <string>

#include <diagkit/Query.h>
#include <diagkit/Reader.h>
#include <diagkit/Toolkit.h>

std::string Name(NODX201::VOdxElement const& element) { return NReader::ToUtf8(element.GetShortName()); }

/// "UdsOnCan by way of FrontWiper": where an element stands, and the layers between.
std::string Print(NDIAGKIT::VWay const& way) {
    std::string text = Name(*NDIAGKIT::LayerOf(*way.element));
    for (std::size_t step = 0; step + 1 < way.path.size(); ++step) {
        text += (step == 0 ? " by way of " : ", ") + Name(*way.path[step].layer.layer);
    }
    return text;
}

void ExplainName(NMemory::VDatabase& database, NODX201::VDiagLayer& layer, std::wstring const& name) {
    NQuery::VExplanation const explanation = NQuery::Explain(database, layer, NQuery::VInheritedKind::DiagComm, name);
    if (!explanation.visible.has_value()) {
        std::cout << "nothing is visible\n";
    }
    for (NDIAGKIT::VWay const& way : explanation.candidates) {
        switch (way.fate) {
        case NDIAGKIT::VFate::Visible:
            std::cout << "visible, from " << Print(way) << '\n';
            break;
        case NDIAGKIT::VFate::Hidden:
            std::cout << "hidden in " << Name(*way.at) << ", from " << Print(way) << '\n';
            break;
        default: { // excluded, or a PARENT-REF of a kind that no pass takes
            NQuery::VFilePlace const place = NQuery::FilePlaceOf(database, *way.decidedBy);
            std::cout << "stopped in " << Name(*way.at) << " by line " << place.line << ", from " << Print(way) << '\n';
        }
        }
    }
}

void PrintWhatIsLeftOut(NODX201::VDiagLayer& layer) {
    NQuery::VLayerView const view = NQuery::ViewOf(layer, NQuery::VInheritedKind::DiagComm);
    for (NQuery::VViewEntry const& entry : view.hidden) {
        std::cout << Name(*entry.element) << " of " << Name(entry.From()) << " is hidden by that of "
                  << Name(*NDIAGKIT::LayerOf(*entry.hiddenBy)) << '\n';
    }
    for (NQuery::VViewEntry const& entry : view.excluded) {
        std::cout << Name(*entry.element) << " of " << Name(entry.From()) << " is excluded\n";
    }
}

int main(int count, char** words) {
    if (count != 4) {
        std::cerr << "usage: explain_name FILE LAYER NAME\n";
        return 2;
    }
    NReader::VReadResult const result = NReader::ReadOdx({words[1]});
    if (result.database == nullptr) {
        std::cerr << words[1] << ": cannot be read\n";
        return 1;
    }
    NODX201::VDiagLayer* const layer = NDIAGKIT::FindLayer(*result.database, NReader::FromUtf8(words[2]));
    if (layer == nullptr) {
        std::cerr << "no layer has the short name " << words[2] << '\n';
        return 1;
    }
    ExplainName(*result.database, *layer, NReader::FromUtf8(words[3]));
    PrintWhatIsLeftOut(*layer);
    return 0;
}
