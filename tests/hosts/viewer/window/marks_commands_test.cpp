#include "hosts/viewer/details/details_pane.h"
#include "hosts/viewer/marks/mark_gutter.h"
#include "hosts/viewer/marks/mark_list.h"
#include "hosts/viewer/support/test_logs.h"
#include "hosts/viewer/window/main_window.h"
#include "support/windows/test_application.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QHelpEvent>
#include <QInputDialog>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSettings>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include <functional>

namespace viewer {
namespace {

class MarksInTheWindow : public testing::Test {
protected:
    MarksInTheWindow()
        : settings((testApplication(), logs.folder() + "/viewer.ini"), QSettings::IniFormat),
          window(settings), log(logs.writeRows("KoCSMgr", 100, 0, 1000))
    {
        window.show();
        QApplication::setActiveWindow(&window);
        window.table().setFocus();
        window.document().open({log});
        EXPECT_TRUE(waitForRows(window.document()));
        settle();
    }

    /// Presses the keys of a command where the rows are.
    void press(Command command)
    {
        const QKeySequence keys = window.action(command).shortcut();
        for (int key = 0; key < keys.count(); ++key)
            QTest::keyClick(&window.table(), keys[static_cast<uint>(key)].key(),
                            keys[static_cast<uint>(key)].keyboardModifiers());
        settle();
    }

    /// Asks for a note on the current row, and does something with the dialog.
    void note(const std::function<void(QInputDialog&)>& answer)
    {
        QTimer::singleShot(0, [&] {
            auto* dialog = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(nullptr, dialog);
            answer(*dialog);
        });
        press(Command::note);
    }

    QString message() { return window.statusBar()->currentMessage(); }

