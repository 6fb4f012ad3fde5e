// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <gtest/gtest.h>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/Dops.h>
#include <diagkit/memory/Layers.h>
#include <diagkit/memory/Tables.h>

#include "support/GraphTest.h"
#include "support/RecordedAssertions.h"
#include "support/RecordedLog.h"
#include "support/VerifyModel.h"

namespace NTest {

/// The short names of a view's parameters, separated by blanks.
template <class View>
std::wstring PrintParams(View& view) {
    std::wstring text;
    for (auto& param : view) {
        text += (text.empty() ? L"" : L" ") + std::wstring(dynamic_cast<NODX201::VOdxElement&>(param).GetShortName());
    }
    return text;
}

/// A test over one layer with a service whose request and responses it fills, a job of each kind and a dictionary.
class VParamTest : public testing::Test {
protected:
    VParamTest() { m_service.SetId(L"Service"); }

    NMemory::VMemRequest& Request() {
        NMemory::VMemRequest& request = m_layer.AddRequest(L"Request");
        m_service.SetRequestRef(request);
        return request;
    }
    NMemory::VMemPosResponse& PosResponse() {
        NMemory::VMemPosResponse& response = m_layer.AddPosResponse(L"PosResponse");
        m_service.AddPosResponseRef(response);
        return response;
    }
    NMemory::VMemNegResponse& NegResponse() {
        NMemory::VMemNegResponse& response = m_layer.AddNegResponse(L"NegResponse");
        m_service.AddNegResponseRef(response);
        return response;
    }

    /// The job as a class as which it must not be passed.
    NODX201::VDiagComm& MultipleJobAsDiagComm() { return m_multipleJob; }

    VRecordedAssertions m_assertions;
    NMemory::VDatabase m_database;
    NMemory::VMemDiagLayerContainer& m_container = m_database.AddDiagLayerContainer(L"Container");
    NMemory::VMemEcuVariant& m_layer = m_container.AddEcuVariant(L"Layer");
    NMemory::VMemDiagDataDictionarySpec& m_dictionary = m_layer.MakeDiagDataDictionarySpec();
    NMemory::VMemDiagService& m_service = m_layer.AddDiagService(L"Service");
    NMemory::VMemSingleEcuJob& m_singleJob = m_layer.AddSingleEcuJob(L"SingleJob");
    NMemory::VMemMultipleEcuJob& m_multipleJob =
        m_database.AddMultipleEcuJobSpec(L"Jobs").AddMultipleEcuJob(L"MultipleJob");
};

/// A parameter by interface that claims to be what the test sets, is none of it, and reports its destruction.
class VMockInParam : public NODX201::IInParamIf {
public:
    explicit VMockInParam(bool isValue, bool* isDestroyed = nullptr) : m_isValue(isValue), m_isDestroyed(isDestroyed) {}
    ~VMockInParam() override {
        if (m_isDestroyed != nullptr) {
            *m_isDestroyed = true;
        }
    }
    bool IsInputParam() const override { return !m_isValue; }
    bool IsValue() const override { return m_isValue; }

private:
    bool m_isValue;
    bool* m_isDestroyed;
};

class VMockOutParam : public NODX201::IOutParamIf {
public:
    explicit VMockOutParam(bool isValue, bool* isDestroyed = nullptr)
        : m_isValue(isValue), m_isDestroyed(isDestroyed) {}
    ~VMockOutParam() override {
        if (m_isDestroyed != nullptr) {
            *m_isDestroyed = true;
        }
    }
    bool IsOutputParam() const override { return !m_isValue; }
    bool IsValue() const override { return m_isValue; }

private:
    bool m_isValue;
    bool* m_isDestroyed;
};

/// Implements what the abstract builders leave open. None of it is ever called.
template <class Builder>
class VConcreteBuilder : public Builder {
public:
    using Builder::Builder;

    void VisitBaseVariant(NODX201::VBaseVariant&) override { ADD_FAILURE(); }
    void VisitProtocol(NODX201::VProtocol&) override { ADD_FAILURE(); }
    void VisitFunctionalGroup(NODX201::VFunctionalGroup&) override { ADD_FAILURE(); }
    void VisitEcuVariant(NODX201::VEcuVariant&) override { ADD_FAILURE(); }
    void VisitEcuSharedData(NODX201::VEcuSharedData&) override { ADD_FAILURE(); }
};

} // namespace NTest
