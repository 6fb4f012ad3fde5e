// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <cwchar>
#include <type_traits>
#include <vector>

#include <diagkit/memory/AdminData.h>
#include <diagkit/memory/ProcessingInstructions.h>
#include <diagkit/query/Content.h>

/// The parts of an element class as a table: a row for each operation to call, made from the facts. For the sources of
/// this folder.

namespace NQuery {

struct VContentRow;
using VEmit = void (*)(NODX201::VOdxElement& owner, VContentRow const& row, IPartSink& sink);

/// A row of the facts: a constant.
struct VContentFact {
    enum class VWhat : std::uint8_t { Attribute, Other, Reference, Alias, Collection, Wrapper, Item, WrapperEnd, Kind };

    VWhat what;
    wchar_t const* tag;        ///< of a collection, wrapper or item: of that; of a kind, the xsi:type
    VEmit emit = nullptr;      ///< null for wrappers and items
    wchar_t const* name = L""; ///< of the collection, choice or reference in the code; of a kind, its child
};

/// The row of an operation to call.
struct VContentRow {
    VEmit emit = nullptr;
    wchar_t const* tag = L"";
    wchar_t const* wrapper = L"";
    wchar_t const* name = L"";                ///< in the code
    std::vector<wchar_t const*> names{};      ///< other tags of a reference
    std::vector<NODX201::VOdxTagEnum> tags{}; ///< the items of the collection in this place; empty for all
};

/// A type of an element whose class has several, and the child that implies it.
struct VContentKind {
    wchar_t const* xsiType;
    wchar_t const* child;
};

struct VContentTable {
    std::vector<VContentRow> attributes;
    std::vector<VContentRow> rows;
    std::vector<VContentKind> kinds;
};

VContentTable ContentTableOf(VContentFact const* facts, std::size_t count);

template <std::size_t Count>
VContentTable ContentTableOf(VContentFact const (&facts)[Count]) {
    return ContentTableOf(facts, Count);
}

/// Whether references of this class may have more than their attributes.
bool HasContent(NODX201::VLink& reference);

/// The name of a reference in this row.
wchar_t const* TagIn(VContentRow const& row, NODX201::VLink& reference);
/// Whether an item of the collection is in the wrapper of this row.
bool StandsIn(VContentRow const& row, NODX201::VOdxElement const& item);
void EmitText(IPartSink& sink, VPartRole role, wchar_t const* tag, wchar_t const* wrapper, wchar_t const* text,
              bool isItem = false);
void EmitElement(IPartSink& sink, VContentRow const& row, NODX201::VOdxElement& element, bool isItem);
void EmitReference(IPartSink& sink, VContentRow const& row, NODX201::VLink& reference, bool isItem);

inline NODX201::VOdxElement& ElementOf(NODX201::VOdxElement& element) { return element; }
/// Interfaces that only distinguish alternatives are elements by another base.
template <class Interface>
NODX201::VOdxElement& ElementOf(Interface& entry) {
    return dynamic_cast<NODX201::VOdxElement&>(entry);
}

/// A child, by its class; behind an interface may be either.
template <class Child>
void EmitChild(IPartSink& sink, VContentRow const& row, Child& child, bool isItem) {
    if constexpr (std::is_base_of_v<NODX201::VLink, Child>) {
        EmitReference(sink, row, child, isItem);
    } else if constexpr (std::is_base_of_v<NODX201::VOdxElement, Child>) {
        EmitElement(sink, row, child, isItem);
    } else if (auto* const reference = dynamic_cast<NODX201::VLink*>(&child); reference != nullptr) {
        EmitReference(sink, row, *reference, isItem);
    } else {
        EmitElement(sink, row, ElementOf(child), isItem);
    }
}

/// The operations of the memory model's class `T` for its facts.
template <class T>
struct VContentOf {
    using VWhat = VContentFact::VWhat;

    static T& Self(NODX201::VOdxElement& owner) { return static_cast<T&>(owner); }

