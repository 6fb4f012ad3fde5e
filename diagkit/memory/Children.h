// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <utility>

#include <diagkit/memory/Collection.h>
#include <diagkit/memory/Element.h>
#include <diagkit/memory/Link.h>
#include <diagkit/model/Collections.h>

/// How the classes of the memory model make their children; each function is one way in which ODX elements have them.
/// A child comes into its parent when it is finished, so that one whose making fails is not there at all.

namespace NMemory {

/// Makes an element. Defined for every class of the model, in `Instances*.cpp` alone: a program that adds elements
/// does not compile the whole model again.
template <class Element>
std::unique_ptr<Element> New(VPlace const& place);

/// The same for a link.
template <class Link>
std::unique_ptr<Link> New(VPlace const& place, VReference const& reference);

/// The optional child, made when it is absent.
template <class Child>
Child& MakeChild(std::unique_ptr<Child>& slot, VPlace const& place) {
    if (slot == nullptr) {
        slot = New<Child>(place);
    }
    return *slot;
}

/// The same; `finish` says what the child holds.
template <class Child, class Finish>
Child& MakeChild(std::unique_ptr<Child>& slot, VPlace const& place, Finish finish) {
    if (slot != nullptr) {
        finish(*slot);
        return *slot;
    }
    auto child = New<Child>(place);
    finish(*child);
    slot = std::move(child);
    return *slot;
}

/// The same, and one that is made gets a short name.
template <class Child>
Child& MakeNamedChild(std::unique_ptr<Child>& slot, VPlace const& place, wchar_t const* shortName) {
    return MakeChild(slot, place, [shortName](Child& child) { child.SetShortName(shortName); });
}

/// The same, and one that is made gets a text.
template <class Child>
Child& MakeTextChild(std::unique_ptr<Child>& slot, VPlace const& place, wchar_t const* text) {
    return MakeChild(slot, place, [text](Child& child) { child.SetText(text); });
}

/// The optional link, made or directed at another target.
template <class Link>
Link& MakeLink(std::unique_ptr<Link>& slot, VPlace const& place, VReference const& reference) {
    if (slot == nullptr) {
        slot = New<Link>(place, reference);
    } else {
        slot->SetReference(reference);
    }
    return *slot;
}

/// One of several alternatives: the new one takes the place of the one before.
template <class Alternative, class Slot, class Choice, class... Arguments>
Alternative& SetChoice(std::unique_ptr<Slot>& slot, Choice*& choice, VPlace const& place,
                       Arguments const&... arguments) {
    auto made = New<Alternative>(place, arguments...);
    Alternative& alternative = *made;
    slot = std::move(made);
    choice = &alternative;
    return alternative;
}

/// A new element at the end of a repeated child.
template <class Item, class Collection>
Item& AddPlain(VMemMany<Collection>& many, VPlace const& place) {
    return many.Make().Append(New<Item>(place));
}

/// The same with a short name.
template <class Item, class Collection>
Item& AddNamed(VMemMany<Collection>& many, VPlace const& place, wchar_t const* shortName) {
    auto item = New<Item>(place);
    item->SetShortName(shortName);
    return many.Make().Append(std::move(item));
}

/// The same with a text.
template <class Item, class Collection>
Item& AddText(VMemMany<Collection>& many, VPlace const& place, wchar_t const* text) {
    auto item = New<Item>(place);
    item->SetText(text);
    return many.Make().Append(std::move(item));
}

/// The same for a link with its reference.
template <class Item, class Collection>
Item& AddLink(VMemMany<Collection>& many, VPlace const& place, VReference const& reference) {
    return many.Make().Append(New<Item>(place, reference));
}

/// Throws std::invalid_argument for a reference by short name.
void RequireById(VReference const& reference);

/// Texts such as ROLES as a member.
class VMemStrings {
public:
    bool IsPresent() const { return m_collection != nullptr; } ///< whether it was ever added to, or made
    NODX201::VStringCollection& Get() const;                   ///< in document order; empty when absent
    void Make();                                               ///< from now on it is present
    void Add(VPart& part, wchar_t const* text);                ///< a copy, at the end, which the part holds

private:
    class VMemStringCollection : public NODX201::VStringCollection {
    public:
        VMemStringCollection() = default;
        void Add(std::wstring const& text) { m_elements.push_back(&text); }
    };

    std::unique_ptr<VMemStringCollection> m_collection;
};

} // namespace NMemory
