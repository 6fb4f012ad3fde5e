// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Literals.h>
#include <diagkit/reader/RowParts.h>

// Flash data.

// clang-format off

namespace NReader {

using namespace NMemory;

VElementType const& TypeOf(VMemIdentValue*) {
    using T = VMemIdentValue;
    static VElementType const type = TextTable<T, &T::SetText>({LiteralAttribute<T, &T::SetType, &Mapper::GetIdentValueTypeStr>("TYPE", Required)});
    return type;
}

VElementType const& TypeOf(VMemChecksumResult*) {
    using T = VMemChecksumResult;
    static VElementType const type = TextTable<T, &T::SetText>({LiteralAttribute<T, &T::SetType, &Mapper::GetSessionSubElemTypeStr>("TYPE", Required)});
    return type;
}

VElementType const& TypeOf(VMemSecurityMethod*) {
    using T = VMemSecurityMethod;
    static VElementType const type = TextTable<T, &T::SetText>({LiteralAttribute<T, &T::SetType, &Mapper::GetSessionSubElemTypeStr>("TYPE", Required)});
    return type;
}

VElementType const& TypeOf(VMemFwSignature*) {
    using T = VMemFwSignature;
    static VElementType const type = TextTable<T, &T::SetText>({LiteralAttribute<T, &T::SetType, &Mapper::GetSessionSubElemTypeStr>("TYPE", Required)});
    return type;
}

VElementType const& TypeOf(VMemFwChecksum*) {
    using T = VMemFwChecksum;
    static VElementType const type = TextTable<T, &T::SetText>({LiteralAttribute<T, &T::SetType, &Mapper::GetSessionSubElemTypeStr>("TYPE", Required)});
    return type;
}

VElementType const& TypeOf(VMemValidityFor*) {
    using T = VMemValidityFor;
    static VElementType const type = TextTable<T, &T::SetText>({LiteralAttribute<T, &T::SetType, &Mapper::GetSessionSubElemTypeStr>("TYPE", Required)});
    return type;
}

VElementType const& TypeOf(VMemEncryptCompressMethod*) {
    using T = VMemEncryptCompressMethod;
    static VElementType const type = TextTable<T, &T::SetText>({LiteralAttribute<T, &T::SetType, &Mapper::GetEncryptCompressMethodTypeStr>("TYPE", Required)});
    return type;
}

VElementType const& TypeOf(VMemExpectedIdent*) {
    using T = VMemExpectedIdent;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({}, {
        R::Wrapper<&T::MakeIdentValueCollection>("IDENT-VALUES", Required, {R::Item<&T::AddIdentValue>("IDENT-VALUE")}),
    });
    return type;
}

VElementType const& TypeOf(VMemOwnIdent*) {
    using T = VMemOwnIdent;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({}, {
        R::Child<&T::MakeIdentValue>("IDENT-VALUE", Required),
    });
    return type;
}

VElementType const& TypeOf(VMemSecurity*) {
    using T = VMemSecurity;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Child<&T::MakeSecurityMethod>("SECURITY-METHOD"),
        R::Child<&T::MakeFwSignature>("FW-SIGNATURE"),
        R::Child<&T::MakeFwChecksum>("FW-CHECKSUM"),
        R::Child<&T::MakeValidityFor>("VALIDITY-FOR"),
    });
    return type;
}

template <class T>
VRow SecuritiesRow() {
    using R = VRows<T>;
    return R::template Wrapper<&T::MakeSecurityCollection>("SECURITYS", Optional, {R::template Item<&T::AddSecurity>("SECURITY")});
}

VElementType const& TypeOf(VMemChecksum*) {
    using T = VMemChecksum;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({}, {
        R::Text<&T::SetFillbyte>("FILLBYTE", Optional, VContent::Hex),
        R::Text<&T::SetSourceStartAddress>("SOURCE-START-ADDRESS", Required, VContent::Hex),
        R::Text<&T::SetCompressedSize>("COMPRESSED-SIZE", Optional, VContent::Uint),
        R::Text<&T::SetChecksumAlg>("CHECKSUM-ALG"),
        R::Text<&T::SetSourceEndAddress>("SOURCE-END-ADDRESS", Required, VContent::Hex, nullptr, 1),
        R::Text<&T::SetUncompressedSize>("UNCOMPRESSED-SIZE", Required, VContent::Uint, nullptr, 1),
        R::Child<&T::MakeChecksumResult>("CHECKSUM-RESULT", Required),
    });
    return type;
}

