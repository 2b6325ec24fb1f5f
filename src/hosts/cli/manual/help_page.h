#pragma once

#include <CLI/CLI.hpp>

#include <cstddef>
#include <string>

namespace cli {

/// The help of a command: what it is for, how it is called, its arguments, options and commands,
/// the options that every command takes, and its explanation. Lines are as wide as the terminal
/// that it goes to, and 80 columns where it goes to none.
class HelpPage final : public CLI::Formatter {
public:
    /// `path` is how the command is called, such as "orvandiag gather frame".
    std::string make_help(const CLI::App* command, std::string path,
                          CLI::AppFormatMode mode) const override;
};

/// Paragraphs in lines of at most `width` columns, where words allow it. Lines that begin with two
/// blanks are examples, and stay as they are; paragraphs stand apart by a blank line.
std::string inLines(const std::string& paragraphs, std::size_t width);

} // namespace cli
