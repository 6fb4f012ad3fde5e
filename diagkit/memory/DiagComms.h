// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/Comparams.h>
#include <diagkit/memory/DiagCommLinks.h>
#include <diagkit/memory/FunctClasses.h>
#include <diagkit/memory/Responses.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/model/Visitors.h>

/// Diagnostic services and jobs.

namespace NMemory {

/// AUDIENCE
class VMemAudience final : public VMemElement<NODX201::VAudience, Tag::Audience> {
public:
    using VMemElement::VMemElement;

    bool IsSupplier() const { return m_isSupplier; } ///< @IS-SUPPLIER
    void SetIsSupplier(bool value) { m_isSupplier = value; }

    bool IsDevelopment() const { return m_isDevelopment; } ///< @IS-DEVELOPMENT
    void SetIsDevelopment(bool value) { m_isDevelopment = value; }

    bool IsManufacturing() const { return m_isManufacturing; } ///< @IS-MANUFACTURING
    void SetIsManufacturing(bool value) { m_isManufacturing = value; }

    bool IsAftersales() const { return m_isAftersales; } ///< @IS-AFTERSALES
    void SetIsAftersales(bool value) { m_isAftersales = value; }

    bool IsAftermarket() const { return m_isAftermarket; } ///< @IS-AFTERMARKET
    void SetIsAftermarket(bool value) { m_isAftermarket = value; }

private:
    bool m_isSupplier = true;
    bool m_isDevelopment = true;
    bool m_isManufacturing = true;
    bool m_isAftersales = true;
    bool m_isAftermarket = true;
};

/// INPUT-PARAM
class VMemInputParam final : public VMemNamed<NODX201::VInputParam, Tag::InputParam> {
public:
    using VMemNamed::VMemNamed;

    wchar_t const* GetOid() const { return m_oid; } ///< @OID
    void SetOid(wchar_t const* text) { m_oid = Store(text); }

    wchar_t const* GetSemantic() const { return m_semantic; } ///< @SEMANTIC
    void SetSemantic(wchar_t const* text) { m_semantic = Store(text); }

    wchar_t const* GetPhysicalDefaultValue() const { return m_physicalDefaultValue; } ///< PHYSICAL-DEFAULT-VALUE
    void SetPhysicalDefaultValue(wchar_t const* text) { m_physicalDefaultValue = Store(text); }

    bool HasDopBaseRef() const override { return m_dopBaseRef != nullptr; } ///< DOP-BASE-REF
    VMemDopBaseLink& GetDopBaseRef() override { return *m_dopBaseRef; }
    VMemDopBaseLink& SetDopBaseRef(VReference const& reference) { return MakeLink(m_dopBaseRef, Inside(), reference); }
    void RemoveDopBaseRef() { m_dopBaseRef.reset(); }

private:
    wchar_t const* m_oid = L"";
    wchar_t const* m_semantic = L"";
    wchar_t const* m_physicalDefaultValue = L"";
    std::unique_ptr<VMemDopBaseLink> m_dopBaseRef;
};

/// OUTPUT-PARAM
class VMemOutputParam final : public VMemIdent<NODX201::VOutputParam, Tag::OutputParam> {
public:
    using VMemIdent::VMemIdent;

    wchar_t const* GetSemantic() const { return m_semantic; } ///< @SEMANTIC
    void SetSemantic(wchar_t const* text) { m_semantic = Store(text); }

    bool HasDopBaseRef() const override { return m_dopBaseRef != nullptr; } ///< DOP-BASE-REF
    VMemDopBaseLink& GetDopBaseRef() override { return *m_dopBaseRef; }
    VMemDopBaseLink& SetDopBaseRef(VReference const& reference) { return MakeLink(m_dopBaseRef, Inside(), reference); }
    void RemoveDopBaseRef() { m_dopBaseRef.reset(); }

private:
    wchar_t const* m_semantic = L"";
    std::unique_ptr<VMemDopBaseLink> m_dopBaseRef;
};

/// NEG-OUTPUT-PARAM
class VMemNegOutputParam final : public VMemNamed<NODX201::VNegOutputParam, Tag::NegOutputParam> {
public:
    using VMemNamed::VMemNamed;

    bool HasDopBaseRef() const override { return m_dopBaseRef != nullptr; } ///< DOP-BASE-REF
    VMemDopBaseLink& GetDopBaseRef() override { return *m_dopBaseRef; }
    VMemDopBaseLink& SetDopBaseRef(VReference const& reference) { return MakeLink(m_dopBaseRef, Inside(), reference); }
    void RemoveDopBaseRef() { m_dopBaseRef.reset(); }

private:
    std::unique_ptr<VMemDopBaseLink> m_dopBaseRef;
};

class VProtocolSnrefCollection : public NODX201::VElementCollection<VMemProtocolSnref> {};

/// What services and jobs share.
template <class Base>
class VWithDiagComm : public Base {
public:
    using Base::Base;

