#include "hosts/cli/command.h"
#include "hosts/cli/program.h"
#include "hosts/cli/settled_options.h"
#include "hosts/cli/terminal/message.h"
#include "hosts/cli/terminal/output.h"
#include "hosts/cli/usage/help_text.h"
#include "hosts/cli/usage/wrong_usage.h"
#include "runtime/out_of_memory.h"
#include "runtime/run_time_error.h"
#include "system/program_arguments.h"
#include "system/terminal.h"
#include "system/write_signals.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <utility>

namespace cli {

namespace {

int refuse(const std::string& text, int status)
{
    if (!text.empty()) printMessage(text);
    return status;
}

/// Says what makes no sense, and which command's help tells more.
int refuseUsage(const std::string& text, const std::string& command)
{
    return refuse(text + " (see " + command + " --help)", 2);
}

/// Refuses a command line that could not be read; one that names nothing is told how to begin.
int refuseCommandLine(const CLI::App& app, const CLI::ParseError& error)
{
    const bool isBare = namesNothing(app) && error.get_name() == "RequiredError";
    const int status = isBare ? refuseUsage("name a command", app.get_name())
                              : refuseUsage(wrongUsage(app, error), chosenCommand(app));
    if (isBare) std::fputs(("\n" + shortUsage(app)).c_str(), stderr);
    return status;
}

/// Tells what the person asked of the program itself.
int tell(const std::string& text)
{
    Output output(false);
    output.text(text);
    output.finish();
    return 0;
}

int run(std::vector<std::string> arguments)
{
    GlobalOptions options;
    auto commands = allCommands();
    auto app = describeCommandLine(options, commands);
    try {
        app->parse(std::move(arguments));
    } catch (const CLI::Success& asked) {
        // Of what is no command there is no help.
        if (const std::string wrong = unknownCommand(*app); !wrong.empty())
            return refuseUsage(wrong, chosenCommand(*app));
        return tell(asked.get_name() == "CallForHelp" ? app->help() : versionText() + "\n");
    } catch (const CLI::ParseError& error) {
        return refuseCommandLine(*app, error);
    }
    try {
        Output output(options.json);
        for (auto& command : commands)
            if (app->got_subcommand(command->name())) {
                if (command->takesSettings()) settleOptions(options);
                command->run(options, output);
            }
        output.finish();
    } catch (const UsageError& error) {
        return refuseUsage(error.what(),
                           error.command().empty() ? chosenCommand(*app) : error.command());
    }
    return 0;
}

} // namespace

} // namespace cli

int main(int argc, char** argv)
{
    // A closed pipe and a file size limit are errors of a write, not the end of the program.
    letWritesToClosedPipesFail();
    letWritesPastTheSizeLimitFail();
    endWhenOutOfMemory("orvandiag");
    writeUtf8ToTerminals();
    try {
        auto arguments = programArguments(argc, argv);
        if (!arguments.empty()) arguments.erase(arguments.begin());
        std::reverse(arguments.begin(), arguments.end()); // as the parser takes them
        return cli::run(std::move(arguments));
    } catch (const RunTimeError& error) {
        return cli::refuse(error.description(), 1);
    } catch (const std::exception& error) {
        return cli::refuse(error.what(), 1);
    }
}
