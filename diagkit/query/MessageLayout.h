// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include <diagkit/model/Compu.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Reference.h>

/// Where the parameters of a message stand in its bytes, as a layer means it.

namespace NQuery {

/// A number that may depend on data: from the least to the most, or from the least on.
struct VExtent {
    std::uint64_t least = 0;
    std::optional<std::uint64_t> most = 0; ///< nothing where no limit is known

    bool IsFixed() const { return most == least; }
};

/// What a row of a layout stands for.
enum class VLayoutRole {
    Param,     ///< a PARAM
    SwitchKey, ///< the SWITCH-KEY of a MUX
    Case,      ///< a CASE or DEFAULT-CASE of a MUX: one of several that may stand there
    ItemCount, ///< the DETERMINE-NUMBER-OF-ITEMS of a field
    Item,      ///< the first item of a field; the element is the field
    EndMarker, ///< the DATA-OBJECT-PROP-REF of a DYNAMIC-ENDMARKER-FIELD, whose value ends the field
    TableRow,  ///< a TABLE-ROW of the table that a TABLE-STRUCT names: one of several that may stand there
    EnvData,   ///< an ENV-DATA: for all trouble codes or some of them
};

/// Why what a row leads to is not laid out.
enum class VLayoutGap {
    None,
    Broken,  ///< its reference leads nowhere in this layer
    Cycle,   ///< it is inside itself
    TooDeep, ///< inside more than `VLayoutOptions::maxDepth` others
};

/// A parameter, or what stands for several of them. All pointers are the model's.
struct VLayoutRow {
    VLayoutRole role = VLayoutRole::Param;
    std::size_t depth = 0; ///< the rows inside this one come right after it, one deeper
    NODX201::VOdxElement* element = nullptr;

    /// From the start of the message or of what was asked for. Without BYTE-POSITION a parameter starts at the first
    /// byte after the one before it.
    VExtent bytePosition;
    bool isPositionGiven = false;  ///< by a BYTE-POSITION, not by what stands before
    std::uint64_t bitPosition = 0; ///< of the lowest bit in its byte
    VExtent bitLength;
    bool isLowByteFirst = false; ///< IS-HIGHLOW-BYTE-ORDER is false
    VExtent count{1, 1};         ///< of an Item: how many of them there are

    wchar_t const* constant = L"";                ///< CODED-VALUE, PHYS-CONSTANT-VALUE or KEY; "" without one
    NODX201::VLink* reference = nullptr;          ///< to a DOP, table or row; null without one
    NODX201::VOdxElement* target = nullptr;       ///< what it leads to in this layer
    NODX201::VOdxElement* dop = nullptr;          ///< the DOP of the value: the target, or that of a table's key
    NODX201::VDiagCodedType* codedType = nullptr; ///< its own or that of its DOP; null for what has none
    VLayoutGap gap = VLayoutGap::None;
};

/// The layout of a message, a DOP, a TABLE or a TABLE-ROW.
struct VMessageLayout {
    std::vector<VLayoutRow> rows; ///< in the order of the document, each before what is in it
    VExtent bitLength;            ///< up to the last byte of the last parameter
    bool isCut = false;           ///< there are more rows than `VLayoutOptions::maxRows`
};

/// How far a layout goes.
struct VLayoutOptions {
    std::size_t maxRows = 50'000; ///< structures that hold each other twice and twice again have no end else
    std::size_t maxDepth = 32;    ///< of structures inside one another
};

/// Whether an element has a layout: requests and responses, DOPs of all kinds, TABLEs and TABLE-ROWs.
bool HasLayout(NODX201::VOdxElement const& element);

/// Lays out a request, a response, a DOP, a TABLE or a TABLE-ROW of the memory model: a row for each parameter, with
/// what structures, fields, MUXs and tables hold inside the row that leads to them. Short names mean what they mean in
/// the layer, and nothing without one; where they lead nowhere the row says so. Lengths are those of the coded types: a
/// constant one, or the least and most that a value may take. No rows for another element.
///
///     for (NQuery::VLayoutRow const& row : NQuery::LayoutOf(request, &layer).rows) { ... }
///
/// The time it takes is proportional to the rows, of which there are at most `maxRows`. Throws std::bad_alloc.
VMessageLayout LayoutOf(NODX201::VOdxElement& element, NODX201::VDiagLayer* layer, VLayoutOptions const& options = {});

/// What a message of a service is.
enum class VMessageRole { Request, Positive, Negative };

/// A message of a service.
struct VServiceMessage {
    VMessageRole role;
    NODX201::VLink* reference;
    NODX201::VOdxElement* message; ///< REQUEST, POS-RESPONSE or NEG-RESPONSE; null where the reference leads nowhere
};

/// The messages that a service names: its request, then the positive, then the negative responses.
std::vector<VServiceMessage> MessagesOf(NODX201::VDiagService& service);

/// What has certain bits of a byte: rows of a layout by number, several where they overlap, none where nothing is.
struct VBitRun {
    unsigned highest; ///< bit 7 is the highest of a byte
    unsigned lowest;
    std::vector<std::size_t> rows;
};

/// Bytes that look the same, one below the other as they are sent.
struct VByteBox {
    std::optional<std::uint64_t> first; ///< nothing where it depends on lengths before
    std::optional<std::uint64_t> last;  ///< nothing where it depends on the length
    std::vector<VBitRun> runs;          ///< from the highest bit down
};

/// The bytes of a layout as boxes, for pictures: each parameter of the message and of structures in it, while a field,
/// a MUX or a table is one box. Bytes that nothing but one parameter has are joined. Empty for a layout whose fixed
/// part is longer than `maxBytes`.
std::vector<VByteBox> BoxesOf(VMessageLayout const& layout, std::uint64_t maxBytes);

} // namespace NQuery
