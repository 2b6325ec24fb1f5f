#include "hosts/viewer/document/document.h"

#include "hosts/viewer/support/test_logs.h"
#include "runtime/run_time_error.h"
#include "support/windows/test_application.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace viewer {
namespace {

class DocumentTest : public testing::Test {
protected:
    DocumentTest()
    {
        testApplication();
        QObject::connect(&document, &Document::failed,
                         [this](const QString& sentence) { failures << sentence; });
    }

    /// The traces on show, from the top.
    QStringList traces()
    {
        QStringList texts;
        for (std::size_t place = 0; place < document.rowCount(); ++place)
            texts << document.row(place).trace;
        return texts;
    }

    TestLogs logs;
    QStringList failures;
    Document document;
};

TEST_F(DocumentTest, ShowsTheRowsOfAllSourcesByTime)
{
    const QString one =
        logs.write("KoCSMgr", rawLine(1000, "A", 3, "first") + rawLine(3000, "A", 3, "third"));
    const QString other = logs.write("KoNotify", rawLine(2000, "B", 1, "second"));
    document.open({one, other});
    ASSERT_TRUE(waitForRows(document));
    EXPECT_EQ(QStringList({"first", "second", "third"}), traces());
    EXPECT_EQ("KoNotify", document.row(1).process);
    EXPECT_EQ(Severity::warning, document.row(1).severity);
    EXPECT_EQ(QStringList({one, other}), document.paths());
    EXPECT_THAT(failures, testing::IsEmpty());
}

TEST_F(DocumentTest, TellsOfASourceThatCanNotBeReadAndReadsTheOthers)
{
    const QString one = logs.write("KoCSMgr", rawLine(1000, "A", 3, "there"));
    document.open({logs.folder() + "/none.txt", one});
    ASSERT_TRUE(waitForRows(document));
    EXPECT_EQ(QStringList({"there"}), traces());
    ASSERT_EQ(1, failures.size());
    EXPECT_TRUE(failures.front().contains("none.txt")) << failures.front().toStdString();
    EXPECT_EQ(QStringList({one}), document.paths());
}

TEST_F(DocumentTest, PutsRowsOfASourceThatIsOpenedLaterInTheirPlaces)
{
    document.open(
        {logs.write("KoCSMgr", rawLine(1000, "A", 3, "first") + rawLine(3000, "A", 3, "third"))});
    ASSERT_TRUE(waitForRows(document));
    const timeline::IndexRow third = document.indexRow(1);
    document.open({logs.write("KoNotify", rawLine(2000, "B", 1, "second"))});
    ASSERT_TRUE(waitForRows(document));
    EXPECT_EQ(QStringList({"first", "second", "third"}), traces());
    EXPECT_EQ(2u, document.placeOf(third));
    EXPECT_EQ(1u, document.placeFrom(timeline::dayOf(2025, 2, 20) + 1001));
}

TEST_F(DocumentTest, HasEveryOfManyRowsAtItsPlace)
{
    document.open(
        {logs.writeRows("KoCSMgr", 30'000, 0, 20), logs.writeRows("KoNotify", 30'000, 10, 20)});
    ASSERT_TRUE(waitForRows(document));
    ASSERT_EQ(60'000u, document.rowCount());
    for (const std::size_t place : {0, 1, 777, 30'001, 59'999, 5, 58'000}) {
        EXPECT_EQ(QString("row %1").arg(place / 2), document.row(place).trace);
        EXPECT_EQ(place % 2 == 0 ? "KoCSMgr" : "KoNotify", document.row(place).process);
    }
}

TEST_F(DocumentTest, KeepsLinesWithoutAFormBehindTheirRow)
{
    const QString one = logs.write("KoCSMgr", rawLine(1000, "A", 3, "head") + "  its line\r\n" +
                                                  rawLine(2000, "A", 3, "next"));
    const QString other = logs.write("KoNotify", rawLine(1000, "B", 3, "of the same time"));
    document.open({one, other});
    ASSERT_TRUE(waitForRows(document));
    EXPECT_EQ(QStringList({"head", "  its line", "of the same time", "next"}), traces());
    EXPECT_TRUE(document.row(1).belongs);
    EXPECT_FALSE(document.row(2).belongs);
}

TEST_F(DocumentTest, ShowsASignForWhatWouldActOnAScreen)
{
    document.open(
        {logs.write("KoCSMgr", rawLine(1000, "A", 3, "bell\x07 escape\x1b[31m tab\there"))});
    ASSERT_TRUE(waitForRows(document));
    EXPECT_EQ(QString::fromUtf8("bell␇ escape␛[31m tab here"), document.row(0).trace);
    EXPECT_EQ(QString("00:00:01:000,Conv,12,A,3,bell\x07 escape\x1b[31m tab\there"),
              document.wholeLine(0));
}

TEST_F(DocumentTest, KeepsTheBeginningOfALongText)
{
    const std::string longText = std::string(1'000'000, 'x');
    document.open({logs.write("KoCSMgr", rawLine(1000, "A", 3, longText) +
                                             rawLine(2000, std::string(300, 'C'), 3, "short"))});
    ASSERT_TRUE(waitForRows(document));
    EXPECT_EQ(QString(longestShownTrace - 1, QLatin1Char('x')) + QChar(0x2026),
              document.row(0).trace);
    EXPECT_TRUE(document.row(0).cut);
    EXPECT_EQ(QString::fromStdString(longText), document.wholeTrace(0));
    EXPECT_EQ(QString::fromStdString(longText), document.wholeRow(0).trace);
    EXPECT_EQ(longestShownField, document.row(1).component.size());
    EXPECT_EQ(300, document.wholeRow(1).component.size());
    EXPECT_FALSE(document.wholeRow(1).cut);
}

TEST(Harmless, PutsASignInThePlaceOfEachCharacterThatActs)
{
    const struct {
        const char* because;
        QString text;
        QString shown;
    } rows[] = {
        {"letters stay", "abc äöü", "abc äöü"},
        {"a line's end is one sign", "a\r\nb\nc", QString::fromUtf8("a↵b↵c")},
        {"a zero ends no text", QString(QChar(0)) + "a", QString::fromUtf8("␀a")},
        {"nothing turns the direction", QString(QChar(0x202e)) + "a", QString(QChar(0xfffd)) + "a"},
        {"a control of the upper half is none", QString(QChar(0x9b)), QString(QChar(0xfffd))},
        {"deleting is shown", QString(QChar(0x7f)), QString(QChar(0x2421))},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.because);
        EXPECT_EQ(row.shown, harmless(row.text));
    }
}

TEST_F(DocumentTest, ShowsTheRowsThatPassAFilterAndAllAgain)
{
    document.open(
        {logs.writeRows("KoCSMgr", 40'000, 0, 10), logs.writeRows("KoNotify", 10, 5, 10)});
    ASSERT_TRUE(waitForRows(document));
    RowFilter filter;
    filter.columns.push_back({timeline::Column::level, {"0"}, false});
    document.setFilter(filter);
    ASSERT_TRUE(waitForRows(document));
    ASSERT_EQ(2001u, document.rowCount());
    EXPECT_EQ(40'010u, document.allRows());
    EXPECT_EQ("row 0", document.row(1).trace);
    EXPECT_EQ("row 39980", document.row(2000).trace);
    document.setFilter({});
    ASSERT_TRUE(waitForRows(document));
    EXPECT_EQ(40'010u, document.rowCount());
}

TEST_F(DocumentTest, KeepsItsFilterWhenAnotherMakesNoSense)
{
    RowFilter filter;
    filter.columns.push_back({timeline::Column::level, {"3"}, false});
    document.setFilter(filter);
    filter.columns[0].values = {"three"};
    EXPECT_THROW(document.setFilter(filter), RunTimeError);
    EXPECT_EQ("3", document.filter().columns[0].values[0]);
}

TEST_F(DocumentTest, CountsTheValuesOfAllFacetsOnceTheirNamesAreKnown)
{
    document.open({logs.writeRows("KoCSMgr", 40, 0, 10), logs.writeRows("KoNotify", 20, 5, 10)});
    ASSERT_TRUE(waitForRows(document));
    ASSERT_TRUE(waitUntil([&] { return document.counts() && document.counts()->facets[0]; }));
    const auto& processes = *document.counts()->facets[0];
    ASSERT_EQ(2u, processes.size());
    EXPECT_EQ("KoCSMgr", processes[0].value);
    EXPECT_EQ(40u, processes[0].rows);
    EXPECT_EQ("Conv", document.counts()->facets[2]->front().value);
}

TEST_F(DocumentTest, EndsAtOnceWhenItGoesWhileItReads)
{
    auto reading = std::make_unique<Document>();
    reading->open({logs.writeRows("KoCSMgr", 80'000, 0, 10)});
    reading.reset();
    settle();
    EXPECT_THAT(failures, testing::IsEmpty());
}

TEST_F(DocumentTest, ReadsNoMoreLongLinesThanAreAskedFor)
{
    std::string lines;
    for (int row = 0; row < 40; ++row)
        lines += rawLine(1000 + row, "A", 3, std::to_string(row) + std::string(300'000, 'x'));
    const QString log = logs.write("KoCSMgr", lines);
    document.open({log});
    ASSERT_TRUE(waitForRows(document));
    EXPECT_TRUE(document.row(0).trace.startsWith("0x"));
    EXPECT_TRUE(document.row(30).trace.startsWith("30x")) << "those between are passed over";
    std::filesystem::resize_file(log.toStdString(), 0);
    EXPECT_TRUE(document.row(1).trace.startsWith("1x")) << "it was read with the first one";
    EXPECT_FALSE(document.row(20).trace.startsWith("20x")) << document.row(20).trace.toStdString();
    EXPECT_FALSE(document.row(39).trace.startsWith("39x"));
}

} // namespace
} // namespace viewer
