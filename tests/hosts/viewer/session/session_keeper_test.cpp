#include "hosts/viewer/session/session_keeper.h"

#include "hosts/viewer/find/find_bar.h"
#include "hosts/viewer/support/test_logs.h"
#include "hosts/viewer/table/row_table.h"
#include "hosts/viewer/window/main_window.h"
#include "support/windows/test_application.h"

#include <QDir>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QSettings>
#include <QTest>

#include <gtest/gtest.h>

#include <fstream>

namespace viewer {
namespace {

class SessionOfAWindow : public testing::Test {
protected:
    SessionOfAWindow()
        : settings((testApplication(), logs.folder() + "/viewer.ini"), QSettings::IniFormat)
    {}

    std::unique_ptr<MainWindow> opened(const QStringList& paths, bool restoring = true)
    {
        auto window = std::make_unique<MainWindow>(settings, logs.folder() + "/data");
        window->session().setRestoring(restoring);
        window->resize(900, 600);
        window->show();
        window->document().open(paths);
        EXPECT_TRUE(waitForRows(window->document()));
        settle();
        return window;
    }

    static bool isAt(MainWindow& window, std::size_t place)
    {
        return waitUntil([&] { return window.table().currentPlace() == place; }, 5000);
    }

    static void showErrors(MainWindow& window)
    {
        RowFilter errors;
        errors.showOnly(timeline::Column::level, "0");
        window.document().setFilter(errors);
        EXPECT_TRUE(waitForRows(window.document()));
    }

