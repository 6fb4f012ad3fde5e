// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/DiagComms.h>

/// MULTIPLE-ECU-JOB-SPEC and its jobs.

namespace NMemory {

/// DIAG-LAYER-REF, LAYER-REF
class VMemDiagLayerLink final : public VMemLink<NODX201::VLink, Tag::DiagLayerRef, NODX201::VDiagLayer> {
public:
    using VMemLink::VMemLink;
    bool HasDiagLayer() const { return FindById(); }
    NODX201::VDiagLayer& GetDiagLayer() { return Found(); }
};

class VDiagLayerLinkCollection : public NODX201::VElementCollection<VMemDiagLayerLink> {};

/// MULTIPLE-ECU-JOB
class VMemMultipleEcuJob final
    : public VWithJob<VWithDiagComm<
          VWithComparamRefs<VWithSdgs<VWithAdminData<VMemIdent<NODX201::VMultipleEcuJob, Tag::MultipleEcuJob>>>>>> {
public:
    using VWithJob::VWithJob;

    /// No visitor has a Visit operation for this kind.
    void Accept(NODX201::VDiagCommVisitor&) override {}

    VDiagLayerLinkCollection& DiagLayerLinkCollection() { return m_diagLayerLink.Get(); } ///< DIAG-LAYER-REFS
    VMemCollection<VDiagLayerLinkCollection>& MakeDiagLayerLinkCollection() { return m_diagLayerLink.Make(); }
    VMemDiagLayerLink& AddDiagLayerRef(VReference const& reference) {
        return AddLink<VMemDiagLayerLink>(m_diagLayerLink, Inside(), reference);
    }

private:
    VMemMany<VDiagLayerLinkCollection> m_diagLayerLink;
};

class VMultipleEcuJobCollection : public NODX201::VElementCollection<VMemMultipleEcuJob> {};

/// MULTIPLE-ECU-JOB-SPEC
class VMemMultipleEcuJobSpec final
    : public VWithFunctClasses<
          VWithCompanyDatas<VWithAdminData<VMemIdent<NODX201::VReferencable, Tag::MultipleEcuJobSpec>>>> {
public:
    using VWithFunctClasses::VWithFunctClasses;

    VMultipleEcuJobCollection& MultipleEcuJobCollection() { return m_multipleEcuJob.Get(); } ///< MULTIPLE-ECU-JOBS
    VMemCollection<VMultipleEcuJobCollection>& MakeMultipleEcuJobCollection() { return m_multipleEcuJob.Make(); }
    VMemMultipleEcuJob& AddMultipleEcuJob(wchar_t const* shortName) {
        return AddNamed<VMemMultipleEcuJob>(m_multipleEcuJob, Inside(), shortName);
    }

    bool HasDiagDataDictionarySpec() const {
        return m_diagDataDictionarySpec != nullptr;
    } ///< DIAG-DATA-DICTIONARY-SPEC
    VMemDiagDataDictionarySpec& GetDiagDataDictionarySpec() { return *m_diagDataDictionarySpec; }
    VMemDiagDataDictionarySpec& MakeDiagDataDictionarySpec() { return MakeChild(m_diagDataDictionarySpec, Inside()); }
    void RemoveDiagDataDictionarySpec() { m_diagDataDictionarySpec.reset(); }

private:
    VMemMany<VMultipleEcuJobCollection> m_multipleEcuJob;
    std::unique_ptr<VMemDiagDataDictionarySpec> m_diagDataDictionarySpec;
};

} // namespace NMemory
