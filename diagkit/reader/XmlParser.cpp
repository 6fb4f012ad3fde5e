// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/XmlParser.h>

#include <algorithm>
#include <climits>
#include <exception>
#include <new>

#include <expat.h>

#include <diagkit/reader/Encodings.h>

namespace NReader {

/// Watches the bytes of a document in a one-byte encoding: whether they are UTF-8, and where the first ones are that
/// show it.
class VByteWatch {
public:
    void See(std::string_view bytes, std::string const& declaredEncoding) {
        for (char const character : bytes) {
            See(static_cast<unsigned char>(character), declaredEncoding);
        }
    }

    /// The position of the first character beyond ASCII, when all of them are UTF-8.
    VXmlPosition FirstOfUtf8() const { return m_isUtf8 && m_left == 0 ? m_first : VXmlPosition(); }

    /// The first byte that the declared encoding has no character for.
    VXmlControl FirstControl() const { return m_control; }

private:
    void See(unsigned char byte, std::string const& declaredEncoding) {
        if (byte >= 0x80) {
            Note(byte, declaredEncoding);
        }
        bool const isContinued = (byte & 0xC0) == 0x80;
        m_isUtf8 = m_isUtf8 && isContinued == (m_left > 0) && (byte < 0x80 || isContinued || IsLead(byte));
        m_left = isContinued ? m_left - 1 : byte < 0xC0 ? 0 : byte < 0xE0 ? 1 : byte < 0xF0 ? 2 : 3;
        m_at = byte == '\n' ? VXmlPosition{m_at.line + 1, 1} : VXmlPosition{m_at.line, m_at.column + 1};
    }

    void Note(unsigned char byte, std::string const& declaredEncoding) {
        if (m_first.line == 0) {
            m_first = m_at;
        }
        if (byte < 0xA0 && m_control.position.line == 0 && !HasCharacter(declaredEncoding, byte)) {
            m_control = {m_at, byte};
        }
    }

    static bool IsLead(unsigned char byte) { return byte >= 0xC2 && byte <= 0xF4; }

