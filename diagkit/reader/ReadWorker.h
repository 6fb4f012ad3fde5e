// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include <diagkit/reader/ReadSession.h>

namespace NReader {

/// Reads documents in one thread.
class VReadWorker {
public:
    VReadWorker(VReadSession& session, bool isCaller) : m_session(session), m_isCaller(isCaller) {}

    void Read(VDocument& document);
    void Progress(std::uint64_t bytes);

private:
    bool TakeFile(VFile const& file, std::function<bool(std::string_view bytes)> const& take, VFailure& failure);
    void ReadMember(VDocument& document, VFile& file);
    VPackage* Package(std::size_t file, std::string& error);

    VReadSession& m_session;
    bool m_isCaller; // the thread that called ReadOdx
    std::size_t m_packageFile = 0;
    std::unique_ptr<VPackage> m_package; // each thread opens the file itself
};

} // namespace NReader
