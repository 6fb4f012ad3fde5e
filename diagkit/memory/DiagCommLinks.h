// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/Children.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>

/// References to DIAG-COMMs, their parameters and DIAG-VARIABLEs.

namespace NMemory {

/// DIAG-COMM-REF, DIAG-COMM-SNREF and the like: a service or a single-ECU job.
class VMemDiagCommLink final : public VMemLink<NODX201::VDiagCommLink, Tag::DiagCommRef, NODX201::VDiagComm> {
public:
    using VMemLink::VMemLink;
    /// False for a short name.
    bool ResolvesById() const { return Snref() == nullptr && FindById(&IsDiagCommOfLayer); }
    VDoubt FindDoubt() const { return FindDoubtOf(&IsDiagCommOfLayer); } ///< see `VMemLink`
    bool HasDiagComm(NODX201::VDiagLayer& layer) override;
    NODX201::VDiagComm& GetDiagComm() override { return Found(); }
};

/// RELATED-DIAG-COMM-REF
class VMemRelatedDiagCommRef final
    : public VMemLink<NODX201::VRelatedDiagCommRef, Tag::RelatedDiagCommRef, NODX201::VDiagComm> {
public:
    using VMemLink::VMemLink;
    /// False for a short name.
    bool ResolvesById() const { return Snref() == nullptr && FindById(&IsDiagCommOfLayer); }
    VDoubt FindDoubt() const { return FindDoubtOf(&IsDiagCommOfLayer); } ///< see `VMemLink`
    bool HasDiagComm() const override { return FindById(&IsDiagCommOfLayer); }
    NODX201::VDiagComm& GetDiagComm() override { return Found(); }

    wchar_t const* GetRelationType() const { return m_relationType; } ///< RELATION-TYPE
    void SetRelationType(wchar_t const* text) { m_relationType = Store(text); }

private:
    wchar_t const* m_relationType = L"";
};

/// DIAG-VARIABLE-REF, DIAG-VARIABLE-SNREF
class VMemDiagVariableLink final
    : public VMemLink<NODX201::VDiagVariableLink, Tag::DiagVariableRef, NODX201::VDiagVariable> {
public:
    using VMemLink::VMemLink;
    bool HasDiagVariable(NODX201::VDiagLayer& layer) override;
    NODX201::VDiagVariable& GetDiagVariable() override { return Found(); }
};

/// OUT-PARAM-IF-SNREF, PARAM-SNREF
class VMemOutParamIfLink final : public VMemLink<NODX201::VOutParamIfLink, Tag::OutParamIfSnref, NODX201::IOutParamIf> {
public:
    using VMemLink::VMemLink;
    bool HasOutParamIf(NODX201::VDiagComm& diagComm, NODX201::VDiagLayer& layer, NODX201::VSearchRange range) override;
    NODX201::IOutParamIf& GetOutParamIf() override { return Found(); }
};

/// IN-PARAM-IF-SNREF
class VMemInParamIfLink final : public VMemLink<NODX201::VLink, Tag::InParamIfSnref, NODX201::IInParamIf> {
public:
    using VMemLink::VMemLink;
    bool HasInParamIf(NODX201::VDiagComm& diagComm);
    NODX201::IInParamIf& GetInParamIf() { return Found(); }
};

/// PROTOCOL-SNREF
class VMemProtocolSnref final : public VMemLink<NODX201::VLink, Tag::ProtocolSnref, NODX201::VProtocol> {
public:
    using VMemLink::VMemLink;
    bool HasProtocol(NODX201::VDiagLayerContainer& container);
    NODX201::VProtocol& GetProtocol() { return Found(); }
};

} // namespace NMemory
