#include "backends/site/site.h"

#include "backends/site/files/tool_folder.h"
#include "support/fakes/fake_desktop.h"
#include "support/fakes/trace_database/fake_trace_database.h"
#include "support/temporary_folder.h"
#include "system/machine_names.h"

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

HostFacts hostFacts()
{
    return {{2, 1, 23}, "orvandiag status", false, {}, {}};
}

class SiteTest : public testing::Test {
protected:
    SiteTest()
    {
        data.write("ZMKXML/HTCalls.xml", "<macro/>");
        data.write("ZMKXML/HTPorts.xml", "<macro/>");
        data.write("blankWPNDB.mdb", "blank");
        fs::permissions(data.write("cabmaker.exe", "#!/bin/sh\n"), fs::perms::owner_all);
        data.write("ZMKbrandingres_FRA.txt", "1062 = D'accord\n");
        data.write("ZMKbrandingres_FRA.dll", "the machine's, of which a site makes no use");
        data.write("help/index.html", "help");
        data.write("sample/sample.sql", "not the tool's");
    }

    std::string openError(const std::string& path)
    {
        return errorTextOf([&] { Site(path, data.path(), hostFacts()); });
    }

    TemporaryFolder folder;
    TemporaryFolder data;
};

TEST_F(SiteTest, AFolderWithAnyPartOfASiteIsOne)
{
    EXPECT_FALSE(isSite(folder.path()));
    EXPECT_FALSE(isSite(folder / "none"));
    for (const char* part : {"site.ini", "registry.reg", "drive_c/x"}) {
        const TemporaryFolder other;
        other.write(part, part == std::string("registry.reg")
                              ? "Windows Registry Editor Version 5.00\n"
                              : "");
        EXPECT_TRUE(isSite(other.path())) << part;
        EXPECT_EQ("", openError(other.path())) << part;
        EXPECT_TRUE(other.exists("drive_c/OrvanDiagnostics/blankWPNDB.mdb")) << part;
    }
    folder.makeFolder("site.ini");
    folder.write("drive_c");
    EXPECT_FALSE(isSite(folder.path()));
}

