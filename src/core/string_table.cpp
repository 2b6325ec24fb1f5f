#include "core/string_table.h"

#include <array>
#include <cstddef>

namespace {

struct Entry {
    TextId id;
    std::string_view text;
};

// Translations follow this table id by id, and texts are joined as they stand: doubled and outer
// blanks, and the letter that 1131 lacks, are part of them.
constexpr std::array<Entry, lastTextId - firstTextId + 1> table = {{
    {TextId::butTheLogSettingsNameTheFolder, " but the log settings name the folder "},
    {TextId::bytes, " bytes"},
    {TextId::mustBeRebootedBeforeTheNewLogFolder,
     " must be rebooted before the new log folder is used."},
    {TextId::canNotBeFound, " can not be found.  Log not processed."},
    {TextId::isTooLargeToDisplay, " is too large to display in the Orvan Diagnostic Tool."},
    {TextId::isNotInUseYet, " is not in use yet."},
    {TextId::whatAMacroTraceIs,
     "A Macro Trace is defined as a collection of individual component trace levels that "
     "help diagnose a particular problem such as Message Waiting Indicator problems."},
    {TextId::whatAMicroTraceIs,
     "A Micro Trace is defined as an individual component level trace.  Each component of "
     "the system has up to 32 trace levels.  Each trace level provides a certain type of "
     "tracing information for that component."},
    {TextId::availableEventLogLanguages, "Available Orvan Event Log Languages"},
    {TextId::browse, "Browse..."},
    {TextId::bytesLeft, "Bytes Left"},
    {TextId::browseWithKey, "&Browse..."},
    {TextId::changeLanguage, "Change Language"},
    {TextId::companyName, "Kelma Systems, Inc."},
    {TextId::taskPadTitle, "Kelma Orvan Diagnostic Tasks"},
    {TextId::snapInName, "Kelma Orvan Diagnostics"},
    {TextId::snapInFullName, "Kelma Orvan Diagnostics MMC Snap-in"},
    {TextId::aboutEventLogLanguages,
     "Kelma Orvan event log messages can be viewed in any Orvan GUI installed language "
     "through the embedded Event Viewer.  Select the new language from the list below.  "
     "Note: The original language will be restored once you exit the Orvan Diagnostic Tool."},
    {TextId::taskPadDescription, "Common diagnostics tasks for Kelma Orvan"},
    {TextId::macroTraceCompletionTitle, "Completing the Configure Macro Traces Wizard."},
    {TextId::microTraceCompletionTitle, "Completing the Configure Micro Traces Wizard"},
    {TextId::gatherCompletionTitle, "Completing the Gather Logs Wizard"},
    {TextId::component, "Component"},
    {TextId::configureLogSettings, "Configure Log Settings"},
    {TextId::configureMacroTraces, "Configure Macro Traces"},
    {TextId::macroTraceWizardTitle, "Configure Macro Traces Wizard"},
    {TextId::configureMicroTraces, "Configure Micro Traces"},
    {TextId::microTraceWizardTitle, "Configure Micro Traces Wizard"},
    {TextId::copyright, "Copyright © Kelma Systems, Inc.  All rights reserved."},
    {TextId::current, "Current"},
    {TextId::currentEventLogLanguage, "Current Orvan Event Log Language"},
    {TextId::gatherMayTakeMinutes,
     "Depending on the size of the logs this wizard can take several minutes to complete."},
    {TextId::description, "Description"},
    {TextId::destinationDirectory, "Destination Directory"},
    {TextId::diagnosticLogs, "Diagnostic Logs"},
    {TextId::diagnosticOutput, "Diagnostic Output"},
    {TextId::resetToDefaultTraces, "Reset to Default Traces"},
    {TextId::resetWizardTitle, "Reset to Default Traces Wizard"},
    {TextId::error, "Error"},
    {TextId::eventLogLanguage, "Event Log Language"},
    {TextId::eventLogWithDots, "Event Log..."},
    {TextId::events, "Events"},
    {TextId::fileName, "File Name"},
    {TextId::formatCompleted, "Format Completed."},
    {TextId::formattingLog, "Formatting Log..."},
    {TextId::gatherLogFiles, "Gather Log Files"},
    {TextId::gatherWizardTitle, "Gather Logs Wizard"},
    {TextId::gatherStandardLogs, "Gather standard logs"},
    {TextId::gatheringLogs, "Gathering logs"},
    {TextId::help, "Help"},
    {TextId::level, "Level"},
    {TextId::locationOfLogFiles, "Location of Log Files"},
    {TextId::logSettings, "Log Settings"},
    {TextId::logFile, "Log file: "},
    {TextId::logNotFound, "Log not found"},
    {TextId::logTooLargeTitle, "Log too large to display."},
    {TextId::maximumSpace, "Maximum Space for Diagnostic Files (MB)"},
    {TextId::name, "Name"},
    {TextId::newLogFilesStarted, "New log files started."},
    {TextId::no, "No"},
    {TextId::noLanguagesLoaded, "No languages loaded"},
    {TextId::notAvailable, "Not available"},
    {TextId::ok, "OK"},
    {TextId::originalEventLogLanguage, "Original Orvan Event Log Language"},
    {TextId::overallProgress, "Overall progress..."},
    {TextId::useTheGatherWizardToFormat,
     "Please use the Gather Logs Wizard to format this log file."},
    {TextId::processes, "Processes"},
    {TextId::processing, "Processing"},
    {TextId::rebootRequired, "Reboot Required"},
    {TextId::divisionName, "Orvan Voice Messaging Division"},
    {TextId::savedLogs, "Saved Logs"},
    {TextId::selectLanguage, "Select Language"},
    {TextId::selectLogFile, "Select Log File"},
    {TextId::selectLogs, "Select logs"},
    {TextId::selectLogsToGather, "Select Logs to Gather"},
    {TextId::microTraceStepDescription,
     "Select any components and levels from the list below that you want to enable.  Clear "
     "the check from any levels that you no longer want."},
    {TextId::selectTheDestination, "Select the destination directory"},
    {TextId::logSelectionDescription,
     "Select the logs you wish to have gathered from the list below."},
    {TextId::macroTraceStepDescription,
     "Select the type of problem you wish to diagnose from the list of Macro Traces below.  "
     "Clear the check from any pre-selected Macro Traces that you wish to disable."},
    {TextId::serverRebootNeeded, "Server Reboot Needed"},
    {TextId::sizeInBytes, "Size (Bytes)"},
    {TextId::someMicroTracesRemainOn,
     "Some micro traces should remain on at all times.  This wizard will not disable these "
     "traces."},
    {TextId::source, "Source"},
    {TextId::startNewLogFiles, "Start New Log Files"},
    {TextId::currentLogFileIsInTheFolder, "The current log file is in the folder "},
    {TextId::macroTracesWereConfigured, "The following Macro Traces were configured."},
    {TextId::macroTracesWereDisabled, "The following Macro Traces were disabled:"},
    {TextId::macroTracesWereEnabled, "The following Macro Traces were enabled:"},
    {TextId::logsAreBeingGathered, "The following logs are being gathered for you."},
    {TextId::logsHaveBeenGathered, "The specified logs have been gathered for you."},
    {TextId::logsHaveBeenPlacedIn,
     "The specified logs have been placed in the following directory:"},
    {TextId::whatTheStandardLogsAre,
     "The standard logs are the current RoCSMgr log, Windows Application Event log and "
     "Windows System Event log."},
    {TextId::microTracesAreInForce, "The system now reflects the Micro Traces you configured."},
    {TextId::toolReadsTheOldFolderUntilReboot,
     "This tool reads the folder of the current log file until this server is rebooted."},
    {TextId::resetWizardPurpose, "This wizard allows you to disable all of the traces at once."},
    {TextId::macroTraceWizardPurpose, "This wizard allows you to enable or disable Macro Traces."},
    {TextId::microTraceWizardPurpose, "This wizard allows you to enable or disable Micro Traces."},
    {TextId::timeStamp, "Time Stamp"},
    {TextId::timestamp, "Timestamp"},
    {TextId::toCloseClickFinish, "To close this wizard, click Finish."},
    {TextId::toContinueClickFinish, "To continue, click Finish."},
    {TextId::toContinueClickNext, "To continue, click Next."},
    {TextId::total, "Total"},
    {TextId::trace, "Trace"},
    {TextId::traceNumber, "Trace No."},
    {TextId::supportDepartment, "Diagnostics and Support"},
    {TextId::traceLevels, "Trace Levels"},
    {TextId::toolName, "Orvan Diagnostic Tool"},
    {TextId::trademarks, "Kelma, Orvan and Kelma Orvan are trademarks of Kelma Systems, Inc."},
    {TextId::microTraceActionHelp,
     "Use this action to configure individual component traces and levels."},
    {TextId::macroTraceActionHelp,
     "Use this action to configure macro traces to help diagnose Orvan problems."},
    {TextId::logSettingsActionHelp,
     "Use this action to configure various system wide diagnostic logging settings."},
    {TextId::gatherActionHelp,
     "Use this action to easily gather all necessary log files for diagnosing problems."},
    {TextId::startNewLogFilesActionHelp,
     "Use this action to have Orvan close current log files and start new ones."},
    {TextId::resetActionHelp,
     "Use this action to have Orvan disable all traces that are not normally enabled."},
    {TextId::handSelectOptionHelp, "Use this option to hand select the logs to gather."},
    {TextId::microTraceTaskHelp,
     "Use this task to configure individual component traces and levels."},
    {TextId::macroTraceTaskHelp,
     "Use this task to configure macro traces to help diagnose Orvan problems."},
    {TextId::startNewLogFilesTaskHelp,
     "Use this task to have Orvan close current log files and start new ones."},
    {TextId::resetTaskHelp,
     "Use this task to have Orvan disable all traces that are not normally enabled."},
    {TextId::version, "Version:"},
    {TextId::viewDirectory, "View Directory"},
    {TextId::macroTraceWelcome, "Welcome to the Configure Macro Traces Wizard"},
    {TextId::microTraceWelcome, "Welcome to the Configure Micro Traces Wizard"},
    {TextId::resetWelcome, "Welcome to the Reset to Default Traces Wizard."},
    {TextId::gatherWelcome, "Welcome to the Gather Logs Wizard"},
    {TextId::windows, "Windows"},
    {TextId::windowsEventLogs, "Windows Event Logs"},
    {TextId::formattedLogCanBeViewed,
     "You can then view the formatted log file in the editor of your choice."},
    {TextId::mustRebootForChanges, "You must reboot this server for these changes to take effect."},
    {TextId::needToRebootForTheFolder,
     "You need to reboot this server before log files are written to the folder in the log "
     "settings."},
    {TextId::gatherWizardPurpose,
     "his wizard allows you to quickly gather the logs required to troubleshoot problems."},
    {TextId::currentTime, "Current Time:"},
    {TextId::durationInHours, "Duration (Hours):"},
    {TextId::startTime, "Start Time:"},
    {TextId::timeFrameTitle, "Select Starting Time and Duration"},
    {TextId::timeFrameDescription, "Specify the starting date and time and select the duration."},
    {TextId::openLogsInViewer, "Open Logs in Viewer"},
    {TextId::cycleLogsEvery, "Cycle Diagnostic Logs every"},
    {TextId::hour, " Hour"},
    {TextId::hours, " Hours"},
    {TextId::isDefault, " - Default"},
    {TextId::creatingCabinet, "Creating .CAB file..."},
    {TextId::processLogsOverTimeFrame, "Process logs over specified time frame"},
    {TextId::timeFrameOptionHelp,
     "Use this option to gather all the logs over the selected time frame."},
    {TextId::callId, "Call ID"},
    {TextId::thread, "Thread"},
    {TextId::port, "Port"},
    {TextId::includeApplicationEvents, "Include Windows Application Event Log"},
    {TextId::includeSystemEvents, "Include Windows System Event Log"},
}};

constexpr bool everyIdHasItsIndex()
{
    for (std::size_t index = 0; index < table.size(); ++index) {
        if (static_cast<int>(table[index].id) != firstTextId + static_cast<int>(index))
            return false;
    }
    return true;
}
static_assert(everyIdHasItsIndex());

} // namespace

std::string_view englishText(TextId id)
{
    const int number = static_cast<int>(id);
    if (number < firstTextId || number > lastTextId) return {};
    return table[static_cast<std::size_t>(number - firstTextId)].text;
}
