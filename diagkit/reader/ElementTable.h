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

/// The children allowed in each element and what is made from them, as tables: one `VElementType` per element class,
/// with a row for each child in the order of ODX 2.0.1. The loader walks documents along these tables and knows no
/// element by name.

namespace NReader {

class VLoader;
struct VElementType;

/// How often a child or attribute may occur. `Required` and the order of rows are those of ODX 2.0.x and are not
/// checked in documents of later versions.
enum class VOccurs : std::uint8_t { Optional, Required, Many };
inline constexpr VOccurs Optional = VOccurs::Optional;
inline constexpr VOccurs Required = VOccurs::Required;
inline constexpr VOccurs Many = VOccurs::Many;

/// The required form of a text; other texts are kept nevertheless. All but `Text` are trimmed.
enum class VContent : std::uint8_t { Text, Name, Uint, Int, Double, Bool, Hex, Date };

/// The element that a start tag opened. Without a type the element is ignored, with its children.
struct VOpened {
    void* object = nullptr;
    VElementType const* type = nullptr;
    bool isDeferred = false; ///< its kind follows from its contents: record it and open it again at its end
};

struct VRow;

/// Stores a text, with the text identifier of its @TI.
using VSetText = void (*)(void* object, std::wstring const& text, std::wstring const& textId);
using VOpenRow = VOpened (*)(VLoader& loader, void* owner, VRow const& row, VAttributes const& attributes);

struct VAttributeRow {
    char const* name;
    VOccurs occurs;
    VContent content;
    VSetText set;
    wchar_t const* const* literals; ///< the texts allowed, terminated by null; null where any text is
};

/// A child. Rows of alternatives have the same `choice` number; of these, only the first in the document counts.
struct VRow {
    char const* name;
    VOccurs occurs;
    int choice;
    VOpenRow open;
    VElementType const& (*type)() = nullptr;               ///< of an element class
    std::shared_ptr<VElementType const> ownType{};         ///< of a wrapper or a text, which have no class
    bool isFirstKept = false;                              ///< a second one is ignored, not merged into the first
    NODX201::VOdxTagEnum tag = NODX201::VOdxTagEnum::None; ///< of a reference

    VElementType const& Type() const { return ownType != nullptr ? *ownType : type(); }
};

/// An xsi:type of an element that has one class for all of them, and the child that is allowed only with it.
struct VKind {
    std::string xsiType;
    std::string child;                      ///< "" for none
    void (*choose)(void* object) = nullptr; ///< makes the element one of this kind; null where the child implies it
};

struct VElementType {
    std::vector<VAttributeRow> attributes;
    std::vector<VRow> rows;

    VContent content = VContent::Text;
    VSetText setContent = nullptr; ///< stores the element's own text; null where it has only elements
    wchar_t const* const* literals = nullptr;
    std::vector<VKind> kinds; ///< by xsi:type
    bool isMarkup = false;    ///< the text is everything inside, including tags
    bool isWrapper = false;   ///< its items may also occur without it
    void (*addInstruction)(void* object, std::wstring const& name, std::wstring const& content) = nullptr;

    std::vector<std::string_view> names; ///< of the rows

    /// Index of the row, or -1. Searches from the row `from` first, where the next child usually is.
    int FindRow(std::string_view name, int from = 0) const;
};

/// The loader records what it has seen of an element in one word: one bit per row, and one bit per choice.
inline constexpr std::size_t kMostRows = 64;

/// How often, and of which alternatives.
struct VOften {
    constexpr VOften(VOccurs often, int number = 0) : occurs(often), choice(number) {}

    VOccurs occurs;
    int choice;
};
constexpr VOften OneOf(int choice) { return {Required, choice}; }  ///< one of these is required
constexpr VOften OrElse(int choice) { return {Optional, choice}; } ///< or none of them

/// A row of a table as a constant, so that the tables need no code.
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

/// Makes the table from the facts. Throws std::length_error for more rows, or choices with higher numbers, than the
/// loader can distinguish.
VElementType TableOf(VFact const* facts, std::size_t count);

template <std::size_t Count>
VElementType TableOf(VFact const (&facts)[Count]) {
    return TableOf(facts, Count);
}

// For the functions of the rows, which use nothing else of the loader.

void NotePosition(VLoader& loader, NMemory::VMemNode& node);
void NotePositionAround(VLoader& loader, NMemory::VMemNode& node); ///< of the element around the tag being read
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
