// SPDX-License-Identifier: Apache-2.0
#include "support/ParentRefsOf.h"

#include <diagkit/model/Visitors.h>

namespace NTest {
namespace {

class VFinder : public NODX201::VDiagLayerVisitor {
public:
    void VisitBaseVariant(NODX201::VBaseVariant& layer) override { m_found = &layer.ParentRefCollection(); }
    void VisitProtocol(NODX201::VProtocol& layer) override { m_found = &layer.ParentRefCollection(); }
    void VisitFunctionalGroup(NODX201::VFunctionalGroup& layer) override { m_found = &layer.ParentRefCollection(); }
    void VisitEcuVariant(NODX201::VEcuVariant& layer) override { m_found = &layer.ParentRefCollection(); }
    void VisitEcuSharedData(NODX201::VEcuSharedData&) override { m_found = nullptr; }

    NODX201::VParentRefCollection* m_found = nullptr;
};

} // namespace

NODX201::VParentRefCollection* ParentRefsOf(NODX201::VDiagLayer& layer) {
    VFinder finder;
    layer.Accept(finder);
    return finder.m_found;
}

} // namespace NTest
