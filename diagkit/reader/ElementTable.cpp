// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/ElementTable.h>

#include <algorithm>
#include <stdexcept>

#include <diagkit/reader/Loader.h>

namespace NReader {

int VElementType::FindRow(std::string_view name, int from) const {
    auto const start = names.begin() + from;
    if (auto const found = std::find(start, names.end(), name); found != names.end()) {
        return static_cast<int>(found - names.begin());
    }
    auto const found = std::find(names.begin(), start, name);
    return found != start ? static_cast<int>(found - names.begin()) : -1;
}

VElementType Indexed(VElementType type) {
    bool const hasHighChoice = std::any_of(type.rows.begin(), type.rows.end(), [](VRow const& row) {
        return row.choice < 0 || static_cast<std::size_t>(row.choice) >= kMostRows;
    });
    if (type.rows.size() > kMostRows || hasHighChoice) {
        throw std::length_error("a table of an element class has too many rows or choices");
    }
    for (VRow const& row : type.rows) {
        type.names.emplace_back(row.name);
    }
    return type;
}

VElementType const& LinkType() {
    static VElementType const type;
    return type;
}

void NotePosition(VLoader& loader, NMemory::VMemNode& node) { node.SetPosition(loader.Position()); }

void NoteElement(VLoader& loader, NMemory::VMemNode& node, NODX201::VOdxElement& element) {
    NotePosition(loader, node);
    if (loader.Reading().keepsElements) {
        loader.Reading().elements.push_back(&element);
    }
}

void NoteLink(VLoader& loader, NMemory::VMemNode& node, NODX201::VLink& link, VLinkQuestions const& questions) {
    loader.Reading().links.push_back({&node, &link, &questions});
}

void NoteUntypedParentRef(VLoader& loader, NMemory::IMemParentRef& parentRef,
                          NMemory::IMemParentRef& (*changeKind)(NMemory::IMemParentRef& parentRef,
                                                                NMemory::VParentRefKind kind)) {
    loader.Reading().parentRefs.push_back({&parentRef, changeKind});
}

NMemory::VReference IdReference(VLoader& loader, VAttributes const& attributes) {
    return loader.ReadIdReference(attributes);
}

NMemory::VReference ShortNameReference(VLoader& loader, VAttributes const& attributes) {
    return loader.ReadShortNameReference(attributes);
}

} // namespace NReader
