// SPDX-License-Identifier: Apache-2.0

// Where the parameters of a service's messages stand in their bytes, as a layer means them:
//
//     lay_out_message FILE LAYER SERVICE

#include <iostream>
#include <string>

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Odx.h>
#include <diagkit/query/DopValues.h>
#include <diagkit/query/MessageLayout.h>
#include <diagkit/reader/OdxReader.h>
#include <diagkit/reader/Utf8.h>
#include <diagkit/tools/OpResolveSnref.h>

std::string Text(wchar_t const* text) { return NReader::ToUtf8(text); }

/// "3", or "3 or more" where it depends on what was sent.
std::string Text(NQuery::VExtent const& extent) {
    return std::to_string(extent.least) + (extent.IsFixed() ? "" : " or more");
}

void PrintRow(NQuery::VLayoutRow const& row) {
    std::cout << std::string(2 + 2 * row.depth, ' ') << Text(row.element->GetShortName()) << ": byte "
              << Text(row.bytePosition) << ", bits " << Text(row.bitLength);
    if (*row.constant != L'\0') {
        std::cout << ", always " << Text(row.constant);
    }
    if (row.dop != nullptr) {
        NQuery::VDopValues const values = NQuery::ValuesOf(*row.dop);
        std::string const unit = Text(values.unitName);
        std::cout << ", " << Text(row.dop->GetShortName()) << (unit.empty() ? "" : " in " + unit);
    }
    if (row.gap == NQuery::VLayoutGap::Broken) {
        std::cout << ", leads nowhere";
    }
    std::cout << '\n';
}

void PrintMessages(NODX201::VDiagService& service, NODX201::VDiagLayer& layer) {
    for (NQuery::VServiceMessage const& message : NQuery::MessagesOf(service)) {
        if (message.message == nullptr) {
            continue;
        }
        NQuery::VMessageLayout const layout = NQuery::LayoutOf(*message.message, &layer);
        std::cout << Text(message.message->GetShortName()) << ", bits " << Text(layout.bitLength) << '\n';
        for (NQuery::VLayoutRow const& row : layout.rows) {
            PrintRow(row);
        }
    }
}

int main(int count, char** words) {
    if (count != 4) {
        std::cerr << "usage: lay_out_message FILE LAYER SERVICE\n";
        return 2;
    }
    NReader::VReadResult const result = NReader::ReadOdx({words[1]});
    if (result.database == nullptr) {
        std::cerr << words[1] << ": cannot be read\n";
        return 1;
    }
    NDIAGKIT::VOpResolveSnref resolver;
    for (NODX201::VDiagLayerContainer& container : result.database->GetOdx().DiagLayerContainerCollection()) {
        for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
            if (Text(layer.GetShortName()) != words[2]) {
                continue;
            }
            NODX201::VDiagComm* const diagComm =
                resolver.ResolveDiagCommSnref(NReader::FromUtf8(words[3]).c_str(), layer);
            if (auto* const service = dynamic_cast<NODX201::VDiagService*>(diagComm); service != nullptr) {
                PrintMessages(*service, layer);
                return 0;
            }
        }
    }
    std::cerr << words[2] << " has no service " << words[3] << '\n';
    return 1;
}
