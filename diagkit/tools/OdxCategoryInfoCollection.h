// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <list>
#include <string>

#include <diagkit/Export.h>
#include <diagkit/tools/ListView.h>
#include <diagkit/tools/OdxCategoryInfo.h>

namespace NDIAGKIT {

/// The element type of `VOdxCategoryInfoCollection` and the places of its assertions; see `VListView`.
struct DIAGKIT_EXPORT VOdxCategoryInfoCollectionTraits {
    using Element = VOdxCategoryInfo;
    static constexpr wchar_t const* kSource = L"OdxCategoryInfoCollection";
    static constexpr int kRemoveElementLine = 145;
    static constexpr int kRemovePositionLine = 153;
    static constexpr int kRemoveStepLine = 228;
};

DIAGKIT_TEMPLATE_DECLARATION(VExternalIterator<std::list<VOdxCategoryInfo*>::iterator, VOdxCategoryInfo&>);
DIAGKIT_TEMPLATE_DECLARATION(VListView<VOdxCategoryInfoCollectionTraits>);

/// A list of category descriptors, in the order of insertion. Unlike the views it OWNS its elements: they are deleted
/// by `Clear`, by `Remove(iterator)` and with the collection. `Remove(info)` hands the element back to the caller.
class DIAGKIT_EXPORT VOdxCategoryInfoCollection : public VListView<VOdxCategoryInfoCollectionTraits> {
public:
    VOdxCategoryInfoCollection();
    VOdxCategoryInfoCollection(VOdxCategoryInfoCollection& other); ///< a deep copy
    virtual ~VOdxCategoryInfoCollection();

    VOdxCategoryInfoCollection& Clone(); ///< a new deep copy that the caller owns

    using VListView<VOdxCategoryInfoCollectionTraits>::Find;
    Iterator Find(std::wstring const& fileName);            ///< the first of exactly this file name; `End()` when none
    Iterator Contains(std::wstring const& shortName);       ///< the first of exactly this short name; `End()` when none
    ConstIterator Find(std::wstring const& fileName) const; ///< the same
    ConstIterator Contains(std::wstring const& shortName) const; ///< the same

    void Clear(); ///< deletes every element
};

} // namespace NDIAGKIT
