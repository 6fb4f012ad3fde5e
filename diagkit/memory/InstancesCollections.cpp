// SPDX-License-Identifier: Apache-2.0

// The code of the collections, compiled only here.

#include <diagkit/memory/Flash.h>
#include <diagkit/memory/Layers.h>
#include <diagkit/memory/NewImpl.h>
#include <diagkit/memory/Odx.h>

namespace NMemory {

#define ODX_COLLECTION_CLASS(name, entry) template class VMemMany<name>;
#include <diagkit/model/facts/Collections.def>
template class VMemMany<NODX201::VCompuScaleCollection>;
template class VMemMany<VImportRefCollection>;

} // namespace NMemory
