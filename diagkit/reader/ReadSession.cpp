// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/ReadSession.h>

#include <algorithm>
#include <atomic>
#include <numeric>
#include <system_error>
#include <thread>
#include <utility>

#include <diagkit/reader/Folder.h>
#include <diagkit/reader/InputFile.h>
#include <diagkit/reader/ReadWorker.h>

namespace NReader {
namespace {

namespace fs = std::filesystem;

constexpr std::uint64_t kWorthAThread = 256 * 1024; // bytes of a file, packed where it is a package

std::uint64_t SizeOf(std::vector<VFile> const& files) {
    std::uint64_t all = 0;
    for (VFile const& file : files) {
        std::error_code error;
        std::uintmax_t const size = file.repeated.empty() ? fs::file_size(PathOf(file.name), error) : 0;
        all += error ? 0 : size;
    }
    return all;
}

} // namespace

bool VReadSession::Read(std::vector<std::string> const& files) {
    for (std::string const& fileOrFolder : files) {
        for (std::string const& file : FilesOf(fileOrFolder)) {
            Add(file);
        }
    }
    m_all = SizeOf(m_files);
    ReadDocuments();
    bool areRead = true;
    for (std::size_t file = 0; file < m_files.size(); ++file) {
        areRead = AdoptFile(file) && areRead;
    }
    return areRead;
}

void VReadSession::Add(std::string const& name) {
    m_files.push_back({name});
    m_files.back().repeated = EarlierNameOf(name);
    if (m_files.back().repeated.empty()) {
        m_files.back().failure = AddFile(name);
    }
    m_files.back().number = m_reading.database->AddDocumentName(name); // its findings come after its documents
}

/// The name under which the call has named the same file before; "" for a new one, and if it is not a regular file.
std::string VReadSession::EarlierNameOf(std::string const& name) {
    std::error_code error;
    fs::path const place = fs::canonical(PathOf(name), error);
    if (error || !fs::is_regular_file(place, error)) {
        return {};
    }
    auto const [known, isNew] = m_names.emplace(place, name);
    return isNew ? std::string() : known->second;
}

std::optional<VFailure> VReadSession::AddFile(std::string const& name) {
    VInspection const file = Inspect(name, m_options);
    if (file.failure) {
        return file.failure;
    }
    if (file.isPackage) {
        return AddPackage(name);
    }
    AddDocument(name, file.size, {});
    return {};
}

std::optional<VFailure> VReadSession::AddPackage(std::string const& name) {
    m_files.back().isPackage = true;
    VPackage package;
    std::string error;
    if (!package.Open(name, error)) {
        return package.IsUnreadable() ? Unreadable(error)
                                      : VFailure{&NCode::NoPackage, "the package cannot be read: " + error};
    }
    if (package.Count() > m_options.maxMembers) {
        return VFailure{&NCode::TooMany,
                        OverLimit("the package has more members than", m_options.maxMembers, "", "--max-members")};
    }
    if (package.Documents().empty()) {
        return VFailure{&NCode::NoPackage, "the package contains no ODX document (no member named .odx, .odx-d, ...)"};
    }
    for (VPackage::VMember const& member : package.Documents()) {
        AddDocument(name + '!' + member.name, member.compressedSize, member);
    }
    return {};
}

void VReadSession::AddDocument(std::string const& name, std::uint64_t size, std::optional<VPackage::VMember> member) {
    std::uint32_t const number = m_reading.database->AddDocumentName(name);
    m_documents.push_back({m_files.size() - 1, number, size, std::move(member)});
}

std::size_t VReadSession::CountThreads() const {
    std::size_t wanted = m_options.threads;
    if (wanted == 0) {
        std::uint64_t const size =
            std::accumulate(m_documents.begin(), m_documents.end(), std::uint64_t{0},
                            [](std::uint64_t sum, VDocument const& document) { return sum + document.size; });
        wanted = std::min<std::size_t>(std::thread::hardware_concurrency(), size / kWorthAThread);
    }
    return std::clamp<std::size_t>(wanted, 1, std::max<std::size_t>(m_documents.size(), 1));
}

/// The unread part of a package that is too large, and the findings about it, depend on the order of reading. In that
/// case everything is read again, one document after the other.
void VReadSession::ReadDocuments() {
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

bool VReadSession::IsAnyPackageTooLarge() const {
    return std::any_of(m_files.begin(), m_files.end(), [this](VFile const& file) {
        return file.isTooLarge || file.unpacked > m_options.maxPackageSize;
    });
}

void VReadSession::ReadDocuments(std::size_t threads) {
    std::vector<std::size_t> order(m_documents.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    if (threads > 1) {
        // The largest first, so that the last ones are short.
        std::stable_sort(order.begin(), order.end(),
                         [this](std::size_t a, std::size_t b) { return m_documents[a].size > m_documents[b].size; });
    }
    std::atomic<std::size_t> next{0};
    std::atomic<bool> isStopped{false};
    auto const work = [&](bool isCaller) {
        VReadWorker worker(*this, isCaller);
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
        // The existing threads are sufficient.
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
        VReadWorker(*this, true).Progress(0); // what the other threads read last
    }
}

/// Adopts the results for the file's documents. Returns whether the file could be read.
bool VReadSession::AdoptFile(std::size_t index) {
    VFile const& file = m_files[index];
    if (file.failure) {
        return Fail(file, *file.failure);
    }
    if (!file.repeated.empty()) {
        m_reading.findings.Add({file.number, 0, 0}, NCode::RepeatedFile,
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
        return Fail(file, {&NCode::TooLarge, OverLimit("the package unpacks to more than", m_options.maxPackageSize,
                                                       " bytes", "--max-package-size")});
    }
    return isAnyRead || Fail(file, {&NCode::NoPackage, "none of the documents in the package can be read"});
}

bool VReadSession::Fail(VFile const& file, VFailure const& failure) {
    m_reading.findings.Add({file.number, failure.position.line, failure.position.column}, *failure.code,
                           failure.message);
    return false;
}

} // namespace NReader
