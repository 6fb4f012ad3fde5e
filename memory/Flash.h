// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/AdminData.h>
#include <diagkit/memory/DiagCommLinks.h>
#include <diagkit/memory/MultipleEcuJobs.h>
#include <diagkit/model/Flash.h>

/// Flash data.

namespace NMemory {

/// IDENT-VALUE
class VMemIdentValue final : public VMemElement<NODX201::VIdentValue, Tag::IdentValue> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetType() const { return m_type; } ///< @TYPE
    void SetType(wchar_t const* text) { m_type = Store(text); }

    wchar_t const* GetText() const { return m_text; } ///< the text itself
    void SetText(wchar_t const* text) { m_text = Store(text); }

private:
    wchar_t const* m_type = L"";
    wchar_t const* m_text = L"";
};

class VIdentValueCollection : public NODX201::VElementCollection<VMemIdentValue> {};

/// EXPECTED-IDENT
class VMemExpectedIdent final : public VMemIdent<NODX201::VExpectedIdent, Tag::ExpectedIdent> {
public:
    using VMemIdent::VMemIdent;

    VIdentValueCollection& IdentValueCollection() { return m_identValue.Get(); } ///< IDENT-VALUES
    VMemCollection<VIdentValueCollection>& MakeIdentValueCollection() { return m_identValue.Make(); }
    VMemIdentValue& AddIdentValue(wchar_t const* text) { return AddText<VMemIdentValue>(m_identValue, Inside(), text); }

private:
    VMemMany<VIdentValueCollection> m_identValue;
};

/// OWN-IDENT
class VMemOwnIdent final : public VMemIdent<NODX201::VOwnIdent, Tag::OwnIdent> {
public:
    using VMemIdent::VMemIdent;

    bool HasIdentValue() const { return m_identValue != nullptr; }
    VMemIdentValue& GetIdentValue() { return *m_identValue; }
    VMemIdentValue& MakeIdentValue(wchar_t const* text = L"") {
        return MakeTextChild(m_identValue, Inside(), text);
    } ///< IDENT-VALUE
    void RemoveIdentValue() { m_identValue.reset(); }

private:
    std::unique_ptr<VMemIdentValue> m_identValue;
};

/// CHECKSUM-RESULT
class VMemChecksumResult final : public VMemElement<NODX201::VChecksumResult, Tag::ChecksumResult> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetType() const { return m_type; } ///< @TYPE
    void SetType(wchar_t const* text) { m_type = Store(text); }

    wchar_t const* GetText() const { return m_text; } ///< the text itself
    void SetText(wchar_t const* text) { m_text = Store(text); }

private:
    wchar_t const* m_type = L"";
    wchar_t const* m_text = L"";
};

/// SECURITY-METHOD
class VMemSecurityMethod final : public VMemElement<NODX201::VOdxElement, Tag::SecurityMethod> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetType() const { return m_type; } ///< @TYPE
    void SetType(wchar_t const* text) { m_type = Store(text); }

    wchar_t const* GetText() const { return m_text; } ///< the text itself
    void SetText(wchar_t const* text) { m_text = Store(text); }

private:
    wchar_t const* m_type = L"";
    wchar_t const* m_text = L"";
};

/// FW-SIGNATURE
class VMemFwSignature final : public VMemElement<NODX201::VOdxElement, Tag::FwSignature> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetType() const { return m_type; } ///< @TYPE
    void SetType(wchar_t const* text) { m_type = Store(text); }

    wchar_t const* GetText() const { return m_text; } ///< the text itself
    void SetText(wchar_t const* text) { m_text = Store(text); }

private:
    wchar_t const* m_type = L"";
    wchar_t const* m_text = L"";
};

/// FW-CHECKSUM
class VMemFwChecksum final : public VMemElement<NODX201::VOdxElement, Tag::FwChecksum> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetType() const { return m_type; } ///< @TYPE
    void SetType(wchar_t const* text) { m_type = Store(text); }

    wchar_t const* GetText() const { return m_text; } ///< the text itself
    void SetText(wchar_t const* text) { m_text = Store(text); }

private:
    wchar_t const* m_type = L"";
    wchar_t const* m_text = L"";
};

/// VALIDITY-FOR
class VMemValidityFor final : public VMemElement<NODX201::VOdxElement, Tag::ValidityFor> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetType() const { return m_type; } ///< @TYPE
    void SetType(wchar_t const* text) { m_type = Store(text); }

    wchar_t const* GetText() const { return m_text; } ///< the text itself
    void SetText(wchar_t const* text) { m_text = Store(text); }

private:
    wchar_t const* m_type = L"";
    wchar_t const* m_text = L"";
};

/// SECURITY
class VMemSecurity final : public VMemElement<NODX201::VOdxElement, Tag::Security> {
public:
    using VMemElement::VMemElement;

