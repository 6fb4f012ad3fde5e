// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace NFuzz {

/// A file for one input after the other: the reader takes paths, so that the reader is tested as users call it. It is
/// in the folder for temporary files, under a unique name, and is removed with this object. `fuzz/run` uses a folder in
/// memory.
class VScratchFile {
public:
    explicit VScratchFile(std::string const& suffix); ///< of the file's name, such as ".odx"
    ~VScratchFile();
    VScratchFile(VScratchFile const&) = delete;
    VScratchFile& operator=(VScratchFile const&) = delete;

    /// Replaces the contents. Throws `std::runtime_error` when that fails.
    void Write(std::string_view bytes);

    std::string const& Path() const { return m_path; } ///< UTF-8, as the reader requires

private:
    std::string m_path;
};

} // namespace NFuzz
