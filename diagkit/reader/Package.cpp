// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Package.h>

#include <algorithm>
#include <cerrno>
#include <new>
#include <tuple>
#include <utility>

#include <zip.h>

#include <diagkit/reader/Ascii.h>
#include <diagkit/reader/SystemReason.h>

namespace NReader {
namespace {

/// Running out of memory is not a fault of the package. libzip may report it as bad data; the system's error number,
/// which is cleared before every call, distinguishes the two.
void RequireMemory(zip_error_t& error) {
    if (zip_error_code_zip(&error) == ZIP_ER_MEMORY || errno == ENOMEM) {
        throw std::bad_alloc();
    }
}

std::string Text(zip_error_t& error) {
    RequireMemory(error);
    // Most Windows errors have no errno value: libzip then has none, or one of its own, and no text.
    constexpr int kNumbersOfLibzip = 10000;
    int const number = zip_error_code_system(&error);
    if (zip_error_system_type(&error) == ZIP_ET_SYS && (number == 0 || number >= kNumbersOfLibzip)) {
        if (std::string reason = ReasonBeyondErrno(); !reason.empty()) {
            return reason;
        }
    }
    return zip_error_strerror(&error);
}

/// Why an archive could not be opened, and whether the reason comes from the system.
std::pair<std::string, bool> Reason(int code) {
    zip_error_t error;
    zip_error_init_with_code(&error, code);
    std::unique_ptr<zip_error_t, void (*)(zip_error_t*)> const released(&error, &zip_error_fini);
    return {Text(error), zip_error_system_type(&error) == ZIP_ET_SYS};
}

/// libzip detects a wrong size only for stored members.
std::string SizeFault(std::uint64_t unpacked, std::uint64_t said) {
    return "the member unpacks to " + std::to_string(unpacked) + " bytes, the package says " + std::to_string(said);
}

} // namespace

struct VPackage::VArchive {
    zip_t* zip = nullptr;
    ~VArchive() {
        if (zip != nullptr) {
            zip_discard(zip);
        }
    }
};

VPackage::VPackage() : m_archive(std::make_unique<VArchive>()) {}

VPackage::~VPackage() = default;

bool IsOdxName(std::string_view name) {
    auto const slash = name.find_last_of('/');
    std::string_view const file = slash == std::string_view::npos ? name : name.substr(slash + 1);
    auto const point = file.find_last_of('.');
    constexpr std::string_view kSuffix = ".odx";
    std::string_view const suffix = point == std::string_view::npos ? std::string_view() : file.substr(point);
    return suffix.size() >= kSuffix.size() &&
           std::equal(kSuffix.begin(), kSuffix.end(), suffix.begin(),
                      [](char wanted, char character) { return wanted == Lower(character); });
}

bool LeadsOut(std::string_view name) {
    bool const hasDrive = name.size() >= 2 && name[1] == ':' && Lower(name[0]) >= 'a' && Lower(name[0]) <= 'z';
    if (hasDrive || name.substr(0, 1) == "/") {
        return true;
    }
    for (std::size_t at = 0; at < name.size();) {
        std::size_t const end = std::min(name.find('/', at), name.size());
        if (name.substr(at, end - at) == "..") {
            return true;
        }
        at = end + 1;
    }
    return false;
}

std::uint64_t VPackage::Count() const {
    zip_int64_t const count = zip_get_num_entries(m_archive->zip, 0);
    return count > 0 ? static_cast<std::uint64_t>(count) : 0;
}

bool VPackage::Open(std::string const& path, std::string& error) {
    int code = 0;
    errno = 0;
    m_archive->zip = zip_open(path.c_str(), ZIP_RDONLY, &code);
    if (m_archive->zip == nullptr) {
        std::tie(error, m_isUnreadable) = Reason(code);
        if (code == ZIP_ER_NOZIP) {
            error = "the archive has no directory at its end; it is cut off or damaged";
        }
        return false;
    }
    zip_int64_t const count = zip_get_num_entries(m_archive->zip, 0);
    for (zip_int64_t index = 0; index < count; ++index) {
        zip_stat_t stat;
        errno = 0;
        if (zip_stat_index(m_archive->zip, static_cast<zip_uint64_t>(index), 0, &stat) != 0 || stat.name == nullptr) {
            RequireMemory(*zip_get_error(m_archive->zip));
            continue;
        }
        VMember member;
        member.name = stat.name;
        std::replace(member.name.begin(), member.name.end(), '\\', '/');
        member.index = static_cast<std::uint64_t>(index);
        member.compressedSize = (stat.valid & ZIP_STAT_COMP_SIZE) != 0 ? stat.comp_size : 0;
        if ((stat.valid & ZIP_STAT_SIZE) != 0) {
            member.size = stat.size;
        }
        member.fault = LeadsOut(member.name) ? VFault::LeadsOut : VFault::None;
        if (IsOdxName(member.name)) {
            m_documents.push_back(std::move(member));
        }
    }
    std::stable_sort(m_documents.begin(), m_documents.end(),
                     [](VMember const& a, VMember const& b) { return a.name < b.name; });
    for (std::size_t next = 1; next < m_documents.size(); ++next) {
        VMember& member = m_documents[next - 1];
        if (member.fault == VFault::None && member.name == m_documents[next].name) {
            member.fault = VFault::Superseded;
        }
    }
    return true;
}

VPackage::VOutcome VPackage::Read(VMember const& member, std::uint64_t limit,
                                  std::function<bool(std::string_view bytes)> const& take, std::string& error) {
    errno = 0;
    zip_file_t* const opened = zip_fopen_index(m_archive->zip, member.index, 0);
    if (opened == nullptr) {
        error = Text(*zip_get_error(m_archive->zip));
        return VOutcome::Broken;
    }
    std::unique_ptr<zip_file_t, int (*)(zip_file_t*)> const file(opened, &zip_fclose);
    std::vector<char> buffer(256 * 1024);
    std::uint64_t total = 0;
    for (;;) {
        errno = 0;
        zip_int64_t const length = zip_fread(file.get(), buffer.data(), buffer.size());
        if (length < 0) {
            error = Text(*zip_file_get_error(file.get()));
            return VOutcome::Broken;
        }
        if (length == 0) {
            bool const isAsSaid = total == member.size.value_or(total);
            error = isAsSaid ? "" : SizeFault(total, *member.size);
            return isAsSaid ? VOutcome::Done : VOutcome::Broken;
        }
        total += static_cast<std::uint64_t>(length);
        if (total > limit) {
            return VOutcome::TooLarge;
        }
        if (!take(std::string_view(buffer.data(), static_cast<std::size_t>(length)))) {
            return VOutcome::Stopped;
        }
    }
}

} // namespace NReader
