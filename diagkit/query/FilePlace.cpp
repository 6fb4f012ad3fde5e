// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/FilePlace.h>

#include <diagkit/memory/Node.h>

namespace NQuery {

VFilePlace FilePlaceOf(NMemory::VDatabase const& database, NODX201::VOdxElement const& element) {
    auto const* const node = dynamic_cast<NMemory::VMemNode const*>(&element);
    if (node == nullptr || node->GetPosition().line == 0) {
        return {};
    }
    NMemory::VPosition const position = node->GetPosition();
    return {database.GetDocumentName(position), position.line, position.column};
}

} // namespace NQuery
