#include "hosts/cli/reading/results.h"

#include "hosts/cli/reading/read_options.h"
#include "hosts/cli/terminal/message.h"
#include "runtime/run_time_error.h"
#include "system/environment.h"
#include "system/pager.h"
#include "system/terminal.h"

#include <cstdio>
#include <utility>

namespace cli {

namespace {

constexpr std::size_t widthWithoutTerminal = 80;
constexpr std::size_t writtenAtOnce = 64U << 10;

bool wantsColours(const std::string& wish, bool terminal)
{
    if (wish != "auto") return wish == "always";
    const auto noColour = environmentVariable("NO_COLOR");
    return terminal && (!noColour || noColour->empty()) &&
           environmentVariable("TERM").value_or("") != "dumb";
}

} // namespace

ResultTarget::ResultTarget(const ReadOptions& options, const PersonSettings& settings,
                           Output& output)
    : output_(output), pager_(settings.of("pager").value.value_or("")),
      terminal_(outputGoesToATerminal()),
      colours_(wantsColours(options.color.empty() ? settings.of("color").value.value_or("auto")
                                                  : options.color,
                            terminal_)),
      width_(widthWithoutTerminal)
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
        if (std::exchange(failed_, true))
            ++others_;
        else
            printMessage(error.description());
        return nullptr;
    }
}

void TellingReader::tellOthers()
{
    if (const std::size_t others = std::exchange(others_, 0); others > 0)
        printMessage(std::to_string(others) +
                     (others == 1 ? " more row can't be read" : " more rows can't be read"));
}

namespace {

void measureRows(const ShownRows& rows, RowReader& reader, RowFormat& format)
{
    auto walk = rows.walk();
    for (std::size_t left = format.rowsToMeasure(); left > 0; --left) {
        const timeline::IndexRow* row = walk.next();
        if (row == nullptr) return;
        try {
            format.measure(reader.read(*row));
        } catch (const RunTimeError&) {
            continue; // it is told when it is to be written
        }
    }
}

} // namespace

bool writeRows(const ShownRows& rows, RowReader& reader, RowFormat& format, ResultTarget& target)
{
    measureRows(rows, reader, format);
    TellingReader telling(reader);
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
    telling.tellOthers();
    return !telling.failed();
}

} // namespace cli
