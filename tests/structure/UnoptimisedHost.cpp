// SPDX-License-Identifier: Apache-2.0
#include <string>

#include <diagkit/tools/EnumMapper.h>
#include <diagkit/tools/OdxCategoryInfoCollection.h>
#include <diagkit/tools/StringContainer.h>

/// Links with the toolkit like a host without optimisation: every inline member of a template that the library
/// instantiates is called, none is inlined. Returns the number of wrong results.

namespace {

int CheckCategories() {
    NDIAGKIT::VOdxCategoryInfoCollection categories;
    categories.Append(NDIAGKIT::VOdxCategoryInfo::CreateFromFileAndShortName(L"body.odx-d", L"Body"));
    categories.Append(NDIAGKIT::VOdxCategoryInfo::CreateFromFileAndShortName(L"doors.odx-d", L"Doors"));
    std::wstring names;
    for (NDIAGKIT::VOdxCategoryInfo const& category : categories) {
        names += category.GetShortName();
    }
    NDIAGKIT::VOdxCategoryInfoCollection::Iterator position;
    position = categories.Contains(L"Doors");
    return (names == L"BodyDoors" ? 0 : 1) + ((*position).GetFileName() == std::wstring(L"doors.odx-d") ? 0 : 1);
}

int CheckTexts() {
    NDIAGKIT::VStringContainer texts;
    texts.AddCopy(L"one");
    int wrong = 0;
    for (std::wstring const& text : texts) {
        wrong += text == L"one" ? 0 : 1;
    }
    return wrong + (texts.Find(L"two") == texts.End() ? 0 : 1);
}

int CheckEnumeration() {
    NDIAGKIT::EnumMapImpl<NODX201::VDoctype> doctypes(L"DOCTYPE");
    doctypes.Add(L"LAYER", NODX201::VDoctype::Layer);
    return doctypes.Get(L"LAYER") == NODX201::VDoctype::Layer ? 0 : 1;
}

} // namespace

int main() { return CheckCategories() + CheckTexts() + CheckEnumeration(); }
