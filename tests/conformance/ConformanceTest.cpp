// SPDX-License-Identifier: Apache-2.0
#include "ConformanceTest.h"

#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/Flash.h>
#include <diagkit/reader/Utf8.h>

namespace NTest {

NConformance::VModel ModelOf(NReader::VReadResult const& read) {
    NConformance::VModel model{read.database->GetOdx()};
    for (NMemory::VMemFlash& flash : read.database->FlashCollection()) {
        model.flashes.push_back(&flash);
    }
    for (NMemory::VMemMultipleEcuJobSpec& spec : read.database->MultipleEcuJobSpecCollection()) {
        for (NMemory::VMemMultipleEcuJob& job : spec.MultipleEcuJobCollection()) {
            model.multipleEcuJobs.push_back(&job);
        }
    }
    return model;
}

std::string Lines(std::vector<NConformance::VViolation> const& violations) {
    std::vector<std::wstring> lines;
    for (NConformance::VViolation const& violation : violations) {
        lines.push_back(NConformance::ToText(violation));
    }
    return Lines(lines);
}

std::string Lines(std::vector<std::wstring> const& lines) {
    std::string text;
    for (std::wstring const& line : lines) {
        text += NReader::ToUtf8(line) + "\n";
    }
    return text;
}

} // namespace NTest
