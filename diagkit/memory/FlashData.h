// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/FlashSecurity.h>

/// Sessions and the data blocks of a MEM.

namespace NMemory {

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
    : public VWithTypedText<VMemElement<NODX201::VEncryptCompressMethod, Tag::EncryptCompressMethod>> {
public:
    using VWithTypedText::VWithTypedText;
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

} // namespace NMemory
