#include "end_to_end/trace_commands.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <functional>
#include <thread>

#include <sqlite3.h>

namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using testing::HasSubstr;

TEST_F(TraceCommands, StatusShowsTheConnection)
{
    EXPECT_TRUE(runJson({"status"}).json()["connected"]);
}

TEST_F(TraceCommands, FlagsShowsTheWordsAsStored)
{
    const auto all = runJson({"flags"}).json();
    EXPECT_EQ(std::to_string(all.size()), sql("SELECT count(*) FROM vw_LoggerDiagnosticGrid"));
    const std::string name = all[0]["name"];
    EXPECT_EQ(flags(name), all[0]["flags"].get<int>());
    const auto one = runJson({"flags", name}).json();
    ASSERT_EQ(1u, one.size());
    EXPECT_EQ(all[0], one[0]);
    EXPECT_EQ(1, runJson({"flags", "NoSuchComponent"}).status);
}

TEST_F(TraceCommands, AMacroTraceGoesOnAndIsRememberedAndGoesOffAgain)
{
    // From the default flags: switching off flips, so a level on beforehand would go off with it.
    ASSERT_EQ(0, run({"reset"}).status);
    const std::string trace = macroTrace();
    const std::string before = sql("SELECT Name, Flags FROM vw_LoggerDiagnosticGrid ORDER BY Name");
    const auto on = runJson({"macro", "set", "--on", trace}).json();
    EXPECT_EQ("The following Macro Traces were enabled:\r\n        " + trace + "\r\n",
              on["summary"]);
    EXPECT_TRUE(shown(trace)["enabled"]);
    EXPECT_NE(before, sql("SELECT Name, Flags FROM vw_LoggerDiagnosticGrid ORDER BY Name"));
    const auto dash = trace.find(" - ");
    const std::string key =
        "OrvanDiagnostics\\" + trace.substr(0, dash) + "\\" + trace.substr(dash + 3) + "]";
    const std::string registry = read(site / "registry.reg");
    ASSERT_NE(std::string::npos, registry.find(key));
    EXPECT_THAT(registry.substr(registry.find(key), 200), HasSubstr("\"Enabled\"=dword:00000001"));
    EXPECT_THAT(registry, HasSubstr("\"Diagnostic Grid Time Set\"=hex:"));
    EXPECT_THAT(read(site / "eventlogs/Application.jsonl"), HasSubstr("10004"));

    const auto off = runJson({"macro", "set", "--off", trace}).json();
    EXPECT_EQ("The following Macro Traces were disabled:\r\n        " + trace, off["summary"]);
    EXPECT_FALSE(shown(trace)["enabled"]);
    EXPECT_EQ(before, sql("SELECT Name, Flags FROM vw_LoggerDiagnosticGrid ORDER BY Name"));
}

/// The changes of the directory database made lasting so far, by the file's own count of them.
unsigned lastingChanges(const fs::path& site)
{
    std::ifstream stream(site / "OrvanDirDb.sqlite", std::ios::binary);
    stream.seekg(24);
    unsigned count = 0;
    for (int byte = 0; byte < 4; ++byte)
        count = count << 8 | static_cast<unsigned char>(stream.get());
    return count;
}

TEST_F(TraceCommands, AMacroTraceOfManyComponentsIsWrittenToTheDiskInAFewChanges)
{
    std::string definition = "<GA NAME='Big'><TRACE NAME='Huge'>";
    for (int i = 0; i < 1500; ++i)
        definition += "<DIAG GROUP='CallFlow'><FLAG ID='" + std::to_string(i % 31) + "'/></DIAG>";
    write(drive("OrvanDiagnostics/ZMKXML/HTBig.xml"), definition + "</TRACE></GA>");
    const int calls = std::stoi(sql("SELECT count(*) FROM tbl_ProcedureAudit"));
    const unsigned before = lastingChanges(site);

    ASSERT_EQ(0, run({"macro", "set", "--on", "Big - Huge"}).status);

    EXPECT_EQ(0x7fffffff, flags("CallFlow"));
    EXPECT_LT(calls + 1500, std::stoi(sql("SELECT count(*) FROM tbl_ProcedureAudit")))
        << "each component is written by itself all the same";
    EXPECT_GE(10u, lastingChanges(site) - before);
}

