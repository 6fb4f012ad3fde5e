// SPDX-License-Identifier: Apache-2.0

// The makers of elements, a row a class, so that their code is compiled here alone.

#include <diagkit/memory/AdminData.h>
#include <diagkit/memory/Flash.h>
#include <diagkit/memory/NewImpl.h>
#include <diagkit/memory/Sdgs.h>

// clang-format off

namespace NMemory {

template std::unique_ptr<VMemCompanyDocInfo> New(VPlace const& place);
template std::unique_ptr<VMemCompanyRevisionInfo> New(VPlace const& place);
template std::unique_ptr<VMemModification> New(VPlace const& place);
template std::unique_ptr<VMemDocRevision> New(VPlace const& place);
template std::unique_ptr<VMemAdminData> New(VPlace const& place);
template std::unique_ptr<VMemXdoc> New(VPlace const& place);
template std::unique_ptr<VMemRelatedDoc> New(VPlace const& place);
template std::unique_ptr<VMemCompanySpecificInfo> New(VPlace const& place);
template std::unique_ptr<VMemTeamMember> New(VPlace const& place);
template std::unique_ptr<VMemCompanyData> New(VPlace const& place);
template std::unique_ptr<VMemCompanyDataLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemTeamMemberLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemSdgCaption> New(VPlace const& place);
template std::unique_ptr<VMemSd> New(VPlace const& place);
template std::unique_ptr<VMemSdg> New(VPlace const& place);
template std::unique_ptr<VMemIdentValue> New(VPlace const& place);
template std::unique_ptr<VMemExpectedIdent> New(VPlace const& place);
template std::unique_ptr<VMemOwnIdent> New(VPlace const& place);
template std::unique_ptr<VMemChecksumResult> New(VPlace const& place);
template std::unique_ptr<VMemSecurityMethod> New(VPlace const& place);
template std::unique_ptr<VMemFwSignature> New(VPlace const& place);
template std::unique_ptr<VMemFwChecksum> New(VPlace const& place);
template std::unique_ptr<VMemValidityFor> New(VPlace const& place);
template std::unique_ptr<VMemSecurity> New(VPlace const& place);
template std::unique_ptr<VMemChecksum> New(VPlace const& place);
template std::unique_ptr<VMemSession> New(VPlace const& place);
template std::unique_ptr<VMemDataformat> New(VPlace const& place);
template std::unique_ptr<VMemEncryptCompressMethod> New(VPlace const& place);
template std::unique_ptr<VMemFlashdata> New(VPlace const& place);
template std::unique_ptr<VMemFilter> New(VPlace const& place);
template std::unique_ptr<VMemSegment> New(VPlace const& place);
template std::unique_ptr<VMemTargetAddrOffset> New(VPlace const& place);
template std::unique_ptr<VMemDatablock> New(VPlace const& place);
template std::unique_ptr<VMemMem> New(VPlace const& place);
template std::unique_ptr<VMemProjectIdent> New(VPlace const& place);
template std::unique_ptr<VMemProjectInfo> New(VPlace const& place);
template std::unique_ptr<VMemPhysSegment> New(VPlace const& place);
template std::unique_ptr<VMemPhysMem> New(VPlace const& place);
template std::unique_ptr<VMemEcuMem> New(VPlace const& place);
template std::unique_ptr<VMemFlashClass> New(VPlace const& place);
template std::unique_ptr<VMemSessionDesc> New(VPlace const& place);
template std::unique_ptr<VMemIdentDesc> New(VPlace const& place);
template std::unique_ptr<VMemEcuMemConnector> New(VPlace const& place);
template std::unique_ptr<VMemFlash> New(VPlace const& place);
template std::unique_ptr<VMemDatablockLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemFlashdataLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemFlashClassLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemSessionLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemIdentIfLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemEcuMemLink> New(VPlace const& place, VReference const& reference);

} // namespace NMemory

// clang-format on
