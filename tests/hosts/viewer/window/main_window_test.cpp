#include "hosts/viewer/window/main_window.h"

#include "hosts/viewer/support/test_logs.h"
#include "support/windows/test_application.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QSettings>
#include <QTest>

#include <gmock/gmock.h>

#include <set>

namespace viewer {
namespace {

class ViewerWindow : public testing::Test {
protected:
    ViewerWindow()
        : settings((testApplication(), logs.folder() + "/viewer.ini"), QSettings::IniFormat),
          window(settings)
    {
        window.show();
    }

    void open(const QStringList& paths)
    {
        window.document().open(paths);
        ASSERT_TRUE(waitForRows(window.document()));
        settle();
    }

    TestLogs logs;
    QSettings settings;
    MainWindow window;
};

TEST_F(ViewerWindow, EveryCommandHasAKeyOfItsOwn)
{
    std::set<QString> keys;
    for (const CommandInfo& info : Commands::all()) {
        const QString key = window.action(info.command).shortcut().toString();
        EXPECT_FALSE(key.isEmpty()) << info.text;
        EXPECT_TRUE(keys.insert(key).second) << info.text;
        EXPECT_FALSE(window.action(info.command).text().isEmpty());
    }
}

TEST_F(ViewerWindow, SaysWhatCouldNotBeReadAndShowsTheRest)
{
    open({logs.folder() + "/none.txt", logs.writeRows("KoCSMgr", 10, 0, 1000),
          logs.folder() + "/nor_this.txt"});
    EXPECT_TRUE(window.notice().contains("none.txt")) << window.notice().toStdString();
    EXPECT_TRUE(window.notice().contains("nor_this.txt"));
    EXPECT_EQ(10, window.model().rowCount());
}

TEST_F(ViewerWindow, OpensWhatIsDroppedOnIt)
{
    QMimeData dragged;
    dragged.setUrls({QUrl::fromLocalFile(logs.writeRows("KoCSMgr", 10, 0, 1000)),
                     QUrl(QStringLiteral("https://example.org/x"))});
    QDragEnterEvent enter(QPoint(300, 300), Qt::CopyAction, &dragged, Qt::LeftButton,
                          Qt::NoModifier);
    QApplication::sendEvent(&window, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(300, 300), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &drop);
    ASSERT_TRUE(waitForRows(window.document()));
    EXPECT_EQ(10, window.model().rowCount());
    EXPECT_EQ("", window.notice());
}

TEST_F(ViewerWindow, CopiesTheSelectedRowsByKey)
{
    open({logs.writeRows("KoCSMgr", 10, 0, 1000)});
    window.table().goTo(3);
    window.run(Command::copyRaw);
    EXPECT_EQ("00:00:03:000,Conv,12,CallFlow,3,row 3\n", QApplication::clipboard()->text());
}

TEST_F(ViewerWindow, MarksARowThatTimesAreToldFrom)
{
    open({logs.writeRows("KoCSMgr", 10, 0, 1000)});
    EXPECT_FALSE(window.action(Command::timesSinceMark).isEnabled());
    window.table().goTo(3);
    window.run(Command::markTime);
    EXPECT_EQ("-3.000", window.model().text(0, RowColumn::time));
    EXPECT_TRUE(window.action(Command::timesSinceMark).isChecked());
    window.run(Command::clockTimes);
    EXPECT_EQ("2025-02-20 00:00:00.000", window.model().text(0, RowColumn::time));
}

} // namespace
} // namespace viewer
