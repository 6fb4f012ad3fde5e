// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include <diagkit/reader/Attributes.h>
#include <diagkit/reader/LinkQuestions.h>
#include <diagkit/reader/Types.h>

/// What may stand in which element and what it makes, as tables: one `VElementType` an element class, with a row for
/// each child in the order of ODX 2.0.1. The loader walks documents along these tables and knows no element by name.

namespace NReader {

class VLoader;

/// How often a child or attribute stands. `Required` and the order of rows are those of ODX 2.0.x and are not held
/// against documents of later versions.
enum class VOccurs : std::uint8_t { Optional, Required, Many };
inline constexpr VOccurs Optional = VOccurs::Optional;
inline constexpr VOccurs Required = VOccurs::Required;
inline constexpr VOccurs Many = VOccurs::Many;

/// What a text must look like; what does not is kept all the same. All but `Text` are trimmed.
enum class VContent : std::uint8_t { Text, Name, Uint, Int, Double, Bool, Hex, Date };

/// What a start tag opened. Without a type the element and all inside is left out.
struct VOpened {
    void* object = nullptr;
    VElementType const* type = nullptr;
    bool isDeferred = false; ///< its kind shows only from its contents: record it and open it again at its end
};

struct VAttributeRow {
    char const* name;
    VOccurs occurs;
    VContent content;
    void (*set)(void* owner, std::wstring const& text);
    wchar_t const* const* literals = nullptr; ///< the texts allowed, ended by null; null where any is
};

/// A child. Rows of alternatives bear the same `choice` number; of these, only the first in the document counts.
struct VRow {
    char const* name;
    VOccurs occurs;
    int choice;
    VOpened (*open)(VLoader& loader, void* owner, VRow const& row, VAttributes const& attributes);
    VElementType const& (*type)() = nullptr;               ///< of an element class
    std::shared_ptr<VElementType const> ownType{};         ///< of a wrapper or a text, which have no class
    bool isFirstKept = false;                              ///< a second one is left out; otherwise it adds to the first
    NODX201::VOdxTagEnum tag = NODX201::VOdxTagEnum::None; ///< of a reference

    VElementType const& Type() const { return ownType != nullptr ? *ownType : type(); }
};

/// An xsi:type of an element that has one class for all of them, and the child that it alone has.
struct VKind {
    std::string xsiType;
    std::string child;
};

struct VElementType {
    std::vector<VAttributeRow> attributes;
    std::vector<VRow> rows;

    VContent content = VContent::Text;
    /// Takes the element's own text, with the text identifier of its @TI; null where it has elements only.
    void (*setContent)(void* object, std::wstring const& text, std::wstring const& textId) = nullptr;
    wchar_t const* const* literals = nullptr;
    std::vector<VKind> kinds; ///< where the xsi:type says no more than what is inside
    bool isMarkup = false;    ///< the text is all inside, tags included
    bool isWrapper = false;   ///< its items may also stand beside it
    void (*addInstruction)(void* object, std::wstring const& name, std::wstring const& content) = nullptr;

    std::vector<std::string_view> names; ///< of the rows

    /// Index of the row, or -1. Looks from the row `from` on first, where the next child mostly is.
    int FindRow(std::string_view name, int from = 0) const;
};

/// The loader keeps what it has seen of an element in one word: a bit a row, and a bit a choice.
inline constexpr std::size_t kMostRows = 64;

/// Notes the rows' names; every table goes through it. Throws std::length_error for a table with more rows, or with
/// choices of higher numbers, than the loader can keep apart.
VElementType Indexed(VElementType type);

// For the rows' functions, which know the loader no further.

void NotePosition(VLoader& loader, NMemory::VMemNode& node);
void NoteElement(VLoader& loader, NMemory::VMemNode& node, NODX201::VOdxElement& element);
template <class Element>
void NoteElement(VLoader& loader, Element& element) {
    NoteElement(loader, element, element);
}
void NoteLink(VLoader& loader, NMemory::VMemNode& node, NODX201::VLink& link, VLinkQuestions const& questions);
void NoteUntypedParentRef(VLoader& loader, NMemory::IMemParentRef& parentRef,
                          NMemory::IMemParentRef& (*changeKind)(NMemory::IMemParentRef& parentRef,
                                                                NMemory::VParentRefKind kind));
NMemory::VReference IdReference(VLoader& loader, VAttributes const& attributes);
NMemory::VReference ShortNameReference(VLoader& loader, VAttributes const& attributes);

/// The rows of an element class `T`.
template <class T>
struct VRows {
    static T& Owner(void* owner) { return *static_cast<T*>(owner); }

