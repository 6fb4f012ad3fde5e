// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <diagkit/Export.h>
#include <diagkit/model/ElementCollection.h>
#include <diagkit/model/Forward.h>
#include <diagkit/model/OdxElement.h>

/// The collections of the contract: all are ordered in document order and behave as `VElementCollection` says.
/// Collections without further operations are the rows of `facts/Collections.def`.

namespace NODX201 {

/// Texts such as ROLE and AUT-METHOD; iterates `std::wstring const&`.
class VStringCollection : public VElementCollection<std::wstring const> {};

/// The layers of a container, of all kinds, in document order. It owns its layers in the sense of `GetOwner()`.
class DIAGKIT_EXPORT VDiagLayerCollection : public VOdxObject, public VElementCollection<VDiagLayer> {
public:
    ~VDiagLayerCollection() override;
};

/// One alternative of COMPU-INTERNAL-TO-PHYS: COMPU-SCALES or PROG-CODE.
class DIAGKIT_EXPORT ICompuScalesProgCodeChoice {
public:
    virtual bool IsCompuScales() const = 0; ///< castable to `VCompuScaleCollection`
    virtual bool IsProgCode() const = 0;    ///< castable to `VProgCode`

protected:
    ICompuScalesProgCodeChoice() = default;
    ~ICompuScalesProgCodeChoice() = default;
};

/// COMPU-SCALES
class VCompuScaleCollection : public VElementCollection<VCompuScale>, public ICompuScalesProgCodeChoice {
public:
    bool IsCompuScales() const final { return true; }
    bool IsProgCode() const final { return false; }

protected:
    VCompuScaleCollection() = default;
    ~VCompuScaleCollection() = default;
};

/// The processing instructions of an element.
class VProcessingInstructionCollection : public VElementCollection<VProcessingInstruction> {};

#define ODX_COLLECTION_CLASS(name, entry)                                                                              \
    class name : public VElementCollection<entry> {};
#include <diagkit/model/facts/Collections.def>

} // namespace NODX201
