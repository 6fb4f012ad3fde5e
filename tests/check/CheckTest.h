// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <diagkit/check/Check.h>

#include "reader/ReaderTest.h"

/// What the tests of the findings share. The documents are of a later version: they leave out parts that version 2.0
/// requires, so that only the finding that a test is about is reported.

namespace NTest {

/// An element whose ID and short name are the same.
std::string Xml(std::string const& tag, std::string const& id, std::string const& content = "");

/// A layer in the wrapper of its kind, on a line of its own, as its content is. `Check` joins the wrappers of layers of
/// one kind that follow one another.
std::string LayerXml(std::string const& kind, std::string const& id, std::string const& content = "");

std::string Service(std::string const& id, std::string const& content = "");
std::string DiagComms(std::string const& content);
std::string Dops(std::string const& names); ///< DATA-OBJECT-PROPs of these names, a letter each, with IDs of their own
std::string Value(std::string const& name, std::string const& reference); ///< a VALUE parameter
std::string Structure(std::string const& id, std::string const& params);
std::string Request(std::string const& id, std::string const& params);
std::string InDictionary(std::string const& content);

/// PARENT-REFS to these layers, each reference on a line of its own. A word is the kind, such as "BASE-VARIANT", and
/// the ID of a layer, with what the reference holds.
struct VParentXml {
    std::string kind;
    std::string id;
    std::string content = {};
};
std::string ParentRefs(std::vector<VParentXml> const& parents);
std::string Excluded(std::string const& diagComm);

class VCheckTest : public VReaderTest {
protected:
    VCheckTest() { m_options.keepsElements = true; }

    /// Reads a container with these layers, as the file "test.odx" from its second line on, and checks it. The
    /// diagnostics are then all findings.
    void Check(std::string layers);
    void CheckDocument(std::string const& document) { CheckDocuments({document}); }
    void CheckDocuments(std::vector<std::string> const& documents);

    /// The one finding: "LINE:COLUMN SEVERITY CODE: MESSAGE".
    std::string Finding() const;
};

} // namespace NTest