    bool HasSecurityMethod() const { return m_securityMethod != nullptr; } ///< SECURITY-METHOD
    VMemSecurityMethod& GetSecurityMethod() { return *m_securityMethod; }
    VMemSecurityMethod& MakeSecurityMethod() { return MakeChild(m_securityMethod, Inside()); }
    void RemoveSecurityMethod() { m_securityMethod.reset(); }

    bool HasFwSignature() const { return m_fwSignature != nullptr; } ///< FW-SIGNATURE
    VMemFwSignature& GetFwSignature() { return *m_fwSignature; }
    VMemFwSignature& MakeFwSignature() { return MakeChild(m_fwSignature, Inside()); }
    void RemoveFwSignature() { m_fwSignature.reset(); }

    bool HasFwChecksum() const { return m_fwChecksum != nullptr; } ///< FW-CHECKSUM
    VMemFwChecksum& GetFwChecksum() { return *m_fwChecksum; }
    VMemFwChecksum& MakeFwChecksum() { return MakeChild(m_fwChecksum, Inside()); }
    void RemoveFwChecksum() { m_fwChecksum.reset(); }

    bool HasValidityFor() const { return m_validityFor != nullptr; } ///< VALIDITY-FOR
    VMemValidityFor& GetValidityFor() { return *m_validityFor; }
    VMemValidityFor& MakeValidityFor() { return MakeChild(m_validityFor, Inside()); }
    void RemoveValidityFor() { m_validityFor.reset(); }

private:
    std::unique_ptr<VMemSecurityMethod> m_securityMethod;
    std::unique_ptr<VMemFwSignature> m_fwSignature;
    std::unique_ptr<VMemFwChecksum> m_fwChecksum;
    std::unique_ptr<VMemValidityFor> m_validityFor;
};

class VSecurityCollection : public NODX201::VElementCollection<VMemSecurity> {};

/// Adds SECURITYS to an element.
template <class Base>
class VWithSecurities : public Base {
public:
    using Base::Base;

    VSecurityCollection& SecurityCollection() { return m_security.Get(); } ///< SECURITYS
    VMemCollection<VSecurityCollection>& MakeSecurityCollection() { return m_security.Make(); }
    VMemSecurity& AddSecurity() { return AddPlain<VMemSecurity>(m_security, this->Inside()); }

private:
    VMemMany<VSecurityCollection> m_security;
};

/// CHECKSUM
class VMemChecksum final : public VMemIdent<NODX201::VReferencable, Tag::Checksum> {
public:
    using VMemIdent::VMemIdent;

    wchar_t const* GetFillbyte() const { return m_fillbyte; } ///< FILLBYTE
    void SetFillbyte(wchar_t const* text) { m_fillbyte = Store(text); }

    wchar_t const* GetSourceStartAddress() const { return m_sourceStartAddress; } ///< SOURCE-START-ADDRESS
    void SetSourceStartAddress(wchar_t const* text) { m_sourceStartAddress = Store(text); }

    wchar_t const* GetCompressedSize() const { return m_compressedSize; } ///< COMPRESSED-SIZE
    void SetCompressedSize(wchar_t const* text) { m_compressedSize = Store(text); }

    wchar_t const* GetChecksumAlg() const { return m_checksumAlg; } ///< CHECKSUM-ALG
    void SetChecksumAlg(wchar_t const* text) { m_checksumAlg = Store(text); }

    wchar_t const* GetSourceEndAddress() const { return m_sourceEndAddress; } ///< SOURCE-END-ADDRESS
    void SetSourceEndAddress(wchar_t const* text) { m_sourceEndAddress = Store(text); }

    wchar_t const* GetUncompressedSize() const { return m_uncompressedSize; } ///< UNCOMPRESSED-SIZE
    void SetUncompressedSize(wchar_t const* text) { m_uncompressedSize = Store(text); }

    bool HasChecksumResult() const { return m_checksumResult != nullptr; } ///< CHECKSUM-RESULT
    VMemChecksumResult& GetChecksumResult() { return *m_checksumResult; }
    VMemChecksumResult& MakeChecksumResult() { return MakeChild(m_checksumResult, Inside()); }
    void RemoveChecksumResult() { m_checksumResult.reset(); }

private:
    wchar_t const* m_fillbyte = L"";
    wchar_t const* m_sourceStartAddress = L"";
    wchar_t const* m_compressedSize = L"";
    wchar_t const* m_checksumAlg = L"";
    wchar_t const* m_sourceEndAddress = L"";
    wchar_t const* m_uncompressedSize = L"";
    std::unique_ptr<VMemChecksumResult> m_checksumResult;
};

class VChecksumCollection : public NODX201::VElementCollection<VMemChecksum> {};

class VMemDatablock;

/// DATABLOCK-REF
class VMemDatablockLink final : public VMemLink<NODX201::VLink, Tag::DatablockRef, VMemDatablock> {
public:
    using VMemLink::VMemLink;
    bool HasDatablock() const;
    VMemDatablock& GetDatablock() { return Found(); }
};

class VDatablockLinkCollection : public NODX201::VElementCollection<VMemDatablockLink> {};

