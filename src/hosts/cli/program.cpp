#include "hosts/cli/program.h"

#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/manual/help_page.h"
#include "hosts/cli/manual/values.h"
#include "hosts/machine/open_machine.h"

#include <CLI/CLI.hpp>

namespace cli {

namespace {

constexpr const char* introduction =
    "Diagnoses an Orvan voice-messaging server: turns its traces on and off, reads its logs, and\n"
    "gathers them into one folder to send to support.\n\n"
    "It works on a site: a server, or a copy of one, in a folder. Make one to try things on:\n\n"
    "  orvandiag sample ~/orvan-sample\n"
    "  export ORVAN_SITE=~/orvan-sample\n"
    "  orvandiag status";

constexpr const char* introductionOnAServer =
    "Diagnoses an Orvan voice-messaging server: turns its traces on and off, reads its logs, and\n"
    "gathers them into one folder to send to support.\n\n"
    "It works on this machine, or on a site: a copy of a server in a folder. Make one to try\n"
    "things on:\n\n"
    "  orvandiag sample orvan-sample\n"
    "  orvandiag --site orvan-sample status";

/// The group that help, completion and manual page leave out.
constexpr const char* hidden = "";

const char* siteHelp()
{
    return machineIsAServer()
               ? "the site's folder; else %ORVAN_SITE%, your settings, or this machine itself"
               : "the site's folder; else $ORVAN_SITE, your settings, or the user's "
                 "data folder";
}

const char* introductionHere()
{
    return machineIsAServer() ? introductionOnAServer : introduction;
}

std::string closing()
{
    std::string text;
    for (const auto& exit : exitStatuses)
        text += (text.empty() ? "Exit status: " : ", ") + std::to_string(exit.status) + " " +
                exit.meaning;
    return text + ".\n" + outputNote;
}

} // namespace

std::unique_ptr<CLI::App> describeCommandLine(GlobalOptions& options,
                                              const std::vector<std::unique_ptr<Command>>& commands)
{
    auto app = std::make_unique<CommandLine>(introductionHere(), "orvandiag");
    app->set_help_flag("-h,--help", "show this help"); // commands have the one that stands here
    // Both are handed on to the commands, whose names and options are asked for as they are made.
    app->ignore_case();
    app->get_help_ptr()->ignore_case();
    app->option_defaults()->ignore_case();
    app->allow_windows_style_options(false); // a path of the machine begins with a slash there, too
    app->formatter(std::make_shared<HelpPage>());
    app->footer(closing());
    CLI::Option* site = app->add_option("--site", options.site, siteHelp())->type_name("DIR");
    CLI::Option* toolFolder =
        app->add_option("--tool-folder", options.toolFolder,
                        "the folder of the tool's files, also one of this machine; else the site's")
            ->type_name("DIR");
    for (const CLI::Option* folder : {site, toolFolder}) app->setValues(folder, Values::folders);
    app->add_flag("--json", options.json, "print one JSON value instead of text");
    app->add_flag("--development-host", options.developmentHost,
                  "answer the tool's debug-mode test with true")
        ->group(hidden);
    app->set_version_flag("--version", versionText(), "show the version");
    app->require_subcommand(1);
    app->fallthrough();
    for (const auto& command : commands) {
        CLI::App* sub = app->add_subcommand(command->name(), command->summary());
        if (command->hidden()) sub->group(hidden);
        sub->footer(command->explanation());
        Arguments arguments(sub);
        command->declare(arguments);
    }
    return app;
}

ModuleVersion moduleVersion()
{
    return {ORVAN_VERSION_MAJOR, ORVAN_VERSION_MINOR, ORVAN_VERSION_PATCH};
}

std::string versionText()
{
    return "orvandiag " ORVAN_VERSION;
}

std::vector<std::unique_ptr<Command>> allCommands()
{
    std::vector<std::unique_ptr<Command>> commands;
    commands.push_back(makeSampleCommand());
    commands.push_back(makeStatusCommand());
    commands.push_back(makeTreeCommand());
    commands.push_back(makeLogsCommand());
    commands.push_back(makeReadCommand());
    commands.push_back(makeCycleCommand());
    commands.push_back(makeMacroCommand());
    commands.push_back(makeMicroCommand());
    commands.push_back(makeResetCommand());
    commands.push_back(makeFlagsCommand());
    commands.push_back(makeGatherCommand());
    commands.push_back(makeSettingsCommand());
    commands.push_back(makeEventLanguageCommand());
    commands.push_back(makeLanguageCommand());
    commands.push_back(makeDoctorCommand());
    commands.push_back(makeDiffCommand());
    commands.push_back(makeConfigCommand());
    commands.push_back(makeAboutCommand());
    commands.push_back(makeCompletionCommand());
    commands.push_back(makeCompleteCommand());
    commands.push_back(makeHelpCommand());
    commands.push_back(makeManCommand());
    return commands;
}

} // namespace cli
