// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <cli/Output.h>
#include <diagkit/model/Layers.h>

/// Views as text for people.

namespace NCli {

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
