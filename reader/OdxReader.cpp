// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/OdxReader.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <exception>
#include <filesystem>
#include <fstream>
#include <map>
#include <mutex>
#include <new>
#include <numeric>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

#include <diagkit/reader/Checks.h>
#include <diagkit/reader/Package.h>
#include <diagkit/reader/ReadDocument.h>
#include <diagkit/tools/OpResolveSnref.h>

namespace NReader {
namespace {

namespace fs = std::filesystem;

constexpr std::uint64_t kWorthAThread = 256 * 1024; // bytes of a file, packed where it is a package

/// A file that the caller named.
struct VFile {
    std::string name;
    std::uint32_t number = 0;          // of the name, for what is said of the whole file
    std::optional<VFailure> failure{}; // when there is nothing to read in it
    std::string repeated{};            // an earlier name of the same file, which is not read twice
    bool isPackage = false;
    std::uint64_t unpacked = 0; // bytes of the members read so far
    bool isTooLarge = false;    // all of them are more than a package may hold
};

/// A document to read, and what came of it.
struct VDocument {
    std::size_t file;
    std::uint32_t number; // of its name
    std::uint64_t size;   // in the file
    std::optional<VPackage::VMember> member{};
    std::unique_ptr<VDocumentReading> reading{}; // null when it could not be read
    VFindings findings{};                        // why it could not
    std::exception_ptr thrown{};
};

/// Reads all files of a call: finds the documents in them, has them read by one thread or several, and adopts what came
/// of each in the order of the files. Only the second step knows of threads.
class VSession {
public:
    VSession(VReading& reading, VReadOptions const& options) : m_reading(reading), m_options(options) {}

    /// Whether all files could be read.
    bool Read(std::vector<std::string> const& files);

private:
    friend class VWorker;

    std::string EarlierNameOf(std::string const& name);
    std::optional<VFailure> AddFile(std::string const& name);
    std::optional<VFailure> AddPackage(std::string const& name);
    void AddDocument(std::string const& name, std::uint64_t size, std::optional<VPackage::VMember> member);

    void ReadDocuments();
    void ReadDocuments(std::size_t threads);
    std::size_t CountThreads() const;
    bool IsAnyPackageTooLarge() const;

    bool AdoptFile(std::size_t file);
    bool Fail(VFile const& file, VFailure const& failure);

    VReading& m_reading;
    VReadOptions const& m_options;
    std::vector<VFile> m_files;
    std::map<fs::path, std::string> m_names; // of the files by their places
    std::vector<VDocument> m_documents;      // in the order of the files
    std::size_t m_adopted = 0;               // how many of them AdoptFile is through with
    std::uint64_t m_all = 0;

    std::mutex m_mutex; // of the files and what is done, while documents are being read
    std::uint64_t m_done = 0;
};

/// Reads documents in one thread.
class VWorker {
public:
    VWorker(VSession& session, bool isCaller) : m_session(session), m_isCaller(isCaller) {}

    void Read(VDocument& document);
    void Progress(std::uint64_t bytes);

private:
    bool TakeFile(VFile const& file, std::function<bool(std::string_view bytes)> const& take, VFailure& failure);
    void ReadMember(VDocument& document, VFile& file);
    VPackage* Package(std::size_t file, std::string& error);

