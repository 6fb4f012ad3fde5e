// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace NReader {

/// A PDX package: a zip archive. Names are UTF-8, with '/' between folders.
class VPackage {
public:
    /// Why a member is not to be read, whatever its contents.
    enum class VFault { None, LeadsOut, Superseded };

    struct VMember {
        std::string name;
        std::uint64_t index = 0;
        std::uint64_t compressedSize = 0;
        std::optional<std::uint64_t> size{}; ///< unpacked, according to the archive
        VFault fault = VFault::None;
    };

    /// The outcome of reading a member.
    enum class VOutcome { Done, Stopped, TooLarge, Broken };

    VPackage();
    ~VPackage();
    VPackage(VPackage const&) = delete;
    VPackage& operator=(VPackage const&) = delete;

    /// False when the file is not a readable archive; `error` then says why.
    bool Open(std::string const& path, std::string& error);

    /// Whether the system could not open the file or read its bytes, whatever they are.
    bool IsUnreadable() const { return m_isUnreadable; }

    /// How many members there are, documents or not.
    std::uint64_t Count() const;

    /// The ODX documents (suffix .odx, .odx-d and the like, in any case), in the order of their names. Of several with
    /// the same name the last in the archive counts, as when it is unpacked; the others are superseded.
    std::vector<VMember> const& Documents() const { return m_documents; }

    /// Passes the unpacked bytes piece by piece until `take` returns false or there were more than `limit` bytes: the
    /// size in the archive's header is not trusted. `error` says why a member is broken.
    VOutcome Read(VMember const& member, std::uint64_t limit, std::function<bool(std::string_view bytes)> const& take,
                  std::string& error);

private:
    struct VArchive;
    std::unique_ptr<VArchive> m_archive;
    std::vector<VMember> m_documents;
    bool m_isUnreadable = false;
};

/// Whether a member's name has the suffix of an ODX document.
bool IsOdxName(std::string_view name);

/// Whether a member's name, with '/' between folders, is not a path inside the package: absolute, with a drive, or with
/// a "..".
bool LeadsOut(std::string_view name);

} // namespace NReader
