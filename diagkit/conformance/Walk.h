// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <map>
#include <string>
#include <type_traits>
#include <vector>

#include <diagkit/conformance/Alternatives.h>
#include <diagkit/conformance/Violations.h>
#include <diagkit/model/Collections.h>
#include <diagkit/model/ProcessingInstruction.h>

namespace NConformance {

/// An entry of a collection of any type.
struct VEntry {
    void const* address = nullptr; ///< null where the collection contains a null
    VChild child{};
    NODX201::VProcessingInstruction* instruction = nullptr;
    std::wstring const* text = nullptr;

    bool operator==(VEntry const& other) const { return address == other.address; }
};

struct VList {
    void const* collection = nullptr;
    NODX201::VOdxObject* object = nullptr; ///< the collection, where it is an object of the model
    std::vector<VEntry> entries{};
};

/// The only access to a null entry, which an iterator cannot return.
template <class T>
struct VInside : NODX201::VElementCollection<T> {
    static auto const& ListOf(NODX201::VElementCollection<T>& collection) { return collection.*(&VInside::m_elements); }
};

template <class T>
VEntry EntryOf(T& x) {
    VEntry entry;
    entry.address = &x;
    if constexpr (std::is_same_v<T, std::wstring const>) {
        entry.text = &x;
    } else if constexpr (std::is_same_v<T, NODX201::VProcessingInstruction>) {
        entry.instruction = &x;
    } else {
        entry.child = ChildOf(x);
    }
    return entry;
}

template <class T>
std::vector<VEntry> EntriesOf(NODX201::VElementCollection<T>& collection) {
    std::vector<VEntry> entries;
    for (T* const entry : VInside<T>::ListOf(collection)) {
        entries.push_back(entry != nullptr ? EntryOf(*entry) : VEntry());
    }
    return entries;
}

template <class Collection>
VList ListOf(Collection& collection) {
    VList list;
    list.collection = &collection;
    if constexpr (std::is_polymorphic_v<Collection>) {
        list.object = dynamic_cast<NODX201::VOdxObject*>(&collection);
    }
    list.entries = EntriesOf(collection);
    return list;
}

/// Walks a database once, from the root down, checks every promise on the way and, if requested, records the answers.
/// Links are queried at the end, when all elements are known.
class VWalk {
public:
    using VHas = std::function<bool()>;
    using VGetText = std::function<wchar_t const*()>;
    using VGetChild = std::function<VChild()>;
    using VGetList = std::function<VList()>;

    VWalk(VViolations& violations, std::vector<std::wstring>* answers) : m_violations(violations), m_answers(answers) {}

    void WalkModel(VModel const& model);

    /// The path of an element that the walk met, or "an element that no collection holds".
    std::wstring PathOf(NODX201::VOdxElement const& element) const;
    std::vector<NODX201::VDiagLayer*> const& Layers() const { return m_layers; }

    // Called for the facts about the classes, with the current element. `has` may be empty.

    void Name(wchar_t const* operation, VGetText const& get);
    void Text(wchar_t const* operation, VHas const& has, VGetText const& get);
    void Child(wchar_t const* operation, VHas const& has, VGetChild const& get);
    void List(wchar_t const* operation, VHas const& has, VGetList const& get);
    void Link(NODX201::VLink& link);

    /// Whether an operation of that element did not throw.
    bool Ask(wchar_t const* operation, std::function<void()> const& call);

private:
    struct VReference {
        NODX201::VLink* link;
        NODX201::VDiagLayer* layer;
        std::wstring path;
        std::wstring id;        ///< of its target; "" for a short name
        std::wstring shortName; ///< of its target; "" for an ID
    };
    struct VKeptText {
        std::wstring where;
        wchar_t const* text;
        std::wstring content;
    };

    void EnterDocument(NODX201::VOdxElement& document);
    void Enter(NODX201::VOdxElement& element, NODX201::VOdxObject* owner, std::wstring const& component);
    void CheckOwner(NODX201::VOdxObject& object, NODX201::VOdxObject* owner, wchar_t const* operation);
    void CheckKind(NODX201::VOdxElement& element);
    void CheckAccept(NODX201::VOdxElement& element);
    void CheckAlternatives(VChild const& child, wchar_t const* operation);
    void CheckEntries(VList const& list, wchar_t const* operation);
    std::wstring NameOf(VEntry const& entry, std::size_t number);
    void EnterEntries(VList const& list);
    void InstructionTexts(NODX201::VProcessingInstruction& instruction, std::size_t number);
    std::wstring KeepText(wchar_t const* operation, VGetText const& get);
    bool IsPresent(wchar_t const* operation, VHas const& has);
    void CheckTexts();

    void Resolve(VReference const& reference);
    void AnswerOtherLayers(VReference const& reference, NODX201::VOdxElement const* here);
    NODX201::VOdxElement* Find(VReference const& reference, NODX201::VDiagLayer& layer);
    void CheckTarget(VReference const& reference, NODX201::VOdxElement& target);
    bool IsInLayer(NODX201::VOdxElement const& element) const;

    std::wstring ComponentOf(NODX201::VOdxElement& element, std::size_t number);
    std::wstring Where(wchar_t const* operation) const;
    void Report(VCheckId check, wchar_t const* operation, std::wstring expected, std::wstring found);
    void Answer(wchar_t const* operation, std::wstring const& answer);

    VViolations& m_violations;
    std::vector<std::wstring>* m_answers;
    std::wstring m_path;
    NODX201::VOdxElement* m_element = nullptr; // the current element
    NODX201::VDiagLayer* m_layer = nullptr;    // the layer that contains it
    std::map<NODX201::VOdxObject const*, std::wstring> m_paths;
    std::vector<NODX201::VOdxObject const*> m_tops; // of the chains of owners
    std::vector<NODX201::VDiagLayer*> m_layers;
    std::vector<VReference> m_references;
    std::vector<VKeptText> m_texts;
};

/// Walks the parts in the facts about the element's class, as far as the contract has them.
void WalkParts(VWalk& walk, NODX201::VOdxElement& element);

} // namespace NConformance
