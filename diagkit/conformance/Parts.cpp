// SPDX-License-Identifier: Apache-2.0
#include <diagkit/conformance/Walk.h>

#include <diagkit/model/Comparams.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Odx.h>
#include <diagkit/model/ParentRefs.h>
#include <diagkit/model/Responses.h>
#include <diagkit/model/Text.h>
#include <diagkit/model/Units.h>

namespace NConformance {
namespace {

/// COMPU-SCALES are a collection, which need not be an element; a PROG-CODE is one.
void WalkScalesOrChild(VWalk& walk, NODX201::VCompuInternalToPhys& x) {
    wchar_t const* const operation = L"GetCompuScalesProgCodeChoice";
    auto const has = [&x] { return x.HasCompuScalesProgCodeChoice(); };
    NODX201::VCompuScaleCollection* scales = nullptr;
    walk.Ask(operation, [&] {
        scales = has() ? dynamic_cast<NODX201::VCompuScaleCollection*>(&x.GetCompuScalesProgCodeChoice()) : nullptr;
    });
    if (scales == nullptr) {
        walk.Child(operation, has, [&x] { return ChildOf(x.GetCompuScalesProgCodeChoice()); });
        return;
    }
    walk.List(operation, has,
              [&x] { return ListOf(dynamic_cast<NODX201::VCompuScaleCollection&>(x.GetCompuScalesProgCodeChoice())); });
}

} // namespace

void WalkParts(VWalk& walk, NODX201::VOdxElement& element) {
#define PARTS(name) if (auto* const x = dynamic_cast<NODX201::name*>(&element); x != nullptr) {
#define END }
#define NAME(name) walk.Name(L"Get" L## #name, [x] { return x->Get##name(); });
#define TEXT(name) walk.Text(L"Get" L## #name, {}, [x] { return x->Get##name(); });
#define OPTIONAL_TEXT(name)                                                                                            \
    walk.Text(                                                                                                         \
        L"Get" L## #name, [x] { return x->Has##name(); }, [x] { return x->Get##name(); });
#define PART(name) walk.Child(L"Get" L## #name, {}, [x] { return ChildOf(x->Get##name()); });
#define CHILD(name)                                                                                                    \
    walk.Child(                                                                                                        \
        L"Get" L## #name, [x] { return x->Has##name(); }, [x] { return ChildOf(x->Get##name()); });
#define SCALES_OR_CHILD() WalkScalesOrChild(walk, *x);
#define LIST(name) walk.List(L## #name, {}, [x] { return ListOf(x->name()); });
#define OPTIONAL_LIST(name)                                                                                            \
    walk.List(                                                                                                         \
        L## #name, [x] { return x->Has##name(); }, [x] { return ListOf(x->name()); });
#define LINK() walk.Link(*x);
#include <diagkit/conformance/Parts.def>
}

} // namespace NConformance
