// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <istream>

#include <diagkit/tools/OpResolveSnref.h>

#include "Layers.h"

/// Root, containers, and the database that owns everything.

namespace NOwnModel {

/// The layers of a container: an object of the model, because it is what owns the layers.
class VLayerCollection : public VOwning<NODX201::VDiagLayerCollection> {
public:
    explicit VLayerCollection(NODX201::VOdxObject& container) : m_container(container) {}

    NODX201::VOdxObject* GetOwner() const override { return &m_container; }
    void AddRow(VRow const& row, VIndex& index);

private:
    NODX201::VOdxObject& m_container;
};

class VContainer : public VIdentified<NODX201::VDiagLayerContainer> {
public:
    explicit VContainer(VOrigin const& origin);

    VLayerCollection& DiagLayerCollection() override { return m_layers; }

private:
    VLayerCollection m_layers{*this};
};

class VInstruction : public NODX201::VProcessingInstruction {
public:
    explicit VInstruction(VRow const& row) : m_row(row) {}

    wchar_t const* GetName() const override { return m_row.name.c_str(); }
    wchar_t const* GetContent() const override { return m_row.text.c_str(); }

private:
    VRow const& m_row;
};

class VInstructions : public NODX201::VProcessingInstructionCollection {
public:
    void Add(VRow const& row);

private:
    std::vector<std::unique_ptr<VInstruction>> m_owned;
};

class VRoot : public VElement<NODX201::VOdx> {
public:
    explicit VRoot(VOrigin const& origin);

    VOwning<NODX201::VDiagLayerContainerCollection>& DiagLayerContainerCollection() override { return m_containers; }
    NODX201::VProcessingInstructionCollection& ProcessingInstructionCollection() override { return m_instructions; }

private:
    VOwning<NODX201::VDiagLayerContainerCollection> m_containers;
    VInstructions m_instructions;
};

/// The complete model, from the rows to the elements over them. The toolkit's own resolver resolves short names: it is
/// made over the model, and the model calls it.
class VDatabase {
public:
    explicit VDatabase(std::wistream& table) : m_rows(ReadTable(table)) {
        m_index.resolver = std::make_unique<NDIAGKIT::VOpResolveSnref>();
    }

    NODX201::VOdx& GetOdx() { return m_root; }
    VRoot& GetRoot() { return m_root; }
    VIndex& GetIndex() { return m_index; }

private:
    VRow m_rows;
    VIndex m_index;
    VRoot m_root{VOrigin{m_rows, nullptr, m_index}};
};

} // namespace NOwnModel
