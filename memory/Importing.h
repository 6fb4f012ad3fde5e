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

    /// Imports another layer from now on, for every reference that looks there.
    void SetReference(VReference const& reference) {
        VMemLink::SetReference(reference);
        Part().NoteChange();
    }

    bool HasDiagLayer() const { return FindById(); }
    NODX201::VDiagLayer& GetDiagLayer() { return Found(); }
};

class VImportRefCollection : public NODX201::VElementCollection<VMemImportRef> {};

/// An element that may hold IMPORT-REFS: every kind of layer.
class IImporting {
public:
    virtual VImportRefCollection& ImportRefCollection() = 0;

protected:
    IImporting() = default;
    ~IImporting() = default;
};

} // namespace NMemory
