#include "end_to_end/trace_commands.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using testing::HasSubstr;

/// What the commands say of what they did.
struct TraceResults : TraceCommands {};

TEST_F(TraceResults, AStrayDefinitionFileIsAWarningAndNoFailure)
{
    ASSERT_EQ(0, run({"reset"}).status) << "the tool's folder is supplied once";
    const std::string trace = macroTrace();
    for (const char* name : {"HTbroken.xml", "HTother.xml"})
        write(drive("OrvanDiagnostics/ZMKXML/" + std::string(name)),
              name == std::string("HTother.xml") ? "<OTHER/>" : "<GA NAME='X'><TRACE");
    const std::string warnings =
        "orvandiag: HTbroken.xml is passed over: it is no definition of macro traces\n"
        "orvandiag: HTother.xml is passed over: it is no definition of macro traces\n";
    const Outcome set = run({"macro", "set", "--on", trace});
    EXPECT_EQ(0, set.status);
    EXPECT_EQ(warnings, set.err);
    EXPECT_TRUE(shown(trace)["enabled"]);
    const Outcome listed = run({"macro"});
    EXPECT_EQ(0, listed.status);
    EXPECT_EQ(warnings, listed.err);
    const Outcome reset = run({"reset"});
    EXPECT_EQ(0, reset.status) << reset.err;
}

TEST_F(TraceResults, WhatADefinitionAsksForInVainIsAWarning)
{
    ASSERT_EQ(0, run({"reset"}).status);
    write(drive("OrvanDiagnostics/ZMKXML/HTzz.xml"),
          "<GA NAME='Vain'><TRACE NAME='T'><DESCRIPTION/>"
          "<DIAG GROUP='NoSuchComponent'><FLAG ID='1'/></DIAG>"
          "<DIAG GROUP='CallFlow'><FLAG ID='40'/></DIAG></TRACE></GA>");
    const Outcome set = run({"macro", "set", "--on", "Vain - T"});
    EXPECT_EQ(0, set.status);
    EXPECT_EQ("orvandiag: a macro trace asks for what this server does not have: no component "
              "NoSuchComponent\n"
              "orvandiag: a macro trace asks for what this server does not have: no level 40 of "
              "CallFlow\n",
              set.err);
}

TEST_F(TraceResults, AComponentWithoutANameIsToldAsSuch)
{
    write(drive("OrvanDiagnostics/ZMKXML/HTzz.xml"),
          "<GA NAME='Vain'><TRACE NAME='T'><DESCRIPTION/><DIAG GROUP=' '/></TRACE></GA>");
    const Outcome set = run({"macro", "set", "--on", "Vain - T"});
    EXPECT_EQ("orvandiag: a macro trace asks for what this server does not have: a component "
              "without a name\n",
              set.err);
}

TEST_F(TraceResults, ALevelThatIsNoNumberOfSixteenBitsIsAWarningAndCountsAsTheOneBeforeIt)
{
    ASSERT_EQ(0, run({"reset"}).status);
    const int before = flags("CallFlow");
    ASSERT_EQ(0, before & (1 << 7 | 1 << 9));
    write(drive("OrvanDiagnostics/ZMKXML/HTzz.xml"),
          "<GA NAME='Vain'><TRACE NAME='T'><DESCRIPTION/>"
          "<DIAG GROUP='NoSuchComponent'><FLAG ID='7'/></DIAG>"
          "<DIAG GROUP='CallFlow'><FLAG/><FLAG ID='99999'/><FLAG ID='9'/></DIAG></TRACE></GA>");
    const Outcome set = run({"macro", "set", "--on", "Vain - T"});
    EXPECT_EQ(0, set.status);
    EXPECT_EQ("orvandiag: a macro trace asks for what this server does not have: no component "
              "NoSuchComponent\n"
              "orvandiag: a macro trace asks for what this server does not have: no level 99999 of "
              "CallFlow\n",
              set.err);
    EXPECT_EQ(before | 1 << 7 | 1 << 9, flags("CallFlow"));
    EXPECT_TRUE(shown("Vain - T")["enabled"]);
}

