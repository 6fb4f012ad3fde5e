// SPDX-License-Identifier: Apache-2.0

// Where a text stands in the names, IDs, descriptions and trouble codes of a database:
//
//     find_texts FILE PATTERN

#include <iostream>
#include <string>

#include <diagkit/query/FilePlace.h>
#include <diagkit/query/Find.h>
#include <diagkit/reader/OdxReader.h>
#include <diagkit/reader/Utf8.h>

/// "FILE:LINE: TAG NAME: TEXT", with what fits in brackets.
void PrintMatch(NMemory::VDatabase const& database, NQuery::VFindMatch const& match) {
    NQuery::VFilePlace const place = NQuery::FilePlaceOf(database, *match.element);
    std::wstring text = match.text;
    text.insert(match.start + match.length, L"]").insert(match.start, L"[");
    std::cout << place.file.substr(place.file.find('!') + 1) << ':' << place.line << ": "
              << NReader::ToUtf8(NODX201::OdxTagText(match.element->GetOdxTag())) << ' '
              << NReader::ToUtf8(match.element->GetShortName()) << ": " << NReader::ToUtf8(text) << '\n';
}

int main(int count, char** words) {
    if (count != 3) {
        std::cerr << "usage: find_texts FILE PATTERN\n";
        return 2;
    }
    NReader::VReadOptions options;
    options.keepsElements = true;
    NReader::VReadResult const result = NReader::ReadOdx({words[1]}, options);
    if (result.database == nullptr) {
        std::cerr << words[1] << ": cannot be read\n";
        return 1;
    }
    try {
        NQuery::VFinder finder(NReader::FromUtf8(words[2]), NQuery::VFinder::VSyntax::Regex);
        for (NQuery::VFindMatch const& match : finder.In(result.elements)) {
            PrintMatch(*result.database, match);
        }
    } catch (NQuery::VPatternError const& error) {
        std::cerr << words[2] << ": no regular expression: " << error.what() << '\n';
        return 2;
    }
    return 0;
}
