// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Collections.h>

/// Flash data, as far as the toolkit reads it.

namespace NODX201 {

/// FLASH
class DIAGKIT_EXPORT VFlash : public VReferencable {
public:
    ~VFlash() override;
    virtual bool HasEcuMemCollection() const = 0;
    virtual VEcuMemCollection& EcuMemCollection() = 0;
};

/// ECU-MEM
class DIAGKIT_EXPORT VEcuMem : public VReferencable {
public:
    ~VEcuMem() override;
    virtual VMem& GetMem() = 0; ///< an empty MEM where the data has none
};

/// MEM
class DIAGKIT_EXPORT VMem : public VOdxElement {
public:
    ~VMem() override;
    virtual VSessionCollection& SessionCollection() = 0;
};

/// SESSION
class DIAGKIT_EXPORT VSession : public VReferencable {
public:
    ~VSession() override;
    virtual VExpectedIdentCollection& ExpectedIdentCollection() = 0;
};

/// An ident by interface: EXPECTED-IDENT of a session or OWN-IDENT of a data block.
class DIAGKIT_EXPORT IIdentIf {
public:
    virtual ~IIdentIf();
    virtual bool IsExpectedIdent() const = 0; ///< castable to `VExpectedIdent`
    virtual bool IsOwnIdent() const = 0;      ///< castable to `VOwnIdent`

protected:
    IIdentIf() = default;
};

/// EXPECTED-IDENT
class DIAGKIT_EXPORT VExpectedIdent : public VReferencable, public IIdentIf {
public:
    ~VExpectedIdent() override;
    bool IsExpectedIdent() const final { return true; }
    bool IsOwnIdent() const final { return false; }
};

/// OWN-IDENT
class DIAGKIT_EXPORT VOwnIdent : public VReferencable, public IIdentIf {
public:
    ~VOwnIdent() override;
    bool IsExpectedIdent() const final { return false; }
    bool IsOwnIdent() const final { return true; }
};

/// IDENT-VALUE
class DIAGKIT_EXPORT VIdentValue : public VOdxElement {
public:
    /// @TYPE
    enum class VIdentValueType : int { AUint32 = 0, ABytefield, AAsciistring };

    ~VIdentValue() override;
};

/// DATAFORMAT
class DIAGKIT_EXPORT VDataformat : public VOdxElement {
public:
    /// @SELECTION
    enum class VDataformatSelection : int { IntelHex = 0, MotorolaS, Binary };

    ~VDataformat() override;
};

/// ENCRYPT-COMPRESS-METHOD
class DIAGKIT_EXPORT VEncryptCompressMethod : public VOdxElement {
public:
    /// @TYPE
    enum class VEncryptCompressMethodType : int { AUint32 = 0, ABytefield };

    ~VEncryptCompressMethod() override;
};

/// CHECKSUM-RESULT; SECURITY-METHOD, FW-SIGNATURE, FW-CHECKSUM and VALIDITY-FOR use the same type.
class DIAGKIT_EXPORT VChecksumResult : public VOdxElement {
public:
    /// @TYPE
    enum class VSessionSubElemType : int { AUint32 = 0, ABytefield, AAsciistring };

    ~VChecksumResult() override;
};

/// SESSION-DESC
class DIAGKIT_EXPORT VSessionDesc : public VOdxElement {
public:
    /// @DIRECTION
    enum class VDirection : int { Download = 0, Upload };

    ~VSessionDesc() override;
};

/// PROJECT-IDENT
class DIAGKIT_EXPORT VProjectIdent : public VOdxElement {
public:
    /// @TYPE
    enum class VProjIdentType : int { Doc = 0, PartNo, Tool };

    ~VProjectIdent() override;
};

} // namespace NODX201
