// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace NFuzz {

/// A file that holds one input after the other: the reader takes paths, so that it is the reader as users call it that
/// is tried. It lies in the folder for temporary files, under a name of its own, and is gone with this object.
/// `fuzz/run` makes that folder one in memory.
class VScratchFile {
public:
    explicit VScratchFile(std::string const& suffix); ///< of the file's name, such as ".odx"
    ~VScratchFile();
    VScratchFile(VScratchFile const&) = delete;
    VScratchFile& operator=(VScratchFile const&) = delete;

    /// Replaces the contents. Throws `std::runtime_error` when that fails.
    void Write(std::string_view bytes);

    std::string const& Path() const { return m_path; } ///< UTF-8, as the reader wants it

private:
    std::string m_path;
};

} // namespace NFuzz
