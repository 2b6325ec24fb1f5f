#include "core/string_table.h"

#include <array>
#include <cstddef>

namespace {

struct Entry {
    int id;
    std::string_view text;
};

// Translations follow this table id by id, and texts are joined as they stand: doubled and outer
// blanks, and the letter that 1131 lacks, are part of them.
constexpr std::array<Entry, lastTextId - firstTextId + 1> table = {{
    {1000, " but the log settings name the folder "},
    {1001, " bytes"},
    {1002, " must be rebooted before the new log folder is used."},
    {1003, " can not be found.  Log not processed."},
    {1004, " is too large to display in the Orvan Diagnostic Tool."},
    {1005, " is not in use yet."},
    {1006, "A Macro Trace is defined as a collection of individual component trace levels that "
           "help diagnose a particular problem such as Message Waiting Indicator problems."},
    {1007, "A Micro Trace is defined as an individual component level trace.  Each component of "
           "the system has up to 32 trace levels.  Each trace level provides a certain type of "
           "tracing information for that component."},
    {1008, "Available Orvan Event Log Languages"},
    {1009, "Browse..."},
    {1010, "Bytes Left"},
    {1011, "&Browse..."},
    {1012, "Change Language"},
    {1013, "Kelma Systems, Inc."},
    {1014, "Kelma Orvan Diagnostic Tasks"},
    {1015, "Kelma Orvan Diagnostics"},
    {1016, "Kelma Orvan Diagnostics MMC Snap-in"},
    {1017, "Kelma Orvan event log messages can be viewed in any Orvan GUI installed language "
           "through the embedded Event Viewer.  Select the new language from the list below.  "
           "Note: The original language will be restored once you exit the Orvan Diagnostic Tool."},
    {1018, "Common diagnostics tasks for Kelma Orvan"},
    {1019, "Completing the Configure Macro Traces Wizard."},
    {1020, "Completing the Configure Micro Traces Wizard"},
    {1021, "Completing the Gather Logs Wizard"},
    {1022, "Component"},
    {1023, "Configure Log Settings"},
    {1024, "Configure Macro Traces"},
    {1025, "Configure Macro Traces Wizard"},
    {1026, "Configure Micro Traces"},
    {1027, "Configure Micro Traces Wizard"},
    {1028, "Copyright © Kelma Systems, Inc.  All rights reserved."},
    {1029, "Current"},
    {1030, "Current Orvan Event Log Language"},
    {1031, "Depending on the size of the logs this wizard can take several minutes to complete."},
    {1032, "Description"},
    {1033, "Destination Directory"},
    {1034, "Diagnostic Logs"},
    {1035, "Diagnostic Output"},
    {1036, "Reset to Default Traces"},
    {1037, "Reset to Default Traces Wizard"},
    {1038, "Error"},
    {1039, "Event Log Language"},
    {1040, "Event Log..."},
    {1041, "Events"},
    {1042, "File Name"},
    {1043, "Format Completed."},
    {1044, "Formatting Log..."},
    {1045, "Gather Log Files"},
    {1046, "Gather Logs Wizard"},
    {1047, "Gather standard logs"},
    {1048, "Gathering logs"},
    {1049, "Help"},
    {1050, "Level"},
    {1051, "Location of Log Files"},
    {1052, "Log Settings"},
    {1053, "Log file: "},
    {1054, "Log not found"},
    {1055, "Log too large to display."},
    {1056, "Maximum Space for Diagnostic Files (MB)"},
    {1057, "Name"},
    {1058, "New log files started."},
    {1059, "No"},
    {1060, "No languages loaded"},
    {1061, "Not available"},
    {1062, "OK"},
    {1063, "Original Orvan Event Log Language"},
    {1064, "Overall progress..."},
    {1065, "Please use the Gather Logs Wizard to format this log file."},
    {1066, "Processes"},
    {1067, "Processing"},
    {1068, "Reboot Required"},
    {1069, "Orvan Voice Messaging Division"},
    {1070, "Saved Logs"},
    {1071, "Select Language"},
    {1072, "Select Log File"},
    {1073, "Select logs"},
    {1074, "Select Logs to Gather"},
    {1075, "Select any components and levels from the list below that you want to enable.  Clear "
           "the check from any levels that you no longer want."},
    {1076, "Select the destination directory"},
    {1077, "Select the logs you wish to have gathered from the list below."},
    {1078, "Select the type of problem you wish to diagnose from the list of Macro Traces below.  "
           "Clear the check from any pre-selected Macro Traces that you wish to disable."},
    {1079, "Server Reboot Needed"},
    {1080, "Size (Bytes)"},
    {1081, "Some micro traces should remain on at all times.  This wizard will not disable these "
           "traces."},
    {1082, "Source"},
    {1083, "Start New Log Files"},
    {1084, "The current log file is in the folder "},
    {1085, "The following Macro Traces were configured."},
    {1086, "The following Macro Traces were disabled:"},
    {1087, "The following Macro Traces were enabled:"},
    {1088, "The following logs are being gathered for you."},
    {1089, "The specified logs have been gathered for you."},
    {1090, "The specified logs have been placed in the following directory:"},
    {1091, "The standard logs are the current RoCSMgr log, Windows Application Event log and "
           "Windows System Event log."},
    {1092, "The system now reflects the Micro Traces you configured."},
    {1093, "This tool reads the folder of the current log file until this server is rebooted."},
    {1094, "This wizard allows you to disable all of the traces at once."},
    {1095, "This wizard allows you to enable or disable Macro Traces."},
    {1096, "This wizard allows you to enable or disable Micro Traces."},
    {1097, "Time Stamp"},
    {1098, "Timestamp"},
    {1099, "To close this wizard, click Finish."},
    {1100, "To continue, click Finish."},
    {1101, "To continue, click Next."},
    {1102, "Total"},
    {1103, "Trace"},
    {1104, "Trace No."},
    {1105, "Diagnostics and Support"},
    {1106, "Trace Levels"},
    {1107, "Orvan Diagnostic Tool"},
    {1108, "Kelma, Orvan and Kelma Orvan are trademarks of Kelma Systems, Inc."},
    {1109, "Use this action to configure individual component traces and levels."},
    {1110, "Use this action to configure macro traces to help diagnose Orvan problems."},
    {1111, "Use this action to configure various system wide diagnostic logging settings."},
    {1112, "Use this action to easily gather all necessary log files for diagnosing problems."},
    {1113, "Use this action to have Orvan close current log files and start new ones."},
    {1114, "Use this action to have Orvan disable all traces that are not normally enabled."},
    {1115, "Use this option to hand select the logs to gather."},
    {1116, "Use this task to configure individual component traces and levels."},
    {1117, "Use this task to configure macro traces to help diagnose Orvan problems."},
    {1118, "Use this task to have Orvan close current log files and start new ones."},
    {1119, "Use this task to have Orvan disable all traces that are not normally enabled."},
    {1120, "Version:"},
    {1121, "View Directory"},
    {1122, "Welcome to the Configure Macro Traces Wizard"},
    {1123, "Welcome to the Configure Micro Traces Wizard"},
    {1124, "Welcome to the Reset to Default Traces Wizard."},
    {1125, "Welcome to the Gather Logs Wizard"},
    {1126, "Windows"},
    {1127, "Windows Event Logs"},
    {1128, "You can then view the formatted log file in the editor of your choice."},
    {1129, "You must reboot this server for these changes to take effect."},
    {1130, "You need to reboot this server before log files are written to the folder in the log "
           "settings."},
    {1131, "his wizard allows you to quickly gather the logs required to troubleshoot problems."},
    {1132, "Current Time:"},
    {1133, "Duration (Hours):"},
    {1134, "Start Time:"},
    {1135, "Select Starting Time and Duration"},
    {1136, "Specify the starting date and time and select the duration."},
    {1137, "Open Logs in Viewer"},
    {1138, "Cycle Diagnostic Logs every"},
    {1139, " Hour"},
    {1140, " Hours"},
    {1141, " - Default"},
    {1142, "Creating .CAB file..."},
    {1143, "Process logs over specified time frame"},
    {1144, "Use this option to gather all the logs over the selected time frame."},
    {1145, "Call ID"},
    {1146, "Thread"},
    {1147, "Port"},
    {1148, "Include Windows Application Event Log"},
    {1149, "Include Windows System Event Log"},
}};

constexpr bool everyIdHasItsPlace()
{
    for (std::size_t place = 0; place < table.size(); ++place) {
        if (table[place].id != firstTextId + static_cast<int>(place)) return false;
    }
    return true;
}
static_assert(everyIdHasItsPlace());

} // namespace

std::string_view englishText(int id)
{
    if (id < firstTextId || id > lastTextId) return {};
    return table[static_cast<std::size_t>(id - firstTextId)].text;
}
