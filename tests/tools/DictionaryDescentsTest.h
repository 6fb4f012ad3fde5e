// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "tools/TraverserTest.h"

namespace NTest {

/// The children of every kind that the dictionary traverser knows, and their order: one test per kind.
class DictionaryDescentsTest : public VTraverserTest {
protected:
    NMemory::VMemStructure& Structure(wchar_t const* name) { return m_dictionary.AddStructure(name); }

    NMemory::VMemDataObjectProp& Dop(wchar_t const* name) { return m_dictionary.AddDataObjectProp(name); }

    NMemory::VMemUnitSpec& UnitSpec() {
        return m_dictionary.HasUnitSpec() ? m_dictionary.GetUnitSpec() : m_dictionary.MakeUnitSpec();
    }

    NMemory::VMemUnit& Unit(wchar_t const* name) { return UnitSpec().AddUnit(name); }

    NMemory::VMemCompanyData& Company(wchar_t const* name) { return m_layer.AddCompanyData(name); }

    /// A positive response of a service.
    NMemory::VMemPosResponse& ResponseOf(NMemory::VMemDiagService& service) {
        NMemory::VMemPosResponse& response = m_layer.AddPosResponse(L"Response");
        service.AddPosResponseRef(response);
        return response;
    }
};

} // namespace NTest
