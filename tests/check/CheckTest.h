// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <utility>
#include <vector>

#include <diagkit/check/Check.h>

#include "reader/LayerXml.h"
#include "reader/ReaderTest.h"

/// Common to the tests of the findings. The documents are of a later version and leave out parts that version 2.0
/// requires, so that only the finding under test is reported.

namespace NTest {

class VCheckTest : public VReaderTest {
protected:
    VCheckTest() { m_options.keepsElements = true; }

    /// Reads a container with these layers, as the file "test.odx" from its second line on, and checks it. The
    /// diagnostics are then all findings.
    void Check(std::string layers) { CheckDocument(ContainerOfLayers(std::move(layers))); }
    void CheckDocument(std::string const& document) { CheckDocuments({document}); }
    void CheckDocuments(std::vector<std::string> const& documents);

    /// The one finding: "LINE:COLUMN SEVERITY CODE: MESSAGE".
    std::string Finding() const;
};

} // namespace NTest
