// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/VehicleInfo.h>

#include "reader/ReaderTest.h"

/// What becomes of each element of vehicle information.

namespace NTest {
namespace {

using namespace NMemory;

std::string VehicleInfo(std::string const& content) {
    return Document("<VEHICLE-INFO-SPEC ID=\"V\" OID=\"o\"><SHORT-NAME>Van</SHORT-NAME>" + content +
                    "</VEHICLE-INFO-SPEC>");
}

class VVehicleInfoElementsTest : public VReaderTest {
protected:
    void ReadSpec(std::string const& content) {
        Read(VehicleInfo(content));
        EXPECT_EQ(Diagnostics(), "");
        EXPECT_TRUE(m_result.unknownElements.empty());
    }

    VMemVehicleInfoSpec& Spec() { return Get<VMemVehicleInfoSpec>(L"V"); }
};

TEST_F(VVehicleInfoElementsTest, TheSpecIsADocumentOfItsOwn) {
    ReadSpec("<LONG-NAME>The van</LONG-NAME><ADMIN-DATA/><COMPANY-DATAS><COMPANY-DATA "
             "ID=\"CD\"><SHORT-NAME>Maker</SHORT-NAME></COMPANY-DATA></COMPANY-DATAS>");
    ASSERT_EQ(m_result.documents.size(), 1U);
    EXPECT_EQ(m_result.documents.at(0).category, "VEHICLE-INFO-SPEC");
    EXPECT_EQ(m_result.documents.at(0).shortName, "Van");
    ASSERT_EQ(Database().VehicleInfoSpecCollection().Count(), 1U);
    EXPECT_EQ(&At(Database().VehicleInfoSpecCollection(), 0), &Spec());
    EXPECT_STREQ(Spec().GetOid(), L"o");
    EXPECT_STREQ(Spec().GetLongName().GetBaseMember(), L"The van");
    EXPECT_TRUE(Spec().HasAdminData());
    EXPECT_STREQ(At(Spec().CompanyDataCollection(), 0).GetShortName(), L"Maker");
    EXPECT_EQ(Count(L"VEHICLE-INFO-SPEC"), 1U);
}

TEST_F(VVehicleInfoElementsTest, TwoSpecsOfOneNameAreReported) {
    Read({VehicleInfo("<ADMIN-DATA/>"), "<ODX MODEL-VERSION=\"2.0.1\">\n<VEHICLE-INFO-SPEC "
                                        "ID=\"W\"><SHORT-NAME>Van</SHORT-NAME></VEHICLE-INFO-SPEC></ODX>"});
    EXPECT_EQ(Database().VehicleInfoSpecCollection().Count(), 2U);
    EXPECT_EQ(Diagnostics(), "2.odx:2:1 warning repeated-document");
}

TEST_F(VVehicleInfoElementsTest, AReferenceFindsWhatStandsInTheSpecThatItNames) {
    std::string const company = "<COMPANY-DATAS><COMPANY-DATA ID=\"CD\"><SHORT-NAME>";
    std::string const end = "</SHORT-NAME></COMPANY-DATA></COMPANY-DATAS>";
    Read({Container(company + "InContainer" + end),
          VehicleInfo("<ADMIN-DATA><COMPANY-DOC-INFOS><COMPANY-DOC-INFO><COMPANY-DATA-REF ID-REF=\"CD\"/>"
                      "</COMPANY-DOC-INFO></COMPANY-DOC-INFOS></ADMIN-DATA>" +
                      company + "InSpec" + end)});
    auto& reference = At(Spec().GetAdminData().CompanyDocInfoCollection(), 0).GetCompanyDataRef();
    ASSERT_TRUE(reference.HasCompanyData());
    EXPECT_STREQ(reference.GetCompanyData().GetShortName(), L"InSpec");
}

} // namespace
} // namespace NTest
