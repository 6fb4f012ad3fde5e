// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <type_traits>
#include <utility>

#include <diagkit/reader/ElementTable.h>
#include <diagkit/reader/Types.h>
#include <diagkit/reader/Values.h>

/// The facts of a class as the operations of the memory model's class `T` take them.

namespace NReader {

template <class T>
struct VFactsOf {
    using VWhat = VFact::VWhat;

    static T& Owner(void* owner) { return *static_cast<T*>(owner); }

    template <auto Set>
    static void SetText(void* owner, std::wstring const& text, std::wstring const&) {
        (Owner(owner).*Set)(text.c_str());
    }
    template <auto Set, auto SetId>
    static void SetTextWithId(void* owner, std::wstring const& text, std::wstring const& textId) {
        (Owner(owner).*Set)(text.c_str());
        (Owner(owner).*SetId)(textId.c_str());
    }
    template <auto Set>
    static void SetBoth(void* owner, std::wstring const& text, std::wstring const& textId) {
        (Owner(owner).*Set)(text.c_str(), textId.c_str());
    }
    template <auto Set>
    static void SetFlag(void* owner, std::wstring const& text, std::wstring const&) {
        if (IsTrue(text) || IsFalse(text)) {
            (Owner(owner).*Set)(IsTrue(text));
        }
    }

    static constexpr VFact Attribute(char const* name, VOften often, VContent content, VSetText set,
                                     wchar_t const* const* (*literals)() = nullptr) {
        return {VWhat::Attribute, name, often, content, set, literals};
    }
    static constexpr VFact Content(VContent content, VSetText set) {
        return {VWhat::Content, "", Optional, content, set};
    }
    /// A child that is one text.
    static constexpr VFact Text(char const* name, VOften often, VContent content, VSetText set,
                                wchar_t const* const* (*literals)() = nullptr) {
        return {VWhat::Text, name, often, content, set, literals, &OpenOnOwner, nullptr, true};
    }
    static constexpr VFact Markup(char const* name, VOften often, VSetText set) {
        return {VWhat::Text, name, often, VContent::Text, set, nullptr, &OpenOnOwner, nullptr, true, true};
    }

    /// A child element of a class of its own, single or repeated, made by `Make`.
    template <auto Make>
    static constexpr VFact Child(char const* name, VOften often, bool isMerged = false) {
        return {VWhat::Child,
                name,
                often,
                VContent::Text,
                nullptr,
                nullptr,
                &OpenChild<Make>,
                &TypeOfMade<Make>,
                !isMerged && often.occurs != Many};
    }
    /// A reference by ID.
    template <auto Set>
    static constexpr VFact Reference(char const* name, VOften often) {
        return Link<Set>(name, often, &OpenLink<Set, &IdReference, true>);
    }
    /// A reference by short name.
    template <auto Set>
    static constexpr VFact ShortNameReference(char const* name, VOften often) {
        return Link<Set>(name, often, &OpenLink<Set, &NReader::ShortNameReference, false>);
    }

    /// An element around repeated ones, up to its end.
    static constexpr VFact PlainWrapper(char const* name, VOften often) {
        return {VWhat::Wrapper, name, often, VContent::Text, nullptr, nullptr, &OpenOnOwner};
    }
    /// The same, where the model distinguishes an empty wrapper from none.
    template <auto Make>
    static constexpr VFact Wrapper(char const* name, VOften often) {
        return {VWhat::Wrapper, name, often, VContent::Text, nullptr, nullptr, &OpenWrapper<Make>};
    }
    static constexpr VFact WrapperEnd() { return {VWhat::WrapperEnd, ""}; }

    /// A child that is read by a special function.
    static constexpr VFact Special(char const* name, VOften often, VOpenRow open, bool isFirstKept = false) {
        return {VWhat::Child, name, often, VContent::Text, nullptr, nullptr, open, nullptr, isFirstKept};
    }

    static constexpr VFact List() { return {VWhat::List, ""}; }
    /// An xsi:type that also follows from its child.
    static constexpr VFact Kind(char const* xsiType, char const* child) {
        return {VWhat::Kind, xsiType, Optional, VContent::Text, nullptr, nullptr,
                nullptr,     nullptr, false,    false,          child};
    }
    /// An xsi:type that follows from nothing else.
    template <NMemory::Tag tag>
    static constexpr VFact TaggedKind(char const* xsiType, char const* child) {
        VFact fact = Kind(xsiType, child);
        fact.choose = [](void* object) { Owner(object).SetKind(tag); };
        return fact;
    }
    static constexpr VFact Instructions() {
        return {VWhat::Instructions,
                "",
                Optional,
                VContent::Text,
                nullptr,
                nullptr,
                nullptr,
                nullptr,
                false,
                false,
                nullptr,
                [](void* object, std::wstring const& name, std::wstring const& content) {
                    Owner(object).AddProcessingInstruction(name.c_str(), content.c_str());
                }};
    }

    static VOpened OpenOnOwner(VLoader&, void* owner, VRow const& row, VAttributes const&) {
        return {owner, &row.Type()};
    }

private:
    /// Operations that require a short name or text first get it later, from the child element.
    template <auto Make>
    static decltype(auto) Call(T& owner) {
        if constexpr (std::is_invocable_v<decltype(Make), T&>) {
            return (owner.*Make)();
        } else {
            return (owner.*Make)(L"");
        }
    }
    template <auto Make>
    using VMadeBy = std::remove_reference_t<decltype(Call<Make>(std::declval<T&>()))>;
    template <auto Set>
    using VLinkBy = std::remove_reference_t<decltype((std::declval<T&>().*Set)(std::declval<NMemory::VReference>()))>;

    template <auto Make>
    static VElementType const& TypeOfMade() {
        return TypeOf(static_cast<VMadeBy<Make>*>(nullptr));
    }
    template <auto Make>
    static VOpened OpenChild(VLoader& loader, void* owner, VRow const& row, VAttributes const&) {
        VMadeBy<Make>& made = Call<Make>(Owner(owner));
        NoteElement(loader, made);
        return {&made, &row.Type()};
    }
    template <auto Make>
    static VOpened OpenWrapper(VLoader&, void* owner, VRow const& row, VAttributes const&) {
        (Owner(owner).*Make)();
        return {owner, &row.Type()};
    }

    template <auto Set>
    static constexpr VFact Link(char const* name, VOften often, VOpenRow open) {
        return {VWhat::Reference,    name, often, VContent::Text, nullptr, nullptr, open, &TypeOfLink<Set>,
                often.occurs != Many};
    }
    template <auto Set>
    static VElementType const& TypeOfLink() {
        return TypeOf(static_cast<VLinkBy<Set>*>(nullptr));
    }
    template <auto Set, auto ReadReference, bool IsById>
    static VOpened OpenLink(VLoader& loader, void* owner, VRow const& row, VAttributes const& attributes) {
        VLinkBy<Set>& made = (Owner(owner).*Set)(ReadReference(loader, attributes));
        NoteElement(loader, made);
        made.SetOdxTag(row.tag);
        if constexpr (IsById) {
            NoteLink(loader, made, made, kQuestionsTo<VLinkBy<Set>>);
        }
        return {&made, &row.Type()};
    }
};

} // namespace NReader