/// SESSION
class VMemSession final : public VWithSdgs<VWithSecurities<VMemIdent<NODX201::VSession, Tag::Session>>> {
public:
    using VWithSdgs::VWithSdgs;

    NODX201::VExpectedIdentCollection& ExpectedIdentCollection() override {
        return m_expectedIdent.Get();
    } ///< EXPECTED-IDENTS
    VMemCollection<NODX201::VExpectedIdentCollection>& MakeExpectedIdentCollection() { return m_expectedIdent.Make(); }
    VMemExpectedIdent& AddExpectedIdent(wchar_t const* shortName) {
        return AddNamed<VMemExpectedIdent>(m_expectedIdent, Inside(), shortName);
    }

    VChecksumCollection& ChecksumCollection() { return m_checksum.Get(); } ///< CHECKSUMS
    VMemCollection<VChecksumCollection>& MakeChecksumCollection() { return m_checksum.Make(); }
    VMemChecksum& AddChecksum(wchar_t const* shortName) {
        return AddNamed<VMemChecksum>(m_checksum, Inside(), shortName);
    }

    VDatablockLinkCollection& DatablockLinkCollection() { return m_datablockLink.Get(); } ///< DATABLOCK-REFS
    VMemCollection<VDatablockLinkCollection>& MakeDatablockLinkCollection() { return m_datablockLink.Make(); }
    VMemDatablockLink& AddDatablockRef(VReference const& reference) {
        return AddLink<VMemDatablockLink>(m_datablockLink, Inside(), reference);
    }

private:
    VMemMany<NODX201::VExpectedIdentCollection> m_expectedIdent;
    VMemMany<VChecksumCollection> m_checksum;
    VMemMany<VDatablockLinkCollection> m_datablockLink;
};

/// DATAFORMAT
class VMemDataformat final : public VMemElement<NODX201::VDataformat, Tag::Dataformat> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetSelection() const { return m_selection; } ///< @SELECTION
    void SetSelection(wchar_t const* text) { m_selection = Store(text); }

    wchar_t const* GetText() const { return m_text; } ///< the text itself
    void SetText(wchar_t const* text) { m_text = Store(text); }

private:
    wchar_t const* m_selection = L"";
    wchar_t const* m_text = L"";
};

/// ENCRYPT-COMPRESS-METHOD
class VMemEncryptCompressMethod final
    : public VMemElement<NODX201::VEncryptCompressMethod, Tag::EncryptCompressMethod> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetType() const { return m_type; } ///< @TYPE
    void SetType(wchar_t const* text) { m_type = Store(text); }

    wchar_t const* GetText() const { return m_text; } ///< the text itself
    void SetText(wchar_t const* text) { m_text = Store(text); }

private:
    wchar_t const* m_type = L"";
    wchar_t const* m_text = L"";
};

/// FLASHDATA: INTERN-FLASHDATA holds its data, EXTERN-FLASHDATA names a file.
class VMemFlashdata : public VMemIdent<NODX201::VReferencable, Tag::Flashdata> {
public:
    using VMemIdent::VMemIdent;

    /// INTERN-FLASHDATA, EXTERN-FLASHDATA, or plain FLASHDATA where the data does not say.
    NODX201::VOdxTagEnum GetOdxTag() const override { return m_kind; }
    void SetKind(NODX201::VOdxTagEnum kind) { m_kind = kind; }

    bool HasDataformat() const { return m_dataformat != nullptr; }
    VMemDataformat& GetDataformat() { return *m_dataformat; }
    VMemDataformat& MakeDataformat() { return MakeChild(m_dataformat, Inside()); } ///< DATAFORMAT
    void RemoveDataformat() { m_dataformat.reset(); }

    bool HasEncryptCompressMethod() const { return m_encryptCompressMethod != nullptr; }
    VMemEncryptCompressMethod& GetEncryptCompressMethod() { return *m_encryptCompressMethod; }
    VMemEncryptCompressMethod& MakeEncryptCompressMethod() {
        return MakeChild(m_encryptCompressMethod, Inside());
    } ///< ENCRYPT-COMPRESS-METHOD
    void RemoveEncryptCompressMethod() { m_encryptCompressMethod.reset(); }

    wchar_t const* GetData() const { return m_data; } ///< DATA
    void SetData(wchar_t const* text) { m_data = Store(text); }

    wchar_t const* GetDatafile() const { return m_datafile; } ///< DATAFILE
    void SetDatafile(wchar_t const* text) { m_datafile = Store(text); }

    bool IsLatebound() const { return m_isLatebound; } ///< DATAFILE/@LATEBOUND-DATAFILE
    void SetIsLatebound(bool value) { m_isLatebound = value; }

private:
    NODX201::VOdxTagEnum m_kind = Tag::Flashdata;
    std::unique_ptr<VMemDataformat> m_dataformat;
    std::unique_ptr<VMemEncryptCompressMethod> m_encryptCompressMethod;
    wchar_t const* m_data = L"";
    wchar_t const* m_datafile = L"";
    bool m_isLatebound = false;
};

