// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Collections.h>
#include <diagkit/model/Reference.h>

/// Diagnostic layers and their parts. A layer contains only its own elements, nothing inherited; the toolkit's views
/// compute what is visible in it.

namespace NODX201 {

/// DIAG-LAYER-CONTAINER
class DIAGKIT_EXPORT VDiagLayerContainer : public VReferencable {
public:
    ~VDiagLayerContainer() override;
    virtual VDiagLayerCollection& DiagLayerCollection() = 0;
};

/// Base of the five kinds of layer.
class DIAGKIT_EXPORT VDiagLayer : public VReferencable {
public:
    ~VDiagLayer() override;

    /// Calls back the Visit operation of the layer's kind, exactly once.
    virtual void Accept(VDiagLayerVisitor& visitor) = 0;

    virtual bool HasLongName() const = 0;
    virtual VText& GetLongName() = 0;
    virtual bool HasOid() const = 0; ///< an empty @OID counts as none
    virtual wchar_t const* GetOid() const = 0;
    virtual bool HasAdminData() const = 0;
    virtual VAdminData& GetAdminData() = 0;
    virtual VCompanyDataCollection& CompanyDataCollection() = 0;
    virtual VFunctClassCollection& FunctClassCollection() = 0;
    virtual bool HasDiagDataDictionarySpec() const = 0;
    virtual VDiagDataDictionarySpec& GetDiagDataDictionarySpec() = 0;

    virtual bool HasDiagCommProxyCollection() const = 0;
    /// The layer's own DIAG-COMMS: services, single-ECU jobs and DIAG-COMM-REFs.
    virtual VDiagCommProxyCollection& DiagCommProxyCollection() = 0;
    virtual VRequestCollection& RequestCollection() = 0;
    /// POS-RESPONSES, NEG-RESPONSES and GLOBAL-NEG-RESPONSES in one list, in document order.
    virtual VResponseCollection& ResponseCollection() = 0;
};

/// PROTOCOL
class DIAGKIT_EXPORT VProtocol : public VDiagLayer {
public:
    ~VProtocol() override;
    virtual bool HasParentRefCollection() const = 0;
    virtual VParentRefCollection& ParentRefCollection() = 0;
    virtual VAccessLevelCollection& AccessLevelCollection() = 0;
    virtual VStringCollection& AutMethodCollection() = 0;
    virtual bool HasComparamSpecRef() const = 0;
    virtual VComparamSpecLink& GetComparamSpecRef() = 0;
};

/// FUNCTIONAL-GROUP
class DIAGKIT_EXPORT VFunctionalGroup : public VDiagLayer {
public:
    ~VFunctionalGroup() override;
    virtual bool HasParentRefCollection() const = 0;
    virtual VParentRefCollection& ParentRefCollection() = 0;
    virtual VAccessLevelCollection& AccessLevelCollection() = 0;
    virtual VStringCollection& AutMethodCollection() = 0;
    virtual VDiagVariableProxyCollection& DiagVariableProxyCollection() = 0;
    virtual VVariableGroupCollection& VariableGroupCollection() = 0;
};

/// BASE-VARIANT
class DIAGKIT_EXPORT VBaseVariant : public VDiagLayer {
public:
    ~VBaseVariant() override;
    virtual bool HasParentRefCollection() const = 0;
    virtual VParentRefCollection& ParentRefCollection() = 0;
    virtual VAccessLevelCollection& AccessLevelCollection() = 0;
    virtual VStringCollection& AutMethodCollection() = 0;
    virtual VDiagVariableProxyCollection& DiagVariableProxyCollection() = 0;
    virtual VVariableGroupCollection& VariableGroupCollection() = 0;
    virtual bool HasDynDefinedSpec() const = 0;
    virtual VDynDefinedSpec& GetDynDefinedSpec() = 0;
};

/// ECU-VARIANT
class DIAGKIT_EXPORT VEcuVariant : public VDiagLayer {
public:
    ~VEcuVariant() override;
    virtual bool HasParentRefCollection() const = 0;
    virtual VParentRefCollection& ParentRefCollection() = 0;
    virtual VAccessLevelCollection& AccessLevelCollection() = 0;
    virtual VStringCollection& AutMethodCollection() = 0;
    virtual VDiagVariableProxyCollection& DiagVariableProxyCollection() = 0;
    virtual VVariableGroupCollection& VariableGroupCollection() = 0;
    virtual bool HasDynDefinedSpec() const = 0;
    virtual VDynDefinedSpec& GetDynDefinedSpec() = 0;
    virtual VEcuVariantPatternCollection& EcuVariantPatternCollection() = 0;
};

/// ECU-SHARED-DATA: the only kind without parents.
class DIAGKIT_EXPORT VEcuSharedData : public VDiagLayer {
public:
    ~VEcuSharedData() override;
    virtual VDiagVariableProxyCollection& DiagVariableProxyCollection() = 0;
    virtual VVariableGroupCollection& VariableGroupCollection() = 0;
};

/// FUNCT-CLASS
class DIAGKIT_EXPORT VFunctClass : public VReferencable {
public:
    ~VFunctClass() override;
    virtual bool HasAdminData() const = 0;
    virtual VAdminData& GetAdminData() = 0;
};

/// FUNCT-CLASS-REF
class DIAGKIT_EXPORT VFunctClassLink : public VLink {
public:
    ~VFunctClassLink() override;
    virtual bool HasFunctClass() const = 0;
    virtual VFunctClass& GetFunctClass() = 0;
};

/// ACCESS-LEVEL: names a DIAG-COMM, or an external method (then there is no SNREF).
class DIAGKIT_EXPORT VAccessLevel : public VOdxElement {
public:
    ~VAccessLevel() override;
    virtual bool HasDiagCommSnref() const = 0;
    virtual VDiagCommLink& GetDiagCommSnref() = 0;
};

/// DYN-DEFINED-SPEC
class DIAGKIT_EXPORT VDynDefinedSpec : public VOdxElement {
public:
    ~VDynDefinedSpec() override;
    virtual VDynIdDefModeInfoCollection& DynIdDefModeInfoCollection() = 0;
};

/// DYN-ID-DEF-MODE-INFO; each of the three messages is given by a ...-REF or a ...-SNREF.
class DIAGKIT_EXPORT VDynIdDefModeInfo : public VOdxElement {
public:
    ~VDynIdDefModeInfo() override;
    virtual bool HasClearDynDefMessageRef() const = 0;
    virtual VDiagCommLink& GetClearDynDefMessageRef() = 0;
    virtual bool HasReadDynDefMessageRef() const = 0;
    virtual VDiagCommLink& GetReadDynDefMessageRef() = 0;
    virtual bool HasDynDefMessageRef() const = 0;
    virtual VDiagCommLink& GetDynDefMessageRef() = 0;
    virtual VSupportedDynIdCollection& SupportedDynIdCollection() = 0;
    virtual VTableLinkCollection& TableLinkCollection() = 0; ///< SELECTION-TABLE-REFS
};

/// ECU-VARIANT-PATTERN
class DIAGKIT_EXPORT VEcuVariantPattern : public VOdxElement {
public:
    ~VEcuVariantPattern() override;
    virtual VMatchingParameterCollection& MatchingParameterCollection() = 0;
};

/// MATCHING-PARAMETER
class DIAGKIT_EXPORT VMatchingParameter : public VOdxElement {
public:
    ~VMatchingParameter() override;
    virtual bool HasDiagCommSnref() const = 0;
    virtual VDiagCommLink& GetDiagCommSnref() = 0;
};

} // namespace NODX201
