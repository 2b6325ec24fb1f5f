#include "hosts/common/filters/highlights.h"
#include "hosts/viewer/support/test_logs.h"
#include "runtime/run_time_error.h"
#include "support/windows/test_application.h"

#include <QApplication>
#include <QElapsedTimer>

#include <gmock/gmock.h>

namespace viewer {
namespace {

class Find : public testing::Test {
protected:
    Find() { testApplication(); }

    void open(const QStringList& paths)
    {
        document.open(paths);
        ASSERT_TRUE(waitForRows(document));
    }

    /// The places of the hits of a text.
    std::vector<std::size_t> found(const TextCondition& text)
    {
        document.find(text);
        EXPECT_TRUE(waitUntil([&] { return document.hits() && document.hits()->complete; }));
        std::vector<std::size_t> places;
        for (std::size_t hit = 0; hit < document.hits()->rows.count(); ++hit)
            places.push_back(document.hits()->rows.at(hit));
        return places;
    }

    /// The place that the next row of a level is found at.
    std::optional<std::size_t> next(std::size_t place, Direction direction, std::int8_t level)
    {
        std::optional<std::optional<std::size_t>> answer;
        const auto heard =
            QObject::connect(&document, &Document::levelFound,
                             [&](std::optional<std::size_t> found) { answer = found; });
        document.findLevel(place, direction, level);
        EXPECT_TRUE(waitUntil([&] { return answer.has_value(); }));
        QObject::disconnect(heard);
        return *answer;
    }

    TestLogs logs;
    Document document;
};

using Places = std::vector<std::size_t>;

TEST_F(Find, FindsTextsAndExpressionsInTheRowsOnShow)
{
    open({logs.write("KoCSMgr", rawLine(1000, "A", 3, "Call begins") + rawLine(2000, "B", 3, "x") +
                                    "  a call's line\r\n" + rawLine(3000, "A", 0, "ends at 12"))});
    EXPECT_EQ((Places{0, 2}), found({"call", false, false, false}));
    EXPECT_EQ((Places{0}), found({"Call", false, true, false}));
    EXPECT_EQ((Places{3}), found({"ends? at [0-9]+", true, false, false}));
    EXPECT_EQ(Places{}, found({"nothing of it", false, false, false}));
    document.find({});
    EXPECT_EQ(nullptr, document.hits());
}

TEST_F(Find, RefusesAnExpressionThatIsNone)
{
    EXPECT_THROW(document.find({"(", true, false, false}), RunTimeError);
}

TEST_F(Find, FindsAgainInWhatIsShownNext)
{
    open({logs.writeRows("KoCSMgr", 1000, 0, 10)});
    EXPECT_EQ(11u, found({"row 99", false, false, false}).size()) << "row 99 and 990 to 999";
    RowFilter filter;
    filter.showOnly(timeline::Column::level, "0");
    document.setFilter(filter);
    ASSERT_TRUE(waitForRows(document));
    ASSERT_TRUE(waitUntil([&] { return document.hits() && document.hits()->complete; }));
    EXPECT_EQ(0u, document.hits()->rows.count()) << "980 and 1000 would be the next errors";
    EXPECT_EQ(50u, document.hits()->rows.size());
}

TEST_F(Find, GoesToErrorsInBothDirections)
{
    open({logs.writeRows("KoCSMgr", 5000, 0, 10)});
    EXPECT_EQ(20u, next(0, Direction::down, 0));
    EXPECT_EQ(4980u, next(4999, Direction::up, 0));
    EXPECT_EQ(0u, next(20, Direction::up, 0));
    EXPECT_EQ(std::nullopt, next(0, Direction::up, 0));
    EXPECT_EQ(std::nullopt, next(4980, Direction::down, 0));
    EXPECT_EQ(std::nullopt, next(0, Direction::down, 1)) << "there are no warnings";
}

TEST(Highlights, MarksTextsInColoursOfTheirOwn)
{
    Highlights highlights;
    EXPECT_TRUE(highlights.keep({"call", false, false, false}));
    EXPECT_FALSE(highlights.keep({"call", false, false, false})) << "it is kept";
    EXPECT_TRUE(highlights.keep({"[0-9]+", true, false, false}));
    highlights.setFound({"Call 1", false, true, false});
    const auto marks = highlights.marksIn("Call 12, call 3");
    ASSERT_EQ(5u, marks.size());
    EXPECT_EQ(0, marks[0].begin);
    EXPECT_EQ(9, marks[1].begin);
    EXPECT_EQ(0u, marks[1].colour);
    EXPECT_EQ(5, marks[2].begin);
    EXPECT_EQ(2, marks[2].length);
    EXPECT_EQ(1u, marks[2].colour);
    EXPECT_EQ(Highlights::most, marks[4].colour);
    EXPECT_EQ(6, marks[4].length);
}

/// The marked parts of a text, for an expression.
QStringList marked(const QString& expression, const QString& text, LineEdges ends = {})
{
    Highlights highlights;
    highlights.setFound({expression, true, false, false});
    QStringList parts;
    for (const Highlights::Mark& mark : highlights.marksIn(text, ends))
        parts << text.mid(mark.begin, mark.length);
    return parts;
}

TEST(Highlights, MarksWhatTheSearchFinds)
{
    EXPECT_EQ(QStringList({"ab", "AB"}), marked("(?-s)a+b", "ab AB"));
    EXPECT_EQ(QStringList({"x12"}), marked("\\pL[[:digit:]]+", "7 x12"));
    EXPECT_EQ(QStringList({"yy", "y"}), marked("y*", QString::fromUtf8("é😀yyé😀y")));
    EXPECT_EQ(QStringList(), marked("(?=a)ab", "ab")) << "the search takes no such expression";
}

TEST(Highlights, KnowsWhereTheLineBeginsAndEnds)
{
    EXPECT_EQ(QStringList({"a"}), marked("^a", "a a"));
    EXPECT_EQ(QStringList(), marked("^a", "a a", {.begins = false}));
    EXPECT_EQ(QStringList({"a"}), marked("a$", "a a", {.begins = false}));
    EXPECT_EQ(QStringList(), marked("a$", "a a", {.begins = false, .ends = false}));
    EXPECT_EQ(QStringList({"a", "a"}), marked("\\ba\\b", "a a", {.begins = false, .ends = false}));
}

TEST(Highlights, TakeATimeInProportionToTheText)
{
    const QString longText(2'000'000, QLatin1Char('a'));
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(QStringList(), marked("(a+)+b", longText));
    EXPECT_EQ(QStringList({"aab"}), marked("(a+)+b", "aab"));
    EXPECT_LT(clock.elapsed(), 2000);
}

TEST(Highlights, AColourThatIsLetGoIsTakenAgain)
{
    Highlights highlights;
    for (std::size_t at = 0; at < Highlights::most; ++at)
        EXPECT_TRUE(highlights.keep({QString::number(at), false, false, false}));
    EXPECT_FALSE(highlights.keep({"one more", false, false, false}));
    highlights.letGo(2);
    EXPECT_TRUE(highlights.keep({"one more", false, false, false}));
    EXPECT_EQ(2u, highlights.kept().back().colour);
    EXPECT_FALSE(highlights.keep({})) << "there is no text";
}

} // namespace
} // namespace viewer
