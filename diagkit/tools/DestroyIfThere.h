// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace NDIAGKIT {

/// Destroys the object at an address; does nothing for a null address, also where it is that of `this` or of a
/// reference. Compilers assume that those are not null and would remove the check; they assume nothing about an address
/// that is read from a volatile variable.
template <class Object>
void DestroyIfThere(Object* object) {
    Object* const volatile address = object;
    delete address;
}

} // namespace NDIAGKIT
