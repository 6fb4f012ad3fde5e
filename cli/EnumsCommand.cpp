// SPDX-License-Identifier: Apache-2.0
#include <array>
#include <optional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <cli/Columns.h>
#include <cli/Commands.h>
#include <cli/JsonWriter.h>
#include <cli/NearNames.h>
#include <cli/Selections.h>
#include <cli/Text.h>
#include <diagkit/reader/Utf8.h>
#include <diagkit/tools/EnumMapper.h>

namespace NCli {
namespace {

using Mapper = NDIAGKIT::VEnumMapper;

struct VTable {
    char const* name;
    wchar_t const* (*literal)(int value); ///< "?" for a value that is not in the table
};

template <class Enumeration>
wchar_t const* LiteralOf(wchar_t const* (NDIAGKIT::VEnumTables::*getStr)(Enumeration value) const, int value) {
    return (Mapper::Instance().*getStr)(static_cast<Enumeration>(value));
}

constexpr std::array kTables{
#define ODX_ENUMERATION(name, place, ...)                                                                              \
    VTable{#name, [](int value) { return LiteralOf(&Mapper::Get##name##Str, value); }},
#include <diagkit/model/facts/Enumerations.def>
};

struct VLiteral {
    std::string text;
    int value;
};

std::vector<VLiteral> LiteralsOf(VTable const& table) {
    std::vector<VLiteral> literals;
    for (int value = 0;; ++value) {
        std::string text = NReader::ToUtf8(table.literal(value));
        if (text == "?") {
            return literals;
        }
        literals.push_back({std::move(text), value});
    }
}

void WriteLiteralMembers(VJsonWriter& json, VLiteral const& literal) {
    json.Member("literal", literal.text);
    json.Member("value", literal.value);
}

void WriteTableObject(VJsonWriter& json, VTable const& table) {
    json.Object([&] {
        json.Member("name", table.name);
        json.ArrayOf("literals", LiteralsOf(table),
                     [&json](VLiteral const& literal) { json.Object([&] { WriteLiteralMembers(json, literal); }); });
    });
}

void WriteText(VTable const& table, VOutput& output) {
    VColumns columns;
    for (VLiteral const& literal : LiteralsOf(table)) {
        columns.Add({std::to_string(literal.value), literal.text});
    }
    output.Write(fmt::format("{}\n{}", output.Heading(table.name), columns.Format()));
}

VStatus WriteAll(VArguments const& arguments, VOutput& output) {
    if (arguments.isJson) {
        WriteJson(output, [](VJsonWriter& json) {
            json.Object([&] {
                json.ArrayOf("tables", kTables, [&json](VTable const& table) { WriteTableObject(json, table); });
            });
        });
        return VStatus::Done;
    }
    for (VTable const& table : kTables) {
        WriteText(table, output);
    }
    return VStatus::Done;
}

VStatus WriteTable(VTable const& table, VArguments const& arguments, VOutput& output) {
    if (arguments.isJson) {
        WriteJson(output, [&table](VJsonWriter& json) { WriteTableObject(json, table); });
    } else {
        WriteText(table, output);
    }
    return VStatus::Done;
}

std::optional<VLiteral> LiteralNamed(VTable const& table, std::string const& wanted) {
    for (VLiteral& literal : LiteralsOf(table)) {
        if (literal.text == wanted || std::to_string(literal.value) == wanted) {
            return std::move(literal);
        }
    }
    return std::nullopt;
}

VStatus WriteLiteral(VTable const& table, VArguments const& arguments, VOutput& output) {
    std::optional<VLiteral> const literal = LiteralNamed(table, *arguments.literal);
    if (!literal.has_value()) {
        std::string all;
        for (VLiteral const& held : LiteralsOf(table)) {
            all += fmt::format("{}{} ({})", all.empty() ? "" : ", ", held.text, held.value);
        }
        output.Complain(fmt::format("{} has no '{}'; it has {}", table.name, Shown(*arguments.literal), all));
        return VStatus::NotThere;
    }
    if (arguments.isJson) {
        WriteJson(output, [&](VJsonWriter& json) {
            json.Object([&] {
                json.Member("table", table.name);
                WriteLiteralMembers(json, *literal);
            });
        });
    } else {
        output.Write(fmt::format("{} {} = {}\n", table.name, literal->text, literal->value));
    }
    return VStatus::Done;
}

/// An optional word; CLI11 itself treats an empty one as missing.
CLI::Option& DeclareWord(CLI::App& command, char const* name, std::optional<std::string>& word, char const* help) {
    auto const take = [&word](std::string const& text) { word = text; };
    return *command.add_option_function<std::string>(name, take, help)->type_name("");
}

} // namespace

void DeclareEnums(CLI::App& command, VArguments& arguments) {
    auto& table = DeclareWord(command, "TABLE", arguments.table, "One of the tables, such as Addressing");
    arguments.choices[&table] = NamesOf(kTables);
    DeclareWord(command, "LITERAL", arguments.literal, "A literal of the table, or a value");
}

VStatus RunEnums(VArguments const& arguments, VOutput& output) {
    if (!arguments.table.has_value()) {
        return WriteAll(arguments, output);
    }
    for (VTable const& table : kTables) {
        if (arguments.table == table.name) {
            return arguments.literal.has_value() ? WriteLiteral(table, arguments, output)
                                                 : WriteTable(table, arguments, output);
        }
    }
    std::vector<std::string> names;
    for (VTable const& table : kTables) {
        names.emplace_back(table.name);
    }
    output.Complain(fmt::format("no table '{}'{}", Shown(*arguments.table), NearOrAllNote(*arguments.table, names)));
    return VStatus::NotThere;
}

} // namespace NCli