    VSession& m_session;
    bool m_isCaller; // the thread that called ReadOdx
    std::size_t m_packageFile = 0;
    std::unique_ptr<VPackage> m_package; // each thread has the file open for itself
};

VFailure Unreadable(std::string const& reason) { return {{}, "unreadable", "cannot be read: " + reason}; }

VFailure FileTooLarge(VReadLimits const& limits) {
    return {{}, "too-large", OverLimit("the file is larger than", limits.maxFileSize, " bytes", "--max-file-size")};
}

/// On Windows a name that is not UTF-8 is no name of a file.
fs::path PathOf(std::string const& file) {
    try {
        return fs::u8path(file);
    } catch (std::system_error const&) {
        return {};
    }
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

/// Reads the first bytes of a file, fewer where it has fewer; what is wrong when they cannot be read.
std::optional<VFailure> ReadHead(fs::path const& path, std::string& head) {
    std::ifstream stream = Opened(path);
    char bytes[4] = {};
    stream.read(bytes, sizeof bytes);
    if (!stream.is_open() || stream.bad()) {
        return Unreadable(errno != 0 ? std::generic_category().message(errno) : "reading failed");
    }
    head.assign(bytes, static_cast<std::size_t>(stream.gcount()));
    return {};
}

bool IsLikeZip(std::string_view head) { return head == "PK\3\4" || head == "PK\5\6"; }

bool IsPackageName(std::string const& file) {
    std::string suffix = fs::u8path(file).extension().u8string();
    for (char& character : suffix) {
        character = character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
    }
    return suffix == ".pdx" || suffix == ".zip";
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

void VWorker::Progress(std::uint64_t bytes) {
    std::unique_lock<std::mutex> lock(m_session.m_mutex);
    std::uint64_t const all = m_session.m_all;
    std::uint64_t const done = std::min(m_session.m_done + bytes, all); // a document may be read again
    m_session.m_done = done;
    lock.unlock();
    if (m_isCaller && m_session.m_options.progress) {
        m_session.m_options.progress(done, all);
    }
}

void VWorker::Read(VDocument& document) {
    VFile& file = m_session.m_files[document.file];
    if (document.member) {
        ReadMember(document, file);
        return;
    }
    document.reading = ReadDocument(
        *m_session.m_reading.database, m_session.m_options, document.number,
        [&](auto const& take, VFailure& failure) { return TakeFile(file, take, failure); }, document.findings);
}

bool VWorker::TakeFile(VFile const& file, std::function<bool(std::string_view bytes)> const& take, VFailure& failure) {
    std::uint64_t const limit = m_session.m_options.maxFileSize;
    std::ifstream stream = Opened(fs::u8path(file.name));
    std::vector<char> buffer(256 * 1024);
    std::uint64_t total = 0; // a file that is no regular one, or that grows, tells no size
    while (stream) {
        stream.read(buffer.data(), static_cast<std::streamsize>(buffer.size()));
        auto const length = static_cast<std::size_t>(stream.gcount());
        Progress(length);
        total += length;
        if (total > limit) {
            failure = FileTooLarge(m_session.m_options);
            return false;
        }
        if (length > 0 && !take(std::string_view(buffer.data(), length))) {
            return true;
        }
    }
    if (stream.bad() || !stream.is_open()) {
        failure = Unreadable(errno != 0 ? std::generic_category().message(errno) : "reading failed");
        return false;
    }
    return true;
}

void VWorker::ReadMember(VDocument& document, VFile& file) {
    VReadOptions const& options = m_session.m_options;
    std::unique_lock<std::mutex> lock(m_session.m_mutex);
    if (file.isTooLarge) {
        return;
    }
    std::uint64_t const left = options.maxPackageSize - std::min(file.unpacked, options.maxPackageSize);
    lock.unlock();
    if (document.member->fault != VPackage::VFault::None) {
        VFailure const failure = FailureOf(document.member->fault);
        document.findings.Add({document.number, 0, 0}, VSeverity::Error, failure.code, failure.message);
        Progress(document.size);
        return;
    }

    VMemberLimit const memberLimit = LimitOf(*document.member, options);
    std::uint64_t const limit = std::min(memberLimit.bytes, left);
    std::uint64_t unpacked = 0; // in the last try
    bool isTooLarge = false;
    auto const unpack = [&](auto const& take, VFailure& failure) {
        std::string reason;
        VPackage* const package = Package(document.file, reason);
        if (package == nullptr) {
            failure = Unreadable(reason);
            return false;
        }
        unpacked = 0;
        VPackage::VOutcome const outcome = package->Read(
            *document.member, limit,
            [&](std::string_view bytes) {
                unpacked += bytes.size();
                return take(bytes);
            },
            reason);
        if (outcome == VPackage::VOutcome::TooLarge) {
            isTooLarge = limit < memberLimit.bytes;
            failure = isTooLarge ? VFailure() : memberLimit.failure;
        } else if (outcome == VPackage::VOutcome::Broken) {
            failure = Unreadable(reason);
        }
        return outcome == VPackage::VOutcome::Done || outcome == VPackage::VOutcome::Stopped;
    };
    document.reading = ReadDocument(*m_session.m_reading.database, options, document.number, unpack, document.findings);

    lock.lock();
    file.unpacked += unpacked;
    file.isTooLarge = file.isTooLarge || isTooLarge;
    lock.unlock();
    Progress(document.size);
}

VPackage* VWorker::Package(std::size_t file, std::string& error) {
    if (m_package == nullptr || m_packageFile != file) {
        // Archives hold local times, and what the C library does with these is not everywhere meant for threads.
        std::lock_guard<std::mutex> const lock(m_session.m_mutex);
        m_package = std::make_unique<VPackage>();
        m_packageFile = file;
        if (!m_package->Open(m_session.m_files[file].name, error)) {
            m_package.reset();
        }
    }
    return m_package.get();
}

std::uint64_t SizeOf(std::vector<VFile> const& files) {
    std::uint64_t all = 0;
    for (VFile const& file : files) {
        std::error_code error;
        std::uintmax_t const size = file.repeated.empty() ? fs::file_size(PathOf(file.name), error) : 0;
        all += error ? 0 : size;
    }
    return all;
}

bool VSession::Read(std::vector<std::string> const& files) {
    for (std::string const& name : files) {
        m_files.push_back({name});
        m_files.back().repeated = EarlierNameOf(name);
        if (m_files.back().repeated.empty()) {
            m_files.back().failure = AddFile(name);
        }
        m_files.back().number = m_reading.database->AddDocumentName(name); // what it says comes after its documents
    }
    m_all = SizeOf(m_files);
    ReadDocuments();
    bool areRead = true;
    for (std::size_t file = 0; file < m_files.size(); ++file) {
        areRead = AdoptFile(file) && areRead;
    }
    return areRead;
}

/// The name under which the call has named the same file before; "" for a new one, and for what is no plain file.
std::string VSession::EarlierNameOf(std::string const& name) {
    std::error_code error;
    fs::path const place = fs::canonical(PathOf(name), error);
    if (error || !fs::is_regular_file(place, error)) {
        return {};
    }
    auto const [known, isNew] = m_names.emplace(place, name);
    return isNew ? std::string() : known->second;
}

std::optional<VFailure> VSession::AddFile(std::string const& name) {
    std::error_code error;
    fs::path const path = PathOf(name);
    fs::file_status const status = fs::status(path, error);
    if (!fs::exists(status)) {
        return VFailure{{},
                        "no-file",
                        error && error != std::errc::no_such_file_or_directory ? "cannot be read: " + error.message()
                                                                               : "no such file"};
    }
    if (fs::is_directory(status)) {
        return VFailure{{}, "no-file", "is a folder; name the ODX documents or packages in it"};
    }
    if (fs::is_fifo(status)) {
        return VFailure{{}, "no-file", "is a pipe, which cannot be read twice; save it to a file first"};
    }
    std::string head;
    if (std::optional<VFailure> const failure = ReadHead(path, head)) {
        return failure;
    }
    // Reading tells, not the size: files of the system say to be empty and are not.
    if (IsPackageName(name) && head.empty()) {
        return VFailure{{}, "empty", "is empty"};
    }
    std::uintmax_t const told = fs::is_regular_file(status) ? fs::file_size(path, error) : 0;
    std::uintmax_t const size = error ? 0 : told;
    if (size > m_options.maxFileSize) {
        return FileTooLarge(m_options);
    }
    if (IsLikeZip(head)) {
        return AddPackage(name);
    }
    if (IsPackageName(name)) {
        return VFailure{{}, "no-package", "is no PDX package: the file is not a zip archive"};
    }
    AddDocument(name, size, {});
    return {};
}

std::optional<VFailure> VSession::AddPackage(std::string const& name) {
    m_files.back().isPackage = true;
    VPackage package;
    std::string error;
    if (!package.Open(name, error)) {
        return package.IsUnreadable() ? Unreadable(error)
                                      : VFailure{{}, "no-package", "the package cannot be read: " + error};
    }
    if (package.Count() > m_options.maxMembers) {
        return VFailure{
            {}, "too-many", OverLimit("the package has more members than", m_options.maxMembers, "", "--max-members")};
    }
    if (package.Documents().empty()) {
        return VFailure{{}, "no-package", "the package holds no ODX document (no member named .odx, .odx-d, ...)"};
    }
    for (VPackage::VMember const& member : package.Documents()) {
        AddDocument(name + '!' + member.name, member.compressedSize, member);
    }
    return {};
}

void VSession::AddDocument(std::string const& name, std::uint64_t size, std::optional<VPackage::VMember> member) {
    std::uint32_t const number = m_reading.database->AddDocumentName(name);
    m_documents.push_back({m_files.size() - 1, number, size, std::move(member)});
}

std::size_t VSession::CountThreads() const {
    std::size_t wanted = m_options.threads;
    if (wanted == 0) {
        std::uint64_t const size =
            std::accumulate(m_documents.begin(), m_documents.end(), std::uint64_t{0},
                            [](std::uint64_t sum, VDocument const& document) { return sum + document.size; });
        wanted = std::min<std::size_t>(std::thread::hardware_concurrency(), size / kWorthAThread);
    }
    return std::clamp<std::size_t>(wanted, 1, std::max<std::size_t>(m_documents.size(), 1));
}

/// What a package that is too large leaves unread, and what is said of it, depends on the order of reading. So then all
/// is read again, one after the other.
void VSession::ReadDocuments() {
    std::size_t const threads = CountThreads();
    ReadDocuments(threads);
    if (threads > 1 && IsAnyPackageTooLarge()) {
        for (VFile& file : m_files) {
            file.unpacked = 0;
            file.isTooLarge = false;
        }
        for (VDocument& document : m_documents) {
            document.reading.reset();
            document.findings = VFindings();
        }
        ReadDocuments(1);
    }
}

bool VSession::IsAnyPackageTooLarge() const {
    return std::any_of(m_files.begin(), m_files.end(), [this](VFile const& file) {
        return file.isTooLarge || file.unpacked > m_options.maxPackageSize;
    });
}

void VSession::ReadDocuments(std::size_t threads) {
    std::vector<std::size_t> order(m_documents.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    if (threads > 1) {
        // The largest first: what comes last should not take long.
        std::stable_sort(order.begin(), order.end(),
                         [this](std::size_t a, std::size_t b) { return m_documents[a].size > m_documents[b].size; });
    }
    std::atomic<std::size_t> next{0};
    std::atomic<bool> isStopped{false};
    auto const work = [&](bool isCaller) {
        VWorker worker(*this, isCaller);
        for (std::size_t index = next++; index < order.size() && !isStopped; index = next++) {
            VDocument& document = m_documents[order[index]];
            try {
                worker.Read(document);
            } catch (...) {
                document.thrown = std::current_exception();
                isStopped = true;
            }
        }
    };
    std::vector<std::thread> others;
    others.reserve(threads);
    try {
        while (others.size() + 1 < threads) {
            others.emplace_back(work, false);
        }
    } catch (std::exception const&) {
        // Those that there are suffice.
    }
    work(true);
    for (std::thread& other : others) {
        other.join();
    }
    for (VDocument const& document : m_documents) {
        if (document.thrown != nullptr) {
            std::rethrow_exception(document.thrown);
        }
    }
    if (threads > 1) {
        VWorker(*this, true).Progress(0); // what the others read last
    }
}

/// Takes in what came of the file's documents. Whether the file could be read.
bool VSession::AdoptFile(std::size_t index) {
    VFile const& file = m_files[index];
    if (file.failure) {
        return Fail(file, *file.failure);
    }
    if (!file.repeated.empty()) {
        m_reading.findings.Add({file.number, 0, 0}, VSeverity::Warning, "repeated-file",
                               "is the file '" + file.repeated + "' again, which is read once");
        return true;
    }
    bool isAnyRead = false;
    for (; m_adopted < m_documents.size() && m_documents[m_adopted].file == index; ++m_adopted) {
        VDocument& document = m_documents[m_adopted];
        if (document.reading != nullptr) {
            document.reading->AdoptInto(m_reading);
            document.reading.reset();
            isAnyRead = true;
        }
        m_reading.findings.Append(std::move(document.findings));
    }
    if (!file.isPackage) {
        return isAnyRead;
    }
    // A member that cannot be read is reported and left out; the rest is loaded.
    if (file.isTooLarge) {
        return Fail(file, {{},
                           "too-large",
                           OverLimit("the package unpacks to more than", m_options.maxPackageSize, " bytes",
                                     "--max-package-size")});
    }
    return isAnyRead || Fail(file, {{}, "no-package", "none of the documents in the package can be read"});
}

bool VSession::Fail(VFile const& file, VFailure const& failure) {
    m_reading.findings.Add({file.number, failure.position.line, failure.position.column}, VSeverity::Error,
                           failure.code, failure.message);
    return false;
}

} // namespace

VReadResult ReadOdx(std::vector<std::string> const& files, VReadOptions const& options) {
    VReading reading;
    reading.database = std::make_unique<NMemory::VDatabase>();
    reading.findings = VFindings(options.maxDiagnostics);
    reading.database->SetResolverFactory([] { return std::make_unique<NDIAGKIT::VOpResolveSnref>(); });
    bool const areRead = VSession(reading, options).Read(files);
    VReadResult result;
    result.maxDiagnostics = options.maxDiagnostics;
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
