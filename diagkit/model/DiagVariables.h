// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Collections.h>
#include <diagkit/model/Reference.h>

/// Diagnostic variables.

namespace NODX201 {

/// An entry of a layer's DIAG-VARIABLES: exactly one test is true, and the entry is castable to that class.
class DIAGKIT_EXPORT IDiagVariableProxy {
public:
    virtual bool IsDiagVariableLink() const = 0;
    virtual bool IsDiagVariable() const = 0;

protected:
    IDiagVariableProxy() = default;
    ~IDiagVariableProxy() = default;
};

/// DIAG-VARIABLE
class DIAGKIT_EXPORT VDiagVariable : public VReferencable, public IDiagVariableProxy {
public:
    ~VDiagVariable() override;
    bool IsDiagVariableLink() const final { return false; }
    bool IsDiagVariable() const final { return true; }
    virtual bool HasAdminData() const = 0;
    virtual VAdminData& GetAdminData() = 0;
    virtual bool HasVariableGroupRef() const = 0;
    virtual VVariableGroupLink& GetVariableGroupRef() = 0;
    virtual VSwVariableCollection& SwVariableCollection() = 0;
    virtual VCommRelationCollection& CommRelationCollection() = 0;
};

/// DIAG-VARIABLE-REF, and the DIAG-VARIABLE-SNREF of NOT-INHERITED-VARIABLE.
class DIAGKIT_EXPORT VDiagVariableLink : public VLink, public IDiagVariableProxy {
public:
    ~VDiagVariableLink() override;
    bool IsDiagVariableLink() const final { return true; }
    bool IsDiagVariable() const final { return false; }
    /// Resolves in the context of the layer, which matters for short names.
    virtual bool HasDiagVariable(VDiagLayer& layer) = 0;
    virtual VDiagVariable& GetDiagVariable() = 0;
};

/// VARIABLE-GROUP
class DIAGKIT_EXPORT VVariableGroup : public VReferencable {
public:
    ~VVariableGroup() override;
};

/// VARIABLE-GROUP-REF
class DIAGKIT_EXPORT VVariableGroupLink : public VLink {
public:
    ~VVariableGroupLink() override;
    virtual bool HasVariableGroup() const = 0;
    virtual VVariableGroup& GetVariableGroup() = 0;
};

/// SW-VARIABLE
class DIAGKIT_EXPORT VSwVariable : public VOdxElement {
public:
    ~VSwVariable() override;
};

/// COMM-RELATION
class DIAGKIT_EXPORT VCommRelation : public VOdxElement {
public:
    /// @VALUE-TYPE
    enum class VCommRelationValueType : int { Current = 0, Stored, Static, Substituted };

    ~VCommRelation() override;
    virtual bool HasDiagCommLink() const = 0; ///< DIAG-COMM-REF or DIAG-COMM-SNREF
    virtual VDiagCommLink& GetDiagCommLink() = 0;
};

} // namespace NODX201
