// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/Sdgs.h>
#include <diagkit/model/AdminData.h>

/// ADMIN-DATA and COMPANY-DATA.

namespace NMemory {

/// COMPANY-DATA-REF
class VMemCompanyDataLink final
    : public VMemLink<NODX201::VCompanyDataLink, Tag::CompanyDataRef, NODX201::VCompanyData> {
public:
    using VMemLink::VMemLink;
    bool HasCompanyData() const override { return FindById(); }
    NODX201::VCompanyData& GetCompanyData() override { return Found(); }
};

/// TEAM-MEMBER-REF
class VMemTeamMemberLink final : public VMemLink<NODX201::VTeamMemberLink, Tag::TeamMemberRef, NODX201::VTeamMember> {
public:
    using VMemLink::VMemLink;
    bool HasTeamMember() const override { return FindById(); }
    NODX201::VTeamMember& GetTeamMember() override { return Found(); }
};

/// COMPANY-DOC-INFO
class VMemCompanyDocInfo final : public VWithSdgs<VMemElement<NODX201::VCompanyDocInfo, Tag::CompanyDocInfo>> {
public:
    using VWithSdgs::VWithSdgs;

    bool HasCompanyDataRef() const override { return m_companyDataRef != nullptr; }
    VMemCompanyDataLink& GetCompanyDataRef() override { return *m_companyDataRef; }
    VMemCompanyDataLink& SetCompanyDataRef(VReference const& reference) {
        return MakeLink(m_companyDataRef, Inside(), reference);
    }
    void RemoveCompanyDataRef() { m_companyDataRef.reset(); }

    bool HasTeamMemberRef() const override { return m_teamMemberRef != nullptr; }
    VMemTeamMemberLink& GetTeamMemberRef() override { return *m_teamMemberRef; }
    VMemTeamMemberLink& SetTeamMemberRef(VReference const& reference) {
        return MakeLink(m_teamMemberRef, Inside(), reference);
    }
    void RemoveTeamMemberRef() { m_teamMemberRef.reset(); }

    wchar_t const* GetDocLabel() const { return m_docLabel; } ///< DOC-LABEL
    void SetDocLabel(wchar_t const* text) { m_docLabel = Store(text); }

private:
    std::unique_ptr<VMemCompanyDataLink> m_companyDataRef;
    std::unique_ptr<VMemTeamMemberLink> m_teamMemberRef;
    wchar_t const* m_docLabel = L"";
};

/// COMPANY-REVISION-INFO
class VMemCompanyRevisionInfo final : public VMemElement<NODX201::VCompanyRevisionInfo, Tag::CompanyRevisionInfo> {
public:
    using VMemElement::VMemElement;

    bool HasCompanyDataRef() const override { return m_companyDataRef != nullptr; }
    VMemCompanyDataLink& GetCompanyDataRef() override { return *m_companyDataRef; }
    VMemCompanyDataLink& SetCompanyDataRef(VReference const& reference) {
        return MakeLink(m_companyDataRef, Inside(), reference);
    }
    void RemoveCompanyDataRef() { m_companyDataRef.reset(); }

    wchar_t const* GetRevisionLabel() const { return m_revisionLabel; } ///< REVISION-LABEL
    void SetRevisionLabel(wchar_t const* text) { m_revisionLabel = Store(text); }

    wchar_t const* GetState() const { return m_state; } ///< STATE
    void SetState(wchar_t const* text) { m_state = Store(text); }

private:
    std::unique_ptr<VMemCompanyDataLink> m_companyDataRef;
    wchar_t const* m_revisionLabel = L"";
    wchar_t const* m_state = L"";
};

/// MODIFICATION
class VMemModification final : public VMemElement<NODX201::VModification, Tag::Modification> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetChange() const { return m_change; } ///< CHANGE
    void SetChange(wchar_t const* text) { m_change = Store(text); }

    wchar_t const* GetReason() const { return m_reason; } ///< REASON
    void SetReason(wchar_t const* text) { m_reason = Store(text); }

private:
    wchar_t const* m_change = L"";
    wchar_t const* m_reason = L"";
};

/// DOC-REVISION
class VMemDocRevision final : public VMemElement<NODX201::VDocRevision, Tag::DocRevision> {
public:
    using VMemElement::VMemElement;

    bool HasTeamMemberRef() const override { return m_teamMemberRef != nullptr; }
    VMemTeamMemberLink& GetTeamMemberRef() override { return *m_teamMemberRef; }
    VMemTeamMemberLink& SetTeamMemberRef(VReference const& reference) {
        return MakeLink(m_teamMemberRef, Inside(), reference);
    }
    void RemoveTeamMemberRef() { m_teamMemberRef.reset(); }

    wchar_t const* GetRevisionLabel() const { return m_revisionLabel; } ///< REVISION-LABEL
    void SetRevisionLabel(wchar_t const* text) { m_revisionLabel = Store(text); }

    wchar_t const* GetState() const { return m_state; } ///< STATE
    void SetState(wchar_t const* text) { m_state = Store(text); }

    wchar_t const* GetDate() const { return m_date; } ///< DATE
    void SetDate(wchar_t const* text) { m_date = Store(text); }

