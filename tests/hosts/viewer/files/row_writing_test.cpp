#include "hosts/viewer/files/row_writing.h"

#include "hosts/viewer/files/row_targets.h"
#include "hosts/viewer/support/test_logs.h"
#include "support/windows/test_application.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <gmock/gmock.h>

#include <condition_variable>
#include <mutex>

namespace viewer {
namespace {

/// A target that takes no piece, or does not finish, until it may.
class SlowTarget final : public RowTarget {
public:
    Taken take(const QString& piece) override
    {
        if (waitsToTake) wait();
        taken += piece;
        return Taken::goOn;
    }
    bool finish() override
    {
        wait();
        finished = true;
        return true;
    }
    void giveUp() override { gaveUp = true; }

    void wait()
    {
        std::unique_lock lock(letting);
        ++waits;
        let.wait(lock, [this] { return goesOn; });
    }
    void letGoOn()
    {
        const std::lock_guard lock(letting);
        goesOn = true;
        let.notify_all();
    }
    bool isWaiting()
    {
        const std::lock_guard lock(letting);
        return waits > 0;
    }

    bool waitsToTake = false;
    QString taken;
    bool finished = false;
    bool gaveUp = false;

private:
    std::mutex letting;
    std::condition_variable let;
    int waits = 0;
    bool goesOn = false;
};

class RowWritingTest : public testing::Test {
protected:
    RowWritingTest() { testApplication(); }

    void open(const QStringList& paths)
    {
        document.open(paths);
        ASSERT_TRUE(waitForRows(document));
    }

    std::unique_ptr<RowWriting> write(std::unique_ptr<RowTarget> target,
                                      RowForm form = RowForm::shown)
    {
        RowsToWrite rows{document.sharedView(),
                         {{0, document.rowCount()}},
                         form,
                         {RowColumn::component, RowColumn::trace},
                         {}};
        auto writing =
            std::make_unique<RowWriting>(document.timeline(), std::move(rows), std::move(target));
        done.reset();
        QObject::connect(writing.get(), &RowWriting::ended, [this](bool well) { done = well; });
        return writing;
    }

    bool waitForEnd()
    {
        return waitUntil([this] { return done.has_value(); });
    }

    /// What is written to a file of a name; nothing where that fails.
    std::optional<QByteArray> written(const QString& name)
    {
        const QString path = logs.folder() + QLatin1Char('/') + name;
        const auto writing = write(std::make_unique<FileTarget>(path), rowFormOf(name));
        QFile file(path);
        if (!waitForEnd() || !*done || !file.open(QIODevice::ReadOnly)) return std::nullopt;
        return file.readAll();
    }

