// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/Export.h>

namespace NODX201 {

/// `<?NAME CONTENT?>`
class DIAGKIT_EXPORT VProcessingInstruction {
public:
    virtual ~VProcessingInstruction();
    VProcessingInstruction(VProcessingInstruction const&) = delete;
    VProcessingInstruction& operator=(VProcessingInstruction const&) = delete;

    virtual wchar_t const* GetName() const = 0;    ///< the target
    virtual wchar_t const* GetContent() const = 0; ///< all that follows the white space after the target

protected:
    VProcessingInstruction() = default;
};

} // namespace NODX201
