// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <diagkit/memory/Link.h>
#include <diagkit/memory/ParentRefs.h>
#include <diagkit/reader/Attributes.h>
#include <diagkit/reader/LinkQuestions.h>

/// What may stand in which element and what it makes, as tables: one `VElementType` an element class, with a row for
/// each child in the order of ODX 2.0.1. The loader walks documents along these tables and knows no element by name.

namespace NReader {

class VLoader;
struct VElementType;

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

struct VRow;

/// Takes a text, with the text identifier of its @TI.
using VSetText = void (*)(void* object, std::wstring const& text, std::wstring const& textId);
using VOpenRow = VOpened (*)(VLoader& loader, void* owner, VRow const& row, VAttributes const& attributes);

struct VAttributeRow {
    char const* name;
    VOccurs occurs;
    VContent content;
    VSetText set;
    wchar_t const* const* literals; ///< the texts allowed, ended by null; null where any is
};

/// A child. Rows of alternatives bear the same `choice` number; of these, only the first in the document counts.
struct VRow {
    char const* name;
    VOccurs occurs;
    int choice;
    VOpenRow open;
    VElementType const& (*type)() = nullptr;               ///< of an element class
    std::shared_ptr<VElementType const> ownType{};         ///< of a wrapper or a text, which have no class
    bool isFirstKept = false;                              ///< a second one is left out; otherwise it adds to the first
    NODX201::VOdxTagEnum tag = NODX201::VOdxTagEnum::None; ///< of a reference

    VElementType const& Type() const { return ownType != nullptr ? *ownType : type(); }
};

/// An xsi:type of an element that has one class for all of them, and the child that may stand in it alone.
struct VKind {
    std::string xsiType;
    std::string child;                      ///< "" for none
    void (*choose)(void* object) = nullptr; ///< makes the element one of this kind; null where the child says as much
};

struct VElementType {
    std::vector<VAttributeRow> attributes;
    std::vector<VRow> rows;

    VContent content = VContent::Text;
    VSetText setContent = nullptr; ///< takes the element's own text; null where it has elements only
    wchar_t const* const* literals = nullptr;
    std::vector<VKind> kinds; ///< that the xsi:type says
    bool isMarkup = false;    ///< the text is all inside, tags included
    bool isWrapper = false;   ///< its items may also stand beside it
    void (*addInstruction)(void* object, std::wstring const& name, std::wstring const& content) = nullptr;

    std::vector<std::string_view> names; ///< of the rows

    /// Index of the row, or -1. Looks from the row `from` on first, where the next child mostly is.
    int FindRow(std::string_view name, int from = 0) const;
};

/// The loader keeps what it has seen of an element in one word: a bit a row, and a bit a choice.
inline constexpr std::size_t kMostRows = 64;

/// How often, and of which alternatives.
struct VOften {
    constexpr VOften(VOccurs often, int number = 0) : occurs(often), choice(number) {}

    VOccurs occurs;
    int choice;
};
constexpr VOften OneOf(int choice) { return {Required, choice}; }  ///< one of these must be there
constexpr VOften OrElse(int choice) { return {Optional, choice}; } ///< or none of them

/// A line of a table before it is one: constant, so that the tables cost no code.
struct VFact {
    enum class VWhat : std::uint8_t {
        Attribute,
        Child,
        Text,
        Reference,
        Wrapper,
        WrapperEnd,
        Content,
        List,
        Kind,
        Instructions
    };

    VWhat what;
    char const* name;
    VOften often = Optional;
    VContent content = VContent::Text;
    VSetText set = nullptr;
    wchar_t const* const* (*literals)() = nullptr;
    VOpenRow open = nullptr;
    VElementType const& (*type)() = nullptr;
    bool isFirstKept = false;
    bool isMarkup = false;
    char const* child = nullptr; ///< of a kind
    void (*addInstruction)(void* object, std::wstring const& name, std::wstring const& content) = nullptr;
    void (*choose)(void* object) = nullptr; ///< of a kind
};

/// The table that the facts say. Throws std::length_error for one with more rows, or with choices of higher numbers,
/// than the loader can keep apart.
VElementType TableOf(VFact const* facts, std::size_t count);

template <std::size_t Count>
VElementType TableOf(VFact const (&facts)[Count]) {
    return TableOf(facts, Count);
}

// For the rows' functions, which know the loader no further.

void NotePosition(VLoader& loader, NMemory::VMemNode& node);
void NotePositionAround(VLoader& loader, NMemory::VMemNode& node); ///< of what the tag being read stands in
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

} // namespace NReader
