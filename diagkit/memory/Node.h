// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

#include <diagkit/memory/ListPosition.h>
#include <diagkit/memory/Part.h>
#include <diagkit/model/OdxElement.h>

namespace NMemory {

using Tag = NODX201::VOdxTagEnum; ///< for the lists of template arguments

class VMemNode;

/// The position of an element in a file. Line and column count from 1; 0 means unknown, as for elements made by hand.
struct VPosition {
    std::uint32_t document = 0; ///< see `VDatabase::GetDocumentName`
    std::uint32_t line = 0;     ///< from 1
    std::uint32_t column = 0;   ///< from 1, in characters
};

/// The place of a new element.
struct VPlace {
    NODX201::VOdxObject* owner; ///< the future owner
    VPart* part;                ///< whose pool has its texts
};

/// A collection as seen by an element that leaves it.
class VMemHome {
public:
    virtual void Forget(VListPosition const& position) = 0; ///< the element there is being destroyed or moved away

protected:
    VMemHome() = default;
    ~VMemHome() = default;
};

/// The members of every element of the memory model that are not in its contract: its owner, its database, its place in
/// a collection and its position in a file. An element that is destroyed removes itself from its collection.
class VMemNode {
public:
    VMemNode(VMemNode const&) = delete;
    VMemNode& operator=(VMemNode const&) = delete;

    VDatabase& GetDatabase() const { return m_part->GetDatabase(); }
    VPosition const& GetPosition() const { return m_position; }            ///< where it was read; see `VPosition`
    void SetPosition(VPosition const& position) { m_position = position; } ///< for readers

protected:
    VMemNode(VPlace const& place, NODX201::VOdxTagEnum tag); ///< counted in, in no collection yet
    ~VMemNode();

    NODX201::VOdxObject* Owner() const { return m_owner; } ///< null for the root
    VPart& Part() const { return *m_part; }                ///< also that of its children
    wchar_t const* Store(wchar_t const* text) const;       ///< in the part's text pool

    /// Throws std::invalid_argument where the element cannot move there; see `VMemCollection::Adopt`.
    void RequireMoveTo(VMemNode const& to, NODX201::VOdxObject const& owner, NODX201::VOdxObject const& self) const;

    void NoteChange();                                                  ///< what links remember may be outdated
    void NoteRedirection();                                             ///< the same for what the resolver remembers
    void ChangeTag(NODX201::VOdxTagEnum from, NODX201::VOdxTagEnum to); ///< in the database's counts
    void CountOut(NODX201::VOdxTagEnum tag);                            ///< the element of this tag is being destroyed

private:
    template <class Collection>
    friend class VMemCollection;
    friend class VMemDiagLayerCollection;

    NODX201::VOdxObject* m_owner;
    VPart* m_part;
    VMemHome* m_home = nullptr;
    VListPosition m_place; // in its home
    VPosition m_position;
};

} // namespace NMemory
