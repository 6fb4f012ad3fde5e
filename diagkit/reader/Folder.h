// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

namespace NReader {

/// The files for a name. For a folder: the ODX documents and packages directly in it, in the order of their names:
/// those named .odx, .odx-c, -cs, -d, -e, -f, -fd, -m or -v, .pdx or .zip, and those named .xml whose root is ODX; none
/// whose name begins with a dot. For a folder without any, and for anything else, the name itself. UTF-8.
std::vector<std::string> FilesOf(std::string const& name);

/// Whether a file is named like a package: .pdx or .zip.
bool IsPackageName(std::string const& file);

} // namespace NReader
