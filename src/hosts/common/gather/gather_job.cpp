#include "hosts/common/gather/gather_job.h"

#include "logreader/log_file_names.h"
#include "runtime/text.h"
#include "wizards/trace_object.h"

#include <algorithm>

namespace {

/// The entries of a job's list.
std::vector<std::string> namesIn(const StringArray& list)
{
    std::vector<std::string> names;
    for (int index = 1; index <= list.upperBound(); ++index)
        if (!list.at(index).empty()) names.push_back(list.at(index));
    return names;
}

} // namespace

GatherJob gatherJobOf(const classTraceObject& job)
{
    return {job.m_bStandardLogs, job.m_bTimeFrameLogs, namesIn(job.getOrvanLogs()),
            namesIn(job.getWindowsLogs()), job.m_LogDestinationDirectory};
}

std::string formattedName(const std::string& log)
{
    const std::size_t dot = std::min(log.find('.'), log.size());
    return log.substr(0, dot) + std::string(logFileNames::formattedTag) + log.substr(dot);
}

std::string captureName(const std::string& eventLog)
{
    return eventLog + ".csv";
}

bool holdsName(const std::vector<std::string>& names, const std::string& wanted)
{
    return std::any_of(names.begin(), names.end(),
                       [&](const std::string& name) { return equalIgnoringCase(name, wanted); });
}
