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

/// The queries with each of the layer's own DIAG-COMMs, which is where the link may be read.
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

/// How a link of this class is queried, if the link is one; a class without a target in the contract is not queried.
template <class Link, class Has, class Get>
void AskIf(VLink& link, std::vector<VQuestion>& questions, Has has, Get get) {
    if constexpr (std::is_invocable_v<Has, Link&>) {
        if (auto* const x = dynamic_cast<Link*>(&link); x != nullptr) {
            questions.push_back({[x, has] { return has(*x); }, [x, get] { return ChildOf(get(*x)); }});
        }
    }
}

} // namespace

std::vector<VQuestion> QuestionsFor(VLink& link, VDiagLayer* layer) {
    if (auto* const x = dynamic_cast<VOutParamIfLink*>(&link); x != nullptr && layer != nullptr) {
        return QuestionsFor(*x, *layer);
    }
    std::vector<VQuestion> questions;
#define ODX_LINK_WITH(name, tag, target)                                                                               \
    AskIf<V##name>(                                                                                                    \
        link, questions, [](auto& x) -> decltype(x.Has##target()) { return x.Has##target(); },                         \
        [](auto& x) -> decltype(x.Get##target()) { return x.Get##target(); });
#define ODX_PARENT_REF(name, target, value, type) ODX_LINK_WITH(name, name, target)
#define ODX_LINK_IN_LAYER(name, tag, target, value, element)                                                           \
    if (auto* const x = dynamic_cast<V##name*>(&link); x != nullptr && layer != nullptr) {                             \
        return {{[x, layer] { return x->Has##target(*layer); }, [x] { return ChildOf(x->Get##target()); }}};           \
    }
#include <diagkit/model/Facts.def>
    return questions;
}

bool IsAskedForLayer(VLink& link) {
    bool isAsked = false;
#define ODX_LINK_IN_LAYER(name, tag, target, value, element)                                                           \
    isAsked = isAsked || dynamic_cast<V##name*>(&link) != nullptr;
#include <diagkit/model/Facts.def>
    return isAsked;
}

} // namespace NConformance
