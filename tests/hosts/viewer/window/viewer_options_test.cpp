#include "hosts/viewer/window/viewer_options.h"

#include "support/windows/test_application.h"

#include <gmock/gmock.h>

namespace viewer {
namespace {

using testing::HasSubstr;

std::variant<ViewerOptions, NoWindow> read(const QStringList& arguments)
{
    testApplication();
    return viewerOptionsOf(QStringList{QStringLiteral("orvandiag-viewer")} + arguments);
}

TEST(ViewerOptions, TakesTheCommandThatTheToolStartsItWith)
{
    const auto options = std::get<ViewerOptions>(read({"-db", "/srv/a b/VOICE01_WPN_1.mdb"}));
    EXPECT_EQ(QStringList({"/srv/a b/VOICE01_WPN_1.mdb"}), options.sources);
}

TEST(ViewerOptions, TakesDatabasesAndSources)
{
    const auto options = std::get<ViewerOptions>(
        read({"a.txt", "-db", "x.mdb", "--theme", "dark", "--size", "900x600", "-", "logs"}));
    EXPECT_EQ(QStringList({"x.mdb", "a.txt", "-", "logs"}), options.sources);
    EXPECT_EQ("dark", options.theme);
    EXPECT_EQ(QSize(900, 600), options.size);
    EXPECT_FALSE(options.fresh);
    EXPECT_THAT(std::get<ViewerOptions>(read({})).sources, testing::IsEmpty());
    EXPECT_TRUE(std::get<ViewerOptions>(read({"--fresh", "a.txt"})).fresh);
}

TEST(ViewerOptions, WrongUsageIsOneLineAndStatusTwo)
{
    const struct {
        QStringList arguments;
        const char* says;
    } rows[] = {
        {{"-dbx", "x"}, "Unknown option 'dbx'"},
        {{"-db"}, "Missing value after '-db'"},
        {{"-db", ""}, "an empty name leads to no source"},
        {{"--theme", "pink"}, "--theme takes system, light or dark, not pink"},
        {{"--size", "big"}, "--size takes a size such as 1280x760, not big"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.says);
        const auto answer = read(row.arguments);
        const auto* refused = std::get_if<NoWindow>(&answer);
        ASSERT_NE(nullptr, refused);
        EXPECT_EQ(2, refused->status);
        EXPECT_THAT(refused->text, testing::StartsWith("orvandiag-viewer: "));
        EXPECT_THAT(refused->text, HasSubstr(row.says));
        EXPECT_EQ(refused->text.size() - 1, refused->text.find('\n'));
    }
}

TEST(ViewerOptions, HelpAndVersionAreTexts)
{
    for (const char* option : {"-h", "--help", "-v", "--version"}) {
        SCOPED_TRACE(option);
        const auto answer = read({QString::fromLatin1(option)});
        const auto* text = std::get_if<NoWindow>(&answer);
        ASSERT_NE(nullptr, text);
        EXPECT_EQ(0, text->status);
        EXPECT_THAT(text->text, testing::AnyOf(HasSubstr("orvandiag-viewer "), HasSubstr("--db")));
    }
}

} // namespace
} // namespace viewer
