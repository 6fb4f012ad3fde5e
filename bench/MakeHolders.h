// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <memory>

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/Flash.h>
#include <diagkit/model/Layers.h>

namespace NBench {

/// The holders of the small views, each with the given number of entries, which have the same names in every holder.
/// Only the contract is visible here, as in MakeNestedParams.h.
class VHolders {
public:
    explicit VHolders(std::size_t count);
    ~VHolders();

    NODX201::VDiagLayerContainer& Container(); ///< of the PROTOCOLs and of the layer
    NODX201::VDiagLayer& Layer();
    NODX201::VDiagService&
    Service();                     ///< half of its VALUE parameters are of a positive response, half of a negative one
    NODX201::VSingleEcuJob& Job(); ///< that many INPUT-PARAMs, and as many OUTPUT-PARAMs
    NODX201::VFlash& Flash();      ///< in ten ECU-MEMs, with an EXPECTED-IDENT in every session
    wchar_t const* MiddleName() const;

private:
    struct VMade;
    std::unique_ptr<VMade> m_made;
};

} // namespace NBench
