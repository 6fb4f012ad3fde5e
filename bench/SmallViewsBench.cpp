// SPDX-License-Identifier: Apache-2.0

// The views of one holder, by entries:
//
//     in-params, in-params-job, out-params, out-params-job, protocols, idents, sessions
//                     building and releasing the view; bare: the same walk over the contract, with one addition to a
//                     list for each entry
//     resolve-...     one name of the middle; bare: building the view, one search, releasing the view

#include <list>
#include <string>

#include <benchmark/benchmark.h>

#include <diagkit/model/Params.h>
#include <diagkit/model/Responses.h>
#include <diagkit/model/Visitors.h>
#include <diagkit/tools/IdentIfView.h>
#include <diagkit/tools/InParamIfView.h>
#include <diagkit/tools/OpResolveSnref.h>
#include <diagkit/tools/OutParamIfView.h>
#include <diagkit/tools/ProtocolView.h>
#include <diagkit/tools/SessionView.h>

#include "MakeHolders.h"

namespace NBench {
namespace {

constexpr auto kRange = NODX201::VSearchRange::RequestAndResponses;

template <class Params, class Element>
void ListValues(Params& params, std::list<Element*>& list) {
    for (NODX201::VParam& param : params) {
        if (auto* const value = dynamic_cast<NODX201::VValue*>(&param)) {
            list.push_back(value);
        }
    }
}

template <class Element>
std::size_t BareParams(VHolders& holders) {
    std::list<Element*> list;
    for (NODX201::VPosResponseLink& link : holders.Service().PosResponseLinkCollection()) {
        if (link.HasPosResponse()) {
            ListValues(link.GetPosResponse().ParamCollection(), list);
        }
    }
    for (NODX201::VNegResponseLink& link : holders.Service().NegResponseLinkCollection()) {
        if (link.HasNegResponse()) {
            ListValues(link.GetNegResponse().ParamCollection(), list);
        }
    }
    return list.size();
}

template <class Element, class Collection>
std::size_t BareList(Collection& collection) {
    std::list<Element*> list;
    for (auto& element : collection) {
        list.push_back(&element);
    }
    return list.size();
}

class VBareProtocols final : public NODX201::VDiagLayerVisitor {
public:
    std::list<NODX201::VProtocol*> list;

