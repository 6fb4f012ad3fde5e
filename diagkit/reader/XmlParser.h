// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include <diagkit/reader/Attributes.h>
#include <diagkit/reader/Codes.h>
#include <diagkit/reader/Limits.h>

namespace NReader {

/// A place in a document; both count from 1.
struct VXmlPosition {
    std::uint32_t line = 0;
    std::uint32_t column = 0;
};

/// A byte that is not a character in the encoding that a document declares; line 0 where there is none.
struct VXmlControl {
    VXmlPosition position{};
    unsigned char byte = 0;
};

/// The events of a parser; texts are UTF-8 and valid during the call.
class IXmlHandler {
public:
    virtual void Start(std::string_view name, VAttributes const& attributes) = 0;
    virtual void End(std::string_view name) = 0;
    virtual void Text(std::string_view text) = 0; ///< in pieces
    virtual void Instruction(std::string_view name, std::string_view content) = 0;

protected:
    IXmlHandler() = default;
    ~IXmlHandler() = default;
};

/// Why a document cannot be read.
struct VFailure {
    VCode const* code = nullptr; ///< null when it is reported elsewhere
    std::string message{};
    VXmlPosition position{};
    std::string doubt{}; ///< when another encoding may fit: what is wrong with the declared one
};

/// A streaming parser for one document: strict about well-formedness, without document type declarations (ODX has none,
/// and entities allow attacks), prefixes kept as part of names.
class VXmlParser {
public:
    /// `encoding` overrides the declaration of the document; null leaves the declaration in effect.
    VXmlParser(IXmlHandler& handler, VReadLimits const& limits, char const* encoding);
    ~VXmlParser();
    VXmlParser(VXmlParser const&) = delete;
    VXmlParser& operator=(VXmlParser const&) = delete;

    /// The encoding given by a byte order mark, "UTF-8" or "UTF-16"; "" without one.
    char const* GetMarkedEncoding() const;
    /// The encoding in the XML declaration where a byte order mark contradicts it; "" elsewhere.
    std::string GetContradictedEncoding() const;

    /// The position of the first character beyond ASCII in a document that declares a one-byte encoding and contains
    /// nothing but UTF-8 there, which is unlikely to be an accident; line 0 elsewhere. Call it at the end.
    VXmlPosition GetDoubtfulPosition() const;
    /// The first byte for which the declared one-byte encoding has no character: in the encodings of ISO 8859 those
    /// from 0x80 to 0x9F, usually a sign that the bytes are Windows-1252. Call it at the end.
    VXmlControl GetFirstControl() const;
    std::string const& GetDeclaredEncoding() const;

    /// Parses the next bytes; false when the document cannot be read, `GetError()` then says why.
    bool Feed(std::string_view bytes, bool isLast);

    VFailure const& GetError() const;
    VXmlPosition GetPosition() const; ///< of what is being reported

    /// Ends parsing from within the handler with an error at the current position.
    void Refuse(VCode const& code, std::string message);

    /// Refuses when a text that the handler keeps exceeds its limit.
    void LimitText(std::uint64_t size);

private:
    std::string_view Begin(std::string_view head);
    void ObeyDeclaration(std::string_view head);
    bool Parse(std::string_view bytes, bool isLast);
    bool IsStartWithinLimits(std::string_view name, char const* const* attributes);
    bool IsTagWithinLimit(std::uint64_t size);
    bool AreLeftBytesWithinLimit();
    bool IsInOneByteEncoding() const;
    VXmlPosition Placed(VXmlPosition const& position) const;
    bool Fail();

    struct VState;
    std::unique_ptr<VState> m_state;
};

} // namespace NReader
