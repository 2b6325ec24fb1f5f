#include "end_to_end/trace_commands.h"

#include <gmock/gmock.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <map>
#include <mutex>
#include <set>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

using nlohmann::json;
using testing::HasSubstr;

/// How many changes each of several programs makes; many where long tests are asked for.
int rounds(int few, int many)
{
    return std::getenv("ORVAN_LONG_TESTS") ? many : few;
}

void allAtOnce(const std::vector<std::function<void()>>& works)
{
    std::vector<std::thread> threads;
    for (const auto& work : works) threads.emplace_back(work);
    for (auto& thread : threads) thread.join();
}

struct Level {
    std::string component;
    int number;

    std::string text() const { return component + ":" + std::to_string(number); }
};

struct Together : TraceCommands {
    Together() { EXPECT_EQ(0, run({"reset"}).status); }

    /// Levels that are off and stay off by themselves, those of a component behind each other.
    std::vector<Level> freeLevels() const
    {
        std::map<std::string, std::uint32_t> defaults;
        for (const auto& component : runJson({"flags"}).json())
            defaults[component["name"]] =
                static_cast<std::uint32_t>(component["defaultFlags"].get<std::int32_t>());
        std::vector<Level> levels;
        for (const auto& component : runJson({"micro"}).json())
            for (const auto& level : component["levels"]) {
                const int number = level["level"];
                if (number < 31 && (defaults[component["component"]] >> number & 1) == 0)
                    levels.push_back({component["component"], number});
            }
        return levels;
    }

    bool isOn(const Level& level) const { return flags(level.component) >> level.number & 1; }

    /// Runs a change, which has to succeed and to say nothing.
    void change(const std::vector<std::string>& words) const
    {
        const Outcome outcome = run(words);
        EXPECT_EQ(0, outcome.status) << testing::PrintToString(words) << "\n" << outcome.err;
        EXPECT_THAT(outcome.out + outcome.err, testing::Not(HasSubstr("locked")));
    }

    /// Turns levels of its own on and off in turn, and leaves every other one of them on.
    void changeLevels(const std::vector<Level>& own, int times) const
    {
        for (int time = 0; time < times; ++time)
            change({"micro", "set", turnedOn(own, time) ? "--on" : "--off",
                    own[time % own.size()].text()});
    }

    static bool turnedOn(const std::vector<Level>& own, int time)
    {
        return (time / own.size() + time % own.size()) % 2 == 0;
    }

    void expectLevels(const std::vector<Level>& own, int times) const
    {
        std::map<std::string, bool> wanted;
        for (int time = 0; time < times; ++time)
            wanted[own[time % own.size()].text()] = turnedOn(own, time);
        for (const Level& level : own) EXPECT_EQ(wanted[level.text()], isOn(level)) << level.text();
    }

    /// Macro traces of a group of their own, a level each.
    void defineMacroTraces(const std::vector<Level>& levels) const
    {
        std::string text = "<GA NAME='Together'>";
        for (const Level& level : levels)
            text += "<TRACE NAME='" + level.text() + "'><DIAG GROUP='" + level.component +
                    "'><FLAG ID='" + std::to_string(level.number) + "'/></DIAG></TRACE>";
        write(drive("OrvanDiagnostics/ZMKXML/HTtogether.xml"), text + "</GA>");
    }
};

TEST_F(Together, NoChangeOfALevelIsLostThatWasAcknowledged)
{
    constexpr std::size_t programs = 10;
    const int times = rounds(3, 200);
    const std::vector<Level> levels = freeLevels();
    std::vector<std::vector<Level>> own(programs);
    for (std::size_t i = 0; i < levels.size() && i < 2 * programs; ++i)
        own[i % programs].push_back(levels[i]); // so that many programs share each component

    std::vector<std::function<void()>> works;
    for (const auto& mine : own) works.emplace_back([&] { changeLevels(mine, times); });
    allAtOnce(works);

    for (const auto& mine : own) expectLevels(mine, times);
    EXPECT_EQ("ok", sql("PRAGMA integrity_check"));
}

TEST_F(Together, MacroTracesMicroTracesAndSettingsLoseNothingOfEachOther)
{
    const int times = rounds(7, 1000);
    const std::vector<Level> levels = freeLevels();
    ASSERT_GE(levels.size(), 8u);
    const std::vector<Level> micro(levels.begin(), levels.begin() + 3);
    const std::vector<Level> macro(levels.begin() + 3, levels.begin() + 6);
    defineMacroTraces(macro);
    std::atomic<bool> over = false;
    const auto settings = [&](const std::string& option, const std::string& text) {
        for (int time = 0; time < times; ++time)
            change({"settings", option, text + std::to_string(100 + time)});
    };

    std::thread looker([&] {
        while (!over) {
            for (const char* look : {"flags", "macro", "settings"}) {
                const Outcome seen = run({look});
                EXPECT_EQ(0, seen.status) << seen.err;
            }
        }
    });
    allAtOnce({[&] { changeLevels(micro, times); },
               [&] {
                   for (int time = 0; time < times; ++time)
                       change({"macro", "set", turnedOn(macro, time) ? "--on" : "--off",
                               "Together - " + macro[time % macro.size()].text()});
               },
               [&] { settings("--max-megabytes", ""); },
               [&] { settings("--log-folder", "D:\\Logs\\"); }});
    over = true;
    looker.join();

    expectLevels(micro, times);
    expectLevels(macro, times);
    for (const Level& level : macro)
        EXPECT_EQ(isOn(level), shown("Together - " + level.text())["enabled"]) << level.text();
    const json shownSettings = runJson({"settings"}).json();
    EXPECT_EQ(100 + times - 1, shownSettings["maxMegabytes"]);
    EXPECT_EQ("D:\\Logs\\" + std::to_string(100 + times - 1), shownSettings["logFolder"]);
}

