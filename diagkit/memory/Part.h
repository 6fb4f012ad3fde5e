// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include <diagkit/memory/TextPool.h>
#include <diagkit/model/OdxElement.h>

namespace NMemory {

class VDatabase;

/// Common to the elements of one document: the pool of their texts, and access to their database. The elements made by
/// hand at the root of a database share the database's own part; elements made inside of others belong to the part of
/// those.
///
/// A part is created detached: until `VDatabase::Adopt` takes it in, its elements are not counted, their IDs are not
/// known, and nothing they do changes the database. So documents can be read in parallel, each by one thread, and the
/// result depends only on the order of adoption.
class VPart {
public:
    explicit VPart(VDatabase& database) : m_database(database) {} ///< detached, for `VDatabase::Adopt`
    VPart(VPart const&) = delete;
    VPart& operator=(VPart const&) = delete;

    VDatabase& GetDatabase() const { return m_database; }
    bool IsDetached() const { return m_isDetached; }

    /// All elements of a detached part are about to be destroyed: they need not leave it one by one.
    void Close() { m_isClosing = true; }
    /// No more texts will be stored, or few.
    void Complete() { m_texts.ForgetShared(); }

    // For the elements of the part.

    wchar_t const* Store(std::wstring_view text) { return m_texts.Store(text); } ///< the copy in the pool
    void Index(wchar_t const* id, NODX201::VReferencable& element);              ///< at once, or when adopted
    void Unindex(wchar_t const* id, NODX201::VReferencable const& element);      ///< no effect when not indexed
    /// The copy, as long as the database lives.
    std::wstring const& StoreString(wchar_t const* text) { return m_strings.emplace_back(text); }
    void NoteChange();                                                  ///< to the database; no effect while detached
    void NoteRedirection();                                             ///< the same for the meaning of short names
    void CountIn(NODX201::VOdxTagEnum tag);                             ///< one more of the kind
    void CountOut(NODX201::VOdxTagEnum tag);                            ///< one less of the kind
    void ChangeTag(NODX201::VOdxTagEnum from, NODX201::VOdxTagEnum to); ///< one changes its kind

private:
    friend class VDatabase;

    struct VId {
        std::wstring_view id;
        NODX201::VReferencable* element;
        std::uint32_t hash;
    };

    VDatabase& m_database;
    VTextPool m_texts;
    std::deque<std::wstring> m_strings;
    bool m_isDetached = true;
    bool m_isClosing = false;
    std::vector<std::size_t> m_counts; // by tag value; while it is detached
    std::vector<VId> m_ids;            // in load order; while it is detached
};

} // namespace NMemory
