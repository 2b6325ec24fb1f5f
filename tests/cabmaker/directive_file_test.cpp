#include "cabmaker/directive_file.h"

#include <gtest/gtest.h>

#include "cabmaker/scratch_folder.h"
#include "runtime/run_time_error.h"

namespace cabmaker {

namespace {

std::string messageOf(std::string_view text)
{
    try {
        parseDirectives(text, "a.ddf");
        return "(nothing)";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(runTimeErrors::invalidCall, error.number());
        return error.description();
    }
}

} // namespace

TEST(ParseDirectives, ReadsTheFileOfAGather)
{
    const Directives directives =
        parseDirectives(".Option EXPLICIT\r\n"
                        ".Set CabinetNameTemplate=..\\VMSRV1_WPN_20061231_235959.cab\r\n"
                        ".Set Cabinet=on\r\n"
                        ".Set Compress=on\r\n"
                        ".Set MaxDiskSize=CDROM\r\n"
                        "\"C:\\Temp\\Logs From\\Application.csv\"\r\n"
                        "\"C:\\Temp\\Logs From\\System.csv\"\r\n"
                        "\"C:\\Temp\\Logs From\\VMSRV1_WPN_20061231_235950.mdb\"\r\n",
                        "ZMK.DDF");

    EXPECT_EQ("..\\VMSRV1_WPN_20061231_235959.cab", directives.cabinetName);
    EXPECT_EQ("disk1", directives.diskFolder);
    EXPECT_EQ(Compression::mszip, directives.compression);
    EXPECT_EQ(681'984'000U, directives.largestCabinet);
    ASSERT_EQ(3U, directives.members.size());
    EXPECT_EQ("C:\\Temp\\Logs From\\Application.csv", directives.members[0].source);
    EXPECT_EQ("Application.csv", directives.members[0].name);
    EXPECT_EQ(6U, directives.members[0].line);
    EXPECT_EQ("VMSRV1_WPN_20061231_235950.mdb", directives.members[2].name);
    EXPECT_EQ(8U, directives.members[2].line);
}

TEST(ParseDirectives, HasADefaultForEverything)
{
    const Directives directives = parseDirectives("", "a.ddf");
    EXPECT_EQ("1.cab", cabinetNameOf(directives, 1));
    EXPECT_EQ("12.cab", cabinetNameOf(directives, 12));
    EXPECT_EQ("disk1", directives.diskFolder);
    EXPECT_EQ("setup.inf", directives.infFile);
    EXPECT_EQ("setup.rpt", directives.rptFile);
    EXPECT_EQ(Compression::mszip, directives.compression);
    EXPECT_EQ(0U, directives.largestCabinet);
    EXPECT_TRUE(directives.members.empty());
}

TEST(CabinetNameOf, NumbersTheCabinetsOfASet)
{
    const struct {
        const char* wished;
        const char* names[2]; ///< of cabinets 1 and 2
    } cases[] = {
        {"..\\PC_WPN_1.cab", {"..\\PC_WPN_1.cab", "..\\PC_WPN_1_2.cab"}},
        {"a*.cab", {"a1.cab", "a2.cab"}},
        {"x.y\\*", {"x.y\\1", "x.y\\2"}},
        {"x.y\\noending", {"x.y\\noending", "x.y\\noending_2"}},
    };
    for (const auto& c : cases) {
        const auto directives =
            parseDirectives(std::string(".Set CabinetNameTemplate=") + c.wished, "a.ddf");
        EXPECT_EQ(c.names[0], cabinetNameOf(directives, 1));
        EXPECT_EQ(c.names[1], cabinetNameOf(directives, 2));
        EXPECT_EQ("disk1", diskFolderOf(directives, 2)) << "no * in its template";
    }
}

TEST(ParseDirectives, UnderstandsTheLinesOfTheLanguage)
{
    struct Case {
        const char* because;
        const char* text;
        std::string (*look)(const Directives&);
        const char* expected;
    };
    const auto cabinet = [](const Directives& d) { return cabinetNameOf(d, 1); };
    const auto disk = [](const Directives& d) { return diskFolderOf(d, 1); };
    const auto limit = [](const Directives& d) { return std::to_string(d.largestCabinet); };
    const auto compression = [](const Directives& d) {
        return std::to_string(static_cast<int>(d.compression));
    };
    const auto files = [](const Directives& d) {
        std::string all;
        for (const auto& m : d.members)
            all += m.source + "|" + m.name + "|" + std::to_string(m.line) + " ";
        return all;
    };
    const auto reports = [](const Directives& d) { return d.infFile + "|" + d.rptFile; };
    const Case cases[] = {
        {"names know no case", ".sET cabinetNAMEtemplate=x.cab", cabinet, "x.cab"},
        {"blanks around the pieces", " \t. Set  CabinetNameTemplate \t=  x.cab \t", cabinet,
         "x.cab"},
        {"a value keeps its blanks", ".Set CabinetNameTemplate=..\\a b.cab ; why", cabinet,
         "..\\a b.cab"},
        {"a value in quotes", ".Set CabinetNameTemplate=\"a;b.cab\" ; why", cabinet, "a;b.cab"},
        {"the other quotes", ".Set CabinetNameTemplate='a\"b.cab'", cabinet, "a\"b.cab"},
        {"a doubled quote is one", ".Set CabinetNameTemplate='O''B.cab'", cabinet, "O'B.cab"},
        {"a value may hold an equals sign", ".Set CabinetNameTemplate=a=b.cab", cabinet, "a=b.cab"},
        {"a percent sign stands for itself", ".Set CabinetNameTemplate=100%.cab", cabinet,
         "100%.cab"},
        {"a star is the number", ".Set CabinetNameTemplate=set*.cab", cabinet, "set1.cab"},
        {"the first cabinet's own name", ".Set CabinetName1=x.cab", cabinet, "x.cab"},
        {"the last setting counts", ".Set CabinetName1=x.cab\n.Set CabinetName1=y.cab", cabinet,
         "y.cab"},
        {"single-byte text is decoded", ".Set CabinetName1=\xC4\x80.cab", cabinet, "Ä€.cab"},
        {"the output folder", ".Set DiskDirectoryTemplate=out*", disk, "out1"},
        {"by its number", ".Set DiskDirectory1=out", disk, "out"},
        {"the working folder itself", ".Set DiskDirectory1=", disk, ""},
        {"a disk by size", ".Set MaxDiskSize=1457664", limit, "1457664"},
        {"a disk by name", ".Set MaxDiskSize=cdrom", limit, "681984000"},
        {"a floppy disk", ".Set MaxDiskSize=1.44M", limit, "1457664"},
        {"no limit", ".Set MaxDiskSize=CDROM\n.Set MaxDiskSize=0", limit, "0"},
        {"the narrower limit counts", ".Set MaxCabinetSize=1000\n.Set MaxDiskSize=CDROM", limit,
         "1000"},
        {"either of them", ".Set MaxCabinetSize=2000000\n.Set MaxDiskSize=360K", limit, "362496"},
        {"uncompressed", ".Set Compress=OFF", compression, "0"},
        {"compressed", ".Set Compress=on\n.Set CompressionType=mszip", compression, "1"},
        {"no reports", ".Set InfFileName=nul\n.Set RptFileName=NUL", reports, "|"},
        {"other reports", ".Set InfFileName=a.inf\n.Set RptFileName=a.rpt", reports, "a.inf|a.rpt"},
        {"cabinets are made", ".Set Cabinet=ON\n.Set UniqueFiles=yes\n.Option Explicit", files, ""},
        {"comments and empty lines", "; a\n\n \t\n  ;b\na.csv;c\n", files, "a.csv|a.csv|5 "},
        {"the last line needs no end", "a.csv", files, "a.csv|a.csv|1 "},
        {"either line end", "a.csv\r\nb.csv\nc.csv\r", files,
         "a.csv|a.csv|1 b.csv|b.csv|2 c.csv|c.csv|3 "},
        {"a name in quotes", "\"C:\\x y\\a;b.csv\" ;c", files, "C:\\x y\\a;b.csv|a;b.csv|1 "},
        {"a path of the machine", "\"/home/x\\a.csv\"", files, "/home/x\\a.csv|a.csv|1 "},
        {"a name in the cabinet", "C:\\a.csv \"logs/b c.csv\"", files,
         "C:\\a.csv|logs\\b c.csv|1 "},
        {"a quoted name may begin with a dot", "\".Set x\"", files, ".Set x|.Set x|1 "},
        {"folders of sources and members",
         ".Set SourceDir=C:\\x\n.Set DestinationDir=y\\\na.csv\n.Set SourceDir=\nb.csv", files,
         "C:\\x\\a.csv|y\\a.csv|3 b.csv|y\\b.csv|5 "},
        {"a name twice, if that is wanted", ".Set UniqueFiles=off\nx\\a\ny\\a", files,
         "x\\a|a|2 y\\a|a|3 "},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        try {
            EXPECT_EQ(c.expected, c.look(parseDirectives(c.text, "a.ddf")));
        } catch (const RunTimeError& error) {
            ADD_FAILURE() << error.description();
        }
    }
}

TEST(ParseDirectives, RefusesWhatItDoesNotKnowWithTheLine)
{
    struct Case {
        const char* text;
        const char* message;
    };
    const Case cases[] = {
        {"\n\n.Frob on", "a.ddf:3: the directive .Frob is not known"},
        {".", "a.ddf:1: the directive . is not known"},
        {".;x", "a.ddf:1: the directive . is not known"},
        {".New Cabinet", "a.ddf:1: the directive .New is not known"},
        {".Option", "a.ddf:1: the option \"\" is not known"},
        {".Option Implicit", "a.ddf:1: the option \"Implicit\" is not known"},
        {".Option Explicit more", "a.ddf:1: something follows the option"},
        {"; x\r\n.Set Colour=blue", "a.ddf:2: the variable \"Colour\" is not known"},
        {".Set", "a.ddf:1: the variable \"\" is not known"},
        {".Set =x", "a.ddf:1: the variable \"\" is not known"},
        {".Set \xC4=x", "a.ddf:1: the variable \"Ä\" is not known"},
        {".Set Cabinet", "a.ddf:1: = is missing"},
        {".Set Cabinet on", "a.ddf:1: = is missing"},
        {".Set Cabinet=", "a.ddf:1: the value is missing"},
        {".Set Cabinet=;on", "a.ddf:1: the value is missing"},
        {".Set Cabinet=maybe", "a.ddf:1: \"maybe\" is neither on nor off"},
        {".Set Cabinet=off", "a.ddf:1: files outside of cabinets are not made"},
        {".Set CompressionType=LZX", "a.ddf:1: MSZIP is the one compression that is made"},
        {".Set MaxDiskSize=DVD", "a.ddf:1: \"DVD\" is no size in bytes"},
        {".Set MaxDiskSize=-1", "a.ddf:1: \"-1\" is no size in bytes"},
        {".Set MaxDiskSize=99999999999999999999",
         "a.ddf:1: \"99999999999999999999\" is no size in bytes"},
        {".Set MaxCabinetSize=CDROM", "a.ddf:1: \"CDROM\" is no size in bytes"},
        {".Set CabinetNameTemplate=..\\", "a.ddf:1: the cabinet has no name"},
        {".Set CabinetNameTemplate=..", "a.ddf:1: the cabinet has no name"},
        {".Set CabinetNameTemplate=**.cab", "a.ddf:1: a template has one * at most"},
        {".Set CabinetName1=\"x", "a.ddf:1: a quote is not closed"},
        {".Set CabinetName1=\"x\"y", "a.ddf:1: something touches the closing quote"},
        {".Set CabinetName1=\"x\" y", "a.ddf:1: something follows the value in quotes"},
        {"a.csv\n.Set Compress=off",
         "a.ddf:2: Compress is of the whole cabinet and must stand before the first file"},
        {"\"a.csv", "a.ddf:1: a quote is not closed"},
        {"\"a\"b.csv", "a.ddf:1: something touches the closing quote"},
        {"a b c", "a.ddf:1: a name with blanks must stand in quotes"},
        {"a.csv /inf=no", "a.ddf:1: parameters of a file are not known"},
        {"\"\"", "a.ddf:1: the file has no name"},
        {"C:\\x\\", "a.ddf:1: the file has no name"},
        {"C:\\x\\..", "a.ddf:1: a member's name can't be .."},
        {"a \"..\\..\\b\"", "a.ddf:1: a member's name can't be ..\\..\\b"},
        {"a \"\\b\"", "a.ddf:1: a member's name can't be \\b"},
        {"a \"\"", "a.ddf:1: the member has no name"},
        {"a C:\\b", "a.ddf:1: a member's name can't be C:\\b"},
        {"C:a", "a.ddf:1: a member's name can't be C:a"},
        {"x\\a.csv\ny\\A.CSV", "a.ddf:2: the cabinet already has a file A.CSV"},
        {"\xEF\xBB\xBFx\\Ω.csv\ny\\ω.CSV", "a.ddf:2: the cabinet already has a file ω.CSV"},
        {"a\rb", "a.ddf:1: a control character"},
        {"a.csv\x1A", "a.ddf:1: a control character"},
        {"\xEF\xBB\xBF\"ok\"\n\"\xE9.csv\"",
         "a.ddf:2: the file begins as UTF-8, which this line is not"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(c.message, messageOf(c.text));
    }
    EXPECT_EQ("a.ddf:1: a control character", messageOf(std::string_view("a\0b", 3)));
}

TEST(ParseDirectives, RefusesNamesAndNumbersThatACabinetCannotHold)
{
    const std::string longest(255, 'n');
    EXPECT_EQ("(nothing)", messageOf(longest));
    EXPECT_EQ("a.ddf:1: the member's name is longer than 255 bytes", messageOf(longest + "n"));
    EXPECT_EQ("a.ddf:1: the member's name is longer than 255 bytes",
              messageOf(std::string(128, '\xC4'))); // two bytes each in the cabinet

    std::string many;
    for (int i = 0; i < 65535; ++i) many += std::to_string(i) + "\n";
    EXPECT_EQ("(nothing)", messageOf(many));
    EXPECT_EQ("a.ddf:65536: a cabinet can't hold more than 65535 files", messageOf(many + "x\n"));
}

TEST(ParseDirectives, RefusesGarbageWithALineAndNothingElse)
{
    for (std::uint32_t seed = 1; seed <= 200; ++seed) {
        SCOPED_TRACE(seed);
        const std::string message = messageOf(noise(400, seed));
        EXPECT_TRUE(message.starts_with("a.ddf:")) << message;
    }
}

} // namespace cabmaker
