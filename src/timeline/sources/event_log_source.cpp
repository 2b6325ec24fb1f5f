#include "timeline/sources/event_log_source.h"

#include "platform/event_log_exporter.h"
#include "runtime/numbers.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"
#include "system/file_facts.h"
#include "text/utf8.h"
#include "timeline/lines/stamp.h"

#include <algorithm>
#include <charconv>

namespace timeline {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// The columns of an exported event log, in their order.
enum EventColumn : std::size_t { time, type, source, id, computer, message, eventColumns };

/// In the place of a record: it is to be read as it is, its quotes are open at its end.
constexpr std::uint64_t brokenBit = std::uint64_t{1} << (IndexRow::placeBits - 1);

std::string_view withoutMark(std::string_view text)
{
    return text.starts_with(byteOrderMark) ? text.substr(byteOrderMark.size()) : text;
}

std::string_view headerLine()
{
    return eventLogCsvHeader.substr(0, eventLogCsvHeader.find('\r'));
}

bool isHeader(const CsvRecord& record)
{
    return record.offset == 0 && equalIgnoringCase(withoutMark(record.whole()), headerLine());
}

/// The moment of an event; nothing for a record that is none. Further cells than an event has are
/// of a message that lost its quotes.
std::optional<Moment> momentOf(const CsvRecord& record)
{
    Stamp stamp;
    if (record.broken || record.size() < eventColumns) return std::nullopt;
    std::string_view text = record.cell(time);
    if (record.offset == 0) text = withoutMark(text);
    if (!readStamp(text, stamp) || !stamp.dated) return std::nullopt;
    return stamp.day + stamp.clock;
}

std::int32_t numberOf(std::string_view text)
{
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? number : 0;
}

std::string_view messageOf(const CsvRecord& record)
{
    if (record.size() == eventColumns) return record.cell(message);
    // As it stands there, from the last cell of an event on.
    std::string_view rest = record.whole();
    for (std::size_t column = 0; column < message; ++column)
        rest.remove_prefix(std::min(rest.find(',') + 1, rest.size()));
    return rest;
}

void fillFields(const CsvRecord& csv, Record& record)
{
    record.hasForm = true;
    record.timeStamp = csv.offset == 0 ? withoutMark(csv.cell(time)) : csv.cell(time);
    record.source = csv.cell(source);
    record.traceNumber = numberOf(csv.cell(id));
    record.level = levelOfEventType(csv.cell(type));
    record.trace = messageOf(csv);
}

} // namespace

bool isEventLog(std::string_view head)
{
    const std::string_view first = withoutMark(head);
    const std::string_view line = first.substr(0, first.find_first_of("\r\n"));
    return equalIgnoringCase(line, headerLine());
}

std::int16_t levelOfEventType(std::string_view type)
{
    struct TypeLevel {
        std::string_view type;
        std::int16_t level;
    };
    constexpr TypeLevel levels[] = {{"Error", 1},
                                    {"Warning", 2},
                                    {"Information", 4},
                                    {"Success Audit", 8},
                                    {"Failure Audit", 16}};
    const auto* found = std::find_if(std::begin(levels), std::end(levels), [&](const auto& each) {
        return equalIgnoringCase(each.type, type);
    });
    return found == std::end(levels) ? std::int16_t{0} : found->level;
}

EventLogSource::EventLogSource(SourceFacts facts, std::shared_ptr<KeptFile> file)
    : facts_(std::move(facts)), file_(std::move(file))
{}

/// One call of `read`.
class EventLogSource::Reading {
public:
    Reading(EventLogSource& source, const Filter& filter, SourceRows& rows)
        : source_(source), filter_(filter), rows_(rows), search_(filter, nullptr),
          rowBegin_(rows.size())
    {
        search_.begin();
    }

    void take(const CsvRecord& csv)
    {
        const auto moment = momentOf(csv);
        if (moment || source_.lines_ == 0) beginRow(csv, moment);
        if (!source_.rowTaken_) return;
        look(csv);
        IndexRow& row = rows_.emplace_back();
        row.moment = source_.lastMoment_;
        row.place = csv.offset | (csv.broken ? brokenBit : 0);
        row.line = csv.line;
        row.marks = moment ? 0 : IndexRow::belongs;
        if (moment) row.level = static_cast<std::int8_t>(record_.level);
    }

    /// Takes the last row back when its records lack what is searched for.
    void endRow()
    {
        if (!source_.rowTaken_ || !filter_.hasPatterns() || search_.fits()) return;
        rows_.resize(rowBegin_);
        source_.rowTaken_ = false;
    }

private:
    void beginRow(const CsvRecord& csv, std::optional<Moment> moment)
    {
        endRow();
        record_ = Record();
        if (moment) fillFields(csv, record_);
        if (moment) source_.lastMoment_ = *moment;
        record_.process = source_.facts_.process;
        record_.moment = source_.lastMoment_;
        source_.rowTaken_ = filter_.takesFields(record_);
        rowBegin_ = rows_.size();
        search_.begin();
    }

    /// Shows the search the cells of a record as one line, and the further lines of its message.
    void look(const CsvRecord& csv)
    {
        if (!filter_.hasPatterns()) return;
        text_.clear();
        for (std::size_t cell = 0; cell < csv.size(); ++cell) {
            if (cell > 0) text_ += ',';
            text_ += csv.cell(cell);
        }
        for (std::string_view rest = text_;;) {
            const std::size_t end = rest.find('\n');
            search_.look(rest.substr(0, end));
            if (end == std::string_view::npos) return;
            rest.remove_prefix(end + 1);
        }
    }

    EventLogSource& source_;
    const Filter& filter_;
    SourceRows& rows_;
    Filter::Search search_;
    std::size_t rowBegin_;
    Record record_;
    std::string text_;
};

void EventLogSource::read(const Filter& filter, SourceRows& rows, Progress& progress)
{
    const KeptFile::Use use(*file_);
    const auto size = static_cast<std::uint64_t>(factsOf(use.descriptor()).size);
    if (size > offset_) progress.total += size - offset_;
    EventCsvReader reader(use.descriptor(), offset_, lines_);
    Reading reading(*this, filter, rows);
    CsvRecord csv;
    while (!progress.cancelled && reader.next(csv)) {
        if (!isHeader(csv) && !csv.whole().empty()) reading.take(csv);
        progress.done += reader.offset() - offset_;
        offset_ = reader.offset();
        lines_ = reader.lines();
    }
    reading.endRow();
}

void EventLogSource::record(const IndexRow& row, Record& record)
{
    const KeptFile::Use use(*file_);
    EventCsvReader reader(use.descriptor());
    const std::uint64_t place = row.placeInSource();
    if (!reader.at(place & ~brokenBit, (place & brokenBit) != 0, csv_))
        throw RunTimeError(runTimeErrors::deviceIo,
                           facts_.name + " has line " + std::to_string(row.line) + " no more");
    std::string bytes = std::move(record.bytes);
    record = Record();
    record.bytes = std::move(bytes);
    if (!row.belongsToRowBefore() && momentOf(csv_))
        fillFields(csv_, record);
    else
        record.trace = csv_.whole();
    record.moment = row.moment;
    record.process = facts_.process;
    record.file = facts_.name;
    record.line = row.line;
    record.whole = csv_.whole();
}

} // namespace timeline