class VFlashdataCollection : public NODX201::VElementCollection<VMemFlashdata> {};

/// FLASHDATA-REF
class VMemFlashdataLink final : public VMemLink<NODX201::VLink, Tag::FlashdataRef, VMemFlashdata> {
public:
    using VMemLink::VMemLink;
    bool HasFlashdata() const { return FindById(); }
    VMemFlashdata& GetFlashdata() { return Found(); }
};

/// FILTER
class VMemFilter final : public VMemElement<NODX201::VOdxElement, Tag::Filter> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetFilterStart() const { return m_filterStart; } ///< FILTER-START
    void SetFilterStart(wchar_t const* text) { m_filterStart = Store(text); }

    wchar_t const* GetFilterEnd() const { return m_filterEnd; } ///< FILTER-END, of an ADDRDEF-FILTER
    void SetFilterEnd(wchar_t const* text) { m_filterEnd = Store(text); }

    wchar_t const* GetFilterSize() const { return m_filterSize; } ///< FILTER-SIZE, of a SIZEDEF-FILTER
    void SetFilterSize(wchar_t const* text) { m_filterSize = Store(text); }

private:
    wchar_t const* m_filterStart = L"";
    wchar_t const* m_filterEnd = L"";
    wchar_t const* m_filterSize = L"";
};

class VFilterCollection : public NODX201::VElementCollection<VMemFilter> {};

/// SEGMENT
class VMemSegment final : public VMemIdent<NODX201::VReferencable, Tag::Segment> {
public:
    using VMemIdent::VMemIdent;

    wchar_t const* GetSourceStartAddress() const { return m_sourceStartAddress; } ///< SOURCE-START-ADDRESS
    void SetSourceStartAddress(wchar_t const* text) { m_sourceStartAddress = Store(text); }

    wchar_t const* GetSourceEndAddress() const { return m_sourceEndAddress; } ///< SOURCE-END-ADDRESS
    void SetSourceEndAddress(wchar_t const* text) { m_sourceEndAddress = Store(text); }

    wchar_t const* GetCompressedSize() const { return m_compressedSize; } ///< COMPRESSED-SIZE
    void SetCompressedSize(wchar_t const* text) { m_compressedSize = Store(text); }

    wchar_t const* GetUncompressedSize() const { return m_uncompressedSize; } ///< UNCOMPRESSED-SIZE
    void SetUncompressedSize(wchar_t const* text) { m_uncompressedSize = Store(text); }

private:
    wchar_t const* m_sourceStartAddress = L"";
    wchar_t const* m_sourceEndAddress = L"";
    wchar_t const* m_compressedSize = L"";
    wchar_t const* m_uncompressedSize = L"";
};

class VSegmentCollection : public NODX201::VElementCollection<VMemSegment> {};

/// TARGET-ADDR-OFFSET
class VMemTargetAddrOffset final : public VMemElement<NODX201::VOdxElement, Tag::TargetAddrOffset> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetPositiveOffset() const { return m_positiveOffset; } ///< POSITIVE-OFFSET, of a POS-OFFSET
    void SetPositiveOffset(wchar_t const* text) { m_positiveOffset = Store(text); }

    wchar_t const* GetNegativeOffset() const { return m_negativeOffset; } ///< NEGATIVE-OFFSET, of a NEG-OFFSET
    void SetNegativeOffset(wchar_t const* text) { m_negativeOffset = Store(text); }

private:
    wchar_t const* m_positiveOffset = L"";
    wchar_t const* m_negativeOffset = L"";
};

class VOwnIdentCollection : public NODX201::VElementCollection<VMemOwnIdent> {};

/// DATABLOCK
class VMemDatablock final : public VWithSdgs<VWithSecurities<VMemIdent<NODX201::VReferencable, Tag::Datablock>>> {
public:
    using VWithSdgs::VWithSdgs;

    wchar_t const* GetType() const { return m_type; } ///< @TYPE
    void SetType(wchar_t const* text) { m_type = Store(text); }

    bool HasFlashdataRef() const { return m_flashdataRef != nullptr; } ///< FLASHDATA-REF
    VMemFlashdataLink& GetFlashdataRef() { return *m_flashdataRef; }
    VMemFlashdataLink& SetFlashdataRef(VReference const& reference) {
        return MakeLink(m_flashdataRef, Inside(), reference);
    }
    void RemoveFlashdataRef() { m_flashdataRef.reset(); }

    VFilterCollection& FilterCollection() { return m_filter.Get(); } ///< FILTERS
    VMemCollection<VFilterCollection>& MakeFilterCollection() { return m_filter.Make(); }
    VMemFilter& AddFilter() { return AddPlain<VMemFilter>(m_filter, Inside()); }

    VSegmentCollection& SegmentCollection() { return m_segment.Get(); } ///< SEGMENTS
    VMemCollection<VSegmentCollection>& MakeSegmentCollection() { return m_segment.Make(); }
    VMemSegment& AddSegment(wchar_t const* shortName) { return AddNamed<VMemSegment>(m_segment, Inside(), shortName); }