TEST_F(TraceCommands, AMacroTraceInAnEncodingOfItsOwnGoesOnAndOffAgain)
{
    ASSERT_EQ(0, run({"reset"}).status);
    write(drive("OrvanDiagnostics/ZMKXML/HTdeclared.xml"),
          "<?xml version='1.0' encoding='windows-1252'?><GA NAME='Caf\xE9'><TRACE NAME='Na\xEFve'>"
          "<DIAG GROUP='CallFlow'><FLAG ID='9'/></DIAG></TRACE></GA>");
    write(drive("OrvanDiagnostics/ZMKXML/HTnone.xml"),
          "<GA NAME='Stra\xDF\x65'><TRACE NAME='\xDC\x62\x65r'>"
          "<DIAG GROUP='CallFlow'><FLAG ID='8'/></DIAG></TRACE></GA>");
    const int before = flags("CallFlow");
    for (const char* trace :
         {"Caf\xC3\xA9 - Na\xC3\xAFve", "Stra\xC3\x9F\x65 - \xC3\x9C\x62\x65r"}) {
        SCOPED_TRACE(trace);
        ASSERT_EQ(0, run({"macro", "set", "--on", trace}).status);
        EXPECT_TRUE(shown(trace)["enabled"]);
        EXPECT_NE(before, flags("CallFlow"));
        ASSERT_EQ(0, run({"macro", "set", "--off", trace}).status);
        EXPECT_FALSE(shown(trace)["enabled"]);
        EXPECT_EQ(before, flags("CallFlow"));
    }
}

TEST_F(TraceCommands, AMicroTraceIsOneBitOfAComponentsWord)
{
    const auto components = runJson({"micro"}).json();
    ASSERT_GE(components.size(), 25u);
    for (const auto& component : components) {
        for (const auto& level : component["levels"]) {
            if (level["enabled"] || level["level"] == 31) continue;
            const std::string name = component["component"];
            const int number = level["level"];
            const std::string place = name + ":" + std::to_string(number);
            ASSERT_EQ(0, run({"micro", "set", "--on", place}).status);
            EXPECT_NE(0, flags(name) & 1 << number);
            const auto after = runJson({"micro", name}).json();
            ASSERT_EQ(1u, after.size());
            for (const auto& each : after[0]["levels"])
                EXPECT_TRUE(each["level"] != number || each["enabled"]);
            ASSERT_EQ(0, run({"micro", "set", "--off", place}).status);
            EXPECT_EQ(0, flags(name) & 1 << number);
            return;
        }
    }
    FAIL() << "every level is on";
}

TEST_F(TraceCommands, ALevelThatIsOnByDefaultIsToldToStayOn)
{
    const Outcome set = run({"micro", "set", "--off", "CallFlow:1", "--off", "CallFlow:2"});
    EXPECT_EQ(0, set.status);
    EXPECT_EQ("orvandiag: CallFlow:1 stays on: it is on by default\n", set.err);
    EXPECT_EQ(3, flags("CallFlow") & 7);
    EXPECT_EQ("", run({"micro", "set", "--on", "CallFlow:1", "--off", "CallFlow:2"}).err);
}

TEST_F(TraceCommands, ANameThatIsToBeTurnedOnAndOffIsRefused)
{
    const std::string trace = macroTrace();
    std::string other = trace;
    std::transform(other.begin(), other.end(), other.begin(), ::toupper);
    const std::vector<std::vector<std::string>> cases = {
        {"macro", "set", "--on", trace, "--off", trace},
        {"macro", "set", "--on", trace, "--off", other},
        {"micro", "set", "--on", "CallFlow:5", "--off", "Codec:5", "--off", "CallFlow:5"},
        {"micro", "set", "--on", "CallFlow:5", "--off", "callflow:05"},
    };
    const std::string before = fingerprint();
    for (const auto& words : cases) {
        SCOPED_TRACE(testing::PrintToString(words));
        const Outcome refused = run(words);
        EXPECT_EQ(2, refused.status);
        EXPECT_THAT(refused.err, HasSubstr("is to be turned on and off"));
        EXPECT_EQ(before, fingerprint());
    }
}

TEST_F(TraceCommands, TheTextOfALevelDoesNotChangeItsNumber)
{
    const fs::path catalogue =
        drive("KelmaOrvan/GuiResources/Resources/ENU/DiagnosticGrids_ENU.xml");
    std::string text = read(catalogue);
    for (const auto& [old, other] : {std::pair("level=\"1\" text=\"Warnings\"", "1st stage"),
                                     std::pair("level=\"2\" text=\"Name searches\"", "E1 trunk"),
                                     std::pair("level=\"4\" text=\"Private lists\"", "32 bit"),
                                     std::pair("level=\"5\" text=\"System lists\"", ".5 s")}) {
        const std::string shown = old;
        ASSERT_NE(std::string::npos, text.find(shown));
        text.replace(text.find(shown), shown.size(), shown.substr(0, 16) + other + '"');
    }
    write(catalogue, text);
    sql("UPDATE tbl_LoggerDiagnosticGrid SET Flags=1, DefaultFlags=1 WHERE Name='AddressBook'");

    ASSERT_EQ(0, run({"micro", "set", "--on", "AddressBook:1", "--on", "AddressBook:2", "--on",
                      "AddressBook:4", "--on", "AddressBook:5"})
                     .status);
    EXPECT_EQ(0b110111, flags("AddressBook"));
    ASSERT_EQ(0, run({"micro", "set", "--off", "AddressBook:2"}).status);
    EXPECT_EQ(0b110011, flags("AddressBook")) << "the other levels stay set";
    const auto levels = runJson({"micro", "AddressBook"}).json()[0]["levels"];
    EXPECT_EQ(4, levels[4]["level"]);
    EXPECT_EQ("32 bit", levels[4]["text"]);
}

