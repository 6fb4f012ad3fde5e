// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

namespace NReader {

/// The part of a name after its prefix: ODX elements are in no namespace, and prefixes in real files are accidental.
inline std::string_view LocalName(std::string_view name) {
    auto const colon = name.find(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

/// The attributes of a start tag, as the parser passes them: alternating names and values, terminated by null.
class VAttributes {
public:
    explicit VAttributes(char const* const* attributes) : m_attributes(attributes) {
        for (; *attributes != nullptr && m_known < kKnown; attributes += 2) {
            char const* const colon = std::strchr(*attributes, ':');
            m_localNames[m_known++] = colon != nullptr ? colon + 1 : *attributes;
        }
    }

    bool IsEmpty() const { return *m_attributes == nullptr; }

    /// The value of the attribute of this local name; null when absent.
    char const* Find(char const* name) const {
        for (std::size_t index = 0; index < m_known; ++index) {
            if (*m_localNames[index] == *name && std::strcmp(m_localNames[index], name) == 0) {
                return m_attributes[2 * index + 1];
            }
        }
        return m_known == kKnown ? FindBehind(name) : nullptr;
    }

    char const* const* Raw() const { return m_attributes; }

private:
    static constexpr std::size_t kKnown = 16; // more than an element of ODX has

    char const* FindBehind(std::string_view name) const {
        for (char const* const* attribute = m_attributes + 2 * kKnown; *attribute != nullptr; attribute += 2) {
            if (LocalName(*attribute) == name) {
                return attribute[1];
            }
        }
        return nullptr;
    }

    char const* const* m_attributes;
    char const* m_localNames[kKnown];
    std::size_t m_known = 0;
};

} // namespace NReader
