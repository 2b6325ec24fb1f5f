#include "backends/site/sample_site.h"

#include "tracelines/trace_line_format.h"

#include <algorithm>
#include <ctime>
#include <gmock/gmock.h>
#include <optional>
#include <set>
#include <sys/stat.h>

namespace {

/// Lines of a log that can be read, in parts: up to and with the level the commas count.
struct RawLine {
    std::string time; ///< "HH:MM:SS"
    std::string component;
    int level = 0;
    std::string callId;
};

std::optional<RawLine> parsed(const std::string& line, bool extended)
{
    const std::size_t head = extended ? 8 : 5;
    std::vector<std::string> fields;
    for (std::size_t at = 0, comma; fields.size() <= head; at = comma + 1) {
        comma = fields.size() == head ? std::string::npos : line.find(',', at);
        fields.push_back(line.substr(at, comma == std::string::npos ? comma : comma - at));
        if (comma == std::string::npos) break;
    }
    if (fields.size() != head + 1) return std::nullopt;
    RawLine raw;
    const bool dated = fields[0].find(' ') != std::string::npos;
    raw.time = fields[0].substr(dated ? 11 : 0, 8);
    raw.component = fields[head - 2];
    raw.level = std::stoi(fields[head - 1]);
    if (extended) raw.callId = fields[5];
    return raw;
}

std::size_t malformedLines(const SampleSite& site, const std::string& log)
{
    const auto lines = site.lines(log);
    return static_cast<std::size_t>(std::count_if(
        lines.begin(), lines.end(), [](const auto& line) { return !parsed(line, false); }));
}

/// "14:41:15" of a name that ends in "_20250219_144115.txt".
std::string openingTime(const std::string& name)
{
    const std::string digits = name.substr(name.size() - 10, 6);
    return digits.substr(0, 2) + ':' + digits.substr(2, 2) + ':' + digits.substr(4, 2);
}

std::size_t midnightsIn(const std::vector<std::string>& lines)
{
    std::size_t midnights = 0;
    std::string last;
    for (const auto& line : lines) {
        const auto raw = parsed(line, false);
        if (!raw) continue;
        if (raw->time < last) ++midnights;
        last = raw->time;
    }
    return midnights;
}

/// The local time of a file's last change, as the server's zone has it in February.
std::string modifiedTime(const std::string& path)
{
    struct stat facts = {};
    if (::stat(path.c_str(), &facts) != 0) return "";
    const std::time_t local = facts.st_mtime - 8 * 3600;
    char text[20] = "";
    std::strftime(text, sizeof text, "%H:%M:%S", std::gmtime(&local));
    return text;
}

TEST(SampleLogs, HoldAsManyLinesInAllAsAskedFor)
{
    struct Case {
        const char* because;
        std::size_t asked;
        std::size_t made;
    };
    const Case cases[] = {
        {"fewer than a hundred make no server", 1, 100},
        {"a small one", 1000, 1000},
        {"an uneven one", 7777, 7777},
        {"the usual size", 60000, 60000},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        const SampleSite site(c.asked);
        std::size_t lines = 0;
        for (const auto& log : site.logs("diag_")) lines += site.lines(log).size();
        EXPECT_EQ(c.made, lines);
    }
}

TEST(SampleLogs, AreThoseOfFiveProcessesOverThreeDays)
{
    const SampleSite site;
    std::set<std::string> processes;
    for (const auto& log : site.logs("diag_"))
        processes.insert(log.substr(5, log.find('_', 5) - 5));

    EXPECT_EQ(
        (std::set<std::string>{"KoCSMgr", "KoDirSync", "KoMsgStore", "KoNotify", "KoTelephony"}),
        processes);
    for (const auto& process : processes) {
        SCOPED_TRACE(process);
        std::size_t midnights = 0;
        for (const auto& log : site.logs("diag_" + process + "_"))
            midnights += midnightsIn(site.lines(log));
        EXPECT_EQ(3U, midnights);
    }
}

TEST(SampleLogs, EachRunPastAMidnightAndTheQuietProcessPastTwo)
{
    // A time that goes back anywhere else would count as a midnight to whoever reads the log.
    for (const std::size_t lines : {3000U, 300000U}) {
        const SampleSite site(lines);
        for (const auto& log : site.logs("diag_")) {
            SCOPED_TRACE(log);
            const bool quiet = log.find("KoDirSync_20250217") != std::string::npos;
            EXPECT_EQ(quiet ? 2U : 1U, midnightsIn(site.lines(log)));
        }
    }
}

TEST(SampleLogs, KeepTheirLayoutWhateverTheirSize)
{
    const SampleSite small(100), large(20000);
    EXPECT_EQ(small.logs("diag_"), large.logs("diag_"));
    EXPECT_EQ(small.logs("data_"), large.logs("data_"));
    EXPECT_EQ(14U, small.logs("diag_").size());
}

TEST(SampleLogs, EndWithTheSampleOnTheDefaultSize)
{
    const SampleSite site(60000);
    for (const char* process : {"KoCSMgr", "KoTelephony", "KoMsgStore", "KoNotify"}) {
        SCOPED_TRACE(process);
        const auto logs = site.logs(std::string("diag_") + process);
        EXPECT_GE(modifiedTime(site.path(sampleLogs + logs.back())), "17:00:00");
        EXPECT_LE(modifiedTime(site.path(sampleLogs + logs.back())), "17:42:00");
    }
}

TEST(SampleLogs, HoldUnderTenMalformedLinesEachAndSomeInAll)
{
    const SampleSite site;
    std::size_t all = 0;
    for (const auto& log : site.logs("diag_")) {
        SCOPED_TRACE(log);
        const std::size_t malformed = malformedLines(site, log);
        EXPECT_LT(malformed, 10U);
        all += malformed;
    }
    EXPECT_GT(all, 0U);
}

TEST(SampleLogs, StartNoEarlierThanTheirNamesSayAndAreDatedWithTheirLastLine)
{
    const SampleSite site;
    for (const auto& log : site.logs("diag_")) {
        SCOPED_TRACE(log);
        const auto lines = site.lines(log);
        const auto first = parsed(lines.front(), false);
        ASSERT_TRUE(first);
        EXPECT_GE(first->time, openingTime(log));
        const auto last = parsed(lines.back(), false);
        EXPECT_EQ(last ? last->time : "", modifiedTime(site.path(sampleLogs + log)));
    }
}

TEST(SampleLogs, NameOnlyComponentsAndLevelsThatTheGridExplains)
{
    const SampleSite site(20000);
    const SampleGrid grid = site.grid("ENU");
    for (const auto& log : site.logs("diag_"))
        for (const auto& line : site.lines(log)) {
            const auto raw = parsed(line, false);
            if (!raw) continue;
            const auto component = grid.find(raw->component);
            ASSERT_NE(component, grid.end()) << line;
            ASSERT_LT(static_cast<std::size_t>(raw->level), component->second.size()) << line;
            EXPECT_FALSE(isPlaceholder(component->second[static_cast<std::size_t>(raw->level)]))
                << line;
        }
}

TEST(SampleLogs, FillInEveryNameOfTheirTexts)
{
    const SampleSite site(20000);
    for (const auto& log : site.logs("d"))
        for (const auto& line : site.lines(log))
            EXPECT_EQ(std::string::npos, line.find_first_of("{}")) << line;
}

TEST(SampleLogs, HaveCallIdsOfEveryLengthWhereTheFieldsAreExtended)
{
    const SampleSite site(60000, 1, LogFields::extended);
    std::set<std::size_t> lengths;
    for (const auto& log : site.logs("diag_"))
        for (const auto& line : site.lines(log))
            if (const auto raw = parsed(line, true)) lengths.insert(raw->callId.size());

    std::set<std::size_t> all;
    for (std::size_t length = 0; length <= 40; ++length) all.insert(length);
    EXPECT_EQ(all, lengths);
}

TEST(SampleLogs, HoldNamesInTheServersCodePageAndLinesPastTheFormattersLimit)
{
    const SampleSite site(60000);
    bool accent = false, tooLong = false;
    for (const auto& log : site.logs("diag_KoCSMgr"))
        for (const auto& line : site.lines(log)) {
            accent = accent || line.find("Garc\xED\x61") != std::string::npos;
            tooLong = tooLong || line.size() > 510;
        }
    EXPECT_TRUE(accent);
    EXPECT_TRUE(tooLong);
}

TEST(SampleLogs, LeaveTheCurrentLogOfTheCallServerSmallEnoughToShow)
{
    const SampleSite site(60000);
    const std::string current = site.logs("diag_KoCSMgr_").back();
    EXPECT_LT(std::filesystem::file_size(site.path(sampleLogs + current)), 2500000U);
    EXPECT_NE(std::string::npos,
              site.read("registry.reg")
                  .find("\"CurrentLogFile\"=\"C:\\\\KelmaOrvan\\\\Logs\\\\" + current + '"'));
}

TEST(SampleLogs, ComeWithDataFilesInUniversalTime)
{
    const SampleSite site;
    const auto files = site.logs("data_");
    EXPECT_EQ(6U, files.size());
    for (const auto& file : files) {
        SCOPED_TRACE(file);
        const auto lines = site.lines(file);
        ASSERT_FALSE(lines.empty());
        for (const auto& line : lines) EXPECT_GE(std::count(line.begin(), line.end(), ','), 3);
        const int hour = std::stoi(lines.back().substr(11, 2));
        const std::string local = std::to_string((hour + 24 - 8) % 24);
        EXPECT_EQ((local.size() < 2 ? "0" + local : local) + lines.back().substr(13, 6),
                  modifiedTime(site.path(sampleLogs + file)));
    }
}

TEST(SampleLogs, AreTakenByTheServersFormatterButForTheMalformedLines)
{
    for (const LogFields fields : {LogFields::basic, LogFields::extended}) {
        const SampleSite site(8000, 1, fields);
        const bool extended = fields == LogFields::extended;
        for (const auto& log : site.logs("diag_"))
            for (const auto& line : site.lines(log)) {
                std::string formatted;
                EXPECT_EQ(parsed(line, extended).has_value(),
                          appendFormattedTraceLine(std::string_view(line).substr(0, 510), fields,
                                                   formatted))
                    << line;
            }
    }
}

TEST(SampleLogs, HoldACopyThatIsAsTheFormatterMakesIt)
{
    for (const LogFields fields : {LogFields::basic, LogFields::extended}) {
        const SampleSite site(8000, 1, fields);
        const std::string log = site.logs("diag_KoNotify_").front();
        const auto raw = site.lines(log);
        const auto copy = site.lines(log.substr(0, log.size() - 4) + "_fmtd.txt");
        ASSERT_EQ(raw.size(), copy.size());
        for (std::size_t index = 0; index < raw.size(); ++index) {
            std::string formatted;
            if (raw[index].size() >= 20) {
                appendFormattedTraceLine(raw[index], fields, formatted);
                formatted += ' ';
            }
            EXPECT_EQ(formatted, copy[index]);
        }
    }
}

} // namespace
