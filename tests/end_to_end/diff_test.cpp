#include "end_to_end/sample_site.h"
#include "end_to_end/site_record.h"

#include <gmock/gmock.h>

#include <fstream>

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* macroTrace = "Call Flow - Transfers";

/// A sample server, and one that was made just so.
struct TwoSites : SampleSite {
    TwoSites()
    {
        EXPECT_EQ(0, run({"cycle"}).status) << "the tool's folder is supplied once";
        fs::copy(site, other, fs::copy_options::recursive);
    }

    Outcome runOnOther(std::vector<std::string> words) const
    {
        words.insert(words.begin(), {"--site", other.string()});
        return orvandiag(words, folder.string());
    }

    Outcome diff(std::vector<std::string> words = {}) const
    {
        words.insert(words.begin(), {"diff", site.string(), other.string()});
        return orvandiag(words, folder.string());
    }

    /// "what name: a, b" of each difference; "-" for what a site lacks.
    std::vector<std::string> differences() const
    {
        const auto beforeA = recordOf(site);
        const auto beforeB = recordOf(other);
        std::vector<std::string> told;
        for (const auto& one : diff({"--json"}).json()) {
            const auto text = [](const nlohmann::json& value) {
                return value.is_null() ? std::string("-") : value.get<std::string>();
            };
            told.push_back(one["what"].get<std::string>() + " " + one["name"].get<std::string>() +
                           ": " + text(one["a"]) + ", " + text(one["b"]));
        }
        EXPECT_EQ(beforeA, recordOf(site)) << "nothing is changed";
        EXPECT_EQ(beforeB, recordOf(other));
        return told;
    }

    void sqlOnOther(const std::string& statement) const
    {
        const Outcome shell =
            runProgram({"sqlite3", (other / "OrvanDirDb.sqlite").string(), statement});
        EXPECT_EQ(0, shell.status) << shell.err;
    }

    void editOther(const std::string& file, const std::string& from, const std::string& to) const
    {
        std::string text = read(other / file);
        const auto at = text.find(from);
        ASSERT_NE(std::string::npos, at) << from;
        write(other / file, text.replace(at, from.size(), to));
    }

    fs::path other = folder / "other";
};

TEST_F(TwoSites, ThatAreTheSameDifferInNothing)
{
    EXPECT_THAT(differences(), IsEmpty());
    const Outcome same = diff();
    EXPECT_EQ(0, same.status);
    EXPECT_EQ("", same.out);
    EXPECT_EQ("orvandiag: nothing differs\n", same.err);
    EXPECT_EQ(0, diff({"--exit-code"}).status);
}

TEST_F(TwoSites, DifferInALevelAndSoInItsWord)
{
    sqlOnOther("UPDATE tbl_LoggerDiagnosticGrid SET Flags = 3, DefaultFlags = 3");
    const std::string one = "UPDATE tbl_LoggerDiagnosticGrid SET Flags = ";
    const Outcome same =
        runProgram({"sqlite3", (site / "OrvanDirDb.sqlite").string(), one + "3, DefaultFlags = 3"});
    ASSERT_EQ(0, same.status);
    sqlOnOther(one + "(5 | (1 << 4)) WHERE Name = 'CallFlow'");
    EXPECT_THAT(differences(),
                ElementsAre("level CallFlow:1: on, off", "level CallFlow:2: off, on",
                            "level CallFlow:4: off, on", "flags CallFlow: 0x00000003, 0x00000015"));
}

TEST_F(TwoSites, DifferInAComponentThatOneOfThemLacks)
{
    sqlOnOther("INSERT INTO tbl_LoggerDiagnosticGrid VALUES ('{1}', 'Novelty', 1, 1)");
    EXPECT_THAT(differences(), ElementsAre("level Novelty:0: -, on", "flags Novelty: -, 0x00000001",
                                           "defaultFlags Novelty: -, 0x00000001"));
}

