#include "end_to_end/sample_site.h"
#include "support/places.h"

#include <gmock/gmock.h>

namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

using Words = std::vector<std::string>;

struct SettingsSite : SampleSite {
    std::string sql(const std::string& statement) const
    {
        const Outcome shell =
            runProgram({"sqlite3", (site / "OrvanDirDb.sqlite").string(), statement});
        EXPECT_EQ(0, shell.status) << shell.err;
        return shell.out.substr(0, shell.out.find_last_not_of('\n') + 1);
    }

    std::string configured(const std::string& name) const
    {
        return sql("SELECT Value FROM vw_ConfigurationValue WHERE FullName='System.LogMgr." + name +
                   "'");
    }

    std::string procedureCalls() const { return sql("SELECT count(*) FROM tbl_ProcedureAudit"); }

    std::string registry() const { return read(site / "registry.reg"); }

    void setInRegistry(const std::string& from, const std::string& to) const
    {
        std::string text = registry();
        const auto place = text.find(from);
        ASSERT_NE(std::string::npos, place) << from;
        write(site / "registry.reg", text.replace(place, from.size(), to));
    }

    /// How many message files of the server are registered in a language.
    int messageFiles(const std::string& language) const
    {
        const std::string part = "Localize\\\\Messaging\\\\" + language + "\\\\";
        const std::string text = registry();
        int count = 0;
        for (auto place = text.find(part); place != std::string::npos;
             place = text.find(part, place + 1))
            ++count;
        return count;
    }

    void expectRefused(const Words& words, int status, const std::string& part) const
    {
        const Outcome refused = run(words);
        EXPECT_EQ(status, refused.status);
        EXPECT_EQ("", refused.out);
        EXPECT_THAT(refused.err, testing::StartsWith("orvandiag: "));
        EXPECT_THAT(refused.err, HasSubstr(part));
    }
};

using SettingsCommand = SettingsSite;
using EventLanguageCommand = SettingsSite;
using LanguageCommand = SettingsSite;
using AboutBoxCommand = SettingsSite;

TEST_F(SettingsCommand, ShowsWhatTheServerStores)
{
    const json shown = runJson({"settings"}).json();
    EXPECT_EQ(400, shown["maxMegabytes"]);
    ASSERT_EQ(200u, shown["choices"].size());
    EXPECT_EQ(100, shown["choices"][0]);
    EXPECT_EQ(20000, shown["choices"][199]);
    EXPECT_EQ(3, shown["selected"]);
    EXPECT_EQ(true, shown["writingEnabled"]);
    EXPECT_EQ("C:\\KelmaOrvan\\Logs", shown["logFolder"]);
    EXPECT_EQ(false, shown["rebootRequired"]);
    EXPECT_EQ("0", procedureCalls()) << "looking changes nothing";
    EXPECT_THAT(run({"settings"}).out, HasSubstr("400 MB"));
}

TEST_F(SettingsCommand, ChangesTheSpaceThroughTheSheet)
{
    const json shown = runJson({"settings", "--max-megabytes", "800"}).json();
    EXPECT_EQ(800, shown["maxMegabytes"]);
    EXPECT_EQ(7, shown["selected"]);
    EXPECT_EQ(false, shown["rebootRequired"]);
    EXPECT_EQ("800", configured("MaxDiagnosticMegabytesSaved"));
    EXPECT_EQ("1", configured("WritingEnabled"));
    EXPECT_NE("2024-10-02 11:05:47", configured("Broadcast.WritingEnabledTimeSet"));
    EXPECT_EQ("3", procedureCalls()) << "one apply is one save of three values";
    EXPECT_EQ("C:\\KelmaOrvan\\Logs", shown["logFolder"]);
}

TEST_F(SettingsCommand, ShowsAValueThatLiesOffTheStepsInItsPlace)
{
    struct Case {
        int megabytes;
        int selected;
        std::size_t choices;
    };
    const Case cases[] = {{5050, 50, 201}, {100, 1, 201}, {50, 2, 202}, {25000, 0, 200}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.megabytes);
        const json shown =
            runJson({"settings", "--max-megabytes", std::to_string(c.megabytes)}).json();
        EXPECT_EQ(c.megabytes, shown["maxMegabytes"]);
        EXPECT_EQ(c.selected, shown["selected"]);
        EXPECT_EQ(c.choices, shown["choices"].size());
        EXPECT_EQ(std::to_string(c.megabytes), configured("MaxDiagnosticMegabytesSaved"));
    }
}