TEST_F(TraceResults, FlagsAreReadBackAfterAChange)
{
    const std::string trace = macroTrace();
    const std::string component = runJson({"flags"}).json()[0]["name"];
    const json levels = runJson({"micro", component}).json()[0]["levels"];
    const auto level = std::find_if(levels.begin(), levels.end(),
                                    [](const json& each) { return !each["enabled"]; });
    ASSERT_NE(levels.end(), level);
    // A procedure that takes every call and changes nothing.
    sql("DROP TRIGGER csp_LoggerDiagnosticGridModify_execute;"
        "CREATE TRIGGER idle INSTEAD OF INSERT ON csp_LoggerDiagnosticGridModify BEGIN "
        "INSERT INTO tbl_ProcedureAudit (ProcedureName) VALUES ('idle'); END;");
    const std::vector<std::vector<std::string>> commands = {
        {"macro", "set", "--on", trace},
        {"micro", "set", "--on", component + ":" + std::to_string((*level)["level"].get<int>())},
        {"reset"},
    };
    for (const auto& words : commands) {
        SCOPED_TRACE(words[0]);
        const Outcome refused = run(words);
        EXPECT_EQ(1, refused.status);
        EXPECT_EQ("", refused.out);
        EXPECT_THAT(refused.err, testing::ContainsRegex("orvandiag: not every trace was changed: "
                                                        "[A-Za-z]+ has the flags 0x[0-9A-F]+ "
                                                        "instead of 0x[0-9A-F]+"));
    }
    EXPECT_NE("0", sql("SELECT count(*) FROM tbl_ProcedureAudit WHERE ProcedureName = 'idle'"));
}

TEST_F(TraceResults, AnEventThatIsNotThereIsAFailure)
{
    const std::string trace = macroTrace();
    fs::remove(site / "eventlogs/Application.jsonl");
    fs::create_directory(site / "eventlogs/Application.jsonl");
    const Outcome set = run({"macro", "set", "--on", trace});
    EXPECT_EQ(1, set.status);
    EXPECT_THAT(set.err, testing::StartsWith("orvandiag: not every trace was changed: the event of "
                                             "\"" +
                                             trace + "\" is not in the event log"));
    EXPECT_TRUE(shown(trace)["enabled"]) << "the rest was done";
}

TEST_F(TraceResults, ANameWithAnApostropheIsKnownAndItsFailureIsTold)
{
    ASSERT_EQ(0, run({"reset"}).status) << "the tool's folder is supplied once";
    write(drive("OrvanDiagnostics/ZMKXML/HTy1.xml"),
          "<GA NAME=\"A caller's\" DONTSHOW='1'><TRACE NAME='Hidden'><DESCRIPTION/></TRACE></GA>");
    write(drive("OrvanDiagnostics/ZMKXML/HTy2.xml"),
          "<GA NAME=\"A caller's\"><TRACE NAME='Shown'><DESCRIPTION/><DIAG GROUP='CallFlow'>"
          "<FLAG ID='9'/></DIAG></TRACE></GA>");
    ASSERT_FALSE(shown("A caller's - Shown").is_null()) << "the tool's look-up breaks on the name";
    ASSERT_EQ(0, flags("CallFlow") & 1 << 9);
    const Outcome set = run({"macro", "set", "--on", "A caller's - Shown"});
    EXPECT_EQ(1, set.status);
    EXPECT_THAT(set.err, HasSubstr("not every trace was changed: CallFlow has the flags "));
    EXPECT_TRUE(shown("A caller's - Shown")["enabled"]) << "it is recorded all the same";
    EXPECT_EQ(1, run({"macro", "set", "--on", "A caller's - Hidden"}).status);
}

