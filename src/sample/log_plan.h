#pragma once

#include "sample/moment.h"
#include "sample/random.h"
#include "sample/server_model.h"

#include <string>
#include <vector>

namespace sample {

/// One log: of a process, from its opening until the next one's.
struct LogPeriod {
    Process process;
    Moment opened; ///< on a whole second
    Moment closed; ///< the next log's opening, or the end of the coverage

    std::string logName() const;  ///< "diag_KoCSMgr_20250218_142207.txt"
    std::string dataName() const; ///< "data_KoCSMgr_20250218_142207.txt"
};

/// The logs of all processes, by process and then by time. They change in the afternoon, so that
/// each one but none too short runs past a midnight; the quiet directory process changes only once
/// and sees two midnights in one log.
std::vector<LogPeriod> drawLogPlan(Random& random);

/// The name of a process's last log.
std::string currentLogName(const std::vector<LogPeriod>& plan, Process process);

/// Whether a process writes data files beside its logs.
bool hasDataFiles(Process process);

} // namespace sample
