// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/ReadDocument.h>

#include <utility>

#include <diagkit/reader/Encodings.h>
#include <diagkit/reader/Loader.h>

namespace NReader {
namespace {

/// The outcome of one attempt to read a document.
struct VTry {
    std::unique_ptr<VDocumentReading> reading{}; // null when it failed
    VFailure failure{};
};

std::string Hexadecimal(unsigned char byte) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    return {'0', 'x', kDigits[byte >> 4], kDigits[byte & 15]};
}

/// Reports findings about the bytes of a document that declares a one-byte encoding.
void ReportOneByteEncoding(VXmlParser const& parser, std::uint32_t document, VFindings& findings) {
    std::string const& declared = parser.GetDeclaredEncoding();
    VXmlControl const control = parser.GetFirstControl();
    bool const isReadOtherwise = IsLatin1(declared) && control.position.line != 0;
    if (VXmlPosition const place = parser.GetDoubtfulPosition(); place.line != 0) {
        findings.Add({document, place.line, place.column}, NCode::Encoding,
                     "the document declares " + declared +
                         (isReadOtherwise ? " and is read as Windows-1252" : ", in which it is read") +
                         ", but all that is beyond ASCII is UTF-8, first here");
    } else if (control.position.line != 0) {
        findings.Add({document, control.position.line, control.position.column}, NCode::Encoding,
                     "the document declares " + declared + ", which has no character for the byte " +
                         Hexadecimal(control.byte) + ", first here; read as " +
                         (isReadOtherwise ? "Windows-1252" : "a control character"));
    }
}

void ReportEncoding(VXmlParser const& parser, std::uint32_t document, VFindings& findings) {
    if (std::string const declared = parser.GetContradictedEncoding(); !declared.empty()) {
        findings.Add({document, 1, 1}, NCode::Encoding,
                     "the document declares " + declared + " but has the byte order mark of " +
                         parser.GetMarkedEncoding() + ", in which it is read");
    }
    ReportOneByteEncoding(parser, document, findings);
}

VTry TryDocument(std::unique_ptr<VDocumentReading> reading, VReadOptions const& options, std::uint32_t document,
                 VBytes const& bytes, char const* encoding) {
    VLoader loader(*reading, document);
    VXmlParser parser(loader, options, encoding);
    loader.SetParser(parser);

    VTry result;
    bool isEmpty = true;
    bool isParsed = true;
    bool const isDelivered = bytes(
        [&](std::string_view piece) {
            isEmpty = false;
            return isParsed = parser.Feed(piece, false);
        },
        result.failure);
    if (!isDelivered) {
        return result;
    }
    if (isEmpty) {
        result.failure = {&NCode::Empty, "is empty"};
        return result;
    }
    if (!isParsed || !parser.Feed({}, true)) {
        result.failure = parser.GetError();
        return result;
    }
    ReportEncoding(parser, document, reading->findings);
    loader.Complete();
    result.reading = std::move(reading);
    return result;
}

} // namespace

std::unique_ptr<VDocumentReading> ReadDocument(NMemory::VDatabase& database, VReadOptions const& options,
                                               std::uint32_t document, VBytes const& bytes, VFindings& findings) {
    auto const tryDocument = [&](char const* encoding) {
        auto reading = std::make_unique<VDocumentReading>(database, options);
        return TryDocument(std::move(reading), options, document, bytes, encoding);
    };
    auto const at = [document](VXmlPosition const& position) {
        return NMemory::VPosition{document, position.line, position.column};
    };
    VTry first = tryDocument(nullptr);
    if (first.reading != nullptr) {
        return std::move(first.reading);
    }
    VFailure failure = first.failure;
    if (!first.failure.doubt.empty()) {
        // The declaration may be wrong: try the encodings found in real files, most likely first. Windows-1252 accepts
        // any bytes.
        for (char const* const encoding : {"UTF-16", "UTF-8", "Windows-1252"}) {
            VTry next = tryDocument(encoding);
            if (next.reading != nullptr) {
                next.reading->findings.Add(at(first.failure.position), NCode::Encoding,
                                           first.failure.doubt + "; read as " + encoding);
                return std::move(next.reading);
            }
            if (next.failure.code != &NCode::NotXml) { // the encoding is right, and something else is wrong
                failure = next.failure;
                break;
            }
        }
    }
    if (failure.code != nullptr) {
        findings.Add(at(failure.position), *failure.code, failure.message);
    }
    return nullptr;
}

} // namespace NReader
