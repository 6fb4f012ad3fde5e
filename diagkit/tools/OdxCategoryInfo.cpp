// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/OdxCategoryInfo.h>

#include <memory>

namespace NDIAGKIT {

VOdxCategoryInfo::VOdxCategoryInfo() = default;

VOdxCategoryInfo::VOdxCategoryInfo(VOdxCategoryInfo const& other)
    : m_fileName(other.GetFileName()), m_shortName(other.GetShortName()) {}

VOdxCategoryInfo::~VOdxCategoryInfo() = default;

VOdxCategoryInfo& VOdxCategoryInfo::CreateFromFileAndShortName(wchar_t const* fileName, wchar_t const* shortName) {
    auto info = std::make_unique<VOdxCategoryInfo>();
    info->SetFileName(fileName);
    info->SetShortName(shortName);
    return *info.release();
}

VOdxCategoryInfo& VOdxCategoryInfo::Clone() const { return *new VOdxCategoryInfo(*this); }

wchar_t const* VOdxCategoryInfo::GetFileName() const { return m_fileName.c_str(); }
void VOdxCategoryInfo::SetFileName(wchar_t const* fileName) { m_fileName = fileName != nullptr ? fileName : L""; }
wchar_t const* VOdxCategoryInfo::GetShortName() const { return m_shortName.c_str(); }
void VOdxCategoryInfo::SetShortName(wchar_t const* shortName) { m_shortName = shortName != nullptr ? shortName : L""; }

} // namespace NDIAGKIT
