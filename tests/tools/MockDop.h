// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Dops.h>

#include "support/MockElements.h"

namespace NTest {

/// A DOP of no kind that reports its destruction.
class VMockDop : public VMockElement<NODX201::VDopBase> {
public:
    explicit VMockDop(wchar_t const* shortName, bool* isDestroyed = nullptr)
        : VMockElement(shortName), m_isDestroyed(isDestroyed) {}
    ~VMockDop() override {
        if (m_isDestroyed != nullptr) {
            *m_isDestroyed = true;
        }
    }

    wchar_t const* GetId() const override { return L""; }
    void Accept(NODX201::VDopBaseVisitor&) override {}
    bool HasOid() const override { return false; }
    wchar_t const* GetOid() const override { return L""; }
    bool HasAdminData() const override { return false; }
    NODX201::VAdminData& GetAdminData() override { NotExpected("GetAdminData"); }

private:
    bool* m_isDestroyed;
};

/// An ECU-VARIANT without a dictionary, which must not be requested then. It counts how often it is asked whether it
/// has one: once for every DOP view that is built of it.
class VCountingLayer : public VMockEcuVariant {
public:
    using VMockEcuVariant::VMockEcuVariant;

    bool HasDiagDataDictionarySpec() const override {
        ++m_timesAsked;
        return false;
    }
    NODX201::VParentRefCollection& ParentRefCollection() override { return m_parents; }

    mutable int m_timesAsked = 0;
};

} // namespace NTest
