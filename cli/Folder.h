// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

namespace NCli {

/// The files that a name stands for: those directly in a folder that are named like ODX documents and packages, by
/// name; otherwise itself.
std::vector<std::string> FilesOf(std::string const& name);

/// The same without the XML documents of a folder that are no ODX, such as the index of an unpacked package.
std::vector<std::string> OdxFilesOf(std::string const& name);

} // namespace NCli
