#include "end_to_end/sample_site.h"
#include "end_to_end/site_record.h"
#include "support/places.h"

#include <gmock/gmock.h>

#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using Words = std::vector<std::string>;
using Record = std::map<std::string, std::string>;

/// Paths whose records differ, for a message that can be read.
std::vector<std::string> differences(const Record& before, const Record& after)
{
    std::vector<std::string> paths;
    for (const auto& [path, text] : before)
        if (after.count(path) == 0 || after.at(path) != text) paths.push_back(path);
    for (const auto& [path, text] : after)
        if (before.count(path) == 0) paths.push_back(path + " (new)");
    return paths;
}

/// A result without the name of a destination, which is of this second, and the room there.
std::string lasting(const std::string& out)
{
    if (out.rfind("Would gather into ", 0) != 0) return out;
    const auto first = out.find('\n');
    return out.substr(first, out.find("Free at") - first);
}

/// A sample server with an old log of the tool, which a tool at work would clear away.
struct Looking : SampleSite {
    Looking()
    {
        fs::create_directories(oldLog().parent_path());
        write(oldLog(), "old");
        fs::last_write_time(oldLog(), fs::file_time_type::clock::now() - std::chrono::hours(24000));
    }

    fs::path oldLog() const { return drive("OrvanDiagnostics/LOGS/OrvanDiagnostics_old.LOG"); }

    std::vector<Words> looks() const
    {
        return {{"status"},
                {"tree"},
                {"logs", "KoCSMgr"},
                {"logs", "--all", "--since", "2025-01-01"},
                {"read", currentLog()},
                {"flags"},
                {"flags", "CallFlow"},
                {"macro"},
                {"micro"},
                {"micro", "CallFlow"},
                {"settings"},
                {"event-language"},
                {"language"},
                {"about"},
                {"gather", "standard", "--dry-run"},
                {"gather", "logs", "--log", currentLog(), "--dry-run"},
                {"gather", "frame", "--from", "2025-02-20 16:42", "--hours", "1", "--dry-run"},
                {"gather", "standard", "--to", target.string(), "--dry-run"}};
    }

    /// Runs every look and expects that it succeeds as `look` does it, and changes nothing.
    template <typename Run>
    std::vector<std::string> expectThatNothingChanges(const Run& look) const
    {
        std::vector<std::string> results;
        const Record before = recordOf(site);
        for (const Words& words : looks()) {
            SCOPED_TRACE(testing::PrintToString(words));
            const Outcome outcome = look(words);
            EXPECT_EQ(0, outcome.status) << outcome.err;
            EXPECT_EQ("", outcome.err);
            EXPECT_THAT(differences(before, recordOf(site)), testing::IsEmpty());
            results.push_back(lasting(outcome.out));
        }
        EXPECT_FALSE(fs::exists(target));
        return results;
    }
};

TEST_F(Looking, LeavesTheSiteAsItIs)
{
    const auto results = expectThatNothingChanges([&](const Words& words) { return run(words); });
    for (const auto& result : results) EXPECT_NE("", result);
}

TEST_F(Looking, ShowsWithoutAToolFolderWhatAToolAtWorkFindsThere)
{
    ASSERT_EQ(0, run({"cycle"}).status) << "a tool at work supplies its folder";
    std::vector<std::string> expected;
    for (const Words& words : looks()) expected.push_back(lasting(run(words).out));
    fs::remove_all(drive("OrvanDiagnostics"));
    EXPECT_EQ(expected, expectThatNothingChanges([&](const Words& words) { return run(words); }));
    EXPECT_FALSE(fs::exists(drive("OrvanDiagnostics")));
}