TEST_F(Together, TwoProgramsRecordMacroTracesOfOneGroup)
{
    const int times = rounds(4, 1000);
    const std::vector<Level> levels = freeLevels();
    const std::vector<Level> first(levels.begin(), levels.begin() + 2);
    const std::vector<Level> second(levels.begin() + 2, levels.begin() + 4);
    defineMacroTraces({levels.begin(), levels.begin() + 4});
    const auto work = [&](const std::vector<Level>& own) {
        for (int time = 0; time < times; ++time)
            change({"macro", "set", turnedOn(own, time) ? "--on" : "--off",
                    "Together - " + own[time % own.size()].text()});
    };

    allAtOnce({[&] { work(first); }, [&] { work(second); }});

    for (const auto& own : {first, second}) {
        expectLevels(own, times);
        for (const Level& level : own)
            EXPECT_EQ(isOn(level), shown("Together - " + level.text())["enabled"]);
    }
}

/// The turn of a program that changes the site and does not come to its end.
class HeldTurn {
public:
    explicit HeldTurn(const std::filesystem::path& site)
        : lock_(open((site / "changes.lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666))
    {
        EXPECT_EQ(0, flock(lock_, LOCK_EX));
        EXPECT_EQ(4, pwrite(lock_, "123\n", 4, 0));
        EXPECT_EQ(0, ftruncate(lock_, 4));
    }
    ~HeldTurn() { close(lock_); }
    HeldTurn(const HeldTurn&) = delete;
    HeldTurn& operator=(const HeldTurn&) = delete;

private:
    int lock_;
};

TEST_F(Together, WhoLooksOrGathersDoesNotWaitForWhoChanges)
{
    const HeldTurn held(site);
    const std::vector<std::vector<std::string>> looks = {
        {"status"},   {"flags"},          {"macro"},    {"micro"},
        {"settings"}, {"event-language"}, {"language"}, {"gather", "standard", "--dry-run"}};
    const auto before = std::chrono::steady_clock::now();
    for (const auto& words : looks) EXPECT_EQ(0, run(words).status) << words[0];
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(10));
    EXPECT_EQ(0, run({"gather", "standard", "--to", target.string()}).status);
}

TEST_F(Together, GathersOneAfterAnotherLoseNothingOfEachOther)
{
    std::filesystem::create_directory(target);
    std::set<std::string> databases;
    std::set<std::string> cabinets;
    for (const char* from : {"2025-02-20 15:00", "2025-02-19 10:00", "2025-02-18 15:00"}) {
        const Outcome gathered =
            runJson({"gather", "frame", "--from", from, "--hours", "1", "--to", target.string()});
        EXPECT_EQ(0, gathered.status) << gathered.err;
        databases.insert(gathered.json()["database"].get<std::string>());
        cabinets.insert(gathered.json()["cabinet"].get<std::string>());
    }
    EXPECT_EQ(3U, databases.size());
    EXPECT_EQ(3U, cabinets.size());
}

TEST_F(Together, AGatherIntoAFolderThatAnotherOneWritesToIsRefused)
{
    std::filesystem::create_directory(target);
    const int other = open(target.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    EXPECT_EQ(0, flock(other, LOCK_EX));
    const Outcome refused = run({"gather", "standard", "--to", target.string()});
    EXPECT_EQ(1, refused.status);
    EXPECT_EQ("orvandiag: another gather is writing to " + target.string() +
                  "; wait until it has ended, or name another folder\n",
              refused.err);
    const Outcome foreseen = run({"gather", "standard", "--dry-run", "--to", target.string()});
    EXPECT_EQ(1, foreseen.status);
    EXPECT_EQ(refused.err, foreseen.err);
    EXPECT_EQ("", foreseen.out);
    EXPECT_TRUE(std::filesystem::is_empty(target));
    close(other);
    EXPECT_EQ(0, run({"gather", "standard", "--dry-run", "--to", target.string()}).status);
    EXPECT_EQ(0, run({"gather", "standard", "--to", target.string()}).status);
}

TEST_F(Together, GathersThatMakeTheSameFolderLeaveEachOtherTheirResults)
{
    std::mutex one;
    std::set<std::string> databases;
    std::size_t refusals = 0;
    std::vector<std::function<void()>> gathers;
    for (const char* from : {"2025-02-20 15:00", "2025-02-19 10:00", "2025-02-18 15:00"})
        gathers.push_back([&, from] {
            const Outcome gathered = runJson(
                {"gather", "frame", "--from", from, "--hours", "1", "--to", target.string()});
            const std::lock_guard lock(one);
            if (gathered.status == 0)
                databases.insert(gathered.json()["database"].get<std::string>());
            else if (gathered.err.find("another gather is writing to") != std::string::npos)
                ++refusals;
        });
    allAtOnce(gathers);
    EXPECT_EQ(gathers.size(), databases.size() + refusals);
    EXPECT_FALSE(databases.empty());
    for (const std::string& database : databases)
        EXPECT_TRUE(std::filesystem::exists(database)) << database;
}

TEST_F(Together, AProgramThatKeepsItsTurnIsNamedAndNothingIsChanged)
{
    const std::string level = freeLevels().front().text();
    const HeldTurn held(site);
    const std::string before = fingerprint();
    const Outcome refused = run({"micro", "set", "--on", level});
    EXPECT_EQ(1, refused.status);
    EXPECT_EQ("orvandiag: waiting for another program (process 123) that is changing the site " +
                  site.string() +
                  "\norvandiag: another program (process 123) is changing the site " +
                  site.string() + " and did not finish in time\n",
              refused.err);
    EXPECT_EQ(before, fingerprint());
}

} // namespace