VElementType const& TypeOf(VMemSession*) {
    using T = VMemSession;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({}, {
        R::Wrapper<&T::MakeExpectedIdentCollection>("EXPECTED-IDENTS", Optional, {R::Item<&T::AddExpectedIdent>("EXPECTED-IDENT")}),
        R::Wrapper<&T::MakeChecksumCollection>("CHECKSUMS", Optional, {R::Item<&T::AddChecksum>("CHECKSUM")}),
        SecuritiesRow<T>(),
        R::Wrapper<&T::MakeDatablockLinkCollection>("DATABLOCK-REFS", Required, {R::Link<&T::AddDatablockRef>("DATABLOCK-REF", Many)}),
        SdgsRow<T>(),
    });
    return type;
}

VElementType const& TypeOf(VMemDataformat*) {
    using T = VMemDataformat;
    static VElementType const type = TextTable<T, &T::SetText>({LiteralAttribute<T, &T::SetSelection, &Mapper::GetDataformatSelectionStr>("SELECTION", Required)});
    return type;
}

/// An element whose xsi:type says no more than what it holds.
VElementType WithKinds(std::vector<VKind> kinds, VElementType type) {
    type.kinds = std::move(kinds);
    return type;
}

VRow DatafileRow() {
    using R = VRows<VMemFlashdata>;
    VRow row = R::Text<&VMemFlashdata::SetDatafile>("DATAFILE");
    VElementType type = row.Type();
    type.attributes = {R::Flag<&VMemFlashdata::SetIsLatebound>("LATEBOUND-DATAFILE", Required)};
    row.ownType = std::make_shared<VElementType const>(std::move(type));
    return row;
}

VElementType const& TypeOf(VMemFlashdata*) {
    using T = VMemFlashdata;
    using R = VRows<T>;
    static VElementType const type = WithKinds({{"INTERN-FLASHDATA", "DATA"}, {"EXTERN-FLASHDATA", "DATAFILE"}}, IdentTable<T>({}, {
        R::Child<&T::MakeDataformat>("DATAFORMAT", Required),
        R::Child<&T::MakeEncryptCompressMethod>("ENCRYPT-COMPRESS-METHOD"),
        R::Text<&T::SetData>("DATA"),
        DatafileRow(),
    }));
    return type;
}

/// FLASHDATA, whose kind is its xsi:type or shows from its contents.
VOpened OpenFlashdata(VLoader& loader, void* owner, VRow const&, VAttributes const& attributes) {
    std::string const type = XsiTypeIn(attributes); // held against the kinds of the table when it is open
    if (type != "INTERN-FLASHDATA" && type != "EXTERN-FLASHDATA") {
        ReportUnknownType(loader, type);
        return VOpened{nullptr, nullptr, true};
    }
    VMemFlashdata& flashdata = VRows<VMemMem>::Owner(owner).AddFlashdata(L"");
    flashdata.SetKind(type == "INTERN-FLASHDATA" ? Tag::InternFlashdata : Tag::ExternFlashdata);
    NoteElement(loader, flashdata);
    return VOpened{&flashdata, &TypeOf(&flashdata)};
}

VElementType const& TypeOf(VMemFilter*) {
    using T = VMemFilter;
    using R = VRows<T>;
    static VElementType const type = WithKinds({{"ADDRDEF-FILTER", "FILTER-END"}, {"SIZEDEF-FILTER", "FILTER-SIZE"}}, Table({}, {
        R::Text<&T::SetFilterStart>("FILTER-START", Required, VContent::Hex),
        R::Text<&T::SetFilterEnd>("FILTER-END", Optional, VContent::Hex),
        R::Text<&T::SetFilterSize>("FILTER-SIZE", Optional, VContent::Uint),
    }));
    return type;
}

VElementType const& TypeOf(VMemSegment*) {
    using T = VMemSegment;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({}, {
        R::Text<&T::SetSourceStartAddress>("SOURCE-START-ADDRESS", Required, VContent::Hex),
        R::Text<&T::SetCompressedSize>("COMPRESSED-SIZE", Optional, VContent::Uint),
        R::Text<&T::SetUncompressedSize>("UNCOMPRESSED-SIZE", Required, VContent::Uint, nullptr, 1),
        R::Text<&T::SetSourceEndAddress>("SOURCE-END-ADDRESS", Required, VContent::Hex, nullptr, 1),
    });
    return type;
}