    template <auto Get>
    static void Attribute(NODX201::VOdxElement& owner, VContentRow const& row, IPartSink& sink) {
        EmitText(sink, VPartRole::Attribute, row.tag, row.wrapper, (Self(owner).*Get)());
    }
    template <auto Is>
    static void Flag(NODX201::VOdxElement& owner, VContentRow const& row, IPartSink& sink) {
        EmitText(sink, VPartRole::Attribute, row.tag, row.wrapper, (Self(owner).*Is)() ? L"true" : L"false");
    }
    template <auto Get>
    static void Text(NODX201::VOdxElement& owner, VContentRow const& row, IPartSink& sink) {
        EmitText(sink, VPartRole::Text, row.tag, row.wrapper, (Self(owner).*Get)());
    }
    template <auto Get>
    static void OwnText(NODX201::VOdxElement& owner, VContentRow const&, IPartSink& sink) {
        EmitText(sink, VPartRole::OwnText, L"", L"", (Self(owner).*Get)());
    }
    template <auto Get, auto GetId>
    static void TextWithId(NODX201::VOdxElement& owner, VContentRow const& row, IPartSink& sink) {
        Text<Get>(owner, row, sink);
        EmitText(sink, VPartRole::Attribute, L"TI", row.tag, (Self(owner).*GetId)());
    }
    static void LongName(NODX201::VOdxElement& owner, VContentRow const& row, IPartSink& sink) {
        if (T& self = Self(owner); self.HasLongName()) {
            auto const& text = static_cast<NMemory::VMemText const&>(self.GetLongName());
            EmitText(sink, VPartRole::Text, row.tag, L"", text.GetBaseMember());
            EmitText(sink, VPartRole::Attribute, L"TI", row.tag, text.GetTextId());
        }
    }
    /// Repeated texts.
    template <auto Get>
    static void Texts(NODX201::VOdxElement& owner, VContentRow const& row, IPartSink& sink) {
        for (auto&& text : (Self(owner).*Get)()) {
            if constexpr (std::is_pointer_v<std::decay_t<decltype(text)>>) {
                EmitText(sink, VPartRole::Text, row.tag, row.wrapper, text, true);
            } else {
                EmitText(sink, VPartRole::Text, row.tag, row.wrapper, text.c_str(), true);
            }
        }
    }
    static void Instructions(NODX201::VOdxElement& owner, VContentRow const&, IPartSink& sink) {
        for (NODX201::VProcessingInstruction& instruction : Self(owner).ProcessingInstructionCollection()) {
            sink.Take({VPartRole::Instruction, instruction.GetName(), L"", true, instruction.GetContent(), nullptr});
        }
    }

    template <auto Has, auto Get>
    static void Child(NODX201::VOdxElement& owner, VContentRow const& row, IPartSink& sink) {
        if (T& self = Self(owner); (self.*Has)()) {
            EmitChild(sink, row, (self.*Get)(), false);
        }
    }
    template <auto Get>
    static void Part(NODX201::VOdxElement& owner, VContentRow const& row, IPartSink& sink) {
        EmitChild(sink, row, (Self(owner).*Get)(), false);
    }
    /// One of several alternatives, which knows which one it is.
    template <auto Has, auto Get>
    static void Choice(NODX201::VOdxElement& owner, VContentRow const&, IPartSink& sink) {
        T& self = Self(owner);
        if (!(self.*Has)()) {
            return;
        }
        auto& choice = (self.*Get)();
        if constexpr (std::is_same_v<decltype(choice), NODX201::ICompuScalesProgCodeChoice&>) {
            if (choice.IsCompuScales()) { // the contract knows them as a collection
                auto& scales = dynamic_cast<NODX201::VCompuScaleCollection&>(choice);
                EmitItems(scales, {nullptr, L"COMPU-SCALE", L"COMPU-SCALES"}, sink);
                return;
            }
        }
        EmitChild(sink, {}, choice, false);
    }
    template <auto Get>
    static void Items(NODX201::VOdxElement& owner, VContentRow const& row, IPartSink& sink) {
        EmitItems((Self(owner).*Get)(), row, sink);
    }

private:
    template <class Collection>
    static void EmitItems(Collection& collection, VContentRow const& row, IPartSink& sink) {
        for (auto& entry : collection) {
            if (row.tags.empty() || StandsIn(row, ElementOf(entry))) {
                EmitChild(sink, row, entry, true);
            }
        }
    }
};

/// The tables of the classes, by class; the argument only selects the overload.
VContentTable const& ContentOf(NMemory::VMemOdx*);
#define ODX_CLASS(name, tag, base, names, value, element, type) VContentTable const& ContentOf(NMemory::VMem##name*);
#define ODX_EXTRA(name, contract, names, value, element, type) VContentTable const& ContentOf(NMemory::VMem##name*);
#define ODX_LINK_WITH(name, tag, target) VContentTable const& ContentOf(NMemory::VMem##name*);
#define ODX_EXTRA_LINK_WITH(name, tag, target, targetClass) VContentTable const& ContentOf(NMemory::VMem##name*);
#define ODX_PARENT_REF(name, target, value, type) VContentTable const& ContentOf(NMemory::VMem##name*);
#define ODX_UNTYPED_PARENT_REF(name, target, value) VContentTable const& ContentOf(NMemory::VMem##name*);
#define ODX_EXCLUSION(name, reference, link, value, element) VContentTable const& ContentOf(NMemory::VMem##name*);
#include <diagkit/model/Facts.def>

} // namespace NQuery
