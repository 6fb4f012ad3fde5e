// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <diagkit/reader/ElementTable.h>

/// Queries for elements with an xsi:type.

namespace NReader {

/// The value of xsi:type without prefix and blanks; "" when absent. An attribute `type` that lacks the prefix counts,
/// and is reported.
std::string XsiType(VLoader& loader, VAttributes const& attributes);
std::string XsiTypeIn(VAttributes const& attributes); ///< the same, and reports nothing

/// Reports an xsi:type that the element does not have.
void ReportUnknownType(VLoader& loader, std::string const& type);
void ReportShortNameNotAllowed(VLoader& loader, std::string const& what);

} // namespace NReader