TEST_F(TraceResults, ANameThatBreaksTheLookUpIsKnownInTheGroupWhereTheTreeShowsIt)
{
    ASSERT_EQ(0, run({"reset"}).status) << "the tool's folder is supplied once";
    const auto define = [&](const char* file, const std::string& group) {
        write(drive("OrvanDiagnostics/ZMKXML/" + std::string(file)), group);
    };
    define("HTy1.xml", "<GA NAME='Twice'><TRACE NAME='One'><DESCRIPTION/></TRACE></GA>");
    define("HTy2.xml", "<GA NAME='Twice'><TRACE NAME='Two'><DESCRIPTION/></TRACE></GA>");
    define("HTy3.xml", "<GA NAME=\"A caller's\"><TRACE NAME='Three'><DESCRIPTION/></TRACE></GA>");
    define("HTy4.xml", "<GA NAME='Once'><TRACE NAME='Four'><DESCRIPTION/></TRACE></GA>");
    define("HTy5.xml", "<OTHER/>");
    define("HTy6.xml", "<GA NAME=\"A caller's\"><TRACE NAME='Six'><DESCRIPTION/></TRACE></GA>");
    for (const char* name : {"Twice - Three", "Once - Six"}) {
        SCOPED_TRACE(name);
        ASSERT_FALSE(shown(name).is_null()) << "it counts to the group that was found before";
        const Outcome set = run({"macro", "set", "--on", name});
        EXPECT_EQ(0, set.status) << set.err;
    }
    for (const char* name : {"A caller's - Three", "A caller's - Six"})
        EXPECT_EQ(1, run({"macro", "set", "--on", name}).status);
}

TEST_F(TraceResults, EveryNameThatIsListedCanBeTurnedOn)
{
    ASSERT_EQ(0, run({"reset"}).status) << "the tool's folder is supplied once";
    write(drive("OrvanDiagnostics/ZMKXML/HTzz.xml"),
          "<GA NAME='Last'><TRACE NAME='Named'><DESCRIPTION/></TRACE>"
          "<TRACE><DESCRIPTION>Nameless</DESCRIPTION></TRACE></GA>");
    const auto listed = runJson({"macro"}).json();
    ASSERT_FALSE(listed.empty());
    EXPECT_EQ("Named", listed.back()["trace"]) << "a nameless one is shown by the name before it";
    for (const auto& one : listed) {
        const std::string name =
            one["group"].get<std::string>() + " - " + one["trace"].get<std::string>();
        const Outcome set = run({"macro", "set", "--on", name});
        EXPECT_THAT(set.err, testing::Not(HasSubstr("no macro trace"))) << name;
    }
}

TEST_F(TraceResults, AComponentWithoutLevelsEndsTheListAndThatIsTold)
{
    const auto components = runJson({"micro"}).json();
    ASSERT_GE(components.size(), 3u);
    const std::string last = components[1]["component"];
    const std::string cut = components[2]["component"];
    const fs::path catalogue =
        drive("KelmaOrvan/GuiResources/Resources/ENU/DiagnosticGrids_ENU.xml");
    std::string text = read(catalogue);
    const auto at = text.find("<DiagnosticLevels>", text.find("name=\"" + last + "\""));
    const auto end = text.find("</DiagnosticLevels>", at);
    ASSERT_NE(std::string::npos, end);
    write(catalogue, text.erase(at, end - at).insert(at, "<DiagnosticLevels>"));

    const std::string where = "the list can't be filled past " + last +
                              ", which has no levels in the catalogue of level texts\n";
    const Outcome listed = runJson({"micro"});
    EXPECT_EQ(0, listed.status);
    EXPECT_EQ("orvandiag: not every component is listed: " + where, listed.err);
    ASSERT_EQ(2U, listed.json().size());
    EXPECT_EQ(components[0], listed.json()[0]);
    EXPECT_EQ(last, listed.json()[1]["component"]);

    const std::string words = sql("SELECT * FROM vw_LoggerDiagnosticGrid ORDER BY Name");
    const Outcome one = run({"micro", cut});
    EXPECT_EQ(1, one.status);
    EXPECT_THAT(one.err, HasSubstr(cut + " is not listed\n"));
    const Outcome set = run({"micro", "set", "--on", cut + ":0"});
    EXPECT_EQ(1, set.status);
    EXPECT_EQ("orvandiag: no level can be changed: " + where, set.err);
    EXPECT_EQ(words, sql("SELECT * FROM vw_LoggerDiagnosticGrid ORDER BY Name"));
}

