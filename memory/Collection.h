// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <memory>
#include <type_traits>

#include <diagkit/memory/Node.h>
#include <diagkit/model/ElementCollection.h>

namespace NMemory {

/// A collection of the contract that owns its elements.
template <class Collection>
class VMemCollection final : public Collection, public VMemHome {
public:
    using List = typename Collection::List;
    /// What the list has pointers to.
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

    /// Takes the element in before the position; the position is found once, so that adding at the end is constant.
    template <class Element>
    Element& Insert(typename List::iterator before, std::unique_ptr<Element> element) {
        Entry* const entry = element.get();
        this->m_elements.insert(before, entry);
        element->m_home = this;
        element->m_entry = entry;
        return *element.release();
    }

    typename List::iterator EndPosition() { return this->m_elements.end(); } ///< where `Insert` adds at the end

    /// Takes the element in at the end.
    template <class Element>
    Element& Append(std::unique_ptr<Element> element) {
        return Insert(this->m_elements.end(), std::move(element));
    }

    /// The position of an entry; the end when the collection does not hold it. Linear.
    typename List::iterator Position(void const* entry) {
        return std::find_if(this->m_elements.begin(), this->m_elements.end(),
                            [entry](Entry* held) { return static_cast<void const*>(held) == entry; });
    }

    /// Moves an element of the same database from wherever it stands into this collection of `owner`: before the entry
    /// `before`, or to the end. Links that name it resolve as before, as far as its new place allows.
    template <class Owner, class Element>
    void Adopt(Owner& owner, Element& element, Entry* before = nullptr) {
        Entry* const entry = &element;
        VMemNode& node = element;
        bool const isAtHome = node.m_home == this;
        auto const old = isAtHome ? Position(entry) : EndPosition();
        this->m_elements.insert(before != nullptr ? Position(before) : EndPosition(), entry);
        if (isAtHome) {
            this->m_elements.erase(old);
        } else if (node.m_home != nullptr) {
            node.m_home->Forget(node.m_entry);
        }
        node.m_home = this;
        node.m_entry = entry;
        node.m_owner = &owner;
        node.NoteMove();
    }

    void Forget(void const* entry) override {
        if (m_isClosing) {
            return;
        }
        if (auto const position = Position(entry); position != this->m_elements.end()) {
            this->m_elements.erase(position);
        }
    }

private:
    static void Destroy(Entry* entry) {
        if constexpr (std::has_virtual_destructor_v<Entry>) {
            delete entry;
        } else {
            // Proxies have no public destructor; the element behind one has.
            delete dynamic_cast<NODX201::VOdxObject*>(entry);
        }
    }

    bool m_isClosing = false;
};

/// A repeated child as a member: no collection until the first item or the empty wrapper comes, so that an absent
/// wrapper costs one pointer. Reads of an absent one get a shared empty collection.
template <class Collection>
class VMemMany {
public:
    bool IsPresent() const { return m_collection != nullptr; } ///< whether it was ever added to, or made

    /// For reading: empty when it is absent.
    Collection& Get() const {
        static VMemCollection<Collection> empty;
        return m_collection != nullptr ? *m_collection : empty;
    }

    /// The collection for adding to; from now on it is present.
    VMemCollection<Collection>& Make() {
        if (m_collection == nullptr) {
            m_collection = std::make_unique<VMemCollection<Collection>>();
        }
        return *m_collection;
    }

private:
    std::unique_ptr<VMemCollection<Collection>> m_collection;
};

} // namespace NMemory
