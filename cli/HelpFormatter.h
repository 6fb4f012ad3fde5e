// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace NCli {

/// Formats `--help`: at most 80 columns, required arguments in the usage line, one blank line between sections.
class VHelpFormatter : public CLI::Formatter {
public:
    std::string make_help(CLI::App const* app, std::string name, CLI::AppFormatMode mode) const override;
    std::string make_usage(CLI::App const* app, std::string name) const override;
    std::string make_group(std::string group, bool isPositional,
                           std::vector<CLI::Option const*> options) const override;
    std::string make_subcommand(CLI::App const* command) const override;
    std::string make_option(CLI::Option const* option, bool isPositional) const override;
};

} // namespace NCli
