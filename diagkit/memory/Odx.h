// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <stdexcept>

#include <diagkit/memory/Comparams.h>
#include <diagkit/memory/Flash.h>
#include <diagkit/memory/Layers.h>
#include <diagkit/memory/ProcessingInstructions.h>
#include <diagkit/memory/VehicleInfo.h>
#include <diagkit/model/Odx.h>

namespace NMemory {

/// The root. In addition to the contract it contains the FLASH, MULTIPLE-ECU-JOB-SPEC and VEHICLE-INFO-SPEC documents.
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
    VVehicleInfoSpecCollection& VehicleInfoSpecCollection() { return m_vehicleInfoSpec.Get(); }

    VMemDiagLayerContainer& AddDiagLayerContainer(wchar_t const* shortName) {
        return m_diagLayerContainer.Add(NewNamed<VMemDiagLayerContainer>(Inside(), shortName));
    }
    VMemComparamSpec& AddComparamSpec(wchar_t const* shortName) {
        return m_comparamSpec.Add(NewNamed<VMemComparamSpec>(Inside(), shortName));
    }
    VMemFlash& AddFlash(wchar_t const* shortName) { return m_flash.Add(NewNamed<VMemFlash>(Inside(), shortName)); }
    VMemMultipleEcuJobSpec& AddMultipleEcuJobSpec(wchar_t const* shortName) {
        return m_multipleEcuJobSpec.Add(NewNamed<VMemMultipleEcuJobSpec>(Inside(), shortName));
    }
    VMemVehicleInfoSpec& AddVehicleInfoSpec(wchar_t const* shortName) {
        return m_vehicleInfoSpec.Add(NewNamed<VMemVehicleInfoSpec>(Inside(), shortName));
    }
    /// A category document, made in a detached part, becomes the last of its kind.
    template <class Category>
    std::unique_ptr<Category> MakeDetached(VPart& part) {
        return std::unique_ptr<Category>(New<Category>(VPlace{this, &part}).Release());
    }
    /// Puts a category document that was made here into its place. Throws std::invalid_argument for any other.
    // clang-format off
    void Adopt(std::unique_ptr<VMemDiagLayerContainer> made) { m_diagLayerContainer.Add(MadeHere(made)); }
    void Adopt(std::unique_ptr<VMemComparamSpec> made)       { m_comparamSpec.Add(MadeHere(made)); }
    void Adopt(std::unique_ptr<VMemFlash> made)              { m_flash.Add(MadeHere(made)); }
    void Adopt(std::unique_ptr<VMemMultipleEcuJobSpec> made) { m_multipleEcuJobSpec.Add(MadeHere(made)); }
    void Adopt(std::unique_ptr<VMemVehicleInfoSpec> made)    { m_vehicleInfoSpec.Add(MadeHere(made)); }
    // clang-format on

    /// At the end of the processing instructions of the root.
    void AddProcessingInstruction(wchar_t const* name, wchar_t const* content) {
        m_instructions.Add(Store(name), Store(content));
    }

private:
    template <class Category>
    VMemMade<Category> MadeHere(std::unique_ptr<Category>& made) const {
        if (made == nullptr || made->GetOwner() != this) {
            throw std::invalid_argument("a root adopts category documents that it has made");
        }
        return VMemMade<Category>(made.release());
    }

    VMemMany<NODX201::VDiagLayerContainerCollection> m_diagLayerContainer;
    VMemMany<NODX201::VComparamSpecCollection> m_comparamSpec;
    VMemMany<VFlashCollection> m_flash;
    VMemMany<VMultipleEcuJobSpecCollection> m_multipleEcuJobSpec;
    VMemMany<VVehicleInfoSpecCollection> m_vehicleInfoSpec;
    VMemProcessingInstructions m_instructions;
};

} // namespace NMemory