TEST_F(SettingsCommand, ANewFolderNeedsAReboot)
{
    const Outcome changed = runJson({"settings", "--log-folder", "D:\\OrvanLogs"});
    EXPECT_EQ(true, changed.json()["rebootRequired"]);
    EXPECT_EQ("D:\\OrvanLogs", changed.json()["logFolder"]);
    EXPECT_THAT(changed.err,
                HasSubstr("You must reboot this server for these changes to take effect."));
    EXPECT_THAT(registry(), HasSubstr("\"Output Path\"=\"D:\\\\OrvanLogs\""));
    EXPECT_EQ("400", configured("MaxDiagnosticMegabytesSaved"));

    const Outcome same = runJson({"settings", "--log-folder", "D:\\OrvanLogs"});
    EXPECT_EQ(false, same.json()["rebootRequired"]);
    EXPECT_EQ("", same.err);
}

TEST_F(SettingsCommand, KeepsASpaceThatTheListCanNotShowWhenTheFolderAloneChanges)
{
    sql("UPDATE tbl_ConfigurationValue SET Value=25000 WHERE FullName='System.LogMgr."
        "MaxDiagnosticMegabytesSaved'");
    EXPECT_EQ(25000, runJson({"settings", "--log-folder", "D:\\"}).json()["maxMegabytes"]);
    EXPECT_EQ("25000", configured("MaxDiagnosticMegabytesSaved"));
}

TEST_F(SettingsCommand, CarriesTheSwitchForWritingThrough)
{
    sql("UPDATE tbl_ConfigurationValue SET Value=0 WHERE FullName='System.LogMgr."
        "WritingEnabled'");
    EXPECT_EQ(false, runJson({"settings", "--max-megabytes", "500"}).json()["writingEnabled"]);
    EXPECT_EQ("0", configured("WritingEnabled"));
}

TEST_F(SettingsCommand, SaysThatNothingCanBeReadWithoutADatabase)
{
    fs::remove(site / "OrvanDirDb.sqlite");
    const std::string before = registry();
    expectRefused({"settings"}, 1, "the log settings can't be read");
    expectRefused({"settings", "--log-folder", "D:\\"}, 1, "the log settings can't be read");
    EXPECT_THAT(registry(), Not(HasSubstr("\"Output Path\"=\"D:")));
}

TEST_F(SettingsCommand, SaysWhenASettingIsMissingAtTheServer)
{
    sql("DELETE FROM tbl_ConfigurationValue WHERE FullName LIKE '%MegabytesSaved'");
    expectRefused({"settings", "--max-megabytes", "500"}, 1, "can't be read");
    EXPECT_EQ("0", procedureCalls());
}

TEST_F(SettingsCommand, WrongNumbersChangeNothing)
{
    for (const char* wrong : {"0", "-1", "1.5", "many", "2147483648"}) {
        expectRefused({"settings", "--max-megabytes", wrong}, 2, "--help");
        EXPECT_EQ("400", configured("MaxDiagnosticMegabytesSaved"));
    }
    EXPECT_EQ("0", procedureCalls());
}

TEST_F(EventLanguageCommand, ShowsTheInstalledLanguages)
{
    const json shown = runJson({"event-language"}).json();
    EXPECT_EQ("ENU", shown["original"]);
    EXPECT_EQ("ENU", shown["current"]);
    EXPECT_THAT(shown["available"], ElementsAre("DEU", "ENU", "ESP", "FRA", "JPN"));
    EXPECT_THAT(run({"event-language"}).out, HasSubstr("DEU, ENU, ESP, FRA, JPN"));
}

TEST_F(EventLanguageCommand, TheFirstLanguageComesBackOnExit)
{
    const int all = messageFiles("ENU");
    ASSERT_GT(all, 0);
    const json shown = runJson({"event-language", "FRA"}).json();
    EXPECT_EQ("FRA", shown["current"]);
    EXPECT_EQ("ENU", shown["original"]);
    EXPECT_EQ(all, messageFiles("ENU"));
    EXPECT_EQ(0, messageFiles("FRA"));
    EXPECT_THAT(registry(), HasSubstr("\"OriginalEventLogLanguage\"=\"ENU\""));
}

