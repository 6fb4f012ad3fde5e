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
    wchar_t const* (*literal)(int value); ///< "?" for a value that the table does not hold
};

template <auto GetStr, class Enumeration>
wchar_t const* LiteralOf(int value) {
    return (Mapper::Instance().*GetStr)(static_cast<Enumeration>(value));
}

// clang-format off
constexpr std::array kTables{
    VTable{"CommRelationValueType", &LiteralOf<&Mapper::GetCommRelationValueTypeStr, NODX201::VCommRelation::VCommRelationValueType>},
    VTable{"Addressing", &LiteralOf<&Mapper::GetAddressingStr, NODX201::VDiagService::VAddressing>},
    VTable{"PhysicalDataType", &LiteralOf<&Mapper::GetPhysicalDataTypeStr, NODX201::VPhysicalType::VPhysicalDataType>},
    VTable{"Direction", &LiteralOf<&Mapper::GetDirectionStr, NODX201::VSessionDesc::VDirection>},
    VTable{"IdentValueType", &LiteralOf<&Mapper::GetIdentValueTypeStr, NODX201::VIdentValue::VIdentValueType>},
    VTable{"ValidType", &LiteralOf<&Mapper::GetValidTypeStr, NODX201::VScaleConstr::VValidType>},
    VTable{"Termination", &LiteralOf<&Mapper::GetTerminationStr, NODX201::VMinMaxLengthType::VTermination>},
    VTable{"RowFragment", &LiteralOf<&Mapper::GetRowFragmentStr, NODX201::VTableEntry::VRowFragment>},
    VTable{"DataformatSelection", &LiteralOf<&Mapper::GetDataformatSelectionStr, NODX201::VDataformat::VDataformatSelection>},
    VTable{"DataType", &LiteralOf<&Mapper::GetDataTypeStr, NODX201::VDiagCodedType::VDataType>},
    VTable{"PhysicalLinkType", &LiteralOf<&Mapper::GetPhysicalLinkTypeStr, NODX201::VPhysicalVehicleLink::VPhysicalLinkType>},
    VTable{"UnitGroupCategory", &LiteralOf<&Mapper::GetUnitGroupCategoryStr, NODX201::VUnitGroup::VUnitGroupCategory>},
    VTable{"IntervalType", &LiteralOf<&Mapper::GetIntervalTypeStr, NODX201::VLimit::VIntervalType>},
    VTable{"ProjIdentType", &LiteralOf<&Mapper::GetProjIdentTypeStr, NODX201::VProjectIdent::VProjIdentType>},
    VTable{"DiagClassType", &LiteralOf<&Mapper::GetDiagClassTypeStr, NODX201::VDiagComm::VDiagClassType>},
    VTable{"StandardisationLevel", &LiteralOf<&Mapper::GetStandardisationLevelStr, NODX201::VComparam::VStandardisationLevel>},
    VTable{"Radix", &LiteralOf<&Mapper::GetRadixStr, NODX201::VPhysicalType::VRadix>},
    VTable{"PinType", &LiteralOf<&Mapper::GetPinTypeStr, NODX201::VVehicleConnectorPin::VPinType>},
    VTable{"EncryptCompressMethodType", &LiteralOf<&Mapper::GetEncryptCompressMethodTypeStr, NODX201::VEncryptCompressMethod::VEncryptCompressMethodType>},
    VTable{"Encoding", &LiteralOf<&Mapper::GetEncodingStr, NODX201::VDiagCodedType::VEncoding>},
    VTable{"CompuCategory", &LiteralOf<&Mapper::GetCompuCategoryStr, NODX201::VCompuMethod::VCompuCategory>},
    VTable{"Doctype", &LiteralOf<&Mapper::GetDoctypeStr, NODX201::VDoctype>},
    VTable{"SessionSubElemType", &LiteralOf<&Mapper::GetSessionSubElemTypeStr, std::size_t>},
};
// clang-format on

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

/// A word that may be missing; CLI11 itself takes an empty one for a missing one.
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
