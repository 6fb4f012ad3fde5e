// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Dictionary.h"

/// Services, jobs, what they send and receive, and diagnostic variables.

namespace NOwnModel {

/// A REQUEST or one of the responses: both are a list of parameters.
template <class Contract>
class VMessage : public VIdentified<Contract> {
public:
    explicit VMessage(VOrigin const& origin) : VIdentified<Contract>(origin) {
        for (VRow const& row : origin.row.rows) {
            if (row.tag == Tag::CodedConst) {
                m_params.Add(std::make_unique<VConstant>(this->Inside(row)));
            } else if (row.tag == Tag::Value) {
                m_params.Add(std::make_unique<VValueParam>(this->Inside(row)));
            }
        }
    }

    NODX201::VParamCollection& ParamCollection() override { return m_params; }

private:
    VOwning<NODX201::VParamCollection> m_params;
};

class VRequestRef : public VLinkTo<NODX201::VRequestLink, NODX201::VRequest> {
public:
    using VLinkTo::VLinkTo;

    bool HasRequest() const override { return FindById(); }
    NODX201::VRequest& GetRequest() override { return Found(); }
};

class VPosResponseRef : public VLinkTo<NODX201::VPosResponseLink, NODX201::VPosResponse> {
public:
    using VLinkTo::VLinkTo;

    bool HasPosResponse() const override { return FindById(); }
    NODX201::VPosResponse& GetPosResponse() override { return Found(); }
};

/// DIAG-COMM-REF and DIAG-COMM-SNREF.
class VDiagCommRef : public VLinkTo<NODX201::VDiagCommLink, NODX201::VDiagComm> {
public:
    using VLinkTo::VLinkTo;

    bool HasDiagComm(NODX201::VDiagLayer& layer) override {
        return IsByName() ? Remember(Index().resolver->ResolveDiagCommSnref(Name(), layer)) : FindById();
    }
    NODX201::VDiagComm& GetDiagComm() override { return Found(); }
};

using VAudienceRow = VElement<NODX201::VAudience>;
using VProgram = VElement<NODX201::VProgCode>;

/// Base of services and jobs.
template <class Contract>
class VDiagCommOf : public VIdentified<Contract> {
public:
    explicit VDiagCommOf(VOrigin const& origin)
        : VIdentified<Contract>(origin), m_audience(this->template MakeChild<VAudienceRow>(Tag::Audience)) {}

    bool HasAudience() const override { return m_audience != nullptr; }
    NODX201::VAudience& GetAudience() override { return *m_audience; }

private:
    std::unique_ptr<VAudienceRow> m_audience;
};

class VService : public VDiagCommOf<NODX201::VDiagService> {
public:
    explicit VService(VOrigin const& origin)
        : VDiagCommOf(origin), m_requestRef(MakeChild<VRequestRef>(Tag::RequestRef)) {
        AddAll<VPosResponseRef>(m_posResponseRefs, Tag::PosResponseRef);
    }

    bool HasRequestRef() const override { return m_requestRef != nullptr; }
    NODX201::VRequestLink& GetRequestRef() override { return *m_requestRef; }
    bool HasPosResponseLinkCollection() const override { return m_posResponseRefs.Count() != 0; }
    NODX201::VPosResponseLinkCollection& PosResponseLinkCollection() override { return m_posResponseRefs; }

private:
    std::unique_ptr<VRequestRef> m_requestRef;
    VOwning<NODX201::VPosResponseLinkCollection> m_posResponseRefs;
};

class VJob : public VDiagCommOf<NODX201::VSingleEcuJob> {
public:
    explicit VJob(VOrigin const& origin) : VDiagCommOf(origin) { AddAll<VProgram>(m_programs, Tag::ProgCode); }

    NODX201::VProgCodeCollection& ProgCodeCollection() override { return m_programs; }

private:
    VOwning<NODX201::VProgCodeCollection> m_programs;
};

using VVariable = VIdentified<NODX201::VDiagVariable>;

} // namespace NOwnModel
