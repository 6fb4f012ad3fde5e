// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/AdminData.h>
#include <diagkit/memory/Params.h>
#include <diagkit/model/Responses.h>

/// Requests and responses.

namespace NMemory {

/// REQUEST
class VMemRequest final : public VWithParams<VWithAdminData<VMemIdent<NODX201::VRequest, Tag::Request>>> {
public:
    using VWithParams::VWithParams;
};

/// POS-RESPONSE
class VMemPosResponse final : public VWithParams<VWithAdminData<VMemIdent<NODX201::VPosResponse, Tag::PosResponse>>> {
public:
    using VWithParams::VWithParams;
};

/// NEG-RESPONSE
class VMemNegResponse final : public VWithParams<VWithAdminData<VMemIdent<NODX201::VNegResponse, Tag::NegResponse>>> {
public:
    using VWithParams::VWithParams;
};

/// GLOBAL-NEG-RESPONSE
class VMemGlobalNegResponse final
    : public VWithParams<VWithAdminData<VMemIdent<NODX201::VGlobalNegResponse, Tag::GlobalNegResponse>>> {
public:
    using VWithParams::VWithParams;
};

/// REQUEST-REF
class VMemRequestLink final : public VMemLink<NODX201::VRequestLink, Tag::RequestRef, NODX201::VRequest> {
public:
    using VMemLink::VMemLink;
    bool HasRequest() const override { return FindById(); }
    NODX201::VRequest& GetRequest() override { return Found(); }
};

/// POS-RESPONSE-REF
class VMemPosResponseLink final
    : public VMemLink<NODX201::VPosResponseLink, Tag::PosResponseRef, NODX201::VPosResponse> {
public:
    using VMemLink::VMemLink;
    bool HasPosResponse() const override { return FindById(); }
    NODX201::VPosResponse& GetPosResponse() override { return Found(); }
};

/// NEG-RESPONSE-REF
class VMemNegResponseLink final
    : public VMemLink<NODX201::VNegResponseLink, Tag::NegResponseRef, NODX201::VNegResponse> {
public:
    using VMemLink::VMemLink;
    bool HasNegResponse() const override { return FindById(); }
    NODX201::VNegResponse& GetNegResponse() override { return Found(); }
};

} // namespace NMemory
