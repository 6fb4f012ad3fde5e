// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <cli/Arguments.h>
#include <cli/Output.h>
#include <diagkit/model/Layers.h>
#include <diagkit/reader/OdxReader.h>

namespace NCli {

/// How a call selects an element of any kind.
struct VAnyName {
    std::string const& name;    ///< an ID or a short name
    std::string const& tag;     ///< "" for an element of any kind
    NODX201::VDiagLayer* layer; ///< in which the short name is looked up; null for the whole database
};

/// What NAME, --kind and --layer of a call select; nothing, with a message, where there is no such layer.
std::optional<VAnyName> AnyNameIn(VArguments const& arguments, NMemory::VDatabase& database, VOutput const& output);

/// The elements that have the ID, in document order. Where none has it, those that have the short name; with a layer
/// those in its views and, for kinds that are not inherited, its own. REQUIRES: the elements were kept.
std::vector<NODX201::VOdxElement*> FindElements(NReader::VReadResult const& result, VAnyName const& name);

/// Of elements that share a name, those of the kinds that layers inherit, where there are any: what the views of a
/// layer hold goes before what else is called so.
std::vector<NODX201::VOdxElement*> InheritedFirst(std::vector<NODX201::VOdxElement*> const& found);

/// Reports that nothing or more than one element was found; for nothing, with what stops the name on its way to the
/// layer.
void ComplainOfName(VArguments const& arguments, NReader::VReadResult const& result, VAnyName const& name,
                    std::vector<NODX201::VOdxElement*> const& found, VOutput const& output);

} // namespace NCli
