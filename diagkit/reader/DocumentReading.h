// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include <diagkit/memory/Odx.h>
#include <diagkit/reader/Findings.h>
#include <diagkit/reader/LinkQuestions.h>
#include <diagkit/reader/OdxReader.h>

namespace NReader {

/// A reference that has been read, to be resolved when everything is loaded.
struct VPendingLink {
    NMemory::VMemNode* node;
    NODX201::VLink* link;
    VLinkQuestions const* questions;
};

/// A PARENT-REF without xsi:type, which takes its kind from its target when everything is loaded.
struct VPendingParentRef {
    NMemory::IMemParentRef* parentRef;
    NMemory::IMemParentRef& (*changeKind)(NMemory::IMemParentRef& parentRef, NMemory::VParentRefKind kind);
};

/// The collected results of reading one document or several.
struct VCollected {
    VFindings findings;
    std::vector<VDocumentInfo> documents;
    std::map<std::string, std::size_t> unknownElements;
    std::vector<VPendingLink> links;
    std::vector<VPendingParentRef> parentRefs;
    bool keepsElements = false;
    std::vector<NODX201::VOdxElement*> elements; ///< when they are kept: all, in document order
    /// The IDs of elements that are not supported by the model, with their tags: a reference to one is not unresolved.
    std::unordered_map<std::string, std::string> idsLeftOut;

    void Append(VCollected&& later);
};

/// The results of reading several documents into one database.
struct VReading : VCollected {
    std::unique_ptr<NMemory::VDatabase> database;
};

/// The contents of one document. It is independent: the database has nothing of it until it is adopted, so documents
/// are read in any order, and in parallel. One that is not adopted leaves nothing behind.
class VDocumentReading : public VCollected {
public:
    VDocumentReading(NMemory::VDatabase& database, VReadOptions const& options);
    ~VDocumentReading();
    VDocumentReading(VDocumentReading const&) = delete;
    VDocumentReading& operator=(VDocumentReading const&) = delete;

    NMemory::VDatabase& Database() { return m_database; }

    /// A new category document. Its name in the table is recorded.
    template <class Category>
    Category& MakeCategory(char const* name) {
        auto made = m_database.GetMemOdx().MakeDetached<Category>(*m_part);
        Category& category = *made;
        m_categories.push_back({std::move(made), name, [](NMemory::VMemOdx& odx, VMade adopted) {
                                    odx.Adopt(std::unique_ptr<Category>(static_cast<Category*>(adopted.release())));
                                }});
        return category;
    }
    void AddInstruction(std::wstring name, std::wstring content);

    /// The document has been read to its end.
    void Complete(std::uint32_t document, NMemory::VPosition const& root, std::string const& modelVersion);

    /// Moves everything into the database, including what was collected.
    void AdoptInto(VReading& reading);

private:
    using VMade = std::unique_ptr<NODX201::VReferencable>;

    struct VCategory {
        VMade made;
        char const* name;
        void (*adopt)(NMemory::VMemOdx& odx, VMade adopted);
    };

    NMemory::VDatabase& m_database;
    std::unique_ptr<NMemory::VPart> m_part;
    std::vector<VCategory> m_categories;
    std::vector<std::pair<std::wstring, std::wstring>> m_instructions; // of the database
};

} // namespace NReader
