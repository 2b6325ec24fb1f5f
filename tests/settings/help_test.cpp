#include "settings/help.h"

#include "settings/settings_fixture.h"

using namespace mdlHTMLHelp;

namespace {

const std::string folder = "C:\\OrvanDiagnostics\\";

using Help = SettingsTest;

} // namespace

TEST_F(Help, ComesInTheUsersLanguageElseInEnglishElseInNone)
{
    struct Case {
        const char* because;
        std::int32_t user;
        Texts files;
        const char* expected;
    };
    const Case cases[] = {
        {"the user's language goes first",
         1036,
         {"OrvanDiagnosticTool_FRA.chm", "OrvanDiagnosticTool_ENU.chm", "OrvanDiagnosticTool.chm"},
         "OrvanDiagnosticTool_FRA.chm"},
        {"a French user without French help reads English",
         1036,
         {"OrvanDiagnosticTool_ENU.chm", "OrvanDiagnosticTool.chm"},
         "OrvanDiagnosticTool_ENU.chm"},
        {"then comes help without a language",
         1036,
         {"OrvanDiagnosticTool.chm"},
         "OrvanDiagnosticTool.chm"},
        {"which is not looked for", 1036, {}, "OrvanDiagnosticTool.chm"},
        {"a language without a code is looked for as such",
         1042,
         {"OrvanDiagnosticTool_ERROR.chm", "OrvanDiagnosticTool_ENU.chm"},
         "OrvanDiagnosticTool_ERROR.chm"},
        {"names have no case",
         1036,
         {"orvandiagnostictool_fra.CHM"},
         "OrvanDiagnosticTool_FRA.chm"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TestTool machine;
        machine.languages.userDefault = c.user;
        for (const auto& file : c.files) machine.files.with(folder + file);
        EXPECT_EQ(folder + c.expected, getHelpFileName(machine.context));
    }
}

TEST_F(Help, FollowsTheUsersLanguageAndNotTheTools)
{
    tool.context.language.g_lngCurrentLanguage = 1031;
    tool.languages.userDefault = 1036;
    tool.files.with(folder + "OrvanDiagnosticTool_DEU.chm")
        .with(folder + "OrvanDiagnosticTool_FRA.chm");
    EXPECT_EQ(folder + "OrvanDiagnosticTool_FRA.chm", getHelpFileName(tool.context));
}

TEST_F(Help, AFolderThatCanNotBeReadGivesTheLastName)
{
    tool.files.failing(folder + "OrvanDiagnosticTool_ENU.chm", 70);
    EXPECT_EQ(folder + "OrvanDiagnosticTool.chm", getHelpFileName(tool.context));
    EXPECT_EQ(2u, tool.failures("[mdlHTMLHelp]getHelpFileName").size());
}

TEST_F(Help, LeavesOnTheEleventhErrorInTheDevelopmentHost)
{
    tool.module.developmentHost = true;
    tool.files.failing(folder + "OrvanDiagnosticTool_ENU.chm", 70);
    EXPECT_EQ(folder + "OrvanDiagnosticTool_ENU.chm", getHelpFileName(tool.context))
        << "what it held when it left";
    EXPECT_TRUE(
        tool.logged("Error count exceeded, forcing exit from [mdlHTMLHelp]getHelpFileName"));
}

TEST_F(Help, ShowsTheFirstPageOrATopicAndKeepsTheWindow)
{
    tool.desktop.helpWindow = 4711;
    showCHMHelp(tool.context, "a.chm");
    EXPECT_EQ(4711, tool.context.g_hwndHelp);
    EXPECT_TRUE(tool.logged("hwndHelp returned = 4711"));
    EXPECT_EQ("VerInfo", tool.logLines().back().level);

    tool.desktop.helpWindow = 0;
    showCHMHelp(tool.context, "b.chm", 410);
    EXPECT_EQ(0, tool.context.g_hwndHelp);
    EXPECT_TRUE(tool.logged("hwndHelp returned = 0"));
    EXPECT_EQ((std::vector<FakeDesktop::Help>{{"a.chm", 0}, {"b.chm", 410}}),
              tool.desktop.helpShown());
}
