// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/OdxCategoryInfoCollection.h>

#include <algorithm>
#include <memory>

#include <diagkit/tools/ListViewImpl.h>

namespace NDIAGKIT {

DIAGKIT_TEMPLATE_DEFINITION(VExternalIterator<std::list<VOdxCategoryInfo*>::iterator, VOdxCategoryInfo&>);
DIAGKIT_TEMPLATE_DEFINITION(VListView<VOdxCategoryInfoCollectionTraits>);

VOdxCategoryInfoCollection::VOdxCategoryInfoCollection() = default;

VOdxCategoryInfoCollection::VOdxCategoryInfoCollection(VOdxCategoryInfoCollection& other) {
    try {
        for (VOdxCategoryInfo& info : other) {
            auto copy = std::make_unique<VOdxCategoryInfo>(info);
            Append(*copy);
            copy.release();
        }
    } catch (...) {
        Clear();
        throw;
    }
}

VOdxCategoryInfoCollection::~VOdxCategoryInfoCollection() { Clear(); }

VOdxCategoryInfoCollection& VOdxCategoryInfoCollection::Clone() { return *new VOdxCategoryInfoCollection(*this); }

VOdxCategoryInfoCollection::Iterator VOdxCategoryInfoCollection::Find(std::wstring const& fileName) {
    return Iterator(std::find_if(m_collection.begin(), m_collection.end(), [&fileName](VOdxCategoryInfo const* info) {
        return fileName == info->GetFileName();
    }));
}

VOdxCategoryInfoCollection::Iterator VOdxCategoryInfoCollection::Contains(std::wstring const& shortName) {
    return Iterator(std::find_if(m_collection.begin(), m_collection.end(), [&shortName](VOdxCategoryInfo const* info) {
        return shortName == info->GetShortName();
    }));
}

void VOdxCategoryInfoCollection::Clear() {
    for (VOdxCategoryInfo* const info : m_collection) {
        delete info;
    }
    m_collection.clear();
}

} // namespace NDIAGKIT
