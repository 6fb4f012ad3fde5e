// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/OdxCategoryInfoCollection.h>

#include <algorithm>
#include <memory>

#include <diagkit/tools/ListViewImpl.h>

namespace NDIAGKIT {

DIAGKIT_TEMPLATE_DEFINITION(VExternalIterator<std::list<VOdxCategoryInfo*>::iterator, VOdxCategoryInfo&>);
DIAGKIT_TEMPLATE_DEFINITION(VListView<VOdxCategoryInfoCollectionTraits>);

namespace {

// The first record of a list, constant or not, of a name.

template <class List>
auto OfFile(List& list, std::wstring const& fileName) {
    return std::find_if(list.begin(), list.end(),
                        [&fileName](VOdxCategoryInfo const* info) { return fileName == info->GetFileName(); });
}

template <class List>
auto OfShortName(List& list, std::wstring const& shortName) {
    return std::find_if(list.begin(), list.end(),
                        [&shortName](VOdxCategoryInfo const* info) { return shortName == info->GetShortName(); });
}

} // namespace

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
    return Iterator(OfFile(m_collection, fileName));
}

VOdxCategoryInfoCollection::Iterator VOdxCategoryInfoCollection::Contains(std::wstring const& shortName) {
    return Iterator(OfShortName(m_collection, shortName));
}

VOdxCategoryInfoCollection::ConstIterator VOdxCategoryInfoCollection::Find(std::wstring const& fileName) const {
    return ConstIterator(OfFile(m_collection, fileName));
}

VOdxCategoryInfoCollection::ConstIterator VOdxCategoryInfoCollection::Contains(std::wstring const& shortName) const {
    return ConstIterator(OfShortName(m_collection, shortName));
}

void VOdxCategoryInfoCollection::Clear() {
    for (VOdxCategoryInfo* const info : m_collection) {
        delete info;
    }
    m_collection.clear();
}

} // namespace NDIAGKIT
