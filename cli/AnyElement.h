// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

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

/// The elements that have the ID, in document order. Where none has it, those that have the short name; with a layer
/// those in its views and, for kinds that are not inherited, its own. REQUIRES: the elements were kept.
std::vector<NODX201::VOdxElement*> FindElements(NReader::VReadResult const& result, VAnyName const& name);

/// Tells what to say instead when nothing or not one element alone was found.
void ComplainOfName(NReader::VReadResult const& result, VAnyName const& name,
                    std::vector<NODX201::VOdxElement*> const& found, VOutput const& output);

} // namespace NCli
