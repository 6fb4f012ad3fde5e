// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Collections.h>
#include <diagkit/model/Reference.h>

/// Diagnostic services and jobs, and what refers to them.

namespace NODX201 {

/// An entry of a layer's DIAG-COMMS: exactly one test is true, and the entry is castable to that class.
class DIAGKIT_EXPORT IDiagCommProxy {
public:
    virtual bool IsDiagService() const = 0;
    virtual bool IsSingleEcuJob() const = 0;
    virtual bool IsDiagCommLink() const = 0;

protected:
    IDiagCommProxy() = default;
    ~IDiagCommProxy() = default;
};

/// An input parameter by interface: INPUT-PARAM of a job or VALUE parameter of a service.
class DIAGKIT_EXPORT IInParamIf {
public:
    virtual ~IInParamIf();
    virtual bool IsInputParam() const = 0; ///< castable to `VInputParam`
    virtual bool IsValue() const = 0;      ///< castable to `VValue`

protected:
    IInParamIf() = default;
};

/// An output parameter by interface: OUTPUT-PARAM of a job or VALUE parameter of a service.
class DIAGKIT_EXPORT IOutParamIf {
public:
    virtual ~IOutParamIf();
    virtual bool IsOutputParam() const = 0; ///< castable to `VOutputParam`
    virtual bool IsValue() const = 0;       ///< castable to `VValue`

protected:
    IOutParamIf() = default;
};

/// Base of services and jobs.
class DIAGKIT_EXPORT VDiagComm : public VReferencable {
public:
    /// @DIAGNOSTIC-CLASS
    enum class VDiagClassType : int {
        Startcomm = 0,
        Stopcomm,
        Variantidentification,
        ReadDynDefinedMessage,
        DynDefMessage,
        ClearDynDefMessage
    };

    ~VDiagComm() override;

    /// Calls back the Visit operation of the concrete kind. A MULTIPLE-ECU-JOB has none and calls nothing.
    virtual void Accept(VDiagCommVisitor& visitor) = 0;

    virtual bool HasLongName() const = 0;
    virtual VText& GetLongName() = 0;
    virtual bool HasAdminData() const = 0;
    virtual VAdminData& GetAdminData() = 0;
    virtual VSdgCollection& SdgCollection() = 0;
    virtual VComparamRefCollection& ComparamRefCollection() = 0;
    virtual VFunctClassLinkCollection& FunctClassLinkCollection() = 0;
    virtual bool HasAudience() const = 0;
    virtual VAudience& GetAudience() = 0;
    virtual VRelatedDiagCommRefCollection& RelatedDiagCommRefCollection() = 0;
};

/// DIAG-SERVICE
class DIAGKIT_EXPORT VDiagService : public VDiagComm, public IDiagCommProxy {
public:
    /// @ADDRESSING
    enum class VAddressing : int { Functional = 0, Physical, FunctionalOrPhysical };

