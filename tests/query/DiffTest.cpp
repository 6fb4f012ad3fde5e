// SPDX-License-Identifier: Apache-2.0
#include "query/DiffTest.h"

#include <utility>

namespace NTest {

NReader::VReadResult VDiffTest::Loaded(std::string const& document) {
    Read(document);
    return std::move(m_result);
}

std::string VDiffTest::Diff(std::string const& old, std::string const& now) {
    NReader::VReadResult const oldResult = Loaded(old);
    NReader::VReadResult const newResult = Loaded(now);
    NMemory::VDatabase& oldDatabase = *oldResult.database;
    NMemory::VDatabase& newDatabase = *newResult.database;
    EXPECT_EQ("", InPrint(NQuery::DiffDatabases(oldDatabase, oldDatabase, m_diffOptions)));
    EXPECT_EQ("", InPrint(NQuery::DiffDatabases(newDatabase, newDatabase, m_diffOptions)));
    NQuery::VDiff const diff = NQuery::DiffDatabases(oldDatabase, newDatabase, m_diffOptions);
    EXPECT_EQ(Sorted(diff), Mirrored(NQuery::DiffDatabases(newDatabase, oldDatabase, m_diffOptions)));
    return InPrint(diff);
}

std::string Dop(std::string const& id, std::string const& bits, std::string const& content) {
    return Xml("DATA-OBJECT-PROP", id,
               content + "<DIAG-CODED-TYPE xsi:type=\"STANDARD-LENGTH-TYPE\" BASE-DATA-TYPE=\"A_UINT32\"><BIT-LENGTH>" +
                   bits + "</BIT-LENGTH></DIAG-CODED-TYPE>");
}

std::string DopList(std::string const& dops) {
    return InDictionary("<DATA-OBJECT-PROPS>" + dops + "</DATA-OBJECT-PROPS>");
}

std::string ServiceXml(std::string const& name, std::string const& content) {
    return Xml("DIAG-SERVICE", name, content + "<REQUEST-REF ID-REF=\"RQ." + name + "\"/>");
}

std::string RequestsXml(std::string const& requests) { return "<REQUESTS>" + requests + "</REQUESTS>"; }

std::string RequestXml(std::string const& service, std::string const& params) {
    return "<REQUEST ID=\"RQ." + service + "\"><SHORT-NAME>Request</SHORT-NAME><PARAMS>" + params +
           "</PARAMS></REQUEST>";
}

std::string Const(std::string const& name, std::string const& value, std::string const& content) {
    return "<PARAM xsi:type=\"CODED-CONST\"><SHORT-NAME>" + name + "</SHORT-NAME>" + content + "<CODED-VALUE>" + value +
           "</CODED-VALUE>" + kStandardType + "</PARAM>";
}

} // namespace NTest
