#include "backends/site/command_line.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using Texts = std::vector<std::string>;

TEST(SplitArguments, FollowsThePlatformsQuotingRules)
{
    struct Case {
        const char* because;
        const char* text;
        Texts expected;
    };
    const Case cases[] = {
        {"nothing", "", {}},
        {"blanks and tabs", " a\t b ", {"a", "b"}},
        {"quotation marks hold together", R"("a b" c)", {"a b", "c"}},
        {"also within an argument", R"(a" "b)", {"a b"}},
        {"an empty argument", R"("" a)", {"", "a"}},
        {"a backslash is a backslash", R"(C:\a\ b\)", {R"(C:\a\)", R"(b\)"}},
        {"two before a mark are one", R"("a\\" b)", {R"(a\)", "b"}},
        {"one makes the mark a letter", R"(a\"b)", {R"(a"b)"}},
        {"three are one and a letter", R"(a\\\"b)", {R"(a\"b)"}},
        {"two marks within marks are one", R"("a""b")", {R"(a"b)"}},
        {"marks need not be closed", R"("a b)", {"a b"}},
        {"nothing is special to a shell",
         "$HOME `x` ; | > * 'a b'",
         {"$HOME", "`x`", ";", "|", ">", "*", "'a", "b'"}},
        {"the cabinet maker's", R"(/f "C:\My Logs\ZMK.DDF")", {"/f", R"(C:\My Logs\ZMK.DDF)"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, splitArguments(c.text));
    }
}

TEST(ParseCommandLine, AQuotedProgramHasOneReading)
{
    const auto line = parseCommandLine(R"( "C:\My Tools\cabmaker" /f "a b")");

    ASSERT_EQ(1u, line.readings.size());
    EXPECT_EQ(R"(C:\My Tools\cabmaker)", line.readings[0].program);
    EXPECT_THAT(line.readings[0].arguments, ElementsAre("/f", "a b"));

    const auto marks = parseCommandLine(R"("/a ""b""/cabmaker" "c")");
    ASSERT_EQ(1u, marks.readings.size());
    EXPECT_EQ(R"(/a "b"/cabmaker)", marks.readings[0].program);
    EXPECT_THAT(marks.readings[0].arguments, ElementsAre("c"));
}

TEST(ParseCommandLine, AProgramWithoutQuotesMayEndAtAnyBlank)
{
    const auto line = parseCommandLine(R"(C:\My Tools\v -db "a b")");

    ASSERT_EQ(5u, line.readings.size());
    EXPECT_EQ(R"(C:\My)", line.readings[0].program);
    EXPECT_EQ(R"(C:\My Tools\v)", line.readings[1].program);
    EXPECT_THAT(line.readings[1].arguments, ElementsAre("-db", "a b"));
    EXPECT_THAT(line.readings[4].arguments, testing::IsEmpty());
}

TEST(ParseCommandLine, HasNoReadingWithoutAProgram)
{
    for (const char* text : {"", "  \t ", "\"\"", "\"", "\"\" a"})
        EXPECT_TRUE(parseCommandLine(text).readings.empty()) << text;
}

} // namespace
