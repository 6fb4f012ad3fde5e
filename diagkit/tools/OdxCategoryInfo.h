// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <diagkit/Export.h>

namespace NDIAGKIT {

/// A document of one of ODX's categories (DIAG-LAYER-CONTAINER, COMPARAM-SPEC, FLASH and so on): its file and its short
/// name.
class DIAGKIT_EXPORT VOdxCategoryInfo {
public:
    VOdxCategoryInfo();
    VOdxCategoryInfo(VOdxCategoryInfo const& other); ///< copies what the other's getters return
    virtual ~VOdxCategoryInfo();
    VOdxCategoryInfo& operator=(VOdxCategoryInfo const&) = delete;

    /// A new record. It belongs to the caller, or to the collection that the caller appends it to.
    static VOdxCategoryInfo& CreateFromFileAndShortName(wchar_t const* fileName, wchar_t const* shortName);
    VOdxCategoryInfo& Clone() const; ///< a new copy that the caller owns

    virtual wchar_t const* GetFileName() const;          ///< valid until the next set or destruction; "" at first
    virtual void SetFileName(wchar_t const* fileName);   ///< null as ""
    virtual wchar_t const* GetShortName() const;         ///< valid until the next set or destruction; "" at first
    virtual void SetShortName(wchar_t const* shortName); ///< null as ""

private:
    std::wstring m_fileName;
    std::wstring m_shortName;
};

} // namespace NDIAGKIT