    TestLogs logs;
    Document document;
    std::optional<bool> done;
};

TEST_F(RowWritingTest, WritesAFileInTheFormOfItsEnding)
{
    open({logs.write("KoCSMgr",
                     rawLine(1000, "A", 3, "one, two") + rawLine(2500, "B", 0, "three"))});
    EXPECT_EQ("Component,Trace\nA,\"one, two\"\nB,three\n", written("rows.csv"));
    EXPECT_EQ("A\tone, two\nB\tthree\n", written("rows.txt"));
    const QList<QByteArray> lines = written("rows.json").value().trimmed().split('\n');
    ASSERT_EQ(2, lines.size());
    const QJsonObject row = QJsonDocument::fromJson(lines[1]).object();
    EXPECT_EQ("2025-02-20T00:00:02.500", row["time"].toString());
    EXPECT_EQ("KoCSMgr", row["process"].toString());
    EXPECT_EQ(0, row["level"].toInt(-1));
    EXPECT_EQ(2, row["line"].toInt());
    EXPECT_FALSE(row.contains("port"));
}

TEST_F(RowWritingTest, WritesLongTextsToAFileAsLongAsTheyAre)
{
    const QByteArray longText(500'000, 'x');
    open({logs.write("KoCSMgr", rawLine(1000, "A", 3, longText.toStdString()))});
    EXPECT_EQ("Component,Trace\nA," + longText + '\n', written("rows.csv"));
    EXPECT_EQ(QString(longText),
              QJsonDocument::fromJson(written("rows.json").value()).object()["trace"].toString());
}

TEST_F(RowWritingTest, SaysWhenAFileCanNotBeWritten)
{
    open({logs.writeRows("KoCSMgr", 10, 0, 10)});
    const auto writing =
        write(std::make_unique<FileTarget>(logs.folder() + QStringLiteral("/none/rows.csv")));
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(false, done);
    EXPECT_TRUE(writing->problem().contains("none/rows.csv can't be written"))
        << writing->problem().toStdString();
}

TEST_F(RowWritingTest, LeavesNoFileWhenItIsGivenUp)
{
    open({logs.writeRows("KoCSMgr", 40'000, 0, 10)});
    const QString path = logs.folder() + "/rows.csv";
    const QStringList before = QDir(logs.folder()).entryList(QDir::Files);
    const auto writing = write(std::make_unique<FileTarget>(path));
    writing->cancel();
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(false, done);
    EXPECT_EQ("", writing->problem());
    EXPECT_EQ(before, QDir(logs.folder()).entryList(QDir::Files));
}

TEST_F(RowWritingTest, HoldsNobodyUpWhileItsTargetIsSlow)
{
    open({logs.writeRows("KoCSMgr", 100, 0, 10)});
    auto made = std::make_unique<SlowTarget>();
    SlowTarget& target = *made;
    const auto writing = write(std::move(made));
    ASSERT_TRUE(waitUntil([&] { return target.isWaiting(); }));
    EXPECT_EQ(100u, writing->written()) << "all but the end of it";
    EXPECT_FALSE(done.has_value());
    EXPECT_EQ("row 7", document.row(7).trace) << "the rows are free meanwhile";
    target.letGoOn();
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(true, done);
    EXPECT_TRUE(target.finished);
    EXPECT_EQ(100, target.taken.count('\n'));
}

TEST_F(RowWritingTest, EndsSoonWhenItIsGivenUp)
{
    open({logs.writeRows("KoCSMgr", 40'000, 0, 10)});
    auto made = std::make_unique<SlowTarget>();
    SlowTarget& target = *made;
    target.waitsToTake = true;
    const auto writing = write(std::move(made));
    ASSERT_TRUE(waitUntil([&] { return target.isWaiting(); }));
    writing->cancel();
    target.letGoOn();
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(false, done);
    EXPECT_TRUE(target.gaveUp);
    EXPECT_FALSE(target.finished);
    EXPECT_LT(target.taken.count('\n'), 40'000) << "the piece at hand alone";
}

TEST_F(RowWritingTest, WritesWhatWasOnShowWhenItBegan)
{
    open({logs.writeRows("KoCSMgr", 1000, 0, 10)});
    auto made = std::make_unique<SlowTarget>();
    SlowTarget& target = *made;
    target.waitsToTake = true;
    const auto writing = write(std::move(made));
    RowFilter errors;
    errors.columns.push_back({timeline::Column::level, {"0"}, false});
    document.setFilter(errors);
    ASSERT_TRUE(waitForRows(document));
    ASSERT_EQ(50u, document.rowCount());
    target.letGoOn();
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(true, done);
    EXPECT_EQ(1000, target.taken.count('\n'));
}

TEST_F(RowWritingTest, TakesNoMoreThanTheClipboardShouldHave)
{
    open({logs.writeRows("KoCSMgr", 20'000, 0, 10)});
    constexpr qsizetype most = 100'000;
    auto made = std::make_unique<TextTarget>(most);
    const TextTarget& target = *made;
    const auto writing = write(std::move(made));
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(true, done);
    EXPECT_LE(target.text().size(), most);
    EXPECT_EQ(writing->written(), static_cast<std::size_t>(target.text().count('\n')));
    EXPECT_GT(writing->written(), 0u);
    EXPECT_EQ(20'000u, writing->total());
}

} // namespace
} // namespace viewer
