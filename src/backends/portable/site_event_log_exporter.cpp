#include "backends/portable/site_event_log_exporter.h"

#include "backends/portable/event_log_csv.h"
#include "backends/portable/folder_listing.h"
#include "backends/portable/site_paths.h"
#include "backends/portable/site_text_reader.h"
#include "backends/portable/utf8.h"
#include "backends/portable/whole_file.h"
#include "runtime/run_time_error.h"

#include <sys/stat.h>
#include <utility>

namespace {

constexpr std::size_t enough = 256U << 10;

/// The file of an event log, by name without regard to case. Raises 53.
std::string fileOf(const std::string& eventLogs, const std::string& logName)
{
    struct stat facts {};
    const auto wanted = foldCase(logName + ".jsonl");
    if (::stat(eventLogs.c_str(), &facts) == 0 && S_ISDIR(facts.st_mode))
        for (const auto& name : namesInFolder(eventLogs))
            if (foldCase(name) == wanted) return pathIn(eventLogs, name);
    throw RunTimeError(runTimeErrors::fileNotFound);
}

/// The next line as comma-separated text, with a mark in place of one that is too long to hold.
std::string nextCsvLine(SiteTextReader& log)
{
    try {
        return eventLogCsvLine(log.readLine());
    } catch (const RunTimeError& error) {
        if (error.number() != runTimeErrors::outOfStringSpace) throw;
        return std::string(eventLogCsvGap);
    }
}

/// Refuses a target that no file may take the place of.
void checkTarget(const std::string& target)
{
    struct stat facts {};
    if (::lstat(target.c_str(), &facts) != 0) return;
    if (!S_ISREG(facts.st_mode) || (facts.st_mode & S_IWUSR) == 0)
        throw RunTimeError(runTimeErrors::permissionDenied);
}

} // namespace

SiteEventLogExporter::SiteEventLogExporter(std::string eventLogs, const SitePaths& paths)
    : eventLogs_(std::move(eventLogs)), paths_(paths)
{}

void SiteEventLogExporter::exportEventLog(const std::string& logName, const std::string& target,
                                          int)
{
    SiteTextReader log(fileOf(eventLogs_, logName));
    const auto machineTarget = paths_.machinePath(target);
    checkTarget(machineTarget);
    ReplacementFile csv(machineTarget, 0666);
    std::string text(eventLogCsvHeader);
    while (!log.atEnd()) {
        text += nextCsvLine(log);
        if (text.size() < enough) continue;
        csv.write(text);
        text.clear();
    }
    csv.write(text);
    csv.commit(false);
}
