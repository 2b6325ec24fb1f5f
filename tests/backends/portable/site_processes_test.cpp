#include "backends/portable/site_processes.h"

#include "backends/portable/site_paths.h"
#include "temporary_folder.h"

#include <gtest/gtest.h>

#include <chrono>

namespace {

namespace fs = std::filesystem;

class SiteProcessesTest : public testing::Test {
protected:
    SiteProcessesTest() { folder.makeFolder("drive_c/My Tools"); }

    /// Makes a program of C: that runs a shell script.
    void put(const std::string& name, const std::string& script)
    {
        const auto path = folder.write("drive_c/" + name, "#!/bin/sh\n" + script + "\n");
        fs::permissions(path, fs::perms::owner_all);
    }

    void run(const std::string& commandLine)
    {
        EXPECT_TRUE(processes.wait(processes.start(commandLine, WindowStyle::hidden), -1));
    }

    TemporaryFolder folder;
    SitePaths paths{folder.path()};
    SiteProcesses processes{paths};
};

TEST_F(SiteProcessesTest, RunsAProgramOfTheSiteInTheCurrentFolder)
{
    put("My Tools/list.exe",
        "{ pwd; echo \"$ORVAN_SITE_DRIVES\"; printf '%s\\n' \"$@\"; } > out.txt");
    folder.makeFolder("drive_c/Result");
    paths.changeFolder("C:\\Result");

    run(R"("C:\MY TOOLS\list" /f "a b" "c\\" $HOME)");

    EXPECT_EQ(folder / "drive_c/Result\n" + folder.path() + "\n/f\na b\nc\\\n$HOME\n",
              folder.read("drive_c/Result/out.txt"));
}

TEST_F(SiteProcessesTest, FindsAProgramByEachWayOfNamingIt)
{
    put("My Tools/Make.exe", "echo ran >> \"$ORVAN_SITE_DRIVES/count\"");
    put("plain", "echo ran >> \"$ORVAN_SITE_DRIVES/count\"");

    run("\"C:\\My Tools\\make\" x");
    run("\"C:\\My Tools\\make.EXE\" x");
    run("C:\\My Tools\\make x y");
    run("plain");
    run(folder / "drive_c/plain");
    paths.changeFolder("C:\\My Tools");
    run("make");

    EXPECT_EQ("ran\nran\nran\nran\nran\nran\n", folder.read("count"));
}

TEST_F(SiteProcessesTest, GivesAProgramNothingToReadAndDropsItsOutput)
{
    put("ask.exe",
        "read line; echo \"$?\" > \"$ORVAN_SITE_DRIVES/answer\"; echo noise; echo noise >&2");
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();

    run("ask");

    EXPECT_EQ("", testing::internal::GetCapturedStdout());
    EXPECT_EQ("", testing::internal::GetCapturedStderr());
    EXPECT_EQ("1\n", folder.read("answer"));
}

TEST_F(SiteProcessesTest, RunsAProgramInAProcessGroupOfItsOwn)
{
    put("group.exe", "ps -o pgid= -p $$ > \"$ORVAN_SITE_DRIVES/group\" 2>/dev/null || "
                     "cut -d' ' -f5 /proc/$$/stat > \"$ORVAN_SITE_DRIVES/group\"");
    const auto id = processes.start("group", WindowStyle::normal);
    EXPECT_TRUE(processes.wait(id, -1));

    EXPECT_EQ(id, std::stoi(folder.read("group")));
}

TEST_F(SiteProcessesTest, TellsWhyAProgramDoesNotStart)
{
    folder.write("drive_c/data.exe", "no program");
    fs::permissions(folder / "drive_c/data.exe", fs::perms::owner_all);
    folder.write("drive_c/locked.exe", "#!/bin/sh\n");

    EXPECT_EQ(5, errorOf([&] { processes.start("data", WindowStyle::hidden); }));
    EXPECT_EQ(70, errorOf([&] { processes.start("locked", WindowStyle::hidden); }));
    for (const auto& line :
         {std::string("none"), std::string(), std::string("\"\""), std::string("C:\\My Tools"),
          std::string("none.exe /f"), std::string("\0x", 2), std::string("\"C:\\none\" a"),
          std::string("\\\\server\\x"), std::string(100'000, 'a') + " b c"})
        EXPECT_EQ(53, errorOf([&] { processes.start(line, WindowStyle::hidden); })) << line.size();
}

TEST_F(SiteProcessesTest, WaitsAsLongAsItIsTold)
{
    put("slow.exe", "sleep 30");
    const auto id = processes.start("slow", WindowStyle::hidden);

    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(processes.wait(id, 50)) << "a wait that times out has ended";
    EXPECT_TRUE(processes.wait(id, 0));
    const auto passed = std::chrono::steady_clock::now() - start;
    EXPECT_GE(passed, std::chrono::milliseconds(50));
    EXPECT_LT(passed, std::chrono::seconds(10));

    ::kill(id, SIGKILL);
    EXPECT_TRUE(processes.wait(id, -1));
    EXPECT_FALSE(processes.wait(id, -1)) << "it was waited for to its end";
}

TEST_F(SiteProcessesTest, CannotWaitForAProcessThatItDidNotStart)
{
    EXPECT_FALSE(processes.wait(1, 0));
    EXPECT_FALSE(processes.wait(0, 0));
    EXPECT_FALSE(processes.wait(-1, -1));
}

TEST_F(SiteProcessesTest, AMissingExplorerIsNotFoundWithoutAScreen)
{
    ::unsetenv("DISPLAY");
    ::unsetenv("WAYLAND_DISPLAY");

    EXPECT_EQ(53, errorOf([&] {
                  processes.start("C:\\Windows\\explorer.exe C:\\My Tools", WindowStyle::normal);
              }));
}

} // namespace
