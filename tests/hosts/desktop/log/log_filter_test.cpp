#include "hosts/desktop/log/log_filter.h"

#include "console/list_view.h"
#include "hosts/common/filters/row_filter.h"
#include "hosts/desktop/log/bookmarks.h"
#include "hosts/desktop/log/list_model.h"
#include "hosts/desktop/log/time_search.h"
#include "hosts/desktop/support/test_window.h"
#include "runtime/run_time_error.h"

#include <gmock/gmock.h>

namespace desktop {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Lines {
    Lines()
    {
        declared.columns.resize(7);
        add("08:00:00:000", "Conv", "CallFlow", "0", "Call answered");
        add("08:00:01:000", "Mwi", "MsgWaiting", "5", "Lamp on for M\xfcller");
        add("23:59:59:999", "Conv", "CallFlow", "2", "Call released");
        add("00:00:00:500", "Mwi", "MsgWaiting", "2", "Lamp off");
        add("09:30:00:000", "", "", "0", "*** lines lost");
    }

    void add(const char* time, const char* source, const char* component, const char* level,
             const char* trace)
    {
        ListItem row = list.addItem(++count, trace);
        int column = 0;
        for (const char* text : {"000001", time, source, "1", component, level, trace})
            row.addSubItem(++column, text);
    }

    std::vector<std::uint32_t> positions(const LogFilter& filter) { return filter.positions(list); }

    ListViewDefinition declared;
    ListView list{declared};
    int count = 0;
};

TextMatcher text(const char16_t* wanted)
{
    return {windows1252(), wanted};
}

TEST(LogFilter, FindsTheTextOfALineThatItsColumnsDoNotShow)
{
    Lines lines;
    lines.add("", "", "", "0", "");
    lines.list.item(6).setNote("2005-10-08 22:23:07,Data,12,disk full");
    LogFilter filter;
    filter.text = text(u"Disk");
    EXPECT_THAT(lines.positions(filter), ElementsAre(6u));
    EXPECT_TRUE(rowHolds(lines.list, 6, filter.text));
    EXPECT_FALSE(rowHolds(lines.list, 5, filter.text));
}

TEST(LogFilter, ShowsOrHidesRowsByColumnsAndText)
{
    struct Case {
        const char* because;
        LogFilter filter;
        std::vector<std::uint32_t> expected;
    };
    const Case cases[] = {
        {"no condition shows all", {}, {1, 2, 3, 4, 5}},
        {"one value of a column", {{{5, {"CallFlow"}, false}}, {}, {}, {}, false}, {1, 3}},
        {"hiding a value", {{{5, {"CallFlow"}, true}}, {}, {}, {}, false}, {2, 4, 5}},
        {"either of two values", {{{6, {"0", "5"}, false}}, {}, {}, {}, false}, {1, 2, 5}},
        {"hiding two values", {{{6, {"0", "5"}, true}}, {}, {}, {}, false}, {3, 4}},
        {"columns hold together",
         {{{5, {"CallFlow"}, false}, {6, {"2"}, false}}, {}, {}, {}, false},
         {3}},
        {"a condition without values lets all pass",
         {{{5, {}, true}}, {}, {}, {}, false},
         {1, 2, 3, 4, 5}},
        {"an empty value is a value", {{{5, {""}, false}}, {}, {}, {}, false}, {5}},
        {"a text, in either case", {{}, {}, {}, text(u"LAMP"), false}, {2, 4}},
        {"a text in any column", {{}, {}, {}, text(u"msgwait"), false}, {2, 4}},
        {"hiding a text", {{}, {}, {}, text(u"lamp"), true}, {1, 3, 5}},
        {"a letter beyond ASCII, in either case", {{}, {}, {}, text(u"MÜLLER"), false}, {2}},
        {"a character that the code page lacks", {{}, {}, {}, text(u"電"), false}, {}},
        {"the row's number is not searched", {{}, {}, {}, text(u"000001"), false}, {}},
    };
    Lines lines;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, lines.positions(c.filter));
    }
}

TEST(LogFilter, OffersTheValuesOfAColumnWithThoseOfMostRowsFirst)
{
    Lines lines;
    std::vector<std::string> offered;
    for (const auto& value : valuesOf(lines.list, 5))
        offered.push_back(value.text + " " + std::to_string(value.rows));
    EXPECT_THAT(offered, ElementsAre("CallFlow 2", "MsgWaiting 2", " 1"));
}

