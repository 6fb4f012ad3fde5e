// SPDX-License-Identifier: Apache-2.0
#include <diagkit/conformance/Kinds.h>

#include <string_view>

#include <diagkit/model/AdminData.h>
#include <diagkit/model/Comparams.h>
#include <diagkit/model/Compu.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Flash.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Odx.h>
#include <diagkit/model/ParentRefs.h>
#include <diagkit/model/Responses.h>
#include <diagkit/model/Sdgs.h>
#include <diagkit/model/Tables.h>
#include <diagkit/model/Text.h>
#include <diagkit/model/Units.h>
#include <diagkit/model/Visitors.h>

namespace NConformance {
namespace {

using namespace NODX201;
using Tag = VOdxTagEnum;

template <class Class>
bool Is(VOdxElement& element) {
    return dynamic_cast<Class*>(&element) != nullptr;
}

/// Kinds from which others are derived: they count only where none of those fits.
std::vector<VKind> const& GeneralKinds() {
    static std::vector<VKind> const kinds = {
        {L"VParentRef", &Is<VParentRef>, {Tag::ParentRef}},
        {L"VDiagCodedType", &Is<VDiagCodedType>, {Tag::DiagCodedType}},
    };
    return kinds;
}

/// An element that a class represents: the names that the rows of all classes give its references, and limits, which
/// have two.
struct VUse {
    std::wstring_view kind;
    wchar_t const* odxElement;
};

#define WIDE_(text) L##text
#define WIDE(text) WIDE_(text)

std::vector<VUse> const& Uses() {
    static std::vector<VUse> const uses = {
#define ODX_LIMIT(name, element, often) {L"VLimit", WIDE(element)},
#define ODX_REF(name, link, element, often) {L"V" L## #link, WIDE(element)},
#define ODX_SNREF(name, link, element, often) {L"V" L## #link, WIDE(element)},
#define ODX_OTHER_REF(name, link, element, often) {L"V" L## #link, WIDE(element)},
#define ODX_OTHER_SNREF(name, link, element, often) {L"V" L## #link, WIDE(element)},
#define ODX_CHOICE_REF(choice, name, link, element, often) {L"V" L## #link, WIDE(element)},
#define ODX_ITEM_REF(collection, name, link, element) {L"V" L## #link, WIDE(element)},
#define ODX_ITEM_SNREF(collection, name, link, element) {L"V" L## #link, WIDE(element)},
#define ODX_ITEM_BY_ID(collection, name, link, element) {L"V" L## #link, WIDE(element)},
#define ODX_NO_SNREF(element)
#define ODX_WRAPPER(collection, wrapper, often, items) items
#define ODX_BY_HAND(rows) rows
#define ODX_NOT_READ(rows) rows
#include <diagkit/model/Facts.def>
        {L"VDiagVariableLink", L"DIAG-VARIABLE-SNREF"}, // of an exclusion
    };
    return uses;
}

/// The kind with its own tag and those of its uses.
template <class Class>
VKind KindOf(wchar_t const* name, Tag tag) {
    VKind kind{name, &Is<Class>, {tag}};
    for (VUse const& use : Uses()) {
        Tag const used = use.kind == name ? OdxTagOf(use.odxElement) : Tag::None;
        if (used != Tag::None) {
            kind.tags.push_back(used);
        }
    }
    return kind;
}

std::vector<VKind> const& Kinds() {
    static std::vector<VKind> const kinds = {
        KindOf<VOdx>(L"VOdx", Tag::Odx),
        KindOf<VText>(L"VText", Tag::LongName),
#define ODX_CLASS(name, tag, base, names, value, element, type) KindOf<V##name>(L"V" L## #name, Tag::tag),
#define ODX_LINK_WITH(name, tag, target) KindOf<V##name>(L"V" L## #name, Tag::tag),
#define ODX_LINK_IN_LAYER(name, tag, target, value, element) KindOf<V##name>(L"V" L## #name, Tag::tag),
#define ODX_LINK_IN_DIAG_COMM(name, tag, target, value, element) KindOf<V##name>(L"V" L## #name, Tag::tag),
#define ODX_PARENT_REF(name, target, value, type) KindOf<V##name>(L"V" L## #name, Tag::name),
#define ODX_EXCLUSION(name, reference, link, value, element) KindOf<V##name>(L"V" L## #name, Tag::name),
#include <diagkit/model/Facts.def>
    };
    return kinds;
}

void CollectKinds(std::vector<VKind> const& kinds, VOdxElement& element, std::vector<VKind const*>& found) {
    for (VKind const& kind : kinds) {
        if (kind.isOf(element)) {
            found.push_back(&kind);
        }
    }
}

/// Records what an element calls back. Elements are compared by the address of their `VOdxElement` part.
class VRecorder : public VDiagLayerVisitor, public VDiagCommVisitor, public VDopBaseVisitor, public VParamVisitor {
public:
    explicit VRecorder(VOdxElement& element) : m_element(&element) { m_visit.calls = 0; }

    VVisit m_visit;

#define VISITED(name)                                                                                                  \
    void Visit##name(V##name& x) override { Note(x); }
#define VISITED_OdxElement(name)
#define VISITED_Referencable(name)
#define VISITED_DiagCodedType(name)
#define VISITED_Response(name)
#define VISITED_UnvisitedDiagComm(name)
#define VISITED_DiagLayer(name) VISITED(name)
#define VISITED_DiagComm(name) VISITED(name)
#define VISITED_DopBase(name) VISITED(name)
#define VISITED_ComplexDop(name) VISITED(name)
#define VISITED_BasicStructure(name) VISITED(name)
#define VISITED_Field(name) VISITED(name)
#define VISITED_Param(name) VISITED(name)
#define ODX_CLASS(name, tag, base, names, value, element, type) VISITED_##base(name)
#include <diagkit/model/Facts.def>

private:
    void Note(VOdxElement& visited) {
        ++m_visit.calls;
        m_visit.isItself = m_visit.isItself && &visited == m_element;
    }

    VOdxElement* m_element;
};

template <class Family>
bool Visits(VOdxElement& element, VRecorder& recorder) {
    auto* const x = dynamic_cast<Family*>(&element);
    if (x != nullptr) {
        x->Accept(recorder);
    }
    return x != nullptr;
}

} // namespace

std::vector<VKind const*> KindsOf(VOdxElement& element) {
    std::vector<VKind const*> found;
    CollectKinds(Kinds(), element, found);
    if (found.empty()) {
        CollectKinds(GeneralKinds(), element, found);
    }
    return found;
}

VVisit VisitOf(VOdxElement& element) {
    VRecorder recorder(element);
    recorder.m_visit.isToCall = dynamic_cast<VMultipleEcuJob*>(&element) == nullptr;
    bool const isOfAFamily = Visits<VDiagLayer>(element, recorder) || Visits<VDiagComm>(element, recorder) ||
                             Visits<VDopBase>(element, recorder) || Visits<VParam>(element, recorder);
    return isOfAFamily ? recorder.m_visit : VVisit();
}

std::wstring NamesOf(std::vector<VKind const*> const& kinds) {
    std::wstring names;
    for (VKind const* const kind : kinds) {
        names += (names.empty() ? L"" : L", ") + std::wstring(kind->name);
    }
    return names.empty() ? L"none" : names;
}

std::wstring TextOf(VOdxTagEnum tag) {
    std::wstring const text = OdxTagText(tag);
    std::wstring const type = OdxTypeText(tag);
    if (text.empty()) {
        return L"the tag " + std::to_wstring(static_cast<int>(tag));
    }
    return type.empty() ? text : text + L" of type " + type;
}

} // namespace NConformance
