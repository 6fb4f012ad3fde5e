// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <diagkit/query/Diff.h>

#include "query/DiffInPrint.h"
#include "reader/LayerXml.h"
#include "reader/ReaderTest.h"

/// Common to the tests of comparisons: two databases from their texts, compared both ways.

namespace NTest {

class VDiffTest : public VReaderTest {
protected:
    /// The result in print. Exchanged sides must give the mirrored one, and either compared with itself nothing.
    std::string Diff(std::string const& old, std::string const& now);

    NReader::VReadResult Loaded(std::string const& document);

    NQuery::VDiffOptions m_diffOptions;
};

/// A DATA-OBJECT-PROP of this ID and short name, with a BIT-LENGTH.
std::string Dop(std::string const& id, std::string const& bits = "8", std::string const& content = "");
std::string DopList(std::string const& dops); ///< DATA-OBJECT-PROPS in a dictionary

/// A service with its request, both with the name; the ID of the request is "RQ." and the name.
std::string ServiceXml(std::string const& name, std::string const& content = "");
std::string RequestsXml(std::string const& requests);
std::string RequestXml(std::string const& service, std::string const& params);
std::string Const(std::string const& name, std::string const& value, std::string const& content = "");

} // namespace NTest
