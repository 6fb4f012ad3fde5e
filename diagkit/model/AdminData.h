// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Collections.h>
#include <diagkit/model/Reference.h>

/// Who wrote and revised an element, and the companies and people that ODX data names.

namespace NODX201 {

/// ADMIN-DATA
class DIAGKIT_EXPORT VAdminData : public VOdxElement {
public:
    ~VAdminData() override;
    virtual VCompanyDocInfoCollection& CompanyDocInfoCollection() = 0;
    virtual VDocRevisionCollection& DocRevisionCollection() = 0;
};

/// COMPANY-DOC-INFO
class DIAGKIT_EXPORT VCompanyDocInfo : public VOdxElement {
public:
    ~VCompanyDocInfo() override;
    virtual bool HasCompanyDataRef() const = 0;
    virtual VCompanyDataLink& GetCompanyDataRef() = 0;
    virtual bool HasTeamMemberRef() const = 0;
    virtual VTeamMemberLink& GetTeamMemberRef() = 0;
    virtual VSdgCollection& SdgCollection() = 0;
};

/// DOC-REVISION
class DIAGKIT_EXPORT VDocRevision : public VOdxElement {
public:
    ~VDocRevision() override;
    virtual bool HasTeamMemberRef() const = 0;
    virtual VTeamMemberLink& GetTeamMemberRef() = 0;
    virtual VCompanyRevisionInfoCollection& CompanyRevisionInfoCollection() = 0;
    virtual VModificationCollection& ModificationCollection() = 0;
};

/// COMPANY-REVISION-INFO
class DIAGKIT_EXPORT VCompanyRevisionInfo : public VOdxElement {
public:
    ~VCompanyRevisionInfo() override;
    virtual bool HasCompanyDataRef() const = 0;
    virtual VCompanyDataLink& GetCompanyDataRef() = 0;
};

/// MODIFICATION
class DIAGKIT_EXPORT VModification : public VOdxElement {
public:
    ~VModification() override;
};

/// COMPANY-DATA
class DIAGKIT_EXPORT VCompanyData : public VReferencable {
public:
    ~VCompanyData() override;
    virtual bool HasLongName() const = 0;
    virtual VText& GetLongName() = 0;
    virtual VStringCollection& RoleCollection() = 0;
    virtual VTeamMemberCollection& TeamMemberCollection() = 0;
    virtual bool HasCompanySpecificInfo() const = 0;
    virtual VCompanySpecificInfo& GetCompanySpecificInfo() = 0;
};

/// COMPANY-DATA-REF
class DIAGKIT_EXPORT VCompanyDataLink : public VLink {
public:
    ~VCompanyDataLink() override;
    virtual bool HasCompanyData() const = 0;
    virtual VCompanyData& GetCompanyData() = 0;
};

/// TEAM-MEMBER; its owner is the `VCompanyData`.
class DIAGKIT_EXPORT VTeamMember : public VReferencable {
public:
    ~VTeamMember() override;
    virtual VStringCollection& RoleCollection() = 0;
};

/// TEAM-MEMBER-REF
class DIAGKIT_EXPORT VTeamMemberLink : public VLink {
public:
    ~VTeamMemberLink() override;
    virtual bool HasTeamMember() const = 0;
    virtual VTeamMember& GetTeamMember() = 0;
};

/// COMPANY-SPECIFIC-INFO
class DIAGKIT_EXPORT VCompanySpecificInfo : public VOdxElement {
public:
    ~VCompanySpecificInfo() override;
    virtual VRelatedDocCollection& RelatedDocCollection() = 0;
    virtual VSdgCollection& SdgCollection() = 0;
};

/// RELATED-DOC
class DIAGKIT_EXPORT VRelatedDoc : public VOdxElement {
public:
    ~VRelatedDoc() override;
    virtual bool HasXdoc() const = 0;
    virtual VXdoc& GetXdoc() = 0;
};

/// XDOC
class DIAGKIT_EXPORT VXdoc : public VOdxElement {
public:
    ~VXdoc() override;
};

} // namespace NODX201
