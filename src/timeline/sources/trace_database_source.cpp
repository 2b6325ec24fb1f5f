#include "timeline/sources/trace_database_source.h"

#include "platform/trace_database.h"
#include "runtime/dates.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace timeline {

namespace {

/// Reads the number that a text begins with, and what stands behind it.
bool takeNumber(std::string_view& text, int& number, char behind)
{
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || number < 0) return false;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    if (behind == '\0') return text.empty();
    if (!text.starts_with(behind)) return false;
    text.remove_prefix(1);
    return true;
}

/// "10/8/2005 15:23:07:120", as nearly all rows have it.
std::optional<Moment> commonMoment(std::string_view text)
{
    int month = 0;
    int day = 0;
    int year = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    int millisecond = 0;
    const bool fits = takeNumber(text, month, '/') && takeNumber(text, day, '/') &&
                      takeNumber(text, year, ' ') && takeNumber(text, hour, ':') &&
                      takeNumber(text, minute, ':') && takeNumber(text, second, ':') &&
                      takeNumber(text, millisecond, '\0');
    if (!fits || month < 1 || month > 12 || day < 1 || day > 31 || year < 100 || year > 9999 ||
        hour > 23 || minute > 59 || second > 59 || millisecond > 999)
        return std::nullopt;
    const Moment midnight = dayOf(year, month, day);
    const MomentParts parts = partsOf(midnight);
    if (parts.month != month || parts.day != day) return std::nullopt;
    return midnight + ((hour * 60 + minute) * 60 + second) * Moment{1000} + millisecond;
}

