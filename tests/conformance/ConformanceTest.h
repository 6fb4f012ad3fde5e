// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <diagkit/conformance/Conformance.h>
#include <diagkit/reader/OdxReader.h>

namespace NTest {

/// All results of reading some files, with the documents that the contract does not reach from the root.
NConformance::VModel ModelOf(NReader::VReadResult const& read);

/// One violation per line.
std::string Lines(std::vector<NConformance::VViolation> const& violations);
std::string Lines(std::vector<std::wstring> const& lines);

} // namespace NTest
