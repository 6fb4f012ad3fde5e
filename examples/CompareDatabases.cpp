// SPDX-License-Identifier: Apache-2.0

// Compares two databases and prints what each layer sees of the changes:
//
//     compare_databases OLD NEW

#include <exception>
#include <iostream>
#include <string>

#include <diagkit/Query.h>
#include <diagkit/Reader.h>

namespace {

std::string Shown(std::optional<std::wstring> const& text) {
    return text.has_value() ? NReader::ToUtf8(*text) : "nothing";
}

char const* const kVerbs[] = {"added", "removed", "renamed", "changed", "moved"};

void PrintChange(NQuery::VChange const& change) {
    std::cout << "    " << NReader::ToUtf8(change.shortName) << ' ' << kVerbs[static_cast<int>(change.kind)] << '\n';
    if (change.details == nullptr) {
        return; // only what changed has details
    }
    for (NQuery::VDetail const& detail : *change.details) {
        std::cout << "      " << NReader::ToUtf8(detail.path) << ": " << Shown(detail.oldText) << " -> "
                  << Shown(detail.newText) << '\n';
    }
}

void PrintLayer(NQuery::VLayerChange const& layer) {
    NODX201::VDiagLayer const& known = layer.newLayer != nullptr ? *layer.newLayer : *layer.oldLayer;
    std::cout << NReader::ToUtf8(known.GetShortName()) << ' ' << kVerbs[static_cast<int>(layer.kind)] << '\n';
    for (NQuery::VViewChanges const& view : layer.views) {
        std::cout << "  " << NQuery::NameOf(view.view) << '\n';
        for (NQuery::VChange const& change : view.changes) {
            PrintChange(change);
        }
    }
}

} // namespace

int main(int count, char** words) try {
    if (count != 3) {
        std::cerr << "compare_databases OLD NEW\n";
        return 2;
    }
    NReader::VReadResult const old = NReader::ReadOdx({words[1]});
    NReader::VReadResult const now = NReader::ReadOdx({words[2]});
    if (old.database == nullptr || now.database == nullptr) {
        std::cerr << "compare_databases: one of the files cannot be read\n";
        return 1;
    }

    NQuery::VDiffOptions options;
    options.ignoresLongNames = true; // what people read is not what testers see
    options.ignoresDescriptions = true;
    NQuery::VDiff const diff = NQuery::DiffDatabases(*old.database, *now.database, options);
    for (NQuery::VLayerChange const& layer : diff.layers) {
        PrintLayer(layer);
    }
    return diff.IsEqual() ? 0 : 1;
} catch (std::exception const& problem) {
    std::cerr << "compare_databases: " << problem.what() << '\n'; // std::bad_alloc, mostly
    return 1;
}
