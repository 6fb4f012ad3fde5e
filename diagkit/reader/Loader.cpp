// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Loader.h>

#include <algorithm>
#include <cstring>
#include <utility>

#include <diagkit/reader/Literals.h>
#include <diagkit/reader/Utf8.h>
#include <diagkit/reader/Values.h>
#include <diagkit/reader/XsiType.h>

namespace NReader {
namespace {

bool IsNumber(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

bool IsBlank(std::string_view text) {
    // There are many blanks in a row between elements.
    constexpr std::string_view kEight = "        ";
    while (text.size() >= kEight.size() && std::memcmp(text.data(), kEight.data(), kEight.size()) == 0) {
        text.remove_prefix(kEight.size());
    }
    return std::all_of(text.begin(), text.end(), [](char character) {
        return character == ' ' || character == '\n' || character == '\t' || character == '\r';
    });
}

} // namespace

NMemory::VPosition VLoader::PositionAround() const { return m_frames.back().position; }

NMemory::VPosition VLoader::Position() const {
    if (m_replayed != nullptr) {
        return *m_replayed;
    }
    VXmlPosition const position = m_parser->GetPosition();
    return {m_document, position.line, position.column};
}

void VLoader::SetModelVersion(std::string_view version) {
    std::wstring text = FromUtf8(version);
    Trim(text);
    m_modelVersion = ToUtf8(text);
    std::size_t const dot = m_modelVersion.find('.');
    std::string const major = m_modelVersion.substr(0, dot);
    std::string const minor =
        dot != std::string::npos ? m_modelVersion.substr(dot + 1, m_modelVersion.find('.', dot + 1) - dot - 1) : "";
    if (!IsNumber(major) || (dot != std::string::npos && !IsNumber(minor))) {
        Report(NCode::UnknownModelVersion,
               "MODEL-VERSION is '" + m_modelVersion +
                   "', which is not a version; the document is read according to its contents");
        return;
    }
    m_isVersion20 = major == "0" || major == "1" || (major == "2" && minor == "0");
}

void VLoader::Report(VCode const& code, std::string message) {
    m_reading.findings.Add(Position(), code, std::move(message));
}

NMemory::VReference VLoader::ReadIdReference(VAttributes const& attributes) {
    static constexpr char const* kNames[] = {"ID-REF", "DOCREF", "DOCTYPE", "REVISION"};
    for (std::size_t index = 0; index < std::size(kNames); ++index) {
        char const* const value = attributes.Find(kNames[index]);
        m_reference[index].clear();
        AppendFromUtf8(m_reference[index], value != nullptr ? value : "");
        Trim(m_reference[index]); // like the IDs and short names of their targets
    }
    if (m_reference[0].empty()) {
        Report(NCode::MissingAttribute, Quoted(m_opening) + " has no ID-REF");
    }
    if (m_isVersion20 && !m_reference[2].empty() && !IsLiteral(LiteralsOf<&Mapper::GetDoctypeStr>(), m_reference[2])) {
        Report(NCode::UnknownLiteral.As(VSeverity::Warning),
               "DOCTYPE of " + Quoted(m_opening) + " is '" + ToUtf8(m_reference[2]) + "', which is not one of " +
                   LiteralsText(LiteralsOf<&Mapper::GetDoctypeStr>()) + "; the target is looked for without it");
    }
    return NMemory::VReference::ById(m_reference[0].c_str(), m_reference[1].c_str(), m_reference[2].c_str(),
                                     m_reference[3].c_str());
}

NMemory::VReference VLoader::ReadShortNameReference(VAttributes const& attributes) {
    char const* const value = attributes.Find("SHORT-NAME");
    m_reference[0].clear();
    AppendFromUtf8(m_reference[0], value != nullptr ? value : "");
    Trim(m_reference[0]);
    if (m_reference[0].empty()) {
        Report(NCode::MissingAttribute, Quoted(m_opening) + " has no SHORT-NAME");
    }
    return NMemory::VReference::ByShortName(m_reference[0].c_str());
}

// Events

void VLoader::Start(std::string_view name, VAttributes const& attributes) {
    if (m_recordedDepth > 0) {
        ++m_recordedDepth;
        RecordStart(name, attributes);
        return;
    }
    if (m_skipped > 0) {
        ++m_skipped;
        NoteLeftOut(LocalName(name), attributes);
        return;
    }
    if (m_markupDepth > 0) {
        StartMarkup(name, attributes);
        return;
    }
    std::string_view const local = LocalName(name);
    if (m_frames.empty()) {
        StartRoot(local, attributes);
        return;
    }
    VFrame const& frame = m_frames.back();
    if (int const index = frame.type->FindRow(local, std::max(frame.lastRow, 0)); index >= 0) {
        StartRow(attributes, frame.type->rows[static_cast<std::size_t>(index)], index);
    } else {
        StartUnknown(local, attributes);
    }
}

void VLoader::StartUnknown(std::string_view name, VAttributes const& attributes) {
    if (StartBesideWrapper(name, attributes)) {
        return;
    }
    Skip(name, attributes);
    ++m_reading.unknownElements[std::string(name)];
    bool const isCategory = m_frames.size() == 1; // ODX 2.0 has one more than the model knows
    if (m_isVersion20 && !isCategory) {
        Report(NCode::UnknownChild, Quoted(m_frames.back().name) + " holds no " + Quoted(name) +
                                        " in ODX 2.0; it is ignored, with its children");
    }
}

void VLoader::StartRoot(std::string_view name, VAttributes const& attributes) {
    if (name != "ODX") {
        m_parser->Refuse(NCode::NotOdx, "the root element is '" + std::string(name) + "', not ODX");
        return;
    }
    m_rootPosition = Position();
    char const* const version = attributes.Find("MODEL-VERSION");
    if (version != nullptr) {
        SetModelVersion(version);
    } else {
        Report(NCode::MissingModelVersion, "ODX has no MODEL-VERSION; the document is read according to its contents");
    }
    m_frames.push_back({"ODX", this, &RootType(), m_rootPosition});
}

void VLoader::StartRow(VAttributes const& attributes, VRow const& row, int index) {
    if (NoteRow(m_frames.back(), row, index)) {
        Open(attributes, row, m_frames.back().object);
    } else {
        Skip(row.name, attributes);
    }
}

bool VLoader::StartBesideWrapper(std::string_view name, VAttributes const& attributes) {
    VFrame& frame = m_frames.back();
    for (std::size_t at = 0; at < frame.type->rows.size(); ++at) {
        VRow const& wrapper = frame.type->rows[at];
        bool const isWrapper = (wrapper.ownType != nullptr || wrapper.type != nullptr) && wrapper.Type().isWrapper;
        int const index = isWrapper ? wrapper.Type().FindRow(name) : -1;
        if (index < 0) {
            continue;
        }
        Report(NCode::MissingWrapper,
               Quoted(name) + " stands outside of " + Quoted(wrapper.name) + ", where it belongs");
        frame.implied |= std::uint64_t{1} << at;
        frame.choices |= wrapper.choice != 0 ? std::uint64_t{1} << wrapper.choice : 0;
        VOpened const opened = wrapper.open(*this, frame.object, wrapper, attributes);
        Open(attributes, wrapper.Type().rows[static_cast<std::size_t>(index)], opened.object);
        return true;
    }
    return false;
}

/// Whether the child is to be read: not a second one where only one counts.
bool VLoader::NoteRow(VFrame& frame, VRow const& row, int index) {
    std::uint64_t const bit = std::uint64_t{1} << index;
    std::uint64_t const choiceBit = row.choice != 0 ? std::uint64_t{1} << row.choice : 0;
    bool const isRepeated = row.occurs != Many && (frame.seen & bit) != 0;
    bool const isSecondAlternative = !isRepeated && row.occurs != Many && (frame.choices & choiceBit) != 0;
    if (isRepeated || isSecondAlternative || index < frame.lastRow) {
        ReportRow(frame, row, isRepeated, isSecondAlternative);
    }
    frame.seen |= bit;
    frame.choices |= choiceBit;
    frame.lastRow = std::max(frame.lastRow, index);
    return !isSecondAlternative && !(isRepeated && row.isFirstKept);
}

void VLoader::Open(VAttributes const& attributes, VRow const& row, void* owner) {
    m_opening = row.name;
    VOpened const opened = row.open(*this, owner, row, attributes);
    if (opened.isDeferred) {
        m_recordedDepth = 1;
        m_recordedRow = &row;
        RecordStart(row.name, attributes);
        return;
    }
    if (opened.type == nullptr) {
        Skip(row.name, attributes);
        return;
    }
    m_frames.push_back({row.name, opened.object, opened.type, Position()});
    m_text.clear();
    m_textId.clear();
    if (char const* const textId = attributes.Find("TI")) {
        AppendFromUtf8(m_textId, textId);
    }
    if (opened.type->isMarkup) {
        m_markupDepth = 1;
    }
    VKind const* const kind = ReadKind(*opened.type, attributes);
    if (kind != nullptr && kind->choose != nullptr) {
        kind->choose(opened.object);
    }
    m_frames.back().kind = kind;
    ReadAttributes(m_frames.back(), attributes);
}

/// The xsi:type; null, and reported, when the element has no such type, and null where it is not read.
VKind const* VLoader::ReadKind(VElementType const& type, VAttributes const& attributes) {
    if (type.kinds.empty()) {
        return nullptr;
    }
    std::string const xsiType = XsiType(*this, attributes);
    for (VKind const& kind : type.kinds) {
        if (kind.xsiType == xsiType) {
            return &kind;
        }
    }
    ReportUnknownType(*this, xsiType);
    return nullptr;
}

void VLoader::Skip(std::string_view name, VAttributes const& attributes) {
    m_skipped = 1;
    NoteLeftOut(name, attributes);
}

void VLoader::NoteLeftOut(std::string_view name, VAttributes const& attributes) {
    if (char const* const id = attributes.Find("ID")) {
        m_reading.idsLeftOut.emplace(id, name);
    }
}

void VLoader::ReadAttributes(VFrame const& frame, VAttributes const& attributes) {
    for (VAttributeRow const& row : frame.type->attributes) {
        char const* const value = attributes.Find(row.name);
        if (value == nullptr) {
            if (row.occurs == Required && m_isVersion20) {
                Report(NCode::MissingAttribute, Quoted(frame.name) + " has no " + row.name);
            }
            continue;
        }
        ReadValue(row.content, value);
        if (m_value.empty() && std::strcmp(row.name, "ID") == 0) {
            Report(NCode::MissingAttribute, Quoted(frame.name) + " has an empty ID");
        }
        CheckValue(row.content, row.literals, frame, row.name);
        row.set(frame.object, m_value, m_textId);
    }
}

/// The text as the model stores it, valid until the next call.
std::wstring const& VLoader::ReadValue(VContent content, std::string_view text) {
    m_value.clear();
    AppendFromUtf8(m_value, text);
    if (content != VContent::Text) {
        Trim(m_value);
    }
    return m_value;
}

void VLoader::Text(std::string_view text) {
    if (m_recordedDepth > 0) {
        Record({VEvent::VKind::Text, {}, std::string(text), {}, Position()});
        return;
    }
    if (m_skipped > 0 || m_frames.empty()) {
        return;
    }
    VFrame& frame = m_frames.back();
    if (m_markupDepth > 0) {
        if (m_isTagOpen) {
            m_text += '>';
            m_isTagOpen = false;
        }
        AppendEscaped(m_text, text);
        m_parser->LimitText(m_text.size());
    } else if (frame.type->setContent != nullptr) {
        m_text += text;
        m_parser->LimitText(m_text.size());
    } else if (!frame.hasStrayText && !IsBlank(text)) {
        frame.hasStrayText = true;
        Report(NCode::StrayText, Quoted(frame.name) + " contains text, which is ignored");
    }
}

void VLoader::End(std::string_view name) {
    if (m_recordedDepth > 0) {
        Record({VEvent::VKind::End, std::string(name), {}, {}, Position()});
        if (--m_recordedDepth == 0) {
            Replay();
        }
        return;
    }
    if (m_skipped > 0) {
        --m_skipped;
        return;
    }
    if (m_markupDepth > 1) {
        EndMarkup(name);
        return;
    }
    m_markupDepth = 0;
    VFrame const frame = m_frames.back();
    m_frames.pop_back();
    if (frame.type->setContent != nullptr) {
        TakeContent(frame);
    }
    CheckComplete(frame);
}

void VLoader::TakeContent(VFrame const& frame) {
    ReadValue(frame.type->content, m_text);
    if (m_value.empty() && std::strcmp(frame.name, "SHORT-NAME") == 0) {
        m_reading.findings.Add(frame.position, NCode::MissingChild,
                               Quoted(m_frames.back().name) + " has an empty 'SHORT-NAME'");
    }
    CheckValue(frame.type->content, frame.type->literals, frame);
    frame.type->setContent(frame.object, m_value, m_textId);
    m_text.clear();
}

void VLoader::Instruction(std::string_view name, std::string_view content) {
    if (m_recordedDepth > 0) {
        Record({VEvent::VKind::Instruction, std::string(name), std::string(content), {}, Position()});
        return;
    }
    if (m_skipped > 0) {
        return;
    }
    if (m_frames.size() <= 1) {
        m_reading.AddInstruction(FromUtf8(name), FromUtf8(content));
        return;
    }
    VFrame const& frame = m_frames.back();
    if (frame.type->addInstruction != nullptr) {
        frame.type->addInstruction(frame.object, FromUtf8(name), FromUtf8(content));
    }
}

// Markup: DESC keeps its inner tags as text.

void VLoader::StartMarkup(std::string_view name, VAttributes const& attributes) {
    if (m_isTagOpen) {
        m_text += '>';
    }
    m_text += '<';
    m_text += name;
    for (char const* const* attribute = attributes.Raw(); *attribute != nullptr; attribute += 2) {
        m_text += ' ';
        m_text += attribute[0];
        m_text += "=\"";
        AppendEscaped(m_text, attribute[1]);
        m_text += '"';
    }
    m_isTagOpen = true;
    ++m_markupDepth;
    m_parser->LimitText(m_text.size());
}

void VLoader::EndMarkup(std::string_view name) {
    if (m_isTagOpen) {
        m_text += "/>";
        m_isTagOpen = false;
    } else {
        m_text += "</";
        m_text += name;
        m_text += '>';
    }
    --m_markupDepth;
}

} // namespace NReader
