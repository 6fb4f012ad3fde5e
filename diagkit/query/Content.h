// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/Database.h>
#include <diagkit/model/Reference.h>

namespace NQuery {

/// The parts of an element, by their names in XML.
enum class VPartRole {
    Attribute,   ///< `text`
    Text,        ///< the text of a child element that has only text; `text`
    OwnText,     ///< the text of the element itself; `text`, and "" as `tag`
    Element,     ///< a child element; `element`
    Reference,   ///< a child element that refers to another; `element`, which is a `NODX201::VLink`
    Instruction, ///< a processing instruction; its name as `tag`, its content as `text`
};

/// One part of an element. All pointers belong to the model or are valid for ever.
struct VContentPart {
    VPartRole role;
    wchar_t const* tag; ///< the name in XML: SEMANTIC, BYTE-POSITION, PARAM, DOP-SNREF
    /// The element between the owner and the part, for which the model has no element: PARAMS around a PARAM. An
    /// attribute of a text comes right after it and has the text here: LONG-NAME around TI. "" without one.
    wchar_t const* wrapper;
    bool isItem;                   ///< one of any number of its kind; otherwise there is one at most
    wchar_t const* text;           ///< never "" for an attribute or a text; null for elements and references
    NODX201::VOdxElement* element; ///< null for texts
};

/// Takes the parts of an element, one after another.
class IPartSink {
public:
    virtual void Take(VContentPart const& part) = 0; ///< called for each

protected:
    IPartSink() = default;
    ~IPartSink() = default;
};

/// Passes every part of an element of the memory model: the attributes first, then the rest in the order of ODX, items
/// in document order. Children are not entered, references not followed: call it for them in turn. A reference has its
/// own attributes (ID-REF, DOCREF and so on, or SHORT-NAME), and where the kind of an element is its xsi:type, that is
/// the first attribute.
///
/// Absent or empty parts are left out; an attribute or flag with a default has it where the document leaves it out.
/// Texts are those of the model, where numbers are trimmed and a DESC includes its markup. An element of another model
/// has no parts here.
///
/// Throws std::bad_alloc when memory runs out, and whatever the sink throws.
void ForEachPart(NODX201::VOdxElement& element, IPartSink& sink);

/// The same with a function `call(VContentPart const&)`.
template <class Call>
void ForEachPartOf(NODX201::VOdxElement& element, Call call) {
    struct VSink final : IPartSink {
        explicit VSink(Call& toCall) : m_call(toCall) {}
        void Take(VContentPart const& part) override { m_call(part); }
        Call& m_call;
    };
    VSink sink(call);
    ForEachPart(element, sink);
}

/// The target of a reference, or null where it has none. A reference by short name is resolved in the layer, and has no
/// target without one. References to parameters, flash data and PROTOCOLs by short name are read in contexts other than
/// layers, and are not followed.
NODX201::VOdxElement* TargetOf(NODX201::VLink& reference, NODX201::VDiagLayer* layer);

/// Whether the target of a reference depends on the layer: true for one by short name that `TargetOf` follows.
bool IsReadInLayer(NODX201::VLink& reference);

} // namespace NQuery
