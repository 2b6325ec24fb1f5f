#include "backends/site/sample_site.h"

#include "backends/site/site.h"
#include "sample/day_profile.h"
#include "sample/random.h"
#include "support/error_of.h"
#include "support/places.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

/// Every file and folder of a site, with its bytes and the time of its last change.
std::map<std::string, std::string> contentsOf(const SampleSite& site)
{
    std::map<std::string, std::string> contents;
    for (const auto& entry : fs::recursive_directory_iterator(site.path(""))) {
        const std::string name = fs::relative(entry.path(), site.path("")).string();
        struct stat facts = {};
        ::stat(entry.path().c_str(), &facts);
        contents[name] = std::to_string(facts.st_mtime) + ' ' +
                         (entry.is_regular_file() ? site.read(name) : std::string());
    }
    return contents;
}

SampleOptions optionsFor(const std::string& folder)
{
    SampleOptions options;
    options.folder = folder;
    options.dataFolder = built::data;
    options.lines = 200;
    return options;
}

std::vector<std::string> namesIn(const TemporaryFolder& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder.path()))
        names.push_back(entry.path().filename().string());
    return names;
}

TEST(SampleServer, IsTheSameByteForByteForTheSameSeed)
{
    EXPECT_TRUE(contentsOf(SampleSite(8000, 7)) == contentsOf(SampleSite(8000, 7)));
}

TEST(SampleServer, IsAnotherOneForAnotherSeed)
{
    const auto one = contentsOf(SampleSite(8000, 7)), other = contentsOf(SampleSite(8000, 8));
    EXPECT_NE(one.at("eventlogs/Application.jsonl"), other.at("eventlogs/Application.jsonl"));
    EXPECT_NE(one.at("registry.reg"), other.at("registry.reg")) << "logs open at other moments";
}

TEST(SampleServer, RefusesAFolderThatHoldsSomethingAndLeavesItAlone)
{
    const TemporaryFolder folder;
    folder.write("site/notes.txt", "mine");

    EXPECT_EQ(58, errorOf([&] { makeSampleServer(optionsFor(folder / "site")); }));
    EXPECT_EQ("mine", folder.read("site/notes.txt"));
    EXPECT_THAT(namesIn(folder), testing::ElementsAre("site"));
}

TEST(SampleServer, RefusesPlacesWhereNoFolderCanBeMade)
{
    const TemporaryFolder folder;
    folder.write("file", "mine");
    folder.makeFolder("busy.partial");
    fs::create_symlink(folder / "nowhere", folder / "link");
    struct Case {
        const char* because;
        const char* name;
        int error;
    };
    const Case cases[] = {
        {"a file has the name", "file", 58},
        {"a link that leads nowhere has it", "link", 58},
        {"the parent is missing", "none/site", 76},
        {"an unfinished sample is in the way", "busy", 58},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.error, errorOf([&] { makeSampleServer(optionsFor(folder / c.name)); }));
    }
    EXPECT_EQ("mine", folder.read("file"));
    EXPECT_TRUE(folder.exists("busy.partial"));
}

TEST(SampleServer, TakesAnEmptyFolderAndANameThatEndsInASlash)
{
    const TemporaryFolder folder;
    folder.makeFolder("site");
    makeSampleServer(optionsFor(folder / "site/"));
    EXPECT_TRUE(folder.exists("site/site.ini"));
    EXPECT_THAT(namesIn(folder), testing::ElementsAre("site"));
}

TEST(SampleServer, LeavesNothingBehindWhenAFileIsMissingHalfWay)
{
    const TemporaryFolder folder;
    for (const char* missing :
         {"sample/site.ini", "sample/DiagnosticGrids_FRA.xml", "sample/messages", "ZMKXML",
          "server/schema.sql", "sample/sample.sql"}) {
        SCOPED_TRACE(missing);
        const TemporaryFolder data;
        fs::copy(built::data, data.path(), fs::copy_options::recursive);
        fs::remove_all(data / missing);
        auto options = optionsFor(folder / "site");
        options.dataFolder = data.path();

        EXPECT_EQ(53, errorOf([&] { makeSampleServer(options); }));
        EXPECT_THAT(namesIn(folder), testing::IsEmpty());
    }
}

TEST(SampleServer, LeavesNothingBehindWhenTheDatabaseRefusesItsRows)
{
    const TemporaryFolder folder, data;
    fs::copy(built::data, data.path(), fs::copy_options::recursive);
    data.write("sample/sample.sql", "INSERT INTO nowhere VALUES (1);");
    auto options = optionsFor(folder / "site");
    options.dataFolder = data.path();

    EXPECT_EQ("directory database: no such table: nowhere",
              errorTextOf([&] { makeSampleServer(options); }));
    EXPECT_THAT(namesIn(folder), testing::IsEmpty());
}

