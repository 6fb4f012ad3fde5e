// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <stdexcept>

#include <diagkit/memory/Comparams.h>
#include <diagkit/memory/Flash.h>
#include <diagkit/memory/Layers.h>
#include <diagkit/memory/MultipleEcuJobs.h>
#include <diagkit/memory/ProcessingInstructions.h>
#include <diagkit/model/Odx.h>

namespace NMemory {

/// The root. Besides what the contract asks for it holds the FLASH and MULTIPLE-ECU-JOB-SPEC documents.
class VMemOdx final : public VMemElement<NODX201::VOdx, Tag::Odx> {
public:
    using VMemElement::VMemElement;

    NODX201::VDiagLayerContainerCollection& DiagLayerContainerCollection() override {
        return m_diagLayerContainer.Get();
    }
    NODX201::VComparamSpecCollection& ComparamSpecCollection() override { return m_comparamSpec.Get(); }
    NODX201::VProcessingInstructionCollection& ProcessingInstructionCollection() override {
        return m_instructions.Get();
    }
    VFlashCollection& FlashCollection() { return m_flash.Get(); }
    VMultipleEcuJobSpecCollection& MultipleEcuJobSpecCollection() { return m_multipleEcuJobSpec.Get(); }

    VMemDiagLayerContainer& AddDiagLayerContainer(wchar_t const* shortName) {
        return AddNamed<VMemDiagLayerContainer>(m_diagLayerContainer, Inside(), shortName);
    }
    VMemComparamSpec& AddComparamSpec(wchar_t const* shortName) {
        return AddNamed<VMemComparamSpec>(m_comparamSpec, Inside(), shortName);
    }
    VMemFlash& AddFlash(wchar_t const* shortName) { return AddNamed<VMemFlash>(m_flash, Inside(), shortName); }
    VMemMultipleEcuJobSpec& AddMultipleEcuJobSpec(wchar_t const* shortName) {
        return AddNamed<VMemMultipleEcuJobSpec>(m_multipleEcuJobSpec, Inside(), shortName);
    }
    /// A category document, made in a part that is detached, joins the others of its kind as the last.
    template <class Category>
    std::unique_ptr<Category> MakeDetached(VPart& part) {
        return New<Category>(VPlace{this, &part});
    }
    /// A category document that was made here takes its place. Throws std::invalid_argument for any other.
    // clang-format off
    void Adopt(std::unique_ptr<VMemDiagLayerContainer> made) { RequireMadeHere(made.get()); m_diagLayerContainer.Make().Append(std::move(made)); }
    void Adopt(std::unique_ptr<VMemComparamSpec> made)       { RequireMadeHere(made.get()); m_comparamSpec.Make().Append(std::move(made)); }
    void Adopt(std::unique_ptr<VMemFlash> made)              { RequireMadeHere(made.get()); m_flash.Make().Append(std::move(made)); }
    void Adopt(std::unique_ptr<VMemMultipleEcuJobSpec> made) { RequireMadeHere(made.get()); m_multipleEcuJobSpec.Make().Append(std::move(made)); }
    // clang-format on

    /// At the end of those of the root.
    void AddProcessingInstruction(wchar_t const* name, wchar_t const* content) {
        m_instructions.Add(Store(name), Store(content));
    }

private:
    void RequireMadeHere(NODX201::VOdxObject const* made) const {
        if (made == nullptr || made->GetOwner() != this) {
            throw std::invalid_argument("a root adopts category documents that it has made");
        }
    }

    VMemMany<NODX201::VDiagLayerContainerCollection> m_diagLayerContainer;
    VMemMany<NODX201::VComparamSpecCollection> m_comparamSpec;
    VMemMany<VFlashCollection> m_flash;
    VMemMany<VMultipleEcuJobSpecCollection> m_multipleEcuJobSpec;
    VMemProcessingInstructions m_instructions;
};

} // namespace NMemory
