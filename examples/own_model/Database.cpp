// SPDX-License-Identifier: Apache-2.0
#include "Database.h"

namespace NOwnModel {

void VLayerCollection::AddRow(VRow const& row, VIndex& index) {
    VOrigin const origin{row, this, index};
    if (row.tag == Tag::Protocol) {
        Add(std::make_unique<VProtocolLayer>(origin));
    } else if (row.tag == Tag::FunctionalGroup) {
        Add(std::make_unique<VFunctionalGroupLayer>(origin));
    } else if (row.tag == Tag::BaseVariant) {
        Add(std::make_unique<VBaseVariantLayer>(origin));
    } else if (row.tag == Tag::EcuVariant) {
        Add(std::make_unique<VEcuVariantLayer>(origin));
    } else if (row.tag == Tag::EcuSharedData) {
        Add(std::make_unique<VEcuSharedDataLayer>(origin));
    }
}

VContainer::VContainer(VOrigin const& origin) : VIdentified(origin) {
    for (VRow const& row : origin.row.rows) {
        m_layers.AddRow(row, origin.index);
    }
}

void VInstructions::Add(VRow const& row) {
    m_owned.push_back(std::make_unique<VInstruction>(row));
    m_elements.push_back(m_owned.back().get());
}

VRoot::VRoot(VOrigin const& origin) : VElement(origin) {
    AddAll<VContainer>(m_containers, Tag::DiagLayerContainer);
    for (VRow const& row : origin.row.rows) {
        if (row.tag == Tag::None) {
            m_instructions.Add(row);
        }
    }
}

} // namespace NOwnModel
