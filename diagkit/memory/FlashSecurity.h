// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/AdminData.h>
#include <diagkit/memory/DiagCommLinks.h>
#include <diagkit/model/Flash.h>

/// What identifies and secures flash data: idents, checksums, securities.

namespace NMemory {

/// A text with a type, as idents, checksums and securities are written.
template <class Base>
class VWithTypedText : public Base {
public:
    using Base::Base;

    wchar_t const* GetType() const { return m_type; } ///< @TYPE
    void SetType(wchar_t const* text) { m_type = this->Store(text); }

    wchar_t const* GetText() const { return m_text; } ///< the text itself
    void SetText(wchar_t const* text) { m_text = this->Store(text); }

private:
    wchar_t const* m_type = L"";
    wchar_t const* m_text = L"";
};

/// IDENT-VALUE
class VMemIdentValue final : public VWithTypedText<VMemElement<NODX201::VIdentValue, Tag::IdentValue>> {
public:
    using VWithTypedText::VWithTypedText;
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
class VMemChecksumResult final : public VWithTypedText<VMemElement<NODX201::VChecksumResult, Tag::ChecksumResult>> {
public:
    using VWithTypedText::VWithTypedText;
};

/// SECURITY-METHOD
class VMemSecurityMethod final : public VWithTypedText<VMemElement<NODX201::VOdxElement, Tag::SecurityMethod>> {
public:
    using VWithTypedText::VWithTypedText;
};

/// FW-SIGNATURE
class VMemFwSignature final : public VWithTypedText<VMemElement<NODX201::VOdxElement, Tag::FwSignature>> {
public:
    using VWithTypedText::VWithTypedText;
};

/// FW-CHECKSUM
class VMemFwChecksum final : public VWithTypedText<VMemElement<NODX201::VOdxElement, Tag::FwChecksum>> {
public:
    using VWithTypedText::VWithTypedText;
};

/// VALIDITY-FOR
class VMemValidityFor final : public VWithTypedText<VMemElement<NODX201::VOdxElement, Tag::ValidityFor>> {
public:
    using VWithTypedText::VWithTypedText;
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

} // namespace NMemory
