// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <diagkit/memory/Odx.h>
#include <diagkit/reader/ElementTable.h>
#include <diagkit/reader/Findings.h>
#include <diagkit/reader/OdxReader.h>
#include <diagkit/reader/XmlParser.h>

namespace NReader {

/// A reference that has been read, to be tried when everything is loaded.
struct VPendingLink {
    NMemory::VMemNode* node;
    NODX201::VLink* link;
    bool (*resolves)(NODX201::VLink& link);
};

/// A PARENT-REF without xsi:type, which takes its kind from its target when everything is loaded.
struct VPendingParentRef {
    NMemory::IMemParentRef* parentRef;
    NMemory::IMemParentRef& (*changeKind)(NMemory::IMemParentRef& parentRef, NMemory::VParentRefKind kind);
};

/// What reading several documents into one database collects.
struct VReading {
    std::unique_ptr<NMemory::VDatabase> database;
    VFindings findings;
    std::vector<VDocumentInfo> documents;
    std::map<std::string, std::size_t> unknownElements;
    std::vector<VPendingLink> links;
    std::vector<VPendingParentRef> parentRefs;
    bool keepsElements = false;
    std::vector<NODX201::VOdxElement*> elements; ///< when they are kept: all, in document order
    /// The IDs of elements that found no place in the model, with their tags: a reference to one is not to nothing.
    std::unordered_map<std::string, std::string> idsLeftOut;
};

/// Turns the events of one document into elements, along the element tables. Nothing of the document is held but the
/// elements that are open.
///
/// All that a document brings can be taken back as long as its loader lives, so that a document that breaks off leaves
/// nothing behind.
class VLoader final : public IXmlHandler {
public:
    VLoader(VReading& reading, std::uint32_t document);
    ~VLoader();

    void Start(std::string_view name, VAttributes const& attributes) override;
    void End(std::string_view name) override;
    void Text(std::string_view text) override;
    void Instruction(std::string_view name, std::string_view content) override;

    /// Whose events these are; asked for positions.
    void SetParser(VXmlParser& parser) { m_parser = &parser; }

    /// The document is complete: what it brought stays.
    void Commit();

    // For the rows of the element tables.

    NMemory::VDatabase& Database() { return *m_reading.database; }
    VReading& Reading() { return m_reading; }
    NMemory::VPosition Position() const; ///< of the tag being read
    bool IsVersion20() const { return m_isVersion20; }
    void SetModelVersion(std::string_view version);
    void AddCategory(NODX201::VReferencable& category, char const* element);
    void Report(VSeverity severity, char const* code, std::string message);
    /// An ID reference or short-name reference as its attributes say, valid until the next call.
    NMemory::VReference ReadIdReference(VAttributes const& attributes);
    NMemory::VReference ReadShortNameReference(VAttributes const& attributes);

private:
    struct VFrame {
        char const* name; // of the row
        void* object;
        VElementType const* type;
        NMemory::VPosition position;
        std::uint64_t seen = 0;    // rows met, by index
        std::uint64_t implied = 0; // wrappers that are not there, of which items are
        std::uint64_t choices = 0; // alternatives taken, by choice number
        int lastRow = -1;
        VKind const* kind = nullptr; // as the xsi:type says, where the type lists some
        bool isInferred = false;     // its kind shows from its contents
        bool hasStrayText = false;   // reported already
    };

    struct VEvent {
        enum class VKind { Start, End, Text, Instruction } kind;
        std::string name;
        std::string text;
        std::vector<std::string> attributes;
        NMemory::VPosition position;
    };

    void StartRoot(std::string_view name, VAttributes const& attributes);
    void StartRow(VAttributes const& attributes, VRow const& row, int index);
    void StartUnknown(std::string_view name, VAttributes const& attributes);
    bool StartBesideWrapper(std::string_view name, VAttributes const& attributes);
    void Open(VAttributes const& attributes, VRow const& row, void* owner);
    VKind const* ReadKind(VElementType const& type, VAttributes const& attributes);
    void CheckKind(VFrame const& frame);
    void Skip(std::string_view name, VAttributes const& attributes);
    void NoteLeftOut(std::string_view name, VAttributes const& attributes);
    bool NoteRow(VFrame& frame, VRow const& row, int index);
    void ReportRow(VFrame const& frame, VRow const& row, bool isRepeated, bool isSecondAlternative);
    void ReadAttributes(VFrame const& frame, VAttributes const& attributes);
    std::wstring const& ReadValue(VContent content, std::string_view text);
    void CheckValue(VContent content, wchar_t const* const* literals, VFrame const& frame,
                    char const* attribute = nullptr);
    void CheckComplete(VFrame const& frame);
    void TakeContent(VFrame const& frame);

    void StartMarkup(std::string_view name, VAttributes const& attributes);
    void EndMarkup(std::string_view name);

    void RecordStart(std::string_view name, VAttributes const& attributes);
    void Record(VEvent event);
    void Replay();

    VReading& m_reading;
    VXmlParser* m_parser = nullptr;
    std::uint32_t m_document;
    NMemory::VPosition m_rootPosition;
    bool m_isCommitted = false;
    bool m_isVersion20 = false; // as far as the document says
    std::string m_modelVersion;
    std::vector<std::pair<NODX201::VReferencable*, std::string>> m_categories;
    std::vector<std::pair<std::wstring, std::wstring>> m_instructions;
    std::map<std::string, std::size_t> m_unknownElements;
    std::vector<std::pair<std::string, std::string>> m_idsLeftOut;
    std::size_t m_linksBefore;
    std::size_t m_parentRefsBefore;
    std::size_t m_elementsBefore;
    std::size_t m_findingsBefore;

    std::vector<VFrame> m_frames;
    std::uint32_t m_skipped = 0; // depth inside an element that is left out
    std::string m_text;
    std::wstring m_textId;
    std::wstring m_value; // of an attribute or an element's text
    std::uint32_t m_markupDepth = 0;
    bool m_isTagOpen = false; // of markup: its start may still turn out to be empty

    std::vector<VEvent> m_recorded;
    std::uint64_t m_recordedSize = 0;
    std::uint32_t m_recordedDepth = 0;
    VRow const* m_recordedRow = nullptr; // of the element that is recorded
    NMemory::VPosition const* m_replayed = nullptr;

    std::wstring m_reference[4];
};

/// The table of the root element, which holds the categories.
VElementType const& RootType();

/// The xsi:type that fits the contents of a recorded element that has none, or one that is unknown.
std::string InferType(std::string_view name, VAttributes const& attributes, std::vector<std::string> const& childNames);

} // namespace NReader
