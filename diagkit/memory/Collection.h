// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <stdexcept>
#include <type_traits>

#include <diagkit/memory/Node.h>
#include <diagkit/model/Collections.h>

namespace NMemory {

// The rows of the classes name collections of the contract and others alike.
#define ODX_COLLECTION_CLASS(name, entry) using NODX201::name;
#include <diagkit/model/facts/Collections.def>
using NODX201::VCompuScaleCollection;

/// An element that was made and has no place yet. It owns the element, as `std::unique_ptr` would, and is as small as
/// possible because every program that includes the classes has one for each of them.
template <class Element>
class VMemMade {
public:
    explicit VMemMade(Element* element) : m_element(element) {}         ///< takes ownership; null for none
    VMemMade(VMemMade&& other) noexcept : m_element(other.Release()) {} ///< leaves the other one empty
    VMemMade& operator=(VMemMade&&) = delete;
    ~VMemMade() { delete m_element; }

    Element& operator*() const { return *m_element; }
    Element* operator->() const { return m_element; }

    /// The element, which the caller owns from now on.
    Element* Release() noexcept {
        Element* const element = m_element;
        m_element = nullptr;
        return element;
    }

private:
    Element* m_element;
};

/// A collection of the contract that owns its elements.
template <class Collection>
class VMemCollection final : public Collection, public VMemHome {
public:
    using List = typename Collection::List;
    /// The type that the pointers of the list point to.
    using Entry = std::remove_pointer_t<typename List::value_type>;

    VMemCollection() = default;

    ~VMemCollection() {
        m_isClosing = true;
        while (!this->m_elements.empty()) {
            Entry* const entry = this->m_elements.front();
            this->m_elements.pop_front();
            Destroy(entry);
        }
    }

    /// Inserts the element before the position.
    template <class Element>
    Element& Insert(typename List::iterator before, VMemMade<Element> element) {
        Entry* const entry = &*element;
        SetHome(*element, this->m_elements.insert(before, entry));
        return *element.Release();
    }

    /// Takes ownership, at the end, of an element known as an entry of this collection and as a node.
    void TakeIn(Entry* entry, VMemNode& node) { SetHome(node, this->m_elements.insert(this->m_elements.end(), entry)); }

    typename List::iterator EndPosition() { return this->m_elements.end(); } ///< where `Insert` adds at the end

    /// The position of an element of this collection; the end for any other.
    typename List::iterator Position(VMemNode const& element) {
        return element.m_home == this ? element.m_place.In(this->m_elements) : this->m_elements.end();
    }

    /// Moves an element of the same database from its current place into this collection of `owner`: before the entry
    /// `before`, or to the end. Links to it resolve as before, as far as its new place allows. Throws
    /// std::invalid_argument, and changes nothing, for an element that is not in a collection, such as the one
    /// REQUEST-REF of a service, for one of another database or of a detached part, for one that contains `owner`, and
    /// for an entry `before` that is not in this collection.
    template <class Owner, class Element>
    void Adopt(Owner& owner, Element& element, Entry* before = nullptr) {
        VMemNode& node = element;
        node.RequireMoveTo(owner, owner, element);
        auto const position = before != nullptr ? PositionOfEntry(before) : EndPosition();
        auto const old = Position(node);
        auto const now = this->m_elements.insert(position, static_cast<Entry*>(&element));
        if (old != EndPosition()) {
            this->m_elements.erase(old);
        } else {
            node.m_home->Forget(node.m_place);
        }
        SetHome(element, now);
        node.m_owner = &owner;
        node.NoteRedirection();
    }

    void Forget(VListPosition const& position) override {
        if (!m_isClosing) {
            this->m_elements.erase(position.In(this->m_elements));
        }
    }

    /// Moves everything in `other` here, where it is about to be destroyed with the entries of this one. So nested
    /// elements are destroyed one after another, however deep they nest. Allocates nothing.
    void TakeDying(VMemCollection& other) {
        for (auto position = other.m_elements.begin(); position != other.m_elements.end(); ++position) {
            dynamic_cast<VMemNode&>(**position).m_home = this;
        }
        this->m_elements.splice(this->m_elements.end(), other.m_elements);
    }

    /// For collections whose entries are destroyed with `TakeDying`: entries no longer need to leave.
    typename List::iterator Close() {
        m_isClosing = true;
        return this->m_elements.begin();
    }

private:
    static void Destroy(Entry* entry) {
        if constexpr (std::has_virtual_destructor_v<Entry>) {
            delete entry;
        } else {
            // Proxies have no public destructor; the element behind a proxy has one.
            delete dynamic_cast<NODX201::VOdxObject*>(entry);
        }
    }

    void SetHome(VMemNode& node, typename List::iterator position) {
        node.m_home = this;
        node.m_place = VListPosition(position);
    }

    typename List::iterator PositionOfEntry(Entry* entry) {
        auto* const node = dynamic_cast<VMemNode*>(entry);
        auto const position = node != nullptr ? Position(*node) : EndPosition();
        if (position == EndPosition()) {
            throw std::invalid_argument("an element moves before another one of the collection that it moves into");
        }
        return position;
    }

    bool m_isClosing = false;
};

/// A repeated child as a member: no collection until the first item or the empty wrapper is added, so that an absent
/// wrapper costs one pointer. Reading an absent one returns a shared empty collection.
template <class Collection>
class VMemMany {
public:
    VMemMany() = default;
    VMemMany(VMemMany const&) = delete;
    VMemMany& operator=(VMemMany const&) = delete;
    ~VMemMany();

    bool IsPresent() const { return m_collection != nullptr; } ///< whether it was ever added to, or made

    /// For reading: empty when it is absent.
    Collection& Get() const { return m_collection != nullptr ? *m_collection : Empty(); }

    /// The collection for adding; makes it present.
    VMemCollection<Collection>& Make();

    /// A new element at the end.
    template <class Item>
    Item& Add(VMemMade<Item> item) {
        Item& added = *item;
        TakeIn(&added, added);
        item.Release();
        return added;
    }

private:
    using Entry = std::remove_pointer_t<typename Collection::List::value_type>;

    static Collection& Empty();
    void TakeIn(Entry* entry, VMemNode& node);

    Collection* m_collection = nullptr; // a VMemCollection
};

} // namespace NMemory
