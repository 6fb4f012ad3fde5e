// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/EcuMemConnector.h>

/// Flash data.

namespace NMemory {

/// FLASH
class VMemFlash final : public VWithCompanyDatas<VWithAdminData<VMemIdent<NODX201::VFlash, Tag::Flash>>> {
public:
    using VWithCompanyDatas::VWithCompanyDatas;

    bool HasEcuMemCollection() const override { return m_ecuMem.IsPresent(); }
    NODX201::VEcuMemCollection& EcuMemCollection() override { return m_ecuMem.Get(); } ///< ECU-MEMS
    VMemCollection<NODX201::VEcuMemCollection>& MakeEcuMemCollection() { return m_ecuMem.Make(); }
    VMemEcuMem& AddEcuMem(wchar_t const* shortName) { return AddNamed<VMemEcuMem>(m_ecuMem, Inside(), shortName); }

    VEcuMemConnectorCollection& EcuMemConnectorCollection() { return m_ecuMemConnector.Get(); } ///< ECU-MEM-CONNECTORS
    VMemCollection<VEcuMemConnectorCollection>& MakeEcuMemConnectorCollection() { return m_ecuMemConnector.Make(); }
    VMemEcuMemConnector& AddEcuMemConnector(wchar_t const* shortName) {
        return AddNamed<VMemEcuMemConnector>(m_ecuMemConnector, Inside(), shortName);
    }

private:
    VMemMany<NODX201::VEcuMemCollection> m_ecuMem;
    VMemMany<VEcuMemConnectorCollection> m_ecuMemConnector;
};

} // namespace NMemory
