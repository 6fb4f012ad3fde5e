// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace NDIAGKIT {

/// Destroys what an address leads to, and does nothing for a null one, also where it is that of `this` or of a
/// reference. Compilers take those for not null and would leave out the question; about an address that is read from a
/// volatile variable they know nothing.
template <class Object>
void DestroyIfThere(Object* object) {
    Object* const volatile address = object;
    delete address;
}

} // namespace NDIAGKIT
