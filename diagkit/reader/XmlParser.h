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

/// A byte that is no character in the encoding that a document declares; line 0 where there is none.
struct VXmlControl {
    VXmlPosition position{};
    unsigned char byte = 0;
};

/// What a parser reports; texts are UTF-8 and valid during the call.
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
    VCode const* code = nullptr; ///< null when it is told elsewhere
    std::string message{};
    VXmlPosition position{};
    std::string doubt{}; ///< when another encoding may fit: what is wrong with the one that the document says
};

/// A streaming parser for one document: strict about well-formedness, without document type declarations (ODX has
/// none, and entities are a way to attack), prefixes kept as part of names.
class VXmlParser {
public:
    /// `encoding` overrides what the document says; null leaves it to the document.
    VXmlParser(IXmlHandler& handler, VReadLimits const& limits, char const* encoding);
    ~VXmlParser();
    VXmlParser(VXmlParser const&) = delete;
    VXmlParser& operator=(VXmlParser const&) = delete;

    /// What a byte order mark says, "UTF-8" or "UTF-16"; "" without one.
    char const* GetMarkedEncoding() const;
    /// The encoding that the XML declaration gives where a byte order mark says otherwise; "" elsewhere.
    std::string GetContradictedEncoding() const;

    /// Where the first character beyond ASCII stands in a document that declares a one-byte encoding and has nothing
    /// but UTF-8 there, which hardly happens by accident; line 0 elsewhere. To be asked at the end.
    VXmlPosition GetDoubtfulPosition() const;
    /// The first byte that the one-byte encoding that a document declares has no character for: in the encodings of ISO
    /// 8859 those from 0x80 to 0x9F, mostly a sign that the bytes are Windows-1252. To be asked at the end.
    VXmlControl GetFirstControl() const;
    std::string const& GetDeclaredEncoding() const;

    /// Takes the next bytes; false when the document cannot be read, `GetError()` then says why.
    bool Feed(std::string_view bytes, bool isLast);

    VFailure const& GetError() const;
    VXmlPosition GetPosition() const; ///< of what is being reported

    /// Ends parsing from within the handler with an error at the current position.
    void Refuse(VCode const& code, std::string message);

    /// Refuses when a text that the handler keeps has grown beyond its limit.
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
