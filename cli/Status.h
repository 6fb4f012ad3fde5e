// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace NCli {

/// The exit statuses of the program; scripts rely on the values.
enum class VStatus : int {
    Done = 0,
    NotThere = 1,   ///< the requested element does not exist, or is ambiguous; of `check`: errors were found
    Usage = 2,      ///< wrong usage
    Unreadable = 3, ///< a file cannot be read, or has errors with `--strict`, or the answer cannot be written
};

} // namespace NCli
