// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// Changes of valid documents, made from numbers: the same number gives the same change everywhere.

namespace NTest {

/// Bytes of a document.
struct VRange {
    std::size_t start;
    std::size_t end;
};

struct VAttributePart {
    VRange range; ///< with the blank before it
    bool isRequired;
};

struct VElementPart {
    std::string name;
    std::size_t start;
    std::size_t headEnd; ///< after the start tag
    std::size_t tail;    ///< the end tag
    std::size_t end;
    int parent;      ///< index among the document's elements; -1 for the root
    bool isRequired; ///< at its place
    std::vector<VAttributePart> attributes{};
};

/// A valid document and its parts, in document order: ODX first, then its category.
struct VSampleDocument {
    std::string path;
    std::string bytes{};
    std::vector<VElementPart> elements{};
};

/// Reads what make_parts.py wrote, and the documents named there.
std::vector<VSampleDocument> ReadSampleDocuments(std::string const& partsPath);

enum class VMutationKind { DeleteElement, DuplicateElement, SwapElements, RenameElement, DeleteAttribute, FlipBytes };
inline constexpr int kMutationKinds = 6;

/// A changed document.
struct VMutation {
    VMutationKind kind;
    std::size_t document;          ///< index of the one that was changed
    std::size_t offset;            ///< of the change in that one
    std::string bytes;             ///< after the change
    bool isRequiredGone = false;   ///< something required by ODX is missing now
    bool isCategoryIntact = false; ///< ODX and the start of its category are unchanged
};

/// The mutation of a number; kinds and documents alternate.
VMutation Mutate(std::vector<VSampleDocument> const& documents, std::uint32_t number);

} // namespace NTest
