// SPDX-License-Identifier: Apache-2.0

// Bytes as one ODX document, through the reader and the texts of its diagnostics.

#include <diagkit/reader/OdxReader.h>

#include <fuzz/Limits.h>
#include <fuzz/ScratchFile.h>
#include <fuzz/Target.h>

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    static NFuzz::VScratchFile file(".odx");
    file.Write({reinterpret_cast<char const*>(data), size});
    for (NReader::VDiagnostic const& diagnostic : NReader::ReadOdx({file.Path()}, NFuzz::LowLimits()).diagnostics) {
        NReader::FormatDiagnostic(diagnostic);
    }
    return 0;
}
