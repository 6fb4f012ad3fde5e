// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <diagkit/memory/Node.h>
#include <diagkit/model/Layers.h>

/// How diagnostics name elements. Texts of data are truncated where they are longer than any message.

namespace NReader {

std::string ToUtf8Cut(wchar_t const* text); ///< not longer than a message shows

std::string Quoted(wchar_t const* text);                 ///< 'TEXT'
std::string Quoted(NODX201::VOdxElement const& element); ///< 'NAME'
std::string TagOf(NODX201::VOdxElement const& element);  ///< "ECU-VARIANT"
std::string Titled(NODX201::VOdxElement const& element); ///< "ECU-VARIANT 'NAME'"

/// Its position; none for an element of another model.
NMemory::VPosition PositionOf(NODX201::VOdxElement const& element);

/// The number of items that messages list before they say how many more there are.
inline constexpr std::size_t kMostListed = 10;

std::string Listed(std::vector<std::string> const& items); ///< with commas
/// The same of `count` items, of which the first are given.
std::string ListedOf(std::vector<std::string> const& items, std::size_t count);

/// "in the layer 'A'", "in the layers 'A', 'B'": of `count` layers, of which the first are given.
std::string InLayers(std::vector<NODX201::VDiagLayer*> const& layers, std::size_t count);

/// Layers, shared by several lists.
using VSharedLayers = std::shared_ptr<std::vector<NODX201::VDiagLayer*> const>;

/// The same of the layers of all groups, which are in document order; `all` are those of the database in that order.
std::string InLayers(std::vector<VSharedLayers> const& groups, std::vector<NODX201::VDiagLayer*> const& all);

} // namespace NReader
