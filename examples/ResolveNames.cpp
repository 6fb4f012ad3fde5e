// SPDX-License-Identifier: Apache-2.0

// Prints for every layer of a database the meaning of a service's parameter there, by name and by its own link:
//
//     resolve_names FILE SERVICE PARAMETER

#include <iostream>
#include <string>

#include <diagkit/Reader.h>
#include <diagkit/Toolkit.h>

/// The VALUE parameter that the names mean in the layer; null when nothing of those names is visible there.
NODX201::VValue* FindParam(NODX201::VAbstractSnrefResolver& resolver, NODX201::VDiagLayer& layer,
                           std::wstring const& service, std::wstring const& param) {
    NODX201::VDiagComm* const diagComm = resolver.ResolveDiagCommSnref(service.c_str(), layer);
    if (diagComm == nullptr) {
        return nullptr;
    }
    NODX201::IOutParamIf* const found =
        resolver.ResolveOutParamIfSnref(param.c_str(), *diagComm, layer, NODX201::VSearchRange::RequestAndResponses);
    return found != nullptr && found->IsValue() ? dynamic_cast<NODX201::VValue*>(found) : nullptr;
}

/// The ID of its DOP. The link itself is used, which knows whether it refers by ID or by short name.
std::string DopOf(NODX201::VValue& param, NODX201::VDiagLayer& layer) {
    if (!param.HasDopBaseLink() || !param.GetDopBaseLink().HasDopBase(layer)) {
        return "no DOP";
    }
    return NReader::ToUtf8(param.GetDopBaseLink().GetDopBase().GetId());
}

int main(int count, char** words) {
    if (count != 4) {
        std::cerr << "usage: resolve_names FILE SERVICE PARAMETER\n";
        return 2;
    }
    NReader::VReadResult const result = NReader::ReadOdx({words[1]});
    if (result.database == nullptr) {
        std::cerr << words[1] << ": cannot be read\n";
        return 1;
    }
    NDIAGKIT::VOpResolveSnref resolver;
    for (NODX201::VDiagLayer* const layer : NDIAGKIT::LayersOf(*result.database)) {
        NODX201::VValue* const param =
            FindParam(resolver, *layer, NReader::FromUtf8(words[2]), NReader::FromUtf8(words[3]));
        std::string const meaning = param != nullptr ? DopOf(*param, *layer) : "not visible";
        std::cout << NReader::ToUtf8(layer->GetShortName()) << ": " << meaning << '\n';
    }
}
