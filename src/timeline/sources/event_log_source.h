#pragma once

#include "timeline/sources/event_csv_reader.h"
#include "timeline/sources/open_files.h"
#include "timeline/sources/source.h"

#include <memory>
#include <optional>

namespace timeline {

/// Whether a file that begins with such bytes is an exported event log.
bool isEventLog(std::string_view head);

/// The level that the type of an event counts as: the system's number of it, 1 for an error, 2 for
/// a warning, 4 for information, 8 and 16 for audits; 0 for any other.
std::int16_t levelOfEventType(std::string_view type);

/// An exported event log. A record that is no event belongs to the one before it, as a line without
/// a form does.
class EventLogSource final : public Source {
public:
    EventLogSource(SourceFacts facts, std::shared_ptr<KeptFile> file);

    const SourceFacts& facts() const override { return facts_; }
    void read(const Filter& filter, SourceRows& rows, Progress& progress) override;
    void record(const IndexRow& row, Record& record) override;

private:
    class Reading;

    SourceFacts facts_;
    std::shared_ptr<KeptFile> file_;
    std::uint64_t offset_ = 0;
    std::uint32_t lines_ = 0;
    Moment lastMoment_ = noMoment;
    bool rowTaken_ = true; ///< whether the last event was let through
    CsvRecord csv_;        ///< of the record that was asked for last
};

} // namespace timeline