/// A sample server whose folder nobody may write to, and somebody who is not the superuser.
struct ReadOnlySite : Looking {
    ReadOnlySite()
    {
        EXPECT_EQ(0, run({"cycle"}).status) << "the tool's folder is supplied once";
        using fs::perm_options;
        constexpr auto read = fs::perms::group_read | fs::perms::others_read;
        constexpr auto enter = fs::perms::group_exec | fs::perms::others_exec;
        // The superuser may write everywhere, so another user looks, with a program within its
        // reach.
        fs::create_directories(program.parent_path());
        fs::copy_file(built::orvandiag, program);
        for (const auto& place : {folder, program.parent_path(), program})
            fs::permissions(place, read | enter, perm_options::add);
        for (const auto& entry : fs::recursive_directory_iterator(site))
            fs::permissions(entry.path(), read | (entry.is_directory() ? enter : read),
                            perm_options::add);
        for (const auto& entry : fs::recursive_directory_iterator(site))
            fs::permissions(entry.path(), write, perm_options::remove);
        fs::permissions(site, read | enter, perm_options::add);
        fs::permissions(site, write, perm_options::remove);
        fs::create_directory(outside);
        fs::permissions(outside, fs::perms::all);
    }

    ~ReadOnlySite() override
    {
        for (const auto& entry : fs::recursive_directory_iterator(site))
            fs::permissions(entry.path(), fs::perms::owner_write, fs::perm_options::add);
        fs::permissions(site, fs::perms::owner_write, fs::perm_options::add);
    }

    Outcome asReader(Words words) const
    {
        Words start = {program.string(), "--site", site.string()};
        if (geteuid() == 0) {
            const Words other = {"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups",
                                 "--"};
            start.insert(start.begin(), other.begin(), other.end());
        }
        words.insert(words.begin(), start.begin(), start.end());
        return runProgram(words, "/");
    }

    static constexpr auto write =
        fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    fs::path program = folder / "bin/orvandiag";
    fs::path outside = folder / "outside";
};

TEST_F(ReadOnlySite, IsLookedAtWithoutLeaveToWrite)
{
    expectThatNothingChanges([&](Words words) {
        if (words[0] == "gather") {
            if (words[words.size() - 3] == "--to") words.erase(words.end() - 3, words.end() - 1);
            words.insert(words.end(), {"--to", (outside / "case").string()});
        }
        return asReader(words);
    });
    const Outcome refused = asReader({"cycle"});
    EXPECT_EQ(1, refused.status);
    EXPECT_THAT(refused.err, HasSubstr("is read-only"));
}

TEST_F(ReadOnlySite, IsToldByDoctorAsOneThatCantBeChanged)
{
    const Record before = recordOf(site);
    const Outcome outcome = asReader({"--json", "doctor"});
    EXPECT_EQ(1, outcome.status);
    EXPECT_THAT(outcome.err, HasSubstr("3 needed things are not in order"));
    std::map<std::string, std::string> notOk;
    for (const auto& finding : outcome.json())
        if (finding["state"] != "ok") notOk[finding["check"]] = finding["condition"];
    // The program stands alone where the reader can reach it, without what is installed beside it.
    EXPECT_EQ((std::map<std::string, std::string>{{"cabinet-maker", "unusable"},
                                                  {"rights", "unusable"},
                                                  {"rights.database", "unusable"},
                                                  {"rights.tool-log", "unusable"},
                                                  {"viewer", "missing"}}),
              notOk);
    EXPECT_THAT(differences(before, recordOf(site)), testing::IsEmpty());
}

TEST_F(ReadOnlySite, IsGatheredFromIntoAFolderOutsideOfIt)
{
    const Record before = recordOf(site);
    const fs::path chosen = outside / "chosen";
    const Outcome copied = asReader({"gather", "standard", "--to", chosen.string()});
    EXPECT_EQ(0, copied.status);
    EXPECT_EQ("", copied.err);
    EXPECT_EQ(3, std::distance(fs::directory_iterator(chosen), fs::directory_iterator()))
        << copied.out;
    EXPECT_TRUE(fs::exists(chosen / "System.csv"));

    const fs::path frame = outside / "frame";
    const Outcome read = asReader({"--json", "gather", "frame", "--from", "2025-02-20 16:42",
                                   "--hours", "1", "--to", frame.string()});
    ASSERT_TRUE(read.json()["database"].is_string()) << read.out << read.err;
    EXPECT_TRUE(fs::exists(read.json()["database"].get<std::string>()));
    EXPECT_THAT(differences(before, recordOf(site)), testing::IsEmpty());
}

