// SPDX-License-Identifier: Apache-2.0
#include <cli/Load.h>

#include <algorithm>
#include <cstdio>

#include <fmt/format.h>

#include <cli/ProgressBar.h>
#include <cli/Text.h>

namespace NCli {
namespace {

NReader::VReadResult Read(VArguments const& arguments, bool keepsElements) {
    NReader::VReadOptions options = arguments.readOptions;
    options.keepsElements = keepsElements;
    VProgressBar bar;
    options.progress = bar.Progress(arguments.isQuiet);
    return NReader::ReadOdx(arguments.files, options);
}

/// Whether the command may continue with the result.
VStatus Judge(VArguments const& arguments, VOutput const& output, NReader::VReadResult const& result) {
    if (result.database == nullptr) {
        return VStatus::Unreadable;
    }
    std::size_t const errors = CountErrors(result.diagnostics);
    if (!arguments.isStrict || errors == 0) {
        return VStatus::Done;
    }
    if (!arguments.isQuiet) {
        // One of many databases is named; for a single one the call is sufficient.
        std::string const file = arguments.isEach ? Shown(arguments.files.front()) + ": " : "";
        output.Complain(fmt::format("{}{}, which --strict does not allow", file, Counted(errors, "error")));
    }
    return VStatus::Unreadable;
}

void PrintDiagnostics(std::vector<NReader::VDiagnostic> const& diagnostics) {
    for (NReader::VDiagnostic const& diagnostic : diagnostics) {
        std::string const line = LineOf(diagnostic);
        std::fwrite(line.data(), 1, line.size(), stderr);
    }
}

VStatus LoadAndTell(VArguments const& arguments, bool keepsElements, VOutput const& output,
                    NReader::VReadResult& result) {
    result = Read(arguments, keepsElements);
    if (!arguments.isQuiet) {
        PrintDiagnostics(result.diagnostics);
    }
    return Judge(arguments, output, result);
}

} // namespace

std::string LineOf(NReader::VDiagnostic const& diagnostic) { return Shown(FormatDiagnostic(diagnostic)) + "\n"; }

std::size_t CountOf(NReader::VSeverity severity, std::vector<NReader::VDiagnostic> const& diagnostics) {
    return static_cast<std::size_t>(
        std::count_if(diagnostics.begin(), diagnostics.end(),
                      [severity](NReader::VDiagnostic const& diagnostic) { return diagnostic.severity == severity; }));
}

std::size_t CountErrors(std::vector<NReader::VDiagnostic> const& diagnostics) {
    return CountOf(NReader::VSeverity::Error, diagnostics);
}

std::size_t CountWithoutPlace(NReader::VReadResult const& result) {
    std::size_t count = 0;
    for (auto const& [tag, times] : result.unknownElements) {
        count += times;
    }
    return count;
}

VStatus Load(VArguments const& arguments, VOutput const& output, NReader::VReadResult& result) {
    return LoadAndTell(arguments, false, output, result);
}

VStatus LoadElements(VArguments const& arguments, VOutput const& output, NReader::VReadResult& result) {
    return LoadAndTell(arguments, true, output, result);
}

VStatus LoadToCheck(VArguments const& arguments, VOutput const& output, NReader::VReadResult& result) {
    result = Read(arguments, true);
    bool const isRefused = result.database == nullptr || (arguments.isStrict && CountErrors(result.diagnostics) > 0);
    if (isRefused && arguments.IsText() && !arguments.isQuiet) {
        PrintDiagnostics(result.diagnostics);
    }
    return Judge(arguments, output, result);
}

} // namespace NCli
