// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <utility>

#include <diagkit/memory/Collection.h>
#include <diagkit/memory/Element.h>
#include <diagkit/memory/Link.h>
#include <diagkit/model/Collections.h>

/// How the classes of the memory model own their children. The bodies are compiled once for each class, only in
/// `Instances*.cpp`, so that a program that uses elements does not compile the whole model again. A child is added to
/// its parent when it is complete, so that a child whose construction fails is not there at all.

namespace NMemory {

/// Makes an element.
template <class Element>
VMemMade<Element> New(VPlace const& place);

/// The same with a short name.
template <class Element>
VMemMade<Element> NewNamed(VPlace const& place, wchar_t const* shortName);

/// Makes a link.
template <class Link>
VMemMade<Link> New(VPlace const& place, VReference const& reference);

/// The same with a text.
template <class Element>
VMemMade<Element> NewWithText(VPlace const& place, wchar_t const* text) {
    auto element = New<Element>(place);
    element->SetText(text);
    return element;
}

/// An optional child as a member, which owns it.
template <class Child>
class VMemChild {
public:
    VMemChild() = default;
    VMemChild(VMemChild const&) = delete;
    VMemChild& operator=(VMemChild const&) = delete;
    ~VMemChild();

    bool Has() const { return m_child != nullptr; }
    Child& Get() const { return *m_child; } ///< REQUIRES: `Has`
    Child& Make(VPlace const& place);       ///< the child, made when it is absent
    Child& Take(VMemMade<Child> child);     ///< replaces the previous one
    void Remove();                          ///< destroys it; no effect when there is none

private:
    Child* m_child = nullptr;
};

/// An optional link as a member, which owns it.
template <class Link>
class VMemLinkChild {
public:
    VMemLinkChild() = default;
    VMemLinkChild(VMemLinkChild const&) = delete;
    VMemLinkChild& operator=(VMemLinkChild const&) = delete;
    ~VMemLinkChild();

    bool Has() const { return m_link != nullptr; }
    Link& Get() const { return *m_link; }                        ///< REQUIRES: `Has`
    Link& Set(VPlace const& place, VReference const& reference); ///< the link, made or given another target
    void Remove();                                               ///< destroys it; no effect when there is none

private:
    Link* m_link = nullptr;
};

/// One of several alternatives as a member: a new one replaces the previous one.
template <class Interface>
class VMemChoice {
public:
    bool Has() const { return m_choice != nullptr; }
    Interface& Get() const { return *m_choice; } ///< REQUIRES: `Has`

    template <class Alternative>
    Alternative& Take(VMemMade<Alternative> made) {
        Alternative& alternative = *made;
        m_element.reset(made.Release());
        m_choice = &alternative;
        return alternative;
    }

    void Remove() {
        m_choice = nullptr;
        m_element.reset();
    }

private:
    std::unique_ptr<NODX201::VOdxElement> m_element;
    Interface* m_choice = nullptr;
};

/// Throws std::invalid_argument for a reference by short name.
void RequireById(VReference const& reference);

/// Texts such as ROLES as a member.
class VMemStrings {
public:
    bool IsPresent() const { return m_collection != nullptr; } ///< whether it was ever added to, or made
    NODX201::VStringCollection& Get() const;                   ///< in document order; empty when absent
    void Make();                                               ///< makes it present
    void Add(VPart& part, wchar_t const* text);                ///< a copy, at the end, which the part owns

private:
    class VMemStringCollection : public NODX201::VStringCollection {
    public:
        VMemStringCollection() = default;
        void Add(std::wstring const& text) { m_elements.push_back(&text); }
    };

    std::unique_ptr<VMemStringCollection> m_collection;
};

} // namespace NMemory
