#include "hosts/viewer/document/log_following.h"

#include "hosts/viewer/support/test_logs.h"
#include "support/windows/test_application.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>

namespace viewer {
namespace {

/// A document that follows logs to which a test adds lines.
class FollowedDocument : public testing::Test {
protected:
    FollowedDocument()
    {
        testApplication();
        QObject::connect(&document, &Document::noted,
                         [this](const QString& sentence) { notes << sentence; });
        QObject::connect(&document, &Document::viewChanged, [this] { ++views; });
    }

    static void append(const QString& log, const std::string& bytes)
    {
        std::ofstream(log.toStdString(), std::ios::app | std::ios::binary) << bytes;
    }

    void follow(const QStringList& paths)
    {
        document.open(paths);
        ASSERT_TRUE(waitForRows(document));
        document.follow(true);
        views = 0;
    }

    QStringList traces()
    {
        QStringList texts;
        for (std::size_t place = 0; place < document.rowCount(); ++place)
            texts << document.row(place).trace;
        return texts;
    }

    bool waitForTraces(const QStringList& expected)
    {
        return waitUntil([&] { return traces() == expected; }, 5'000);
    }

    TestLogs logs;
    QStringList notes;
    int views = 0; ///< that came in the place of others
    Document document;
};

TEST_F(FollowedDocument, ShowsTheRowsThatComeBehindTheOthers)
{
    const QString log = logs.write("KoCSMgr", rawLine(1000, "A", 3, "first"));
    follow({log});
    append(log, rawLine(2000, "A", 3, "second"));
    EXPECT_TRUE(waitForTraces({"first", "second"}));
    append(log, rawLine(3000, "A", 3, "third") + "  its line\r\n");
    EXPECT_TRUE(waitForTraces({"first", "second", "third", "  its line"}));
    EXPECT_EQ(0, views) << "rows behind the last one change nothing else";
}

TEST_F(FollowedDocument, PutsRowsOfALogThatLagsInTheirPlaces)
{
    const QString early = logs.write("KoCSMgr", rawLine(1000, "A", 3, "one"));
    const QString late = logs.write("KoNotify", rawLine(5500, "A", 3, "five"));
    follow({early, late});
    append(early, rawLine(3000, "A", 3, "three"));
    EXPECT_TRUE(waitForTraces({"one", "three", "five"}));
    append(late, rawLine(5490, "A", 3, "four"));
    EXPECT_TRUE(waitForTraces({"one", "three", "four", "five"}))
        << traces().join(", ").toStdString();
}

TEST_F(FollowedDocument, WaitsForTheEndOfALine)
{
    const std::string line = rawLine(2000, "A", 3, "whole");
    const QString log = logs.write("KoCSMgr", rawLine(1000, "A", 3, "first") + line.substr(0, 20));
    follow({log});
    ASSERT_EQ(2u, document.rowCount()) << "what stands there is shown";
    append(log, line.substr(20));
    EXPECT_TRUE(waitForTraces({"first", "whole"}));
}

TEST_F(FollowedDocument, ReadsALogThatWasCutOffFromItsBeginning)
{
    const QString log = logs.writeRows("KoCSMgr", 500, 0, 10);
    const QString other = logs.write("KoNotify", rawLine(2000, "A", 3, "other"));
    follow({log, other});
    std::filesystem::resize_file(log.toStdString(), 0);
    append(log, rawLine(3000, "A", 3, "anew"));
    EXPECT_TRUE(waitForTraces({"other", "anew"})) << traces().join(", ").toStdString();
    EXPECT_THAT(notes.join(' ').toStdString(), testing::HasSubstr("cut off"));
    append(log, rawLine(4000, "A", 3, "and on"));
    EXPECT_TRUE(waitForTraces({"other", "anew", "and on"}));
}

TEST_F(FollowedDocument, KeepsTheRowsOfALogThatWasGivenAnotherName)
{
    const QString log = logs.write("KoCSMgr", rawLine(1000, "A", 3, "old"));
    follow({log});
    append(log, rawLine(2000, "A", 3, "last of it"));
    std::filesystem::rename(log.toStdString(), log.toStdString() + ".1");
    EXPECT_TRUE(waitUntil([&] { return notes.join(' ').contains("is gone"); }));
    append(log, rawLine(3000, "B", 3, "new"));
    EXPECT_TRUE(waitForTraces({"old", "last of it", "new"})) << traces().join(", ").toStdString();
    append(log, rawLine(4000, "B", 3, "newer"));
    EXPECT_TRUE(waitForTraces({"old", "last of it", "new", "newer"}));
    // What is opened besides begins another following of the same logs.
    document.open({logs.write("KoNotify", rawLine(500, "A", 3, "other"))});
    ASSERT_TRUE(waitForRows(document));
    append(log, rawLine(5000, "B", 3, "newest"));
    EXPECT_TRUE(waitForTraces({"other", "old", "last of it", "new", "newer", "newest"}));
}

TEST_F(FollowedDocument, TakesALogThatTheProcessBegins)
{
    const QString log = logs.write("KoCSMgr", rawLine(1000, "A", 3, "old"));
    follow({log});
    logs.files().write("diag_KoCSMgr_20250220_000002.txt", rawLine(2000, "A", 3, "of the next"));
    EXPECT_TRUE(waitForTraces({"old", "of the next"}));
    EXPECT_THAT(notes.join(' ').toStdString(), testing::HasSubstr("is a new log"));
}

TEST_F(FollowedDocument, ShowsNothingMoreOnceItNoLongerFollows)
{
    const QString log = logs.write("KoCSMgr", rawLine(1000, "A", 3, "first"));
    follow({log});
    append(log, rawLine(2000, "A", 3, "second"));
    ASSERT_TRUE(waitForTraces({"first", "second"}));
    document.follow(false);
    append(log, rawLine(3000, "A", 3, "third"));
    EXPECT_FALSE(waitUntil([&] { return document.rowCount() != 2; }, 400));
    document.follow(true);
    EXPECT_TRUE(waitForTraces({"first", "second", "third"}));
}

TEST_F(FollowedDocument, RefusesWhatDoesNotGrow)
{
    int refused = 0;
    QObject::connect(&document, &Document::followRefused, [&] { ++refused; });
    follow({logs.writeEvents()});
    EXPECT_TRUE(waitUntil([&] { return refused == 1; }));
    EXPECT_FALSE(document.follows());
    document.follow(true);
    EXPECT_TRUE(waitUntil([&] { return refused == 2; })) << "each time it is asked to";
    EXPECT_FALSE(document.follows());
}

TEST_F(FollowedDocument, TellsThatWhatIsNoLogIsNotFollowed)
{
    int inPart = 0;
    QObject::connect(&document, &Document::followedInPart, [&] { ++inPart; });
    follow({logs.writeEvents(), logs.writeRows("KoCSMgr", 3, 0, 10)});
    EXPECT_TRUE(waitUntil([&] { return inPart == 1; }));
    EXPECT_TRUE(document.follows());
}

TEST_F(FollowedDocument, ARowWhoseNewLineHasTheTextPassesTheFilter)
{
    const QString log = logs.write("KoCSMgr", rawLine(1000, "A", 3, "plain") +
                                                  rawLine(2000, "A", 0, "head") + "  a line\r\n");
    follow({log});
    RowFilter filter;
    filter.texts.push_back({"needle", false, false, false});
    document.setFilter(filter);
    ASSERT_TRUE(waitForRows(document));
    EXPECT_EQ(QStringList(), traces());
    append(log, "  the needle\r\n" + rawLine(3000, "A", 3, "plain"));
    EXPECT_TRUE(waitForTraces({"head", "  a line", "  the needle"}));
    EXPECT_TRUE(waitUntil([&] {
        const RowCounts* counts = document.counts();
        if (counts == nullptr || !counts->facets[1] || counts->facets[1]->empty()) return false;
        return counts->facets[1]->front().rows == 1;
    }));
}

/// What two documents show, and counted.
void expectSame(Document& one, Document& other)
{
    ASSERT_EQ(other.rowCount(), one.rowCount());
    for (std::size_t place = 0; place < one.rowCount(); ++place) {
        ASSERT_EQ(other.row(place).trace, one.row(place).trace) << place;
        ASSERT_EQ(other.row(place).file, one.row(place).file) << place;
    }
    for (std::size_t facet = 0; facet < facetColumns.size(); ++facet) {
        const auto& expected = *other.counts()->facets[facet];
        const auto& counted = *one.counts()->facets[facet];
        ASSERT_EQ(expected.size(), counted.size()) << facet;
        for (std::size_t at = 0; at < expected.size(); ++at) {
            EXPECT_EQ(expected[at].value, counted[at].value);
            EXPECT_EQ(expected[at].rows, counted[at].rows) << expected[at].value;
        }
    }
    std::uint64_t expected = 0;
    std::uint64_t counted = 0;
    for (const auto& bucket : other.counts()->histogram->buckets()) expected += bucket.rows;
    for (const auto& bucket : one.counts()->histogram->buckets()) counted += bucket.rows;
    EXPECT_EQ(expected, counted);
    ASSERT_EQ(other.hits() == nullptr, one.hits() == nullptr);
    if (one.hits() == nullptr) return;
    EXPECT_EQ(other.hits()->rows.count(), one.hits()->rows.count());
    for (std::size_t place = 0; place < one.rowCount(); ++place)
        ASSERT_EQ(other.hits()->rows.has(place), one.hits()->rows.has(place)) << place;
}

bool isCounted(Document& document, bool finds)
{
    return waitForRows(document) && waitUntil([&] {
               return document.counts() && document.counts()->facets[0] &&
                      (!finds || (document.hits() && document.hits()->complete));
           });
}

/// Logs grow in any order, with clocks that go back and lines that belong to a row: whatever was
/// reached bit by bit is what opening it all at once gives.
TEST_F(FollowedDocument, ReachesBitByBitWhatOpeningAllGives)
{
    RowFilter texts;
    texts.texts.push_back({"needle", false, false, false});
    RowFilter lacking;
    lacking.texts.push_back({"needle", false, false, true});
    lacking.columns.push_back({timeline::Column::component, {"B"}, false});
    RowFilter level;
    level.columns.push_back({timeline::Column::level, {"0", "1"}, false});
    std::mt19937 random(15);
    const auto upTo = [&](int limit) {
        return std::uniform_int_distribution<int>(0, limit - 1)(random);
    };
    for (const RowFilter& filter : {RowFilter(), texts, lacking, level}) {
        TestLogs grown;
        QStringList paths;
        std::vector<int> clocks(3, 1000);
        for (const char* process : {"KoCSMgr", "KoNotify", "KoTskSvr"})
            paths << grown.write(process,
                                 rawLine(1000, "A", 3, "first of " + std::string(process)));
        Document followed;
        followed.open(paths);
        ASSERT_TRUE(isCounted(followed, false));
        followed.setFilter(filter);
        followed.find({"1", false, false, false});
        ASSERT_TRUE(waitForRows(followed));
        followed.follow(true);
        std::size_t lines = 3;
        for (int round = 0; round < 12; ++round) {
            const int log = upTo(3);
            std::string bytes;
            for (int line = upTo(8); line >= 0; --line, ++lines) {
                if (upTo(4) == 0) {
                    bytes += upTo(3) == 0 ? "  needle\r\n" : "  a line\r\n";
                    continue;
                }
                clocks[log] = std::max(0, clocks[log] + upTo(40) - 8);
                bytes += rawLine(clocks[log], upTo(2) == 0 ? "A" : "B", upTo(4),
                                 (upTo(5) == 0 ? "needle " : "text ") + std::to_string(lines));
            }
            append(paths[log], bytes);
            ASSERT_TRUE(waitUntil([&] { return followed.allRows() == lines; }, 5'000));
        }
        Document opened;
        opened.open(paths);
        ASSERT_TRUE(waitForRows(opened));
        opened.setFilter(filter);
        opened.find({"1", false, false, false});
        ASSERT_TRUE(isCounted(opened, true));
        ASSERT_TRUE(isCounted(followed, true));
        expectSame(followed, opened);
    }
}

} // namespace
} // namespace viewer
