#include "hosts/viewer/session/session.h"
#include "hosts/viewer/session/session_store.h"

#include "support/temporary_folder.h"

#include <QFile>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace viewer {
namespace {

std::vector<ColumnPlace> someColumns()
{
    std::vector<ColumnPlace> columns;
    for (const RowColumnInfo& info : RowColumns::all())
        columns.push_back({info.column, 100, info.column != RowColumn::port});
    std::swap(columns[0], columns[3]);
    return columns;
}

Session someSession()
{
    Session session;
    session.filter.showOnly(timeline::Column::level, "0");
    session.columns = someColumns();
    session.kept = {{{"a text", false, true, false}, 2}, {{"[0-9]", true, false, false}, 0}};
    session.times = TimeForm::sinceMark;
    session.mark = timeline::dayOf(2025, 2, 20);
    session.current = RowPlace{"/a/b.cab", {"b.cab/c.txt", 12, 34, "0123456789abcdef", "x"}};
    return session;
}

TEST(Session, IsTheSameBehindAFile)
{
    const Session read = sessionOfJson(toJson(someSession()));
    EXPECT_TRUE(read.filter.shows(timeline::Column::level, "0"));
    EXPECT_FALSE(read.filter.shows(timeline::Column::level, "1"));
    EXPECT_EQ(someColumns(), read.columns);
    ASSERT_EQ(2u, read.kept.size());
    EXPECT_EQ("a text", read.kept[0].text.text);
    EXPECT_TRUE(read.kept[0].text.matchesCase);
    EXPECT_EQ(2u, read.kept[0].colour);
    EXPECT_TRUE(read.kept[1].text.expression);
    EXPECT_EQ(TimeForm::sinceMark, read.times);
    EXPECT_EQ(timeline::dayOf(2025, 2, 20), read.mark);
    ASSERT_TRUE(read.current);
    EXPECT_TRUE(read.current->row.is(someSession().current->row));
    EXPECT_EQ("/a/b.cab", read.current->file);
    EXPECT_FALSE(read.top);
}

TEST(Session, OfGarbageIsNone)
{
    for (
        const char* garbage :
        {"", "\x80\x01\xff", "[[[[", "[1]", "{}", "null", R"({"version": 2, "times": "sinceMark"})",
         R"({"version": 1, "filter": {"columns": [{"column": "no such"}]}})",
         R"({"version": 1, "filter": {"texts": [{"text": "(", "expression": true}]}})",
         R"({"version": 1, "filter": {"since": "soon"}, "mark": "then", "times": "sinceMark"})",
         R"({"version": 1, "filter": 7, "columns": 7, "kept": {"x": 1}, "current": [], "top": 1})",
         R"({"version": 1, "kept": [{"text": "x", "colour": -7}], "current": {"line": 1}})",
         R"({"version": 1, "columns": [{"column": "time", "shown": true}, {"column": "time"}]})"}) {
        SCOPED_TRACE(garbage);
        const Session session = sessionOfJson(garbage);
        EXPECT_TRUE(session.filter.passesAll());
        EXPECT_TRUE(session.columns.empty());
        EXPECT_TRUE(session.kept.empty());
        EXPECT_EQ(TimeForm::clock, session.times);
        EXPECT_FALSE(session.mark || session.current || session.top);
    }
}

TEST(Session, KeepsColumnsWithinReason)
{
    Session session;
    session.columns = someColumns();
    session.columns[0].width = 2'000'000'000;
    session.columns[1].width = -5;
    const Session read = sessionOfJson(toJson(session));
    ASSERT_EQ(session.columns.size(), read.columns.size());
    EXPECT_EQ(4000, read.columns[0].width);
    EXPECT_EQ(24, read.columns[1].width);
    for (ColumnPlace& place : session.columns) place.shown = false;
    EXPECT_TRUE(sessionOfJson(toJson(session)).columns.empty()) << "a table has a column";
}

class Sessions : public testing::Test {
protected:
    static Session marked(timeline::Moment moment)
    {
        Session session;
        session.mark = moment;
        return session;
    }

    TemporaryFolder folder;
    SessionStore store{QString::fromStdString(folder / "data/sessions")};
};

TEST_F(Sessions, AreKeptByTheSetOfTheirPaths)
{
    EXPECT_FALSE(store.read({"/a", "/b"}));
    store.write({"/a", "/b"}, marked(1));
    store.write({"/a"}, marked(2));
    store.write({"/a", "/b/"}, marked(3));
    ASSERT_TRUE(store.read({"/b", "/a"}));
    EXPECT_EQ(3, store.read({"/b", "/a"})->mark);
    EXPECT_EQ(2, store.read({"/a"})->mark);
    EXPECT_FALSE(store.read({"/b"}));
    store.forget({"/a"});
    EXPECT_FALSE(store.read({"/a"}));
}

TEST_F(Sessions, OfLongAgoGo)
{
    for (int number = 0; number < SessionStore::most + 5; ++number) {
        store.write({QString::number(number)}, marked(number));
        // As if each had been written a minute after the one before.
        for (const auto& file : std::filesystem::directory_iterator(folder / "data/sessions"))
            std::filesystem::last_write_time(file,
                                             file.last_write_time() - std::chrono::minutes(1));
    }
    int kept = 0;
    for (int number = 0; number < SessionStore::most + 5; ++number)
        kept += store.read({QString::number(number)}) ? 1 : 0;
    EXPECT_EQ(SessionStore::most, kept);
    EXPECT_FALSE(store.read({"0"}));
    EXPECT_TRUE(store.read({QString::number(SessionStore::most + 4)}));
}

TEST_F(Sessions, ThatAreDamagedOrTooLargeAreNone)
{
    store.write({"/a"}, someSession());
    for (const auto& file : std::filesystem::directory_iterator(folder / "data/sessions")) {
        QFile damaged(QString::fromStdString(file.path().string()));
        ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
        damaged.write(QByteArray(2'000'000, ' '));
    }
    EXPECT_FALSE(store.read({"/a"}));
    store.write({"/a"}, someSession());
    EXPECT_TRUE(store.read({"/a"}));
    const SessionStore nowhere(QString::fromStdString(folder.write("file")));
    nowhere.write({"/a"}, someSession());
    EXPECT_FALSE(nowhere.read({"/a"}));
}

} // namespace
} // namespace viewer
