// SPDX-License-Identifier: Apache-2.0
#pragma once

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
};

class VImportRefCollection : public NODX201::VElementCollection<VMemImportRef> {};

/// What every kind of layer of this model has besides its contract.
class IMemLayer {
public:
    virtual VImportRefCollection& ImportRefCollection() = 0;
    /// A number that no other layer of the process ever has, though layers may come to stand where others were
    /// destroyed.
    virtual std::uint64_t GetLayerNumber() const = 0;

protected:
    IMemLayer() = default;
    ~IMemLayer() = default;
};

std::uint64_t NextLayerNumber(); ///< for a layer that is being made

} // namespace NMemory
