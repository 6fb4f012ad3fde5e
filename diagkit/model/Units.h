// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Collections.h>
#include <diagkit/model/Reference.h>

/// Units, their groups and dimensions.

namespace NODX201 {

/// UNIT-SPEC
class DIAGKIT_EXPORT VUnitSpec : public VOdxElement {
public:
    ~VUnitSpec() override;
    virtual bool HasAdminData() const = 0;
    virtual VAdminData& GetAdminData() = 0;
    virtual VUnitGroupCollection& UnitGroupCollection() = 0;
    virtual VUnitCollection& UnitCollection() = 0;
    virtual VPhysicalDimensionCollection& PhysicalDimensionCollection() = 0;
};

/// UNIT
class DIAGKIT_EXPORT VUnit : public VReferencable {
public:
    ~VUnit() override;
    virtual bool HasPhysicalDimensionRef() const = 0;
    virtual VPhysicalDimensionLink& GetPhysicalDimensionRef() = 0;
};

/// UNIT-GROUP
class DIAGKIT_EXPORT VUnitGroup : public VOdxElement {
public:
    /// CATEGORY
    enum class VUnitGroupCategory : int { Country = 0, EquivUnits };

    ~VUnitGroup() override;
    virtual VUnitLinkCollection& UnitLinkCollection() = 0;
};

/// UNIT-REF
class DIAGKIT_EXPORT VUnitLink : public VLink {
public:
    ~VUnitLink() override;
    virtual bool HasUnit() const = 0;
    virtual VUnit& GetUnit() = 0;
};

/// PHYSICAL-DIMENSION
class DIAGKIT_EXPORT VPhysicalDimension : public VReferencable {
public:
    ~VPhysicalDimension() override;
};

/// PHYSICAL-DIMENSION-REF
class DIAGKIT_EXPORT VPhysicalDimensionLink : public VLink {
public:
    ~VPhysicalDimensionLink() override;
    virtual bool HasPhysicalDimension() const = 0;
    virtual VPhysicalDimension& GetPhysicalDimension() = 0;
};

} // namespace NODX201
