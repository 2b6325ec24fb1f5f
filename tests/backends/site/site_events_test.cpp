#include "backends/site/events/site_event_log_exporter.h"
#include "backends/site/events/site_event_reporter.h"

#include "backends/site/events/event_log_csv.h"
#include "backends/site/time/site_clock.h"
#include "drives/site_paths.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <thread>

namespace {

namespace fs = std::filesystem;

class FixedClock final : public Clock {
public:
    Date now() const override { return dateOf(2005, 10, 8, 15, 23, 7); }
    float timer() const override { return 0; }
    void sleep(int) override {}
};

class SiteEventsTest : public testing::Test {
protected:
    SiteEventsTest()
    {
        folder.makeFolder("drive_c");
        paths.permit(folder.path());
    }

    const std::string header{eventLogCsvHeader};
    TemporaryFolder folder;
    FixedClock clock;
    SitePaths paths{folder.path()};
    SiteEventReporter reporter{RootFolder(folder.path()), "VOICE01", LogFields::basic, clock};
    SiteEventLogExporter exporter{paths};
};

TEST_F(SiteEventsTest, AnEventIsALineOfTheApplicationLog)
{
    reporter.startUp();
    reporter.completeStartUp();
    const auto handle = reporter.registerTool("OrvanDiagnostics");
    reporter.report("OrvanDiagnosticTool_MC", handle, 10, 10004, {"GA - \"Calls\"\r\n"});
    reporter.report("OrvanDiagnosticTool_MC", handle, 0, 10003, {});

    EXPECT_EQ(R"({"time":"2005-10-08 15:23:07","type":10,"source":"OrvanDiagnosticTool_MC",)"
              R"("id":10004,"computer":"VOICE01","inserts":["GA - \"Calls\"\r\n"]})"
              "\n"
              R"({"time":"2005-10-08 15:23:07","type":0,"source":"OrvanDiagnosticTool_MC",)"
              R"("id":10003,"computer":"VOICE01","inserts":[]})"
              "\n",
              folder.read("eventlogs/Application.jsonl"));
}

TEST_F(SiteEventsTest, TextsThatAreNotUtf8AreMadeSo)
{
    reporter.report("s", 1, 0, 1, {"caf\xE9"});

    EXPECT_NE(std::string::npos,
              folder.read("eventlogs/Application.jsonl").find("caf\xEF\xBF\xBD"));
}

TEST_F(SiteEventsTest, AnEventBeginsALineOfItsOwn)
{
    folder.write("eventlogs/Application.jsonl", "{\"cut\":");
    reporter.report("s", 1, 0, 1, {});

    EXPECT_EQ(0u, folder.read("eventlogs/Application.jsonl").find("{\"cut\":\n{\"time\""));
}

TEST_F(SiteEventsTest, EventsOfTwoProgramsDoNotMix)
{
    const auto report = [&](const std::string& source) {
        SiteEventReporter own(RootFolder(folder.path()), "C", LogFields::basic, clock);
        for (int i = 0; i < 200; ++i) own.report(source, 1, 0, i, {std::string(300, 'x')});
    };
    std::thread first([&] { report("a"); });
    std::thread second([&] { report("b"); });
    first.join();
    second.join();
    exporter.exportEventLog("Application", "C:\\out.csv", 0);

    const auto text = folder.read("drive_c/out.csv");
    EXPECT_EQ(401, std::count(text.begin(), text.end(), '\n'));
    EXPECT_EQ(std::string::npos, text.find(",,,,,"));
}

TEST_F(SiteEventsTest, ReportingRaisesWhatStandsInTheWay)
{
    folder.write("eventlogs", "a file");
    EXPECT_EQ(76, errorOf([&] { reporter.report("s", 1, 0, 1, {}); }));
    fs::remove(folder / "eventlogs");
    folder.makeFolder("eventlogs/Application.jsonl");
    EXPECT_EQ(70, errorOf([&] { reporter.report("s", 1, 0, 1, {}); }));
    fs::remove(folder / "eventlogs/Application.jsonl");
    const auto other = folder.write("other", "x");
    for (const char* target : {"/dev/full", "../other", other.c_str()}) {
        fs::create_symlink(target, folder / "eventlogs/Application.jsonl");
        EXPECT_EQ(70, errorOf([&] { reporter.report("s", 1, 0, 1, {}); })) << target;
        fs::remove(folder / "eventlogs/Application.jsonl");
    }
    EXPECT_EQ("x", folder.read("other"));
    ASSERT_EQ(0, ::mkfifo((folder / "eventlogs/Application.jsonl").c_str(), 0666));
    EXPECT_EQ(70, errorOf([&] { reporter.report("s", 1, 0, 1, {}); })) << "at once";
}

