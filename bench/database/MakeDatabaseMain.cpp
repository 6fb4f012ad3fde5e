// SPDX-License-Identifier: Apache-2.0
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <string>

#include "MakeDatabase.h"

namespace {

constexpr char const* kUsage = "diagkit_make_database TARGET [--seed N] [--documents N] [--layers N] [--services N]\n"
                               "\n"
                               "Makes an ODX 2.0.1 database: a package where TARGET ends in .pdx, else a folder of\n"
                               "documents. Equal options give equal bytes.\n";

bool ReadNumber(char const* text, unsigned long long& number) {
    char* end = nullptr;
    number = std::strtoull(text, &end, 10);
    return *text >= '0' && *text <= '9' && *end == '\0';
}

/// False when the arguments are not those of the usage.
bool ReadArguments(int count, char** arguments, std::string& target, NBench::VMadeSize& size) {
    for (int index = 1; index < count; ++index) {
        std::string const argument = arguments[index];
        if (argument.rfind("--", 0) != 0) {
            target = argument;
            continue;
        }
        unsigned long long number = 0;
        if (++index >= count || !ReadNumber(arguments[index], number)) {
            return false;
        }
        if (argument == "--seed") {
            size.seed = number;
        } else if (argument == "--documents" && number > 0) {
            size.documents = number;
        } else if (argument == "--layers") {
            size.layers = number;
        } else if (argument == "--services") {
            size.services = number;
        } else {
            return false;
        }
    }
    return !target.empty();
}

} // namespace

int main(int count, char** arguments) {
    std::string target;
    NBench::VMadeSize size;
    if (!ReadArguments(count, arguments, target, size)) {
        std::fputs(kUsage, stderr);
        return 2;
    }
    try {
        NBench::VMadeDatabase const database(size);
        if (std::filesystem::u8path(target).extension() == ".pdx") {
            database.WritePackage(std::filesystem::u8path(target));
        } else {
            database.WriteFolder(std::filesystem::u8path(target));
        }
    } catch (std::exception const& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
