// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include <diagkit/reader/DocumentReading.h>
#include <diagkit/reader/XmlParser.h>

namespace NReader {

/// Passes the bytes of a document from the start, as often as called, until `take` returns false. False when reading
/// failed, with the reason in `failure`.
using VBytes = std::function<bool(std::function<bool(std::string_view bytes)> const& take, VFailure& failure)>;

/// Reads the document of that number on its own, in the encoding that is found to be right; null when it cannot be
/// read, and `findings` then say why. Documents of one database may be read at the same time.
std::unique_ptr<VDocumentReading> ReadDocument(NMemory::VDatabase& database, VReadOptions const& options,
                                               std::uint32_t document, VBytes const& bytes, VFindings& findings);

} // namespace NReader
