// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <diagkit/reader/DocumentReading.h>
#include <diagkit/reader/ElementTable.h>
#include <diagkit/reader/XmlParser.h>

namespace NReader {

/// Turns the events of one document into elements, along the element tables. Only the open elements of the document are
/// kept in memory.
class VLoader final : public IXmlHandler {
public:
    VLoader(VDocumentReading& reading, std::uint32_t document) : m_reading(reading), m_document(document) {}

    void Start(std::string_view name, VAttributes const& attributes) override;
    void End(std::string_view name) override;
    void Text(std::string_view text) override;
    void Instruction(std::string_view name, std::string_view content) override;

    /// The parser that sends the events; it provides positions.
    void SetParser(VXmlParser& parser) { m_parser = &parser; }

    /// The document has been read to its end.
    void Complete() { m_reading.Complete(m_document, m_rootPosition, m_modelVersion); }

    // For the rows of the element tables.

    VDocumentReading& Reading() { return m_reading; }
    NMemory::VPosition Position() const;       ///< of the tag being read
    NMemory::VPosition PositionAround() const; ///< of the element around it
    void SetModelVersion(std::string_view version);
    void Report(VCode const& code, std::string message);
    /// An ID reference or short-name reference given by its attributes, valid until the next call.
    NMemory::VReference ReadIdReference(VAttributes const& attributes);
    NMemory::VReference ReadShortNameReference(VAttributes const& attributes);

private:
    struct VFrame {
        char const* name; // of the row
        void* object;
        VElementType const* type;
        NMemory::VPosition position;
        std::uint64_t seen = 0;    // rows met, by index
        std::uint64_t implied = 0; // wrappers that are absent although items of theirs are present
        std::uint64_t choices = 0; // alternatives taken, by choice number
        int lastRow = -1;
        VKind const* kind = nullptr; // given by xsi:type, where the type lists some
        bool isInferred = false;     // its kind follows from its contents
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
    static std::vector<std::string> ChildNames(std::vector<VEvent> const& events);
    void Replay();
    void Replay(VEvent const& event);

    VDocumentReading& m_reading;
    VXmlParser* m_parser = nullptr;
    std::uint32_t m_document;
    NMemory::VPosition m_rootPosition;
    bool m_isVersion20 = false; // if the document says so
    char const* m_opening = ""; // the element whose attributes are being read
    std::string m_modelVersion;

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

/// 'TEXT', as messages name an element.
std::string Quoted(std::string_view text);

/// The table of the root element, which contains the categories.
VElementType const& RootType();

/// The xsi:type that fits the contents of a recorded element that has none, or one that is unknown.
std::string InferType(std::string_view name, VAttributes const& attributes, std::vector<std::string> const& childNames);

} // namespace NReader