    bool HasTargetAddrOffset() const { return m_targetAddrOffset != nullptr; } ///< TARGET-ADDR-OFFSET
    VMemTargetAddrOffset& GetTargetAddrOffset() { return *m_targetAddrOffset; }
    VMemTargetAddrOffset& MakeTargetAddrOffset() { return MakeChild(m_targetAddrOffset, Inside()); }
    void RemoveTargetAddrOffset() { m_targetAddrOffset.reset(); }

    VOwnIdentCollection& OwnIdentCollection() { return m_ownIdent.Get(); } ///< OWN-IDENTS
    VMemCollection<VOwnIdentCollection>& MakeOwnIdentCollection() { return m_ownIdent.Make(); }
    VMemOwnIdent& AddOwnIdent(wchar_t const* shortName) {
        return AddNamed<VMemOwnIdent>(m_ownIdent, Inside(), shortName);
    }

private:
    wchar_t const* m_type = L"";
    std::unique_ptr<VMemFlashdataLink> m_flashdataRef;
    VMemMany<VFilterCollection> m_filter;
    VMemMany<VSegmentCollection> m_segment;
    std::unique_ptr<VMemTargetAddrOffset> m_targetAddrOffset;
    VMemMany<VOwnIdentCollection> m_ownIdent;
};

class VDatablockCollection : public NODX201::VElementCollection<VMemDatablock> {};

inline bool VMemDatablockLink::HasDatablock() const { return FindById(); }

/// MEM
class VMemMem final : public VMemElement<NODX201::VMem, Tag::Mem> {
public:
    using VMemElement::VMemElement;

    NODX201::VSessionCollection& SessionCollection() override { return m_session.Get(); } ///< SESSIONS
    VMemCollection<NODX201::VSessionCollection>& MakeSessionCollection() { return m_session.Make(); }
    VMemSession& AddSession(wchar_t const* shortName) { return AddNamed<VMemSession>(m_session, Inside(), shortName); }

    VDatablockCollection& DatablockCollection() { return m_datablock.Get(); } ///< DATABLOCKS
    VMemCollection<VDatablockCollection>& MakeDatablockCollection() { return m_datablock.Make(); }
    VMemDatablock& AddDatablock(wchar_t const* shortName) {
        return AddNamed<VMemDatablock>(m_datablock, Inside(), shortName);
    }

    VFlashdataCollection& FlashdataCollection() { return m_flashdata.Get(); } ///< FLASHDATAS
    VMemCollection<VFlashdataCollection>& MakeFlashdataCollection() { return m_flashdata.Make(); }
    VMemFlashdata& AddFlashdata(wchar_t const* shortName) {
        return AddNamed<VMemFlashdata>(m_flashdata, Inside(), shortName);
    }

private:
    VMemMany<NODX201::VSessionCollection> m_session;
    VMemMany<VDatablockCollection> m_datablock;
    VMemMany<VFlashdataCollection> m_flashdata;
};

/// PROJECT-IDENT
class VMemProjectIdent final : public VMemElement<NODX201::VProjectIdent, Tag::ProjectIdent> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetType() const { return m_type; } ///< @TYPE
    void SetType(wchar_t const* text) { m_type = Store(text); }

    wchar_t const* GetName() const { return m_name; } ///< NAME
    void SetName(wchar_t const* text) { m_name = Store(text); }

    wchar_t const* GetValue() const { return m_value; } ///< VALUE
    void SetValue(wchar_t const* text) { m_value = Store(text); }

private:
    wchar_t const* m_type = L"";
    wchar_t const* m_name = L"";
    wchar_t const* m_value = L"";
};

class VProjectIdentCollection : public NODX201::VElementCollection<VMemProjectIdent> {};

/// PROJECT-INFO
class VMemProjectInfo final : public VMemElement<NODX201::VOdxElement, Tag::ProjectInfo> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetEcuFamilyDesc() const { return m_ecuFamilyDesc; } ///< ECU-FAMILY-DESC
    void SetEcuFamilyDesc(wchar_t const* text) { m_ecuFamilyDesc = Store(text); }

    wchar_t const* GetModificationLetter() const { return m_modificationLetter; } ///< MODIFICATION-LETTER
    void SetModificationLetter(wchar_t const* text) { m_modificationLetter = Store(text); }

    bool HasCompanyDataRef() const { return m_companyDataRef != nullptr; } ///< COMPANY-DATA-REF
    VMemCompanyDataLink& GetCompanyDataRef() { return *m_companyDataRef; }
    VMemCompanyDataLink& SetCompanyDataRef(VReference const& reference) {
        return MakeLink(m_companyDataRef, Inside(), reference);
    }
    void RemoveCompanyDataRef() { m_companyDataRef.reset(); }

    VProjectIdentCollection& ProjectIdentCollection() { return m_projectIdent.Get(); } ///< PROJECT-IDENTS
    VMemCollection<VProjectIdentCollection>& MakeProjectIdentCollection() { return m_projectIdent.Make(); }
    VMemProjectIdent& AddProjectIdent() { return AddPlain<VMemProjectIdent>(m_projectIdent, Inside()); }

