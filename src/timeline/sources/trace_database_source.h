#pragma once

#include "platform/trace_rows.h"
#include "timeline/sources/source.h"

#include <memory>
#include <optional>
#include <string>

namespace timeline {

/// The moment of a text of the column "Date", such as "10/8/2005 15:23:07:120"; nothing for a text
/// that names none, or a day alone.
std::optional<Moment> momentOfRowDate(std::string_view text);

/// The table of traces of a trace database. Rows of several processes stand in it, each with its
/// own; "Highlight" and the key of the filters are nothing to a reader.
class TraceDatabaseSource final : public Source {
public:
    static constexpr std::string_view tableName = "tblTraces";

    /// Raises 3078, with a sentence, for a database without that table.
    TraceDatabaseSource(SourceFacts facts, std::shared_ptr<TraceTables> tables);

    const SourceFacts& facts() const override { return facts_; }
    bool has(Column column) const override;
    void read(const Filter& filter, SourceRows& rows, Progress& progress) override;
    void record(const IndexRow& row, Record& record) override;
    void letGo() override { recordRows_.reset(); }

    /// The whole database.
    const TraceTables& tables() const { return *tables_; }

private:
    class Reading;

    /// The places of the columns; `TraceTable::noColumn` for a table that lacks one.
    struct Columns {
        explicit Columns(const TraceTable& table);

        std::size_t date, process, source, traceNumber, component, level, port, trace, callId;
    };

    std::unique_ptr<TraceRows> openRows() const;
    void noteDamage(const std::string& what);
    void noteEnd();

    SourceFacts facts_;
    std::shared_ptr<TraceTables> tables_;
    const TraceTable& table_;
    Columns columns_;
    std::unique_ptr<TraceRows> rows_;       ///< as far as it was read
    std::unique_ptr<TraceRows> recordRows_; ///< for single rows
    std::uint64_t readRows_ = 0;
    std::uint64_t damages_ = 0;
    bool ended_ = false;
    Moment lastMoment_ = noMoment;
};

} // namespace timeline
