// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DiagComms.h"

/// The five kinds of layer and their PARENT-REFs.

namespace NOwnModel {

class VExclusion : public VElement<NODX201::VNotInheritedDiagComm> {
public:
    explicit VExclusion(VOrigin const& origin)
        : VElement(origin), m_snref(MakeChild<VDiagCommRef>(Tag::DiagCommSnref)) {}

    NODX201::VDiagCommLink& GetDiagCommSnref() override { return *m_snref; }

private:
    std::unique_ptr<VDiagCommRef> m_snref;
};

template <class Contract, class Target>
class VParentRefTo : public VLinkTo<Contract, Target> {
public:
    explicit VParentRefTo(VOrigin const& origin) : VLinkTo<Contract, Target>(origin) {
        this->template AddAll<VExclusion>(m_exclusions, Tag::NotInheritedDiagComm);
    }

    bool HasNotInheritedDiagCommCollection() const override { return m_exclusions.Count() != 0; }
    NODX201::VNotInheritedDiagCommCollection& NotInheritedDiagCommCollection() override { return m_exclusions; }

private:
    VOwning<NODX201::VNotInheritedDiagCommCollection> m_exclusions;
};

class VProtocolParent : public VParentRefTo<NODX201::VProtocolRef, NODX201::VProtocol> {
public:
    using VParentRefTo::VParentRefTo;
    bool HasProtocol() const override { return FindById(); }
    NODX201::VProtocol& GetProtocol() override { return Found(); }
};

class VFunctionalGroupParent : public VParentRefTo<NODX201::VFunctionalGroupRef, NODX201::VFunctionalGroup> {
public:
    using VParentRefTo::VParentRefTo;
    bool HasFunctionalGroup() const override { return FindById(); }
    NODX201::VFunctionalGroup& GetFunctionalGroup() override { return Found(); }
};

class VBaseVariantParent : public VParentRefTo<NODX201::VBaseVariantRef, NODX201::VBaseVariant> {
public:
    using VParentRefTo::VParentRefTo;
    bool HasBaseVariant() const override { return FindById(); }
    NODX201::VBaseVariant& GetBaseVariant() override { return Found(); }
};

class VEcuSharedDataParent : public VParentRefTo<NODX201::VEcuSharedDataRef, NODX201::VEcuSharedData> {
public:
    using VParentRefTo::VParentRefTo;
    bool HasEcuSharedData() const override { return FindById(); }
    NODX201::VEcuSharedData& GetEcuSharedData() override { return Found(); }
};

class VComparamSpecRef : public VLinkTo<NODX201::VComparamSpecLink, NODX201::VComparamSpec> {
public:
    using VLinkTo::VLinkTo;
    bool HasComparamSpec() const override { return FindById(); }
    NODX201::VComparamSpec& GetComparamSpec() override { return Found(); }
};

class VTextRow : public VElement<NODX201::VText> {
public:
    using VElement::VElement;
    wchar_t const* GetBaseMember() const override { return Row().text.c_str(); }
};

/// Base of the five kinds.
template <class Contract>
class VLayer : public VIdentified<Contract> {
public:
    explicit VLayer(VOrigin const& origin)
        : VIdentified<Contract>(origin), m_longName(this->template MakeChild<VTextRow>(Tag::LongName)),
          m_dictionary(this->template MakeChild<VDictionary>(Tag::DiagDataDictionarySpec)) {
        for (VRow const& row : origin.row.rows) {
            AddRow(row);
        }
    }

