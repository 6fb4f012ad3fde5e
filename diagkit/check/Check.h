// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include <diagkit/reader/OdxReader.h>

namespace NCheck {

/// Everything that a database tells about itself: the reader's diagnostics, and besides these references by short name
/// that do not resolve, DOCREFs that name another place than the target's, short names that are doubled or of odd
/// characters, parents and imports that are named twice, exclusions that exclude nothing, names that two parents of
/// equal rank offer, and cycles; and what stands in the data: types, lengths, constants, limits and keys that cannot be
/// right, and parameters and requests of which no program can make out what was meant.
///
///     NReader::VReadOptions options;
///     options.keepsElements = true;
///     NReader::VReadResult result = NReader::ReadOdx({"body.pdx"}, options);
///     for (NReader::VDiagnostic const& diagnostic : NCheck::CheckDatabase(result)) { ... }
///
/// Requires a result whose elements were kept, with nothing removed since; without a database it gives only the
/// reader's diagnostics. The diagnostics are in the order of the files, by position within each, and are the same on
/// every run; `Codes()` lists their codes. Of its own findings it keeps as many as the reader does (`maxDiagnostics`).
/// Layers are checked one by one and their views are released afterwards; the database's resolver is replaced by a new
/// one. `progress` is called at intervals with the steps done so far and in total, of which only the ratio is
/// meaningful; it may be empty.
std::vector<NReader::VDiagnostic>
CheckDatabase(NReader::VReadResult& result,
              std::function<void(std::uint64_t done, std::uint64_t all)> const& progress = {});

} // namespace NCheck
