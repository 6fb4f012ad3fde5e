// SPDX-License-Identifier: Apache-2.0
#include <diagkit/conformance/Links.h>

#include <diagkit/model/AdminData.h>
#include <diagkit/model/Comparams.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/ParentRefs.h>
#include <diagkit/model/Responses.h>
#include <diagkit/model/SearchRange.h>
#include <diagkit/model/Tables.h>
#include <diagkit/model/Units.h>

namespace NConformance {
namespace {

using namespace NODX201;

/// What is asked with each DIAG-COMM that the layer itself holds, which is where the link may be read.
std::vector<VQuestion> QuestionsFor(VOutParamIfLink& link, VDiagLayer& layer) {
    std::vector<VQuestion> questions;
    for (IDiagCommProxy& proxy : layer.DiagCommProxyCollection()) {
        if (auto* const diagComm = dynamic_cast<VDiagComm*>(&proxy); diagComm != nullptr) {
            questions.push_back(
                {[&link, &layer, diagComm] { return link.HasOutParamIf(*diagComm, layer, VSearchRange::Responses); },
                 [&link] { return ChildOf(link.GetOutParamIf()); }});
        }
    }
    return questions;
}

} // namespace

std::vector<VQuestion> QuestionsFor(VLink& link, VDiagLayer* layer) {
#define LINK(link_class, target)                                                                                       \
    if (auto* const x = dynamic_cast<link_class*>(&link); x != nullptr) {                                              \
        return {{[x] { return x->Has##target(); }, [x] { return ChildOf(x->Get##target()); }}};                        \
    }
#define LINK_IN_LAYER(link_class, target)                                                                              \
    if (auto* const x = dynamic_cast<link_class*>(&link); x != nullptr && layer != nullptr) {                          \
        return {{[x, layer] { return x->Has##target(*layer); }, [x] { return ChildOf(x->Get##target()); }}};           \
    }
#include <diagkit/conformance/Links.def>
    if (auto* const x = dynamic_cast<VOutParamIfLink*>(&link); x != nullptr && layer != nullptr) {
        return QuestionsFor(*x, *layer);
    }
    return {};
}

bool IsAskedForLayer(VLink& link) {
    return dynamic_cast<VDataObjectPropLink*>(&link) != nullptr || dynamic_cast<VDiagCommLink*>(&link) != nullptr ||
           dynamic_cast<VDiagVariableLink*>(&link) != nullptr || dynamic_cast<VDopBaseLink*>(&link) != nullptr;
}

} // namespace NConformance
