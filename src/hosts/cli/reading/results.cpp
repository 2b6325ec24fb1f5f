#include "hosts/cli/reading/results.h"

#include "hosts/cli/reading/read_options.h"
#include "hosts/cli/terminal/message.h"
#include "runtime/run_time_error.h"
#include "system/environment.h"
#include "system/pager.h"
#include "system/terminal.h"

#include <cstdio>

namespace cli {

namespace {

constexpr std::size_t widthWithoutTerminal = 80;
constexpr std::size_t writtenAtOnce = 64U << 10;

/// What the person wants to read long results in: the empty text for the usual.
std::string chosenPager()
{
    for (const char* name : {"ORVAN_PAGER", "PAGER"})
        if (const auto chosen = environmentVariable(name); chosen && !chosen->empty())
            return *chosen;
    return {};
}

bool wantsColours(const ReadOptions& options, bool terminal)
{
    if (options.color != "auto") return options.color == "always";
    const auto noColour = environmentVariable("NO_COLOR");
    return terminal && (!noColour || noColour->empty()) &&
           environmentVariable("TERM").value_or("") != "dumb";
}

} // namespace

ResultTarget::ResultTarget(const ReadOptions& options, Output& output)
    : output_(output), pager_(chosenPager()), terminal_(outputGoesToATerminal()),
      colours_(wantsColours(options, terminal_)), width_(widthWithoutTerminal)
{
    pages_ = terminal_ && !options.noPager && !options.follow && pager_ != "cat";
    if (const auto width = widthOfOutputTerminal()) width_ = static_cast<std::size_t>(*width);
}

ResultTarget::~ResultTarget()
{
    if (!interrupt_) return;
    std::fflush(stdout);
    endPager();
}

void ResultTarget::begin()
{
    if (pages_ && startPager(pager_)) interrupt_.emplace(InterruptWish::Repeated::isIgnored);
}

bool ResultTarget::isOver() const
{
    return output_.failed() || (interrupt_ && interrupt_->made());
}

void ResultTarget::end()
{
    output_.finish();
    if (!interrupt_) return;
    endPager();
    interrupt_.reset();
}

const RowCells* TellingReader::read(const timeline::IndexRow& row)
{
    try {
        return &reader_.read(row);
    } catch (const RunTimeError& error) {
        if (told_ != error.description()) printMessage(told_ = error.description());
        return nullptr;
    }
}

bool writeRows(const ShownRows& rows, RowReader& reader, RowFormat& format, ResultTarget& target)
{
    TellingReader telling(reader);
    std::size_t measured = format.rowsToMeasure();
    for (auto walk = rows.walk(); measured > 0; --measured) {
        const timeline::IndexRow* row = walk.next();
        if (row == nullptr) break;
        if (const RowCells* cells = telling.read(*row)) format.measure(*cells);
    }
    std::string text;
    format.begin(text);
    auto walk = rows.walk();
    while (const timeline::IndexRow* row = walk.next()) {
        if (target.isOver()) return true;
        if (const RowCells* cells = telling.read(*row)) format.row(*cells, reader.record(), text);
        if (text.size() < writtenAtOnce) continue;
        target.output().bytes(text);
        text.clear();
    }
    format.end(text);
    target.output().bytes(text);
    return !telling.failed();
}

} // namespace cli
