// SPDX-License-Identifier: Apache-2.0
#include "XmlWriter.h"

#include <utility>

namespace NBench {
namespace {

constexpr std::size_t kBufferSize = 64 * 1024;

} // namespace

VXmlWriter::VXmlWriter(std::function<void(std::string_view)> sink) : m_sink(std::move(sink)) {
    m_buffer = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
}

VXmlWriter::~VXmlWriter() { m_sink(m_buffer); }

void VXmlWriter::Open(char const* name, VAttributeList attributes) {
    StartTag(name, attributes);
    m_buffer += ">\n";
    m_open.push_back(name);
}

void VXmlWriter::Close() {
    char const* const name = m_open.back();
    m_open.pop_back();
    m_buffer.append(m_open.size() * 2, ' ');
    m_buffer.append("</").append(name).append(">\n");
}

void VXmlWriter::Text(char const* name, std::string_view text, VAttributeList attributes) {
    StartTag(name, attributes);
    m_buffer += '>';
    Escape(text);
    m_buffer.append("</").append(name).append(">\n");
}

void VXmlWriter::Empty(char const* name, VAttributeList attributes) {
    StartTag(name, attributes);
    m_buffer += "/>\n";
}

void VXmlWriter::StartTag(char const* name, VAttributeList attributes) {
    if (m_buffer.size() > kBufferSize) {
        m_sink(m_buffer);
        m_buffer.clear();
    }
    m_buffer.append(m_open.size() * 2, ' ');
    m_buffer.append("<").append(name);
    for (VAttribute const& attribute : attributes) {
        if (attribute.name == nullptr) {
            continue;
        }
        m_buffer.append(" ").append(attribute.name).append("=\"");
        Escape(attribute.value);
        m_buffer += '"';
    }
}

void VXmlWriter::Escape(std::string_view text) {
    for (char const character : text) {
        switch (character) {
        case '&':
            m_buffer += "&amp;";
            break;
        case '<':
            m_buffer += "&lt;";
            break;
        case '"':
            m_buffer += "&quot;";
            break;
        default:
            m_buffer += character;
        }
    }
}

} // namespace NBench
