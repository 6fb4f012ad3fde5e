// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <cli/Output.h>
#include <diagkit/model/Layers.h>

/// Views as text for people.

namespace NCli {

/// Entries that are a layer's own though they stand in another one, each with a note that says why.
using VReferencedEntries = std::unordered_map<NODX201::VOdxElement const*, std::string>;

/// The entries of a layer's view in groups by the layer they stand in: the own ones first, those that it refers to
/// included, then the others in the order in which they first occur.
void WriteEntriesByOrigin(std::string_view title, NODX201::VDiagLayer const& layer,
                          std::vector<NODX201::VOdxElement const*> const& entries, VReferencedEntries const& referenced,
                          VOutput& output);

/// The entries of a view in view order, each with a note.
void WriteEntries(std::string_view title, std::vector<NODX201::VOdxElement const*> const& entries,
                  std::string (*noteOf)(NODX201::VOdxElement const& entry), VOutput& output);

/// The way to an element from the layer, document or job that it stands in: "POS-RESPONSE PR_Status".
std::string PathTo(NODX201::VOdxElement const& element);

/// The same as a note: "in POS-RESPONSE PR_Status".
std::string PlaceOf(NODX201::VOdxElement const& element);

/// What an element is, for columns: its tag, and a parameter's type beside it.
std::string KindOf(NODX201::VOdxElement const& element);

} // namespace NCli
