#pragma once

#include "system/file_descriptor.h"
#include "timeline/lines/day_carry.h"
#include "timeline/lines/empty_lines.h"
#include "timeline/lines/line_reader.h"
#include "timeline/sources/open_files.h"
#include "timeline/sources/source.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace timeline {

/// What a log can't tell of itself.
struct LogFacts {
    SourceFacts source;
    /// When it was begun. Absent where all lines have a date.
    std::optional<Moment> opened;
    CodePage codePage = windows1252();
    /// From the moment of a stamp of universal time to that of the server's clock; unset where
    /// stamps are in the server's time.
    std::function<Moment(Moment)> localTime;
};

/// A log of the server: raw, a formatted copy, or a data file.
class LogSource final : public Source {
public:
    /// `file` is what the log's bytes are read from.
    LogSource(LogFacts facts, std::shared_ptr<KeptFile> file);

    const SourceFacts& facts() const override { return facts_.source; }
    void read(const Filter& filter, SourceRows& rows, Progress& progress) override;
    void record(const IndexRow& row, Record& record) override;
    bool appendLine(const IndexRow& row, std::string& bytes) override;
    void recordOfLine(const IndexRow& row, std::string_view line, Record& record) override;

    std::uint64_t numberOf(const IndexRow& row) const override;

    void letGo() override { recordReader_.reset(); }

    /// How far it was read, in bytes.
    std::uint64_t bytesRead() const { return offset_; }

    /// Whether a last line that has no end yet waits until it is whole.
    void waitForLineEnds(bool wait) { waits_ = wait; }

    /// How much of a large log each of two threads reads at a time, in bytes. A log with less than
    /// two of the smallest is read by one.
    struct PartSizes {
        std::uint64_t smallest = 1U << 20;
        std::uint64_t largest = 32U << 20;
    };
    void readInParts(PartSizes sizes) { partSizes_ = sizes; }

    const LogFacts& logFacts() const { return facts_; }

    /// Which file it is read from.
    const FileIdentity& fileIdentity() const { return file_->identity(); }

private:
    class Reading;
    struct Part;

    void readTo(std::uint64_t until, const Filter& filter, SourceRows& rows, Progress& progress);
    bool canBeParted(const Filter& filter, const Progress& progress) const;
    bool readTwoParts(std::uint64_t partBytes, const Filter& filter, SourceRows& rows,
                      Progress& progress);
    std::optional<std::uint64_t> findRow(std::uint64_t from, Stamp& stamp) const;
    void join(Part& part, SourceRows& rows);

    Moment momentOf(const LineFields& fields);
    std::string_view lineOf(const IndexRow& row);
    void noteLongLine(std::uint32_t line);
    void tellLongLines();

    LogFacts facts_;
    std::shared_ptr<KeptFile> file_;
    DayCarry carry_;
    std::uint64_t offset_ = 0;
    std::uint32_t lines_ = 0; ///< that were read
    EmptyLines emptyLines_;   ///< among them
    std::uint32_t firstLongLine_ = 0;
    std::uint32_t longLines_ = 0; ///< that were met and not told of yet
    bool rowTaken_ = true;        ///< whether the last row was let through
    bool waits_ = false;
    PartSizes partSizes_;
    std::unique_ptr<LineReader> recordReader_;
};

} // namespace timeline
