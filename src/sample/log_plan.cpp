#include "sample/log_plan.h"

#include "platform/log_name_parts.h"

namespace sample {

namespace {

std::string fileName(std::string_view prefix, const LogPeriod& period)
{
    std::string name(prefix);
    name.append(nameOf(period.process)).append("_").append(fileStamp(period.opened));
    return name.append(logFileNames::ending);
}

} // namespace

std::string LogPeriod::logName() const
{
    return fileName(logFileNames::diagnosticPrefix, *this);
}

std::string LogPeriod::dataName() const
{
    return fileName(logFileNames::dataPrefix, *this);
}

std::vector<LogPeriod> drawLogPlan(Random& random)
{
    std::vector<LogPeriod> plan;
    for (std::size_t index = 0; index < processCount; ++index) {
        const auto process = static_cast<Process>(index);
        Moment opened = coverageStart + random.between(1, 40) * second;
        for (int change = process == Process::directory ? 2 : 1; change < 3; ++change) {
            const Moment closed =
                coverageStart + change * day - random.between(20 * 60, 300 * 60) * second;
            plan.push_back({process, opened, closed});
            opened = closed;
        }
        plan.push_back({process, opened, coverageEnd});
    }
    return plan;
}

std::string currentLogName(const std::vector<LogPeriod>& plan, Process process)
{
    std::string name;
    for (const auto& period : plan)
        if (period.process == process) name = period.logName();
    return name;
}

bool hasDataFiles(Process process)
{
    return process == Process::callServer || process == Process::messageStore;
}

} // namespace sample