private:
    wchar_t const* m_ecuFamilyDesc = L"";
    wchar_t const* m_modificationLetter = L"";
    std::unique_ptr<VMemCompanyDataLink> m_companyDataRef;
    VMemMany<VProjectIdentCollection> m_projectIdent;
};

class VProjectInfoCollection : public NODX201::VElementCollection<VMemProjectInfo> {};

/// PHYS-SEGMENT
class VMemPhysSegment final : public VMemIdent<NODX201::VReferencable, Tag::PhysSegment> {
public:
    using VMemIdent::VMemIdent;

    wchar_t const* GetFillbyte() const { return m_fillbyte; } ///< FILLBYTE
    void SetFillbyte(wchar_t const* text) { m_fillbyte = Store(text); }

    wchar_t const* GetBlockSize() const { return m_blockSize; } ///< BLOCK-SIZE
    void SetBlockSize(wchar_t const* text) { m_blockSize = Store(text); }

    wchar_t const* GetStartAddress() const { return m_startAddress; } ///< START-ADDRESS
    void SetStartAddress(wchar_t const* text) { m_startAddress = Store(text); }

    wchar_t const* GetEndAddress() const { return m_endAddress; } ///< END-ADDRESS, of an ADDRDEF-PHYS-SEGMENT
    void SetEndAddress(wchar_t const* text) { m_endAddress = Store(text); }

    wchar_t const* GetSize() const { return m_size; } ///< SIZE, of a SIZEDEF-PHYS-SEGMENT
    void SetSize(wchar_t const* text) { m_size = Store(text); }

private:
    wchar_t const* m_fillbyte = L"";
    wchar_t const* m_blockSize = L"";
    wchar_t const* m_startAddress = L"";
    wchar_t const* m_endAddress = L"";
    wchar_t const* m_size = L"";
};

class VPhysSegmentCollection : public NODX201::VElementCollection<VMemPhysSegment> {};

/// PHYS-MEM
class VMemPhysMem final : public VMemIdent<NODX201::VReferencable, Tag::PhysMem> {
public:
    using VMemIdent::VMemIdent;

    VPhysSegmentCollection& PhysSegmentCollection() { return m_physSegment.Get(); } ///< PHYS-SEGMENTS
    VMemCollection<VPhysSegmentCollection>& MakePhysSegmentCollection() { return m_physSegment.Make(); }
    VMemPhysSegment& AddPhysSegment(wchar_t const* shortName) {
        return AddNamed<VMemPhysSegment>(m_physSegment, Inside(), shortName);
    }

private:
    VMemMany<VPhysSegmentCollection> m_physSegment;
};

/// ECU-MEM
class VMemEcuMem final : public VWithAdminData<VMemIdent<NODX201::VEcuMem, Tag::EcuMem>> {
public:
    explicit VMemEcuMem(VPlace const& place) : VWithAdminData(place), m_mem(Inside()) {}

    VMemMem& GetMem() override { return m_mem; }

    VProjectInfoCollection& ProjectInfoCollection() { return m_projectInfo.Get(); } ///< PROJECT-INFOS
    VMemCollection<VProjectInfoCollection>& MakeProjectInfoCollection() { return m_projectInfo.Make(); }
    VMemProjectInfo& AddProjectInfo() { return AddPlain<VMemProjectInfo>(m_projectInfo, Inside()); }

    bool HasPhysMem() const { return m_physMem != nullptr; }
    VMemPhysMem& GetPhysMem() { return *m_physMem; }
    VMemPhysMem& MakePhysMem(wchar_t const* shortName) {
        return MakeNamedChild(m_physMem, Inside(), shortName);
    } ///< PHYS-MEM
    void RemovePhysMem() { m_physMem.reset(); }

private:
    VMemMem m_mem;
    VMemMany<VProjectInfoCollection> m_projectInfo;
    std::unique_ptr<VMemPhysMem> m_physMem;
};

/// FLASH-CLASS
class VMemFlashClass final : public VMemIdent<NODX201::VReferencable, Tag::FlashClass> {
public:
    using VMemIdent::VMemIdent;
};

class VFlashClassCollection : public NODX201::VElementCollection<VMemFlashClass> {};

/// FLASH-CLASS-REF
class VMemFlashClassLink final : public VMemLink<NODX201::VLink, Tag::FlashClassRef, VMemFlashClass> {
public:
    using VMemLink::VMemLink;
    bool HasFlashClass() const { return FindById(); }
    VMemFlashClass& GetFlashClass() { return Found(); }
};

class VFlashClassLinkCollection : public NODX201::VElementCollection<VMemFlashClassLink> {};

