// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <tuple>

#include <diagkit/util/CheckedCast.h>

namespace NDIAGKIT {

/// The alternative behind an interface when its type test says so and it is one; null otherwise. The test alone is not
/// sufficient: classes that are not alternatives can implement an interface.
template <class Alternative, class Interface>
Alternative* As(bool isAlternative, Interface& choice) {
    return isAlternative ? dynamic_cast<Alternative*>(&choice) : nullptr;
}

/// The same by a cast of `casts`, a tuple with a `VCheckedCast` from the interface to the alternative.
template <class Alternative, class Casts, class Interface>
Alternative* As(Casts& casts, bool isAlternative, Interface& choice) {
    return isAlternative ? std::get<NPavonaUtil::VCheckedCast<Alternative, Interface>>(casts)(choice) : nullptr;
}

} // namespace NDIAGKIT
