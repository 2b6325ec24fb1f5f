#include "backends/site/events/site_event_log_exporter.h"

#include "backends/common/folder_listing.h"
#include "backends/common/text_file_reader.h"
#include "backends/site/files/site_file.h"
#include "drives/site_paths.h"
#include "runtime/run_time_error.h"
#include "system/whole_file.h"
#include "text/utf8.h"

namespace {

constexpr std::size_t enough = 256U << 10;

constexpr const char* eventLogs = "eventlogs";

/// An event log, by name without regard to case. Raises 53, 70.
FileDescriptor openEventLog(const RootFolder& site, const std::string& logName)
{
    const auto wanted = foldCase(logName + ".jsonl");
    if (const auto folder = site.belowIfThere(eventLogs))
        for (const auto& name : sortedNames(folder->names("")))
            if (foldCase(name) == wanted)
                return openSiteFile(*folder, name, forReading, runTimeErrors::fileNotFound);
    throw RunTimeError(runTimeErrors::fileNotFound);
}

/// The next line as comma-separated text, with a mark in place of one that is too long to hold.
std::string nextCsvLine(TextFileReader& log, CsvReader reader)
{
    try {
        return eventLogCsvLine(log.readLine(), reader);
    } catch (const RunTimeError& error) {
        if (error.number() != runTimeErrors::outOfStringSpace) throw;
        return std::string(eventLogCsvGap);
    }
}

/// Refuses a target that no file may take the place of.
void checkTarget(const SitePlace& target)
{
    const auto facts = target.root.unfollowedFacts(target.path);
    if (facts && (facts->kind != FileKind::file || facts->readOnly))
        throw RunTimeError(runTimeErrors::permissionDenied);
}

} // namespace

SiteEventLogExporter::SiteEventLogExporter(const SitePaths& paths) : paths_(paths) {}

void SiteEventLogExporter::exportEventLog(const std::string& logName, const std::string& target,
                                          int)
{
    TextFileReader log(openEventLog(paths_.root(), logName));
    const SitePlace place = paths_.place(target);
    checkTarget(place);
    sweepReplacementFiles(place.root, folderPathOf(place.path));
    ReplacementFile csv(place.root, place.path);
    std::string text(eventLogCsvHeader);
    while (!log.atEnd()) {
        text += nextCsvLine(log, reader_);
        if (text.size() < enough) continue;
        csv.write(text);
        text.clear();
    }
    csv.write(text);
    csv.commit(false);
}
