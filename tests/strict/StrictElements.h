// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include <diagkit/model/AdminData.h>
#include <diagkit/model/Comparams.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Flash.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Odx.h>
#include <diagkit/model/ParentRefs.h>
#include <diagkit/model/Responses.h>
#include <diagkit/model/Sdgs.h>
#include <diagkit/model/SearchRange.h>
#include <diagkit/model/Tables.h>
#include <diagkit/model/Text.h>
#include <diagkit/model/Units.h>
#include <diagkit/model/Visitors.h>

#include "strict/StrictModel.h"

/// The elements of the strict model. `VStrict<Class>::Type` implements a class of the contract: a template for each
/// class in the tables of parts and of links, one over the other, as far as `Class` is derived from it.

namespace NTest {

/// An element that represents another one.
class VStandIn {
public:
    virtual NODX201::VOdxElement& Inner() const = 0;

protected:
    ~VStandIn() = default;
};

/// The element that one of this model represents.
template <class Class>
Class& InnerOf(Class& element) {
    return dynamic_cast<Class&>(dynamic_cast<VStandIn&>(element).Inner());
}

template <class Class>
class VStrictElement : public Class, public VStandIn {
public:
    VStrictElement(VStrictModel& model, Class& inner) : m_model(model), m_inner(inner) {}

    NODX201::VOdxElement& Inner() const override { return m_inner; }
    NODX201::VOdxTagEnum GetOdxTag() const override { return m_inner.GetOdxTag(); }
    NODX201::VOdxObject* GetOwner() const override { return m_model.Of(m_inner.GetOwner()); }

protected:
    bool Answer(std::string_view part, bool answer) const {
        m_answers[part] = answer;
        return answer;
    }

    void Require(std::string_view part, std::string const& operation) const {
        m_model.Call(operation);
        auto const answer = m_answers.find(part);
        if (answer == m_answers.end() || !answer->second) {
            throw VNotAsked(operation + (answer == m_answers.end() ? " without a Has" : " after a false Has"));
        }
    }

