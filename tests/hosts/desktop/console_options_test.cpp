#include "hosts/desktop/console_options.h"

#include "hosts/desktop/support/test_window.h"

#include <gmock/gmock.h>

namespace desktop {

namespace {

using testing::HasSubstr;
using testing::StartsWith;

std::variant<ConsoleOptions, NoWindow> read(const QStringList& arguments)
{
    testApplication();
    return consoleOptionsOf(QStringList{QStringLiteral("orvandiag-console")} + arguments);
}

TEST(ConsoleOptions, NothingIsAskedForByAnEmptyCommandLine)
{
    const auto options = std::get<ConsoleOptions>(read({}));
    EXPECT_TRUE(options.site.isEmpty());
    EXPECT_TRUE(options.theme.isEmpty());
    EXPECT_TRUE(options.toolFolder.isEmpty());
    EXPECT_TRUE(options.command.empty());
    EXPECT_FALSE(options.size.has_value());
    EXPECT_FALSE(options.developmentHost);
}

TEST(ConsoleOptions, EveryOptionIsTaken)
{
    const auto options = std::get<ConsoleOptions>(
        read({"--site", "/srv/voice", "--tool-folder", "/srv/tool", "--show=diag_KoCSMgr.txt",
              "--command", "mnuGatherLogFiles", "--theme", "dark", "--size", "1280x760",
              "--screenshot", "a.png", "--development-host"}));
    EXPECT_EQ(QStringLiteral("/srv/voice"), options.site);
    EXPECT_EQ(QStringLiteral("diag_KoCSMgr.txt"), options.node);
    EXPECT_EQ(QStringLiteral("/srv/tool"), options.toolFolder);
    EXPECT_EQ("mnuGatherLogFiles", options.command);
    EXPECT_EQ(QStringLiteral("dark"), options.theme);
    EXPECT_EQ(QSize(1280, 760), options.size);
    EXPECT_EQ(QStringLiteral("a.png"), options.screenshot);
    EXPECT_TRUE(options.developmentHost);
}

TEST(ConsoleOptions, WrongUsageIsOneLineAndStatusTwo)
{
    const struct {
        QStringList arguments;
        const char* says;
    } rows[] = {
        {{"--sight", "x"}, "Unknown option 'sight'"},
        {{"--site"}, "Missing value after '--site'"},
        {{"/srv/voice"}, "/srv/voice stands alone; a site is given with --site"},
        {{"--theme", "pink"}, "--theme takes system, light or dark, not pink"},
        {{"--theme", ""}, "--theme takes system, light or dark, not"},
        {{"--size", "big"}, "--size takes a size such as 1280x760, not big"},
        {{"--size", "0x10"}, "not 0x10"},
        {{"--size", "800x600x2"}, "not 800x600x2"},
        {{"--size", "99999999x1"}, "not 99999999x1"},
        {{"--command", "mnuNone"}, "the tool has no command mnuNone"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.says);
        const auto answer = read(row.arguments);
        const auto* refused = std::get_if<NoWindow>(&answer);
        ASSERT_NE(nullptr, refused);
        EXPECT_EQ(2, refused->status);
        EXPECT_THAT(refused->text, StartsWith("orvandiag-console: "));
        EXPECT_THAT(refused->text, HasSubstr(row.says));
        EXPECT_EQ(refused->text.size() - 1, refused->text.find('\n'));
    }
}

TEST(ConsoleOptions, HelpAndVersionAreTextsThatNeedNoDisplay)
{
    for (const char* option : {"-h", "--help", "-v", "--version"}) {
        SCOPED_TRACE(option);
        const char* const arguments[] = {"orvandiag-console", "--site", "x", option};
        EXPECT_TRUE(windowStart::asksForText(4, arguments));
        const auto answer = read({QString::fromLatin1(option)});
        const auto* text = std::get_if<NoWindow>(&answer);
        ASSERT_NE(nullptr, text);
        EXPECT_EQ(0, text->status);
    }
    const char* const plain[] = {"orvandiag-console", "--site", "help"};
    EXPECT_FALSE(windowStart::asksForText(3, plain));
    EXPECT_FALSE(windowStart::asksForText(0, plain));
    const auto help = read({"--help"});
    for (const char* part : {"--site", "--show", "--command", "--theme", "--size", "--screenshot"})
        EXPECT_THAT(std::get<NoWindow>(help).text, HasSubstr(part));
    EXPECT_THAT(std::get<NoWindow>(help).text, testing::Not(HasSubstr("development")))
        << "which is for those who work on the program";
}

} // namespace

} // namespace desktop