    template <auto Set>
    static VAttributeRow Attribute(char const* name, VOccurs occurs = Optional, VContent content = VContent::Text,
                                   wchar_t const* const* literals = nullptr) {
        return {name, occurs, content, [](void* owner, std::wstring const& text) { (Owner(owner).*Set)(text.c_str()); },
                literals};
    }

    template <auto Set>
    static VAttributeRow Flag(char const* name, VOccurs occurs = Optional) {
        return {name, occurs, VContent::Bool, [](void* owner, std::wstring const& text) {
                    if (IsTrue(text) || IsFalse(text)) {
                        (Owner(owner).*Set)(IsTrue(text));
                    }
                }};
    }

    /// A child that is one text.
    template <auto Set>
    static VRow Text(char const* name, VOccurs occurs = Optional, VContent content = VContent::Text,
                     wchar_t const* const* literals = nullptr, int choice = 0) {
        VElementType type;
        type.content = content;
        type.literals = literals;
        type.setContent = [](void* owner, std::wstring const& text, std::wstring const&) {
            (Owner(owner).*Set)(text.c_str());
        };
        return {name, occurs, choice, &OpenOnOwner, nullptr, Own(std::move(type)), true};
    }

    /// A child that is one text with @TI.
    template <auto Set, auto SetTextId>
    static VRow TextWithId(char const* name, VOccurs occurs = Optional) {
        VElementType type;
        type.setContent = [](void* owner, std::wstring const& text, std::wstring const& textId) {
            (Owner(owner).*Set)(text.c_str());
            (Owner(owner).*SetTextId)(textId.c_str());
        };
        return {name, occurs, 0, &OpenOnOwner, nullptr, Own(std::move(type)), true};
    }

    /// A child whose text is all its markup.
    template <auto Set>
    static VRow Markup(char const* name, VOccurs occurs = Optional) {
        VElementType type;
        type.isMarkup = true;
        type.setContent = [](void* owner, std::wstring const& text, std::wstring const&) {
            (Owner(owner).*Set)(text.c_str());
        };
        return {name, occurs, 0, &OpenOnOwner, nullptr, Own(std::move(type)), true};
    }

    /// A child element of a class of its own, single or repeated, made by `Make`.
    template <auto Make>
    static VRow Child(char const* name, VOccurs occurs = Optional, int choice = 0) {
        using Made = std::remove_reference_t<decltype(Call<Make>(std::declval<T&>()))>;
        return {name,
                occurs,
                choice,
                [](VLoader& loader, void* owner, VRow const& row, VAttributes const&) {
                    Made& made = Call<Make>(Owner(owner));
                    NoteElement(loader, made);
                    return VOpened{&made, &row.Type()};
                },
                []() -> VElementType const& { return TypeOf(static_cast<Made*>(nullptr)); },
                nullptr,
                occurs != Many};
    }

    template <auto Make>
    static VRow Item(char const* name) {
        return Child<Make>(name, Many);
    }

    /// A reference by ID.
    template <auto Set>
    static VRow Link(char const* name, VOccurs occurs = Optional, int choice = 0) {
        return LinkRow<Set, &IdReference, true>(name, occurs, choice);
    }

    /// A reference by short name.
    template <auto Set>
    static VRow Snref(char const* name, VOccurs occurs = Optional, int choice = 0) {
        return LinkRow<Set, &ShortNameReference, false>(name, occurs, choice);
    }

    /// An element around repeated ones. `Make`, where the model tells an empty wrapper from none.
    template <auto Make>
    static VRow Wrapper(char const* name, VOccurs occurs, std::vector<VRow> rows) {
        VRow row = PlainWrapper(name, occurs, std::move(rows));
        row.open = [](VLoader&, void* owner, VRow const& self, VAttributes const&) {
            (Owner(owner).*Make)();
            return VOpened{owner, &self.Type()};
        };
        return row;
    }
    static VRow PlainWrapper(char const* name, VOccurs occurs, std::vector<VRow> rows, int choice = 0) {
        VElementType type;
        type.isWrapper = true;
        type.rows = std::move(rows);
        return {name, occurs, choice, &OpenOnOwner, nullptr, Own(std::move(type))};
    }

