#include "backends/site/site_processes.h"

#include "drives/site_paths.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <chrono>

namespace {

namespace fs = std::filesystem;

class SiteProcessesTest : public testing::Test {
protected:
    SiteProcessesTest()
    {
        folder.makeFolder("drive_c/My Tools");
        paths.permit(folder.path());
    }

    /// Makes a program of a shell script, and gives its path.
    std::string put(const std::string& name, const std::string& script)
    {
        auto path = folder.write(name, "#!/bin/sh\n" + script + "\n");
        fs::permissions(path, fs::perms::owner_all);
        return path;
    }

    /// Makes the installed cabinet maker, and a copy of it in the site.
    void putCabinetMaker(const std::string& script)
    {
        put("installed/cabmaker.exe", script);
        put("drive_c/My Tools/cabmaker.exe", script);
    }

    void run(const std::string& commandLine)
    {
        EXPECT_TRUE(processes.wait(processes.start(commandLine, WindowStyle::hidden), -1));
    }

    std::string refusalOf(const std::string& commandLine)
    {
        try {
            processes.start(commandLine, WindowStyle::normal);
        } catch (const RunTimeError& error) {
            return std::to_string(error.number()) + " " + error.description();
        }
        return {};
    }

    TemporaryFolder folder;
    SitePaths paths{folder.path()};
    SiteProcesses processes{paths, {folder / "installed/cabmaker.exe", folder / "installed/view"}};
    const std::string cabinetMaker = R"("C:\My Tools\cabmaker" )";
};

TEST_F(SiteProcessesTest, RunsTheInstalledCabinetMakerInTheCurrentFolder)
{
    putCabinetMaker("{ pwd; echo \"$ORVAN_SITE_DRIVES\"; printf '%s\\n' \"$0\" \"$@\"; } "
                    "> out.txt");
    folder.makeFolder("drive_c/Result");
    paths.changeFolder("C:\\Result");

    run(R"("C:\MY TOOLS\cabmaker" /f "a b" "c\\" $HOME)");

    EXPECT_EQ(folder / "drive_c/Result\n" + folder.path() + "\n" +
                  folder / "installed/cabmaker.exe\n/f\na b\nc\\\n$HOME\n",
              folder.read("drive_c/Result/out.txt"));
    EXPECT_FALSE(processes.lastReport().replaced);
    EXPECT_EQ("", processes.lastReport().failure);
}

TEST_F(SiteProcessesTest, FindsTheCabinetMakerByEachWayOfNamingIt)
{
    putCabinetMaker("echo ran >> \"$ORVAN_SITE_DRIVES/count\"");

    run("\"C:\\My Tools\\CABMAKER\" x");
    run("\"C:\\My Tools\\cabmaker.EXE\" x");
    run("C:\\My Tools\\cabmaker x y");
    run(folder / "drive_c/My Tools/cabmaker.exe");
    paths.changeFolder("C:\\My Tools");
    run("cabmaker");

    EXPECT_EQ("ran\nran\nran\nran\nran\n", folder.read("count"));
}

TEST_F(SiteProcessesTest, RunsTheInstalledCabinetMakerInPlaceOfAnotherOfItsName)
{
    put("installed/cabmaker.exe", "echo installed > \"$ORVAN_SITE_DRIVES/ran\"");
    put("drive_c/My Tools/cabmaker.exe", "echo foreign++ > \"$ORVAN_SITE_DRIVES/ran\"");

    run(cabinetMaker);

    EXPECT_EQ("installed\n", folder.read("ran"));
    EXPECT_TRUE(processes.lastReport().replaced);
}

TEST_F(SiteProcessesTest, TakesNoPlainFileForTheCabinetMakerBesideIt)
{
    putCabinetMaker("true");
    put("drive_c/My Tools/cabmaker", "a person's notes");

    run(cabinetMaker);

    EXPECT_FALSE(processes.lastReport().replaced);
}

TEST_F(SiteProcessesTest, RunsNoCabinetMakerWithoutAnInstalledOne)
{
    put("drive_c/My Tools/cabmaker.exe", "touch \"$ORVAN_SITE_DRIVES/ran\"");

    EXPECT_EQ("53 no cabinet maker is installed on this machine", refusalOf(cabinetMaker));
    EXPECT_FALSE(fs::exists(folder / "ran"));
}

TEST_F(SiteProcessesTest, RunsNoOtherProgramThanTheInstalledOnes)
{
    const std::string script = "touch \"$ORVAN_SITE_DRIVES/ran\"";
    const auto machines = put("other/tool", script);
    put("installed/view", script);
    put("drive_c/My Tools/view.exe", script);
    put("drive_c/Windows/explorer.exe", script);
    for (const std::string& line :
         {std::string("C:\\My Tools\\view.exe"), machines, std::string("/bin/sh")}) {
        EXPECT_EQ("70 " + line + " is not run: it is not a program of this machine's own",
                  refusalOf(line + " -db \"C:\\x.mdb\""));
    }
    ::unsetenv("DISPLAY");
    ::unsetenv("WAYLAND_DISPLAY");
    EXPECT_EQ(53, errorOf([&] {
                  processes.start("C:\\Windows\\explorer.exe C:\\My Tools", WindowStyle::normal);
              }));
    EXPECT_FALSE(fs::exists(folder / "ran"));
}

TEST_F(SiteProcessesTest, RunsTheInstalledViewer)
{
    put("installed/view", "printf '%s\\n' \"$@\" > \"$ORVAN_SITE_DRIVES/asked\"");

    run(folder / "installed/view -db \"C:\\a b.mdb\"");

    EXPECT_EQ("-db\nC:\\a b.mdb\n", folder.read("asked"));
}

TEST_F(SiteProcessesTest, GivesAProgramNothingToReadAndDropsItsOutput)
{
    putCabinetMaker("read line; echo \"$?\" > \"$ORVAN_SITE_DRIVES/answer\"; echo noise; "
                    "echo noise >&2");
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();

    run(cabinetMaker);

    EXPECT_EQ("", testing::internal::GetCapturedStdout());
    EXPECT_EQ("", testing::internal::GetCapturedStderr());
    EXPECT_EQ("1\n", folder.read("answer"));
}

TEST_F(SiteProcessesTest, TellsWhatTheCabinetMakerSaidOfItsFailure)
{
    const struct {
        const char* script;
        const char* failure;
    } cases[] = {
        {"echo noise >&2; exit 0", ""},
        {"echo first >&2; echo 'cabmaker: a.ddf:6: No such file' >&2; exit 1",
         "a.ddf:6: No such file"},
        {"echo 'It is over.' >&2; exit 1", "It is over"},
        {"exit 3", "it ended with status 3"},
        {"kill -9 $$", "signal 9 ended it"},
    };
    for (const auto& c : cases) {
        putCabinetMaker(c.script);
        run(cabinetMaker);
        EXPECT_EQ(c.failure, processes.lastReport().failure) << c.script;
    }
}

TEST_F(SiteProcessesTest, RunsAProgramInAProcessGroupOfItsOwn)
{
    putCabinetMaker("ps -o pgid= -p $$ > \"$ORVAN_SITE_DRIVES/group\" 2>/dev/null || "
                    "cut -d' ' -f5 /proc/$$/stat > \"$ORVAN_SITE_DRIVES/group\"");
    const auto id = processes.start(cabinetMaker, WindowStyle::normal);
    EXPECT_TRUE(processes.wait(id, -1));

    EXPECT_EQ(id, std::stoi(folder.read("group")));
}

TEST_F(SiteProcessesTest, TellsWhyAProgramDoesNotStart)
{
    putCabinetMaker("exit 0");
    folder.write("installed/cabmaker.exe", "no program");
    EXPECT_EQ(5, errorOf([&] { processes.start(cabinetMaker, WindowStyle::hidden); }));
    fs::permissions(folder / "installed/cabmaker.exe", fs::perms::owner_read);
    EXPECT_EQ(70, errorOf([&] { processes.start(cabinetMaker, WindowStyle::hidden); }));
    for (const auto& line :
         {std::string("none"), std::string(), std::string("\"\""), std::string("C:\\My Tools"),
          std::string("none.exe /f"), std::string("\0x", 2), std::string("\"C:\\none\" a"),
          std::string("\\\\server\\x"), std::string(100'000, 'a') + " b c"})
        EXPECT_EQ(53, errorOf([&] { processes.start(line, WindowStyle::hidden); })) << line.size();
}

TEST_F(SiteProcessesTest, WaitsAsLongAsItIsTold)
{
    putCabinetMaker("sleep 30");
    const auto id = processes.start(cabinetMaker, WindowStyle::hidden);

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

} // namespace
