#pragma once

#include "hosts/cli/command.h"

namespace cli {

// One maker a command; each lives in the file of its name.
std::unique_ptr<Command> makeAboutCommand();
std::unique_ptr<Command> makeCompleteCommand();
std::unique_ptr<Command> makeCompletionCommand();
std::unique_ptr<Command> makeConfigCommand();
std::unique_ptr<Command> makeCycleCommand();
std::unique_ptr<Command> makeDiffCommand();
std::unique_ptr<Command> makeDoctorCommand();
std::unique_ptr<Command> makeEventLanguageCommand();
std::unique_ptr<Command> makeFlagsCommand();
std::unique_ptr<Command> makeGatherCommand();
std::unique_ptr<Command> makeHelpCommand();
std::unique_ptr<Command> makeLanguageCommand();
std::unique_ptr<Command> makeLogsCommand();
std::unique_ptr<Command> makeMacroCommand();
std::unique_ptr<Command> makeManCommand();
std::unique_ptr<Command> makeMicroCommand();
std::unique_ptr<Command> makeReadCommand();
std::unique_ptr<Command> makeResetCommand();
std::unique_ptr<Command> makeSampleCommand();
std::unique_ptr<Command> makeSettingsCommand();
std::unique_ptr<Command> makeStatusCommand();
std::unique_ptr<Command> makeTreeCommand();

} // namespace cli