    wchar_t const* GetTool() const { return m_tool; } ///< TOOL
    void SetTool(wchar_t const* text) { m_tool = Store(text); }

    NODX201::VCompanyRevisionInfoCollection& CompanyRevisionInfoCollection() override {
        return m_companyRevisionInfo.Get();
    } ///< COMPANY-REVISION-INFOS
    VMemCollection<NODX201::VCompanyRevisionInfoCollection>& MakeCompanyRevisionInfoCollection() {
        return m_companyRevisionInfo.Make();
    }
    VMemCompanyRevisionInfo& AddCompanyRevisionInfo() {
        return AddPlain<VMemCompanyRevisionInfo>(m_companyRevisionInfo, Inside());
    }

    NODX201::VModificationCollection& ModificationCollection() override {
        return m_modification.Get();
    } ///< MODIFICATIONS
    VMemCollection<NODX201::VModificationCollection>& MakeModificationCollection() { return m_modification.Make(); }
    VMemModification& AddModification() { return AddPlain<VMemModification>(m_modification, Inside()); }

private:
    std::unique_ptr<VMemTeamMemberLink> m_teamMemberRef;
    wchar_t const* m_revisionLabel = L"";
    wchar_t const* m_state = L"";
    wchar_t const* m_date = L"";
    wchar_t const* m_tool = L"";
    VMemMany<NODX201::VCompanyRevisionInfoCollection> m_companyRevisionInfo;
    VMemMany<NODX201::VModificationCollection> m_modification;
};

/// ADMIN-DATA
class VMemAdminData final : public VMemElement<NODX201::VAdminData, Tag::AdminData> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetLanguage() const { return m_language; } ///< LANGUAGE
    void SetLanguage(wchar_t const* text) { m_language = Store(text); }

    NODX201::VCompanyDocInfoCollection& CompanyDocInfoCollection() override {
        return m_companyDocInfo.Get();
    } ///< COMPANY-DOC-INFOS
    VMemCollection<NODX201::VCompanyDocInfoCollection>& MakeCompanyDocInfoCollection() {
        return m_companyDocInfo.Make();
    }
    VMemCompanyDocInfo& AddCompanyDocInfo() { return AddPlain<VMemCompanyDocInfo>(m_companyDocInfo, Inside()); }

    NODX201::VDocRevisionCollection& DocRevisionCollection() override { return m_docRevision.Get(); } ///< DOC-REVISIONS
    VMemCollection<NODX201::VDocRevisionCollection>& MakeDocRevisionCollection() { return m_docRevision.Make(); }
    VMemDocRevision& AddDocRevision() { return AddPlain<VMemDocRevision>(m_docRevision, Inside()); }

private:
    wchar_t const* m_language = L"";
    VMemMany<NODX201::VCompanyDocInfoCollection> m_companyDocInfo;
    VMemMany<NODX201::VDocRevisionCollection> m_docRevision;
};

/// XDOC
class VMemXdoc final : public VMemNamed<NODX201::VXdoc, Tag::Xdoc> {
public:
    using VMemNamed::VMemNamed;

    wchar_t const* GetNumber() const { return m_number; } ///< NUMBER
    void SetNumber(wchar_t const* text) { m_number = Store(text); }

    wchar_t const* GetState() const { return m_state; } ///< STATE
    void SetState(wchar_t const* text) { m_state = Store(text); }

    wchar_t const* GetDate() const { return m_date; } ///< DATE
    void SetDate(wchar_t const* text) { m_date = Store(text); }

    wchar_t const* GetPublisher() const { return m_publisher; } ///< PUBLISHER
    void SetPublisher(wchar_t const* text) { m_publisher = Store(text); }

    wchar_t const* GetUrl() const { return m_url; } ///< URL
    void SetUrl(wchar_t const* text) { m_url = Store(text); }

    wchar_t const* GetPlace() const { return m_place; } ///< POSITION
    void SetPlace(wchar_t const* text) { m_place = Store(text); }

private:
    wchar_t const* m_number = L"";
    wchar_t const* m_state = L"";
    wchar_t const* m_date = L"";
    wchar_t const* m_publisher = L"";
    wchar_t const* m_url = L"";
    wchar_t const* m_place = L"";
};

/// RELATED-DOC
class VMemRelatedDoc final : public VMemElement<NODX201::VRelatedDoc, Tag::RelatedDoc> {
public:
    using VMemElement::VMemElement;

    bool HasXdoc() const override { return m_xdoc != nullptr; } ///< XDOC
    VMemXdoc& GetXdoc() override { return *m_xdoc; }
    VMemXdoc& MakeXdoc() { return MakeChild(m_xdoc, Inside()); }
    void RemoveXdoc() { m_xdoc.reset(); }

    wchar_t const* GetDesc() const { return m_desc; } ///< DESC
    void SetDesc(wchar_t const* text) { m_desc = Store(text); }

private:
    std::unique_ptr<VMemXdoc> m_xdoc;
    wchar_t const* m_desc = L"";
};