TEST_F(TraceCommands, AskingForWhatIsInForceAlreadyIsDoneAndTold)
{
    const std::string trace = macroTrace();
    for (const char* option : {"--on", "--off"}) {
        for (int time = 0; time < 2; ++time) {
            SCOPED_TRACE(std::string(option) + (time == 0 ? " first" : " again"));
            const Outcome set = runJson({"macro", "set", option, trace});
            ASSERT_EQ(0, set.status) << set.err;
            EXPECT_NE(std::string::npos, set.json()["summary"].get<std::string>().find(trace));
            EXPECT_EQ(option == std::string("--on"), shown(trace)["enabled"]);
        }
    }

    ASSERT_EQ(0, run({"reset"}).status);
    const std::string words = sql("SELECT * FROM vw_LoggerDiagnosticGrid ORDER BY Name");
    const std::string component = runJson({"flags"}).json()[0]["name"];
    const json levels = runJson({"micro", component}).json()[0]["levels"];
    for (const bool enabled : {true, false}) {
        const auto level = std::find_if(levels.begin(), levels.end(), [&](const json& each) {
            return each["enabled"] == enabled;
        });
        ASSERT_NE(levels.end(), level);
        const std::string place = component + ":" + std::to_string((*level)["level"].get<int>());
        EXPECT_EQ(0, run({"micro", "set", enabled ? "--on" : "--off", place}).status) << place;
    }
    EXPECT_EQ(words, sql("SELECT * FROM vw_LoggerDiagnosticGrid ORDER BY Name"));
}

TEST_F(TraceCommands, ResetLeavesTheDefaultFlags)
{
    ASSERT_EQ(0, run({"macro", "set", "--on", macroTrace()}).status);
    EXPECT_NE("0", sql("SELECT count(*) FROM vw_LoggerDiagnosticGrid WHERE Flags <> DefaultFlags"));
    ASSERT_EQ(0, run({"reset"}).status);
    EXPECT_EQ("0", sql("SELECT count(*) FROM vw_LoggerDiagnosticGrid WHERE Flags <> DefaultFlags"));
    for (const auto& trace : runJson({"macro"}).json()) EXPECT_FALSE(trace["enabled"]);
}

TEST_F(TraceCommands, AnUnknownNameIsRefusedBeforeAnythingChanges)
{
    const std::string trace = macroTrace();
    const std::string words = sql("SELECT * FROM vw_LoggerDiagnosticGrid ORDER BY Name");
    const std::string component = runJson({"flags"}).json()[0]["name"];
    const std::string before = fingerprint();
    const auto logs = toolLogs();
    const struct {
        std::vector<std::string> arguments;
        int status;
    } cases[] = {
        {{"macro", "set", "--on", trace, "--off", "Nothing - At all"}, 1},
        {{"macro", "set"}, 2},
        {{"micro", "set", "--on", component + ":0", "--on", "NoSuchComponent:0"}, 1},
        {{"micro", "set", "--on", component + ":99"}, 1},
        {{"micro", "set", "--on", component}, 2},
        {{"micro", "set", "--on", component + ":x"}, 2},
        {{"micro", "set"}, 2},
        {{"micro", "NoSuchComponent"}, 1},
        {{"flags", "NoSuchComponent"}, 1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.arguments));
        const Outcome refused = run(c.arguments);
        EXPECT_EQ(c.status, refused.status) << refused.err;
        EXPECT_EQ(1, std::count(refused.err.begin(), refused.err.end(), '\n')) << refused.err;
        EXPECT_EQ("", refused.out);
    }
    EXPECT_EQ(before, fingerprint()) << "not even the tool's coming and going is reported";
    EXPECT_EQ(logs, toolLogs());
    EXPECT_EQ(words, sql("SELECT * FROM vw_LoggerDiagnosticGrid ORDER BY Name"));
    EXPECT_FALSE(shown(trace)["enabled"]);
}