TEST_F(SiteEventsTest, FormatsOrRaises5)
{
    std::string text = "x";
    EXPECT_EQ(5, errorOf([&] { reporter.formatTraceLine("not a line of a log", text); }));
    EXPECT_EQ("x", text);
    reporter.formatTraceLine("15:23:07:123,Conv,1,X,0,a", text);
    EXPECT_EQ("x15:23:07:123 (Conv,1,X,0) a", text);
}

TEST_F(SiteEventsTest, ExportsALogByNameWithoutRegardToCase)
{
    folder.write("eventlogs/System.jsonl",
                 "{\"id\":1,\"inserts\":[\"one\"]}\n\nnot an event\n{\"id\":2}");
    exporter.exportEventLog("SYSTEM", "C:\\System.csv", 0);

    EXPECT_EQ(header + ",,,1,,one\r\n,,,,,not an event\r\n,,,2,,\r\n",
              folder.read("drive_c/System.csv"));
}

TEST_F(SiteEventsTest, ExportsAnEmptyLogAsItsHeader)
{
    folder.write("eventlogs/System.jsonl");
    exporter.exportEventLog("System", folder / "System.csv", 0);

    EXPECT_EQ(header, folder.read("System.csv"));
}

TEST_F(SiteEventsTest, SweepsWhatAKilledExportLeftBesideItsTarget)
{
    folder.write("eventlogs/System.jsonl");
    const std::string left = folder.write("to/.new-7-1", "half of one");
    std::filesystem::last_write_time(left, std::filesystem::file_time_type::clock::now() -
                                               std::chrono::hours(2));
    exporter.exportEventLog("System", folder / "to/System.csv", 0);
    EXPECT_FALSE(folder.exists("to/.new-7-1"));
}

TEST_F(SiteEventsTest, ExportsALargeLog)
{
    std::string log;
    for (int i = 0; i < 20'000; ++i)
        log += "{\"id\":" + std::to_string(i) + ",\"inserts\":[\"a text of some length\"]}\n";
    folder.write("eventlogs/System.jsonl", log);
    exporter.exportEventLog("System", "C:\\s.csv", 0);

    const auto text = folder.read("drive_c/s.csv");
    EXPECT_EQ(20'001, std::count(text.begin(), text.end(), '\n'));
    EXPECT_NE(std::string::npos, text.find(",,,19999,,a text of some length\r\n"));
}

TEST_F(SiteEventsTest, MarksALineThatIsTooLongToHold)
{
    folder.write("eventlogs/System.jsonl",
                 "{\"id\":1}\n" + std::string((64U << 20) + 1, 'x') + "\n{\"id\":2}\n");
    exporter.exportEventLog("System", "C:\\s.csv", 0);

    EXPECT_EQ(header + ",,,1,,\r\n,,,,,An event of more than 64 MiB was left out here.\r\n"
                       ",,,2,,\r\n",
              folder.read("drive_c/s.csv"));
}

TEST_F(SiteEventsTest, AMissingLogRaises53)
{
    for (const char* name : {"System", "", "..", "../registry", "Application\0"})
        EXPECT_EQ(53, errorOf([&] { exporter.exportEventLog(name, "C:\\x.csv", 0); })) << name;
    folder.write("eventlogs/System.jsonl");
    folder.write("secret.jsonl");
    EXPECT_EQ(53, errorOf([&] { exporter.exportEventLog("../secret", "C:\\x.csv", 0); }));
    EXPECT_FALSE(folder.exists("drive_c/x.csv"));
}

TEST_F(SiteEventsTest, AnExportThatCannotBeMadeLeavesNothing)
{
    folder.write("eventlogs/System.jsonl", "{}\n");
    const auto locked = folder.write("drive_c/locked.csv", "old");
    fs::permissions(locked, fs::perms::owner_read);
    folder.makeFolder("drive_c/sub");

    EXPECT_EQ(76, errorOf([&] { exporter.exportEventLog("System", "C:\\none\\x.csv", 0); }));
    EXPECT_EQ(70, errorOf([&] { exporter.exportEventLog("System", "C:\\locked.csv", 0); }));
    EXPECT_EQ(70, errorOf([&] { exporter.exportEventLog("System", "C:\\sub", 0); }));
    EXPECT_EQ("old", folder.read("drive_c/locked.csv"));
    EXPECT_EQ(2, std::distance(fs::directory_iterator(folder / "drive_c"), {}));
}

} // namespace
