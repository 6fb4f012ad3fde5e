// SPDX-License-Identifier: Apache-2.0
#include "query/XmlContent.h"

#include <stdexcept>
#include <utility>

namespace NTest {
namespace {

std::string Decoded(std::string text) {
    static constexpr std::pair<char const*, char const*> kEntities[] = {
        {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&apos;", "'"}, {"&amp;", "&"}};
    for (auto const& [entity, character] : kEntities) {
        for (std::size_t at = text.find(entity); at != std::string::npos; at = text.find(entity, at + 1)) {
            text.replace(at, std::string(entity).size(), character);
        }
    }
    return text;
}

class VScanner {
public:
    explicit VScanner(std::string const& xml) : m_xml(xml) {}

    std::vector<VXmlValue> Scan() {
        while (m_at < m_xml.size()) {
            if (m_xml[m_at] == '<') {
                Tag();
            } else {
                m_text += m_xml[m_at++];
            }
        }
        return m_values;
    }

private:
    bool StartsWith(char const* text) const { return m_xml.compare(m_at, std::string(text).size(), text) == 0; }

    /// Returns the text up to `end`; continues after it.
    std::string UpTo(char const* end) {
        std::size_t const found = m_xml.find(end, m_at);
        if (found == std::string::npos) {
            throw std::invalid_argument("not well formed");
        }
        std::string const text = m_xml.substr(m_at, found - m_at);
        m_at = found + std::string(end).size();
        return text;
    }

    void Tag() {
        if (StartsWith("<!--")) {
            UpTo("-->");
        } else if (StartsWith("<?")) {
            UpTo("?>");
        } else if (StartsWith("</")) {
            UpTo(">");
            Text();
            m_path.erase(m_path.rfind('/'));
        } else {
            ++m_at;
            Start(UpTo(">"));
        }
    }

    void Start(std::string tag) {
        bool const isEmpty = tag.back() == '/';
        tag = isEmpty ? tag.substr(0, tag.size() - 1) : tag;
        std::string const name = tag.substr(0, tag.find_first_of(" \t\r\n"));
        m_text.clear(); // elements with children have no text of their own
        m_path += '/' + name;
        Attributes(tag.substr(name.size()));
        if (isEmpty) {
            m_path.erase(m_path.rfind('/'));
        } else if (name == "DESC") {
            m_text = Trimmed(UpTo("</DESC>"));
            m_values.push_back({m_path.substr(1), m_text});
            m_text.clear();
            m_path.erase(m_path.rfind('/'));
        }
    }

    void Attributes(std::string const& text) {
        for (std::size_t at = text.find('='); at != std::string::npos; at = text.find('=', at)) {
            std::size_t const nameStart = text.find_last_of(" \t\r\n", at) + 1;
            char const quote = text[at + 1];
            std::size_t const end = text.find(quote, at + 2);
            std::string const name = text.substr(nameStart, at - nameStart);
            m_values.push_back({m_path.substr(1) + "/@" + name, Decoded(text.substr(at + 2, end - at - 2)), true});
            at = end;
        }
    }

    void Text() {
        if (std::string const text = Trimmed(m_text); !text.empty()) {
            m_values.push_back({m_path.substr(1), Decoded(text)});
        }
        m_text.clear();
    }

    std::string const& m_xml;
    std::size_t m_at = 0;
    std::string m_path;
    std::string m_text;
    std::vector<VXmlValue> m_values;
};

} // namespace

std::string Trimmed(std::string const& text) {
    std::size_t const first = text.find_first_not_of(" \t\r\n");
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

std::vector<VXmlValue> ValuesOf(std::string const& xml) { return VScanner(xml).Scan(); }

} // namespace NTest
