// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

/// Databases of layers as text. The documents are of a later version: they leave out parts that version 2.0 requires.

namespace NTest {

/// An element whose ID and short name are the same.
std::string Xml(std::string const& tag, std::string const& id, std::string const& content = "");

/// A layer in the wrapper of its kind, on its own line, as its content is.
std::string LayerXml(std::string const& kind, std::string const& id, std::string const& content = "");

std::string Service(std::string const& id, std::string const& content = "");
std::string DiagComms(std::string const& content);
std::string Dops(std::string const& names); ///< DATA-OBJECT-PROPs of these names, one letter each, each with its own ID
std::string DopRefTo(std::string const& id);
std::string DopSnrefTo(std::string const& shortName);
std::string Value(std::string const& name, std::string const& reference); ///< a VALUE parameter
std::string Structure(std::string const& id, std::string const& params);
std::string Request(std::string const& id, std::string const& params);
std::string InDictionary(std::string const& content);

/// PARENT-REFS to these layers, each reference on its own line. A word is the kind, such as "BASE-VARIANT", and the ID
/// of a layer, with the contents of the reference.
struct VParentXml {
    std::string kind;
    std::string id;
    std::string content = {};
};
std::string ParentRefs(std::vector<VParentXml> const& parents);
std::string Excluded(std::string const& diagComm);

/// A container "C" with these layers, from its second line on. Wrappers of layers of one kind that follow one another
/// are joined.
std::string ContainerOfLayers(std::string layers);

} // namespace NTest