TEST_F(EventLanguageCommand, TheFirstLanguageComesBackWhenASignalComesInBetween)
{
    const int all = messageFiles("ENU");
    const std::string registered = "Messaging.*FRA";
    for (const char* signal : {"INT", "TERM", "HUP"}) {
        SCOPED_TRACE(signal);
        const Outcome ended = runProgram(
            {"bash", "-mc",
             std::string("'") + built::orvandiag + "' --site '" + site.string() +
                 "' event-language FRA & child=$!; until grep -q '" + registered + "' '" +
                 (site / "registry.reg").string() + "' || ! kill -0 $child; do :; done; kill -" +
                 signal + " $child; wait $child"});
        EXPECT_EQ(0, ended.status) << "what was begun is done as a whole";
        EXPECT_EQ(all, messageFiles("ENU"));
        EXPECT_EQ(0, messageFiles("FRA"));
    }
}

TEST_F(EventLanguageCommand, KeepLeavesTheNewLanguageForLaterRunsToo)
{
    const int all = messageFiles("ENU");
    const Outcome kept = runJson({"event-language", "jpn", "--keep"});
    ASSERT_EQ(0, kept.status);
    EXPECT_EQ("ENU", kept.json()["original"]) << "the first language is still told";
    EXPECT_EQ("JPN", kept.json()["current"]);
    EXPECT_THAT(kept.err, HasSubstr("orvandiag event-language ENU --keep")) << "the way back";
    EXPECT_EQ(all, messageFiles("JPN")) << "the folder's own spelling counts";
    ASSERT_EQ(0, run({"cycle"}).status);
    EXPECT_EQ(all, messageFiles("JPN"));
    EXPECT_EQ("JPN", runJson({"event-language"}).json()["original"]);

    ASSERT_EQ(0, run({"event-language", "ENU", "--keep"}).status);
    EXPECT_EQ(all, messageFiles("ENU"));
}

TEST_F(EventLanguageCommand, AToolThatWasKilledIsMadeGoodByTheNextRun)
{
    ASSERT_EQ(0, run({"event-language", "FRA", "--keep"}).status);
    setInRegistry("\"OriginalEventLogLanguage\"=\"FRA\"", "\"OriginalEventLogLanguage\"=\"ENU\"");
    const int all = messageFiles("FRA");
    ASSERT_EQ(0, run({"cycle"}).status);
    EXPECT_EQ(all, messageFiles("ENU"));
}

TEST_F(EventLanguageCommand, ALookArmsNoLaterCommandToRewriteTheServersSources)
{
    setInRegistry("\"CategoryMessageFile\"=\"C:\\\\KelmaOrvan\\\\Localize\\\\Messaging\\\\ENU\\\\"
                  "KoMessages.dll\"",
                  "\"CategoryMessageFile\"=\"C:\\\\Windows\\\\System32\\\\abc.dll\"");
    const std::string before = registry();
    ASSERT_EQ(0, run({"event-language"}).status);
    EXPECT_EQ(before, registry());
    ASSERT_EQ(0, run({"cycle"}).status);
    EXPECT_THAT(registry(), HasSubstr("C:\\\\Windows\\\\System32\\\\abc.dll"));
    EXPECT_THAT(registry(), Not(HasSubstr("OriginalEventLogLanguage")));
}

TEST_F(EventLanguageCommand, AServerWithoutEventSourcesSaysSoAndIsLeftAlone)
{
    std::string text = registry();
    for (auto place = text.find("Localize\\\\Messaging"); place != std::string::npos;
         place = text.find("Localize\\\\Messaging"))
        text.replace(place, 8, "Elsewher");
    write(site / "registry.reg", text);
    const std::string before = fingerprint();
    expectRefused({"event-language", "FRA"}, 1, "no event source of the server is registered");
    EXPECT_EQ(before, fingerprint());
    EXPECT_EQ("", runJson({"event-language"}).json()["current"]);
}

