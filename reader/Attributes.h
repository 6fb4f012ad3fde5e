// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace NReader {

/// The part of a name behind its prefix: ODX elements are in no namespace, and prefixes in real files are accidents.
inline std::string_view LocalName(std::string_view name) {
    auto const colon = name.find(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

/// The attributes of a start tag, as the parser hands them out: names and values by turns, ended by null.
class VAttributes {
public:
    explicit VAttributes(char const* const* attributes) : m_attributes(attributes) {}

    /// The value of the attribute of this local name; null when absent.
    char const* Find(std::string_view name) const {
        for (char const* const* attribute = m_attributes; *attribute != nullptr; attribute += 2) {
            if (LocalName(*attribute) == name) {
                return attribute[1];
            }
        }
        return nullptr;
    }

    char const* const* Raw() const { return m_attributes; }

private:
    char const* const* m_attributes;
};

} // namespace NReader
