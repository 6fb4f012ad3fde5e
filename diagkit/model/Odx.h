// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Collections.h>
#include <diagkit/model/ProcessingInstruction.h>

namespace NODX201 {

/// The root of a database: everything that was loaded together.
class DIAGKIT_EXPORT VOdx : public VOdxElement {
public:
    ~VOdx() override;
    virtual VDiagLayerContainerCollection& DiagLayerContainerCollection() = 0; ///< in load order
    virtual VComparamSpecCollection& ComparamSpecCollection() = 0;             ///< in load order
    /// The processing instructions of the prolog, of the epilog and directly in ODX, of all documents, in load and
    /// document order.
    virtual VProcessingInstructionCollection& ProcessingInstructionCollection() = 0;
};

} // namespace NODX201
