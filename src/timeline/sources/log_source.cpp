#include "timeline/sources/log_source.h"

#include "runtime/dates.h"
#include "runtime/run_time_error.h"
#include "timeline/lines/passable_lines.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace timeline {

namespace {

/// The moment of a stamp in any form that the tool knows for a date and a time.
std::optional<Moment> momentOfText(std::string_view stamp)
{
    constexpr double daysFrom1899To1970 = 25569;
    try {
        const Date date = parseDate(stamp);
        if (date.days < 1) return std::nullopt;
        const double seconds = std::round((date.days - daysFrom1899To1970) * 86400);
        return static_cast<Moment>(seconds) * 1000;
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

std::int8_t indexedLevel(std::int16_t level)
{
    return level > IndexRow::otherLevel && level <= 127 ? static_cast<std::int8_t>(level)
                                                        : IndexRow::otherLevel;
}

} // namespace

LogSource::LogSource(LogFacts facts, std::shared_ptr<KeptFile> file)
    : facts_(std::move(facts)), file_(std::move(file)), carry_(facts_.opened)
{}

Moment LogSource::momentOf(const LineFields& fields)
{
    Stamp stamp;
    const bool common = readStamp(fields.timeStamp, stamp);
    if (!facts_.localTime) return common ? carry_.at(stamp) : carry_.last();
    std::optional<Moment> universal;
    if (common && stamp.dated)
        universal = stamp.day + stamp.clock;
    else
        universal = momentOfText(fields.timeStamp);
    if (!universal) return carry_.last();
    const Moment local = facts_.localTime(*universal);
    stamp.dated = true;
    stamp.day = dayOf(local);
    stamp.clock = static_cast<std::int32_t>(local - stamp.day);
    return carry_.at(stamp);
}

void LogSource::noteLongLine(std::uint32_t line)
{
    if (longLines_++ == 0) firstLongLine_ = line;
}

/// One sentence, however many there are.
void LogSource::tellLongLines()
{
    const std::uint32_t count = std::exchange(longLines_, 0);
    if (count == 0) return;
    const std::string most = std::to_string(LineReader::longestLine >> 20) + " MB";
    std::string lines = "line " + std::to_string(firstLongLine_);
    if (count > 1) lines += " and " + std::to_string(count - 1) + " more";
    troubles_.push_back(lines + " of " + facts_.source.name +
                        (count == 1 ? " is too long: what stands behind its first "
                                    : " are too long: what stands behind their first ") +
                        most + " is left out");
}

std::uint64_t LogSource::numberOf(const IndexRow& row) const
{
    return row.line - emptyLines_.before(row.line);
}

/// One call of `read`.
class LogSource::Reading {
public:
    Reading(LogSource& source, const Filter& filter, SourceRows& rows)
        : source_(source), filter_(filter), rows_(rows), search_(filter, &source.facts_.codePage),
          searches_(filter.hasPatterns()), rowBegin_(rows.size())
    {
        record_.process = source.facts_.source.process;
        record_.codePage = &source.facts_.codePage;
        if (source_.lines_ > 0) return;
        record_.moment = noMoment;
        source_.rowTaken_ = filter_.takesFields(record_);
        rowOpen_ = searches_;
    }

    /// Reads up to the first line with a form at `until` or behind it.
    void readTo(std::uint64_t until, const FileDescriptor& file, Progress& progress)
    {
        until_ = until;
        constexpr std::uint32_t linesBetweenReports = 4096;
        LineReader reader(file, source_.offset_);
        FileLine line;
        std::uint64_t reported = source_.offset_;
        while (reader.next(line)) {
            if (!line.ended && source_.waits_) break;
            const bool hasForm = cutLine(line.text, source_.facts_.source.form, fields_);
            if (source_.lines_ % linesBetweenReports == 0) {
                progress.done += line.offset - reported;
                reported = line.offset;
            }
            if (hasForm) {
                if (progress.cancelled || line.offset >= until_) break;
                endRow();
                if (searches_ && passOver(reader, line)) continue;
            }
            if (rows_.size() >= progress.enough && (hasForm || !searches_)) break;
            source_.offset_ = reader.offset();
            ++source_.lines_;
            if (line.cut) source_.noteLongLine(source_.lines_);
            if (line.text.empty()) {
                source_.emptyLines_.add(source_.lines_);
                continue;
            }
            if (hasForm) beginRow();
            if (source_.rowTaken_) add(line, hasForm);
        }
        endRow();
        progress.done += source_.offset_ - reported;
    }

private:
    /// Passes over rows from one on that surely lack what is searched for, to the beginning of a
    /// row that may have it. False where it is that one.
    bool passOver(LineReader& reader, const FileLine& line)
    {
        if (std::exchange(arrived_, false) || source_.facts_.source.form == LineForm::data)
            return false;
        if (rowsUnsearched_ > 0) return --rowsUnsearched_, false;
        if (line.offset < walkedTo_) return false;
        const KnownLines lines = reader.linesFrom(line);
        const std::size_t place = placeFrom(line, lines.bytes);
        if (place <= line.text.size()) {
            // Where many rows fit, to look for each beforehand takes longer than to look at all.
            pause_ = std::min(pause_ * 2 + 1, 63);
            rowsUnsearched_ = pause_;
            return false;
        }
        pause_ = 0;
        const std::uint64_t left = until_ - line.offset;
        findPassableLines(lines, std::min<std::uint64_t>(place, left), source_.carry_.lastSecond(),
                          passable_);
        LineFields fields;
        const std::string_view next = lines.bytes.substr(passable_.bytes);
        if (passable_.bytes == 0) return false;
        if (!cutLine(next.substr(0, next.find('\n')), source_.facts_.source.form, fields)) {
            walkedTo_ = line.offset + passable_.bytes;
            return false;
        }
        for (const std::uint32_t empty : passable_.empty)
            if (empty < passable_.count) source_.emptyLines_.add(source_.lines_ + empty + 1);
        source_.lines_ += passable_.count;
        source_.offset_ = line.offset + passable_.bytes;
        source_.rowTaken_ = false;
        reader.goTo(source_.offset_);
        arrived_ = true;
        return true;
    }

    /// A place among lines before whose line no row ends that fits; their end for no such place.
    /// Nothing is searched twice.
    std::size_t placeFrom(const FileLine& line, std::string_view lines)
    {
        if (line.offset + line.text.size() < searchedTo_)
            return static_cast<std::size_t>(searchedTo_ - line.offset);
        const std::size_t place = std::min(search_.firstPlaceIn(lines), lines.size());
        searchedTo_ = line.offset + place;
        return place;
    }

    void beginRow()
    {
        record_.moment = source_.momentOf(fields_);
        record_.hasForm = true;
        if (filter_.asksForFields()) {
            record_.source = fields_.source;
            record_.traceNumber = fields_.traceNumber;
            record_.component = fields_.component;
            record_.level = fields_.level;
            record_.thread = fields_.thread;
            record_.port = fields_.port;
            record_.callId = fields_.callId;
        }
        source_.rowTaken_ = filter_.takesFields(record_);
        rowBegin_ = rows_.size();
        rowOpen_ = searches_;
        if (searches_) search_.begin();
    }

    void add(const FileLine& line, bool hasForm)
    {
        if (rowOpen_) search_.look(line.text);
        IndexRow& row = rows_.emplace_back();
        row.moment = hasForm ? record_.moment : source_.carry_.last();
        row.place = line.offset;
        row.line = source_.lines_;
        row.marks = hasForm ? 0 : IndexRow::belongs;
        if (!hasForm) return;
        row.component = source_.components_.numberOf(fields_.component);
        row.level = indexedLevel(fields_.level);
    }

    /// Takes the last row back when its lines lack what is searched for.
    void endRow()
    {
        if (!rowOpen_ || !source_.rowTaken_) return;
        rowOpen_ = false;
        if (search_.fits()) return;
        rows_.resize(rowBegin_);
        source_.rowTaken_ = false;
    }

    LogSource& source_;
    const Filter& filter_;
    SourceRows& rows_;
    Filter::Search search_;
    bool searches_;
    bool arrived_ = false;   ///< whether the next row is the one that was gone on to
    int rowsUnsearched_ = 0; ///< how many rows are looked at before the search goes ahead again
    int pause_ = 0;
    PassableLines passable_;
    std::uint64_t until_ = 0;
    bool rowOpen_ = false;         ///< whether its lines are still searched
    std::uint64_t searchedTo_ = 0; ///< where in the file the search has come to
    std::uint64_t walkedTo_ = 0;   ///< a line of the file in front of which none can be gone on to
    std::size_t rowBegin_;
    LineFields fields_;
    Record record_;
};

void LogSource::read(const Filter& filter, SourceRows& rows, Progress& progress)
{
    const KeptFile::Use use(*file_);
    const auto size = static_cast<std::uint64_t>(factsOf(use.descriptor()).size);
    if (size > offset_) progress.total += size - offset_;
    const PartSizes& parts = partSizes_;
    try {
        while (canBeParted(filter, progress) && size > offset_ + 2 * parts.smallest)
            if (!readTwoParts(std::min((size - offset_) / 2, parts.largest), filter, rows,
                              progress))
                break;
        readTo(std::numeric_limits<std::uint64_t>::max(), filter, rows, progress);
    } catch (const RunTimeError&) {
        tellLongLines();
        throw;
    }
    tellLongLines();
}

/// Reads up to the first row at a place or behind it.
void LogSource::readTo(std::uint64_t until, const Filter& filter, SourceRows& rows,
                       Progress& progress)
{
    const KeptFile::Use use(*file_);
    Reading(*this, filter, rows).readTo(until, use.descriptor(), progress);
}

/// The line of a row, until the next call.
std::string_view LogSource::lineOf(const IndexRow& row)
{
    const KeptFile::Use use(*file_);
    if (!recordReader_)
        recordReader_ = std::make_unique<LineReader>(use.descriptor(), row.placeInSource(),
                                                     LineReader::smallPiece);
    recordReader_->goTo(row.placeInSource());
    FileLine line;
    if (!recordReader_->next(line))
        throw RunTimeError(runTimeErrors::deviceIo, facts_.source.name + " has line " +
                                                        std::to_string(row.line) + " no more");
    return line.text;
}

void LogSource::record(const IndexRow& row, Record& record)
{
    recordOfLine(row, lineOf(row), record);
}

bool LogSource::appendLine(const IndexRow& row, std::string& bytes)
{
    bytes += lineOf(row);
    return true;
}

void LogSource::recordOfLine(const IndexRow& row, std::string_view line, Record& record)
{
    LineFields fields;
    record.hasForm = !row.belongsToRowBefore() && cutLine(line, facts_.source.form, fields);
    if (!record.hasForm) {
        fields = LineFields();
        fields.trace = line;
    }
    record.moment = row.moment;
    record.process = facts_.source.process;
    record.file = facts_.source.name;
    record.line = row.line;
    record.timeStamp = fields.timeStamp;
    record.source = fields.source;
    record.traceNumber = fields.traceNumber;
    record.component = fields.component;
    record.level = fields.level;
    record.thread = fields.thread;
    record.port = fields.port;
    record.callId = fields.callId;
    record.trace = fields.trace;
    record.whole = line;
    record.codePage = &facts_.codePage;
}

} // namespace timeline