TEST_F(ReadOnlySite, IsNoPlaceToGatherInto)
{
    const Record before = recordOf(site);
    const std::vector<Words> modes = {
        {"gather", "standard"},
        {"gather", "standard", "--to", "C:\\case"},
        {"gather", "standard", "--to", drive("case").string()},
        {"gather", "logs", "--log", currentLog()},
        {"gather", "frame", "--from", "2025-02-20 16:42", "--hours", "1"}};
    for (Words words : modes) {
        SCOPED_TRACE(testing::PrintToString(words));
        for (const bool dry : {false, true}) {
            if (dry) words.emplace_back("--dry-run");
            const Outcome refused = asReader(words);
            EXPECT_EQ(1, refused.status);
            EXPECT_EQ("", refused.out);
            EXPECT_EQ("orvandiag: the site " + site.string() +
                          " is read-only; make its folder writable, or name a destination outside "
                          "of it with --to\n",
                      refused.err);
        }
    }
    EXPECT_THAT(differences(before, recordOf(site)), testing::IsEmpty());
}

TEST_F(Looking, DoesNotPutTheEventLogsLanguageBack)
{
    ASSERT_EQ(0, run({"event-language", "FRA", "--keep"}).status);
    std::string registry = read(site / "registry.reg");
    const std::string kept = "\"OriginalEventLogLanguage\"=\"FRA\"";
    const auto place = registry.find(kept);
    ASSERT_NE(std::string::npos, place);
    write(site / "registry.reg",
          registry.replace(place, kept.size(), "\"OriginalEventLogLanguage\"=\"ENU\""));
    expectThatNothingChanges([&](const Words& words) { return run(words); });
    EXPECT_EQ("FRA", runJson({"event-language"}).json()["current"]);
    EXPECT_EQ("ENU", runJson({"event-language"}).json()["original"]);
}

TEST_F(Looking, ARefusedCommandLeavesNoTraceAtAll)
{
    const struct {
        int status;
        Words words;
    } cases[] = {
        {1, {"macro", "set", "--on", "None - None"}},
        {1, {"micro", "set", "--on", "None:1"}},
        {1, {"micro", "set", "--on", "CallFlow:31"}},
        {2, {"micro", "set", "--on", "CallFlow"}},
        {1, {"event-language", "QQQ"}},
        {1, {"language", "QQQ"}},
        {1, {"logs", "KoNone"}},
        {1, {"read", "none.txt"}},
        {1, {"flags", "None"}},
        {1, {"gather", "logs", "--log", "none.txt"}},
        {1, {"gather", "logs", "--event-log", "None"}},
        {1, {"gather", "frame", "--from", "2999-01-01 00:00", "--hours", "1"}},
        {1, {"gather", "standard", "--to", "/none/there"}},
        {2, {"gather", "standard", "--to", ""}},
        {2, {"gather", "frame", "--from", "2025-02-20 16:42", "--hours", "1", "--to", " "}},
        {2, {"settings", "--log-folder", ""}},
        {2, {"settings", "--max-megabytes", "500", "--log-folder", ""}},
    };
    for (const bool supplied : {false, true}) {
        if (supplied) {
            ASSERT_EQ(0, run({"cycle"}).status);
            fs::create_directories(oldLog().parent_path());
            write(oldLog(), "old");
            fs::last_write_time(oldLog(),
                                fs::file_time_type::clock::now() - std::chrono::hours(24000));
        }
        const Record before = recordOf(site);
        for (const auto& c : cases) {
            SCOPED_TRACE(testing::PrintToString(c.words));
            const Outcome refused = run(c.words);
            EXPECT_EQ(c.status, refused.status) << refused.err;
            EXPECT_EQ("", refused.out);
            EXPECT_THAT(refused.err, testing::StartsWith("orvandiag: "));
            EXPECT_THAT(differences(before, recordOf(site)), testing::IsEmpty());
        }
    }
}

} // namespace