/// SESSION-SNREF
class VMemSessionLink final : public VMemLink<NODX201::VLink, Tag::SessionSnref, NODX201::VSession> {
public:
    using VMemLink::VMemLink;
    bool HasSession(NODX201::VFlash& flash);
    NODX201::VSession& GetSession() { return Found(); }
};

/// IDENT-IF-SNREF
class VMemIdentIfLink final : public VMemLink<NODX201::VLink, Tag::IdentIfSnref, NODX201::IIdentIf> {
public:
    using VMemLink::VMemLink;
    bool HasIdentIf(NODX201::VFlash& flash);
    NODX201::IIdentIf& GetIdentIf() { return Found(); }
};

/// SESSION-DESC
class VMemSessionDesc final : public VWithSdgs<VMemNamed<NODX201::VSessionDesc, Tag::SessionDesc>> {
public:
    using VWithSdgs::VWithSdgs;

    wchar_t const* GetOid() const { return m_oid; } ///< @OID
    void SetOid(wchar_t const* text) { m_oid = Store(text); }

    wchar_t const* GetDirection() const { return m_direction; } ///< @DIRECTION
    void SetDirection(wchar_t const* text) { m_direction = Store(text); }

    wchar_t const* GetPartnumber() const { return m_partnumber; } ///< PARTNUMBER
    void SetPartnumber(wchar_t const* text) { m_partnumber = Store(text); }

    wchar_t const* GetPriority() const { return m_priority; } ///< PRIORITY
    void SetPriority(wchar_t const* text) { m_priority = Store(text); }

    bool HasSessionSnref() const { return m_sessionSnref != nullptr; } ///< SESSION-SNREF
    VMemSessionLink& GetSessionSnref() { return *m_sessionSnref; }
    VMemSessionLink& SetSessionSnref(VReference const& reference) {
        return MakeLink(m_sessionSnref, Inside(), reference);
    }
    void RemoveSessionSnref() { m_sessionSnref.reset(); }

    bool HasDiagCommSnref() const { return m_diagCommSnref != nullptr; } ///< DIAG-COMM-SNREF
    VMemDiagCommLink& GetDiagCommSnref() { return *m_diagCommSnref; }
    VMemDiagCommLink& SetDiagCommSnref(VReference const& reference) {
        return MakeLink(m_diagCommSnref, Inside(), reference);
    }
    void RemoveDiagCommSnref() { m_diagCommSnref.reset(); }

    VFlashClassLinkCollection& FlashClassLinkCollection() { return m_flashClassLink.Get(); } ///< FLASH-CLASS-REFS
    VMemCollection<VFlashClassLinkCollection>& MakeFlashClassLinkCollection() { return m_flashClassLink.Make(); }
    VMemFlashClassLink& AddFlashClassRef(VReference const& reference) {
        return AddLink<VMemFlashClassLink>(m_flashClassLink, Inside(), reference);
    }

private:
    wchar_t const* m_oid = L"";
    wchar_t const* m_direction = L"";
    wchar_t const* m_partnumber = L"";
    wchar_t const* m_priority = L"";
    std::unique_ptr<VMemSessionLink> m_sessionSnref;
    std::unique_ptr<VMemDiagCommLink> m_diagCommSnref;
    VMemMany<VFlashClassLinkCollection> m_flashClassLink;
};

class VSessionDescCollection : public NODX201::VElementCollection<VMemSessionDesc> {};

/// IDENT-DESC
class VMemIdentDesc final : public VMemElement<NODX201::VOdxElement, Tag::IdentDesc> {
public:
    using VMemElement::VMemElement;

    bool HasDiagCommSnref() const { return m_diagCommSnref != nullptr; } ///< DIAG-COMM-SNREF
    VMemDiagCommLink& GetDiagCommSnref() { return *m_diagCommSnref; }
    VMemDiagCommLink& SetDiagCommSnref(VReference const& reference) {
        return MakeLink(m_diagCommSnref, Inside(), reference);
    }
    void RemoveDiagCommSnref() { m_diagCommSnref.reset(); }

    bool HasIdentIfSnref() const { return m_identIfSnref != nullptr; } ///< IDENT-IF-SNREF
    VMemIdentIfLink& GetIdentIfSnref() { return *m_identIfSnref; }
    VMemIdentIfLink& SetIdentIfSnref(VReference const& reference) {
        return MakeLink(m_identIfSnref, Inside(), reference);
    }
    void RemoveIdentIfSnref() { m_identIfSnref.reset(); }

    bool HasOutParamIfSnref() const { return m_outParamIfSnref != nullptr; } ///< OUT-PARAM-IF-SNREF
    VMemOutParamIfLink& GetOutParamIfSnref() { return *m_outParamIfSnref; }
    VMemOutParamIfLink& SetOutParamIfSnref(VReference const& reference) {
        return MakeLink(m_outParamIfSnref, Inside(), reference);
    }
    void RemoveOutParamIfSnref() { m_outParamIfSnref.reset(); }

private:
    std::unique_ptr<VMemDiagCommLink> m_diagCommSnref;
    std::unique_ptr<VMemIdentIfLink> m_identIfSnref;
    std::unique_ptr<VMemOutParamIfLink> m_outParamIfSnref;
};