    TestLogs logs;
    QSettings settings;
    MainWindow window;
    QString log;
};

TEST_F(MarksInTheWindow, AreSetAndGoneToByKey)
{
    window.table().goTo(0);
    press(Command::nextBookmark);
    EXPECT_TRUE(message().contains("No row has a bookmark"));
    for (const std::size_t place : {10, 30}) {
        window.table().goTo(place);
        press(Command::toggleBookmark);
        EXPECT_EQ("The row has a bookmark.", message());
    }
    window.table().goTo(0);
    press(Command::nextBookmark);
    EXPECT_EQ(10u, window.table().currentPlace());
    press(Command::nextBookmark);
    EXPECT_EQ(30u, window.table().currentPlace());
    press(Command::previousBookmark);
    EXPECT_EQ(10u, window.table().currentPlace());
    press(Command::toggleBookmark);
    EXPECT_EQ("The row has no bookmark any more.", message());
    press(Command::clearBookmarks);
    EXPECT_TRUE(window.marks().isEmpty());
    EXPECT_FALSE(window.action(Command::clearBookmarks).isEnabled());
}

TEST_F(MarksInTheWindow, ThatTheFilterHidesAreToldOf)
{
    window.table().goTo(10);
    press(Command::toggleBookmark);
    RowFilter errors;
    errors.showOnly(timeline::Column::level, "0");
    window.document().setFilter(errors);
    ASSERT_TRUE(waitForRows(window.document()));
    press(Command::nextBookmark);
    EXPECT_TRUE(message().contains("hidden by the filter")) << message().toStdString();
}

TEST_F(MarksInTheWindow, ANoteIsAskedForAndShownWithItsRow)
{
    window.table().goTo(5);
    note([](QInputDialog& dialog) {
        dialog.setTextValue("why is it so late?\nask them");
        dialog.accept();
    });
    const auto fields = window.details().fields().findItems("Note", Qt::MatchExactly, 0);
    ASSERT_EQ(1, fields.size());
    EXPECT_TRUE(fields.front()->text(1).startsWith("why is it so late?"));
    EXPECT_TRUE(window.model()
                    .data(window.model().index(5, 0), Qt::ToolTipRole)
                    .toString()
                    .contains("ask them"));
    EXPECT_TRUE(window.model()
                    .data(window.model().index(5, 0), Qt::AccessibleTextRole)
                    .toString()
                    .contains("why is it so late?"));
    EXPECT_FALSE(window.model().data(window.model().index(6, 0), Qt::ToolTipRole).isValid());
    ASSERT_TRUE(waitUntil([&] { return QFile::exists(log + ".notes.json"); }));
    window.marks().setText(window.document().indexRow(5), {});
    EXPECT_TRUE(window.marks().isEmpty());
    EXPECT_TRUE(window.details().fields().findItems("Note", Qt::MatchExactly, 0).isEmpty());
    ASSERT_TRUE(waitUntil([&] { return !QFile::exists(log + ".notes.json"); }));
}

TEST_F(MarksInTheWindow, ANoteStaysWithItsRowWhereAnotherViewComesMeanwhile)
{
    window.table().goTo(5);
    const timeline::IndexRow row = window.document().indexRow(5);
    note([&](QInputDialog& dialog) {
        RowFilter errors;
        errors.showOnly(timeline::Column::level, "0");
        window.document().setFilter(errors);
        EXPECT_TRUE(waitForRows(window.document()));
        dialog.setTextValue("of row 5");
        dialog.accept();
    });
    ASSERT_EQ(1u, window.marks().all().size());
    ASSERT_NE(nullptr, window.marks().of(row));
    EXPECT_EQ("of row 5", window.marks().of(row)->text);
}

TEST_F(MarksInTheWindow, ANoteThatCanNotBeKeptIsShown)
{
    window.table().goTo(5);
    note([](QInputDialog& dialog) {
        dialog.setTextValue("why is it so late?" + QString(Marks::longestText, '?'));
        dialog.accept(); // past its button
    });
    EXPECT_TRUE(window.marks().isEmpty());
    EXPECT_TRUE(window.notice().contains("why is it so late?")) << window.notice().toStdString();
}

TEST_F(MarksInTheWindow, ANoteThatIsTooLongIsNotTaken)
{
    window.table().goTo(5);
    note([](QInputDialog& dialog) {
        const auto* taking = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        dialog.setTextValue(QString(Marks::longestText + 7, 'x'));
        EXPECT_FALSE(taking->isEnabled());
        EXPECT_TRUE(dialog.labelText().contains("7 characters"))
            << dialog.labelText().toStdString();
        dialog.setTextValue(QString(Marks::longestText, 'x'));
        EXPECT_TRUE(taking->isEnabled());
        dialog.accept();
    });
    ASSERT_EQ(1u, window.marks().all().size());
    EXPECT_EQ(Marks::longestText, window.marks().all().front().note.text.size());
}

TEST_F(MarksInTheWindow, AClickBesideARowSetsItsBookmark)
{
    auto* gutter = window.table().findChild<MarkGutter*>();
    ASSERT_NE(nullptr, gutter);
    EXPECT_GT(gutter->width(), 0);
    window.table().goTo(0);
    const QImage before = gutter->grab().toImage();
    int y = 0;
    while (gutter->placeAt(y) != 3u && y < gutter->height()) ++y;
    QTest::mouseClick(gutter, Qt::LeftButton, {}, QPoint(5, y + 2));
    EXPECT_EQ(3u, window.table().currentPlace());
    ASSERT_NE(nullptr, window.marks().of(window.document().indexRow(3)));
    settle();
    EXPECT_NE(before, gutter->grab().toImage());
    QTest::mouseClick(gutter, Qt::LeftButton, {}, QPoint(5, 1));
    EXPECT_EQ(1u, window.marks().all().size()) << "no row is beside the headers";
    QHelpEvent help(QEvent::ToolTip, QPoint(5, y + 2), gutter->mapToGlobal(QPoint(5, y + 2)));
    QApplication::sendEvent(gutter, &help);
    EXPECT_EQ("Bookmark", QToolTip::text());
}

TEST_F(MarksInTheWindow, StandInAListThatGoesToThem)
{
    window.marks().setText(window.document().indexRow(40), "late");
    window.marks().toggleBookmark(20);
    press(Command::markList);
    QTreeWidget& list = window.markList().list();
    ASSERT_TRUE(window.markList().isVisible());
    ASSERT_EQ(2, list.topLevelItemCount());
    EXPECT_EQ("row 20", list.topLevelItem(0)->text(3));
    EXPECT_EQ("late", list.topLevelItem(1)->text(2));
    list.setCurrentItem(list.topLevelItem(1));
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(40u, window.table().currentPlace());
    list.setCurrentItem(list.topLevelItem(0));
    QTest::keyClick(&list, Qt::Key_Delete);
    ASSERT_EQ(1, list.topLevelItemCount());
    EXPECT_EQ("late", list.topLevelItem(0)->text(2));
    QTest::keyClick(&list, Qt::Key_Escape);
    EXPECT_FALSE(window.markList().isVisible());
}

} // namespace
} // namespace viewer
