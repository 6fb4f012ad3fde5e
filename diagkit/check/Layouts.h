// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

#include <diagkit/check/VisibleNames.h>
#include <diagkit/model/Params.h>

namespace NCheck {

/// A length or a position; nothing where it differs from message to message, or the data does not say it.
using VLength = std::optional<std::uint64_t>;

/// Where a parameter lies in its request, response or STRUCTURE.
struct VPlacedParam {
    NODX201::VParam* param;
    NODX201::VDopBase* dop; ///< of its value; null where it has none or none is found
    VLength byte;           ///< of its first byte, from the start of what it stands in
    std::uint64_t bit;      ///< in the byte, from the least significant one
    VLength bits;           ///< how many it takes
    bool isHighLow;         ///< the most significant byte comes first
    bool isMasked;          ///< a BIT-MASK leaves some of the bits to others
    bool isPlaced;          ///< it has a BYTE-POSITION

    VLength End() const; ///< the byte behind its last one
};

/// The parameters of a request, response or STRUCTURE, in their order.
struct VLayout {
    std::vector<VPlacedParam> params;
    VLength bytes;           ///< of all of them
    bool needsNames = false; ///< short names decide on lengths, and the layer on short names
};

/// Positions and lengths of parameters. A parameter without BYTE-POSITION begins at the byte behind the one before it.
/// What has been asked is remembered.
class VLayouts {
public:
    /// `names` tells what short names of DOPs mean; without it, what they name has no known length.
    explicit VLayouts(VVisibleNames* names = nullptr) : m_names(names) {}

    /// Of a request, a response or a basic structure; empty for anything else.
    VLayout LayoutOf(NODX201::VReferencable& container);

private:
    struct VSize {
        VLength bytes;
        bool needsNames = false;
    };

    VSize SizeOf(NODX201::VBasicStructure& structure);
    VLayout Place(NODX201::VReferencable& container);
    std::vector<NODX201::VBasicStructure*> UnknownIn(NODX201::VReferencable& container);
    void Explore(NODX201::VReferencable& container);

    VVisibleNames* m_names;
    std::unordered_map<NODX201::VReferencable*, VSize> m_sizes; // of STRUCTUREs and ENV-DATAs
};

} // namespace NCheck
