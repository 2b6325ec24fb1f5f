#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/reading/log_reading.h"
#include "hosts/cli/reading/read_options.h"

namespace cli {

namespace {

constexpr const char* teaching =
    "A bare name is looked for in the server's log folder, a path where it says, be it the\n"
    "server's or this machine's; of a folder all logs are read, and without a LOG those of the\n"
    "server's log folder. A LOG is a raw log, its formatted copy, a data file, a trace database\n"
    "(.mdb), a cabinet of these (.cab) or an exported event log (.csv), whatever its size, and\n"
    "stays as it is.\n\n"
    "Rows of one log come in its own order and with its own columns. Those of several logs are\n"
    "merged by time, and have their moment and their process, too. A line that has no form of\n"
    "the server's belongs to the row before it. Alone in a log it has 0 for its trace number and\n"
    "level and blanks in the other columns, and stands behind them as it is (with --json as\n"
    "\"raw\").\n\n"
    "A TIME is a day (2025-02-20, today, yesterday), a time of one (15:20, 15:20:07,\n"
    "15:20:07.123), both (\"2025-02-20 15:20\", 2025-02-20T15:20, \"yesterday 15:20\"), or how\n"
    "long before the last row (-2h, -1d12h, \"2 hours ago\"). It is a time of the server's clock, "
    "or\n"
    "behind a date and with an offset that of another one (2025-02-20T15:20+01:00,\n"
    "2025-02-20T14:20Z). A SPAN such as 90s, 2h, 1h30m or \"2 hours\" has whole numbers of ms, s, "
    "m, h,\n"
    "d (days) and w (weeks). Logs are old when they are read: today is the day of the last row, "
    "and so\n"
    "is the day of a time that names none; now is the last row's time. --until of a day takes all "
    "of\n"
    "it.\n\n"
    "A choice may be given several times: a row has one of the values of each column, and every\n"
    "--grep occurs in it. A macro trace is what a trace database among the LOGs says of it, or\n"
    "else the server.\n\n"
    "-n reads no further than it has to: where one of several logs has dated stamps that go back\n"
    "by more than a second, such as those of a clock that was set, rows that stand further behind\n"
    "may be missing. Without -n all is read.\n\n"
    "With --follow the last 10 rows are shown, or those of --tail, and then each that comes, with\n"
    "what a new log of the process or the folder has, until Ctrl-C. Logs that are cut off, or\n"
    "given another name, are followed on, and what became of them is told on standard error.\n\n"
    "  orvandiag logs KoCSMgr\n"
    "  orvandiag read diag_KoCSMgr_20250219_144115.txt\n"
    "  orvandiag read --since 15:20 --until 16:20\n"
    "  orvandiag read --level 0-1 --count-by component\n"
    "  orvandiag read --call 7037DE5D-FF627A52-CC2B14\n"
    "  orvandiag read --last 1d --histogram\n"
    "  orvandiag read --follow --level 0-1\n"
    "  orvandiag read --macro \"Call Flow - Transfers\" --format csv > transfers.csv\n\n"
    "What would act on a terminal instead of being seen, such as an escape, is written out\n"
    "(\\x1b), of a table in a pipe too; json and otlp have every character as it is, and raw and\n"
    "csv have it so where they go to no terminal. On a terminal rows are cut to its width\n"
    "(--wide), coloured by their level (--color, $NO_COLOR) and shown in a pager ($ORVAN_PAGER,\n"
    "$PAGER; --no-pager). Where that leaves traces no room, columns that tell little are left out\n"
    "there, which lines above tell, a day stands on a line of its own, and ~ ends a name that\n"
    "is cut. The numbers of --level and --number may be ranges. Columns are number, moment,\n"
    "process, file, line, timeStamp, source, traceNumber, component, level, thread, port, callId\n"
    "and trace; --count-by takes process, source, component, level, thread, port, callId and\n"
    "traceNumber.";

class ReadCommand final : public Command {
public:
    std::string name() const override { return "read"; }

    std::string summary() const override { return "Show the rows of logs, or count them"; }

    std::string explanation() const override { return teaching; }

    void declare(Arguments& arguments) override { asked_.declare(arguments); }

    void run(const GlobalOptions& options, Output& output) override
    {
        asked_.check();
        LogReading reading(options, asked_, output);
        reading.run();
    }

private:
    ReadOptions asked_;
};

} // namespace

std::unique_ptr<Command> makeReadCommand()
{
    return std::make_unique<ReadCommand>();
}

} // namespace cli
