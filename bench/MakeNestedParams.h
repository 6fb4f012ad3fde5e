// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <memory>

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/Layers.h>

namespace NBench {

/// A service whose one positive response leads to the given number of VALUE parameters, ten at a time: through
/// structures, on the second level through fields, on the third through multiplexers; the last ones have a simple DOP.
///
/// Only the contract is visible here: in a walk that is compiled together with the memory model the compiler would
/// resolve virtual calls, which it cannot do for a program over the contract.
class VNestedParams {
public:
    explicit VNestedParams(std::size_t count);
    ~VNestedParams();

    NODX201::VDiagLayer& Layer();
    NODX201::VDiagService& Service();

private:
    struct VMade;
    std::unique_ptr<VMade> m_made;
};

} // namespace NBench
