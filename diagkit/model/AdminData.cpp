// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/AdminData.h>

// Destructors out of line, so that each class has its vtable and type information in one place.

namespace NODX201 {

VAdminData::~VAdminData() = default;
VCompanyDocInfo::~VCompanyDocInfo() = default;
VDocRevision::~VDocRevision() = default;
VCompanyRevisionInfo::~VCompanyRevisionInfo() = default;
VModification::~VModification() = default;
VCompanyData::~VCompanyData() = default;
VCompanyDataLink::~VCompanyDataLink() = default;
VTeamMember::~VTeamMember() = default;
VTeamMemberLink::~VTeamMemberLink() = default;
VCompanySpecificInfo::~VCompanySpecificInfo() = default;
VRelatedDoc::~VRelatedDoc() = default;
VXdoc::~VXdoc() = default;

} // namespace NODX201
