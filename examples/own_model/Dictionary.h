// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Elements.h"

/// DOPs and parameters. Of the ten kinds of DOP this database has one, of the eleven kinds of PARAM two.

namespace NOwnModel {

/// Elements of which the contract asks nothing, or nothing that this database has.
using VStandardLength = VElement<NODX201::VStandardLengthType>;
using VPhysical = VElement<NODX201::VPhysicalType>;
using VCompu = VElement<NODX201::VCompuMethod>;

class VDop : public VIdentified<NODX201::VDataObjectProp> {
public:
    explicit VDop(VOrigin const& origin)
        : VIdentified(origin), m_compuMethod(MakeChild<VCompu>(Tag::CompuMethod)),
          m_codedType(MakeChild<VStandardLength>(Tag::StandardLengthType)),
          m_physicalType(MakeChild<VPhysical>(Tag::PhysicalType)) {}

    bool HasOid() const override { return !Row().oid.empty(); }
    wchar_t const* GetOid() const override { return Row().oid.c_str(); }
    bool HasCompuMethod() const override { return m_compuMethod != nullptr; }
    NODX201::VCompuMethod& GetCompuMethod() override { return *m_compuMethod; }
    bool HasDiagCodedType() const override { return m_codedType != nullptr; }
    NODX201::VDiagCodedType& GetDiagCodedType() override { return *m_codedType; }
    bool HasPhysicalType() const override { return m_physicalType != nullptr; }
    NODX201::VPhysicalType& GetPhysicalType() override { return *m_physicalType; }

private:
    std::unique_ptr<VCompu> m_compuMethod;
    std::unique_ptr<VStandardLength> m_codedType;
    std::unique_ptr<VPhysical> m_physicalType;
};

class VDictionary : public VElement<NODX201::VDiagDataDictionarySpec> {
public:
    explicit VDictionary(VOrigin const& origin) : VElement(origin) { AddAll<VDop>(m_dops, Tag::DataObjectProp); }

    NODX201::VDopBaseCollection& DopBaseCollection() override { return m_dops; }

private:
    VOwning<NODX201::VDopBaseCollection> m_dops;
};

/// DOP-REF and DOP-SNREF. Short names are resolved by the toolkit: the model calls its resolver.
class VDopLink : public VLinkTo<NODX201::VDopBaseLink, NODX201::VDopBase> {
public:
    using VLinkTo::VLinkTo;

    bool HasDopBase(NODX201::VDiagLayer& layer) override {
        return IsByName() ? Remember(Index().resolver->ResolveDopBaseSnref(Name(), layer)) : FindById();
    }
    NODX201::VDopBase& GetDopBase() override { return Found(); }
};

class VConstant : public VIdentified<NODX201::VCodedConst> {
public:
    explicit VConstant(VOrigin const& origin)
        : VIdentified(origin), m_codedType(MakeChild<VStandardLength>(Tag::StandardLengthType)) {}

    bool HasDiagCodedType() const override { return m_codedType != nullptr; }
    NODX201::VDiagCodedType& GetDiagCodedType() override { return *m_codedType; }

private:
    std::unique_ptr<VStandardLength> m_codedType;
};

class VValueParam : public VIdentified<NODX201::VValue> {
public:
    explicit VValueParam(VOrigin const& origin) : VIdentified(origin), m_dopRef(MakeChild<VDopLink>(Tag::DopRef)) {
        if (m_dopRef == nullptr) {
            m_dopRef = MakeChild<VDopLink>(Tag::DopSnref);
        }
    }

    bool HasDopBaseLink() const override { return m_dopRef != nullptr; }
    NODX201::VDopBaseLink& GetDopBaseLink() override { return *m_dopRef; }

private:
    std::unique_ptr<VDopLink> m_dopRef;
};

} // namespace NOwnModel