VElementType const& TypeOf(VMemTargetAddrOffset*) {
    using T = VMemTargetAddrOffset;
    using R = VRows<T>;
    static VElementType const type = WithKinds({{"POS-OFFSET", "POSITIVE-OFFSET"}, {"NEG-OFFSET", "NEGATIVE-OFFSET"}}, Table({}, {
        R::Text<&T::SetPositiveOffset>("POSITIVE-OFFSET", Optional, VContent::Hex),
        R::Text<&T::SetNegativeOffset>("NEGATIVE-OFFSET", Optional, VContent::Hex),
    }));
    return type;
}

VElementType const& TypeOf(VMemDatablock*) {
    using T = VMemDatablock;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({R::Attribute<&T::SetType>("TYPE", Required)}, {
        R::Link<&T::SetFlashdataRef>("FLASHDATA-REF", Required),
        R::Wrapper<&T::MakeFilterCollection>("FILTERS", Optional, {R::Item<&T::AddFilter>("FILTER")}),
        R::Wrapper<&T::MakeSegmentCollection>("SEGMENTS", Optional, {R::Item<&T::AddSegment>("SEGMENT")}),
        R::Child<&T::MakeTargetAddrOffset>("TARGET-ADDR-OFFSET"),
        R::Wrapper<&T::MakeOwnIdentCollection>("OWN-IDENTS", Optional, {R::Item<&T::AddOwnIdent>("OWN-IDENT")}),
        SecuritiesRow<T>(),
        SdgsRow<T>(),
    });
    return type;
}

VElementType const& TypeOf(VMemMem*) {
    using T = VMemMem;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Wrapper<&T::MakeSessionCollection>("SESSIONS", Required, {R::Item<&T::AddSession>("SESSION")}),
        R::Wrapper<&T::MakeDatablockCollection>("DATABLOCKS", Required, {R::Item<&T::AddDatablock>("DATABLOCK")}),
        R::Wrapper<&T::MakeFlashdataCollection>("FLASHDATAS", Required, {R::Special("FLASHDATA", Many, &OpenFlashdata)}),
    });
    return type;
}

VElementType const& TypeOf(VMemProjectIdent*) {
    using T = VMemProjectIdent;
    using R = VRows<T>;
    static VElementType const type = Table({LiteralAttribute<T, &T::SetType, &Mapper::GetProjIdentTypeStr>("TYPE", Required)}, {
        R::Text<&T::SetName>("NAME", Required),
        R::Text<&T::SetValue>("VALUE", Required),
    });
    return type;
}

VElementType const& TypeOf(VMemProjectInfo*) {
    using T = VMemProjectInfo;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Text<&T::SetEcuFamilyDesc>("ECU-FAMILY-DESC"),
        R::Text<&T::SetModificationLetter>("MODIFICATION-LETTER"),
        R::Link<&T::SetCompanyDataRef>("COMPANY-DATA-REF", Required),
        R::Wrapper<&T::MakeProjectIdentCollection>("PROJECT-IDENTS", Required, {R::Item<&T::AddProjectIdent>("PROJECT-IDENT")}),
    });
    return type;
}

VElementType const& TypeOf(VMemPhysSegment*) {
    using T = VMemPhysSegment;
    using R = VRows<T>;
    static VElementType const type = WithKinds({{"ADDRDEF-PHYS-SEGMENT", "END-ADDRESS"}, {"SIZEDEF-PHYS-SEGMENT", "SIZE"}}, IdentTable<T>({}, {
        R::Text<&T::SetFillbyte>("FILLBYTE", Optional, VContent::Hex),
        R::Text<&T::SetBlockSize>("BLOCK-SIZE", Optional, VContent::Uint),
        R::Text<&T::SetStartAddress>("START-ADDRESS", Required, VContent::Hex),
        R::Text<&T::SetEndAddress>("END-ADDRESS", Optional, VContent::Hex),
        R::Text<&T::SetSize>("SIZE", Optional, VContent::Uint),
    }));
    return type;
}

