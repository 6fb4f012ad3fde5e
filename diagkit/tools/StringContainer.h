// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <set>
#include <string>

#include <diagkit/Export.h>
#include <diagkit/tools/ExternalIterator.h>

namespace NDIAGKIT {

DIAGKIT_TEMPLATE_DECLARATION(VExternalIterator<std::set<std::wstring*>::const_iterator, std::wstring const&>);

/// A multiset of texts that can cross the library's boundary: the container owns a copy of every text added.
///
/// The order of iteration is that of the copies' addresses and therefore unspecified. A text may occur several times.
/// Not thread-safe.
class DIAGKIT_EXPORT VStringContainer {
public:
    using Set = std::set<std::wstring*>;
    using Iterator = VExternalIterator<Set::const_iterator, std::wstring const&>;
    using const_iterator = NODX201::VStandardIterator<Iterator>; ///< of `begin()`
    using iterator = const_iterator;                             ///< the same: texts do not change

    VStringContainer();
    virtual ~VStringContainer();

    /// Deletes this object, for clients that must free it on the library's side. No effect for null; a call where the
    /// pointer may be null must name the class, `container->VStringContainer::Destroy()`, because a virtual call needs
    /// an object.
    virtual void Destroy();

    VStringContainer(VStringContainer const&) = delete;
    VStringContainer& operator=(VStringContainer const&) = delete;

    std::size_t Count() const;
    bool IsEmpty() const;
    Iterator Begin() const;
    Iterator End() const;
    const_iterator begin() const { return Begin(); }
    const_iterator end() const { return End(); }

    void AddCopy(wchar_t const* text); ///< null is not a text: nothing is added

    /// The first entry, in the order of iteration, that is exactly this text; `End()` when there is none, and for
    /// null.
    Iterator Find(wchar_t const* text) const;

    /// Removes one entry of this text. Asserts when there is none, and changes nothing then.
    void Remove(wchar_t const* text);
    /// Removes the entry at the position. Asserts at `End()`, and changes nothing then.
    void Remove(Iterator iter);
    void Clear(); ///< removes all entries

    /// Whether both contain the same copies: two containers that were filled separately differ, even with the same
    /// texts; empty ones are equal.
    bool operator==(VStringContainer const& other) const;
    bool operator!=(VStringContainer const& other) const;

protected:
    void _Insert(Set::const_iterator position, wchar_t const* text); ///< `position` is a hint
    void _Remove(Set::const_iterator position);

private:
    Set m_collection;
};

} // namespace NDIAGKIT
