// SPDX-License-Identifier: Apache-2.0

// Over diagkit::check.

#include <iostream>

#include <diagkit/check/Check.h>

int main(int, char** words) {
    NReader::VReadOptions options;
    options.keepsElements = true;
    NReader::VReadResult result = NReader::ReadOdx({words[1]}, options);
    std::cout << NCheck::CheckDatabase(result).size() << " findings\n";
}