    wchar_t const* GetSemantic() const { return m_semantic; } ///< @SEMANTIC
    void SetSemantic(wchar_t const* text) { m_semantic = this->Store(text); }

    wchar_t const* GetDiagnosticClass() const { return m_diagnosticClass; } ///< @DIAGNOSTIC-CLASS, "" when unset
    void SetDiagnosticClass(wchar_t const* text) { m_diagnosticClass = this->Store(text); }

    wchar_t const* GetSecurityAccessLevel() const { return m_securityAccessLevel; } ///< @SECURITY-ACCESS-LEVEL
    void SetSecurityAccessLevel(wchar_t const* text) { m_securityAccessLevel = this->Store(text); }

    bool IsMandatory() const { return m_isMandatory; } ///< @IS-MANDATORY
    void SetIsMandatory(bool value) { m_isMandatory = value; }

    bool IsExecutable() const { return m_isExecutable; } ///< @IS-EXECUTABLE
    void SetIsExecutable(bool value) { m_isExecutable = value; }

    bool IsFinal() const { return m_isFinal; } ///< @IS-FINAL
    void SetIsFinal(bool value) { m_isFinal = value; }

    NODX201::VFunctClassLinkCollection& FunctClassLinkCollection() {
        return m_functClassLink.Get();
    } ///< FUNCT-CLASS-REFS
    VMemCollection<NODX201::VFunctClassLinkCollection>& MakeFunctClassLinkCollection() {
        return m_functClassLink.Make();
    }
    VMemFunctClassLink& AddFunctClassRef(VReference const& reference) {
        return AddLink<VMemFunctClassLink>(m_functClassLink, this->Inside(), reference);
    }

    bool HasAudience() const { return m_audience != nullptr; }
    VMemAudience& GetAudience() { return *m_audience; }
    VMemAudience& MakeAudience() { return MakeChild(m_audience, this->Inside()); }
    void RemoveAudience() { m_audience.reset(); }

    NODX201::VRelatedDiagCommRefCollection& RelatedDiagCommRefCollection() {
        return m_relatedDiagCommRef.Get();
    } ///< RELATED-DIAG-COMM-REFS
    VMemCollection<NODX201::VRelatedDiagCommRefCollection>& MakeRelatedDiagCommRefCollection() {
        return m_relatedDiagCommRef.Make();
    }
    VMemRelatedDiagCommRef& AddRelatedDiagCommRef(VReference const& reference) {
        return AddLink<VMemRelatedDiagCommRef>(m_relatedDiagCommRef, this->Inside(), reference);
    }

    VProtocolSnrefCollection& ProtocolSnrefCollection() { return m_protocolSnref.Get(); } ///< PROTOCOL-SNREFS
    VMemCollection<VProtocolSnrefCollection>& MakeProtocolSnrefCollection() { return m_protocolSnref.Make(); }
    VMemProtocolSnref& AddProtocolSnref(VReference const& reference) {
        return AddLink<VMemProtocolSnref>(m_protocolSnref, this->Inside(), reference);
    }

private:
    wchar_t const* m_semantic = L"";
    wchar_t const* m_diagnosticClass = L"";
    wchar_t const* m_securityAccessLevel = L"";
    bool m_isMandatory = false;
    bool m_isExecutable = true;
    bool m_isFinal = false;
    VMemMany<NODX201::VFunctClassLinkCollection> m_functClassLink;
    std::unique_ptr<VMemAudience> m_audience;
    VMemMany<NODX201::VRelatedDiagCommRefCollection> m_relatedDiagCommRef;
    VMemMany<VProtocolSnrefCollection> m_protocolSnref;
};

/// What the two kinds of job share.
template <class Base>
class VWithJob : public Base {
public:
    using Base::Base;

    bool IsReducedResultEnabled() const { return m_isReducedResultEnabled; } ///< @IS-REDUCED-RESULT-ENABLED
    void SetIsReducedResultEnabled(bool value) { m_isReducedResultEnabled = value; }

    NODX201::VProgCodeCollection& ProgCodeCollection() override { return m_progCode.Get(); } ///< PROG-CODES
    VMemCollection<NODX201::VProgCodeCollection>& MakeProgCodeCollection() { return m_progCode.Make(); }
    VMemProgCode& AddProgCode() { return AddPlain<VMemProgCode>(m_progCode, this->Inside()); }

    bool HasInputParamCollection() const override { return m_inputParam.IsPresent(); }
    NODX201::VInputParamCollection& InputParamCollection() override { return m_inputParam.Get(); }
    VMemCollection<NODX201::VInputParamCollection>& MakeInputParamCollection() { return m_inputParam.Make(); }
    VMemInputParam& AddInputParam(wchar_t const* shortName) {
        return AddNamed<VMemInputParam>(m_inputParam, this->Inside(), shortName);
    }

