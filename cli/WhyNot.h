// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include <cli/Arguments.h>
#include <cli/InheritedKinds.h>

namespace NCli {

/// A word of a call as a POSIX shell takes it.
std::string Quoted(std::string const& word);

/// What becomes of an element on its way, but for a visible one: "PROTOCOL Uds's is excluded in Body". The layer is
/// the one that the way leads to.
std::string FateOf(NDIAGKIT::VWay const& way, NODX201::VDiagLayer const& layer, VInheritedKindRow const& kind);

/// Of ways that all end before the layer, the one that ends nearest to it; the first of several.
NDIAGKIT::VWay const& NearestOf(std::vector<NDIAGKIT::VWay> const& ways);

using VIsMeant = std::function<bool(NODX201::VOdxElement const&)>;

/// For the end of a message that a name is not visible in a layer: what stops it on its way there, and the call that
/// tells more, in which the layer is called as the user did; "" where nothing of the name is on any way. With `isMeant`
/// only elements of the name for which it is true are considered.
std::string WhyNotNote(NMemory::VDatabase& database, NODX201::VDiagLayer& layer, NQuery::VInheritedKind kind,
                       std::wstring_view shortName, std::string const& layerInCall, VIsMeant const& isMeant = nullptr);

/// The same for a name of any kind, or of the tag that --kind names: the note of the first inherited kind that has one;
/// "" without a layer.
std::string WhyNotInLayer(NMemory::VDatabase& database, NODX201::VDiagLayer* layer, std::string const& shortName,
                          VArguments const& arguments);

} // namespace NCli
