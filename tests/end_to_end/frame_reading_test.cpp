// What a gather of a time frame stores, and what is read of the same logs in that frame, were
// written apart: each proves the other.
//
// This holds for logs as a server writes them. Of others a gather has less by what it has to do: it
// leaves a log at its first line behind the frame, and at its eleventh that has no form; it takes
// the first day from the file's creation, and every later one from the clock's going back, even for
// a stamp that has a date of its own. Reading goes on to the end of the log, and believes the date.

#include "backends/jet/outside_readers.h"
#include "end_to_end/frame_gather.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using nlohmann::json;

/// A second as it is written in a command line, without its last two digits: "2025-02-20 15:20".
std::string minuteText(LocalSecond moment)
{
    using namespace std::chrono;
    const year_month_day date{sys_days(days(moment / 86'400))};
    const auto minute = static_cast<int>(moment % 86'400 / 60);
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02u-%02u %02d:%02d", int(date.year()),
                  unsigned(date.month()), unsigned(date.day()), minute / 60, minute % 60);
    return text;
}

/// The moment of a stored "2/19/2025 08:03:57:451" as rows are read: "2025-02-19 08:03:57.451"; of
/// a day alone that day.
std::string readMoment(const std::string& date)
{
    int month = 0;
    int day = 0;
    int year = 0;
    std::sscanf(date.c_str(), "%d/%d/%d", &month, &day, &year);
    char shown[32];
    std::snprintf(shown, sizeof shown, "%04d-%02d-%02d", year, month, day);
    std::string clock = date.substr(date.find(' '));
    if (clock == " ") return shown;
    clock[9] = '.';
    return shown + clock;
}

struct FrameReading : FrameGather {
    /// Rows with the columns that logs and trace databases share. There is none for threads.
    static constexpr const char* columns =
        "line,moment,process,file,source,traceNumber,component,level,port,callId,trace";

    std::vector<json> rows(std::vector<std::string> words) const
    {
        words.insert(words.begin(), {"read", "--columns", columns});
        const Outcome shown = runJson(words);
        EXPECT_EQ(0, shown.status) << shown.err;
        std::vector<json> rows;
        std::istringstream lines(shown.out);
        for (std::string line; std::getline(lines, line);) rows.push_back(json::parse(line));
        return rows;
    }

    static TextRow textsOf(const json& row)
    {
        TextRow texts;
        for (const auto& [name, value] : row.items())
            texts[name] = value.is_string() ? value.get<std::string>() : value.dump();
        texts.erase("file");
        texts.erase("line");
        return texts;
    }

    /// A line without a form is gathered as a row that its record left empty but for the pieces
    /// between its commas, which are taken for a port and a call whatever they are. It has the day
    /// alone; when it was is what the reader takes from the row before.
    static void takeEmptied(TextRow& row)
    {
        if (row["source"] != " ") return;
        row["moment"].resize(10);
        row.erase("port");
        row.erase("callId");
    }

    /// The rows of all logs in a frame, as a gather is to store them: log by log, those of the
    /// diagnostic ones before those of data files.
    std::vector<TextRow> logged(LocalSecond start, int hours) const
    {
        // A frame ends with all of its last second.
        auto found = rows({"--since", minuteText(start), "--until",
                           minuteText(start + hours * 3'600LL) + ":00.999"});
        std::stable_sort(found.begin(), found.end(), [](const json& one, const json& other) {
            const std::string name = one["file"];
            const std::string otherName = other["file"];
            return name[1] != otherName[1] ? name[1] > otherName[1] : name < otherName;
        });
        std::vector<TextRow> told;
        for (const json& row : found) {
            TextRow texts = textsOf(row);
            if (texts.count("raw") > 0) {
                texts.erase("raw");
                texts["source"] = texts["trace"] = " ";
            }
            // A gather keeps the call in front of a trace, as the viewer of its rows knows no other
            // place for a long one.
            if (texts["callId"].size() > 31) texts["trace"].insert(0, texts["callId"] + ": ");
            takeEmptied(texts);
            told.push_back(std::move(texts));
        }
        return told;
    }

    /// The rows of a trace database in its order, by the tool's own reader of them.
    std::vector<TextRow> stored(const fs::path& database) const
    {
        auto found = rows({database.string()});
        std::stable_sort(found.begin(), found.end(), [](const json& one, const json& other) {
            return one["line"] < other["line"];
        });
        std::vector<TextRow> told;
        for (const json& row : found) {
            told.push_back(textsOf(row));
            takeEmptied(told.back());
        }
        return told;
    }

    /// The same as mdb-export tells them.
    static std::vector<TextRow> exported(const fs::path& database)
    {
        static const std::map<std::string, std::string> names = {
            {"Process", "process"},     {"Source", "source"},    {"TraceNumber", "traceNumber"},
            {"Component", "component"}, {"TraceLevel", "level"}, {"Port", "port"},
            {"CallId", "callId"},       {"Trace", "trace"}};
        std::vector<TextRow> told;
        for (const TextRow& row : exportedRows(database, "tblTraces")) {
            TextRow& texts = told.emplace_back();
            texts["moment"] = readMoment(row.at("Date"));
            for (const auto& [column, name] : names) {
                const auto value = row.find(column);
                if (value != row.end()) texts[name] = value->second;
            }
            takeEmptied(texts);
        }
        return told;
    }

    /// Gathers a frame, and gives how many rows it has.
    std::size_t provesEachOther(LocalSecond start, int hours)
    {
        SCOPED_TRACE(minuteText(start) + ", " + std::to_string(hours) + " hours");
        fs::remove_all(target);
        const Outcome gathered =
            run({"gather", "frame", "--from", minuteText(start), "--hours", std::to_string(hours),
                 "--no-application", "--no-system", "--to", target.string()});
        EXPECT_EQ(0, gathered.status) << gathered.err;
        const auto expected = logged(start, hours);
        EXPECT_EQ("", firstDifference(expected, stored(databaseIn(target))));
        EXPECT_EQ("", firstDifference(withoutEmptyTexts(expected), exported(databaseIn(target))));
        return expected.size();
    }

    void proveFrames(unsigned seed)
    {
        std::mt19937 random(seed);
        const LocalSecond first = localSecond(2025, 2, 16, 18, 0);
        std::size_t empty = 0;
        std::size_t overMidnights = 0;
        for (int frame = 0; frame < 12; ++frame) {
            const LocalSecond start = first + 60 * static_cast<LocalSecond>(random() % (5 * 1'440));
            const int hours = frame % 3 == 0 ? 1 : 1 + static_cast<int>(random() % 60);
            const std::size_t rows = provesEachOther(start, hours);
            if (rows == 0) ++empty;
            if (rows > 0 && start / 86'400 != (start + hours * 3'600LL) / 86'400) ++overMidnights;
            if (HasFailure()) return;
        }
        EXPECT_GT(empty, 0U);
        EXPECT_GT(overMidnights, 2U);
    }
};

TEST_F(FrameReading, FindsTheRowsThatGathersStore)
{
    proveFrames(11);
}

TEST_F(FrameReading, FindsTheRowsThatGathersStoreOfExtendedLines)
{
    fs::remove_all(site);
    ASSERT_EQ(0, orvandiag({"sample", site.string(), "--lines", "3000", "--fields", "extended",
                            "--seed", "7"})
                     .status);
    proveFrames(12);
}

TEST_F(FrameReading, BeginsAndEndsWithTheSecondsOfAGather)
{
    const auto line = [](const std::string& time, const std::string& trace) {
        return time + ",Conv,12,CallFlow,2," + trace + "\n";
    };
    write(drive("KelmaOrvan/Logs/diag_KoCSMgr_20250110_205900.txt"),
          line("20:59:59:999", "before") + line("21:00:00:000", "the first") +
              line("23:59:59:999", "of the first day") + line("00:00:00:000", "of the next day") +
              line("03:00:00:000", "of the last second") + line("03:00:00:999", "the last") +
              line("03:00:01:000", "behind"));
    EXPECT_EQ(5U, provesEachOther(localSecond(2025, 1, 10, 21, 0), 6));
}

} // namespace