    bool HasOutputParamCollection() const override { return m_outputParam.IsPresent(); }
    NODX201::VOutputParamCollection& OutputParamCollection() override { return m_outputParam.Get(); }
    VMemCollection<NODX201::VOutputParamCollection>& MakeOutputParamCollection() { return m_outputParam.Make(); }
    VMemOutputParam& AddOutputParam(wchar_t const* shortName) {
        return AddNamed<VMemOutputParam>(m_outputParam, this->Inside(), shortName);
    }

    NODX201::VNegOutputParamCollection& NegOutputParamCollection() override { return m_negOutputParam.Get(); }
    VMemCollection<NODX201::VNegOutputParamCollection>& MakeNegOutputParamCollection() {
        return m_negOutputParam.Make();
    }
    VMemNegOutputParam& AddNegOutputParam(wchar_t const* shortName) {
        return AddNamed<VMemNegOutputParam>(m_negOutputParam, this->Inside(), shortName);
    }

private:
    bool m_isReducedResultEnabled = false;
    VMemMany<NODX201::VProgCodeCollection> m_progCode;
    VMemMany<NODX201::VInputParamCollection> m_inputParam;
    VMemMany<NODX201::VOutputParamCollection> m_outputParam;
    VMemMany<NODX201::VNegOutputParamCollection> m_negOutputParam;
};

/// DIAG-SERVICE
class VMemDiagService final
    : public VWithDiagComm<
          VWithComparamRefs<VWithSdgs<VWithAdminData<VMemIdent<NODX201::VDiagService, Tag::DiagService>>>>> {
public:
    using VWithDiagComm::VWithDiagComm;

    void Accept(NODX201::VDiagCommVisitor& visitor) override { visitor.VisitDiagService(*this); }

    bool IsCyclic() const { return m_isCyclic; } ///< @IS-CYCLIC
    void SetIsCyclic(bool value) { m_isCyclic = value; }

    bool IsMultiple() const { return m_isMultiple; } ///< @IS-MULTIPLE
    void SetIsMultiple(bool value) { m_isMultiple = value; }

    wchar_t const* GetAddressing() const { return m_addressing; } ///< @ADDRESSING
    void SetAddressing(wchar_t const* text) { m_addressing = Store(text); }

    bool HasRequestRef() const override { return m_requestRef != nullptr; } ///< REQUEST-REF
    VMemRequestLink& GetRequestRef() override { return *m_requestRef; }
    VMemRequestLink& SetRequestRef(VReference const& reference) { return MakeLink(m_requestRef, Inside(), reference); }
    void RemoveRequestRef() { m_requestRef.reset(); }

    bool HasPosResponseLinkCollection() const override { return m_posResponseLink.IsPresent(); }
    NODX201::VPosResponseLinkCollection& PosResponseLinkCollection() override {
        return m_posResponseLink.Get();
    } ///< POS-RESPONSE-REFS
    VMemCollection<NODX201::VPosResponseLinkCollection>& MakePosResponseLinkCollection() {
        return m_posResponseLink.Make();
    }
    VMemPosResponseLink& AddPosResponseRef(VReference const& reference) {
        return AddLink<VMemPosResponseLink>(m_posResponseLink, Inside(), reference);
    }

    bool HasNegResponseLinkCollection() const override { return m_negResponseLink.IsPresent(); }
    NODX201::VNegResponseLinkCollection& NegResponseLinkCollection() override {
        return m_negResponseLink.Get();
    } ///< NEG-RESPONSE-REFS
    VMemCollection<NODX201::VNegResponseLinkCollection>& MakeNegResponseLinkCollection() {
        return m_negResponseLink.Make();
    }
    VMemNegResponseLink& AddNegResponseRef(VReference const& reference) {
        return AddLink<VMemNegResponseLink>(m_negResponseLink, Inside(), reference);
    }

private:
    bool m_isCyclic = false;
    bool m_isMultiple = false;
    wchar_t const* m_addressing = L"PHYSICAL";
    std::unique_ptr<VMemRequestLink> m_requestRef;
    VMemMany<NODX201::VPosResponseLinkCollection> m_posResponseLink;
    VMemMany<NODX201::VNegResponseLinkCollection> m_negResponseLink;
};

/// SINGLE-ECU-JOB
class VMemSingleEcuJob final
    : public VWithJob<VWithDiagComm<
          VWithComparamRefs<VWithSdgs<VWithAdminData<VMemIdent<NODX201::VSingleEcuJob, Tag::SingleEcuJob>>>>>> {
public:
    using VWithJob::VWithJob;

    void Accept(NODX201::VDiagCommVisitor& visitor) override { visitor.VisitSingleEcuJob(*this); }
};

} // namespace NMemory
