// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace NDIAGKIT {

/// The alternative behind an interface when its type test says so; null otherwise.
template <class Alternative, class Interface>
Alternative* As(bool isAlternative, Interface& choice) {
    return isAlternative ? dynamic_cast<Alternative*>(&choice) : nullptr;
}

} // namespace NDIAGKIT