    /// A child with a way of its own.
    static VRow Special(char const* name, VOccurs occurs,
                        VOpened (*open)(VLoader&, void*, VRow const&, VAttributes const&), int choice = 0) {
        return {name, occurs, choice, open};
    }

private:
    static std::shared_ptr<VElementType const> Own(VElementType type) {
        return std::make_shared<VElementType const>(Indexed(std::move(type)));
    }

    static VOpened OpenOnOwner(VLoader&, void* owner, VRow const& row, VAttributes const&) {
        return {owner, &row.Type()};
    }

    /// Operations that want a short name or text first get it later, from the child element.
    template <auto Make>
    static decltype(auto) Call(T& owner) {
        if constexpr (std::is_invocable_v<decltype(Make), T&>) {
            return (owner.*Make)();
        } else {
            return (owner.*Make)(L"");
        }
    }

    template <auto Set, auto Reference, bool IsById>
    static VRow LinkRow(char const* name, VOccurs occurs, int choice) {
        using Made = std::remove_reference_t<decltype((std::declval<T&>().*Set)(std::declval<NMemory::VReference>()))>;
        return {name,
                occurs,
                choice,
                [](VLoader& loader, void* owner, VRow const& row, VAttributes const& attributes) {
                    Made& made = (Owner(owner).*Set)(Reference(loader, attributes));
                    NoteElement(loader, made);
                    made.SetOdxTag(row.tag);
                    if constexpr (IsById) {
                        NoteLink(loader, made, made, kQuestionsTo<Made>);
                    }
                    return VOpened{&made, &row.Type()};
                },
                []() -> VElementType const& { return TypeOf(static_cast<Made*>(nullptr)); },
                nullptr,
                occurs != Many,
                TagOf(name)};
    }

    static NODX201::VOdxTagEnum TagOf(std::string_view name) {
        return NODX201::OdxTagOf(std::wstring(name.begin(), name.end()).c_str());
    }

    static bool IsTrue(std::wstring const& text) { return text == L"1" || EqualsFolded(text, L"true"); }
    static bool IsFalse(std::wstring const& text) { return text == L"0" || EqualsFolded(text, L"false"); }
    static bool EqualsFolded(std::wstring const& text, std::wstring_view lower) {
        return text.size() == lower.size() &&
               std::equal(text.begin(), text.end(), lower.begin(),
                          [](wchar_t a, wchar_t b) { return (a >= L'A' && a <= L'Z' ? a - L'A' + L'a' : a) == b; });
    }
};

/// ID, OID and the names, which most classes begin with. The names stand before all other rows.
template <class T>
std::vector<VAttributeRow> IdentAttributes(VOccurs id = Required) {
    using R = VRows<T>;
    VAttributeRow idRow = R::template Attribute<&T::SetId>("ID", id, VContent::Name);
    return {idRow, R::template Attribute<&T::SetOid>("OID")};
}

template <class T>
std::vector<VRow> NameRows() {
    using R = VRows<T>;
    VElementType longName;
    longName.setContent = [](void* owner, std::wstring const& text, std::wstring const& textId) {
        R::Owner(owner).SetLongName(text.c_str(), textId.c_str());
    };
    VRow longNameRow = R::template Text<&T::SetShortName>("LONG-NAME");
    longNameRow.ownType = std::make_shared<VElementType const>(Indexed(std::move(longName)));
    return {R::template Text<&T::SetShortName>("SHORT-NAME", Required, VContent::Name), longNameRow,
            R::template Markup<&T::SetDesc>("DESC")};
}

template <class Row>
std::vector<Row> Join(std::vector<Row> first, std::vector<Row> second) {
    first.insert(first.end(), std::make_move_iterator(second.begin()), std::make_move_iterator(second.end()));
    return first;
}

template <class Row, class... More>
std::vector<Row> Join(std::vector<Row> first, std::vector<Row> second, std::vector<More>... more) {
    return Join(Join(std::move(first), std::move(second)), std::move(more)...);
}

} // namespace NReader
