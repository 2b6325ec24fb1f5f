#include "hosts/viewer/marks/marks.h"

#include "hosts/viewer/marks/notes_file.h"
#include "hosts/viewer/support/test_logs.h"
#include "support/windows/test_application.h"

#include <QFile>

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

namespace viewer {
namespace {

using Places = std::vector<std::size_t>;

/// A viewer as far as marks go.
struct Viewer {
    explicit Viewer(const QString& ownFolder) : marks(document, ownFolder)
    {
        QObject::connect(&marks, &Marks::told,
                         [this](const QString& sentence) { told << sentence; });
    }

    bool open(const QStringList& paths)
    {
        document.open(paths);
        return waitForRows(document);
    }

    void setText(std::size_t place, const QString& text)
    {
        EXPECT_TRUE(marks.setText(document.indexRow(place), text));
    }

    /// The places of rows on show of which something is kept.
    Places places()
    {
        Places all;
        for (const Marks::Mark& mark : marks.all())
            if (mark.row)
                if (const auto place = document.placesOnShow({*mark.row}).front())
                    all.push_back(*place);
        std::sort(all.begin(), all.end());
        return all;
    }

    /// Waits until so many marks are there and their rows found.
    bool waitForMarks(std::size_t count)
    {
        return waitUntil([&] { return places().size() == count; }, 5000);
    }

    Document document;
    Marks marks;
    QStringList told;
};

class MarksOfRows : public testing::Test {
protected:
    MarksOfRows() { testApplication(); }

    std::unique_ptr<Viewer> opened(const QStringList& paths)
    {
        auto viewer = std::make_unique<Viewer>(logs.folder() + "/own");
        EXPECT_TRUE(viewer->open(paths));
        return viewer;
    }

