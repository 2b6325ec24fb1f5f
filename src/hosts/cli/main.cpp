#include "hosts/cli/command.h"
#include "hosts/cli/program.h"
#include "hosts/cli/terminal/message.h"
#include "hosts/cli/terminal/output.h"
#include "runtime/out_of_memory.h"
#include "runtime/run_time_error.h"
#include "system/program_arguments.h"
#include "system/terminal.h"
#include "system/write_signals.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <exception>
#include <utility>

namespace cli {

namespace {

int refuse(const std::string& text, int status)
{
    if (!text.empty()) printMessage(text);
    return status;
}

/// Says what makes no sense, and which help tells more.
int refuseUsage(const CLI::App& app, const std::string& text)
{
    return refuse(text + " (see " + chosenCommand(app) + " --help)", 2);
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
    } catch (const CLI::CallForHelp&) {
        return tell(app->help());
    } catch (const CLI::CallForVersion&) {
        return tell(versionText() + "\n");
    } catch (const CLI::ParseError& error) {
        std::string wrong = unknownCommand(*app);
        if (wrong.empty() && error.get_name() == "RequiredError") wrong = missingCommand(*app);
        return refuseUsage(*app, wrong.empty() ? error.what() : wrong);
    }
    try {
        Output output(options.json);
        for (auto& command : commands)
            if (app->got_subcommand(command->name())) command->run(options, output);
        output.finish();
    } catch (const UsageError& error) {
        return refuseUsage(*app, error.what());
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