TEST_F(TraceCommands, WithoutADatabaseNothingCanBeChanged)
{
    const std::string trace = macroTrace();
    const std::string component = runJson({"flags"}).json()[0]["name"];
    const struct {
        const char* because;
        std::string content;
    } cases[] = {{"another program's file", "GIF89a, and so on for a while"}, {"none at all", ""}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        fs::remove(site / "OrvanDirDb.sqlite");
        if (!c.content.empty()) write(site / "OrvanDirDb.sqlite", c.content);
        EXPECT_FALSE(runJson({"status"}).json()["connected"]);
        const std::vector<std::vector<std::string>> commands = {
            {"macro", "set", "--on", trace},
            {"micro", "set", "--on", component + ":0"},
            {"reset"},
            {"flags"},
            {"micro"},
        };
        for (const auto& words : commands) {
            SCOPED_TRACE(words[0]);
            const Outcome refused = run(words);
            EXPECT_EQ(1, refused.status);
            EXPECT_THAT(refused.err, HasSubstr("cannot connect to the server's database"));
        }
        EXPECT_EQ(0, run({"macro"}).status) << "the definitions need no database";
    }
}

/// Another program that holds the site's directory database for itself until it lets go.
class HeldDatabase {
public:
    explicit HeldDatabase(const fs::path& site)
    {
        EXPECT_EQ(SQLITE_OK, sqlite3_open((site / "OrvanDirDb.sqlite").c_str(), &database_));
        EXPECT_EQ(SQLITE_OK, sqlite3_exec(database_, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr));
    }
    HeldDatabase(const fs::path& site, std::chrono::milliseconds time) : HeldDatabase(site)
    {
        release_ = std::thread([this, time] {
            std::this_thread::sleep_for(time);
            sqlite3_exec(database_, "ROLLBACK", nullptr, nullptr, nullptr);
        });
    }
    ~HeldDatabase()
    {
        if (release_.joinable()) release_.join();
        sqlite3_close(database_);
    }
    HeldDatabase(const HeldDatabase&) = delete;
    HeldDatabase& operator=(const HeldDatabase&) = delete;

private:
    sqlite3* database_ = nullptr;
    std::thread release_;
};

double secondsOf(const std::function<void()>& act)
{
    const auto before = std::chrono::steady_clock::now();
    act();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - before).count();
}

TEST_F(TraceCommands, ALockOfAnotherProgramIsWaitedForOnceAndToldOf)
{
    const std::string component = runJson({"flags"}).json()[0]["name"];
    const int level = runJson({"micro", component}).json()[0]["levels"][0]["level"];
    const std::vector<std::vector<std::string>> commands = {
        {"status"}, {"micro", "set", "--on", component + ":" + std::to_string(level)}};
    const HeldDatabase held(site);
    for (const auto& words : commands) {
        SCOPED_TRACE(words[0]);
        Outcome outcome;
        const double seconds = secondsOf([&] { outcome = run(words); });
        EXPECT_GE(seconds, 10.0);
        EXPECT_LT(seconds, 19.0) << "less than two waits, on a busy machine too";
        EXPECT_EQ(words[0] == "status" ? 0 : 1, outcome.status);
        EXPECT_THAT(outcome.out + outcome.err,
                    HasSubstr("OrvanDirDb.sqlite: another program holds it and did not let go"));
        const std::string said = "orvandiag: waiting for another program that holds ";
        EXPECT_EQ(0U, outcome.err.find(said)) << "within the wait, before its end: " << outcome.err;
        EXPECT_EQ(std::string::npos, outcome.err.find(said, 1)) << "once: " << outcome.err;
    }
}

TEST_F(TraceCommands, ALockThatIsReleasedInTimeLosesNothing)
{
    const std::string component = runJson({"flags"}).json()[0]["name"];
    const int defaults = runJson({"flags", component}).json()[0]["defaultFlags"];
    const json levels = runJson({"micro", component}).json()[0]["levels"];
    const auto level = std::find_if(levels.begin(), levels.end(), [&](const json& shown) {
        return (defaults >> shown["level"].get<int>() & 1) == 0;
    });
    ASSERT_NE(levels.end(), level);
    const int number = (*level)["level"];
    sql("UPDATE tbl_LoggerDiagnosticGrid SET Flags = DefaultFlags");
    {
        const HeldDatabase held(site, std::chrono::seconds(2));
        const Outcome set = run({"micro", "set", "--on", component + ":" + std::to_string(number)});
        EXPECT_EQ(0, set.status) << set.err;
    }
    EXPECT_EQ(defaults | 1 << number, flags(component));
    {
        const HeldDatabase held(site, std::chrono::seconds(2));
        const Outcome reset = run({"reset"});
        EXPECT_EQ(0, reset.status) << reset.err;
    }
    EXPECT_EQ(defaults, flags(component));
}

} // namespace
