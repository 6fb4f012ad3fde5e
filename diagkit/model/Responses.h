// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Collections.h>
#include <diagkit/model/Reference.h>

/// Requests and responses of services.

namespace NODX201 {

/// REQUEST
class DIAGKIT_EXPORT VRequest : public VReferencable {
public:
    ~VRequest() override;
    virtual bool HasAdminData() const = 0;
    virtual VAdminData& GetAdminData() = 0;
    virtual VParamCollection& ParamCollection() = 0;
};

/// Base of the three kinds of response.
class DIAGKIT_EXPORT VResponse : public VReferencable {
public:
    ~VResponse() override;
    virtual bool HasAdminData() const = 0;
    virtual VAdminData& GetAdminData() = 0;
    virtual VParamCollection& ParamCollection() = 0;
};

/// POS-RESPONSE
class DIAGKIT_EXPORT VPosResponse : public VResponse {
public:
    ~VPosResponse() override;
};

/// NEG-RESPONSE
class DIAGKIT_EXPORT VNegResponse : public VResponse {
public:
    ~VNegResponse() override;
};

/// GLOBAL-NEG-RESPONSE
class DIAGKIT_EXPORT VGlobalNegResponse : public VResponse {
public:
    ~VGlobalNegResponse() override;
};

/// REQUEST-REF
class DIAGKIT_EXPORT VRequestLink : public VLink {
public:
    ~VRequestLink() override;
    virtual bool HasRequest() const = 0;
    virtual VRequest& GetRequest() = 0;
};

/// POS-RESPONSE-REF
class DIAGKIT_EXPORT VPosResponseLink : public VLink {
public:
    ~VPosResponseLink() override;
    virtual bool HasPosResponse() const = 0;
    virtual VPosResponse& GetPosResponse() = 0;
};

/// NEG-RESPONSE-REF
class DIAGKIT_EXPORT VNegResponseLink : public VLink {
public:
    ~VNegResponseLink() override;
    virtual bool HasNegResponse() const = 0;
    virtual VNegResponse& GetNegResponse() = 0;
};

} // namespace NODX201
