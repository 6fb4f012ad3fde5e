// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

#include <cli/Output.h>

namespace NCli {

/// Writes a JSON document as a stream, and keeps nothing of it: the output uses no memory however large it is. The
/// contents of an object or array are written by a function that is called in between, so every bracket is closed.
///
///     WriteJson(output, [&entries](VJsonWriter& json) {
///         json.Object([&] {
///             json.Member("count", entries.size());
///             json.ArrayOf("entries", entries, [&](auto const* entry) { WriteEntry(json, *entry); });
///         });
///     });
///
/// Texts are UTF-8; invalid bytes become U+FFFD. Characters that control a terminal or change the direction of text are
/// escaped, and no others except those that JSON itself requires to be escaped.
class VJsonWriter {
public:
    enum class VForm {
        Indented, ///< a line for each member and item, two blanks per level
        Line,     ///< all in one line, without blanks
    };

    VJsonWriter(VOutput& output, VForm form) : m_output(output), m_isIndented(form == VForm::Indented) {}

    template <class Write>
    void Object(Write write) {
        Open("{");
        write();
        Close("}");
    }

    template <class Write>
    void Object(std::string_view name, Write write) {
        Name(name);
        Object(write);
    }

    /// An array as a member; `write` writes its items.
    template <class Write>
    void Array(std::string_view name, Write write) {
        Name(name);
        Open("[");
        write();
        Close("]");
    }

    /// The same with an item for each of a range.
    template <class Items, class WriteItem>
    void ArrayOf(std::string_view name, Items const& items, WriteItem writeItem) {
        Array(name, [&] {
            for (auto const& item : items) {
                writeItem(item);
            }
        });
    }

    template <class Content>
    void Member(std::string_view name, Content const& content) {
        Name(name);
        Value(content);
    }

    /// A text as a member; null for "".
    void TextOrNull(std::string_view name, std::string_view text);
    void TextOrNull(std::string_view name, std::wstring_view text);

    /// The name of a member, whose value is written next.
    void Name(std::string_view name);

    void Value(std::nullptr_t);
    void Value(std::string_view text);
    void Value(std::wstring_view text);

    template <class Number, std::enable_if_t<std::is_integral_v<Number>, int> = 0>
    void Value(Number number) {
        if constexpr (std::is_same_v<Number, bool>) {
            WriteWord(number ? "true" : "false");
        } else if constexpr (std::is_signed_v<Number>) {
            WriteNumber(std::int64_t{number});
        } else {
            WriteNumber(std::uint64_t{number});
        }
    }

private:
    void Open(std::string_view bracket);
    void Close(std::string_view bracket);
    void WriteWord(std::string_view word);
    void WriteNumber(std::int64_t number);
    void WriteNumber(std::uint64_t number);
    void WriteText(std::string_view text);
    void StartEntry();
    void StartValue();
    void StartLine();

    VOutput& m_output;
    bool m_isIndented;
    std::size_t m_depth = 0;
    bool m_isFirst = true;  // nothing has been written yet in the open object or array
    bool m_isNamed = false; // a name has been written, its value comes next
};

/// Writes one document, with a line end.
template <class Write>
void WriteJson(VOutput& output, Write write) {
    VJsonWriter json(output, VJsonWriter::VForm::Indented);
    write(json);
    output.Write("\n");
}

/// Writes one of several documents, as JSON Lines.
template <class Write>
void WriteJsonLine(VOutput& output, Write write) {
    VJsonWriter json(output, VJsonWriter::VForm::Line);
    write(json);
    output.Write("\n");
}

} // namespace NCli
