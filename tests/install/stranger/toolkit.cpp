// SPDX-License-Identifier: Apache-2.0

// Over diagkit::diagkit alone.

#include <cwchar>

#include <diagkit/Version.h>
#include <diagkit/tools/EnumMapper.h>

int main() {
    auto const& mapper = NDIAGKIT::VEnumMapper::Instance();
    std::wprintf(L"%s %ls\n", DIAGKIT_VERSION, mapper.GetAddressingStr(mapper.GetAddressing(L"PHYSICAL")));
}