TEST_F(TraceResults, LevelsAreNotTurnedOffForWantOfTheirTexts)
{
    const fs::path catalogue =
        drive("KelmaOrvan/GuiResources/Resources/ENU/DiagnosticGrids_ENU.xml");
    const std::string text = read(catalogue);
    const std::string words = sql("SELECT * FROM vw_LoggerDiagnosticGrid ORDER BY Name");
    for (const char* wrong : {"", "<DiagnosticGrids>", "<Other/>", "missing"}) {
        SCOPED_TRACE(wrong);
        write(catalogue, wrong);
        if (wrong == std::string("missing")) fs::remove(catalogue);
        const Outcome set = run({"micro", "set", "--on", "AddressBook:1"});
        EXPECT_EQ(1, set.status);
        EXPECT_EQ("orvandiag: no level is changed, as no level texts can be read from "
                  "C:\\KelmaOrvan\\GuiResources\\Resources\\ENU\\DiagnosticGrids_ENU.xml: levels "
                  "that are on would be turned off\n",
                  set.err);
        EXPECT_EQ(words, sql("SELECT * FROM vw_LoggerDiagnosticGrid ORDER BY Name"));
        const Outcome listed = run({"micro", "AddressBook"});
        EXPECT_EQ(0, listed.status);
        EXPECT_THAT(listed.err, HasSubstr("no level texts can be read from C:\\"));
    }
    write(catalogue, text);
    EXPECT_EQ(0, run({"micro", "set", "--on", "AddressBook:1"}).status);
}

TEST_F(TraceResults, LevelsThatGoOffUnseenAreNamed)
{
    const fs::path catalogue =
        drive("KelmaOrvan/GuiResources/Resources/ENU/DiagnosticGrids_ENU.xml");
    std::string text = read(catalogue);
    const auto element = text.find("<DiagnosticGrid name=\"CallFlow\"");
    ASSERT_NE(std::string::npos, element);
    const std::string end = "</DiagnosticGrid>";
    write(catalogue, text.erase(element, text.find(end, element) + end.size() - element));
    sql("UPDATE tbl_LoggerDiagnosticGrid SET Flags=(1<<23)+(1<<5)+7, DefaultFlags=5 "
        "WHERE Name='CallFlow'");

    const Outcome set = run({"micro", "set", "--on", "AddressBook:1"});
    EXPECT_EQ(0, set.status);
    EXPECT_EQ("orvandiag: of CallFlow what was on and is not listed is off now: 5, 23\n", set.err);
    EXPECT_EQ("", run({"micro", "set", "--on", "AddressBook:2"}).err);
}

TEST_F(TraceResults, AListThatTheDatabaseCutsSaysWhyInOneLine)
{
    sql("DROP VIEW vw_LoggerDiagnosticGrid; CREATE VIEW vw_LoggerDiagnosticGrid (Name, ObjectId, "
        "Flags, DefaultFlags) AS WITH RECURSIVE c(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM c "
        "LIMIT 100001) SELECT 'N' || n, 'O' || n, 0, 0 FROM c");
    const std::string why = "The query gives more than 100,000 rows.\n";
    const Outcome listed = runJson({"micro"});
    EXPECT_EQ(0, listed.status) << "as any other listing of what there is";
    EXPECT_EQ("orvandiag: not every component is listed: the list can't be filled: " + why,
              listed.err);
    EXPECT_EQ(nlohmann::json::array(), listed.json());
    const Outcome one = run({"micro", "CallFlow"});
    EXPECT_EQ(1, one.status);
}

TEST_F(TraceResults, ADatabaseThatRefusesIsToldOf)
{
    sql("DROP VIEW csp_LoggerDiagnosticGridModify");
    const Outcome refused = run({"reset"});
    EXPECT_EQ(1, refused.status);
    EXPECT_THAT(refused.err, HasSubstr("csp_LoggerDiagnosticGridModify"));
}

} // namespace
