// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/AdminData.h>
#include <diagkit/model/Layers.h>

/// Functional classes.

namespace NMemory {

/// FUNCT-CLASS-REF
class VMemFunctClassLink final : public VMemLink<NODX201::VFunctClassLink, Tag::FunctClassRef, NODX201::VFunctClass> {
public:
    using VMemLink::VMemLink;
    bool HasFunctClass() const override { return FindById(); }
    NODX201::VFunctClass& GetFunctClass() override { return Found(); }
};

/// FUNCT-CLASS
class VMemFunctClass final : public VWithAdminData<VMemIdent<NODX201::VFunctClass, Tag::FunctClass>> {
public:
    using VWithAdminData::VWithAdminData;
};

/// Adds FUNCT-CLASSS to a layer or job spec.
template <class Base>
class VWithFunctClasses : public Base {
public:
    using Base::Base;

    NODX201::VFunctClassCollection& FunctClassCollection() { return m_functClass.Get(); } ///< FUNCT-CLASSS
    VMemCollection<NODX201::VFunctClassCollection>& MakeFunctClassCollection() { return m_functClass.Make(); }
    VMemFunctClass& AddFunctClass(wchar_t const* shortName) {
        return AddNamed<VMemFunctClass>(m_functClass, this->Inside(), shortName);
    }

private:
    VMemMany<NODX201::VFunctClassCollection> m_functClass;
};

} // namespace NMemory
