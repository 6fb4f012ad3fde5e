// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <map>
#include <string_view>
#include <unordered_set>

#include <diagkit/model/Reference.h>
#include <diagkit/reader/Findings.h>

namespace NReader {

/// The documents and layers that references name by DOCREF and that are not loaded, with the number of references into
/// each: who loads the rest of a database needs one line for each, not thousands.
class VMissingDocuments {
public:
    explicit VMissingDocuments(NMemory::VDatabase& database) : m_database(database) {}

    /// Counts an unresolved reference; false for one whose DOCREF is empty or names what is loaded.
    bool Take(NODX201::VOdxLink const& link, NMemory::VPosition const& position);

    /// Adds one finding for each missing document, at the first of the references into it.
    void Report(VFindings& findings) const;

private:
    struct VReferences {
        NMemory::VPosition first;
        std::uint64_t count = 0;
    };

    bool IsLoaded(std::wstring_view shortName);

    NMemory::VDatabase& m_database;
    std::unordered_set<std::wstring_view> m_loaded; // short names of documents and layers; filled when first asked for
    std::map<std::wstring_view, VReferences> m_missing; // by DOCREF
};

} // namespace NReader
