// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <vector>

#include <diagkit/memory/Collection.h>
#include <diagkit/memory/Link.h>
#include <diagkit/model/Layers.h>

namespace NMemory {

/// IMPORT-REF: a layer whose IDs can be referenced as if they stood in the own layer. It inherits nothing.
class VMemImportRef final : public VMemLink<NODX201::VLink, NODX201::VOdxTagEnum::ImportRef, NODX201::VDiagLayer> {
public:
    using VMemLink::VMemLink;

    bool HasDiagLayer() const { return FindById(); }
    NODX201::VDiagLayer& GetDiagLayer() { return Found(); }

    /// Names another layer from now on, in which PARENT-REFs may find theirs.
    void SetReference(VReference const& reference) {
        VMemLink::SetReference(reference);
        NoteRedirection();
    }
};

class VImportRefCollection : public NODX201::VElementCollection<VMemImportRef> {};

/// What every kind of layer of this model has besides its contract.
class IMemLayer {
public:
    virtual VImportRefCollection& ImportRefCollection() = 0;
    virtual std::vector<std::uint64_t>& SeveredGroups() = 0; ///< by number; see `VSeveredLayers`

protected:
    IMemLayer() = default;
    ~IMemLayer() = default;
};

} // namespace NMemory
