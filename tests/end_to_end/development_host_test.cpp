#include "end_to_end/sample_site.h"
#include "support/places.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <chrono>
#include <sstream>

namespace fs = std::filesystem;

namespace {

using testing::HasSubstr;

using Texts = std::vector<std::string>;

struct DevelopmentHost : SampleSite {
    /// What the tool's runs have logged, in the order of their files' names.
    std::string toolLog() const
    {
        std::string all;
        std::vector<fs::path> files(fs::directory_iterator(drive("OrvanDiagnostics/LOGS")), {});
        std::sort(files.begin(), files.end());
        for (const auto& file : files) all += read(file);
        return all;
    }

    /// How often each failure of a routine is logged in a row, from one other line of the log to
    /// the next.
    std::vector<int> failuresInARow(const std::string& routine) const
    {
        std::vector<int> rows;
        std::istringstream log(toolLog());
        bool within = false;
        for (std::string line; std::getline(log, line);) {
            const bool failure = line.find("ERROR:(") != std::string::npos &&
                                 line.find(routine + ") ") != std::string::npos;
            if (failure && within) ++rows.back();
            if (failure && !within) rows.push_back(1);
            within = failure;
        }
        return rows;
    }
};

} // namespace

TEST_F(DevelopmentHost, GivesUpWhatFailsForEverAndEndsWithAShortLog)
{
    // No event can be reported: where the events go stands a folder.
    fs::remove(site / "eventlogs" / "Application.jsonl");
    fs::create_directory(site / "eventlogs" / "Application.jsonl");
    const auto start = std::chrono::steady_clock::now();

    const Outcome cycled = run({"--development-host", "cycle"});

    EXPECT_NE(0, cycled.status) << "the last event is reported without a trap";
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
    EXPECT_LT(toolLog().size(), 100'000u);
    EXPECT_EQ((std::vector<int>{10}), failuresInARow("[snapinOrvanDiagnostics]SnapIn_Load"));
}

TEST_F(DevelopmentHost, LetsEveryStatementGoAfterAnInterrupt)
{
    // No stamp is a date, which fails at each line; that it holds no time is a line of its own.
    const std::string log = "data_KoNotify_20250220_000000.txt";
    constexpr int lines = 50'000;
    std::string content;
    for (int line = 0; line < lines; ++line) content += "nodate,Conv,1,text\n";
    write(drive("KelmaOrvan/Logs/" + log), content);
    const std::string logs = drive("OrvanDiagnostics/LOGS").string();
    const auto start = std::chrono::steady_clock::now();

    const Outcome cancelled = runProgram(
        {"bash", "-c",
         std::string("'") + built::orvandiag + "' --site '" + site.string() +
             "' --development-host gather frame --from '2025-02-20 00:00' --hours 24 --to '" +
             target.string() + "' & gather=$!; until grep -qs 'processOrvanDataFileToDB) .*Err' '" +
             logs + "'/* || ! kill -0 $gather; do :; done; kill -INT $gather; wait $gather"});

    EXPECT_EQ(1, cancelled.status) << cancelled.out << cancelled.err;
    EXPECT_THAT(cancelled.err, HasSubstr("cancelled"));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(60));
    const std::vector<int> failures = failuresInARow("[mdlLogs]processOrvanDataFileToDB");
    ASSERT_FALSE(failures.empty());
    EXPECT_LT(failures.size(), 2u * lines) << "the rest of the log is not read";
    EXPECT_THAT(failures, testing::Contains(10)) << "before the interrupt";
    EXPECT_EQ(1, failures.back()) << "and after it";
}
