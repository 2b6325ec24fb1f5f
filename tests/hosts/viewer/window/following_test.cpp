#include "hosts/viewer/follow/follow_bar.h"
#include "hosts/viewer/support/test_logs.h"
#include "hosts/viewer/window/main_window.h"
#include "support/windows/test_application.h"

#include <QScrollBar>
#include <QSettings>
#include <QTest>
#include <QToolButton>

#include <gmock/gmock.h>

#include <fstream>

namespace viewer {
namespace {

class FollowingWindow : public testing::Test {
protected:
    FollowingWindow()
        : settings((testApplication(), logs.folder() + "/viewer.ini"), QSettings::IniFormat),
          window(settings)
    {
        window.show();
        log = logs.writeRows("KoCSMgr", 200, 0, 1000);
        window.document().open({log});
        EXPECT_TRUE(waitForRows(window.document()));
        settle();
        QTest::keySequence(&window, QKeySequence("Ctrl+Shift+F"));
    }

    /// Adds rows to the log, and waits until they are on show.
    bool grow(int rows)
    {
        std::string lines;
        for (int row = 0; row < rows; ++row, ++next_)
            lines += rawLine(next_ * 1000, "CallFlow", 3, "row " + std::to_string(next_));
        std::ofstream(log.toStdString(), std::ios::app | std::ios::binary) << lines;
        return waitUntil([this] { return window.model().rowCount() == next_; });
    }

    TestLogs logs;
    QSettings settings;
    MainWindow window;
    QString log;

private:
    int next_ = 200;
};

TEST_F(FollowingWindow, KeepsTheEndInSight)
{
    EXPECT_TRUE(window.action(Command::follow).isChecked());
    EXPECT_TRUE(window.table().isAtEnd()) << "it begins at the end";
    ASSERT_TRUE(grow(30));
    EXPECT_TRUE(window.table().isAtEnd());
    EXPECT_EQ(230u, window.table().firstInSight() + window.table().rowsInSight());
    EXPECT_TRUE(window.followBar().isHidden());
}

TEST_F(FollowingWindow, StaysWhereThePersonScrolledAndSaysHowManyLinesWait)
{
    window.table().verticalScrollBar()->setValue(50);
    ASSERT_TRUE(grow(1));
    EXPECT_EQ(50u, window.table().firstInSight());
    auto* button = window.followBar().findChild<QToolButton*>();
    EXPECT_EQ("1 new line", button->text());
    ASSERT_TRUE(grow(11));
    EXPECT_EQ("12 new lines", button->text());
    EXPECT_EQ(50u, window.table().firstInSight());
    EXPECT_FALSE(window.followBar().isHidden());
    button->click();
    EXPECT_TRUE(window.table().isAtEnd());
    EXPECT_TRUE(window.followBar().isHidden());
    ASSERT_TRUE(grow(5));
    EXPECT_TRUE(window.table().isAtEnd()) << "it goes on from there";
}

TEST_F(FollowingWindow, GoesToTheEndByKey)
{
    for (const auto modifier : {Qt::NoModifier, Qt::ControlModifier}) {
        window.table().verticalScrollBar()->setValue(50);
        ASSERT_TRUE(grow(3));
        EXPECT_EQ(3u, window.followBar().waiting());
        QTest::keyClick(&window.table(), Qt::Key_End, modifier);
        EXPECT_TRUE(window.table().isAtEnd());
        EXPECT_EQ(0u, window.followBar().waiting());
    }
}

TEST_F(FollowingWindow, KeepsTheCurrentRowAndTheSelectionWhileRowsCome)
{
    window.table().goTo(199);
    ASSERT_TRUE(grow(40));
    EXPECT_EQ(199u, window.table().currentPlace());
    EXPECT_THAT(window.table().selectedPlaces(9), testing::ElementsAre(199u));
    EXPECT_TRUE(window.table().isAtEnd());
}

TEST_F(FollowingWindow, CountsWhatWaitsOfTheRowsOnShowAlone)
{
    RowFilter filter;
    filter.columns.push_back({timeline::Column::level, {"0"}, false});
    window.document().setFilter(filter);
    ASSERT_TRUE(waitForRows(window.document()));
    EXPECT_EQ(0u, window.followBar().waiting()) << "what the filter lets through has not come";
    std::ofstream(log.toStdString(), std::ios::app | std::ios::binary)
        << rawLine(300'000, "CallFlow", 3, "none") << rawLine(301'000, "CallFlow", 0, "error");
    EXPECT_TRUE(waitUntil([this] { return window.model().rowCount() == 11; }));
}

TEST_F(FollowingWindow, FollowsNoMoreByTheSameKey)
{
    QTest::keySequence(&window, QKeySequence("Ctrl+Shift+F"));
    EXPECT_FALSE(window.action(Command::follow).isChecked());
    EXPECT_FALSE(window.document().follows());
    EXPECT_TRUE(window.followBar().isHidden());
}

TEST(RefusedFollowing, IsToldInASentence)
{
    TestLogs logs;
    QSettings settings((testApplication(), logs.folder() + "/viewer.ini"), QSettings::IniFormat);
    MainWindow window(settings);
    window.show();
    window.document().open({logs.writeEvents()});
    ASSERT_TRUE(waitForRows(window.document()));
    QTest::keySequence(&window, QKeySequence("Ctrl+Shift+F"));
    EXPECT_TRUE(waitUntil([&] { return window.notice().contains("can be followed"); }));
    EXPECT_FALSE(window.action(Command::follow).isChecked());
}

} // namespace
} // namespace viewer
