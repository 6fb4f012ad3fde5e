// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <diagkit/model/Empty.h>
#include <diagkit/model/SnrefResolver.h>

#include "Table.h"

/// Common to the elements of the example: their owner, what they own, how they find others.

namespace NOwnModel {

using Tag = NODX201::VOdxTagEnum;

/// The data that links search: the elements by ID, and the targets of short names.
struct VIndex {
    std::map<std::wstring, NODX201::VReferencable*> elements;
    std::unique_ptr<NODX201::VAbstractSnrefResolver> resolver;
};

/// The origin of an element: its row, its owner, its database.
struct VOrigin {
    VRow const& row;
    NODX201::VOdxObject* owner;
    VIndex& index;
};

/// A collection of the contract that owns its entries.
template <class Collection>
class VOwning : public Collection {
public:
    template <class Entry>
    Entry& Add(std::unique_ptr<Entry> entry) {
        this->m_elements.push_back(entry.get());
        m_owned.push_back(std::move(entry));
        return static_cast<Entry&>(*m_owned.back());
    }

private:
    std::vector<std::unique_ptr<NODX201::VOdxObject>> m_owned;
};

/// An element of a class of the contract, as far as all agree. What this model never has is absent by itself.
template <class Contract>
class VElement : public NODX201::VEmpty<Contract> {
public:
    explicit VElement(VOrigin const& origin) : m_origin(origin) {}

    Tag GetOdxTag() const override { return m_origin.row.tag; }
    wchar_t const* GetShortName() const override { return m_origin.row.name.c_str(); }
    NODX201::VOdxObject* GetOwner() const override { return m_origin.owner; }

protected:
    VRow const& Row() const { return m_origin.row; }
    VIndex& Index() const { return m_origin.index; }
    VOrigin Inside(VRow const& row) { return {row, this, m_origin.index}; }

    /// The optional child of a tag, or null.
    template <class Child>
    std::unique_ptr<Child> MakeChild(Tag tag) {
        for (VRow const& row : Row().rows) {
            if (row.tag == tag) {
                return std::make_unique<Child>(Inside(row));
            }
        }
        return nullptr;
    }

    /// Adds the children of a tag.
    template <class Child, class Collection>
    void AddAll(VOwning<Collection>& collection, Tag tag) {
        for (VRow const& row : Row().rows) {
            if (row.tag == tag) {
                collection.Add(std::make_unique<Child>(Inside(row)));
            }
        }
    }

private:
    VOrigin m_origin;
};

/// The same for a class with an ID.
template <class Contract>
class VIdentified : public VElement<Contract> {
public:
    explicit VIdentified(VOrigin const& origin) : VElement<Contract>(origin) {
        if (!origin.row.id.empty()) {
            origin.index.elements[origin.row.id] = this;
        }
    }

    wchar_t const* GetId() const override { return this->Row().id.c_str(); }
};

class VById : public NODX201::VOdxLink {
public:
    explicit VById(VRow const& row) : m_row(row) {}

    wchar_t const* GetIdRef() const override { return m_row.idRef.c_str(); }
    wchar_t const* GetDocref() const override { return L""; }
    wchar_t const* GetDoctype() const override { return L""; }
    wchar_t const* GetRevision() const override { return L""; }

private:
    VRow const& m_row;
};

class VByName : public NODX201::VSnref {
public:
    explicit VByName(VRow const& row) : m_row(row) {}

    wchar_t const* GetShortName() const override { return m_row.snref.c_str(); }

private:
    VRow const& m_row;
};

/// A link: its form, and the target that was found last.
template <class Contract, class Target>
class VLinkTo : public VElement<Contract> {
public:
    explicit VLinkTo(VOrigin const& origin) : VElement<Contract>(origin) {
        if (origin.row.snref.empty()) {
            m_form = std::make_unique<VById>(origin.row);
        } else {
            m_form = std::make_unique<VByName>(origin.row);
        }
    }

    NODX201::ILink& GetLink() override { return *m_form; }

protected:
    bool IsByName() const { return !this->Row().snref.empty(); }
    wchar_t const* Name() const { return this->Row().snref.c_str(); }

    bool Remember(Target* target) const {
        m_target = target;
        return target != nullptr;
    }

    /// An element of another class is not a target.
    bool FindById() const {
        auto const found = this->Index().elements.find(this->Row().idRef);
        return Remember(found != this->Index().elements.end() ? dynamic_cast<Target*>(found->second) : nullptr);
    }

    Target& Found() const { return *m_target; }

private:
    std::unique_ptr<NODX201::ILink> m_form;
    mutable Target* m_target = nullptr;
};

} // namespace NOwnModel