TEST_F(SiteTest, AnotherFolderIsRefusedAndLeftAlone)
{
    EXPECT_EQ(folder.path() + " is not a site (no site.ini, registry.reg or drive_c)",
              openError(folder.path()));
    EXPECT_EQ(76, errorOf([&] { Site(folder / "none", data.path(), hostFacts()); }));
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST_F(SiteTest, DamageIsRefusedBeforeAnythingIsChanged)
{
    folder.write("site.ini", "[site]\nnonsense\n");
    EXPECT_EQ("site.ini line 2: neither a section nor \"key = value\"", openError(folder.path()));
    EXPECT_FALSE(folder.exists("drive_c"));
    folder.write("site.ini", "[site]\n");
    folder.write("registry.reg", "Windows Registry Editor Version 5.00\nnonsense\n");
    EXPECT_EQ("registry.reg line 2: neither a key nor a value", openError(folder.path()));
    EXPECT_FALSE(folder.exists("drive_c"));
}

TEST_F(SiteTest, SuppliesTheToolFolder)
{
    folder.write("site.ini", "[site]\ntoolFolder = C:\\Program Files\\Orvan\\Diag\n");
    Site site(folder.path(), data.path(), hostFacts());

    const std::string tool = "drive_c/Program Files/Orvan/Diag/";
    EXPECT_EQ("<macro/>", folder.read(tool + "ZMKXML/HTCalls.xml"));
    EXPECT_EQ("blank", folder.read(tool + "blankWPNDB.mdb"));
    EXPECT_EQ("help", folder.read(tool + "help/index.html"));
    EXPECT_TRUE(folder.exists(tool + "ZMKbrandingres_FRA.txt"));
    EXPECT_EQ(fs::perms::owner_all, fs::status(folder / (tool + "cabmaker.exe")).permissions());
    EXPECT_FALSE(folder.exists(tool + "sample")) << "what the tool does not look for stays behind";
    EXPECT_EQ(5, std::distance(fs::directory_iterator(folder / tool), {}));
    EXPECT_TRUE(site.files().folderExists("C:\\Temp"));
}

TEST_F(SiteTest, LeavesAloneWhatTheToolFolderHas)
{
    folder.write("drive_c/ORVANDIAGNOSTICS/zmkxml/HTOwn.xml", "own");
    folder.write("drive_c/ORVANDIAGNOSTICS/BLANKWPNDB.MDB", "own");
    Site(folder.path(), data.path(), hostFacts());
    Site(folder.path(), data.path(), hostFacts());

    const std::string tool = "drive_c/ORVANDIAGNOSTICS/";
    EXPECT_FALSE(folder.exists("drive_c/OrvanDiagnostics"));
    EXPECT_FALSE(folder.exists(tool + "ZMKXML"));
    EXPECT_FALSE(folder.exists(tool + "zmkxml/HTCalls.xml"));
    EXPECT_EQ("own", folder.read(tool + "BLANKWPNDB.MDB"));
    EXPECT_TRUE(folder.exists(tool + "cabmaker.exe"));
}

TEST_F(SiteTest, ALookMakesNothingAndFindsWhatWouldBeSupplied)
{
    folder.write("drive_c/ORVANDIAGNOSTICS/zmkxml/HTOwn.xml", "own");
    Site site(folder.path(), data.path(), hostFacts(), SiteUse::look);

    EXPECT_EQ(1, std::distance(fs::directory_iterator(folder.path()), {}));
    EXPECT_EQ(1, std::distance(fs::directory_iterator(folder / "drive_c"), {}));
    EXPECT_EQ(1, std::distance(fs::directory_iterator(folder / "drive_c/ORVANDIAGNOSTICS"), {}));
    const auto& files = site.files();
    const std::string tool = "C:\\OrvanDiagnostics";
    EXPECT_EQ("blank", files.openForReading(tool + "\\BlankWPNDB.mdb")->readLine());
    EXPECT_EQ("help", files.openForReading(tool + "\\help\\INDEX.html")->readLine());
    EXPECT_EQ((std::vector<std::string>{"ZMKbrandingres_FRA.txt"}),
              files.matching(tool + "\\ZMKbrandingres_*"));
    EXPECT_EQ((std::vector<std::string>{"HTOwn.xml"}), files.matching(tool + "\\ZMKXML\\HT*.xml"))
        << "what is there is left alone";
    std::vector<std::string> names;
    for (const auto& entry : files.entries(tool + "\\")) names.push_back(entry.name);
    EXPECT_EQ((std::vector<std::string>{"blankWPNDB.mdb", "cabmaker.exe", "help",
                                        "ZMKbrandingres_FRA.txt", "zmkxml"}),
              names);
    EXPECT_EQ(data / "cabmaker.exe", site.paths().machinePath(tool + "\\cabmaker.exe"));
    EXPECT_FALSE(files.fileExists(tool + "\\sample\\sample.sql"));
    EXPECT_TRUE(site.paths().isOfSite(tool + "\\cabmaker.exe")) << "nobody may write to it";
}

TEST_F(SiteTest, ALookWithoutAToolFolderFindsAllThatWouldBeSupplied)
{
    folder.write("site.ini", "[site]\n");
    Site site(folder.path(), data.path(), hostFacts(), SiteUse::look);

    EXPECT_EQ((std::vector<std::string>{"HTCalls.xml", "HTPorts.xml"}),
              site.files().matching("C:\\OrvanDiagnostics\\ZMKXML\\*.xml"));
    EXPECT_EQ(5u, site.files().entries("C:\\OrvanDiagnostics").size());
    EXPECT_EQ((std::vector<std::string>{"ZMKbrandingres_FRA.txt"}),
              site.files().matching("C:\\OrvanDiagnostics\\ZMKbrandingres_*"));
    EXPECT_EQ(76, errorOf([&] { site.files().entries("C:\\Elsewhere"); }));
    EXPECT_FALSE(folder.exists("drive_c"));
}

TEST_F(SiteTest, ChangesStartWithWhatAnOpeningForThemDoes)
{
    folder.write("site.ini", "[site]\n");
    Site site(folder.path(), data.path(), hostFacts(), SiteUse::look);
    site.startChanges();

    EXPECT_EQ("blank", folder.read("drive_c/OrvanDiagnostics/blankWPNDB.mdb"));
    EXPECT_EQ(folder / "drive_c/OrvanDiagnostics/blankWPNDB.mdb",
              site.paths().machinePath("C:\\OrvanDiagnostics\\blankWPNDB.mdb"));
    EXPECT_TRUE(folder.exists("drive_c/Temp"));
}

TEST_F(SiteTest, OpensWithoutInstalledData)
{
    folder.makeFolder("drive_c");

    EXPECT_EQ(0, errorOf([&] { Site(folder.path(), "", hostFacts()); }));
    EXPECT_EQ(0, errorOf([&] { Site(folder.path(), data / "none", hostFacts()); }));
    EXPECT_TRUE(folder.exists("drive_c/OrvanDiagnostics"));
}

/// The number of a process that has ended.
std::string endedProcess()
{
    const pid_t process = ::fork();
    if (process == 0) ::_exit(0);
    ::waitpid(process, nullptr, 0);
    return std::to_string(process);
}

TEST_F(SiteTest, WhatKilledProgramsLeftIsSweptAtTheNextStart)
{
    const TemporaryFolder outside;
    outside.write("keep/file");
    const std::string tool = "drive_c/OrvanDiagnostics/";
    const std::string ended = endedProcess();
    const std::string alive = std::to_string(::getppid());
    folder.write(".new-" + ended + "-123", "half");
    folder.write(tool + ".new-" + ended + "-1", "half");
    folder.write(tool + "help.new-" + ended + "/index.html", "half");
    folder.write(".new-" + alive + "-1", "an hour old");
    fs::last_write_time(folder / (".new-" + alive + "-1"),
                        fs::file_time_type::clock::now() - std::chrono::minutes(61));
    const std::vector<std::string> kept = {".new-" + alive + "-2",
                                           ".new-" + ended,
                                           ".new-" + ended + "-x",
                                           ".new-x-1",
                                           "x.new-" + ended + "-1",
                                           tool + "own.new-" + ended + "/file",
                                           tool + "help.new-" + alive + "/file",
                                           tool + "help.new-" + ended + "x/file"};
    for (const auto& name : kept) folder.write(name, "keep");
    fs::create_directory_symlink(outside / "keep", folder / (tool + "ZMKXML.new-" + ended));
    fs::create_symlink(outside / "keep/file", folder / (".new-" + ended + "-7"));

    Site(folder.path(), data.path(), hostFacts(), SiteUse::look);
    EXPECT_TRUE(folder.exists(".new-" + ended + "-123")) << "a look changes nothing";
    Site(folder.path(), data.path(), hostFacts());

    EXPECT_FALSE(folder.exists(".new-" + ended + "-123"));
    EXPECT_FALSE(folder.exists(tool + ".new-" + ended + "-1"));
    EXPECT_FALSE(folder.exists(tool + "help.new-" + ended));
    EXPECT_FALSE(folder.exists(".new-" + alive + "-1"));
    for (const auto& name : kept) EXPECT_TRUE(folder.exists(name)) << name;
    EXPECT_TRUE(outside.exists("keep/file"));
}

TEST_F(SiteTest, ADriveOrADatabaseThatLeadsOutIsRefused)
{
    const TemporaryFolder outside;
    outside.write("db");
    outside.makeFolder("drive");
    folder.write("site.ini", "[site]\n");
    Site site(folder.path(), data.path(), hostFacts());
    FakeDesktop desktop;
    FakeTraceDatabaseEngine traceDatabases;
    auto& database = site.platform(desktop, traceDatabases).connection;
    for (const char* name : {"OrvanDirDb.sqlite", "OrvanDirDb.sqlite-journal",
                             "OrvanDirDb.sqlite-wal", "OrvanDirDb.sqlite-shm"}) {
        folder.write("OrvanDirDb.sqlite");
        fs::remove(folder / name);
        fs::create_symlink(outside / "db", folder / name);
        EXPECT_THAT(errorTextOf([&] { database.open("", "", ""); }),
                    testing::HasSubstr(std::string(name) + " is no plain file"));
        fs::remove(folder / name);
        ASSERT_EQ(0, ::mkfifo((folder / name).c_str(), 0666));
        EXPECT_THAT(errorTextOf([&] { database.open("", "", ""); }),
                    testing::HasSubstr(std::string(name) + " is no plain file"));
        fs::remove(folder / name);
    }
    fs::remove_all(folder / "drive_c");
    fs::create_directory_symlink(outside / "drive", folder / "drive_c");
    EXPECT_THAT(openError(folder.path()), testing::EndsWith("drive_c leads out of the site"));
    EXPECT_TRUE(fs::is_empty(outside / "drive"));
}

TEST_F(SiteTest, AToolFolderOfTheMachineServesWhereThePersonNamesIt)
{
    const TemporaryFolder machine;
    folder.write("site.ini", "[site]\ntoolFolder = " + (machine / "tools") + "\n");
    EXPECT_THAT(openError(folder.path()), testing::StartsWith("site.ini line 2: toolFolder is no"));
    EXPECT_FALSE(machine.exists("tools"));
    folder.write("site.ini", "[site]\ntoolFolder = C:\\Own\n");
    HostFacts facts = hostFacts();
    facts.toolFolder = machine / "tools";
    Site site(folder.path(), data.path(), facts);

    EXPECT_TRUE(machine.exists("tools/blankWPNDB.mdb"));
    EXPECT_FALSE(folder.exists("drive_c/Own"));
}

TEST_F(SiteTest, GivesItsSettingsToItsServices)
{
    folder.write("site.ini", "[site]\ncomputer = VOICE01\nuser = maria\ntimeZone = IST-5:30\n"
                             "language = 1041\nlogFields = extended\n");
    Site site(folder.path(), data.path(), hostFacts());
    FakeDesktop desktop;
    FakeTraceDatabaseEngine traceDatabases;
    const auto platform = site.platform(desktop, traceDatabases);

    EXPECT_EQ("VOICE01", platform.workstation.details()->computerName);
    EXPECT_EQ("maria", platform.workstation.user()->userName);
    EXPECT_EQ(1041, platform.languages.userDefaultLanguage());
    TimeZoneInformation zone;
    EXPECT_EQ(TimeZoneState::unknown, platform.timeZone.read(zone));
    EXPECT_EQ(-330, zone.bias);
    std::string line;
    platform.eventReporter.formatTraceLine("15:23:07:123,S,1,2,3,id,X,0,a", line);
    EXPECT_EQ("15:23:07:123 (S,1,X,0) a", line);
    platform.eventReporter.report("S", 1, 0, 1, {"a"});
    EXPECT_NE(std::string::npos,
              folder.read("eventlogs/Application.jsonl").find("\"computer\":\"VOICE01\""));
    EXPECT_EQ("C:\\OrvanDiagnostics", platform.module.folder());
    EXPECT_EQ(2, platform.module.majorVersion());
    EXPECT_EQ(1, platform.module.minorVersion());
    EXPECT_EQ(23, platform.module.revision());
    EXPECT_EQ("orvandiag status", platform.module.commandLine());
    EXPECT_EQ(&desktop, &platform.desktop);
}

TEST_F(SiteTest, FallsBackToTheMachinesOwnNames)
{
    folder.makeFolder("drive_c");
    Site site(folder.path(), data.path(), hostFacts());
    FakeDesktop desktop;
    FakeTraceDatabaseEngine traceDatabases;
    const auto platform = site.platform(desktop, traceDatabases);

    EXPECT_EQ(machineName(), platform.workstation.details()->computerName);
    EXPECT_EQ(loginName(), platform.workstation.user()->userName);
    EXPECT_NE("", machineName());
    EXPECT_NE("", loginName());
    EXPECT_EQ(2, platform.workstation.platform());
}

TEST_F(SiteTest, ItsServicesShareTheCurrentFolder)
{
    folder.write("drive_c/Result/x");
    folder.write("drive_c/Result/cabmaker.exe");
    data.write("cabmaker.exe", "#!/bin/sh\necho > made\n");
    Site site(folder.path(), data.path(), hostFacts());
    FakeDesktop desktop;
    FakeTraceDatabaseEngine traceDatabases;
    const auto platform = site.platform(desktop, traceDatabases);

    platform.files.changeDrive("C:");
    platform.files.changeFolder("C:\\Result");
    platform.processes.wait(platform.processes.start("cabmaker", WindowStyle::hidden), -1);

    EXPECT_TRUE(folder.exists("drive_c/Result/made"));
}

TEST_F(SiteTest, AFolderNamedFromHereIsFoundFromAnywhere)
{
    folder.makeFolder("drive_c");
    const auto before = fs::current_path();
    fs::current_path(fs::path(folder.path()).parent_path());
    Site site(fs::path(folder.path()).filename().string() + "/", data.path(), hostFacts());
    fs::current_path(before);

    EXPECT_EQ(folder.path(), site.folder());
    EXPECT_TRUE(site.files().folderExists("C:\\"));
}

TEST_F(SiteTest, SendsDebugOutputToTheListenerIfThereIsOne)
{
    std::string heard;
    HostFacts facts = hostFacts();
    facts.debugListener = [&](std::string_view text) { heard = text; };
    SiteHostModule listened("C:\\x", facts);
    SiteHostModule alone("C:\\x", hostFacts());

    listened.debugOutput("text");
    alone.debugOutput("text");

    EXPECT_EQ("text", heard);
    EXPECT_EQ("OrvanDiagnostics", alone.name());
}

TEST(DevelopmentHostOfASite, GivesAStatementUpThatHasFailedTenTimesInARow)
{
    HostFacts facts;
    EXPECT_FALSE(SiteHostModule("C:\\x", facts).isDevelopmentHost(0));
    EXPECT_FALSE(SiteHostModule("C:\\x", facts).isDevelopmentHost(1));

    facts.developmentHost = true;
    const SiteHostModule module("C:\\x", facts);
    for (int failures = 0; failures < 10; ++failures)
        EXPECT_TRUE(module.isDevelopmentHost(failures)) << failures;
    EXPECT_FALSE(module.isDevelopmentHost(10));
    EXPECT_TRUE(module.isDevelopmentHost(1)) << "the next one gets its ten tries too";
}

TEST(DevelopmentHostOfASite, LetsEveryStatementGoOnceThePersonWantsTheEnd)
{
    bool interrupted = false;
    HostFacts facts;
    facts.developmentHost = true;
    facts.interrupted = [&] { return interrupted; };
    const SiteHostModule module("C:\\x", facts);
    EXPECT_TRUE(module.isDevelopmentHost(1));

    interrupted = true;

    EXPECT_FALSE(module.isDevelopmentHost(1));
}

} // namespace
