// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace NBench {

/// Writes an XML document as a stream, one element per line, indented by two blanks. Texts and values are UTF-8 and are
/// escaped.
class VXmlWriter {
public:
    /// An attribute without a name is left out.
    struct VAttribute {
        char const* name;
        std::string_view value;
    };
    using VAttributeList = std::initializer_list<VAttribute>;

    /// `sink` takes the bytes, many at a time.
    explicit VXmlWriter(std::function<void(std::string_view)> sink);
    ~VXmlWriter();
    VXmlWriter(VXmlWriter const&) = delete;
    VXmlWriter& operator=(VXmlWriter const&) = delete;

    /// Writes an element with what `inside` writes into it.
    template <class Inside>
    void Element(char const* name, VAttributeList attributes, Inside inside) {
        Open(name, attributes);
        inside();
        Close();
    }
    template <class Inside>
    void Element(char const* name, Inside inside) {
        Element(name, {}, inside);
    }

    void Text(char const* name, std::string_view text, VAttributeList attributes = {});
    void Empty(char const* name, VAttributeList attributes);

private:
    void Open(char const* name, VAttributeList attributes);
    void Close();
    void StartTag(char const* name, VAttributeList attributes);
    void Escape(std::string_view text);

    std::function<void(std::string_view)> m_sink;
    std::string m_buffer;
    std::vector<char const*> m_open;
};

} // namespace NBench