    VStrictModel& m_model;
    Class& m_inner;

private:
    mutable std::map<std::string_view, bool> m_answers; // the last one of each Has
};

/// The parts that a class of the contract returns.
template <class Class, class Base>
class VStrictParts;

#define PARTS(name)                                                                                                    \
    template <class Base>                                                                                              \
    class VStrictParts<NODX201::name, Base> : public Base {                                                            \
        using VPart = NODX201::name;                                                                                   \
        static constexpr char const* kClass = #name "::";                                                              \
                                                                                                                       \
    public:                                                                                                            \
        using Base::Base;
#define END                                                                                                            \
    }                                                                                                                  \
    ;
#define HAS(name)                                                                                                      \
    bool Has##name() const override { return this->Answer(#name, this->m_inner.Has##name()); }
#define TEXT(name)                                                                                                     \
    wchar_t const* Get##name() const override { return this->m_inner.Get##name(); }
#define OPTIONAL_TEXT(name)                                                                                            \
    HAS(name)                                                                                                          \
    wchar_t const* Get##name() const override {                                                                        \
        this->Require(#name, std::string(kClass) + "Get" #name);                                                       \
        return this->m_inner.Get##name();                                                                              \
    }
#define PART(name)                                                                                                     \
    decltype(std::declval<VPart&>().Get##name()) Get##name() override {                                                \
        return this->m_model.Of(this->m_inner.Get##name());                                                            \
    }
#define CHILD(name)                                                                                                    \
    HAS(name)                                                                                                          \
    decltype(std::declval<VPart&>().Get##name()) Get##name() override {                                                \
        this->Require(#name, std::string(kClass) + "Get" #name);                                                       \
        return this->m_model.Of(this->m_inner.Get##name());                                                            \
    }
#define LIST(name)                                                                                                     \
    decltype(std::declval<VPart&>().name()) name() override { return this->m_model.Of(this->m_inner.name()); }
#define OPTIONAL_LIST(name)                                                                                            \
    HAS(name)                                                                                                          \
    decltype(std::declval<VPart&>().name()) name() override {                                                          \
        if (std::string_view(#name) != "ParentRefCollection" || !this->m_model.AreParentRefsFree()) {                  \
            this->Require(#name, std::string(kClass) + #name);                                                         \
        }                                                                                                              \
        return this->m_model.Of(this->m_inner.name());                                                                 \
    }
#define LINK()                                                                                                         \
    NODX201::ILink& GetLink() override { return this->m_inner.GetLink(); }
#include <contract/Parts.def>
#undef HAS

/// The targets of a class of links.
template <class Class, class Base>
class VStrictLink;

#define STRICT_LINK(link, target, parameters, arguments)                                                               \
    template <class Base>                                                                                              \
    class VStrictLink<NODX201::link, Base> : public Base {                                                             \
    public:                                                                                                            \
        using Base::Base;                                                                                              \
        bool Has##target parameters override { return this->Answer(#target, this->m_inner.Has##target arguments); }    \
        decltype(std::declval<NODX201::link&>().Get##target()) Get##target() override {                                \
            this->Require(#target, #link "::Get" #target);                                                             \
            return this->m_model.Of(this->m_inner.Get##target());                                                      \
        }                                                                                                              \
    };
#define LINK(link, target) STRICT_LINK(link, target, () const, ())
#define LINK_IN_LAYER(link, target) STRICT_LINK(link, target, (NODX201::VDiagLayer & layer), (InnerOf(layer)))
#include <contract/Links.def>
STRICT_LINK(VOutParamIfLink, OutParamIf,
            (NODX201::VDiagComm & diagComm, NODX201::VDiagLayer& layer, NODX201::VSearchRange range),
            (InnerOf(diagComm), InnerOf(layer), range))
#undef STRICT_LINK

// What each element calls back.

inline void CallBack(NODX201::VDiagCommVisitor&, NODX201::VMultipleEcuJob&) {} // has no Visit operation

#define CALL_BACK(visitor, kind)                                                                                       \
    inline void CallBack(NODX201::visitor& host, NODX201::V##kind& x) { host.Visit##kind(x); }
CALL_BACK(VDiagLayerVisitor, BaseVariant)
CALL_BACK(VDiagLayerVisitor, Protocol)
CALL_BACK(VDiagLayerVisitor, FunctionalGroup)
CALL_BACK(VDiagLayerVisitor, EcuVariant)
CALL_BACK(VDiagLayerVisitor, EcuSharedData)
CALL_BACK(VDiagCommVisitor, DiagService)
CALL_BACK(VDiagCommVisitor, SingleEcuJob)
CALL_BACK(VDopBaseVisitor, EnvData)
CALL_BACK(VDopBaseVisitor, Structure)
CALL_BACK(VDopBaseVisitor, EnvDataDesc)
CALL_BACK(VDopBaseVisitor, StaticField)
CALL_BACK(VDopBaseVisitor, DynamicLengthField)
CALL_BACK(VDopBaseVisitor, DynamicEndmarkerField)
CALL_BACK(VDopBaseVisitor, EndOfPduField)
CALL_BACK(VDopBaseVisitor, Mux)
CALL_BACK(VDopBaseVisitor, DataObjectProp)
CALL_BACK(VDopBaseVisitor, DtcDop)
CALL_BACK(VParamVisitor, CodedConst)
CALL_BACK(VParamVisitor, Dynamic)
CALL_BACK(VParamVisitor, LengthKey)
CALL_BACK(VParamVisitor, MatchingRequestParam)
CALL_BACK(VParamVisitor, PhysConst)
CALL_BACK(VParamVisitor, Reserved)
CALL_BACK(VParamVisitor, System)
CALL_BACK(VParamVisitor, TableKey)
CALL_BACK(VParamVisitor, TableStruct)
CALL_BACK(VParamVisitor, Value)
CALL_BACK(VParamVisitor, TableEntry)
#undef CALL_BACK

template <class Visitor, class Base>
class VAccepting : public Base {
public:
    using Base::Base;
    void Accept(Visitor& visitor) override { CallBack(visitor, *this); }
};

template <class... Classes>
struct VClasses;

/// One template over the other: `Layer<C, Base>` for each class C that `Class` is derived from.
template <class Class, class Base, template <class, class> class Layer, class List>
struct VLayered;
template <class Class, class Base, template <class, class> class Layer>
struct VLayered<Class, Base, Layer, VClasses<>> {
    using Type = Base;
};
template <class Class, class Base, template <class, class> class Layer, class First, class... Rest>
struct VLayered<Class, Base, Layer, VClasses<First, Rest...>> {
    using VOver = std::conditional_t<std::is_base_of_v<First, Class>, Layer<First, Base>, Base>;
    using Type = typename VLayered<Class, VOver, Layer, VClasses<Rest...>>::Type;
};

/// `VAccepting` by the base class whose `Accept` takes that visitor.
template <class Accepting, class Base>
struct VAcceptingOf;
// clang-format off
template <class Base> struct VAcceptingOf<NODX201::VDiagLayer, Base> : VAccepting<NODX201::VDiagLayerVisitor, Base> { using VAccepting<NODX201::VDiagLayerVisitor, Base>::VAccepting; };
template <class Base> struct VAcceptingOf<NODX201::VDiagComm, Base>  : VAccepting<NODX201::VDiagCommVisitor, Base>  { using VAccepting<NODX201::VDiagCommVisitor, Base>::VAccepting; };
template <class Base> struct VAcceptingOf<NODX201::VDopBase, Base>   : VAccepting<NODX201::VDopBaseVisitor, Base>   { using VAccepting<NODX201::VDopBaseVisitor, Base>::VAccepting; };
template <class Base> struct VAcceptingOf<NODX201::VParam, Base>     : VAccepting<NODX201::VParamVisitor, Base>     { using VAccepting<NODX201::VParamVisitor, Base>::VAccepting; };
// clang-format on

template <class Class>
struct VStrict {
    struct VNone; // a list starts with it, because of the commas

#define PARTS(name) , NODX201::name
#define END
#define TEXT(name)
#define OPTIONAL_TEXT(name)
#define PART(name)
#define CHILD(name)
#define LIST(name)
#define OPTIONAL_LIST(name)
#define LINK()
    using VWithParts = typename VLayered<Class, VStrictElement<Class>, VStrictParts,
                                         VClasses<VNone
#include <contract/Parts.def>
                                                  >>::Type;

#define LINK(link, target) , NODX201::link
#define LINK_IN_LAYER(link, target) , NODX201::link
    using VWithLinks = typename VLayered<Class, VWithParts, VStrictLink,
                                         VClasses<NODX201::VOutParamIfLink
#include <contract/Links.def>
                                                  >>::Type;

    using Type =
        typename VLayered<Class, VWithLinks, VAcceptingOf,
                          VClasses<NODX201::VDiagLayer, NODX201::VDiagComm, NODX201::VDopBase, NODX201::VParam>>::Type;
};

} // namespace NTest
