// How a large log is read by two threads: each reads a part, and the second one is put behind the
// first when both are there. What of a row depends on the lines before its part is known then.

#include "timeline/sources/log_source.h"

#include <exception>
#include <limits>
#include <thread>
#include <utility>
#include <vector>

namespace timeline {

/// A part of a log, read as if it were a log of its own.
struct LogSource::Part {
    Stamp first; ///< of its first row
    LogSource log;
    SourceRows rows;
    Progress progress;
    std::exception_ptr failure;
};

/// Whether parts can be read without what stands before them. What a filter says of a moment can't
/// be asked where the day is not known, and no more rows than are enough are to be read.
bool LogSource::canBeParted(const Filter& filter, const Progress& progress) const
{
    constexpr std::size_t all = std::numeric_limits<std::size_t>::max();
    return progress.spareThread && !progress.cancelled && progress.enough == all &&
           facts_.source.form != LineForm::data && !facts_.localTime && !filter.choice().since &&
           !filter.choice().until;
}

/// The place of the first row at another place or soon behind it, and its stamp.
std::optional<std::uint64_t> LogSource::findRow(std::uint64_t from, Stamp& stamp) const
{
    constexpr std::uint64_t soon = 256U << 10;
    const KeptFile::Use use(*file_);
    LineReader reader(use.descriptor(), from, LineReader::smallPiece);
    FileLine line;
    LineFields fields;
    reader.next(line); // from the middle on
    while (reader.next(line) && line.offset < from + soon)
        if (cutLine(line.text, facts_.source.form, fields) && readStamp(fields.timeStamp, stamp))
            return line.offset;
    return std::nullopt;
}

/// Reads two parts of about so many bytes at a time. False, with the first one read or a part of
/// it, when the file has not the lines that such parts need.
bool LogSource::readTwoParts(std::uint64_t partBytes, const Filter& filter, SourceRows& rows,
                             Progress& progress)
{
    Stamp first;
    const auto begin = findRow(offset_ + partBytes, first);
    if (!begin) return false;
    Part part{first, LogSource(facts_, file_), {}, {}, {}};
    part.log.offset_ = *begin;
    part.log.waits_ = waits_;
    part.log.carry_ = DayCarry::ofUnknownDay(first);
    {
        const std::jthread other([&] {
            try {
                part.log.readTo(*begin + partBytes, filter, part.rows, part.progress);
            } catch (...) {
                part.failure = std::current_exception();
            }
        });
        readTo(*begin, filter, rows, progress);
    }
    // The file may have changed meanwhile.
    const bool namesFit = part.log.components_.size() < NameTable::other;
    if (offset_ != *begin || !namesFit) return false;
    join(part, rows);
    progress.done += part.progress.done;
    if (part.failure) std::rethrow_exception(part.failure);
    return true;
}

/// Puts a part behind what was read, and goes on behind it.
void LogSource::join(Part& part, SourceRows& rows)
{
    const Moment moved = carry_.goOn(part.log.carry_, part.first);
    std::vector<std::uint16_t> components;
    for (std::size_t name = 0; name < part.log.components_.size(); ++name)
        components.push_back(
            components_.numberOf(part.log.components_.text(static_cast<std::uint16_t>(name))));
    // A row is freed as soon as it has its place, so that rows do not take twice their room.
    for (; !part.rows.empty(); part.rows.pop_front()) {
        IndexRow& row = rows.emplace_back(part.rows.front());
        if (DayCarry::isOfUnknownDay(row.moment)) row.moment += moved;
        row.line += lines_;
        if (row.component != NameTable::other) row.component = components[row.component];
    }
    if (longLines_ == 0) firstLongLine_ = lines_ + part.log.firstLongLine_;
    longLines_ += part.log.longLines_;
    emptyLines_.add(part.log.emptyLines_, lines_);
    lines_ += part.log.lines_;
    offset_ = part.log.offset_;
    rowTaken_ = part.log.rowTaken_;
}

} // namespace timeline