    TestLogs logs;
};

TEST_F(MarksOfRows, AreThereAgainInTheNextSession)
{
    const QString log = logs.writeRows("KoCSMgr", 100, 0, 1000);
    {
        const auto viewer = opened({log});
        EXPECT_EQ(true, viewer->marks.toggleBookmark(7));
        viewer->setText(9, "a note");
        viewer->marks.toggleBookmark(11);
        EXPECT_EQ(false, viewer->marks.toggleBookmark(11));
    }
    const auto viewer = opened({log});
    ASSERT_TRUE(viewer->waitForMarks(2));
    EXPECT_EQ((Places{7, 9}), viewer->places());
    EXPECT_EQ("a note", viewer->marks.remark(viewer->document.indexRow(9)));
    EXPECT_EQ("Bookmark", viewer->marks.remark(viewer->document.indexRow(7)));
    EXPECT_EQ("", viewer->marks.remark(viewer->document.indexRow(8)));
    EXPECT_TRUE(viewer->told.isEmpty()) << viewer->told.join("\n").toStdString();
}

TEST_F(MarksOfRows, AreFoundAgainInALogThatGrewOrLostItsBeginning)
{
    const QString log = logs.writeRows("KoCSMgr", 100, 0, 1000);
    {
        const auto viewer = opened({log});
        viewer->marks.toggleBookmark(50);
    }
    std::ofstream(log.toStdString(), std::ios::app | std::ios::binary)
        << rawLine(200'000, "CallFlow", 3, "grown");
    {
        const auto viewer = opened({log});
        ASSERT_TRUE(viewer->waitForMarks(1));
        EXPECT_EQ(Places{50}, viewer->places());
    }
    logs.writeRows("KoCSMgr", 100, 0, 1000);
    std::string lines;
    for (int row = 40; row < 100; ++row)
        lines +=
            rawLine(row * 1000, "CallFlow", row % 20 == 0 ? 0 : 3, "row " + std::to_string(row));
    logs.write("KoCSMgr", lines);
    const auto viewer = opened({log});
    ASSERT_TRUE(viewer->waitForMarks(1));
    EXPECT_EQ(Places{10}, viewer->places());
}

TEST_F(MarksOfRows, AreFoundOnTheirLineWhereTheDayOfALogWasAGuess)
{
    const QString log = logs.folder() + "/plain.txt";
    logs.files().write("plain.txt", rawLine(1000, "A", 3, "one") + rawLine(2000, "A", 3, "two"));
    {
        const auto viewer = opened({log});
        viewer->marks.toggleBookmark(1);
    }
    std::filesystem::last_write_time(
        log.toStdString(), std::filesystem::file_time_type::clock::now() - std::chrono::hours(72));
    const auto viewer = opened({log});
    ASSERT_TRUE(viewer->waitForMarks(1));
    EXPECT_EQ(Places{1}, viewer->places());
}

TEST_F(MarksOfRows, OfAnotherTextAreNotFoundAndStay)
{
    const QString log = logs.write("KoCSMgr", rawLine(1000, "A", 3, "one"));
    {
        const auto viewer = opened({log});
        viewer->marks.toggleBookmark(0);
    }
    logs.write("KoCSMgr", rawLine(1000, "A", 3, "another"));
    {
        const auto viewer = opened({log});
        ASSERT_TRUE(waitUntil([&] { return viewer->marks.all().size() == 1; }));
        settle();
        EXPECT_EQ(Places{}, viewer->places());
        EXPECT_EQ("one", viewer->marks.all().front().note.row.trace);
        viewer->setText(0, "of the new one");
        ASSERT_TRUE(viewer->waitForMarks(1));
        EXPECT_EQ(2u, viewer->marks.all().size());
    }
    logs.write("KoCSMgr", rawLine(1000, "A", 3, "one"));
    const auto viewer = opened({log});
    ASSERT_TRUE(viewer->waitForMarks(1));
    EXPECT_EQ("Bookmark", viewer->marks.remark(viewer->document.indexRow(0)));
}

TEST_F(MarksOfRows, OfTwoViewersComeTogether)
{
    const QString log = logs.writeRows("KoCSMgr", 100, 0, 1000);
    const auto one = opened({log});
    const auto other = opened({log});
    one->marks.toggleBookmark(1);
    other->marks.toggleBookmark(2);
    one->marks.toggleBookmark(3);
    const NotesFile file(log.toStdString(), (logs.folder() + "/own").toStdString());
    ASSERT_TRUE(waitUntil([&] { return file.read().notes.size() == 3; }));
    other->setText(4, "x");
    ASSERT_TRUE(other->waitForMarks(4));
    EXPECT_EQ((Places{1, 2, 3, 4}), other->places());
}

TEST_F(MarksOfRows, AreGoneToInTheOrderOfRowsOnShow)
{
    const auto viewer = opened({logs.writeRows("KoCSMgr", 100, 0, 1000)});
    EXPECT_EQ(std::nullopt, viewer->marks.next(0, Direction::down));
    for (const std::size_t place : {20, 5, 60}) viewer->marks.toggleBookmark(place);
    EXPECT_EQ(5u, viewer->marks.next(std::nullopt, Direction::down));
    EXPECT_EQ(20u, viewer->marks.next(5, Direction::down));
    EXPECT_EQ(5u, viewer->marks.next(60, Direction::down)) << "on from the other end";
    EXPECT_EQ(60u, viewer->marks.next(5, Direction::up));
    RowFilter errors;
    errors.showOnly(timeline::Column::level, "0");
    viewer->document.setFilter(errors);
    ASSERT_TRUE(waitForRows(viewer->document));
    EXPECT_EQ(1u, viewer->marks.next(0, Direction::down)) << "those that are hidden are left out";
    EXPECT_EQ(3u, viewer->marks.next(1, Direction::down));
}

TEST_F(MarksOfRows, LoseTheirBookmarksAndKeepTheirTexts)
{
    const auto viewer = opened({logs.writeRows("KoCSMgr", 10, 0, 1000)});
    viewer->marks.toggleBookmark(1);
    viewer->setText(2, "stays");
    viewer->marks.toggleBookmark(2);
    viewer->marks.clearBookmarks();
    EXPECT_EQ(Places{2}, viewer->places());
    EXPECT_EQ("stays", viewer->marks.remark(viewer->document.indexRow(2)));
    viewer->marks.remove(viewer->marks.all().front());
    EXPECT_TRUE(viewer->marks.isEmpty());
}

TEST_F(MarksOfRows, OfALogInAFolderLieBesideTheLogAndAreNoRows)
{
    const QString log = logs.writeRows("KoCSMgr", 10, 0, 1000);
    logs.writeRows("KoUMRServer", 10, 500, 1000);
    {
        const auto viewer = opened({logs.folder()});
        ASSERT_EQ(20u, viewer->document.rowCount());
        viewer->setText(2, "15:23:07:123,Conv,12,CallFlow,3,like a line of a log");
    }
    EXPECT_TRUE(QFile::exists(log + ".notes.json"));
    const auto viewer = opened({logs.folder()});
    ASSERT_TRUE(viewer->waitForMarks(1));
    EXPECT_EQ(20u, viewer->document.rowCount());
}

TEST_F(MarksOfRows, AreFoundAgainInLogsWhoseNamesAreNoCharacters)
{
    logs.files().write("caf\xe9.txt", rawLine(1000, "A", 3, "one"));
    logs.files().write("caf\xe8.txt", rawLine(2000, "A", 3, "two"));
    {
        const auto viewer = opened({logs.folder()});
        ASSERT_EQ(2u, viewer->document.rowCount());
        viewer->setText(0, "of one");
        viewer->setText(1, "of two");
    }
    EXPECT_TRUE(logs.files().exists("caf\xe9.txt.notes.json"));
    EXPECT_TRUE(logs.files().exists("caf\xe8.txt.notes.json"));
    const auto viewer = opened({logs.folder()});
    ASSERT_TRUE(viewer->waitForMarks(2));
    EXPECT_EQ("of one", viewer->marks.remark(viewer->document.indexRow(0)));
    EXPECT_EQ("of two", viewer->marks.remark(viewer->document.indexRow(1)));
}

TEST_F(MarksOfRows, TakeNoTextThatIsTooLong)
{
    const auto viewer = opened({logs.writeRows("KoCSMgr", 10, 0, 1000)});
    const timeline::IndexRow row = viewer->document.indexRow(1);
    viewer->setText(1, QString(Marks::longestText, 'x'));
    EXPECT_FALSE(viewer->marks.setText(row, QString(Marks::longestText + 1, 'y')));
    EXPECT_EQ(QString(Marks::longestText, 'x'), viewer->marks.of(row)->text);
}

TEST_F(MarksOfRows, WithDamagedNotesAreToldOfOnce)
{
    const QString log = logs.writeRows("KoCSMgr", 10, 0, 1000);
    {
        QFile notes(log + ".notes.json");
        ASSERT_TRUE(notes.open(QIODevice::WriteOnly));
        notes.write("{\"format\": \"orvandiag notes\", \"version\": 1, \"notes\": [");
    }
    const auto viewer = opened({log});
    ASSERT_TRUE(waitUntil([&] { return viewer->told.size() == 1; }));
    EXPECT_TRUE(viewer->told[0].contains("can't be read"));
    viewer->marks.toggleBookmark(1);
    viewer->marks.toggleBookmark(2);
    ASSERT_TRUE(waitUntil([&] { return viewer->told.size() == 2; }));
    EXPECT_TRUE(viewer->told[1].contains(".broken"));
}

} // namespace
} // namespace viewer
