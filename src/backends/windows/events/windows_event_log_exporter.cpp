#include "backends/windows/events/windows_event_log_exporter.h"

#include "backends/windows/events/event_messages.h"
#include "backends/windows/files/folder_entries.h"
#include "backends/windows/files/local_time.h"
#include "backends/windows/files/tool_path.h"
#include "runtime/run_time_error.h"
#include "system/whole_file.h"
#include "system/windows/windows_calls.h"

#include <utility>

namespace {

constexpr std::size_t enough = 256U << 10;

std::string typeText(int type)
{
    const std::string_view word = eventTypeWord(type);
    return word.empty() ? std::to_string(type) : std::string(word);
}

EventCells cellsOf(const EventRecord& event, EventMessages& messages)
{
    return {sortableDateTime(localDate(event.seconds)),
            typeText(event.type),
            event.source,
            std::to_string(event.number()),
            event.computer,
            messages.messageOf(event)};
}

/// Refuses a target that no file may take the place of. Raises 76, 70.
void checkTarget(const std::wstring& target)
{
    if (!isFolderPath(folderOf(target))) throw RunTimeError(runTimeErrors::pathNotFound);
    const auto attributes = attributesOf(target);
    if (attributes && (*attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0)
        throw RunTimeError(runTimeErrors::permissionDenied);
}

} // namespace

WindowsEventLogExporter::WindowsEventLogExporter(EventLogOpener open) : open_(std::move(open)) {}

void WindowsEventLogExporter::exportEventLog(const std::string& logName, const std::string& target,
                                             int)
{
    const auto log = open_(logName);
    const std::wstring path = systemPath(target);
    checkTarget(path);
    const RootFolder folder(machinePath(folderOf(path)), RootFolder::Bounds::machine);
    sweepReplacementFiles(folder, "");
    ReplacementFile csv(folder, utf8Of(lastNameOf(path)));
    EventMessages messages(logName);
    std::string text(eventLogCsvHeader);
    for (auto records = log->next(); !records.empty(); records = log->next())
        while (const auto event = parseEventRecord(records)) {
            text += eventCsvLine(cellsOf(*event, messages), reader_);
            records.remove_prefix(event->length);
            if (text.size() < enough) continue;
            csv.write(text);
            text.clear();
        }
    csv.write(text);
    csv.commit(false);
}
