// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/Codes.h>

#include <algorithm>

namespace NCheck {

std::vector<VCode> const& Codes() {
    static std::vector<VCode> const codes = [] {
        std::vector<VCode> all{
#define DIAGNOSTIC(name, code, severity, title) {code, NReader::VSeverity::severity, title},
#include <diagkit/reader/Codes.def>
#define DIAGNOSTIC(name, code, severity, title) {code, NReader::VSeverity::severity, title},
#include <diagkit/check/Codes.def>
        };
        std::sort(all.begin(), all.end(),
                  [](VCode const& a, VCode const& b) { return std::string_view(a.code) < b.code; });
        return all;
    }();
    return codes;
}

VCode const* FindCode(std::string_view code) {
    auto const found =
        std::find_if(Codes().begin(), Codes().end(), [code](VCode const& row) { return row.code == code; });
    return found != Codes().end() ? &*found : nullptr;
}

} // namespace NCheck
