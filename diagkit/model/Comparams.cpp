// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/Comparams.h>

// Destructors out of line, so that each class has its vtable and type information in one place.

namespace NODX201 {

VComparamSpec::~VComparamSpec() = default;
VComparam::~VComparam() = default;
VComparamSpecLink::~VComparamSpecLink() = default;
VComparamRef::~VComparamRef() = default;

} // namespace NODX201