TEST(TextMatcher, FindsExpressionsAndMindsTheCase)
{
    const CodePage page = windows1252();
    const auto finds = [&](const TextCondition& condition, std::string_view bytes) {
        return TextMatcher(page, condition).in(bytes);
    };
    EXPECT_TRUE(finds({"gr\u00fc[ns]", true, false, false}, "GR\xdcN"));
    EXPECT_FALSE(finds({"gr\u00fc[ns]", true, true, false}, "GR\xdcN"));
    EXPECT_TRUE(finds({"a.c", true, false, false}, "abc"));
    EXPECT_FALSE(finds({"a.c", false, false, false}, "abc")) << "a plain text";
    EXPECT_TRUE(finds({"Call", false, true, false}, "a Call"));
    EXPECT_FALSE(finds({"Call", false, true, false}, "a call"));
    EXPECT_TRUE(TextMatcher(page, TextCondition{"", true, false, false}).empty());
    EXPECT_THROW(TextMatcher(page, TextCondition{"(", true, false, false}), RunTimeError);
}

TEST(TextMatcher, FindsNothingForNothing)
{
    EXPECT_FALSE(TextMatcher().in("abc"));
    EXPECT_FALSE(text(u"").in("abc"));
    EXPECT_FALSE(text(u"abcd").in("abc")) << "longer than the text";
    EXPECT_TRUE(text(u"abc").in("abc"));
    EXPECT_TRUE(text(u"ab").in("aab")) << "a start that does not hold is no end of the search";
}

TEST(TypedTime, TakesTheTimesThatAPersonTypes)
{
    struct Case {
        const char* because;
        const char* typed;
        const char* expected;
    };
    const Case cases[] = {
        {"hours and minutes", "15:23", "15:23:00"},
        {"one digit for the hour", "8:05", "08:05:00"},
        {"seconds", "15:23:07", "15:23:07"},
        {"milliseconds as the log has them", "15:23:07:123", "15:23:07:123"},
        {"milliseconds behind a point", "15:23:07.123", "15:23:07:123"},
        {"afternoon", "3:23 PM", "15:23:00"},
        {"midnight", "12:00 am", "00:00:00"},
        {"blanks around it", "  15:23 ", "15:23:00"},
        {"no time", "soon", nullptr},
        {"nothing", "", nullptr},
        {"a number", "1523", nullptr},
        {"an hour that is none", "25:00", nullptr},
        {"letters behind the point", "15:23:07.x", nullptr},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        const auto time = typedTime(c.typed);
        EXPECT_EQ(c.expected ? std::optional<std::string>(c.expected) : std::nullopt, time);
    }
}

TEST(RowAtTime, GoesToTheNextRowThatReachesATimeAndOnToTheNextDay)
{
    testApplication();
    Lines lines;
    ListModel model(windows1252());
    model.show(lines.list);
    EXPECT_EQ(0, rowAtTime(model, 2, "07:00:00", -1)) << "the first row is later";
    EXPECT_EQ(2, rowAtTime(model, 2, "12:00:00", 0));
    EXPECT_EQ(4, rowAtTime(model, 2, "08:00:00", 0)) << "the day after";
    EXPECT_EQ(0, rowAtTime(model, 2, "08:00:00", 4)) << "and on from the top";
    EXPECT_EQ(3, rowAtTime(model, 2, "23:59:59:9999", 0)) << "it has passed at midnight";
    EXPECT_EQ(3, rowAtTime(model, 2, "23:59:59:9999", 4)) << "no other midnight";
}

TEST(Bookmarks, SurviveAReopeningOfTheLog)
{
    TemporaryFolder folder;
    const QString file = QString::fromStdString(folder / "s.ini");
    const auto timeOfLine = [](int line) {
        return line <= 10 ? QStringLiteral("08:00:%1").arg(line) : QString();
    };
    {
        QSettings settings(file, QSettings::IniFormat);
        Bookmarks marks(settings, "log", timeOfLine);
        marks.toggle(3, "08:00:3");
        marks.toggle(7, "08:00:7");
        marks.toggle(7, "08:00:7");
        marks.toggle(9, "another time");
        marks.toggle(11, "08:00:11");
    }
    QSettings settings(file, QSettings::IniFormat);
    const Bookmarks again(settings, "log", timeOfLine);
    EXPECT_TRUE(again.has(3));
    EXPECT_FALSE(again.has(7)) << "taken away";
    EXPECT_FALSE(again.has(9)) << "the line is another one now";
    EXPECT_FALSE(again.has(11)) << "the log has shrunk";
    EXPECT_EQ(0, Bookmarks(settings, "other", timeOfLine).count());
}

} // namespace

} // namespace desktop
