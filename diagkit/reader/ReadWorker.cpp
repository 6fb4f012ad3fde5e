// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/ReadWorker.h>

#include <algorithm>
#include <fstream>
#include <mutex>
#include <vector>

#include <diagkit/reader/InputFile.h>

namespace NReader {
namespace {

/// How many bytes a member may unpack to, and the failure when there are more.
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
                {&NCode::TooCompressed, OverLimit("the member unpacks to more than", limits.maxRatio,
                                                  " times its size in the package", "--max-ratio")}};
    }
    return {limits.maxMemberSize,
            {&NCode::TooLarge,
             OverLimit("the member unpacks to more than", limits.maxMemberSize, " bytes", "--max-member-size")}};
}

VFailure FailureOf(VPackage::VFault fault) {
    if (fault == VPackage::VFault::LeadsOut) {
        return {&NCode::UnsafeName, "the member's name is not a path inside the package, so the member is ignored"};
    }
    return {&NCode::DuplicateMember,
            "a later member of the package has the same name and is used; this one is ignored"};
}

} // namespace

void VReadWorker::Progress(std::uint64_t bytes) {
    std::unique_lock<std::mutex> lock(m_session.m_mutex);
    std::uint64_t const all = m_session.m_all;
    std::uint64_t const done = std::min(m_session.m_done + bytes, all); // a document may be read again
    m_session.m_done = done;
    lock.unlock();
    if (m_isCaller && m_session.m_options.progress) {
        m_session.m_options.progress(done, all);
    }
}

void VReadWorker::Read(VDocument& document) {
    VFile& file = m_session.m_files[document.file];
    if (document.member) {
        ReadMember(document, file);
        return;
    }
    document.reading = ReadDocument(
        *m_session.m_reading.database, m_session.m_options, document.number,
        [&](auto const& take, VFailure& failure) { return TakeFile(file, take, failure); }, document.findings);
}

bool VReadWorker::TakeFile(VFile const& file, std::function<bool(std::string_view bytes)> const& take,
                           VFailure& failure) {
    std::uint64_t const limit = m_session.m_options.maxFileSize;
    std::ifstream stream = Opened(std::filesystem::u8path(file.name));
    std::vector<char> buffer(256 * 1024);
    std::uint64_t total = 0; // unknown for a file that is not a regular one, or that grows
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
        failure = UnreadableStream();
        return false;
    }
    return true;
}

void VReadWorker::ReadMember(VDocument& document, VFile& file) {
    VReadOptions const& options = m_session.m_options;
    std::unique_lock<std::mutex> lock(m_session.m_mutex);
    if (file.isTooLarge) {
        return;
    }
    std::uint64_t const left = options.maxPackageSize - std::min(file.unpacked, options.maxPackageSize);
    lock.unlock();
    if (document.member->fault != VPackage::VFault::None) {
        VFailure const failure = FailureOf(document.member->fault);
        document.findings.Add({document.number, 0, 0}, *failure.code, failure.message);
        Progress(document.size);
        return;
    }

    VMemberLimit const memberLimit = LimitOf(*document.member, options);
    std::uint64_t const limit = std::min(memberLimit.bytes, left);
    std::uint64_t unpacked = 0; // in the last attempt
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

VPackage* VReadWorker::Package(std::size_t file, std::string& error) {
    if (m_package == nullptr || m_packageFile != file) {
        // Archives contain local times, and the functions of the C library for these are not thread-safe everywhere.
        std::lock_guard<std::mutex> const lock(m_session.m_mutex);
        m_package = std::make_unique<VPackage>();
        m_packageFile = file;
        if (!m_package->Open(m_session.m_files[file].name, error)) {
            m_package.reset();
        }
    }
    return m_package.get();
}

} // namespace NReader