TEST(SampleServer, DescribesItselfInItsSettingsFile)
{
    const SampleSite basic(100), extended(100, 1, LogFields::extended);
    const SiteSettings settings = readSiteSettings(RootFolder(basic.path("")));
    EXPECT_EQ("VOICE01", settings.computer);
    EXPECT_EQ("PST8PDT,M3.2.0,M11.1.0", settings.timeZone);
    EXPECT_EQ(1033, settings.language);
    EXPECT_EQ("C:\\OrvanDiagnostics", settings.toolFolder);
    EXPECT_EQ(LogFields::basic, settings.logFields);
    EXPECT_EQ(LogFields::extended, readSiteSettings(RootFolder(extended.path(""))).logFields);
}

TEST(SampleServer, OpensAsASiteWhoseRegistryNamesTheCurrentLogs)
{
    const SampleSite sample(100);
    Site site(sample.path(""), built::data, HostFacts{});
    const std::string processes = "Software\\Kelma Systems\\Kelma Orvan\\RoLogMgr\\Process";

    const auto names = site.registry().subkeys(registryRoot::localMachine, processes);
    ASSERT_TRUE(names);
    EXPECT_EQ(5U, names->size());
    for (const auto& name : *names) {
        SCOPED_TRACE(name);
        const auto value = site.registry().value(registryRoot::localMachine,
                                                 processes + '\\' + name, "CurrentLogFile");
        ASSERT_TRUE(value);
        const std::string path(value->bytes.begin(), value->bytes.end() - 1);
        EXPECT_TRUE(site.files().fileExists(path)) << path;
    }
    EXPECT_TRUE(sample.exists("drive_c/OrvanDiagnostics/cabmaker.exe"));
}

TEST(SampleServer, HasTheReleaseThatItsLogFieldsBelongTo)
{
    const SampleSite basic(100), extended(100, 1, LogFields::extended);
    EXPECT_THAT(basic.read("registry.reg"), testing::HasSubstr("\"MinorVersion\"=dword:00000000"));
    EXPECT_THAT(extended.read("registry.reg"),
                testing::HasSubstr("\"MinorVersion\"=dword:00000001"));
    for (const auto* site : {&basic, &extended})
        for (const char* file : {"registry.reg", "site.ini"})
            EXPECT_THAT(site->read(file), testing::Not(testing::HasSubstr("@"))) << file;
}

TEST(SampleServer, HasAMessageFolderForEachEventLogLanguage)
{
    const SampleSite site(100);
    for (const char* language : {"DEU", "ENU", "ESP", "FRA", "JPN"})
        EXPECT_THAT(site.read(std::string("drive_c/KelmaOrvan/Localize/Messaging/") + language +
                              "/KoMessages.dll"),
                    testing::StartsWith("1001="));
    EXPECT_THAT(
        site.read("registry.reg"),
        testing::HasSubstr(R"("EventMessageFile"="C:\\KelmaOrvan\\Localize\\Messaging\\ENU)"));
}

TEST(SampleServer, HasAFewHundredEventsInEachEventLog)
{
    const SampleSite site(100);
    for (const char* log : {"Application", "System", "Security"}) {
        SCOPED_TRACE(log);
        std::istringstream events(site.read(std::string("eventlogs/") + log + ".jsonl"));
        std::string last;
        int count = 0;
        for (std::string line; std::getline(events, line); ++count) {
            EXPECT_THAT(line, testing::MatchesRegex(
                                  "\\{\"time\":\"2025-02-[0-9]+ [0-9:]+\",\"type\":\"[A-Za-z ]+\","
                                  "\"source\":\"[^\"]+\",\"id\":[0-9]+,\"computer\":\"VOICE01\","
                                  "\"inserts\":\\[\".+\"\\]\\}"));
            EXPECT_GE(line.substr(9, 19), last) << "oldest first";
            last = line.substr(9, 19);
        }
        EXPECT_GE(count, 200);
    }
}

TEST(SampleRandom, StaysWithinItsBounds)
{
    sample::Random random(3);
    for (int draw = 0; draw < 1000; ++draw) {
        EXPECT_LT(random.below(7), 7U);
        const auto number = random.between(-2, 2);
        EXPECT_GE(number, -2);
        EXPECT_LE(number, 2);
    }
    EXPECT_EQ(0U, random.below(0));
}

TEST(SampleDayProfile, RunsFromStartToEndAndFasterByDay)
{
    const sample::DayProfile profile;
    EXPECT_EQ(sample::coverageStart, profile.momentAt(0, 1000));
    EXPECT_EQ(sample::coverageEnd, profile.momentAt(1000, 1000));
    sample::Moment last = 0;
    std::size_t byNight = 0;
    for (int part = 0; part <= 1000; ++part) {
        const auto moment = profile.momentAt(part, 1000);
        EXPECT_GE(moment, last);
        last = moment;
        if (moment % sample::day < 6 * sample::hour) ++byNight;
    }
    EXPECT_GT(byNight, 0U);
    EXPECT_LT(byNight, 50U) << "a quarter of the time, but little of the work";
}

} // namespace
