// SPDX-License-Identifier: Apache-2.0
#include "Table.h"

#include <sstream>
#include <stdexcept>
#include <vector>

namespace NOwnModel {
namespace {

[[noreturn]] void Refuse(std::wstring const& line) {
    throw std::runtime_error("not understood: " + std::string(line.begin(), line.end()));
}

VRow ReadRow(std::wstring const& line) {
    VRow row;
    if (line[0] == L'?') {
        std::size_t const space = line.find(L' ');
        row.name = line.substr(1, space - 1);
        row.text = space != std::wstring::npos ? line.substr(space + 1) : L"";
        return row;
    }
    std::wistringstream words(line);
    std::wstring element;
    std::wstring type;
    words >> element;
    for (std::wstring word; words >> word;) {
        std::size_t const equals = word.find(L'=');
        std::wstring const key = word.substr(0, equals);
        std::wstring* const value = key == L"name"     ? &row.name
                                    : key == L"id"     ? &row.id
                                    : key == L"oid"    ? &row.oid
                                    : key == L"id-ref" ? &row.idRef
                                    : key == L"snref"  ? &row.snref
                                    : key == L"type"   ? &type
                                    : key == L"text"   ? &row.text
                                                       : nullptr;
        if (value == nullptr || equals == std::wstring::npos) {
            Refuse(line);
        }
        *value = word.substr(equals + 1);
        if (value == &row.text) {
            std::wstring rest;
            std::getline(words, rest);
            row.text += rest;
        }
    }
    row.tag = NODX201::OdxTagOf(element.c_str(), type.c_str());
    if (row.tag == NODX201::VOdxTagEnum::None) {
        Refuse(line);
    }
    return row;
}

} // namespace

VRow ReadTable(std::wistream& in) {
    VRow root;
    root.tag = NODX201::VOdxTagEnum::Odx;
    std::vector<VRow*> open = {&root}; // by depth
    for (std::wstring line; std::getline(in, line);) {
        std::size_t const indent = line.find_first_not_of(L' ');
        if (indent == std::wstring::npos || line[indent] == L'#') {
            continue;
        }
        std::size_t const depth = indent / 2;
        if (depth >= open.size()) {
            Refuse(line);
        }
        open.resize(depth + 1);
        open.back()->rows.push_back(ReadRow(line.substr(indent)));
        open.push_back(&open.back()->rows.back());
    }
    return root;
}

} // namespace NOwnModel
