#include "backends/site/site_settings.h"

#include "runtime/run_time_error.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

#include <random>

namespace {

using testing::StartsWith;

TEST(SiteSettings, AnEmptyFileGivesTheDefaults)
{
    const auto settings = parseSiteSettings("");

    EXPECT_EQ(SiteSettings{}, settings);
    EXPECT_FALSE(settings.computer || settings.user || settings.timeZone || settings.language);
    EXPECT_EQ(1252, settings.codePage);
    EXPECT_EQ("C:\\OrvanDiagnostics", settings.toolFolder);
    EXPECT_EQ(LogFields::basic, settings.logFields);
}

TEST(SiteSettings, AMissingFileGivesTheDefaults)
{
    const TemporaryFolder folder;

    EXPECT_EQ(SiteSettings{}, readSiteSettings(RootFolder(folder.path())));
}

TEST(SiteSettings, ReadsEveryKey)
{
    const TemporaryFolder folder;
    const auto path = folder.write("site.ini", "; the server in the cellar\r\n"
                                               "[site]\r\n"
                                               "computer = VOICE01\r\n"
                                               "user=Jürgen\r\n"
                                               "timeZone = PST8PDT,M3.2.0,M11.1.0\r\n"
                                               "codePage = 1250\r\n"
                                               "language = 1036\r\n"
                                               "toolFolder = D:\\Tools\\Diag\\\r\n"
                                               "logFields = extended\r\n");

    const auto settings = readSiteSettings(RootFolder(folder.path()));

    EXPECT_EQ("VOICE01", settings.computer);
    EXPECT_EQ("Jürgen", settings.user);
    EXPECT_EQ("PST8PDT,M3.2.0,M11.1.0", settings.timeZone);
    EXPECT_EQ(1250, settings.codePage);
    EXPECT_EQ(1036, settings.language);
    EXPECT_EQ("D:\\Tools\\Diag", settings.toolFolder);
    EXPECT_EQ(LogFields::extended, settings.logFields);
}

TEST(SiteSettings, ReadsLinesAsTheyAreMeant)
{
    struct Case {
        const char* because;
        std::string text;
        std::optional<std::string> computer;
    };
    const Case cases[] = {
        {"a byte order mark may stand in front", "\xEF\xBB\xBF[site]\ncomputer=a", "a"},
        {"names match without regard to case", "[SITE]\nCOMPUTER=a", "a"},
        {"blanks around names and values are layout", " [ site ] \n\t computer \t=  a b \t", "a b"},
        {"quotes around a value are layout", "[site]\ncomputer=\" a \"", " a "},
        {"a key with nothing behind it is left out", "[site]\ncomputer=", std::nullopt},
        {"only the first equals sign counts", "[site]\ncomputer=a=b", "a=b"},
        {"a comment has its line to itself", "[site]\n# x\n  ; y\ncomputer=a # b", "a # b"},
        {"other sections are other programs'", "[backup]\nmode=1\nnonsense\n[site]\ncomputer=a",
         "a"},
        {"a section may come in two pieces", "[site]\nuser=u\n[x]\n[site]\ncomputer=a", "a"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.computer, parseSiteSettings(c.text).computer);
    }
}

TEST(SiteSettings, RefusesDamageWithTheNumberOfItsLine)
{
    struct Case {
        const char* because;
        std::string line;
    };
    const Case cases[] = {
        {"a misspelt key", "compter=a"},
        {"a key a second time", "user=again"},
        {"a line without an equals sign", "computer"},
        {"a section that does not end", "[site"},
        {"a time zone that is none", "timeZone=Pacific"},
        {"a zone by its place", "timeZone=America/Los_Angeles"},
        {"a code page that is no number", "codePage=latin"},
        {"a code page of several bytes a character", "codePage=932"},
        {"UTF-8, whose characters take several bytes", "codePage=65001"},
        {"a code page that is unknown", "codePage=1249"},
        {"a language of zero", "language=0"},
        {"a language past sixteen bits", "language=65536"},
        {"a relative tool folder", "toolFolder=Tools"},
        {"a drive's root as tool folder", "toolFolder=C:\\"},
        {"a tool folder of the machine", "toolFolder=/usr/lib"},
        {"a tool folder that climbs", "toolFolder=C:\\a\\..\\..\\b"},
        {"a tool folder that ends a command", "toolFolder=C:\\a\";b"},
        {"a computer that is a path", "computer=a/b"},
        {"a computer that climbs", "computer=.."},
        {"a computer with a backslash", "computer=a\\b"},
        {"a computer with a pattern", "computer=a*"},
        {"a computer that ends a directive", "computer=a;b"},
        {"a computer with a quote", "computer=a\"b"},
        {"a computer with a small quote", "computer=a'b"},
        {"a computer with a variable", "computer=%PATH%"},
        {"a computer with an escape", "computer=a\x1b[2Jb"},
        {"a computer with a line end of another script", "computer=a\xE2\x80\xA8"
                                                         "b"},
        {"a computer with a control character of another set", "computer=a\xC2\x9B"
                                                               "b"},
        {"a computer that is read backwards", "computer=a\xE2\x80\xAE"
                                              "b"},
        {"a computer with a tab", "computer=a\tb"},
        {"a form of log lines that is none", "logFields=full"},
        {"a single-byte code page", "computer=caf\xE9"},
        {"a zero byte", std::string("computer=a\0b", 12)},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        const auto text = "[site]\nuser=u\n" + c.line + "\nlogFields=basic\n";
        EXPECT_EQ(runTimeErrors::invalidFileFormat, errorOf([&] { parseSiteSettings(text); }));
        EXPECT_THAT(errorTextOf([&] { parseSiteSettings(text); }), StartsWith("site.ini line 3: "));
    }
    EXPECT_EQ("site.ini line 1: a key before the section [site]",
              errorTextOf([] { parseSiteSettings("computer=a"); }));
    EXPECT_EQ("site.ini line 2: unknown key \"compter\"",
              errorTextOf([] { parseSiteSettings("[site]\ncompter=a"); }));
}

TEST(SiteSettings, ReadsTheSourceOfAServersDatabase)
{
    EXPECT_EQ(std::nullopt, parseSiteSettings("[database]\nodbc =\n").odbc);
    EXPECT_EQ("Driver=D;Server=a=b;PWD={x;y}",
              parseSiteSettings("[database]\n; ours\nODBC = Driver=D;Server=a=b;PWD={x;y}").odbc);
    const auto both = parseSiteSettings("[Database]\nodbc=Orvan\n[site]\ncomputer=a");
    EXPECT_EQ("Orvan", both.odbc);
    EXPECT_EQ("a", both.computer);
    EXPECT_EQ("site.ini line 2: unknown key \"computer\"",
              errorTextOf([] { parseSiteSettings("[database]\ncomputer=a"); }));
    EXPECT_EQ("site.ini line 3: a second \"odbc\"",
              errorTextOf([] { parseSiteSettings("[database]\nodbc=a\nodbc=b"); }));
    EXPECT_EQ("site.ini line 2: unknown key \"odbc\"",
              errorTextOf([] { parseSiteSettings("[site]\nodbc=a"); }));
    EXPECT_EQ("site.ini line 2: odbc has a character that can't be seen",
              errorTextOf([] { parseSiteSettings("[database]\nodbc=a\xE2\x80\xAE"); }));
}

TEST(SiteSettings, TakesTheNamesOfRealServers)
{
    for (const char* name : {"VOICE01", "voice-01.office.example", "Sprachbox Größe", "音声サーバ",
                             "ГОЛОС_1", "VOICE01$", "a.b", "\xC3\x90"})
        EXPECT_EQ(name, parseSiteSettings(std::string("[site]\ncomputer=") + name).computer);
    for (const char* name : {"maria", "OFFICE\\maria", "josé de la cruz", "svc_orvan$"})
        EXPECT_EQ(name, parseSiteSettings(std::string("[site]\nuser=") + name).user);
}

TEST(SiteSettings, AnswersAnyBytesWithSettingsOrARefusal)
{
    const std::string pieces[] = {
        "[site]",  "computer", "=", "\n", "\r", "timeZone=",          "\xEF\xBB\xBF",
        "PST8PDT", ",M3",      "[", "]",  "\"", std::string(1, '\0'), "\xE9"};
    std::mt19937 random(7);
    for (int round = 0; round < 3000; ++round) {
        std::string text;
        for (unsigned count = random() % 30; count > 0; --count) text += pieces[random() % 14];
        const int error = errorOf([&] { parseSiteSettings(text); });
        EXPECT_TRUE(error == 0 || error == runTimeErrors::invalidFileFormat) << text;
    }
}

} // namespace
