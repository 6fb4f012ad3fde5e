// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/XmlParser.h>

#include <climits>
#include <exception>
#include <new>

#include <expat.h>

#include <diagkit/reader/Encodings.h>

namespace NReader {

struct VXmlParser::VState {
    XML_Parser parser = nullptr;
    IXmlHandler* handler = nullptr;
    std::uint32_t maxDepth = 0;
    std::uint32_t depth = 0;
    bool isRefused = false;
    std::exception_ptr thrown; // expat is C: exceptions of the handler travel around it
    VXmlError error;
};

namespace {

VXmlPosition PositionOf(XML_Parser parser) {
    return {static_cast<std::uint32_t>(XML_GetCurrentLineNumber(parser)),
            static_cast<std::uint32_t>(XML_GetCurrentColumnNumber(parser) + 1)};
}

} // namespace

VXmlParser::VXmlParser(IXmlHandler& handler, std::uint32_t maxDepth, char const* encoding)
    : m_state(std::make_unique<VState>()) {
    m_state->handler = &handler;
    m_state->maxDepth = maxDepth;
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
                if (++state.depth > state.maxDepth) {
                    xml.Refuse("too-deep", "elements are nested deeper than " + std::to_string(state.maxDepth));
                    return;
                }
                state.handler->Start(name, VAttributes(attributes));
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
        guarded(self, [&](VXmlParser&, VState& state) { state.handler->Instruction(name, content); });
    });
    XML_SetStartDoctypeDeclHandler(parser, [](void* self, char const*, char const*, char const*, int) {
        guarded(self, [&](VXmlParser& xml, VState&) {
            xml.Refuse("document-type", "a document type declaration is not ODX; remove it");
        });
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
    XML_Parser const parser = m_state->parser;
    do {
        std::size_t const length = bytes.size() > INT_MAX / 2 ? INT_MAX / 2 : bytes.size();
        bool const isLastPiece = isLast && length == bytes.size();
        XML_Status const status =
            XML_Parse(parser, bytes.data(), static_cast<int>(length), isLastPiece ? XML_TRUE : XML_FALSE);
        if (m_state->thrown != nullptr) {
            std::rethrow_exception(m_state->thrown);
        }
        if (status != XML_STATUS_OK) {
            if (!m_state->isRefused) {
                XML_Error const code = XML_GetErrorCode(parser);
                if (code == XML_ERROR_NO_MEMORY) {
                    throw std::bad_alloc();
                }
                m_state->error.position = PositionOf(parser);
                m_state->error.code = "not-xml";
                m_state->error.message = std::string("not well-formed XML: ") + XML_ErrorString(code);
                m_state->error.isEncoding = code == XML_ERROR_INVALID_TOKEN || code == XML_ERROR_INCORRECT_ENCODING ||
                                            code == XML_ERROR_UNKNOWN_ENCODING || code == XML_ERROR_PARTIAL_CHAR;
            }
            return false;
        }
        bytes.remove_prefix(length);
    } while (!bytes.empty());
    return true;
}

VXmlError const& VXmlParser::GetError() const { return m_state->error; }

VXmlPosition VXmlParser::GetPosition() const { return PositionOf(m_state->parser); }

void VXmlParser::Refuse(std::string code, std::string message) {
    m_state->isRefused = true;
    m_state->error = {GetPosition(), std::move(code), std::move(message), false};
    XML_StopParser(m_state->parser, XML_FALSE);
}

} // namespace NReader