    void VisitProtocol(NODX201::VProtocol& layer) override { list.push_back(&layer); }
    void VisitBaseVariant(NODX201::VBaseVariant&) override {}
    void VisitFunctionalGroup(NODX201::VFunctionalGroup&) override {}
    void VisitEcuVariant(NODX201::VEcuVariant&) override {}
    void VisitEcuSharedData(NODX201::VEcuSharedData&) override {}
};

std::size_t BareProtocols(VHolders& holders) {
    VBareProtocols protocols;
    for (NODX201::VDiagLayer& layer : holders.Container().DiagLayerCollection()) {
        layer.Accept(protocols);
    }
    return protocols.list.size();
}

std::size_t BareSessions(VHolders& holders) {
    std::list<NODX201::VSession*> list;
    for (NODX201::VEcuMem& ecuMem : holders.Flash().EcuMemCollection()) {
        for (NODX201::VSession& session : ecuMem.GetMem().SessionCollection()) {
            list.push_back(&session);
        }
    }
    return list.size();
}

std::size_t BareIdents(VHolders& holders) {
    std::list<NODX201::IIdentIf*> list;
    for (NODX201::VEcuMem& ecuMem : holders.Flash().EcuMemCollection()) {
        for (NODX201::VSession& session : ecuMem.GetMem().SessionCollection()) {
            for (NODX201::VExpectedIdent& ident : session.ExpectedIdentCollection()) {
                list.push_back(&ident);
            }
        }
    }
    return list.size();
}

template <class View, class... Arguments>
std::size_t CountOf(Arguments&&... arguments) {
    return static_cast<std::size_t>(View(arguments...).Count());
}

template <class View, class Holder>
auto* FoundIn(VHolders& holders, Holder& holder) {
    View view(holder);
    return &*view.Find(holders.MiddleName());
}

template <class View, class... Arguments>
NODX201::IOutParamIf* OutParamIn(VHolders& holders, Arguments&&... arguments) {
    View view(arguments...);
    return view.FindParam(holders.MiddleName(), holders.Layer());
}

/// `Work` returns a number of entries or the element found; neither may be null.
template <class Work>
void RegisterOne(std::string const& name, Work work) {
    auto const bench = [work](benchmark::State& state) {
        VHolders holders(static_cast<std::size_t>(state.range(0)));
        if (!work(holders)) {
            return state.SkipWithError("nothing is there");
        }
        for (auto _ : state) {
            benchmark::DoNotOptimize(work(holders));
        }
    };
    benchmark::RegisterBenchmark(name.c_str(), bench)->Arg(10000);
}

template <class Work, class Bare>
void Register(std::string const& topic, Work work, Bare bare) {
    RegisterOne(topic, work);
    RegisterOne(topic + "-bare", bare);
}

using namespace NDIAGKIT;
using VResolver = VOpResolveSnref;

// clang-format off
int RegisterViews() {
    Register("in-params",      [](VHolders& x) { return CountOf<VInParamIfView>(x.Service()); },          &BareParams<NODX201::IInParamIf>);
    Register("in-params-job",  [](VHolders& x) { return CountOf<VInParamIfView>(x.Job()); },
             [](VHolders& x) { return BareList<NODX201::IInParamIf>(x.Job().InputParamCollection()); });
    Register("out-params",     [](VHolders& x) { return CountOf<VOutParamIfView>(x.Service(), kRange); }, &BareParams<NODX201::IOutParamIf>);
    Register("out-params-job", [](VHolders& x) { return CountOf<VOutParamIfView>(x.Job()); },
             [](VHolders& x) { return BareList<NODX201::IOutParamIf>(x.Job().OutputParamCollection()); });
    Register("protocols",      [](VHolders& x) { return CountOf<VProtocolView>(x.Container()); },         &BareProtocols);
    Register("idents",         [](VHolders& x) { return CountOf<VIdentIfView>(x.Flash()); },              &BareIdents);
    Register("sessions",       [](VHolders& x) { return CountOf<VSessionView>(x.Flash()); },              &BareSessions);
    return 0;
}

int RegisterResolving() {
    Register("resolve-in-param",
             [](VHolders& x) { return VResolver().ResolveInParamIfSnref(x.MiddleName(), x.Service()); },
             [](VHolders& x) { return FoundIn<VInParamIfView>(x, x.Service()); });
    Register("resolve-in-param-job",
             [](VHolders& x) { return VResolver().ResolveInParamIfSnref(x.MiddleName(), x.Job()); },
             [](VHolders& x) { return FoundIn<VInParamIfView>(x, x.Job()); });
    Register("resolve-out-param",
             [](VHolders& x) { return VResolver().ResolveOutParamIfSnref(x.MiddleName(), x.Service(), x.Layer(), kRange); },
             [](VHolders& x) { return OutParamIn<VOutParamIfView>(x, x.Service(), kRange); });
    Register("resolve-out-param-job",
             [](VHolders& x) { return VResolver().ResolveOutParamIfSnref(x.MiddleName(), x.Job(), x.Layer(), kRange); },
             [](VHolders& x) { return OutParamIn<VOutParamIfView>(x, x.Job()); });
    Register("resolve-protocol",
             [](VHolders& x) { return VResolver().ResolveProtocolSnref(x.MiddleName(), x.Container()); },
             [](VHolders& x) { return FoundIn<VProtocolView>(x, x.Container()); });
    Register("resolve-ident",
             [](VHolders& x) { return VResolver().ResolveIdentIfSnref(x.MiddleName(), x.Flash()); },
             [](VHolders& x) { return FoundIn<VIdentIfView>(x, x.Flash()); });
    Register("resolve-session",
             [](VHolders& x) { return VResolver().ResolveSessionSnref(x.MiddleName(), x.Flash()); },
             [](VHolders& x) { return FoundIn<VSessionView>(x, x.Flash()); });
    return 0;
}
// clang-format on

[[maybe_unused]] int const kViews = RegisterViews();
[[maybe_unused]] int const kResolving = RegisterResolving();

} // namespace
} // namespace NBench
