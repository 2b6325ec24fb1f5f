#include "hosts/common/looking_services.h"

#include "support/error_of.h"
#include "support/test_tool.h"

#include <gmock/gmock.h>

namespace {

constexpr auto hive = registryRoot::localMachine;
constexpr const char* key = "Software\\Tool";

/// A tool's fake machine with a log of an earlier run, and the services of a tool that looks at it.
struct LookingServicesTest : testing::Test {
    LookingServicesTest()
    {
        machine.registry.withText(key, "Name", "as it was");
        machine.files.with(log, "old")
            .with("C:\\Server\\a.txt", "server")
            .with("D:\\b.txt", "mine");
    }

    TestTool machine;
    std::string logs = machine.module.folder() + "\\LOGS";
    std::string log = logs + "\\old.LOG";
    LookingServices looking{machine.platform,
                            [](const std::string& path) { return path.substr(0, 2) == "C:"; }};
    Platform& services = looking.platform();
};

TEST_F(LookingServicesTest, AValueIsToldToBeWrittenAndStaysAsItWas)
{
    EXPECT_TRUE(services.registry.setValue(hive, key, "Name", {registryType::text, {'x'}}));
    EXPECT_FALSE(
        services.registry.setValue(hive, "Software\\None", "Name", {registryType::text, {'x'}}));
    EXPECT_EQ("as it was", machine.registry.text(key, "Name"));
    EXPECT_TRUE(machine.registry.written().empty());
    EXPECT_EQ(machine.registry.value(hive, key, "Name"),
              services.registry.value(hive, key, "Name"));
}

TEST_F(LookingServicesTest, AKeyIsToldToBeMadeAndIsNot)
{
    EXPECT_EQ(false, services.registry.createKey(hive, "Software\\Tool\\New"));
    EXPECT_EQ(true, services.registry.createKey(hive, key));
    EXPECT_FALSE(machine.registry.keyExists(hive, "Software\\Tool\\New"));
    EXPECT_EQ((std::vector<std::string>{"Tool"}), services.registry.subkeys(hive, "Software"));
}

TEST_F(LookingServicesTest, NoEventIsReportedAndLinesAreFormatted)
{
    EXPECT_EQ(FakeEventReporter::toolHandle, services.eventReporter.registerTool("Tool"));
    services.eventReporter.report("Tool", 1, 0, 10001, {});
    EXPECT_TRUE(machine.eventReporter.reports().empty());
    std::string line;
    services.eventReporter.formatTraceLine("15:23:07:123,S,1,X,0,a", line);
    EXPECT_EQ(1, machine.eventReporter.linesFormatted());
}

TEST_F(LookingServicesTest, TheToolsOwnLogGoesNowhere)
{
    const auto writer = services.files.openForAppending(logs + "\\new.LOG");
    writer->writeLine("a line");
    writer->flush();
    writer->close();
    EXPECT_EQ(91, errorOf([&] { writer->write("more"); }));
    services.files.createTextFile(log)->write("over it");
    services.files.deleteFile(log);
    services.files.createFolder(logs + "\\below");
    EXPECT_FALSE(machine.files.fileExists(logs + "\\new.LOG"));
    EXPECT_FALSE(machine.files.folderExists(logs + "\\below"));
    EXPECT_EQ("old", machine.files.content(log));
}

TEST_F(LookingServicesTest, TheServersFilesAreReadAndNotWritten)
{
    FileSystem& files = services.files;
    const std::string file = "C:\\Server\\a.txt";
    EXPECT_EQ("server", files.openForReading(file)->readLine());
    EXPECT_EQ(70, errorOf([&] { files.deleteFile(file); }));
    EXPECT_EQ(70, errorOf([&] { files.clearAttributes(file); }));
    EXPECT_EQ(70, errorOf([&] { files.removeFolder("C:\\Server"); }));
    EXPECT_EQ(70, errorOf([&] { files.createFolder("C:\\Server\\New"); }));
    EXPECT_EQ(70, errorOf([&] { files.copyFile("D:\\b.txt", file); }));
    EXPECT_EQ(70, errorOf([&] { files.openForAppending(file); }));
    EXPECT_EQ(70, errorOf([&] { files.createTextFile(logs + "2\\a.txt"); }));
    EXPECT_EQ("server", machine.files.content(file));
    EXPECT_FALSE(machine.files.folderExists("C:\\Server\\New"));
}

TEST_F(LookingServicesTest, AListOfMoreThanAHundredThousandFilesIsRefused)
{
    for (int number = 0; number < 100'000; ++number)
        machine.files.with("C:\\Logs\\diag_" + std::to_string(number) + ".txt", "");
    EXPECT_EQ(100'000U, services.files.matching("C:\\Logs\\diag_*.txt").size());
    machine.files.with("C:\\Logs\\diag_one_more.txt", "");
    EXPECT_EQ("More than 100,000 names match C:\\Logs\\diag_*.txt",
              errorTextOf([&] { services.files.matching("C:\\Logs\\diag_*.txt"); }));
    EXPECT_EQ(100'001U, machine.files.matching("C:\\Logs\\diag_*.txt").size())
        << "who gathers takes them all";
}

TEST_F(LookingServicesTest, WhatLiesElsewhereIsWritten)
{
    services.files.copyFile("C:\\Server\\a.txt", "D:\\copy.txt");
    services.files.deleteFile("D:\\b.txt");
    EXPECT_EQ("server", machine.files.content("D:\\copy.txt"));
    EXPECT_FALSE(machine.files.fileExists("D:\\b.txt"));
}

} // namespace
