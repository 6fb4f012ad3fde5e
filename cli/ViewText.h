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

/// The path to an element from its layer, document or job: "POS-RESPONSE PR_Status".
std::string PathTo(NODX201::VOdxElement const& element);

/// The same as a note: "in POS-RESPONSE PR_Status".
std::string PlaceOf(NODX201::VOdxElement const& element);

/// The kind of an element, for columns: its tag, with the type of a parameter.
std::string KindOf(NODX201::VOdxElement const& element);

} // namespace NCli