TEST_F(EventLanguageCommand, AnUnknownLanguageIsRefusedAndChangesNothing)
{
    const int all = messageFiles("ENU");
    const std::string before = fingerprint();
    const auto logs = toolLogs();
    for (const char* wrong : {"QQQ", "EN", "..", "ENU\\.."})
        expectRefused({"event-language", wrong, "--keep"}, 1, "no event log language");
    EXPECT_EQ(all, messageFiles("ENU"));
    EXPECT_EQ(before, fingerprint());
    EXPECT_EQ(logs, toolLogs());
    EXPECT_THAT(registry(), Not(HasSubstr("OriginalEventLogLanguage")));
}

TEST_F(EventLanguageCommand, AServerWithoutMessagesSaysSo)
{
    fs::remove_all(drive("KelmaOrvan/Localize"));
    expectRefused({"event-language", "FRA"}, 1, "languages can't be listed");
    EXPECT_EQ(json::array(), runJson({"event-language"}).json()["available"]);
}

TEST_F(LanguageCommand, ListsTheLanguagesAndChoosesOneForARun)
{
    const json shown = runJson({"language"}).json();
    EXPECT_THAT(shown["available"], ElementsAre("DEU", "ENU", "ESP", "FRA", "JPN"));
    const json chosen = runJson({"language", "fra"}).json();
    EXPECT_EQ("FRA", chosen["current"]);
    EXPECT_THAT(registry(), HasSubstr("\"CurrentLocalizationLanguage\"=\"1036\""));
    EXPECT_EQ(shown["current"], runJson({"language"}).json()["current"])
        << "each run begins with the user's language";
    EXPECT_NE(run({"language", "ENU"}).out, run({"language", "DEU"}).out);
}

TEST_F(LanguageCommand, TakesALibrarysCodeWithoutRegardToCase)
{
    ASSERT_EQ(0, run({"cycle"}).status) << "the tool's folder is supplied";
    const auto tool = drive("OrvanDiagnostics");
    fs::rename(tool / "ZMKbrandingres_FRA.txt", tool / "zmkbrandingres_fra.txt");
    const Outcome listed = run({"language"});
    EXPECT_THAT(listed.out, testing::ContainsRegex("fra +French \\(France\\)"));
    const json chosen = runJson({"language", "FRA"}).json();
    EXPECT_EQ("FRA", chosen["current"]);
    EXPECT_NE(listed.out, run({"language", "fra"}).out);
}

TEST_F(LanguageCommand, FollowsTheSitesOwnLanguage)
{
    std::string ini = read(site / "site.ini");
    const auto line = ini.find("\nlanguage");
    if (line != std::string::npos) ini.erase(line + 1, ini.find('\n', line + 1) - line);
    write(site / "site.ini", ini + "\nlanguage = 1041\n");
    EXPECT_EQ("JPN", runJson({"language"}).json()["current"]);
}

TEST_F(LanguageCommand, AnUnknownLanguageIsRefusedAndChangesNothing)
{
    const std::string before = fingerprint();
    const auto logs = toolLogs();
    for (const char* wrong : {"QQQ", "ITA", "1036"})
        expectRefused({"language", wrong}, 1, "no interface language");
    EXPECT_EQ(before, fingerprint());
    EXPECT_EQ(logs, toolLogs());
}

TEST_F(AboutBoxCommand, TellsWhatTheBoxShows)
{
    const json about = runJson({"about"}).json();
    EXPECT_EQ("Orvan Diagnostic Tool", about["title"]);
    EXPECT_EQ("Kelma Systems, Inc.", about["provider"]);
    EXPECT_EQ("Kelma Systems, Inc.", about["address"][0]);
    EXPECT_EQ(3u, about["address"].size());
    EXPECT_THAT(about["copyright"].get<std::string>(), testing::StartsWith("Copyright"));
    EXPECT_THAT(about["description"].get<std::string>(),
                HasSubstr(about["trademark"].get<std::string>()));
    ASSERT_EQ(5u, about["languages"].size());
    EXPECT_EQ("German (Germany)", about["languages"][0]["name"]);
    EXPECT_EQ(1031, about["languages"][0]["id"]);
    EXPECT_THAT(run({"about"}).out, HasSubstr("Version:" + about["version"].get<std::string>()));
}

} // namespace