TEST_F(TwoSites, DifferInMacroTracesThatAreOnAndThatAreDefined)
{
    ASSERT_EQ(0, runOnOther({"macro", "set", "--on", macroTrace}).status);
    fs::remove(other / "drive_c/OrvanDiagnostics/ZMKXML/HTMessageWaiting.xml");
    const auto told = differences();
    EXPECT_THAT(told, testing::Contains(std::string("macroTrace ") + macroTrace + ": off, on"));
    EXPECT_THAT(told, testing::Contains(testing::MatchesRegex("macroTrace Message.*: off, -")));
    EXPECT_THAT(told, testing::Contains(testing::StartsWith("level ")));
}

TEST_F(TwoSites, DifferInSettingsAndFoldersAndLanguages)
{
    sqlOnOther("UPDATE tbl_ConfigurationValue SET Value = 4321 WHERE FullName LIKE "
               "'%MegabytesSaved'");
    sqlOnOther("UPDATE tbl_ConfigurationValue SET Value = '2001-01-01' WHERE FullName LIKE "
               "'%Broadcast%'");
    editOther("registry.reg", "\"Output Path\"=\"C:\\\\KelmaOrvan\\\\Logs\"",
              "\"Output Path\"=\"D:\\\\Logs\"");
    editOther("registry.reg", "\"BuildVersion\"=dword:000004a3", "\"BuildVersion\"=dword:000004a4");
    ASSERT_EQ(0, runOnOther({"event-language", "FRA", "--keep"}).status);
    const auto told = differences();
    EXPECT_THAT(told, testing::Contains("version server: 2.0.4.1187, 2.0.4.1188"));
    EXPECT_THAT(told, testing::Contains("registry Output Path: C:\\KelmaOrvan\\Logs, D:\\Logs"));
    EXPECT_THAT(told, testing::Contains(testing::MatchesRegex(
                          "setting System.LogMgr.MaxDiagnosticMegabytesSaved: .*, 4321")));
    EXPECT_THAT(told, testing::Contains("language events: ENU, FRA"));
    EXPECT_EQ(4u, told.size()) << "the times of signals are no settings: "
                               << testing::PrintToString(told);
}

TEST_F(TwoSites, AreShownSideBySideAndCounted)
{
    editOther("registry.reg", "\"BuildVersion\"=dword:000004a3", "\"BuildVersion\"=dword:000004a4");
    const Outcome told = diff();
    EXPECT_EQ(0, told.status);
    EXPECT_THAT(told.out, HasSubstr(site.string()));
    EXPECT_THAT(told.out, testing::ContainsRegex("version +server +2\\.0\\.4\\.1187 .*1188"));
    EXPECT_EQ("orvandiag: 1 thing differs\n", told.err);
    const Outcome counted = diff({"--exit-code"});
    EXPECT_EQ(1, counted.status);
    EXPECT_EQ(told.out, counted.out);
    EXPECT_EQ(told.err, counted.err);
}

TEST_F(TwoSites, AreShownAsAWholeWithAll)
{
    const auto all = diff({"--json", "--all"}).json();
    EXPECT_GT(all.size(), 100u);
    for (const auto& one : all) EXPECT_EQ(one["a"], one["b"]) << one;
}

TEST_F(TwoSites, OfWhichOneCantBeReadAreNotCompared)
{
    fs::remove(other / "OrvanDirDb.sqlite");
    const Outcome told = diff();
    EXPECT_EQ(1, told.status);
    EXPECT_EQ("", told.out);
    EXPECT_THAT(told.err, HasSubstr(other.string()));
    write(other / "site.ini", "rubbish");
    EXPECT_THAT(diff().err, HasSubstr(other.string() + ": site.ini line 1"));
    fs::remove_all(other);
    EXPECT_THAT(diff().err, HasSubstr(other.string() + " is not a site"));
    EXPECT_EQ(2, orvandiag({"diff", site.string()}, folder.string()).status);
}

} // namespace
