#include "hosts/viewer/window/main_window.h"

#include "hosts/common/look/spoken_label.h"
#include "hosts/viewer/details/details_pane.h"
#include "hosts/viewer/facets/facet_pane.h"
#include "hosts/viewer/files/row_targets.h"
#include "hosts/viewer/find/find_bar.h"
#include "hosts/viewer/histogram/time_strip.h"
#include "hosts/viewer/support/test_logs.h"
#include "hosts/viewer/window/filter_bar.h"
#include "support/windows/test_application.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDropEvent>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QStatusBar>
#include <QTest>
#include <QTreeWidget>
#include <QWheelEvent>

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

TEST_F(ViewerWindow, NoTwoEntriesOfAMenuHaveOneLetter)
{
    std::set<std::pair<CommandMenu, QChar>> letters;
    for (const CommandInfo& info : Commands::all()) {
        const QString text = QString::fromUtf8(info.text);
        const auto sign = text.indexOf(QLatin1Char('&'));
        if (sign < 0) continue; // languages go by their own names
        const QChar letter = text.at(sign + 1).toLower();
        EXPECT_TRUE(letters.emplace(info.menu, letter).second) << info.text;
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

TEST_F(ViewerWindow, SaysManyFailuresInOneNotice)
{
    for (int log = 0; log < 1000; ++log)
        emit window.document().failed(QStringLiteral("log %1 can't be read").arg(log));
    EXPECT_EQ("", window.notice()) << "it is made once all have come";
    settle();
    EXPECT_TRUE(window.notice().startsWith("log 0 can't be read\nlog 1 "));
    EXPECT_TRUE(window.notice().endsWith("and 995 more")) << window.notice().toStdString();
}

TEST_F(ViewerWindow, NamesWhatItsStatusBarShows)
{
    open({logs.writeRows("KoCSMgr", 10, 0, 1000)});
    const auto* progress = window.statusBar()->findChild<QProgressBar*>();
    const auto* state = window.statusBar()->findChild<SpokenLabel*>();
    ASSERT_NE(nullptr, progress);
    ASSERT_NE(nullptr, state);
    EXPECT_EQ("Progress", progress->accessibleName());
    EXPECT_EQ("State", state->accessibleName());
    EXPECT_EQ("10 rows", state->spokenText());
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
    EXPECT_TRUE(waitUntil([] {
        return QApplication::clipboard()->text() == "00:00:03:000,Conv,12,CallFlow,3,row 3\n";
    })) << QApplication::clipboard()->text().toStdString();
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

TEST_F(ViewerWindow, AValueIsHiddenAndShownByItsBox)
{
    open({logs.write("KoCSMgr", rawLine(1000, "A", 3, "a") + rawLine(2000, "B", 1, "b") +
                                    rawLine(3000, "A", 0, "c"))});
    FacetPane& facets = window.facets();
    ASSERT_TRUE(
        waitUntil([&] { return facets.item(timeline::Column::component, "A") != nullptr; }));
    QTreeWidgetItem* a = facets.item(timeline::Column::component, "A");
    EXPECT_EQ("2", a->text(1));
    a->setCheckState(0, Qt::Unchecked);
    ASSERT_TRUE(waitForRows(window.document()));
    EXPECT_EQ(1, window.model().rowCount());
    EXPECT_TRUE(window.filterBar().said().contains("Component is not A"));
    window.run(Command::showAll);
    ASSERT_TRUE(waitForRows(window.document()));
    EXPECT_EQ(3, window.model().rowCount());
    EXPECT_EQ(Qt::Checked, facets.item(timeline::Column::component, "A")->checkState(0));
}

TEST_F(ViewerWindow, ShowsTheCurrentRowsComponentAloneAndKeepsTheRow)
{
    open({logs.write("KoCSMgr", rawLine(1000, "A", 3, "a") + rawLine(2000, "B", 1, "b") +
                                    rawLine(3000, "A", 0, "c"))});
    window.table().goTo(2);
    window.run(Command::onlyComponent);
    ASSERT_TRUE(waitForRows(window.document()));
    EXPECT_EQ(2, window.model().rowCount());
    EXPECT_EQ(1u, window.table().currentPlace());
    window.run(Command::hideLevel);
    ASSERT_TRUE(waitForRows(window.document()));
    EXPECT_EQ(1, window.model().rowCount());
    EXPECT_EQ("a", window.model().text(0, RowColumn::trace));
}

TEST_F(ViewerWindow, ATextThatIsTypedNarrowsTheRows)
{
    open({logs.writeRows("KoCSMgr", 100, 0, 1000)});
    window.run(Command::filter);
    window.filterBar().with().setText("row 9");
    ASSERT_TRUE(waitUntil([&] { return window.model().rowCount() == 11; }));
    window.filterBar().expression().setChecked(true);
    window.filterBar().with().setText("(");
    ASSERT_TRUE(waitUntil([&] { return window.filterBar().said().contains("("); }));
    EXPECT_EQ(11, window.model().rowCount()) << "the filter of before stays";
    window.filterBar().with().setText("row 9$");
    ASSERT_TRUE(waitUntil([&] { return window.model().rowCount() == 1; }));
}

TEST_F(ViewerWindow, ADragOverTheTimesNarrowsThemAndADoubleClickTakesAll)
{
    open({logs.writeRows("KoCSMgr", 1000, 0, 1000)});
    TimeStrip& times = window.timeStrip();
    ASSERT_TRUE(waitUntil([&] { return times.span().has_value(); }));
    const timeline::Moment day = timeline::dayOf(2025, 2, 20);
    const QPoint from(times.xOf(day + 200'000), 20);
    const QPoint to(times.xOf(day + 400'000), 20);
    QTest::mousePress(&times, Qt::LeftButton, {}, from);
    QTest::mouseMove(&times, to);
    QTest::mouseRelease(&times, Qt::LeftButton, {}, to);
    ASSERT_TRUE(waitForRows(window.document()));
    EXPECT_NEAR(200, window.model().rowCount(), 6);
    QTest::mouseDClick(&times, Qt::LeftButton, {}, from);
    ASSERT_TRUE(waitForRows(window.document()));
    EXPECT_EQ(1000, window.model().rowCount());
}

TEST_F(ViewerWindow, FindsHitsAndErrorsByKey)
{
    open({logs.writeRows("KoCSMgr", 100, 0, 1000)});
    window.run(Command::nextError);
    ASSERT_TRUE(waitUntil([&] { return window.table().currentPlace() == 0u; }));
    window.run(Command::nextError);
    ASSERT_TRUE(waitUntil([&] { return window.table().currentPlace() == 20u; }));
    window.run(Command::find);
    window.findBar().text().setText("row 3");
    ASSERT_TRUE(waitUntil([&] { return window.findBar().said() == "11 hits"; }));
    window.run(Command::findNext);
    EXPECT_EQ(30u, window.table().currentPlace());
    EXPECT_EQ("2 of 11", window.findBar().said());
    window.run(Command::findPrevious);
    window.run(Command::findPrevious);
    EXPECT_EQ(39u, window.table().currentPlace()) << "on from the other end";
}

TEST_F(ViewerWindow, SavesAFilterByAName)
{
    open({logs.writeRows("KoCSMgr", 100, 0, 1000)});
    EXPECT_FALSE(window.action(Command::saveFilter).isEnabled());
    window.table().goTo(0);
    window.run(Command::onlyLevel);
    ASSERT_TRUE(waitForRows(window.document()));
    ASSERT_EQ(5, window.model().rowCount());
    window.saveFilter("errors");
    window.run(Command::showAll);
    window.takeFilter(logs.folder() + "/filters/errors.json");
    ASSERT_TRUE(waitForRows(window.document()));
    EXPECT_EQ(5, window.model().rowCount());
    EXPECT_EQ("", window.notice());
    window.saveFilter("../errors");
    settle();
    EXPECT_TRUE(window.notice().contains("can't be the name of a filter"));
}

TEST_F(ViewerWindow, TakesTheValuesOfALineWithoutAFormFromItsRow)
{
    open({logs.write("KoCSMgr",
                     rawLine(1000, "A", 3, "a") + "second line\n" + rawLine(2000, "B", 1, "b"))});
    window.table().goTo(1);
    window.run(Command::onlyLevel);
    ASSERT_TRUE(waitForRows(window.document()));
    EXPECT_EQ(2, window.model().rowCount());
    EXPECT_EQ("", window.notice());
}

TEST_F(ViewerWindow, SaysThatALineInFrontOfAllRowsHasNoLevel)
{
    open({logs.write("KoCSMgr", "no form\n" + rawLine(2000, "B", 1, "b"))});
    window.table().goTo(0);
    window.run(Command::onlyLevel);
    window.run(Command::hideLevel);
    EXPECT_EQ(2, window.model().rowCount());
    EXPECT_EQ("The current row has no such value", window.statusBar()->currentMessage());
}

TEST_F(ViewerWindow, GoesToTheNextHitOnceItIsKnown)
{
    open({logs.writeRows("KoCSMgr", 100, 0, 1000)});
    window.table().goTo(50);
    window.run(Command::find);
    window.findBar().text().setText("row 7");
    QTest::keyClick(&window.findBar().text(), Qt::Key_Return);
    EXPECT_TRUE(waitUntil([&] { return window.table().currentPlace() == 70u; }));
}

TEST_F(ViewerWindow, ASearchForAnErrorOutlivesAnotherView)
{
    open({logs.writeRows("KoCSMgr", 100, 0, 1000)});
    window.table().goTo(50);
    window.run(Command::nextError);
    RowFilter filter;
    filter.since = timeline::dayOf(2025, 2, 20) + 40'000;
    window.document().setFilter(filter);
    ASSERT_TRUE(waitForRows(window.document()));
    EXPECT_TRUE(waitUntil([&] { return window.table().currentPlace() == 20u; }));
    EXPECT_EQ("row 60", window.model().text(20, RowColumn::trace));
}

TEST_F(ViewerWindow, NarrowsTimesWhereTheCurrentRowHasNone)
{
    open({logs.write("KoCSMgr",
                     "no form\n" + rawLine(1000, "A", 3, "a") + rawLine(9000, "B", 1, "b"))});
    ASSERT_TRUE(waitUntil([&] { return window.timeStrip().span().has_value(); }));
    window.table().goTo(0);
    window.run(Command::narrowTimes);
    const RowFilter& filter = window.document().filter();
    const timeline::Moment day = timeline::dayOf(2025, 2, 20);
    ASSERT_TRUE(filter.since && filter.until);
    EXPECT_GT(*filter.since, day);
    EXPECT_LT(*filter.until, day + 10'000);
}

TEST_F(ViewerWindow, TimesThatLeaveNothingOutAreNoCondition)
{
    open({logs.writeRows("KoCSMgr", 1000, 0, 1000)});
    ASSERT_TRUE(waitUntil([&] { return window.timeStrip().span().has_value(); }));
    window.table().goTo(500);
    window.run(Command::narrowTimes);
    window.run(Command::narrowTimes);
    ASSERT_TRUE(waitForRows(window.document()));
    EXPECT_NEAR(250, window.model().rowCount(), 10);
    for (int times = 0; times < 3; ++times) window.run(Command::widenTimes);
    EXPECT_TRUE(window.document().filter().passesAll());
}

TEST_F(ViewerWindow, AWheelsSmallTurnsMakeOneStep)
{
    open({logs.writeRows("KoCSMgr", 1000, 0, 1000)});
    TimeStrip& times = window.timeStrip();
    ASSERT_TRUE(waitUntil([&] { return times.span().has_value(); }));
    const QPointF middle(times.width() / 2.0, 20);
    const auto turn = [&] {
        QWheelEvent event(middle, times.mapToGlobal(middle), {}, {0, 30}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&times, &event);
    };
    for (int turns = 0; turns < 3; ++turns) turn();
    EXPECT_TRUE(window.document().filter().passesAll());
    turn();
    const RowFilter& filter = window.document().filter();
    ASSERT_TRUE(filter.since && filter.until);
    EXPECT_NEAR(500'000, static_cast<double>(*filter.until - *filter.since), 20'000);
}

TEST_F(ViewerWindow, WhatATextFieldRefusedStaysInIt)
{
    open({logs.writeRows("KoCSMgr", 100, 0, 1000)});
    window.run(Command::filter);
    window.filterBar().expression().setChecked(true);
    window.filterBar().with().setText("row (");
    ASSERT_TRUE(waitUntil([&] { return window.filterBar().said().contains("("); }));
    window.table().goTo(0);
    window.run(Command::onlyLevel);
    ASSERT_TRUE(waitForRows(window.document()));
    EXPECT_EQ("row (", window.filterBar().with().text());
    window.run(Command::showAll);
    EXPECT_EQ("", window.filterBar().with().text());
}

TEST_F(ViewerWindow, KeepsTextsOfAFilterThatItsFieldsHaveNoRoomFor)
{
    open({logs.writeRows("KoCSMgr", 100, 0, 1000)});
    RowFilter filter;
    filter.texts = {{"row", false, false, false}, {"9", false, false, false}};
    window.document().setFilter(filter);
    ASSERT_TRUE(waitForRows(window.document()));
    EXPECT_EQ(19, window.model().rowCount());
    EXPECT_EQ("row", window.filterBar().with().text());
    EXPECT_TRUE(window.filterBar().said().contains("with \"9\""));
    window.filterBar().with().setText("row 1");
    ASSERT_TRUE(waitUntil([&] { return window.model().rowCount() == 1; }));
    EXPECT_EQ("row 19", window.model().text(0, RowColumn::trace));
}

TEST_F(ViewerWindow, ShowsNoDetailsOfARowThatIsGone)
{
    open({logs.writeRows("KoCSMgr", 100, 0, 1000)});
    window.run(Command::details);
    window.table().goTo(5);
    RowFilter none;
    none.showOnly(timeline::Column::component, "None");
    window.document().setFilter(none);
    ASSERT_TRUE(waitForRows(window.document()));
    EXPECT_EQ(0, window.model().rowCount());
    EXPECT_EQ("", window.details().trace().toPlainText());
    EXPECT_FALSE(window.action(Command::copyValue).isEnabled());
}

TEST_F(ViewerWindow, GoesToATime)
{
    open({logs.writeRows("KoCSMgr", 100, 0, 1000)});
    EXPECT_TRUE(window.goToTime("00:00:42"));
    EXPECT_EQ(42u, window.table().currentPlace());
    EXPECT_FALSE(window.goToTime("soon"));
}

TEST_F(ViewerWindow, ShowsAllOfTheCurrentRow)
{
    open({logs.write("KoCSMgr", rawLine(1000, "CallFlow", 3, "a trace"))});
    window.table().goTo(0);
    EXPECT_EQ("a trace", window.details().trace().toPlainText());
    EXPECT_EQ("a trace", window.details().value());
    const auto fields = window.details().fields().findItems("CallFlow", Qt::MatchExactly, 1);
    ASSERT_EQ(1, fields.size());
    EXPECT_EQ("Component", fields.front()->text(0));
}

TEST_F(ViewerWindow, SaysHowManyOfTheSelectedRowsWereCopied)
{
    open({logs.writeRows("KoCSMgr", mostCopied + 5, 0, 1)});
    window.table().goTo(0);
    window.table().selectAll();
    window.run(Command::copyRaw);
    EXPECT_TRUE(waitUntil([&] {
        return window.statusBar()->currentMessage().startsWith("100,000 of 100,005 ");
    })) << window.statusBar()->currentMessage().toStdString();
    EXPECT_EQ(mostCopied, static_cast<std::size_t>(QApplication::clipboard()->text().count('\n')));
    EXPECT_FALSE(window.action(Command::stop).isEnabled());
}

TEST_F(ViewerWindow, GivesUpCopyingAndLeavesTheClipboardAsItWas)
{
    open({logs.writeRows("KoCSMgr", mostCopied, 0, 1)});
    QApplication::clipboard()->setText("before");
    window.table().goTo(0);
    window.table().selectAll();
    window.run(Command::copyCsv);
    ASSERT_TRUE(window.action(Command::stop).isEnabled());
    QTest::keyClick(&window, Qt::Key_Period, Qt::ControlModifier);
    EXPECT_TRUE(waitUntil(
        [&] { return window.statusBar()->currentMessage().startsWith("Copying was given up"); }));
    EXPECT_EQ("before", QApplication::clipboard()->text());
}

TEST_F(ViewerWindow, TheLastCopyIsTheOneThatCounts)
{
    open({logs.writeRows("KoCSMgr", mostCopied, 0, 1)});
    window.table().goTo(0);
    window.table().selectAll();
    window.run(Command::copyCsv);
    window.table().goTo(3);
    window.run(Command::copyRaw);
    EXPECT_TRUE(waitUntil(
        [&] { return window.statusBar()->currentMessage().startsWith("1 rows copied"); }));
    EXPECT_EQ("00:00:00:003,Conv,12,CallFlow,3,row 3\n", QApplication::clipboard()->text());
}

TEST_F(ViewerWindow, EndsWhileItStillWrites)
{
    const QString log = logs.writeRows("KoCSMgr", mostCopied, 0, 1);
    const QString path = logs.folder() + "/rows.csv";
    auto other = std::make_unique<MainWindow>(settings);
    other->document().open({log});
    ASSERT_TRUE(waitForRows(other->document()));
    other->table().goTo(0);
    other->table().selectAll();
    other->run(Command::copy);
    other->exportTo(path);
    other.reset();
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(ViewerWindow, ShowsTheRestOfALongTraceWhenItIsAskedFor)
{
    const std::string longText(1'000'000, 'x');
    open({logs.write("KoCSMgr", rawLine(1000, "A", 3, longText) + rawLine(2000, "A", 3, "next"))});
    window.table().goTo(0);
    DetailsPane& details = window.details();
    EXPECT_EQ(DetailsPane::mostAtOnce, details.trace().toPlainText().size());
    EXPECT_EQ(1'000'000, details.value().size()) << "all of it is copied";
    ASSERT_FALSE(details.showAll().isHidden());
    details.showAll().click();
    EXPECT_EQ(1'000'000, details.trace().toPlainText().size());
    EXPECT_TRUE(details.showAll().isHidden());
    window.table().goTo(1);
    EXPECT_EQ("next", details.trace().toPlainText());
    EXPECT_TRUE(details.showAll().isHidden());
}

TEST_F(ViewerWindow, WritesTheRowsOnShowToAFile)
{
    open({logs.writeRows("KoCSMgr", 100, 0, 1000)});
    const QString path = logs.folder() + "/rows.csv";
    window.exportTo(path);
    ASSERT_TRUE(waitUntil(
        [&] { return window.statusBar()->currentMessage().startsWith("100 rows written"); }));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(101, file.readAll().count('\n'));
    window.exportTo(logs.folder() + "/none/rows.csv");
    EXPECT_TRUE(waitUntil([&] { return window.notice().contains("can't be written"); }));
}

} // namespace
} // namespace viewer
