// SPDX-License-Identifier: Apache-2.0
#include "MakeWalk.h"

#include <string>
#include <vector>

namespace NBench {
namespace {

constexpr std::size_t kDops = 200;
constexpr std::size_t kStructures = 50;
constexpr std::size_t kVisitsOfAService = 133; // with what it leads to, and its request and response once more
constexpr std::size_t kVisitsOfADop = 16;      // with what belongs to it

std::wstring Named(wchar_t const* prefix, std::size_t number) { return prefix + std::to_wstring(number); }

/// The parts of a layer that its services use in common.
struct VDictionary {
    std::vector<NMemory::VMemDataObjectProp*> dops;
    std::vector<NMemory::VMemStructure*> structures;
};

void FillDop(NMemory::VMemDataObjectProp& dop, NMemory::VMemUnit& unit) {
    dop.MakeStandardLengthType();
    dop.MakePhysicalType();
    dop.SetUnitRef(unit);
    auto& scales = dop.MakeCompuMethod().MakeCompuInternalToPhys().MakeCompuScales();
    for (int number = 0; number < 2; ++number) {
        auto& scale = scales.AddCompuScale();
        scale.MakeLowerLimit(L"0");
        scale.MakeUpperLimit(L"1");
        scale.MakeCompuConst().MakeVt().SetText(L"text");
    }
}

VDictionary MakeDictionary(NMemory::VMemDiagDataDictionarySpec& spec, std::size_t dops, std::size_t structures) {
    VDictionary dictionary;
    NMemory::VMemUnitSpec& unitSpec = spec.MakeUnitSpec();
    NMemory::VMemUnit& unit = unitSpec.AddUnit(L"Unit");
    unit.SetPhysicalDimensionRef(unitSpec.AddPhysicalDimension(L"Dimension"));
    for (std::size_t number = 0; number < dops; ++number) {
        NMemory::VMemDataObjectProp& dop = spec.AddDataObjectProp(Named(L"Dop", number).c_str());
        FillDop(dop, unit);
        dictionary.dops.push_back(&dop);
    }
    for (std::size_t number = 0; number < structures; ++number) {
        NMemory::VMemStructure& structure = spec.AddStructure(Named(L"Structure", number).c_str());
        structure.AddValue(L"First").SetDopBaseLink(*dictionary.dops[number]);
        structure.AddReserved(L"Gap").MakeStandardLengthType();
        dictionary.structures.push_back(&structure);
    }
    return dictionary;
}

void AddService(NMemory::VMemEcuVariant& layer, VDictionary const& dictionary, NMemory::VMemFunctClass& functClass,
                std::size_t number) {
    NMemory::VMemDiagService& service = layer.AddDiagService(Named(L"Service", number).c_str());
    service.MakeAudience();
    service.AddFunctClassRef(functClass);
    NMemory::VMemRequest& request = layer.AddRequest(Named(L"Request", number).c_str());
    service.SetRequestRef(request);
    request.AddCodedConst(L"ServiceId").MakeStandardLengthType();
    request.AddValue(L"Argument").SetDopBaseLink(*dictionary.dops[number % kDops]);
    NMemory::VMemPosResponse& response = layer.AddPosResponse(Named(L"Response", number).c_str());
    service.AddPosResponseRef(response);
    response.AddCodedConst(L"ServiceId").MakeStandardLengthType();
    response.AddMatchingRequestParam(L"Echo");
    response.AddValue(L"Result").SetDopBaseLink(*dictionary.dops[(number + 1) % kDops]);
    response.AddValue(L"Record").SetDopBaseLink(*dictionary.structures[number % kStructures]);
}

} // namespace

VServiceLayer::VServiceLayer(std::size_t visits) {
    layer = &database.AddDiagLayerContainer(L"Walk").AddEcuVariant(L"Ecu");
    VDictionary const dictionary = MakeDictionary(layer->MakeDiagDataDictionarySpec(), kDops, kStructures);
    NMemory::VMemFunctClass& functClass = layer->AddFunctClass(L"Functions");
    for (std::size_t number = 0; number * kVisitsOfAService < visits; ++number) {
        AddService(*layer, dictionary, functClass, number);
    }
}

VDictionaryLayer::VDictionaryLayer(std::size_t visits) {
    layer = &database.AddDiagLayerContainer(L"Walk").AddEcuVariant(L"Ecu");
    std::size_t const dops = visits / kVisitsOfADop + 1;
    MakeDictionary(layer->MakeDiagDataDictionarySpec(), dops, dops / 4);
}

} // namespace NBench