/// The moment of a date and a time in any form that the tool knows.
std::optional<Moment> parsedMoment(std::string_view text)
{
    constexpr double daysFrom1899To1970 = 25569;
    constexpr double secondsPerDay = 86400;
    try {
        const double days = parseDate(text).days;
        return static_cast<Moment>(std::llround((days - daysFrom1899To1970) * secondsPerDay)) *
               1000;
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

template <typename Number>
Number within(std::int64_t number)
{
    return static_cast<Number>(std::clamp<std::int64_t>(number, std::numeric_limits<Number>::min(),
                                                        std::numeric_limits<Number>::max()));
}

std::int8_t indexedLevel(std::int16_t level)
{
    const bool fits =
        level > IndexRow::otherLevel && level <= std::numeric_limits<std::int8_t>::max();
    return fits ? static_cast<std::int8_t>(level) : IndexRow::otherLevel;
}

const TraceTable& tableOf(const TraceTables& tables, const std::string& name)
{
    if (const TraceTable* found = tables.find(TraceDatabaseSource::tableName)) return *found;
    throw RunTimeError(traceDatabaseErrors::noSuchTable,
                       name + " has no table of traces that can be read");
}

/// How many sentences tell of damage one by one.
constexpr std::uint64_t mostDamages = 5;

} // namespace

std::optional<Moment> momentOfRowDate(std::string_view text)
{
    if (const auto common = commonMoment(text)) return common;
    // A line without a form was stored with its day alone: it stands behind the row before it.
    if (text.find(':') == std::string_view::npos) return std::nullopt;
    // The milliseconds, behind a time that is none of the server's own.
    const std::size_t colon = text.rfind(':');
    int milliseconds = 0;
    if (colon != std::string_view::npos && text.size() - colon == 4) {
        std::string_view last = text.substr(colon + 1);
        if (takeNumber(last, milliseconds, '\0'))
            if (const auto moment = parsedMoment(text.substr(0, colon)))
                return *moment + milliseconds;
    }
    return parsedMoment(text);
}

TraceDatabaseSource::Columns::Columns(const TraceTable& table)
    : date(table.find("Date")), process(table.find("Process")), source(table.find("Source")),
      traceNumber(table.find("TraceNumber")), component(table.find("Component")),
      level(table.find("TraceLevel")), port(table.find("Port")), trace(table.find("Trace")),
      callId(table.find("CallId"))
{}

TraceDatabaseSource::TraceDatabaseSource(SourceFacts facts, std::shared_ptr<TraceTables> tables)
    : facts_(std::move(facts)), tables_(std::move(tables)), table_(tableOf(*tables_, facts_.name)),
      columns_(table_)
{
    for (const std::string& damage : tables_->damage()) noteDamage(damage);
}

bool TraceDatabaseSource::has(Column column) const
{
    switch (column) {
    case Column::thread:
        return false;
    case Column::port:
        return columns_.port != TraceTable::noColumn;
    case Column::callId:
        return columns_.callId != TraceTable::noColumn;
    default:
        return true;
    }
}

/// The cells of the current row of a table, of which those that nobody asks for are not made.
class TraceDatabaseSource::Reading {
public:
    Reading(TraceRows& rows, const Columns& columns) : rows_(rows), columns_(columns) {}

    std::string_view text(std::size_t column) const
    {
        return column == TraceTable::noColumn ? std::string_view() : rows_.text(column);
    }
    std::int64_t number(std::size_t column) const
    {
        return column == TraceTable::noColumn ? 0 : rows_.number(column);
    }

    std::string_view date() const { return text(columns_.date); }
    std::string_view component() const { return text(columns_.component); }
    std::int16_t level() const { return within<std::int16_t>(number(columns_.level)); }

    /// All but the trace, which may be long.
    void fillFields(Record& record) const
    {
        record.hasForm = true;
        record.process = text(columns_.process);
        record.timeStamp = date();
        record.source = text(columns_.source);
        record.traceNumber = within<std::int32_t>(number(columns_.traceNumber));
        record.component = component();
        record.level = level();
        record.port = text(columns_.port);
        record.callId = text(columns_.callId);
    }

    std::string_view trace() const { return text(columns_.trace); }

private:
    TraceRows& rows_;
    const Columns& columns_;
};

namespace {

/// What a row is searched in: a line as the server writes it, and the further lines of its trace.
void lookAt(Filter::Search& search, const Record& record, std::string& room)
{
    room.assign(record.timeStamp).append(",").append(record.source).append(",");
    room.append(std::to_string(record.traceNumber)).append(",").append(record.component);
    room.append(",").append(std::to_string(record.level)).append(",").append(record.trace);
    search.begin();
    for (std::string_view rest = room;;) {
        const std::size_t end = rest.find('\n');
        search.look(rest.substr(0, end));
        if (end == std::string_view::npos) return;
        rest.remove_prefix(end + 1);
    }
}

} // namespace

void TraceDatabaseSource::read(const Filter& filter, SourceRows& rows, Progress& progress)
{
    constexpr std::uint64_t rowsBetweenReports = 1024;
    if (ended_) return;
    if (!rows_) {
        rows_ = openRows();
        progress.total += rows_->total();
    }
    const Reading reading(*rows_, columns_);
    Filter::Search search(filter, nullptr);
    Record record;
    std::string room;
    std::uint64_t reported = rows_->done();
    const auto report = [&] {
        progress.done += rows_->done() - reported;
        reported = rows_->done();
    };
    const bool needsFields = filter.asksForFields() || filter.hasPatterns();
    const auto takeRow = [&] {
        record.moment = momentOfRowDate(reading.date()).value_or(lastMoment_);
        lastMoment_ = record.moment;
        record.hasForm = true;
        if (needsFields) reading.fillFields(record);
        if (!filter.takesFields(record)) return;
        if (filter.hasPatterns()) {
            record.trace = reading.trace();
            lookAt(search, record, room);
            if (!search.fits()) return;
        }
        IndexRow row;
        row.moment = record.moment;
        row.place = rows_->place();
        row.line = static_cast<std::uint32_t>(readRows_);
        row.component = components_.numberOf(reading.component());
        row.level = indexedLevel(reading.level());
        rows.push_back(row);
    };
    while (!progress.cancelled && rows.size() < progress.enough) {
        try {
            if (!rows_->next()) {
                noteEnd();
                break;
            }
            ++readRows_;
            takeRow();
        } catch (const RunTimeError& error) {
            if (error.number() != traceDatabaseErrors::unknownFormat)
                throw RunTimeError(error.number(), facts_.name + ": " + error.description());
            noteDamage(error.description());
        }
        if (readRows_ % rowsBetweenReports == 0) report();
    }
    report();
    if (ended_) rows_.reset();
}

void TraceDatabaseSource::record(const IndexRow& row, Record& record)
{
    if (!recordRows_) recordRows_ = openRows();
    if (!recordRows_->goTo(row.placeInSource()))
        throw RunTimeError(runTimeErrors::deviceIo,
                           facts_.name + " has row " + std::to_string(row.line) + " no more");
    const Reading reading(*recordRows_, columns_);
    try {
        reading.fillFields(record);
    } catch (const RunTimeError& error) {
        throw RunTimeError(error.number(), "row " + std::to_string(row.line) + " of " +
                                               facts_.name +
                                               " can't be read: " + error.description());
    }
    record.moment = row.moment;
    record.file = facts_.name;
    record.line = row.line;
    record.thread = {};
    record.trace = {};
    try {
        record.trace = reading.trace();
    } catch (const RunTimeError& error) {
        if (error.number() != traceDatabaseErrors::unknownFormat) throw;
        noteDamage(error.description()); // the row has other columns
    }
    record.whole = {};
    record.codePage = nullptr;
}

std::unique_ptr<TraceRows> TraceDatabaseSource::openRows() const
{
    return tables_->rows(table_);
}

void TraceDatabaseSource::noteDamage(const std::string& what)
{
    const std::string sentence = "a part of " + facts_.name + " can't be read: " + what;
    if (std::find(troubles_.begin(), troubles_.end(), sentence) != troubles_.end()) return;
    if (++damages_ <= mostDamages) troubles_.push_back(sentence);
}

/// Tells, once all was read, how much there was that could not be.
void TraceDatabaseSource::noteEnd()
{
    ended_ = true;
    if (damages_ > mostDamages)
        troubles_.push_back(std::to_string(damages_ - mostDamages) + " more parts of " +
                            facts_.name + " can't be read");
    if (readRows_ < table_.rowCount)
        troubles_.push_back(facts_.name + " tells of " + std::to_string(table_.rowCount) +
                            " rows, of which " + std::to_string(readRows_) + " are there");
}

} // namespace timeline
