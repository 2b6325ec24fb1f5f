#include "hosts/viewer/document/row_names.h"

#include "runtime/run_time_error.h"
#include "timeline/filter/filter.h"

#include <algorithm>
#include <chrono>

namespace viewer {

namespace {

using timeline::Timeline;

constexpr std::chrono::milliseconds learnedAtOnce{2};
constexpr std::size_t rowsLearnedAtOnce = 64; ///< between two looks at the clock

} // namespace

std::uint8_t RowNames::numberOf(std::vector<std::string>& texts, const std::string& text)
{
    const auto known = std::find(texts.begin(), texts.end(), text);
    if (known == texts.end() && texts.size() >= unknown) return unknown;
    const auto number = static_cast<std::uint8_t>(known - texts.begin());
    if (known == texts.end()) texts.push_back(text);
    return number;
}

void RowNames::check(const Timeline& timeline)
{
    for (std::size_t number = 0; number < logs_.size(); ++number) {
        Log& log = logs_[number];
        if (log.sources.empty()) continue;
        const timeline::SourceRows& rows = timeline.rowsOf(number);
        const std::size_t last = log.sources.size() - 1;
        if (!timeline.isWithdrawn(number) && last < rows.size() &&
            rows[last].place == log.lastPlace)
            continue;
        log.sources.clear();
        log.processes.clear();
    }
}

void RowNames::forgetFrom(const Timeline& timeline, std::size_t log, std::size_t position)
{
    if (log >= logs_.size() || position >= logs_[log].sources.size()) return;
    Log& known = logs_[log];
    known.sources.resize(position);
    if (known.processes.size() > position) known.processes.resize(position);
    if (position > 0) known.lastPlace = timeline.rowsOf(log)[position - 1].place;
}

bool RowNames::learn(const Timeline& timeline)
{
    logs_.resize(timeline.sourceCount());
    const auto end = std::chrono::steady_clock::now() + learnedAtOnce;
    for (std::size_t number = 0; number < logs_.size(); ++number) {
        Log& log = logs_[number];
        const std::string& process = timeline.source(number).facts().process;
        if (log.process == unknown && !process.empty()) log.process = numberOf(processes_, process);
        const std::size_t rows = timeline.isWithdrawn(number) ? 0 : timeline.rowsOf(number).size();
        if (log.sources.empty()) makeRoom(log, rows);
        while (log.sources.size() < rows) {
            learnRow(timeline, log, number);
            if (log.sources.size() % rowsLearnedAtOnce == 0 &&
                std::chrono::steady_clock::now() >= end)
                return false;
        }
    }
    return true;
}

/// Vectors that grow by themselves would leave twice the memory behind. What is more than there are
/// rows costs none until a log grows.
void RowNames::makeRoom(Log& log, std::size_t rows)
{
    const std::size_t room = rows + rows / 8;
    log.sources.reserve(room);
    if (log.process == unknown) log.processes.reserve(room);
}

void RowNames::learnRow(const Timeline& timeline, Log& log, std::size_t number)
{
    const timeline::IndexRow& row = timeline.rowsOf(number)[log.sources.size()];
    std::uint8_t process = unknown;
    std::uint8_t source = unknown;
    try {
        timeline.record(row, record_);
        source = numberOf(sources_, valueOf(record_, timeline::Column::source));
        if (log.process == unknown)
            process = numberOf(processes_, valueOf(record_, timeline::Column::process));
    } catch (const RunTimeError&) {
        // Whoever asks for its texts hears why.
    }
    log.sources.push_back(source);
    if (log.process == unknown) log.processes.push_back(process);
    log.lastPlace = row.place;
}

std::uint8_t RowNames::process(std::size_t log, std::size_t position) const
{
    if (log >= logs_.size()) return unknown;
    const Log& known = logs_[log];
    if (known.process != unknown) return known.process;
    return position < known.processes.size() ? known.processes[position] : unknown;
}

std::uint8_t RowNames::source(std::size_t log, std::size_t position) const
{
    if (log >= logs_.size() || position >= logs_[log].sources.size()) return unknown;
    return logs_[log].sources[position];
}

} // namespace viewer
