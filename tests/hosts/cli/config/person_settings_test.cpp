#include "hosts/cli/config/person_settings.h"

#include "runtime/run_time_error.h"
#include "support/error_of.h"
#include "system/environment.h"

#include <gmock/gmock.h>

#include <map>

namespace cli {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

using Variables = std::map<std::string, std::string>;

PersonSettings settled(const char* file, const Variables& variables = {},
                       const GivenOptions& given = {})
{
    const Environment environment = [&](const char* name) -> std::optional<std::string> {
        const auto found = variables.find(name);
        return found == variables.end() ? std::nullopt : std::optional(found->second);
    };
    return settledSettings(given, environment, parseConfig("/c.toml", file), "/usual/site");
}

/// A setting as "value from where".
std::string shown(const PersonSettings& settings, const std::string& name)
{
    const PersonSetting& setting = settings.of(name);
    return setting.value.value_or("-") + (setting.where.empty() ? "" : " from " + setting.where);
}

std::string refusalOf(const char* file, const Variables& variables = {})
{
    try {
        settled(file, variables);
        return "taken";
    } catch (const RunTimeError& error) {
        return error.description();
    }
}

TEST(PersonSettings, AreWhatIsUsualWhereNobodySaysMore)
{
    const PersonSettings settings = settled("");
    std::vector<std::string> names;
    for (const auto& setting : settings.all) {
        names.push_back(setting.name);
        EXPECT_EQ(Origin::standard, setting.origin) << setting.name;
    }
    EXPECT_EQ(configNames(), names);
    EXPECT_EQ("/usual/site", shown(settings, "site"));
    EXPECT_EQ("-", shown(settings, "tool-folder"));
    EXPECT_EQ("-", shown(settings, "language"));
    EXPECT_EQ("auto", shown(settings, "color"));
    EXPECT_EQ("less -R", shown(settings, "pager"));
    EXPECT_EQ(std::nullopt, settings.language());
}

TEST(PersonSettings, TakeAnOptionBeforeAVariableBeforeTheFile)
{
    const char* file = "site = \"/of/file\"\ntool-folder = \"/tools/of/file\"\n";
    EXPECT_EQ("/of/file from /c.toml:1", shown(settled(file), "site"));
    EXPECT_EQ("/tools/of/file from /c.toml:2", shown(settled(file), "tool-folder"));
    const Variables variables = {{"ORVAN_SITE", "of/variable"}, {"ORVAN_TOOL_FOLDER", "C:\\T"}};
    EXPECT_EQ("of/variable from ORVAN_SITE", shown(settled(file, variables), "site"));
    EXPECT_EQ("C:\\T from ORVAN_TOOL_FOLDER", shown(settled(file, variables), "tool-folder"));
    const GivenOptions given = {"of/option", "/tools/of/option"};
    EXPECT_EQ("of/option from --site", shown(settled(file, variables, given), "site"));
    EXPECT_EQ("/tools/of/option from --tool-folder",
              shown(settled(file, variables, given), "tool-folder"));
    EXPECT_EQ(" from --site", shown(settled(file, variables, {"", {}}), "site"))
        << "an option is given, be it the empty text";
}

TEST(PersonSettings, TakeAnEmptyVariableForNone)
{
    EXPECT_EQ("never from /c.toml:1",
              shown(settled("color = \"never\"", {{"ORVAN_COLOR", ""}}), "color"));
}

TEST(PersonSettings, TakeThePagerOfAllProgramsBehindTheFile)
{
    EXPECT_EQ("more from PAGER", shown(settled("", {{"PAGER", "more"}}), "pager"));
    const char* file = "pager = \"cat\"";
    EXPECT_EQ("cat from /c.toml:1", shown(settled(file, {{"PAGER", "more"}}), "pager"));
    EXPECT_EQ("most from ORVAN_PAGER",
              shown(settled(file, {{"PAGER", "more"}, {"ORVAN_PAGER", "most"}}), "pager"));
}

TEST(PersonSettings, KnowLanguagesAsLocalesNameThem)
{
    EXPECT_EQ(1036, settled("language = \"fr\"").language());
    EXPECT_EQ(2055, settled("language = \"de_CH.UTF-8\"").language());
    EXPECT_EQ(1041, settled("language = \"fr\"", {{"ORVAN_LANGUAGE", "ja"}}).language());
    EXPECT_EQ("/c.toml:1: \"klingon\" is no language that is known; write one such as en, fr or "
              "de_CH",
              refusalOf("language = \"klingon\""));
    EXPECT_THAT(refusalOf("", {{"ORVAN_LANGUAGE", "C"}}),
                StartsWith("ORVAN_LANGUAGE: \"C\" is no"));
}

TEST(PersonSettings, KnowThreeWaysOfColours)
{
    EXPECT_EQ("/c.toml:2: color is auto, always or never, not \"yes\"",
              refusalOf("\ncolor = \"yes\""));
    EXPECT_EQ("ORVAN_COLOR: color is auto, always or never, not \"1\"",
              refusalOf("", {{"ORVAN_COLOR", "1"}}));
    for (const char* wish : {"auto", "always", "never"})
        EXPECT_EQ("taken", refusalOf("", {{"ORVAN_COLOR", wish}}));
}

TEST(PersonSettings, TakeWholePathsOfTheFileAlone)
{
    for (const char* path : {"voice01", "./voice01", "../voice01", "~me/voice01", "C:/voice01"})
        EXPECT_THAT(refusalOf(("site = \"" + std::string(path) + "\"").c_str()),
                    StartsWith("/c.toml:1: site takes a whole path, such as one that begins with "
                               "~/, not \"" +
                               std::string(path) + "\""));
    EXPECT_THAT(refusalOf("tool-folder = \"tools\""), StartsWith("/c.toml:1: tool-folder takes"));
    EXPECT_EQ("C:\\Tools from /c.toml:1",
              shown(settled("tool-folder = 'C:\\Tools'"), "tool-folder"));
    EXPECT_EQ(userFolder() + "/voice01 from /c.toml:1",
              shown(settled("site = \"~/voice01\""), "site"));
}

TEST(PersonSettings, HaveNoOthers)
{
    EXPECT_EQ(runTimeErrors::subscriptOutOfRange, errorOf([] { settled("").of("colour"); }));
}

} // namespace
} // namespace cli
