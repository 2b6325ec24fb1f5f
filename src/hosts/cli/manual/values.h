#pragma once

#include <CLI/CLI.hpp>

#include <map>
#include <string>

namespace cli {

/// What the value of an option or of an argument is one of, where it is none of a few fixed words:
/// what completion offers in its place.
enum class Values {
    any, ///< nothing that could be offered
    folders,
    files,
    processes,
    logs,         ///< names of logs in the server's log folder
    logsAndFiles, ///< the same, and paths
    eventLogs,
    components,
    componentsAndLevels, ///< COMPONENT:LEVEL
    macroTraces,         ///< "GROUP - TRACE"
    languages,           ///< those of the tool's texts
    eventLanguages,      ///< those of the server's messages
    columns,             ///< of rows, with commas between them
    countedColumns,      ///< one by which rows are counted
    commands,
};

/// The program's command line, which keeps what the library has no place for: the kinds of values.
class CommandLine final : public CLI::App {
public:
    using CLI::App::App;

    /// The command line that a command is one of; null for one of another kind.
    static const CommandLine* of(const CLI::App& command);
    static CommandLine* of(CLI::App& command);

    void setValues(const CLI::Option* option, Values values) { values_[option] = values; }

    /// `Values::any` for an option of which nothing was said.
    Values valuesOf(const CLI::Option* option) const;

private:
    std::map<const CLI::Option*, Values> values_;
};

} // namespace cli
