// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <memory>
#include <string>

#include <diagkit/query/Uses.h>

#include "reader/LayerXml.h"
#include "reader/ReaderTest.h"

namespace NTest {

std::string TagText(NODX201::VOdxElement const& element);

/// "TAG from NAME", and for a reference by short name " in LAYER LAYER".
std::string Printed(NQuery::VUse const& use);

class VUsesTest : public VReaderTest {
protected:
    VUsesTest() { m_options.keepsElements = true; }

    /// Reads a container with these layers.
    void ReadLayers(std::string const& layers) { Read(ContainerOfLayers(layers)); }

    /// The references to the first element of this ID or short name, a line for each.
    std::string Uses(std::string const& name);
    std::string UsesOf(NODX201::VOdxElement const& element);

    NODX201::VOdxElement& Find(std::string const& name) const; ///< the first of this ID, or else of this short name

    std::string Unused(); ///< their IDs, with blanks between; short names where there is none

    void Remove(std::string const& name); ///< an element, for the tests of edited databases
    void Forget() { m_uses.reset(); }     ///< the index; the next query makes a new one

private:
    NQuery::VUses const& Index();

    std::unique_ptr<NQuery::VUses> m_uses;
};

} // namespace NTest
