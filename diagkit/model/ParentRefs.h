// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Collections.h>
#include <diagkit/model/Reference.h>

/// PARENT-REFs: what a layer inherits from. A test says whether the target exists and is a layer of that kind;
/// distinguish the kinds by dynamic cast. A reference of unknown kind is a plain `VParentRef`, which every view skips.

namespace NODX201 {

/// PARENT-REF
class DIAGKIT_EXPORT VParentRef : public VLink {
public:
    ~VParentRef() override;
    virtual bool HasNotInheritedDiagCommCollection() const = 0;
    virtual VNotInheritedDiagCommCollection& NotInheritedDiagCommCollection() = 0;
    virtual bool HasNotInheritedVariableCollection() const = 0;
    virtual VNotInheritedVariableCollection& NotInheritedVariableCollection() = 0;
};

/// PARENT-REF of xsi:type PROTOCOL-REF
class DIAGKIT_EXPORT VProtocolRef : public VParentRef {
public:
    ~VProtocolRef() override;
    virtual bool HasProtocol() const = 0;
    virtual VProtocol& GetProtocol() = 0;
};

/// PARENT-REF of xsi:type FUNCTIONAL-GROUP-REF
class DIAGKIT_EXPORT VFunctionalGroupRef : public VParentRef {
public:
    ~VFunctionalGroupRef() override;
    virtual bool HasFunctionalGroup() const = 0;
    virtual VFunctionalGroup& GetFunctionalGroup() = 0;
};

/// PARENT-REF of xsi:type BASE-VARIANT-REF
class DIAGKIT_EXPORT VBaseVariantRef : public VParentRef {
public:
    ~VBaseVariantRef() override;
    virtual bool HasBaseVariant() const = 0;
    virtual VBaseVariant& GetBaseVariant() = 0;
};

/// PARENT-REF of xsi:type ECU-SHARED-DATA-REF
class DIAGKIT_EXPORT VEcuSharedDataRef : public VParentRef {
public:
    ~VEcuSharedDataRef() override;
    virtual bool HasEcuSharedData() const = 0;
    virtual VEcuSharedData& GetEcuSharedData() = 0;
};

/// NOT-INHERITED-DIAG-COMM: excludes the DIAG-COMM of one short name from the elements inherited through the
/// PARENT-REF.
class DIAGKIT_EXPORT VNotInheritedDiagComm : public VOdxElement {
public:
    ~VNotInheritedDiagComm() override;
    virtual VDiagCommLink& GetDiagCommSnref() = 0;
};

/// NOT-INHERITED-VARIABLE. No view applies it.
class DIAGKIT_EXPORT VNotInheritedVariable : public VOdxElement {
public:
    ~VNotInheritedVariable() override;
    virtual VDiagVariableLink& GetDiagVariableSnref() = 0;
};

} // namespace NODX201
