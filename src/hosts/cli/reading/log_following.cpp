#include "hosts/cli/reading/log_following.h"

#include "hosts/cli/terminal/message.h"
#include "system/output_reader.h"

#include <chrono>
#include <thread>

namespace cli {

namespace {

/// A line is shown soon after it was written, and looking costs next to nothing.
constexpr std::chrono::milliseconds betweenLooks{100};

void write(const timeline::News& news, TellingReader& reader, RowFormat& format, Output& output)
{
    std::string text;
    for (const timeline::IndexRow& row : news.rows)
        if (const RowCells* cells = reader.read(row)) format.row(*cells, reader.record(), text);
    format.end(text);
    output.bytes(text);
    output.finish();
    reader.tellOthers();
}

} // namespace

bool followRows(timeline::Follower& follower, RowReader& reader, RowFormat& format,
                ResultTarget& target, const InterruptWish& interrupt)
{
    TellingReader telling(reader);
    target.output().finish();
    while (!interrupt.made() && !target.isOver() && outputHasAReader()) {
        const timeline::News news = follower.look(std::chrono::steady_clock::now());
        if (!news.rows.empty()) write(news, telling, format, target.output());
        for (const std::string& notice : news.notices) printMessage(notice);
        std::this_thread::sleep_for(betweenLooks);
    }
    return !telling.failed();
}

} // namespace cli
