#pragma once

#include <string>
#include <string_view>
#include <vector>

/// A command line taken apart by the platform's quoting rules.
struct CommandLine {
    /// What may be the program, likeliest first: a quoted name is one, in which
    /// two quotation marks stand for one; of a name without quotes
    /// each blank may be its end, so `C:\My Tools\x -a` gives `C:\My`, `C:\My Tools\x` and the
    /// whole.
    struct Reading {
        std::string program;
        std::vector<std::string> arguments;
    };
    std::vector<Reading> readings;
};

/// The arguments of a text: blanks and tabs separate, quotation marks hold together; before a
/// quotation mark two backslashes stand for one and an odd one makes it a letter; within quotation
/// marks two of them stand for one.
std::vector<std::string> splitArguments(std::string_view text);

/// No reading at all for a command line without a program.
CommandLine parseCommandLine(std::string_view text);
