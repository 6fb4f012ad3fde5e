// SPDX-License-Identifier: Apache-2.0

// Prints who refers to an element, and which elements are unused once it has been removed:
//
//     find_uses FILE ID

#include <iostream>
#include <string>
#include <vector>

#include <diagkit/Query.h>
#include <diagkit/Reader.h>
#include <diagkit/Toolkit.h>

/// "FILE:LINE: NAME", and for a reference by short name the layers in which it means the element.
void PrintUse(NMemory::VDatabase const& database, NQuery::VUse const& use) {
    NQuery::VFilePlace const place = NQuery::FilePlaceOf(database, *use.reference);
    std::cout << place.file.substr(place.file.find('!') + 1) << ':' << place.line;
    std::cout << ": " << (use.from != nullptr ? NReader::ToUtf8(use.from->GetShortName()) : "");
    if (use.layers.has_value()) {
        std::cout << ", in";
        for (NODX201::VDiagLayer const* const layer : *use.layers) {
            std::cout << ' ' << NReader::ToUtf8(layer->GetShortName());
        }
    }
    std::cout << '\n';
}

/// Removes an element, and prints which others nothing refers to afterwards.
void RemoveAndTell(NReader::VReadResult& result, NODX201::VOdxElement& element) {
    NQuery::LeaveOut(result.elements, element); // while it is still there
    delete &element;
    NQuery::VUses const uses(*result.database, result.elements);
    for (NODX201::VOdxElement const* const unused : uses.Unused()) {
        std::cout << "unused now: " << NReader::ToUtf8(unused->GetShortName()) << '\n';
    }
}

int main(int count, char** words) {
    if (count != 3) {
        std::cerr << "usage: find_uses FILE ID\n";
        return 2;
    }
    NReader::VReadOptions options;
    options.keepsElements = true;
    NReader::VReadResult result = NReader::ReadOdx({words[1]}, options);
    if (result.database == nullptr) {
        std::cerr << words[1] << ": cannot be read\n";
        return 1;
    }
    auto const* const entry = result.database->GetIdIndex().Find(NReader::FromUtf8(words[2]));
    if (entry == nullptr) {
        std::cerr << words[2] << ": no element has this ID\n";
        return 1;
    }
    NODX201::VReferencable& element = *entry->first;
    NQuery::VUses const uses(*result.database, result.elements); // once, for any number of questions
    for (NQuery::VUse const& use : uses.Of(element)) {
        PrintUse(*result.database, use);
    }
    if (dynamic_cast<NODX201::VDiagComm*>(&element) != nullptr) {
        RemoveAndTell(result, element);
    }
    return 0;
}
