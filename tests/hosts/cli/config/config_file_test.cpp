#include "hosts/cli/config/config_file.h"

#include "runtime/run_time_error.h"

#include <gmock/gmock.h>

namespace cli {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

std::string refusalOf(std::string_view text)
{
    try {
        parseConfig("/c.toml", text);
    } catch (const RunTimeError& error) {
        EXPECT_EQ(runTimeErrors::invalidFileFormat, error.number());
        return error.description();
    }
    return "taken";
}

TEST(ConfigFile, HasEachSettingWithItsLine)
{
    const ConfigFile file = parseConfig("/c.toml", "# mine\nsite = \"/srv/a b\"\n\n"
                                                   "  pager='less -RS' # wide\n");
    ASSERT_EQ(2U, file.entries.size());
    EXPECT_EQ("/srv/a b", file.find("site")->value);
    EXPECT_EQ("/c.toml:2", file.placeOf(*file.find("site")));
    EXPECT_EQ("less -RS", file.find("pager")->value);
    EXPECT_EQ("/c.toml:4", file.placeOf(*file.find("pager")));
    EXPECT_EQ(nullptr, file.find("color"));
    EXPECT_TRUE(file.there);
    EXPECT_TRUE(file.warnings.empty());
}

TEST(ConfigFile, MayBeEmptyAndHaveLinesOfWindows)
{
    EXPECT_TRUE(parseConfig("/c.toml", "").entries.empty());
    EXPECT_EQ("never", parseConfig("/c.toml", "\r\ncolor = \"never\"\r\n").find("color")->value);
}

TEST(ConfigFile, TakesLettersOfAnyLanguageAndPercentSigns)
{
    const ConfigFile file =
        parseConfig("/c.toml", "\xef\xbb\xbf# \u00fcber\nsite = \"/srv/\u00e4\uff43 100%41\"\n"
                               "pager = '\u65e5\u672c%'\ncolor = \"\\u00e4\\u0025\"\n");
    EXPECT_EQ("/srv/\u00e4\uff43 100%41", file.find("site")->value);
    EXPECT_EQ("\u65e5\u672c%", file.find("pager")->value);
    EXPECT_EQ("\u00e4%", file.find("color")->value);
    EXPECT_EQ("/c.toml:2", file.placeOf(*file.find("site")));
}

TEST(ConfigFile, LettersOutsideOfTextsAreNoToml)
{
    EXPECT_THAT(refusalOf("\n\u00e4 = 1"), StartsWith("/c.toml:2: this is no TOML: "));
    EXPECT_THAT(refusalOf("\nsite\ufefb = \"a\""), StartsWith("/c.toml:2: this is no TOML: "));
    EXPECT_EQ("/c.toml:3: this is no TOML: it is not in UTF-8", refusalOf("\n\nsite = \"\xe4\""));
}

TEST(ConfigFile, WarnsOfWhatIsNoSetting)
{
    const ConfigFile file =
        parseConfig("/c.toml", "colour = \"never\"\ncolor = \"never\"\n[more]\nsite = 1\n");
    EXPECT_THAT(file.warnings,
                ElementsAre("/c.toml:1: there is no setting \"colour\"; there are site, "
                            "tool-folder, language, color, pager",
                            "/c.toml:3: there is no setting \"more\"; there are site, "
                            "tool-folder, language, color, pager"));
    EXPECT_EQ("never", file.find("color")->value);
}

TEST(ConfigFile, RefusesWhatIsNoTomlWithItsLine)
{
    for (const char* text :
         {"\nsite", "\nsite = ", "\nsite = \"/srv", "\nsite = /srv", "site = \"a\"\nsite = \"b\"",
          "\n= \"a\"", "\nsite = \"\xff\"", "\n[=x]", "\n[ \x15"}) {
        EXPECT_THAT(refusalOf(text), StartsWith("/c.toml:2: this is no TOML: ")) << text;
        EXPECT_EQ(std::string::npos, refusalOf(text).find('\n')) << text;
    }
}

TEST(ConfigFile, RefusesAValueThatIsNoText)
{
    EXPECT_EQ("/c.toml:2: site takes a text in quotation marks", refusalOf("\nsite = 7\n"));
    EXPECT_EQ("/c.toml:1: color takes a text in quotation marks", refusalOf("color = [\"auto\"]"));
    EXPECT_EQ("/c.toml:3: pager is empty; leave the line out to set nothing",
              refusalOf("\n\npager = \"\"\n"));
}

TEST(ConfigFile, WithoutAPathOrAFileHasNoEntries)
{
    EXPECT_FALSE(readConfigFile("").there);
    EXPECT_FALSE(readConfigFile("/nonexistent/orvandiag/config.toml").there);
    EXPECT_EQ("/nonexistent/config.toml", readConfigFile("/nonexistent/config.toml").path);
}

} // namespace
} // namespace cli
