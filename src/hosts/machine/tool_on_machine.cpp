#include "hosts/machine/tool_on_machine.h"

#include "gather/cancel.h"

ToolOnMachine::ToolOnMachine(const MachineFacts& facts, Desktop& desktop)
    : AroundToolOnMachine{openMachine(facts)}, ToolOnServer(*machine_, ServerUse::change, desktop)
{}

void ToolOnMachine::cancelWork()
{
    if (console().busy() != Busy::no) mdlLogs::cancelCurrentProcess(context(), true);
}

std::string ToolOnMachine::complaint()
{
    if (const auto lack = server().lackOfServer()) return lack->text();
    if (!databaseFailure().empty())
        return "The server's database can't be reached, so that no trace can be changed: " +
               databaseFailure();
    const std::string& refusal = registry().refusal();
    return refusal.empty() ? refusal : "No setting of the server can be changed: " + refusal + ".";
}
