// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/OdxReader.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <new>
#include <utility>

#include <diagkit/reader/Checks.h>
#include <diagkit/reader/Loader.h>
#include <diagkit/reader/Package.h>
#include <diagkit/reader/Utf8.h>
#include <diagkit/tools/OpResolveSnref.h>

namespace NReader {
namespace {

namespace fs = std::filesystem;

struct VFailure {
    VXmlPosition position;
    std::string code; // "" when it is told elsewhere
    std::string message;
};

/// Hands out the bytes of a document from the start, as often as asked, until `take` returns false. False when reading
/// failed, with the reason in `failure`.
using VBytes = std::function<bool(std::function<bool(std::string_view bytes)> const& take, VFailure& failure)>;

/// What one try at a document came to.
struct VTry {
    bool isRead = false;
    std::string doubt{}; ///< when another encoding may help: why
    VFailure failure;
};

class VSession {
public:
    VSession(VReading& reading, VReadOptions const& options) : m_reading(reading), m_options(options) {}

    bool ReadFile(std::string const& file);
    void SetSizes(std::uint64_t all) { m_all = all; }

private:
    bool ReadPackage(std::string const& file);
    bool ReadMember(VPackage& package, VPackage::VMember const& member, std::string const& name);
    bool ReadDocument(std::string const& name, VBytes const& bytes);
    VTry TryDocument(std::uint32_t document, VBytes const& bytes, char const* encoding, bool isRepaired);
    bool Fail(std::string const& file, VFailure failure);
    void Progress(std::uint64_t bytes);