/// COMPANY-SPECIFIC-INFO
class VMemCompanySpecificInfo final
    : public VWithSdgs<VMemElement<NODX201::VCompanySpecificInfo, Tag::CompanySpecificInfo>> {
public:
    using VWithSdgs::VWithSdgs;

    NODX201::VRelatedDocCollection& RelatedDocCollection() override { return m_relatedDoc.Get(); } ///< RELATED-DOCS
    VMemCollection<NODX201::VRelatedDocCollection>& MakeRelatedDocCollection() { return m_relatedDoc.Make(); }
    VMemRelatedDoc& AddRelatedDoc() { return AddPlain<VMemRelatedDoc>(m_relatedDoc, Inside()); }

private:
    VMemMany<NODX201::VRelatedDocCollection> m_relatedDoc;
};

/// TEAM-MEMBER
class VMemTeamMember final : public VMemIdent<NODX201::VTeamMember, Tag::TeamMember> {
public:
    using VMemIdent::VMemIdent;

    NODX201::VStringCollection& RoleCollection() override { return m_role.Get(); } ///< ROLES
    void AddRole(wchar_t const* text) { m_role.Add(Part(), text); }

    wchar_t const* GetDepartment() const { return m_department; } ///< DEPARTMENT
    void SetDepartment(wchar_t const* text) { m_department = Store(text); }

    wchar_t const* GetAddress() const { return m_address; } ///< ADDRESS
    void SetAddress(wchar_t const* text) { m_address = Store(text); }

    wchar_t const* GetZip() const { return m_zip; } ///< ZIP
    void SetZip(wchar_t const* text) { m_zip = Store(text); }

    wchar_t const* GetCity() const { return m_city; } ///< CITY
    void SetCity(wchar_t const* text) { m_city = Store(text); }

    wchar_t const* GetPhone() const { return m_phone; } ///< PHONE
    void SetPhone(wchar_t const* text) { m_phone = Store(text); }

    wchar_t const* GetFax() const { return m_fax; } ///< FAX
    void SetFax(wchar_t const* text) { m_fax = Store(text); }

    wchar_t const* GetEmail() const { return m_email; } ///< EMAIL
    void SetEmail(wchar_t const* text) { m_email = Store(text); }

private:
    VMemStrings m_role;
    wchar_t const* m_department = L"";
    wchar_t const* m_address = L"";
    wchar_t const* m_zip = L"";
    wchar_t const* m_city = L"";
    wchar_t const* m_phone = L"";
    wchar_t const* m_fax = L"";
    wchar_t const* m_email = L"";
};

/// COMPANY-DATA
class VMemCompanyData final : public VMemIdent<NODX201::VCompanyData, Tag::CompanyData> {
public:
    using VMemIdent::VMemIdent;

    NODX201::VStringCollection& RoleCollection() override { return m_role.Get(); } ///< ROLES
    void AddRole(wchar_t const* text) { m_role.Add(Part(), text); }

    NODX201::VTeamMemberCollection& TeamMemberCollection() override { return m_teamMember.Get(); } ///< TEAM-MEMBERS
    VMemCollection<NODX201::VTeamMemberCollection>& MakeTeamMemberCollection() { return m_teamMember.Make(); }
    VMemTeamMember& AddTeamMember(wchar_t const* shortName) {
        return AddNamed<VMemTeamMember>(m_teamMember, Inside(), shortName);
    }

    bool HasCompanySpecificInfo() const override { return m_companySpecificInfo != nullptr; }
    VMemCompanySpecificInfo& GetCompanySpecificInfo() override { return *m_companySpecificInfo; }
    VMemCompanySpecificInfo& MakeCompanySpecificInfo() { return MakeChild(m_companySpecificInfo, Inside()); }
    void RemoveCompanySpecificInfo() { m_companySpecificInfo.reset(); }

private:
    VMemStrings m_role;
    VMemMany<NODX201::VTeamMemberCollection> m_teamMember;
    std::unique_ptr<VMemCompanySpecificInfo> m_companySpecificInfo;
};

/// Adds ADMIN-DATA to an element.
template <class Base>
class VWithAdminData : public Base {
public:
    using Base::Base;

    bool HasAdminData() const { return m_adminData != nullptr; }
    VMemAdminData& GetAdminData() { return *m_adminData; }
    VMemAdminData& MakeAdminData() { return MakeChild(m_adminData, this->Inside()); }
    void RemoveAdminData() { m_adminData.reset(); }

private:
    std::unique_ptr<VMemAdminData> m_adminData;
};

/// Adds COMPANY-DATAS to a layer or category.
template <class Base>
class VWithCompanyDatas : public Base {
public:
    using Base::Base;

    NODX201::VCompanyDataCollection& CompanyDataCollection() { return m_companyData.Get(); } ///< COMPANY-DATAS
    VMemCollection<NODX201::VCompanyDataCollection>& MakeCompanyDataCollection() { return m_companyData.Make(); }
    VMemCompanyData& AddCompanyData(wchar_t const* shortName) {
        return AddNamed<VMemCompanyData>(m_companyData, this->Inside(), shortName);
    }

private:
    VMemMany<NODX201::VCompanyDataCollection> m_companyData;
};

} // namespace NMemory