class VIdentDescCollection : public NODX201::VElementCollection<VMemIdentDesc> {};

/// ECU-MEM-REF
class VMemEcuMemLink final : public VMemLink<NODX201::VLink, Tag::EcuMemRef, NODX201::VEcuMem> {
public:
    using VMemLink::VMemLink;
    bool HasEcuMem() const { return FindById(); }
    NODX201::VEcuMem& GetEcuMem() { return Found(); }
};

/// ECU-MEM-CONNECTOR
class VMemEcuMemConnector final : public VWithAdminData<VMemIdent<NODX201::VReferencable, Tag::EcuMemConnector>> {
public:
    using VWithAdminData::VWithAdminData;

    VFlashClassCollection& FlashClassCollection() { return m_flashClass.Get(); } ///< FLASH-CLASSS
    VMemCollection<VFlashClassCollection>& MakeFlashClassCollection() { return m_flashClass.Make(); }
    VMemFlashClass& AddFlashClass(wchar_t const* shortName) {
        return AddNamed<VMemFlashClass>(m_flashClass, Inside(), shortName);
    }

    VSessionDescCollection& SessionDescCollection() { return m_sessionDesc.Get(); } ///< SESSION-DESCS
    VMemCollection<VSessionDescCollection>& MakeSessionDescCollection() { return m_sessionDesc.Make(); }
    VMemSessionDesc& AddSessionDesc(wchar_t const* shortName) {
        return AddNamed<VMemSessionDesc>(m_sessionDesc, Inside(), shortName);
    }

    VIdentDescCollection& IdentDescCollection() { return m_identDesc.Get(); } ///< IDENT-DESCS
    VMemCollection<VIdentDescCollection>& MakeIdentDescCollection() { return m_identDesc.Make(); }
    VMemIdentDesc& AddIdentDesc() { return AddPlain<VMemIdentDesc>(m_identDesc, Inside()); }

    bool HasEcuMemRef() const { return m_ecuMemRef != nullptr; } ///< ECU-MEM-REF
    VMemEcuMemLink& GetEcuMemRef() { return *m_ecuMemRef; }
    VMemEcuMemLink& SetEcuMemRef(VReference const& reference) { return MakeLink(m_ecuMemRef, Inside(), reference); }
    void RemoveEcuMemRef() { m_ecuMemRef.reset(); }

    VDiagLayerLinkCollection& DiagLayerLinkCollection() { return m_diagLayerLink.Get(); } ///< LAYER-REFS
    VMemCollection<VDiagLayerLinkCollection>& MakeDiagLayerLinkCollection() { return m_diagLayerLink.Make(); }
    VMemDiagLayerLink& AddLayerRef(VReference const& reference) {
        return AddLink<VMemDiagLayerLink>(m_diagLayerLink, Inside(), reference);
    }

private:
    VMemMany<VFlashClassCollection> m_flashClass;
    VMemMany<VSessionDescCollection> m_sessionDesc;
    VMemMany<VIdentDescCollection> m_identDesc;
    std::unique_ptr<VMemEcuMemLink> m_ecuMemRef;
    VMemMany<VDiagLayerLinkCollection> m_diagLayerLink;
};

class VEcuMemConnectorCollection : public NODX201::VElementCollection<VMemEcuMemConnector> {};

/// FLASH
class VMemFlash final : public VWithCompanyDatas<VWithAdminData<VMemIdent<NODX201::VFlash, Tag::Flash>>> {
public:
    using VWithCompanyDatas::VWithCompanyDatas;

    bool HasEcuMemCollection() const override { return m_ecuMem.IsPresent(); }
    NODX201::VEcuMemCollection& EcuMemCollection() override { return m_ecuMem.Get(); } ///< ECU-MEMS
    VMemCollection<NODX201::VEcuMemCollection>& MakeEcuMemCollection() { return m_ecuMem.Make(); }
    VMemEcuMem& AddEcuMem(wchar_t const* shortName) { return AddNamed<VMemEcuMem>(m_ecuMem, Inside(), shortName); }

    VEcuMemConnectorCollection& EcuMemConnectorCollection() { return m_ecuMemConnector.Get(); } ///< ECU-MEM-CONNECTORS
    VMemCollection<VEcuMemConnectorCollection>& MakeEcuMemConnectorCollection() { return m_ecuMemConnector.Make(); }
    VMemEcuMemConnector& AddEcuMemConnector(wchar_t const* shortName) {
        return AddNamed<VMemEcuMemConnector>(m_ecuMemConnector, Inside(), shortName);
    }

private:
    VMemMany<NODX201::VEcuMemCollection> m_ecuMem;
    VMemMany<VEcuMemConnectorCollection> m_ecuMemConnector;
};

} // namespace NMemory