VElementType const& TypeOf(VMemPhysMem*) {
    using T = VMemPhysMem;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({}, {
        R::Wrapper<&T::MakePhysSegmentCollection>("PHYS-SEGMENTS", Required, {R::Item<&T::AddPhysSegment>("PHYS-SEGMENT")}),
    });
    return type;
}

VElementType const& TypeOf(VMemEcuMem*) {
    using T = VMemEcuMem;
    using R = VRows<T>;
    auto const openMem = [](VLoader& loader, void* owner, VRow const&, VAttributes const&) {
        VMemMem& mem = R::Owner(owner).GetMem();
        NoteElement(loader, mem);
        return VOpened{&mem, &TypeOf(&mem)};
    };
    static VElementType const type = IdentTable<T>({}, {
        AdminDataRow<T>(),
        R::Wrapper<&T::MakeProjectInfoCollection>("PROJECT-INFOS", Optional, {R::Item<&T::AddProjectInfo>("PROJECT-INFO")}),
        R::Special("MEM", Required, openMem),
        R::Child<&T::MakePhysMem>("PHYS-MEM"),
    });
    return type;
}

VElementType const& TypeOf(VMemFlashClass*) {
    using T = VMemFlashClass;
    static VElementType const type = IdentTable<T>({}, {});
    return type;
}

VElementType const& TypeOf(VMemSessionDesc*) {
    using T = VMemSessionDesc;
    using R = VRows<T>;
    static VElementType const type = NamedTable<T>({
        R::Attribute<&T::SetOid>("OID"),
        LiteralAttribute<T, &T::SetDirection, &Mapper::GetDirectionStr>("DIRECTION", Required),
    }, {
        R::Text<&T::SetPartnumber>("PARTNUMBER"),
        R::Text<&T::SetPriority>("PRIORITY", Optional, VContent::Uint),
        R::Snref<&T::SetSessionSnref>("SESSION-SNREF", Required),
        R::Snref<&T::SetDiagCommSnref>("DIAG-COMM-SNREF", Required),
        R::Wrapper<&T::MakeFlashClassLinkCollection>("FLASH-CLASS-REFS", Optional, {R::Link<&T::AddFlashClassRef>("FLASH-CLASS-REF", Many)}),
        SdgsRow<T>(),
    });
    return type;
}

VElementType const& TypeOf(VMemIdentDesc*) {
    using T = VMemIdentDesc;
    using R = VRows<T>;
    static VElementType const type = Table({}, {
        R::Snref<&T::SetDiagCommSnref>("DIAG-COMM-SNREF", Required),
        R::Snref<&T::SetIdentIfSnref>("IDENT-IF-SNREF", Required),
        R::Snref<&T::SetOutParamIfSnref>("OUT-PARAM-IF-SNREF", Required),
    });
    return type;
}

VElementType const& TypeOf(VMemEcuMemConnector*) {
    using T = VMemEcuMemConnector;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({}, {
        AdminDataRow<T>(),
        R::Wrapper<&T::MakeFlashClassCollection>("FLASH-CLASSS", Optional, {R::Item<&T::AddFlashClass>("FLASH-CLASS")}),
        R::Wrapper<&T::MakeSessionDescCollection>("SESSION-DESCS", Optional, {R::Item<&T::AddSessionDesc>("SESSION-DESC")}),
        R::Wrapper<&T::MakeIdentDescCollection>("IDENT-DESCS", Optional, {R::Item<&T::AddIdentDesc>("IDENT-DESC")}),
        R::Link<&T::SetEcuMemRef>("ECU-MEM-REF", Required),
        R::Wrapper<&T::MakeDiagLayerLinkCollection>("LAYER-REFS", Optional, {R::Link<&T::AddLayerRef>("LAYER-REF", Many)}),
    });
    return type;
}

VElementType const& TypeOf(VMemFlash*) {
    using T = VMemFlash;
    using R = VRows<T>;
    static VElementType const type = IdentTable<T>({}, {
        AdminDataRow<T>(),
        CompanyDatasRow<T>(),
        R::Wrapper<&T::MakeEcuMemCollection>("ECU-MEMS", Optional, {R::Item<&T::AddEcuMem>("ECU-MEM")}),
        R::Wrapper<&T::MakeEcuMemConnectorCollection>("ECU-MEM-CONNECTORS", Optional, {R::Item<&T::AddEcuMemConnector>("ECU-MEM-CONNECTOR")}),
    });
    return type;
}

} // namespace NReader

// clang-format on
