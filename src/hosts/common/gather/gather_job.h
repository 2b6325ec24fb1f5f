#pragma once

#include <functional>
#include <string>
#include <vector>

class classTraceObject;

/// Gives the path of this machine that a path of the tool stands for.
using MachinePath = std::function<std::string(const std::string& toolPath)>;

/// What a gather is asked for: its job, as it stands when the progress page is on show.
struct GatherJob {
    bool standard = false;              ///< the standard logs, which the tool names itself
    bool timeFrame = false;             ///< a database and a cabinet of a frame, instead of copies
    std::vector<std::string> logs;      ///< names in the server's log folder, without empty ones
    std::vector<std::string> eventLogs; ///< "Application", "System"
    std::string destination;            ///< a folder, as a path of the tool
};

/// Raises 9 for a job whose lists were never cleared.
GatherJob gatherJobOf(const classTraceObject& job);

/// The name of the readable copy of a log, such as "diag_A_1_fmtd.txt".
std::string formattedName(const std::string& log);

/// The name of the file that an event log is captured to, such as "System.csv".
std::string captureName(const std::string& eventLog);

/// Whether one of the names is the wanted one, in small letters or capitals.
bool holdsName(const std::vector<std::string>& names, const std::string& wanted);
