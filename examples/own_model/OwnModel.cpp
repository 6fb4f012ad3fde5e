// SPDX-License-Identifier: Apache-2.0

// Checks an own model against the promises of the contract and the reference database:
//
//     own_model TABLE

#include <fstream>
#include <iostream>

#include <diagkit/conformance/Reference.h>

#include "Database.h"

int main(int count, char** words) {
    if (count != 2) {
        std::cerr << "usage: own_model TABLE\n";
        return 2;
    }
    std::wifstream table(words[1]);
    if (!table) {
        std::cerr << words[1] << ": cannot be read\n";
        return 1;
    }
    NOwnModel::VDatabase database(table);
    auto const violations = NConformance::CheckReference({database.GetOdx()});
    for (NConformance::VViolation const& violation : violations) {
        std::wcout << NConformance::ToText(violation) << L'\n';
    }
    std::wcout << NConformance::Checks().size() << L" checks, " << violations.size() << L" findings\n";
    return violations.empty() ? 0 : 1;
}
