#include "cabmaker/cabinet_maker.h"

#include <filesystem>
#include <functional>

#include <gtest/gtest.h>

#include "cabmaker/scratch_folder.h"
#include "runtime/run_time_error.h"

namespace cabmaker {

namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

// A site with a gather's results and the directive file that packs them.
class MakeCabinetTest : public testing::Test {
protected:
    MakeCabinetTest()
    {
        write("Application.csv", traceText(50'000));
        write("VM_WPN_1.mdb", traceText(900'000));
        direct("\"C:\\Temp\\Logs\\Application.csv\"\r\n\"C:\\Temp\\Logs\\VM_WPN_1.mdb\"\r\n");
    }

    void write(const std::string& name, const std::string& contents)
    {
        site_.write("drive_c/Temp/Logs/" + name, contents);
    }

    void direct(const std::string& lines)
    {
        write("ZMK.DDF",
              ".Option EXPLICIT\r\n.Set CabinetNameTemplate=..\\VM_WPN_2.cab\r\n" + lines);
    }

    Names listing() const
    {
        Names names;
        const std::string folder = "drive_c/Temp/Logs/";
        for (const std::string& name : site_.listing())
            if (name.starts_with(folder) && name != folder)
                names.push_back(name.substr(folder.size()));
        return names;
    }

    std::string working() const { return site_.at("drive_c/Temp/Logs"); }

    MadeCabinet make(const std::function<void()>& checkpoint = [] {})
    {
        return makeCabinet("C:\\Temp\\Logs\\zmk.ddf", {.workingFolder = working(),
                                                       .drives = site_.at(""),
                                                       .threads = 2,
                                                       .checkpoint = checkpoint});
    }

    std::string failure(const std::function<void()>& checkpoint = [] {})
    {
        try {
            make(checkpoint);
            return "(none)";
        } catch (const RunTimeError& error) {
            return error.description();
        }
    }

    ScratchFolder site_;
};

} // namespace

TEST_F(MakeCabinetTest, PutsTheCabinetBesideItsContents)
{
    const MadeCabinet made = make();

    EXPECT_EQ(fs::canonical(working()) / "VM_WPN_2.cab", made.path);
    EXPECT_EQ(2U, made.members);
    EXPECT_EQ(950'000U, made.plainBytes);
    EXPECT_EQ(fs::file_size(made.path), made.bytes);
    EXPECT_EQ((Names{"Application.csv", "VM_WPN_1.mdb", "VM_WPN_2.cab", "ZMK.DDF", "disk1/",
                     "setup.inf", "setup.rpt"}),
              listing());
    const CommandResult extracted =
        runCommand(working(), "cabextract -q -d x VM_WPN_2.cab && cmp Application.csv "
                              "x/Application.csv && cmp VM_WPN_1.mdb x/VM_WPN_1.mdb");
    EXPECT_EQ(0, extracted.status) << extracted.errors;
}

TEST_F(MakeCabinetTest, RunsAgainOverItsOwnResults)
{
    make();
    EXPECT_EQ("(none)", failure());
    EXPECT_EQ(7U, listing().size());
}

TEST_F(MakeCabinetTest, PutsTheCabinetIntoTheOutputFolderUnlessItLeadsOut)
{
    write("ZMK.DDF", ".Set DiskDirectoryTemplate=out\\disk*\r\n\"Application.csv\"\r\n");
    EXPECT_EQ(fs::canonical(working()) / "out/disk1/1.cab", make().path);

    const std::string away = site_.at("away.cab");
    write("ZMK.DDF", ".Set CabinetNameTemplate=" + away + "\r\n\"Application.csv\"\r\n");
    make();
    EXPECT_TRUE(fs::exists(away));

    write("ZMK.DDF", ".Set CabinetNameTemplate=C:\\drive.cab\r\n\"Application.csv\"\r\n");
    make();
    EXPECT_TRUE(fs::exists(site_.at("drive_c/drive.cab")));
}

TEST_F(MakeCabinetTest, WritesNoReportsThatAreNotWanted)
{
    direct(".Set InfFileName=nul\r\n.Set RptFileName=nul\r\n\"Application.csv\"\r\n");
    make();
    EXPECT_EQ((Names{"Application.csv", "VM_WPN_1.mdb", "VM_WPN_2.cab", "ZMK.DDF", "disk1/"}),
              listing());
}

TEST_F(MakeCabinetTest, DecodesTheNamesOfFilesFromTheCodePage)
{
    write("Ärger €.csv", "x");
    direct("\"C:\\Temp\\Logs\\\xE4RGER \x80.csv\"\r\n");
    make();
    EXPECT_EQ(0, runCommand(working(), "cabextract -q -d x VM_WPN_2.cab").status);
    EXPECT_EQ("x", site_.read("drive_c/Temp/Logs/x/äRGER €.csv"));
}

TEST_F(MakeCabinetTest, FailsWithAMessageAndLeavesTheFolderAsItWas)
{
    struct Case {
        const char* because;
        const char* lines;
        const char* message;
    };
    const Case cases[] = {
        {"a line that isn't known", "\"Application.csv\"\r\n.Frob\r\n",
         "C:\\Temp\\Logs\\zmk.ddf:4: the directive .Frob is not known"},
        {"a file that isn't there", "\"Application.csv\"\r\n\"C:\\Temp\\none.csv\"\r\n",
         "C:\\Temp\\Logs\\zmk.ddf:4: cannot read C:\\Temp\\none.csv: No such file or directory"},
        {"a drive that isn't there", "\"D:\\none.csv\"\r\n",
         "C:\\Temp\\Logs\\zmk.ddf:3: D:\\none.csv: the site has no such drive"},
        {"a folder", "\"C:\\Temp\\Logs\"\r\n",
         "C:\\Temp\\Logs\\zmk.ddf:3: cannot read C:\\Temp\\Logs: it is not a plain file"},
        {"nothing to pack", "; nothing\r\n", "C:\\Temp\\Logs\\zmk.ddf names no file to pack"},
        {"a disk that is too small", ".Set MaxDiskSize=60\r\n\"Application.csv\"\r\n",
         "the files can't be divided among cabinets of 60 bytes"},
        {"an output folder that is a file",
         ".Set DiskDirectory1=Application.csv\r\n\"ZMK.DDF\"\r\n", nullptr},
        {"a cabinet's folder that isn't there", ".Set CabinetName1=no\\x.cab\r\n\"ZMK.DDF\"\r\n",
         "no/x.cab: No such file or directory"},
        {"a report that can't be written", ".Set RptFileName=no\\x.rpt\r\n\"Application.csv\"\r\n",
         "no/x.rpt: No such file or directory"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        direct(c.lines);
        const std::string message = failure();
        EXPECT_NE("(none)", message);
        if (c.message != nullptr) {
            EXPECT_TRUE(message.ends_with(c.message)) << message;
        }
        EXPECT_EQ((Names{"Application.csv", "VM_WPN_1.mdb", "ZMK.DDF"}), listing());
    }
}

TEST_F(MakeCabinetTest, RefusesANameThatIsTooLongBeforeAnyWork)
{
    const std::string stem(252, 'x');
    struct Case {
        const char* because;
        std::string line;
        std::string message;
    };
    const std::string tooLong = ": File name too long";
    const Case cases[] = {
        {"the cabinet", ".Set CabinetNameTemplate=" + stem + ".cab",
         "cannot write " + working() + "/disk1/" + stem + ".cab" + tooLong},
        {"a report", ".Set RptFileName=" + stem + ".rpt",
         "cannot write " + working() + "/" + stem + ".rpt" + tooLong},
        {"the output folder", ".Set DiskDirectoryTemplate=" + stem + "xxxx",
         "cannot make the folder " + working() + "/" + stem + "xxxx" + tooLong},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.because);
        write("ZMK.DDF", c.line + "\r\n\"Application.csv\"\r\n");
        EXPECT_EQ(c.message, failure([] { FAIL() << "nothing is packed"; }));
        EXPECT_EQ((Names{"Application.csv", "VM_WPN_1.mdb", "ZMK.DDF"}), listing());
    }
}

TEST_F(MakeCabinetTest, LeavesNothingWhereOnlyALaterCabinetsNameIsTooLong)
{
    const std::string stem(250, 'x');
    write("big.mdb", noise(200'000));
    write("ZMK.DDF",
          ".Set CabinetNameTemplate=" + stem + ".cab\r\n.Set MaxDiskSize=90000\r\n\"big.mdb\"\r\n");
    EXPECT_EQ("cannot write " + working() + "/disk1/" + stem + "_2.cab: File name too long",
              failure());
    EXPECT_EQ((Names{"Application.csv", "VM_WPN_1.mdb", "ZMK.DDF", "big.mdb"}), listing());
}

TEST_F(MakeCabinetTest, KeepsTheCabinetOfBeforeWhenItFails)
{
    write("VM_WPN_2.cab", "before");
    write("VM_WPN_1.mdb", traceText(5'000'000));
    int checkpoints = 0;
    EXPECT_EQ("interrupted", failure([&] {
                  if (++checkpoints == 5) throw RunTimeError(57, "interrupted");
              }));
    EXPECT_EQ("before", site_.read("drive_c/Temp/Logs/VM_WPN_2.cab"));
    EXPECT_EQ((Names{"Application.csv", "VM_WPN_1.mdb", "VM_WPN_2.cab", "ZMK.DDF"}), listing());
}

TEST_F(MakeCabinetTest, MakesASetOfWhatIsTooLargeForOneCabinet)
{
    write("big.mdb", noise(200'000));
    direct(".Set MaxDiskSize=90000\r\n\"Application.csv\"\r\n\"big.mdb\"\r\n");
    const MadeCabinet made = make();
    EXPECT_EQ(3U, made.cabinets);
    EXPECT_EQ((Names{"Application.csv", "VM_WPN_1.mdb", "VM_WPN_2.cab", "VM_WPN_2_2.cab",
                     "VM_WPN_2_3.cab", "ZMK.DDF", "big.mdb", "disk1/", "setup.inf", "setup.rpt"}),
              listing());
    const CommandResult extracted =
        runCommand(working(), "cabextract -q -d x VM_WPN_2.cab && cmp Application.csv "
                              "x/Application.csv && cmp big.mdb x/big.mdb");
    EXPECT_EQ(0, extracted.status) << extracted.errors;
}

TEST_F(MakeCabinetTest, NumbersCabinetsAndFoldersByTheirTemplates)
{
    write("big.mdb", noise(100'000));
    write("ZMK.DDF", ".Set CabinetNameTemplate=a*.cab\r\n.Set DiskDirectoryTemplate=out*\r\n"
                     ".Set MaxCabinetSize=60000\r\n.Set RptFileName=nul\r\n"
                     ".Set InfFileName=nul\r\n\"big.mdb\"\r\n");
    EXPECT_EQ(2U, make().cabinets);
    EXPECT_EQ((Names{"Application.csv", "VM_WPN_1.mdb", "ZMK.DDF", "big.mdb", "out1/",
                     "out1/a1.cab", "out2/", "out2/a2.cab"}),
              listing());
}

TEST_F(MakeCabinetTest, TakesTheNamesOfADirectiveFileInUtf8)
{
    write("ケー €.csv", "x");
    write("ZMK.DDF", "\xEF\xBB\xBF.Set CabinetNameTemplate=..\\ケー.cab\r\n"
                     "\"C:\\Temp\\Logs\\ケー €.csv\"\r\n");
    make();
    EXPECT_EQ(0, runCommand(working(), "cabextract -q -d x ケー.cab").status);
    EXPECT_EQ("x", site_.read("drive_c/Temp/Logs/x/ケー €.csv"));
}

TEST_F(MakeCabinetTest, WritesOverNoneOfItsSources)
{
    const std::string logs = "C:\\Temp\\Logs\\";
    fs::create_symlink("VM_WPN_1.mdb", working() + "/link.cab");
    fs::create_hard_link(working() + "/VM_WPN_1.mdb", working() + "/same.cab");
    const struct {
        const char* lines;
        std::string message;
    } cases[] = {
        {".Set CabinetName1=..\\vm_wpn_1.MDB\r\n\"VM_WPN_1.mdb\"\r\n",
         "VM_WPN_1.mdb: VM_WPN_1.mdb would be lost"},
        {".Set CabinetName1=..\\same.cab\r\n\"VM_WPN_1.mdb\"\r\n",
         "same.cab: VM_WPN_1.mdb would be lost"},
        {".Set CabinetName1=..\\link.cab\r\n\"VM_WPN_1.mdb\"\r\n",
         "link.cab: it is not a plain file"},
        {".Set InfFileName=Application.csv\r\n\"Application.csv\"\r\n",
         "Application.csv: Application.csv would be lost"},
        {".Set RptFileName=ZMK.DDF\r\n\"Application.csv\"\r\n",
         "ZMK.DDF: C:\\Temp\\Logs\\zmk.ddf would be lost"},
        {".Set RptFileName=VM_WPN_2.cab\r\n\"Application.csv\"\r\n",
         "VM_WPN_2.cab: disk1\\..\\VM_WPN_2.cab would be lost"},
    };
    const Names before = {"Application.csv", "VM_WPN_1.mdb", "ZMK.DDF", "link.cab", "same.cab"};
    for (const auto& c : cases) {
        direct(c.lines);
        EXPECT_EQ("cannot write " + fs::canonical(working()).string() + "/" + c.message, failure());
        EXPECT_EQ(before, listing());
    }
}

TEST_F(MakeCabinetTest, NeedsADirectiveFile)
{
    fs::remove(working() + "/ZMK.DDF");
    EXPECT_EQ("cannot read C:\\Temp\\Logs\\zmk.ddf: No such file or directory", failure());
    write("ZMK.DDF", "");
    fs::resize_file(working() + "/ZMK.DDF", (64 << 20) + 1);
    EXPECT_EQ("C:\\Temp\\Logs\\zmk.ddf is too large: a directive file takes up to 67108864 bytes",
              failure());
}

} // namespace cabmaker
