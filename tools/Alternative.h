// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace NDIAGKIT {

/// The alternative behind an interface when its type test says so and it is one; null otherwise.
template <class Alternative, class Interface>
Alternative* As(bool isAlternative, Interface& choice) {
    return isAlternative ? dynamic_cast<Alternative*>(&choice) : nullptr;
}

/// The same for type tests that are final in the contract's own classes, so that no model can answer otherwise: the
/// answer is trusted. Finding the type once more would cost as much as half a visit.
template <class Alternative, class Interface>
Alternative* TrustedAs(bool isAlternative, Interface& choice) {
    return isAlternative ? static_cast<Alternative*>(&choice) : nullptr;
}

} // namespace NDIAGKIT
