#pragma once

#include "timeline/lines/line_reader.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace timeline {

/// A record of comma-separated text (RFC 4180) in UTF-8, U+FFFD for each byte that is none. It is
/// used again, so that its texts keep their room.
class CsvRecord {
public:
    std::size_t size() const { return count_; }
    std::string_view cell(std::size_t number) const { return cells_[number]; }

    /// The lines as they stand there, parted by line feeds, without the last one's end.
    std::string_view whole() const { return whole_; }

    std::uint64_t offset = 0; ///< of its first line
    std::uint32_t line = 0;   ///< its first line's number, from 1
    bool broken = false;      ///< its quotes are open at the end: it is one line, taken as it is

private:
    friend class EventCsvReader;

    enum class Place { cellBegins, inCell, inQuotes, behindQuotes };

    void begin();
    /// Takes a line; false while its quotes are open.
    bool take(std::string_view text);
    void take(char character);
    void beginCell();

    std::vector<std::string> cells_;
    std::size_t count_ = 0;
    Place place_ = Place::cellBegins;
    std::string whole_;
};

/// Reads comma-separated text record by record, whatever stands in it: a quote that nothing closes
/// spoils the line it stands in, and no more.
class EventCsvReader {
public:
    /// A record of more bytes has a quote that nothing closes.
    static constexpr std::size_t longestRecord = 1U << 20;

    /// `file` stays open while the reader is used. `lines` is how many there are in front of
    /// `offset`.
    explicit EventCsvReader(const FileDescriptor& file, std::uint64_t offset = 0,
                            std::uint32_t lines = 0);

    /// The next record; false at the end of the file. Raises 57, 7.
    bool next(CsvRecord& record);

    /// The record at a place where one begins; false at the end of the file.
    bool at(std::uint64_t offset, bool broken, CsvRecord& record);

    /// Where the next record begins, and how many lines are in front of it.
    std::uint64_t offset() const { return reader_.offset(); }
    std::uint32_t lines() const { return lines_; }

private:
    std::string_view utf8Of(std::string_view line);
    bool takeLines(CsvRecord& record);
    bool takeAsItIs(CsvRecord& record);

    LineReader reader_;
    std::string room_;
    std::uint32_t lines_;
    std::uint64_t brokenUntil_ = 0; ///< in front of this place no record goes on behind its line
};

} // namespace timeline