    bool HasLongName() const override { return m_longName != nullptr; }
    NODX201::VText& GetLongName() override { return *m_longName; }
    bool HasOid() const override { return !this->Row().oid.empty(); }
    wchar_t const* GetOid() const override { return this->Row().oid.c_str(); }
    bool HasDiagDataDictionarySpec() const override { return m_dictionary != nullptr; }
    NODX201::VDiagDataDictionarySpec& GetDiagDataDictionarySpec() override { return *m_dictionary; }
    bool HasDiagCommProxyCollection() const override { return m_diagComms.Count() != 0; }
    VOwning<NODX201::VDiagCommProxyCollection>& DiagCommProxyCollection() override { return m_diagComms; }
    VOwning<NODX201::VRequestCollection>& RequestCollection() override { return m_requests; }
    NODX201::VResponseCollection& ResponseCollection() override { return m_responses; }

private:
    void AddRow(VRow const& row) {
        if (row.tag == Tag::DiagService) {
            m_diagComms.Add(std::make_unique<VService>(this->Inside(row)));
        } else if (row.tag == Tag::SingleEcuJob) {
            m_diagComms.Add(std::make_unique<VJob>(this->Inside(row)));
        } else if (row.tag == Tag::DiagCommRef) {
            m_diagComms.Add(std::make_unique<VDiagCommRef>(this->Inside(row)));
        } else if (row.tag == Tag::Request) {
            m_requests.Add(std::make_unique<VMessage<NODX201::VRequest>>(this->Inside(row)));
        } else if (row.tag == Tag::PosResponse) {
            m_responses.Add(std::make_unique<VMessage<NODX201::VPosResponse>>(this->Inside(row)));
        } else if (row.tag == Tag::GlobalNegResponse) {
            m_responses.Add(std::make_unique<VMessage<NODX201::VGlobalNegResponse>>(this->Inside(row)));
        }
    }

    std::unique_ptr<VTextRow> m_longName;
    std::unique_ptr<VDictionary> m_dictionary;
    VOwning<NODX201::VDiagCommProxyCollection> m_diagComms;
    VOwning<NODX201::VRequestCollection> m_requests;
    VOwning<NODX201::VResponseCollection> m_responses;
};

/// A layer with parents.
template <class Contract>
class VChildLayer : public VLayer<Contract> {
public:
    explicit VChildLayer(VOrigin const& origin) : VLayer<Contract>(origin) {
        for (VRow const& row : origin.row.rows) {
            AddParent(row);
        }
    }

    bool HasParentRefCollection() const override { return m_parentRefs.Count() != 0; }
    NODX201::VParentRefCollection& ParentRefCollection() override { return m_parentRefs; }

private:
    void AddParent(VRow const& row) {
        if (row.tag == Tag::ProtocolRef) {
            m_parentRefs.Add(std::make_unique<VProtocolParent>(this->Inside(row)));
        } else if (row.tag == Tag::FunctionalGroupRef) {
            m_parentRefs.Add(std::make_unique<VFunctionalGroupParent>(this->Inside(row)));
        } else if (row.tag == Tag::BaseVariantRef) {
            m_parentRefs.Add(std::make_unique<VBaseVariantParent>(this->Inside(row)));
        } else if (row.tag == Tag::EcuSharedDataRef) {
            m_parentRefs.Add(std::make_unique<VEcuSharedDataParent>(this->Inside(row)));
        }
    }

    VOwning<NODX201::VParentRefCollection> m_parentRefs;
};

/// A layer with DIAG-VARIABLES.
template <class Base>
class VWithVariables : public Base {
public:
    explicit VWithVariables(VOrigin const& origin) : Base(origin) {
        this->template AddAll<VVariable>(m_variables, Tag::DiagVariable);
    }

    NODX201::VDiagVariableProxyCollection& DiagVariableProxyCollection() override { return m_variables; }

private:
    VOwning<NODX201::VDiagVariableProxyCollection> m_variables;
};

class VProtocolLayer : public VChildLayer<NODX201::VProtocol> {
public:
    explicit VProtocolLayer(VOrigin const& origin)
        : VChildLayer(origin), m_comparamSpecRef(MakeChild<VComparamSpecRef>(Tag::ComparamSpecRef)) {}

    bool HasComparamSpecRef() const override { return m_comparamSpecRef != nullptr; }
    NODX201::VComparamSpecLink& GetComparamSpecRef() override { return *m_comparamSpecRef; }

private:
    std::unique_ptr<VComparamSpecRef> m_comparamSpecRef;
};

using VFunctionalGroupLayer = VWithVariables<VChildLayer<NODX201::VFunctionalGroup>>;
using VBaseVariantLayer = VWithVariables<VChildLayer<NODX201::VBaseVariant>>;
using VEcuVariantLayer = VWithVariables<VChildLayer<NODX201::VEcuVariant>>;

class VEcuSharedDataLayer : public VWithVariables<VLayer<NODX201::VEcuSharedData>> {
public:
    using VWithVariables::VWithVariables;
};

} // namespace NOwnModel
