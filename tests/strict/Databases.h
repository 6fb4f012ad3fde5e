// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/Flash.h>
#include <diagkit/memory/Odx.h>
#include <diagkit/reader/OdxReader.h>

namespace NTest {

/// A database and the elements with which uses of the toolkit start.
struct VLoaded {
    explicit VLoaded(std::vector<std::string> const& files) {
        NReader::VReadOptions options;
        options.keepsElements = true;
        result = NReader::ReadOdx(files, options);
        for (NODX201::VDiagLayerContainer& container : result.database->GetOdx().DiagLayerContainerCollection()) {
            containers.push_back(&container);
            for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
                layers.push_back(&layer);
            }
        }
    }

    /// The elements of a class, in document order.
    template <class Class>
    std::vector<Class*> All() const {
        std::vector<Class*> found;
        for (NODX201::VOdxElement* const element : result.elements) {
            if (auto* const x = dynamic_cast<Class*>(element)) {
                found.push_back(x);
            }
        }
        return found;
    }

    NReader::VReadResult result;
    std::vector<NODX201::VDiagLayerContainer*> containers;
    std::vector<NODX201::VDiagLayer*> layers;
};

/// The sample, and the reference database of the conformance suite, with additions that both lack.
inline std::vector<std::unique_ptr<VLoaded>> SmallDatabases() {
    std::vector<std::unique_ptr<VLoaded>> databases;
    for (char const* const file : {DIAGKIT_SAMPLES "/WiperDatabase.pdx", DIAGKIT_CONFORMANCE "/reference.odx-d"}) {
        databases.push_back(std::make_unique<VLoaded>(std::vector<std::string>{file}));
        for (auto* const layer : databases.back()->All<NMemory::VMemEcuVariant>()) {
            layer->MakeDynDefinedSpec();
        }
        for (auto* const response : databases.back()->All<NMemory::VMemPosResponse>()) {
            response->MakeAdminData();
        }
    }
    return databases;
}

/// Documents as each manufacturer writes them.
inline std::vector<std::unique_ptr<VLoaded>> DatabasesOfManufacturers() {
    std::string const folder = DIAGKIT_OEM_DATABASES "/";
    std::vector<std::unique_ptr<VLoaded>> databases;
    for (char const* const name : {"AudiVw", "Bmw", "Daimler", "Fiat", "Gm", "Pag", "PagTp20"}) {
        databases.push_back(
            std::make_unique<VLoaded>(std::vector<std::string>{folder + name + ".odx-c", folder + name + ".odx-d"}));
    }
    for (char const* const name : {"BmwNew", "Claas", "Psa"}) {
        databases.push_back(std::make_unique<VLoaded>(std::vector<std::string>{folder + name + ".odx-d"}));
    }
    return databases;
}

/// Lines of text, each once and in order.
inline std::string Lines(std::set<std::string> const& lines) {
    std::string text;
    for (std::string const& line : lines) {
        text += line + '\n';
    }
    return text;
}

} // namespace NTest
