// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/RowParts.h>

// ADMIN-DATA, COMPANY-DATA, SDG.

// clang-format off

namespace NReader {

using namespace NMemory;

VElementType const& TypeOf(VMemSdgCaption*) {
    using T = VMemSdgCaption;
    static VElementType const type = IdentTable<T>({}, {});
    return type;
}

VElementType const& TypeOf(VMemSd*) {
    using T = VMemSd;
    using R = VRows<T>;
    static VElementType const type = TextTable<T, &T::SetText>({R::Attribute<&T::SetSi>("SI"), R::Attribute<&T::SetTextId>("TI")});
    return type;
}

VElementType const& TypeOf(VMemSdg*) {
    using T = VMemSdg;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Child<&T::MakeSdgCaption>("SDG-CAPTION"),
        R::Item<&T::AddSdg>("SDG"),
        R::Item<&T::AddSd>("SD"),
    });
    return type;
}

VElementType const& TypeOf(VMemCompanyDocInfo*) {
    using T = VMemCompanyDocInfo;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Link<&T::SetCompanyDataRef>("COMPANY-DATA-REF", Required),
        R::Link<&T::SetTeamMemberRef>("TEAM-MEMBER-REF"),
        R::Text<&T::SetDocLabel>("DOC-LABEL"),
        SdgsRow<T>(),
    });
    return type;
}

VElementType const& TypeOf(VMemCompanyRevisionInfo*) {
    using T = VMemCompanyRevisionInfo;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Link<&T::SetCompanyDataRef>("COMPANY-DATA-REF", Required),
        R::Text<&T::SetRevisionLabel>("REVISION-LABEL"),
        R::Text<&T::SetState>("STATE"),
    });
    return type;
}

VElementType const& TypeOf(VMemModification*) {
    using T = VMemModification;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Text<&T::SetChange>("CHANGE", Required),
        R::Text<&T::SetReason>("REASON"),
    });
    return type;
}

VElementType const& TypeOf(VMemDocRevision*) {
    using T = VMemDocRevision;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Link<&T::SetTeamMemberRef>("TEAM-MEMBER-REF"),
        R::Text<&T::SetRevisionLabel>("REVISION-LABEL"),
        R::Text<&T::SetState>("STATE"),
        R::Text<&T::SetDate>("DATE", Required, VContent::Date),
        R::Text<&T::SetTool>("TOOL"),
        R::Wrapper<&T::MakeCompanyRevisionInfoCollection>("COMPANY-REVISION-INFOS", Optional, {R::Item<&T::AddCompanyRevisionInfo>("COMPANY-REVISION-INFO")}),
        R::Wrapper<&T::MakeModificationCollection>("MODIFICATIONS", Optional, {R::Item<&T::AddModification>("MODIFICATION")}),
    });
    return type;
}

VElementType const& TypeOf(VMemAdminData*) {
    using T = VMemAdminData;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Text<&T::SetLanguage>("LANGUAGE"),
        R::Wrapper<&T::MakeCompanyDocInfoCollection>("COMPANY-DOC-INFOS", Optional, {R::Item<&T::AddCompanyDocInfo>("COMPANY-DOC-INFO")}),
        R::Wrapper<&T::MakeDocRevisionCollection>("DOC-REVISIONS", Optional, {R::Item<&T::AddDocRevision>("DOC-REVISION")}),
    });
    return type;
}

VElementType const& TypeOf(VMemXdoc*) {
    using T = VMemXdoc;
    using R = VRows<T>;
    static VElementType const type = NamedTable<T>({}, {
        R::Text<&T::SetNumber>("NUMBER"),
        R::Text<&T::SetState>("STATE"),
        R::Text<&T::SetDate>("DATE", Optional, VContent::Date),
        R::Text<&T::SetPublisher>("PUBLISHER"),
        R::Text<&T::SetUrl>("URL"),
        R::Text<&T::SetPlace>("POSITION"),
    });
    return type;
}

VElementType const& TypeOf(VMemRelatedDoc*) {
    using T = VMemRelatedDoc;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Child<&T::MakeXdoc>("XDOC", Required),
        R::Markup<&T::SetDesc>("DESC"),
    });
    return type;
}

VElementType const& TypeOf(VMemCompanySpecificInfo*) {
    using T = VMemCompanySpecificInfo;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Wrapper<&T::MakeRelatedDocCollection>("RELATED-DOCS", Optional, {R::Item<&T::AddRelatedDoc>("RELATED-DOC")}),
        SdgsRow<T>(),
    });
    return type;
}

VElementType const& TypeOf(VMemTeamMember*) {
    using T = VMemTeamMember;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({}, {
        RolesRow<T>(),
        R::Text<&T::SetDepartment>("DEPARTMENT"),
        R::Text<&T::SetAddress>("ADDRESS"),
        R::Text<&T::SetZip>("ZIP"),
        R::Text<&T::SetCity>("CITY"),
        R::Text<&T::SetPhone>("PHONE"),
        R::Text<&T::SetFax>("FAX"),
        R::Text<&T::SetEmail>("EMAIL"),
    });
    return type;
}

VElementType const& TypeOf(VMemCompanyData*) {
    using T = VMemCompanyData;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({}, {
        RolesRow<T>(),
        R::Wrapper<&T::MakeTeamMemberCollection>("TEAM-MEMBERS", Optional, {R::Item<&T::AddTeamMember>("TEAM-MEMBER")}),
        R::Child<&T::MakeCompanySpecificInfo>("COMPANY-SPECIFIC-INFO"),
    });
    return type;
}

} // namespace NReader

// clang-format on
