// SPDX-License-Identifier: Apache-2.0
#include "MakeNestedParams.h"

#include <string>
#include <utility>
#include <vector>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/Dops.h>
#include <diagkit/memory/Layers.h>

namespace NBench {

struct VNestedParams::VMade {
    explicit VMade(std::size_t count) : left(count) {
        NMemory::VMemPosResponse& response = layer.AddPosResponse(L"Response");
        service.AddPosResponseRef(response);
        std::vector<NMemory::VMemValue*> level = AddParams(response);
        for (int depth = 1; left > 0; ++depth) {
            std::vector<NMemory::VMemValue*> next;
            for (NMemory::VMemValue* const param : level) {
                NMemory::VMemStructure& structure = dictionary.AddStructure(L"Structure");
                Lead(*param, structure, depth);
                for (NMemory::VMemValue* const nested : AddParams(structure)) {
                    next.push_back(nested);
                }
            }
            level = std::move(next);
        }
        for (NMemory::VMemValue* const leaf : level) {
            leaf->SetDopBaseLink(simple);
        }
    }

    template <class Owner>
    std::vector<NMemory::VMemValue*> AddParams(Owner& owner) {
        std::vector<NMemory::VMemValue*> params;
        for (int number = 0; number < 10 && left > 0; ++number, --left) {
            params.push_back(&owner.AddValue((L"Param_" + std::to_wstring(left)).c_str()));
        }
        return params;
    }

    void Lead(NMemory::VMemValue& param, NMemory::VMemStructure& structure, int depth) {
        if (depth == 2) {
            NMemory::VMemEndOfPduField& field = dictionary.AddEndOfPduField(L"Field");
            field.SetBasicStructureRef(structure);
            param.SetDopBaseLink(field);
        } else if (depth == 3) {
            NMemory::VMemMux& mux = dictionary.AddMux(L"Mux");
            mux.AddCase(L"Case").SetStructureRef(structure);
            param.SetDopBaseLink(mux);
        } else {
            param.SetDopBaseLink(structure);
        }
    }

    std::size_t left;
    NMemory::VDatabase database;
    NMemory::VMemEcuVariant& layer = database.AddDiagLayerContainer(L"Container").AddEcuVariant(L"Layer");
    NMemory::VMemDiagService& service = layer.AddDiagService(L"Service");
    NMemory::VMemDiagDataDictionarySpec& dictionary = layer.MakeDiagDataDictionarySpec();
    NMemory::VMemDataObjectProp& simple = dictionary.AddDataObjectProp(L"Simple");
};

VNestedParams::VNestedParams(std::size_t count) : m_made(std::make_unique<VMade>(count)) {}

VNestedParams::~VNestedParams() = default;

NODX201::VDiagLayer& VNestedParams::Layer() { return m_made->layer; }

NODX201::VDiagService& VNestedParams::Service() { return m_made->service; }

} // namespace NBench
