// The program as it is started: arguments, environment, exit status, what it prints.

#include <filesystem>

#include <gtest/gtest.h>

#include "cabmaker/scratch_folder.h"
#include "support/places.h"

namespace {

namespace fs = std::filesystem;

const std::string program = std::string("'") + built::cabmaker + "' ";

std::string gatherDirectives()
{
    return ".Option EXPLICIT\r\n.Set CabinetNameTemplate=..\\x.cab\r\n.Set Cabinet=on\r\n"
           ".Set Compress=on\r\n.Set MaxDiskSize=CDROM\r\n\"C:\\Temp\\a.mdb\"\r\n";
}

} // namespace

TEST(Program, ExplainsItself)
{
    struct Case {
        const char* arguments;
        int status;
        const char* output;
        const char* errors;
    };
    const char* const usage = "usage: cabmaker /f FILE.DDF\n";
    const Case cases[] = {
        {"--help", 0, usage, ""},
        {"/?", 0, usage, ""},
        {"--version", 0, "cabmaker 1", ""},
        {"", 2, "", usage},
        {"/f", 2, "", usage},
        {"x.ddf", 2, "", usage},
        {"/f a.ddf b.ddf", 2, "", usage},
        {"/x a.ddf", 2, "", usage},
        {"--help more", 2, "", usage},
    };
    const ScratchFolder scratch;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.arguments);
        const CommandResult result = runCommand(scratch.path(), program + c.arguments);
        EXPECT_EQ(c.status, result.status);
        EXPECT_EQ(c.output, result.output.substr(0, std::string(c.output).size()));
        EXPECT_EQ(c.output[0] == '\0', result.output.empty());
        EXPECT_EQ(c.errors, result.errors);
    }
    EXPECT_TRUE(scratch.listing().empty());
}

TEST(Program, PacksOnASite)
{
    for (const char* option : {"/f", "/F", "-f"}) {
        SCOPED_TRACE(option);
        const ScratchFolder site;
        site.write("drive_c/Temp/a.mdb", traceText(100'000));
        site.write("drive_c/Temp/ZMK.DDF", gatherDirectives());

        const CommandResult result = runCommand(
            site.path() / "drive_c/Temp", "ORVAN_SITE_DRIVES='" + site.path().string() + "' " +
                                              program + option + " 'C:\\Temp\\ZMK.DDF'");

        EXPECT_EQ(0, result.status);
        EXPECT_EQ("", result.errors);
        EXPECT_NE(std::string::npos,
                  result.output.find("x.cab: 1 files, 100000 bytes packed into"));
        EXPECT_EQ(0, runCommand(site.path() / "drive_c/Temp", "cabextract -t x.cab").status);
    }
}

TEST(Program, RefusesDrivesWithoutASite)
{
    const ScratchFolder scratch;
    scratch.write("ZMK.DDF", gatherDirectives());
    const CommandResult result =
        runCommand(scratch.path(), "unset ORVAN_SITE_DRIVES; " + program + "/f ZMK.DDF");
    EXPECT_EQ(1, result.status);
    EXPECT_EQ("cabmaker: ZMK.DDF:6: C:\\Temp\\a.mdb: there are no drives here (ORVAN_SITE_DRIVES "
              "names the folder of the drives)\n",
              result.errors);
    EXPECT_EQ(std::vector<std::string>{"ZMK.DDF"}, scratch.listing());
}

TEST(Program, TakesAFolderOfDrivesThatIsMissingWhereNothingIsOnADrive)
{
    const ScratchFolder scratch;
    scratch.write("a.txt", "a");
    scratch.write("a.ddf", "a.txt\r\n");
    const CommandResult result = runCommand(
        scratch.path(), "ORVAN_SITE_DRIVES='" + scratch.at("none") + "' " + program + "/f a.ddf");
    EXPECT_EQ(0, result.status);
    EXPECT_EQ("", result.errors);
    EXPECT_EQ(0, runCommand(scratch.path(), "cabextract -t disk1/1.cab").status);
}

TEST(Program, EndsWithOneLineAndLeavesNothingWhenThereIsNoRoom)
{
    const ScratchFolder scratch;
    scratch.write("a.mdb", noise(3'000'000));
    scratch.write("a.ddf", "a.mdb\n");
    const CommandResult result =
        runCommand(scratch.path(), "ulimit -f 1000; " + program + "/f a.ddf");
    EXPECT_EQ(1, result.status);
    EXPECT_EQ("", result.output);
    EXPECT_TRUE(result.errors.starts_with("cabmaker: cannot write ")) << result.errors;
    EXPECT_TRUE(result.errors.ends_with("1.cab: File too large\n")) << result.errors;
    EXPECT_EQ((std::vector<std::string>{"a.ddf", "a.mdb"}), scratch.listing());
}

TEST(Program, LeavesNothingWhenItIsInterrupted)
{
    const ScratchFolder scratch;
    scratch.write("a.mdb", "");
    fs::resize_file(scratch.path() / "a.mdb", 2'147'450'880); // takes seconds to pack
    scratch.write("a.ddf", "a.mdb\n");
    const CommandResult result =
        runCommand(scratch.path(),
                   program + "/f a.ddf & while kill -0 $! && ! ls disk1/.new-*; do sleep 0.01; "
                             "done >/dev/null 2>&1; kill -TERM $!; wait $!");
    EXPECT_EQ(128 + 15, result.status);
    EXPECT_TRUE(result.errors.starts_with("cabmaker: interrupted\n")) << result.errors;
    EXPECT_EQ((std::vector<std::string>{"a.ddf", "a.mdb"}), scratch.listing());
}

TEST(Program, PacksTheLargestMemberThatACabinetCanCarry)
{
    const ScratchFolder scratch;
    scratch.write("a.mdb", "");
    fs::resize_file(scratch.path() / "a.mdb", 2'147'450'880);
    scratch.write("b.csv", "opens a second folder");
    scratch.write("a.ddf", ".Set CabinetNameTemplate=..\\x.cab\na.mdb\nb.csv\n");
    EXPECT_EQ(0, runCommand(scratch.path(), program + "/f a.ddf").status);

    EXPECT_NE(std::string::npos, scratch.read("setup.rpt").find("Folders         2\r\n"));
    EXPECT_EQ(0, runCommand(scratch.path(), "cabextract -p -F b.csv x.cab | cmp - b.csv").status);
    EXPECT_EQ(0,
              runCommand(scratch.path(), "cabextract -q -p -F a.mdb x.cab | cmp - a.mdb").status);
}
