// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

/// The contents of a document of ODX, directly from its text, without code of the library.

namespace NTest {

/// An attribute or a text, such as ODX/FLASH/@ID="F" or ODX/FLASH/SHORT-NAME="Wiper".
struct VXmlValue {
    std::string path;
    std::string value;
    bool isAttribute = false;

    bool operator<(VXmlValue const& other) const {
        return path != other.path ? path < other.path : value < other.value;
    }
};

/// All attributes and texts of a well-formed document, in the order of the document. Texts are trimmed; one of only
/// white space does not count. A DESC counts as a text with its markup.
std::vector<VXmlValue> ValuesOf(std::string const& xml);

std::string Trimmed(std::string const& text); ///< without the white space around it

} // namespace NTest