    TestLogs logs;
    QSettings settings;
};

TEST_F(SessionOfAWindow, IsOnShowWhenItsSourcesAreOpenedAgain)
{
    const QString log = logs.writeRows("KoCSMgr", 2000, 0, 1000);
    std::size_t first = 0;
    {
        const auto window = opened({log});
        showErrors(*window);
        window->table().showColumn(RowColumn::thread, true);
        window->table().showColumn(RowColumn::port, false);
        window->table().header().moveSection(0, 4);
        window->table().header().resizeSection(static_cast<int>(RowColumn::source), 77);
        window->run(Command::find);
        window->findBar().text().setText("row");
        window->run(Command::keepMark);
        window->table().goTo(3);
        window->run(Command::markTime);
        window->table().goTo(70);
        first = window->table().firstInSight();
        ASSERT_GT(first, 0u);
        window->close();
    }
    settings.clear();
    const auto window = opened({log});
    EXPECT_EQ(100, window->model().rowCount());
    EXPECT_TRUE(window->table().showsColumn(RowColumn::thread));
    EXPECT_FALSE(window->table().showsColumn(RowColumn::port));
    EXPECT_EQ(4, window->table().header().visualIndex(0));
    EXPECT_EQ(77, window->table().header().sectionSize(static_cast<int>(RowColumn::source)));
    EXPECT_EQ("+0.000", window->model().text(3, RowColumn::time));
    EXPECT_TRUE(window->action(Command::timesSinceMark).isChecked());
    EXPECT_TRUE(isAt(*window, 70));
    ASSERT_TRUE(waitUntil([&] { return window->table().firstInSight() == first; }, 5000));
}

TEST_F(SessionOfAWindow, TellsOfItsFilterUntilThatIsTouched)
{
    const QString log = logs.writeRows("KoCSMgr", 100, 0, 1000);
    {
        const auto window = opened({log});
        EXPECT_EQ("", window->notice());
        showErrors(*window);
        EXPECT_EQ("", window->notice());
        window->close();
    }
    const auto window = opened({log});
    EXPECT_EQ(5, window->model().rowCount());
    EXPECT_TRUE(window->notice().contains("filter of last time"));
    window->run(Command::showAll);
    ASSERT_TRUE(waitForRows(window->document()));
    EXPECT_EQ(100, window->model().rowCount());
    EXPECT_EQ("", window->notice());
    window->close();
    EXPECT_EQ("", opened({log})->notice()) << "no filter was on";
}

TEST_F(SessionOfAWindow, FindsItsRowInALogThatHasGrown)
{
    const QString log = logs.writeRows("KoCSMgr", 100, 0, 1000);
    {
        const auto window = opened({log});
        window->table().goTo(40);
        window->close();
    }
    std::ofstream(log.toStdString(), std::ios::app | std::ios::binary)
        << rawLine(10'500, "CallFlow", 3, "late") << rawLine(200'000, "CallFlow", 3, "grown");
    const auto window = opened({log});
    EXPECT_EQ(102, window->model().rowCount());
    ASSERT_TRUE(waitUntil([&] { return window->table().currentPlace().has_value(); }, 5000));
    EXPECT_EQ("row 40", window->model().text(*window->table().currentPlace(), RowColumn::trace));
}

TEST_F(SessionOfAWindow, LeavesAPersonWhoHasGoneElsewhereThere)
{
    const QString log = logs.writeRows("KoCSMgr", 100, 0, 1000);
    {
        const auto window = opened({log});
        window->table().goTo(40);
        window->close();
    }
    const auto window = std::make_unique<MainWindow>(settings, logs.folder() + "/data");
    window->show();
    QObject::connect(&window->document(), &Document::viewChanged, window.get(), [&] {
        if (window->document().rowCount() > 0) window->table().goTo(7);
    });
    window->document().open({log});
    ASSERT_TRUE(waitForRows(window->document()));
    QTest::qWait(50);
    EXPECT_EQ(7u, window->table().currentPlace());
}

TEST_F(SessionOfAWindow, IsLeftAloneWhenAskedTo)
{
    const QString log = logs.writeRows("KoCSMgr", 100, 0, 1000);
    {
        const auto window = opened({log});
        showErrors(*window);
        window->close();
    }
    const auto fresh = opened({log}, false);
    EXPECT_EQ(100, fresh->model().rowCount());
    EXPECT_EQ("", fresh->notice());
}

TEST_F(SessionOfAWindow, IsForgottenByACommand)
{
    const QString log = logs.writeRows("KoCSMgr", 100, 0, 1000);
    {
        const auto window = opened({log});
        showErrors(*window);
        window->table().showColumn(RowColumn::port, false);
        window->run(Command::find);
        window->findBar().text().setText("row");
        window->run(Command::keepMark);
        window->table().goTo(2);
        window->run(Command::markTime);
        window->close();
    }
    const auto window = opened({log});
    ASSERT_EQ(5, window->model().rowCount());
    window->run(Command::startAfresh);
    ASSERT_TRUE(waitForRows(window->document()));
    EXPECT_EQ(100, window->model().rowCount());
    EXPECT_EQ("", window->notice());
    EXPECT_TRUE(window->table().showsColumn(RowColumn::port));
    EXPECT_FALSE(window->action(Command::timesSinceMark).isEnabled());
    EXPECT_EQ(0u, window->table().currentPlace());
    EXPECT_TRUE(QDir(logs.folder() + "/data/sessions").isEmpty());
}

TEST_F(SessionOfAWindow, OfOtherSourcesIsAnother)
{
    const QString one = logs.writeRows("KoCSMgr", 100, 0, 1000);
    const QString other = logs.writeRows("KoUMRServer", 100, 0, 1000);
    {
        const auto window = opened({one});
        showErrors(*window);
        window->close();
    }
    EXPECT_EQ(200, opened({one, other})->model().rowCount());
    EXPECT_EQ(100, opened({other})->model().rowCount());
    const auto window = opened({other});
    window->document().open({one});
    ASSERT_TRUE(waitForRows(window->document()));
    EXPECT_EQ(200, window->model().rowCount()) << "what comes to others takes no filter along";
}

TEST_F(SessionOfAWindow, ThatIsDamagedIsNone)
{
    const QString log = logs.writeRows("KoCSMgr", 100, 0, 1000);
    {
        const auto window = opened({log});
        showErrors(*window);
        window->close();
    }
    const QDir folder(logs.folder() + "/data/sessions");
    const QStringList files = folder.entryList(QDir::Files);
    ASSERT_EQ(1, files.size());
    QFile file(folder.filePath(files.front()));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("\x80garbage{");
    file.close();
    const auto window = opened({log});
    EXPECT_EQ(100, window->model().rowCount());
    EXPECT_EQ("", window->notice());
}

TEST_F(SessionOfAWindow, IsKeptOfNothingThatWasNotRead)
{
    {
        const auto window = opened({logs.folder() + "/none.txt"});
        window->close();
    }
    EXPECT_FALSE(QDir(logs.folder() + "/data/sessions").exists());
}

} // namespace
} // namespace viewer