    VReading& m_reading;
    VReadOptions const& m_options;
    std::uint64_t m_packageLeft = 0;
    bool m_isPackageTooLarge = false;
    std::uint64_t m_done = 0;
    std::uint64_t m_all = 0;
};

bool VSession::Fail(std::string const& file, VFailure failure) {
    std::uint32_t const document = m_reading.database->AddDocumentName(file);
    m_reading.findings.Add({document, failure.position.line, failure.position.column}, VSeverity::Error,
                           std::move(failure.code), std::move(failure.message));
    return false;
}

void VSession::Progress(std::uint64_t bytes) {
    m_done = std::min(m_done + bytes, m_all); // a document may be read again in another encoding
    if (m_options.progress) {
        m_options.progress(m_done, m_all);
    }
}

VFailure Unreadable(std::string const& reason) { return {{}, "unreadable", "cannot be read: " + reason}; }

VFailure FileTooLarge(VReadLimits const& limits) {
    return {{}, "too-large", OverLimit("the file is larger than", limits.maxFileSize, " bytes", "--max-file-size")};
}

/// The file, opened, or a stream that failed; running out of memory says nothing about a file.
std::ifstream Opened(fs::path const& path) {
    errno = 0;
    std::ifstream stream(path, std::ios::binary);
    if (!stream && errno == ENOMEM) {
        throw std::bad_alloc();
    }
    return stream;
}

bool StartsLikeZip(fs::path const& path) {
    std::ifstream stream = Opened(path);
    char head[4] = {};
    stream.read(head, sizeof head);
    return stream.gcount() == 4 && head[0] == 'P' && head[1] == 'K' &&
           ((head[2] == 3 && head[3] == 4) || (head[2] == 5 && head[3] == 6));
}

bool IsPackageName(std::string const& file) {
    std::string suffix = fs::u8path(file).extension().u8string();
    for (char& character : suffix) {
        character = character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
    }
    return suffix == ".pdx" || suffix == ".zip";
}

bool VSession::ReadFile(std::string const& file) {
    std::error_code error;
    fs::path const path = fs::u8path(file);
    fs::file_status const status = fs::status(path, error);
    if (!fs::exists(status)) {
        return Fail(file, {{},
                           "no-file",
                           error && error != std::errc::no_such_file_or_directory ? "cannot be read: " + error.message()
                                                                                  : "no such file"});
    }
    if (fs::is_directory(status)) {
        return Fail(file, {{}, "no-file", "is a folder; name the ODX documents or packages in it"});
    }
    if (fs::is_fifo(status)) {
        return Fail(file, {{}, "no-file", "is a pipe, which cannot be read twice; save it to a file first"});
    }
    if (Opened(path).fail()) {
        return Fail(file, {{}, "unreadable", std::string("cannot be read: ") + std::strerror(errno)});
    }
    // Of other files reading tells: those of the system say to be empty and are not.
    if (IsPackageName(file) && fs::is_regular_file(status) && fs::file_size(path, error) == 0) {
        return Fail(file, {{}, "empty", "is empty"});
    }
    if (fs::is_regular_file(status) && fs::file_size(path, error) > m_options.maxFileSize) {
        return Fail(file, FileTooLarge(m_options));
    }
    if (StartsLikeZip(path)) {
        return ReadPackage(file);
    }
    if (IsPackageName(file)) {
        return Fail(file, {{}, "no-package", "is no PDX package: the file is not a zip archive"});
    }
    return ReadDocument(file, [&](auto const& take, VFailure& failure) {
        std::ifstream stream = Opened(path);
        std::vector<char> buffer(256 * 1024);
        std::uint64_t total = 0; // a file that is no regular one, or that grows, tells no size
        while (stream) {
            stream.read(buffer.data(), static_cast<std::streamsize>(buffer.size()));
            auto const length = static_cast<std::size_t>(stream.gcount());
            Progress(length);
            total += length;
            if (total > m_options.maxFileSize) {
                failure = FileTooLarge(m_options);
                return false;
            }
            if (length > 0 && !take(std::string_view(buffer.data(), length))) {
                return true;
            }
        }
        if (stream.bad() || !stream.is_open()) {
            failure = Unreadable(errno != 0 ? std::strerror(errno) : "reading failed");
            return false;
        }
        return true;
    });
}

bool VSession::ReadPackage(std::string const& file) {
    VPackage package;
    std::string error;
    if (!package.Open(file, error)) {
        return Fail(file, {{}, "no-package", "the package cannot be read: " + error});
    }
    if (package.Count() > m_options.maxMembers) {
        return Fail(file, {{},
                           "too-many",
                           OverLimit("the package has more members than", m_options.maxMembers, "", "--max-members")});
    }
    if (package.Documents().empty()) {
        return Fail(file, {{}, "no-package", "the package holds no ODX document (no member named .odx, .odx-d, ...)"});
    }
    m_packageLeft = m_options.maxPackageSize;
    m_isPackageTooLarge = false;
    bool isAnyRead = false;
    for (VPackage::VMember const& member : package.Documents()) {
        // A member that cannot be read is reported and left out; the rest is loaded.
        isAnyRead = ReadMember(package, member, file + '!' + member.name) || isAnyRead;
        Progress(member.compressedSize);
        if (m_isPackageTooLarge) {
            return Fail(file, {{},
                               "too-large",
                               OverLimit("the package unpacks to more than", m_options.maxPackageSize, " bytes",
                                         "--max-package-size")});
        }
    }
    return isAnyRead || Fail(file, {{}, "no-package", "none of the documents in the package can be read"});
}

/// How many bytes a member may unpack to, and what is wrong when there are more.
struct VMemberLimit {
    std::uint64_t bytes;
    VFailure failure;
};

VMemberLimit LimitOf(VPackage::VMember const& member, VReadLimits const& limits) {
    constexpr std::uint64_t kRatioCountsFrom = std::uint64_t{16} << 20;
    std::uint64_t const packed = std::max<std::uint64_t>(member.compressedSize, 1);
    std::uint64_t const byRatio = packed > limits.maxMemberSize / std::max<std::uint64_t>(limits.maxRatio, 1)
                                      ? limits.maxMemberSize
                                      : std::max(packed * limits.maxRatio, kRatioCountsFrom);
    if (byRatio < limits.maxMemberSize) {
        return {byRatio,
                {{},
                 "too-compressed",
                 OverLimit("the member unpacks to more than", limits.maxRatio, " times its size in the package",
                           "--max-ratio")}};
    }
    return {limits.maxMemberSize,
            {{},
             "too-large",
             OverLimit("the member unpacks to more than", limits.maxMemberSize, " bytes", "--max-member-size")}};
}

VFailure FailureOf(VPackage::VFault fault) {
    if (fault == VPackage::VFault::LeadsOut) {
        return {{}, "unsafe-name", "the member's name is no path inside the package, so the member is left out"};
    }
    return {
        {}, "duplicate-member", "another member of this name follows in the package and counts; this one is left out"};
}

bool VSession::ReadMember(VPackage& package, VPackage::VMember const& member, std::string const& name) {
    if (member.fault != VPackage::VFault::None) {
        return Fail(name, FailureOf(member.fault));
    }
    std::uint64_t const left = m_packageLeft; // the same for every try at the member
    VMemberLimit const memberLimit = LimitOf(member, m_options);
    return ReadDocument(name, [&](auto const& take, VFailure& failure) {
        std::uint64_t const limit = std::min(memberLimit.bytes, left);
        std::string reason;
        std::uint64_t unpacked = 0;
        VPackage::VOutcome const outcome = package.Read(
            member, limit,
            [&](std::string_view bytes) {
                unpacked += bytes.size();
                return take(bytes);
            },
            reason);
        m_packageLeft = left - std::min(unpacked, left);
        if (outcome == VPackage::VOutcome::TooLarge) {
            m_isPackageTooLarge = limit < memberLimit.bytes;
            failure = m_isPackageTooLarge ? VFailure() : memberLimit.failure;
        } else if (outcome == VPackage::VOutcome::Broken) {
            failure = Unreadable(reason);
        }
        return outcome == VPackage::VOutcome::Done || outcome == VPackage::VOutcome::Stopped;
    });
}

VTry VSession::TryDocument(std::uint32_t document, VBytes const& bytes, char const* encoding, bool isRepaired) {
    VLoader loader(m_reading, document);
    VXmlParser parser(loader, m_options, encoding);
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
        result.failure = {{}, "empty", "is empty"};
        return result;
    }
    if (!isParsed || !parser.Feed({}, true)) {
        VXmlError const& problem = parser.GetError();
        result.failure = {problem.position, problem.code, problem.message};
        result.doubt = isRepaired ? "" : problem.doubt;
        return result;
    }
    if (std::string const declared = parser.GetContradictedEncoding(); !declared.empty()) {
        m_reading.findings.Add({document, 1, 1}, VSeverity::Warning, "encoding",
                               "the document declares " + declared + " but has the byte order mark of " +
                                   parser.GetMarkedEncoding() + ", in which it is read");
    }
    if (VXmlPosition const place = parser.GetDoubtfulPosition(); place.line != 0) {
        m_reading.findings.Add({document, place.line, place.column}, VSeverity::Warning, "encoding",
                               "the document declares " + parser.GetDeclaredEncoding() +
                                   ", in which it is read, but all that is beyond ASCII is UTF-8, first here");
    }
    loader.Commit();
    result.isRead = true;
    return result;
}

bool VSession::ReadDocument(std::string const& name, VBytes const& bytes) {
    std::uint32_t const document = m_reading.database->AddDocumentName(name);
    VTry const first = TryDocument(document, bytes, nullptr, false);
    if (first.isRead) {
        return true;
    }
    VFailure failure = first.failure;
    if (!first.doubt.empty()) {
        // The declaration may lie: try what real files turn out to be, best first. Windows-1252 takes any bytes.
        for (char const* const encoding : {"UTF-16", "UTF-8", "windows-1252"}) {
            VTry const next = TryDocument(document, bytes, encoding, true);
            if (next.isRead) {
                m_reading.findings.Add({document, first.failure.position.line, first.failure.position.column},
                                       VSeverity::Warning, "encoding", first.doubt + "; read as " + encoding);
                return true;
            }
            if (next.failure.code != "not-xml") { // it is the encoding, and something else is wrong
                failure = next.failure;
                break;
            }
        }
    }
    if (!failure.code.empty()) {
        m_reading.findings.Add({document, failure.position.line, failure.position.column}, VSeverity::Error,
                               failure.code, failure.message);
    }
    return false;
}

std::uint64_t SizeOf(std::vector<std::string> const& files) {
    std::uint64_t all = 0;
    for (std::string const& file : files) {
        std::error_code error;
        std::uintmax_t const size = fs::file_size(fs::u8path(file), error);
        all += error ? 0 : size;
    }
    return all;
}

} // namespace

VReadResult ReadOdx(std::vector<std::string> const& files, VReadOptions const& options) {
    VReading reading;
    reading.database = std::make_unique<NMemory::VDatabase>();
    reading.keepsElements = options.keepsElements;
    reading.database->SetResolverFactory([] { return std::make_unique<NDIAGKIT::VOpResolveSnref>(); });
    VSession session(reading, options);
    session.SetSizes(SizeOf(files));

    bool areRead = true;
    for (std::string const& file : files) {
        areRead = session.ReadFile(file) && areRead;
    }
    VReadResult result;
    if (!areRead) {
        result.diagnostics = reading.findings.Sorted(*reading.database);
        return result;
    }
    FinishReading(reading);
    result.diagnostics = reading.findings.Sorted(*reading.database);
    result.documents = std::move(reading.documents);
    result.unknownElements = std::move(reading.unknownElements);
    result.elements = std::move(reading.elements);
    result.database = std::move(reading.database);
    return result;
}

} // namespace NReader
