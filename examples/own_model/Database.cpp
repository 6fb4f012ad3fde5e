// SPDX-License-Identifier: Apache-2.0
#include "Database.h"

namespace NOwnModel {

void VLayerCollection::AddRow(VRow const& row, VIndex& index) {
    VPlace const place{row, this, index};
    if (row.tag == Tag::Protocol) {
        Add(std::make_unique<VProtocolLayer>(place));
    } else if (row.tag == Tag::FunctionalGroup) {
        Add(std::make_unique<VFunctionalGroupLayer>(place));
    } else if (row.tag == Tag::BaseVariant) {
        Add(std::make_unique<VBaseVariantLayer>(place));
    } else if (row.tag == Tag::EcuVariant) {
        Add(std::make_unique<VEcuVariantLayer>(place));
    } else if (row.tag == Tag::EcuSharedData) {
        Add(std::make_unique<VEcuSharedDataLayer>(place));
    }
}

VContainer::VContainer(VPlace const& place) : VIdentified(place) {
    for (VRow const& row : place.row.rows) {
        m_layers.AddRow(row, place.index);
    }
}

void VInstructions::Add(VRow const& row) {
    m_owned.push_back(std::make_unique<VInstruction>(row));
    m_elements.push_back(m_owned.back().get());
}

VRoot::VRoot(VPlace const& place) : VElement(place) {
    AddAll<VContainer>(m_containers, Tag::DiagLayerContainer);
    for (VRow const& row : place.row.rows) {
        if (row.tag == Tag::None) {
            m_instructions.Add(row);
        }
    }
}

} // namespace NOwnModel