    bool m_isUtf8 = true;
    int m_left = 0; // missing bytes of the character that has begun
    VXmlPosition m_at{1, 1};
    VXmlPosition m_first;
    VXmlControl m_control;
};

struct VXmlParser::VState {
    XML_Parser parser = nullptr;
    bool isEncodingGiven = false;
    bool isBegun = false;
    std::string head;                // the first bytes, until they show how the document begins
    char const* markedEncoding = ""; // given by a byte order mark
    std::string declaredEncoding;
    VByteWatch watch;     // for a document in a one-byte encoding
    VXmlPosition skipped; // lines, and columns of the last one, that were skipped before the XML declaration
    IXmlHandler* handler = nullptr;
    VReadLimits limits;
    std::uint64_t depth = 0;
    std::uint64_t elements = 0;
    std::uint64_t taken = 0; // bytes passed to expat
    VXmlPosition position;   // of what is being reported, once it has been asked for; line 0 before
    bool isRefused = false;
    std::exception_ptr thrown; // expat is C: exceptions of the handler are passed around it
    VFailure error;
};

namespace {

/// A byte order mark.
struct VMark {
    std::string_view bytes;
    char const* name;     // for messages
    char const* encoding; // for expat
};

constexpr VMark kMarks[] = {
    {"\xEF\xBB\xBF", "UTF-8", "UTF-8"}, {"\xFE\xFF", "UTF-16", "UTF-16BE"}, {"\xFF\xFE", "UTF-16", "UTF-16LE"}};

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::string_view kDeclaration = "<?xml";
constexpr std::size_t kLongestHead = 64 * 1024; // the parser checks anything beyond it

bool StartsWith(std::string_view text, std::string_view start) { return text.substr(0, start.size()) == start; }

/// The position of the first thing that is neither a blank nor a comment; the end when there is none.
std::size_t StartOfMarkup(std::string_view head) {
    std::size_t start = 0;
    while (true) {
        start = std::min(head.find_first_not_of(kBlanks, start), head.size());
        if (!StartsWith(head.substr(start), "<!--")) {
            return start;
        }
        std::size_t const end = head.find("-->", start + 4);
        if (end == std::string_view::npos) {
            return head.size();
        }
        start = end + 3;
    }
}

bool IsDeclaration(std::string_view text) {
    return StartsWith(text, kDeclaration) && text.size() > kDeclaration.size() &&
           kBlanks.find(text[kDeclaration.size()]) != std::string_view::npos;
}

/// Whether the bytes suffice to show how a document begins: byte order mark, blanks and comments, XML declaration.
bool IsHeadComplete(std::string_view head) {
    std::string_view const markup = head.substr(StartOfMarkup(head));
    return markup.size() > kDeclaration.size() &&
           (!IsDeclaration(markup) || markup.find("?>") != std::string_view::npos);
}

/// The encoding in a text that begins with an XML declaration; "" where it gives none. Errors in it are left to the
/// parser.
std::string DeclaredEncoding(std::string_view text) {
    constexpr std::string_view kName = "encoding";
    std::string_view const declaration = text.substr(0, text.find("?>"));
    std::size_t const name = declaration.find(kName);
    std::size_t const start = name != std::string_view::npos ? declaration.find_first_of("\"'", name) : name;
    std::size_t const end = start != std::string_view::npos ? declaration.find(declaration[start], start + 1) : start;
    return end != std::string_view::npos ? std::string(declaration.substr(start + 1, end - start - 1)) : std::string();
}

/// The same of bytes that may be UTF-16.
std::string DeclaredEncodingOf(std::string_view head, bool isUtf16) {
    constexpr std::size_t kLongest = 1024;
    std::string text(isUtf16 ? head.substr(0, kLongest) : head);
    if (isUtf16) {
        text.erase(std::remove(text.begin(), text.end(), '\0'), text.end());
    }
    return IsDeclaration(text) ? DeclaredEncoding(text) : std::string();
}

/// The extent of a text: the line ends in it, and the characters after the last one.
VXmlPosition ExtentOf(std::string_view text) {
    VXmlPosition extent;
    for (std::size_t index = 0; index < text.size(); ++index) {
        bool const isFirstOfPair = text[index] == '\r' && text.substr(index + 1, 1) == "\n";
        bool const isLineEnd = text[index] == '\r' || text[index] == '\n';
        if (isLineEnd && !isFirstOfPair) {
            extent = {extent.line + 1, 0};
        } else if (!isLineEnd) {
            ++extent.column;
        }
    }
    return extent;
}

/// The error message, with a hint where expat's own text does not help.
std::string MessageOf(XML_Error code, std::string const& declaredEncoding) {
    if (code == XML_ERROR_UNKNOWN_ENCODING) {
        return "the encoding '" + declaredEncoding.substr(0, 100) + "' is unknown; known are " + KnownEncodings();
    }
    if (code == XML_ERROR_INVALID_TOKEN) {
        return "invalid token"; // expat's own text says first that the document is not well-formed
    }
    std::string const message = XML_ErrorString(code);
    return code == XML_ERROR_MISPLACED_XML_PI ? message + "; remove what stands before the declaration" : message;
}

std::string DoubtOf(XML_Error code, std::string const& message, bool isKnown) {
    constexpr char const* kOtherBytes =
        "the bytes are not in the encoding that the document declares (UTF-8 where it declares none)";
    switch (code) {
    case XML_ERROR_UNKNOWN_ENCODING:
        return isKnown ? kOtherBytes : message;
    case XML_ERROR_INVALID_TOKEN:
    case XML_ERROR_INCORRECT_ENCODING:
    case XML_ERROR_PARTIAL_CHAR:
        return kOtherBytes;
    default:
        return {};
    }
}

} // namespace

VXmlParser::VXmlParser(IXmlHandler& handler, VReadLimits const& limits, char const* encoding)
    : m_state(std::make_unique<VState>()) {
    m_state->handler = &handler;
    m_state->limits = limits;
    m_state->isEncodingGiven = encoding != nullptr;
    m_state->parser = XML_ParserCreate(encoding);
    if (m_state->parser == nullptr) {
        throw std::bad_alloc();
    }
    XML_Parser const parser = m_state->parser;
    XML_SetUserData(parser, this);

    // Runs one piece of the handler; after a refusal or an exception the rest of what expat has parsed is dropped.
    static auto const guarded = [](void* self, auto run) {
        auto& xml = *static_cast<VXmlParser*>(self);
        VState& state = *xml.m_state;
        if (state.isRefused) {
            return;
        }
        state.position = {};
        try {
            run(xml, state);
        } catch (...) {
            state.thrown = std::current_exception();
            state.isRefused = true;
            XML_StopParser(state.parser, XML_FALSE);
        }
    };

    XML_SetElementHandler(
        parser,
        [](void* self, char const* name, char const** attributes) {
            guarded(self, [&](VXmlParser& xml, VState& state) {
                if (xml.IsStartWithinLimits(name, attributes)) {
                    state.handler->Start(name, VAttributes(attributes));
                }
            });
        },
        [](void* self, char const* name) {
            guarded(self, [&](VXmlParser&, VState& state) {
                --state.depth;
                state.handler->End(name);
            });
        });
    XML_SetCharacterDataHandler(parser, [](void* self, char const* text, int length) {
        guarded(self, [&](VXmlParser&, VState& state) {
            state.handler->Text(std::string_view(text, static_cast<std::size_t>(length)));
        });
    });
    XML_SetProcessingInstructionHandler(parser, [](void* self, char const* name, char const* content) {
        guarded(self, [&](VXmlParser& xml, VState& state) {
            if (xml.IsTagWithinLimit(static_cast<std::uint64_t>(XML_GetCurrentByteCount(state.parser)))) {
                state.handler->Instruction(name, content);
            }
        });
    });
    XML_SetCommentHandler(parser, [](void* self, char const*) {
        guarded(self, [](VXmlParser& xml, VState& state) {
            xml.IsTagWithinLimit(static_cast<std::uint64_t>(XML_GetCurrentByteCount(state.parser)));
        });
    });
    XML_SetStartDoctypeDeclHandler(parser, [](void* self, char const*, char const*, char const*, int) {
        guarded(self, [&](VXmlParser& xml, VState&) {
            xml.Refuse(NCode::DocumentType, "a document type declaration is not ODX; remove it");
        });
    });
    XML_SetXmlDeclHandler(parser, [](void* self, char const*, char const* declared, int) {
        guarded(self,
                [&](VXmlParser&, VState& state) { state.declaredEncoding = declared != nullptr ? declared : ""; });
    });
    XML_SetUnknownEncodingHandler(
        parser,
        [](void*, char const* name, XML_Encoding* info) -> int {
            return FillEncoding(name, info->map) ? XML_STATUS_OK : XML_STATUS_ERROR;
        },
        nullptr);
}

VXmlParser::~VXmlParser() { XML_ParserFree(m_state->parser); }

bool VXmlParser::Feed(std::string_view bytes, bool isLast) {
    if (m_state->isBegun) {
        return Parse(bytes, isLast);
    }
    m_state->head += bytes;
    if (!isLast && m_state->head.size() < kLongestHead && !IsHeadComplete(m_state->head)) {
        return true;
    }
    m_state->isBegun = true;
    std::string const head = std::move(m_state->head);
    return Parse(Begin(head), isLast);
}

/// Decides on the encoding by a byte order mark, which has precedence over the declaration, and skips blanks and
/// comments before an XML declaration, which expat does not accept.
std::string_view VXmlParser::Begin(std::string_view head) {
    VState& state = *m_state;
    for (VMark const& mark : kMarks) {
        if (!StartsWith(head, mark.bytes)) {
            continue;
        }
        state.markedEncoding = mark.name;
        head.remove_prefix(mark.bytes.size());
        if (!state.isEncodingGiven) {
            XML_SetEncoding(state.parser, mark.encoding);
        }
    }
    std::size_t const start = StartOfMarkup(head);
    if (start > 0 && IsDeclaration(head.substr(start))) {
        state.skipped = ExtentOf(head.substr(0, start));
        head.remove_prefix(start);
    }
    if (!state.isEncodingGiven && *state.markedEncoding == '\0') {
        ObeyDeclaration(head);
    }
    return head;
}

/// Translates names of encodings that expat does not know. One that contradicts the first bytes is left for expat to
/// refuse.
void VXmlParser::ObeyDeclaration(std::string_view head) {
    bool const isUtf16 = head.substr(0, 2).find('\0') != std::string_view::npos;
    std::string_view const encoding = EncodingOf(DeclaredEncodingOf(head, isUtf16));
    if (!encoding.empty() && StartsWith(encoding, "UTF-16") == isUtf16) {
        XML_SetEncoding(m_state->parser, std::string(encoding).c_str());
    }
}

/// Whether the document itself declares a one-byte encoding.
bool VXmlParser::IsInOneByteEncoding() const {
    std::string const& declared = m_state->declaredEncoding;
    bool const isDeclared = !declared.empty() && !m_state->isEncodingGiven && *m_state->markedEncoding == '\0';
    return isDeclared && IsOneByteEncoding(EncodingOf(declared));
}

bool VXmlParser::Parse(std::string_view bytes, bool isLast) {
    XML_Parser const parser = m_state->parser;
    do {
        std::size_t const length = bytes.size() > INT_MAX / 2 ? INT_MAX / 2 : bytes.size();
        bool const isLastPiece = isLast && length == bytes.size();
        XML_Status const status =
            XML_Parse(parser, bytes.data(), static_cast<int>(length), isLastPiece ? XML_TRUE : XML_FALSE);
        m_state->position = {}; // findings reported now are not at an event
        if (m_state->thrown != nullptr) {
            std::rethrow_exception(m_state->thrown);
        }
        if (status != XML_STATUS_OK) {
            return Fail();
        }
        m_state->taken += length;
        if (IsInOneByteEncoding()) {
            m_state->watch.See(bytes.substr(0, length), m_state->declaredEncoding);
        }
        if (!isLastPiece && !AreLeftBytesWithinLimit()) {
            return false;
        }
        bytes.remove_prefix(length);
    } while (!bytes.empty());
    return true;
}

/// Notes what expat stopped at, where the handler has not refused already.
bool VXmlParser::Fail() {
    if (m_state->isRefused) {
        return false;
    }
    XML_Error const code = XML_GetErrorCode(m_state->parser);
    if (code == XML_ERROR_NO_MEMORY) {
        throw std::bad_alloc();
    }
    std::string const& declared = m_state->declaredEncoding;
    std::string const message = MessageOf(code, declared);
    m_state->error = {&NCode::NotXml, "not well-formed XML: " + message, GetPosition(),
                      DoubtOf(code, message, !EncodingOf(declared).empty())};
    return false;
}

bool VXmlParser::IsStartWithinLimits(std::string_view name, char const* const* attributes) {
    VState& state = *m_state;
    if (++state.depth > state.limits.maxDepth) {
        Refuse(NCode::TooDeep, OverLimit("elements are nested deeper than", state.limits.maxDepth, "", "--max-depth"));
        return false;
    }
    if (++state.elements > state.limits.maxElements) {
        Refuse(NCode::TooMany,
               OverLimit("the document has more elements than", state.limits.maxElements, "", "--max-elements"));
        return false;
    }
    std::uint64_t count = 0;
    while (attributes[2 * count] != nullptr) {
        ++count;
    }
    if (count > state.limits.maxAttributes) {
        Refuse(NCode::TooMany, OverLimit("'" + std::string(name.substr(0, 100)) + "' has more attributes than",
                                         state.limits.maxAttributes, "", "--max-attributes"));
        return false;
    }
    return IsTagWithinLimit(static_cast<std::uint64_t>(XML_GetCurrentByteCount(state.parser)));
}

bool VXmlParser::IsTagWithinLimit(std::uint64_t size) {
    std::uint64_t const limit = m_state->limits.maxTagSize;
    if (size > limit) {
        Refuse(NCode::TooLarge,
               OverLimit("a tag, comment or processing instruction is longer than", limit, " bytes", "--max-tag-size"));
    }
    return size <= limit;
}

/// Bytes that expat has received and not reported yet belong to one tag, or follow one: while expat waits for the end
/// of a tag it parses again only when the number of bytes has doubled.
bool VXmlParser::AreLeftBytesWithinLimit() {
    XML_Index const reached = XML_GetCurrentByteIndex(m_state->parser);
    std::uint64_t const left = m_state->taken - static_cast<std::uint64_t>(std::max<XML_Index>(reached, 0));
    return left / 2 <= m_state->limits.maxTagSize || IsTagWithinLimit(left);
}

void VXmlParser::LimitText(std::uint64_t size) {
    std::uint64_t const limit = m_state->limits.maxTextSize;
    if (size > limit) {
        Refuse(NCode::TooLarge, OverLimit("a text is longer than", limit, " bytes", "--max-text-size"));
    }
}

VFailure const& VXmlParser::GetError() const { return m_state->error; }

/// The position in the document for one in the text after the part skipped at its start.
VXmlPosition VXmlParser::Placed(VXmlPosition const& position) const {
    VXmlPosition const& skipped = m_state->skipped;
    return {position.line + skipped.line, position.line == 1 ? position.column + skipped.column : position.column};
}

VXmlPosition VXmlParser::GetPosition() const {
    VXmlPosition& position = m_state->position;
    if (position.line == 0) {
        auto const line = static_cast<std::uint32_t>(XML_GetCurrentLineNumber(m_state->parser));
        auto const column = static_cast<std::uint32_t>(XML_GetCurrentColumnNumber(m_state->parser) + 1);
        position = Placed({line, column});
    }
    return position;
}

std::string VXmlParser::GetContradictedEncoding() const {
    std::string const& declared = m_state->declaredEncoding;
    bool const isContradicted = *m_state->markedEncoding != '\0' && !m_state->isEncodingGiven && !declared.empty() &&
                                !StartsWith(EncodingOf(declared), m_state->markedEncoding);
    return isContradicted ? declared : std::string();
}

std::string const& VXmlParser::GetDeclaredEncoding() const { return m_state->declaredEncoding; }

VXmlPosition VXmlParser::GetDoubtfulPosition() const {
    VXmlPosition const first = m_state->watch.FirstOfUtf8();
    return first.line != 0 ? Placed(first) : first;
}

VXmlControl VXmlParser::GetFirstControl() const {
    VXmlControl const first = m_state->watch.FirstControl();
    return first.position.line != 0 ? VXmlControl{Placed(first.position), first.byte} : first;
}

char const* VXmlParser::GetMarkedEncoding() const { return m_state->markedEncoding; }

void VXmlParser::Refuse(VCode const& code, std::string message) {
    if (m_state->isRefused) {
        return;
    }
    m_state->isRefused = true;
    m_state->error = {&code, std::move(message), GetPosition()};
    XML_StopParser(m_state->parser, XML_FALSE);
}

} // namespace NReader
