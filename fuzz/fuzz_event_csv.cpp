#include "require.h"

#include "runtime/run_time_error.h"
#include "system/child_process.h"
#include "system/file_bytes.h"
#include "text/utf8.h"
#include "timeline/sources/event_log_source.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace timeline;

FileDescriptor fileOf(std::string_view bytes)
{
    FileDescriptor file = makeMemoryFile();
    require(file.isOpen());
    writeAll(file, bytes);
    return file;
}

std::string cellsOf(const CsvRecord& record)
{
    std::string cells;
    for (std::size_t cell = 0; cell < record.size(); ++cell)
        cells.append(record.cell(cell)).append("|");
    return cells;
}

/// Records lie one behind the other, hold all lines, and are the same when one comes back to them.
void readRecords(std::string_view bytes)
{
    const FileDescriptor file = fileOf(bytes);
    EventCsvReader reader(file);
    EventCsvReader again(file);
    CsvRecord record;
    CsvRecord same;
    std::uint64_t at = 0;
    std::uint32_t line = 1;
    while (reader.next(record)) {
        require(record.offset == at && record.line == line && record.size() > 0);
        require(isUtf8(record.whole()) && isUtf8(cellsOf(record)));
        require(again.at(record.offset, record.broken, same));
        require(cellsOf(same) == cellsOf(record) && same.whole() == record.whole());
        require(reader.offset() > at && reader.lines() >= line);
        at = reader.offset();
        line = reader.lines() + 1;
    }
    require(at == bytes.size());
}

void readSource(std::string_view bytes)
{
    EventLogSource source({SourceKind::eventLog, "a.csv", "", "", LineForm::basic, {}},
                          std::make_shared<KeptFile>(fileOf(bytes)));
    SourceRows rows;
    Progress progress;
    source.read(Filter(), rows, progress);
    require(progress.done == bytes.size());
    Record record;
    for (const IndexRow& row : rows) {
        source.record(row, record);
        require(record.line == row.line && record.hasForm != row.belongsToRowBefore());
    }
}

} // namespace

/// Any bytes are read as an event log.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    readRecords(bytes);
    readSource(bytes);
    return 0;
}