    ~VDiagService() override;
    bool IsDiagService() const final { return true; }
    bool IsSingleEcuJob() const final { return false; }
    bool IsDiagCommLink() const final { return false; }
    virtual bool HasRequestRef() const = 0;
    virtual VRequestLink& GetRequestRef() = 0;
    virtual bool HasPosResponseLinkCollection() const = 0;
    virtual VPosResponseLinkCollection& PosResponseLinkCollection() = 0;
    virtual bool HasNegResponseLinkCollection() const = 0;
    virtual VNegResponseLinkCollection& NegResponseLinkCollection() = 0;
};

/// SINGLE-ECU-JOB
class DIAGKIT_EXPORT VSingleEcuJob : public VDiagComm, public IDiagCommProxy {
public:
    ~VSingleEcuJob() override;
    bool IsDiagService() const final { return false; }
    bool IsSingleEcuJob() const final { return true; }
    bool IsDiagCommLink() const final { return false; }
    virtual VProgCodeCollection& ProgCodeCollection() = 0;
    virtual bool HasInputParamCollection() const = 0;
    virtual VInputParamCollection& InputParamCollection() = 0;
    virtual bool HasOutputParamCollection() const = 0;
    virtual VOutputParamCollection& OutputParamCollection() = 0;
    virtual VNegOutputParamCollection& NegOutputParamCollection() = 0;
};

/// MULTIPLE-ECU-JOB: belongs to a MULTIPLE-ECU-JOB-SPEC, never to a layer.
class DIAGKIT_EXPORT VMultipleEcuJob : public VDiagComm {
public:
    ~VMultipleEcuJob() override;
    virtual VProgCodeCollection& ProgCodeCollection() = 0;
    virtual bool HasInputParamCollection() const = 0;
    virtual VInputParamCollection& InputParamCollection() = 0;
    virtual bool HasOutputParamCollection() const = 0;
    virtual VOutputParamCollection& OutputParamCollection() = 0;
    virtual VNegOutputParamCollection& NegOutputParamCollection() = 0;
};

/// DIAG-COMM-REF or DIAG-COMM-SNREF, and similar references with other names.
class DIAGKIT_EXPORT VDiagCommLink : public VLink, public IDiagCommProxy {
public:
    ~VDiagCommLink() override;
    bool IsDiagService() const final { return false; }
    bool IsSingleEcuJob() const final { return false; }
    bool IsDiagCommLink() const final { return true; }
    /// Resolves in the context of the layer, which matters for short names.
    virtual bool HasDiagComm(VDiagLayer& layer) = 0;
    virtual VDiagComm& GetDiagComm() = 0;
};

/// RELATED-DIAG-COMM-REF
class DIAGKIT_EXPORT VRelatedDiagCommRef : public VLink {
public:
    ~VRelatedDiagCommRef() override;
    virtual bool HasDiagComm() const = 0;
    virtual VDiagComm& GetDiagComm() = 0;
};

/// AUDIENCE
class DIAGKIT_EXPORT VAudience : public VOdxElement {
public:
    ~VAudience() override;
};

/// PROG-CODE
class DIAGKIT_EXPORT VProgCode : public VOdxElement, public ICompuScalesProgCodeChoice {
public:
    ~VProgCode() override;
    bool IsCompuScales() const final { return false; }
    bool IsProgCode() const final { return true; }
};

/// INPUT-PARAM
class DIAGKIT_EXPORT VInputParam : public VOdxElement, public IInParamIf {
public:
    ~VInputParam() override;
    bool IsInputParam() const final { return true; }
    bool IsValue() const final { return false; }
    virtual bool HasDopBaseRef() const = 0;
    virtual VDopBaseLink& GetDopBaseRef() = 0;
};

/// OUTPUT-PARAM
class DIAGKIT_EXPORT VOutputParam : public VReferencable, public IOutParamIf {
public:
    ~VOutputParam() override;
    bool IsOutputParam() const final { return true; }
    bool IsValue() const final { return false; }
    virtual bool HasDopBaseRef() const = 0;
    virtual VDopBaseLink& GetDopBaseRef() = 0;
};

/// NEG-OUTPUT-PARAM
class DIAGKIT_EXPORT VNegOutputParam : public VOdxElement {
public:
    ~VNegOutputParam() override;
    virtual bool HasDopBaseRef() const = 0;
    virtual VDopBaseLink& GetDopBaseRef() = 0;
};

/// OUT-PARAM-IF-SNREF, and an ENV-DATA-DESC's PARAM-SNREF.
class DIAGKIT_EXPORT VOutParamIfLink : public VLink {
public:
    ~VOutParamIfLink() override;
    /// Looks for the parameter in the DIAG-COMM as `VAbstractSnrefResolver` does; DOP references are resolved in the
    /// layer.
    virtual bool HasOutParamIf(VDiagComm& diagComm, VDiagLayer& layer, VSearchRange range) = 0;
    virtual IOutParamIf& GetOutParamIf() = 0;
};

} // namespace NODX201
