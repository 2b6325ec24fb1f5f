#include "hosts/desktop/window/main_window.h"

#include "console/console.h"
#include "console/wizard_sheet.h"
#include "hosts/common/look/theme.h"
#include "hosts/desktop/log/list_table.h"
#include "hosts/desktop/log/log_view.h"
#include "hosts/desktop/support/test_window.h"
#include "hosts/desktop/window/recent_sites.h"
#include "hosts/desktop/window/task_pad_view.h"

#include <QAbstractButton>
#include <QAction>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QTest>
#include <QTreeView>
#include <QUrl>

#include <gmock/gmock.h>

#include <set>

namespace desktop {

namespace {

using testing::HasSubstr;

constexpr const char* consoleItems[] = {"mnuConfigureMacroTrace", "mnuConfigureMicroTraces",
                                        "mnuDisableAllTraces",    "mnuStartNewLogFiles",
                                        "mnuGatherLogFiles",      "mnuConfigureLogSettings",
                                        "mnuOpenLogFile",         "mnuChangeLanguage"};

/// All actions of the menus, those of menus inside menus too.
QList<QAction*> menuActions(const QList<QAction*>& actions)
{
    QList<QAction*> all;
    for (QAction* action : actions) {
        if (action->isSeparator()) continue;
        if (action->menu())
            all << menuActions(action->menu()->actions());
        else
            all << action;
    }
    return all;
}

QString signalTime(TestWindow& shown)
{
    return QString::fromStdString(shown.server.folder().read("site/registry.reg"))
        .section("\"Cycle Diag File Time Set\"=", 1)
        .section('\n', 0, 0);
}

TEST(MainWindow, OpensOnTheTaskPadWithSixTasks)
{
    TestWindow shown;
    const auto cards = shown.pane().taskPad().findChildren<QAbstractButton*>();
    ASSERT_EQ(6, cards.size());
    EXPECT_EQ(QStringLiteral("Configure Macro Traces"), cards[0]->text());
    EXPECT_TRUE(cards[0]->isVisible());
    EXPECT_FALSE(cards[0]->accessibleDescription().isEmpty());
    EXPECT_EQ(QStringLiteral("Kelma Orvan Diagnostics - Sample Server - Orvan Diagnostic Tool"),
              shown.window->windowTitle());
}

TEST(MainWindow, EveryCommandHasAMenuEntryAndAKeyOfItsOwn)
{
    TestWindow shown;
    const auto inMenus = menuActions(shown.window->menuBar()->actions());
    std::set<std::string> keys;
    const auto check = [&](QAction* action, const std::string& name) {
        SCOPED_TRACE(name);
        ASSERT_NE(nullptr, action);
        EXPECT_TRUE(inMenus.contains(action));
        ASSERT_FALSE(action->shortcut().isEmpty());
        EXPECT_TRUE(keys.insert(action->shortcut().toString().toStdString()).second)
            << "used twice";
        EXPECT_FALSE(action->text().isEmpty());
    };
    for (const auto& info : Commands::all()) check(&shown.window->action(info.command), info.text);
    for (const char* name : consoleItems) check(shown.window->consoleAction(name), name);
}

TEST(MainWindow, MenuTextsAreThoseOfTheTool)
{
    TestWindow shown;
    const auto text = [&](const char* name) {
        return QString(shown.window->consoleAction(name)->text()).remove('&');
    };
    EXPECT_EQ(QStringLiteral("Configure Macro Traces"), text("mnuConfigureMacroTrace"));
    EXPECT_EQ(QStringLiteral("Reset to Default Traces"), text("mnuDisableAllTraces"));
    EXPECT_EQ(QStringLiteral("Open Log File"), text("mnuOpenLogFile"));
    EXPECT_EQ(QStringLiteral("Use this action to have Orvan close current log files and start "
                             "new ones."),
              shown.window->consoleAction("mnuStartNewLogFiles")->statusTip());
}

TEST(MainWindow, StartsNewLogFilesByTheCardTheMenuAndTheKey)
{
    TestWindow shown;
    const QString before = signalTime(shown);
    auto* card = shown.pane().taskPad().findChild<QAbstractButton*>("task-4");
    ASSERT_NE(nullptr, card);
    card->setFocus();
    QTest::keyClick(card, Qt::Key_Return);
    EXPECT_EQ(QStringLiteral("New log files started."), shown.window->statusText());
    const QString byCard = signalTime(shown);
    EXPECT_NE(before, byCard);

    shown.window->consoleAction("mnuStartNewLogFiles")->trigger();
    EXPECT_EQ(QStringLiteral("New log files started."), shown.window->statusText());
    EXPECT_EQ(QKeySequence("Ctrl+4"),
              shown.window->consoleAction("mnuStartNewLogFiles")->shortcut());
}

TEST(MainWindow, OpensALogFileThatThePersonPicks)
{
    TestWindow shown;
    const std::string path = "C:\\KelmaOrvan\\Logs\\" + shown.server.currentLog("KoNotify");
    shown.desktop.picks(path);
    shown.window->consoleAction("mnuOpenLogFile")->trigger();
    EXPECT_TRUE(shown.pane().logShown());
    EXPECT_EQ(QString::fromStdString(path), shown.pane().selectedName());
    EXPECT_EQ(QStringLiteral("Format Completed."), shown.window->statusText());
    EXPECT_GT(shown.log().model().rowCount(), 10);

    shown.window->consoleAction("mnuOpenLogFile")->trigger();
    EXPECT_EQ(QString::fromStdString(path), shown.pane().selectedName()) << "a cancelled picker";
}

TEST(MainWindow, WhatTheToolSaidOfALogGoesWithTheLog)
{
    TestWindow shown;
    shown.showLog("KoCSMgr");
    EXPECT_EQ(QStringLiteral("Format Completed."), shown.window->statusText());
    shown.window->showNode("KoCSMgr");
    EXPECT_EQ(QString(), shown.window->statusText());

    shown.showLog("KoCSMgr");
    shown.window->consoleAction("mnuStartNewLogFiles")->trigger();
    EXPECT_EQ(QStringLiteral("New log files started."), shown.window->statusText())
        << "said while the selection moved";
}

TEST(MainWindow, OpensALogByEnterInTheListOfLogs)
{
    TestWindow shown;
    shown.showLog("KoCSMgr");
    shown.window->showNode("KoCSMgr");
    ListTable& table = *shown.pane().table();
    table.goTo(1);
    QTest::keyClick(&table, Qt::Key_Return);
    settle();
    EXPECT_TRUE(shown.pane().logShown());
    EXPECT_NE(QString::fromStdString(shown.server.currentLog("KoCSMgr")),
              shown.pane().selectedName());
}

TEST(MainWindow, ShowsTheProcessesBelowTheirNode)
{
    TestWindow shown;
    shown.window->showNode("Processes");
    QTreeView* list = nullptr;
    for (auto* view : shown.pane().findChildren<QTreeView*>())
        if (view->accessibleName() == "Processes") list = view;
    ASSERT_NE(nullptr, list);
    EXPECT_TRUE(list->isVisible());
    ASSERT_EQ(5, list->model()->rowCount(list->rootIndex()));
    emit list->activated(list->model()->index(0, 0, list->rootIndex()));
    EXPECT_EQ("KoCSMgr", shown.console().currentScopeItem().key());
}

TEST(MainWindow, CommandsOfALogAreOfferedOnALogAlone)
{
    TestWindow shown;
    EXPECT_FALSE(shown.window->action(Command::find).isEnabled());
    EXPECT_FALSE(shown.window->action(Command::copy).isEnabled());
    shown.showLog("KoCSMgr");
    EXPECT_TRUE(shown.window->action(Command::find).isEnabled());
    EXPECT_TRUE(shown.window->action(Command::copy).isEnabled());
    shown.window->showNode("KoCSMgr");
    EXPECT_FALSE(shown.window->action(Command::find).isEnabled());
    EXPECT_TRUE(shown.window->action(Command::copy).isEnabled());
}

TEST(MainWindow, CopiesTheSelectedLines)
{
    TestWindow shown;
    shown.showLog("KoCSMgr");
    shown.log().table().goTo(2);
    shown.window->action(Command::copy).trigger();
    EXPECT_EQ(shown.log().model().rowText(2).trimmed() + '\n',
              QGuiApplication::clipboard()->text());
    shown.window->action(Command::selectAll).trigger();
    shown.window->action(Command::copyCsv).trigger();
    EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(
        "#,Timestamp,Source,Trace No.,Component,Level,Trace\r\n000001,"));
}

TEST(MainWindow, GoesFromTheTreeToTheViewAndBack)
{
    TestWindow shown;
    shown.showLog("KoCSMgr");
    shown.window->activateWindow();
    shown.pane().tree().setFocus();
    shown.window->action(Command::switchPane).trigger();
    EXPECT_EQ(&shown.log().table(), shown.window->focusWidget());
    shown.window->action(Command::switchPane).trigger();
    EXPECT_EQ(&shown.pane().tree(), shown.window->focusWidget());
}

TEST(MainWindow, ChangesTheThemeAndTheSizeOfTraces)
{
    TestWindow shown;
    shown.showLog("KoCSMgr");
    shown.window->action(Command::darkTheme).trigger();
    EXPECT_TRUE(theme::isDark(QApplication::palette()));
    EXPECT_EQ(QStringLiteral("dark"), shown.settings.value("window/theme").toString());
    shown.window->action(Command::lightTheme).trigger();
    EXPECT_FALSE(theme::isDark(QApplication::palette()));

    const int usual = shown.log().table().font().pointSize();
    const int row = shown.log().table().rowHeight(0);
    for (int step = 0; step < 4; ++step) shown.window->action(Command::largerText).trigger();
    EXPECT_EQ(usual + 4, shown.log().table().font().pointSize());
    EXPECT_GT(shown.log().table().rowHeight(0), row);
    shown.window->action(Command::smallerText).trigger();
    EXPECT_EQ(usual + 3, shown.log().table().font().pointSize());
    shown.window->action(Command::normalText).trigger();
    EXPECT_EQ(usual, shown.log().table().font().pointSize());
}

TEST(MainWindow, SaysThatTheSiteHasGoneAndStays)
{
    TestWindow shown;
    std::filesystem::rename(shown.server.site(), shown.server.folder() / "elsewhere");
    shown.window->action(Command::refresh).trigger();
    EXPECT_THAT(shown.window->problem().toStdString(), HasSubstr("no longer there"));
    std::filesystem::rename(shown.server.folder() / "elsewhere", shown.server.site());
}

TEST(MainWindow, SaysThatALanguageHasNoCatalogue)
{
    TestWindow shown;
    shown.window->setTool(nullptr);
    shown.tool->close();
    shown.tool.reset();
    std::filesystem::remove(shown.server.site() +
                            "/drive_c/OrvanDiagnostics/ZMKbrandingres_FRA.txt");
    std::ofstream(shown.server.site() + "/site.ini", std::ios::trunc) << "[site]\nlanguage=1036\n";
    // No data beside the tool to supply the catalogue from.
    shown.tool = std::make_unique<OpenTool>(shown.server.site(), "", HostFacts{}, shown.desktop);
    shown.window->setTool(shown.tool.get());
    EXPECT_THAT(shown.window->problem().toStdString(), HasSubstr("missing or damaged"));
    EXPECT_EQ(QStringLiteral("&File"), shown.window->menuBar()->actions().front()->text())
        << "the window stays with English as the tool does";
    EXPECT_EQ(6, shown.pane().taskPad().findChildren<QAbstractButton*>().size());
}

TEST(MainWindow, WritesItsSizeWhenItHasChangedAlone)
{
    TestWindow shown;
    const QString file = shown.settings.fileName();
    shown.window->resize(900, 640);
    shown.window->close();
    shown.settings.sync();
    ASSERT_TRUE(QFile::remove(file));

    shown.window->show();
    shown.window->close();
    shown.settings.sync();
    EXPECT_FALSE(QFile::exists(file));

    shown.window->show();
    shown.window->resize(1000, 700);
    shown.window->close();
    shown.settings.sync();
    EXPECT_TRUE(QFile::exists(file));
}

TEST(MainWindow, MakesTheReaderOfLogsWhenTheFirstLogIsShown)
{
    TestWindow shown;
    EXPECT_TRUE(shown.window->findChildren<LogView*>().empty());
    EXPECT_TRUE(shown.window->findChildren<ListTable*>().empty());
    shown.window->run(Command::largerText);

    shown.showLog("KoCSMgr");
    EXPECT_EQ(1, shown.window->findChildren<LogView*>().size());
    EXPECT_EQ(theme::traceFont().pointSize() + 1, shown.log().table().font().pointSize());
}

/// The menu of recent sites, as it is when the menu of files is opened.
QMenu& recentMenu(TestWindow& shown)
{
    QMenu* recent = nullptr;
    for (auto* menu : shown.window->findChildren<QMenu*>()) {
        if (menu->title() == "&File") emit menu->aboutToShow();
        if (menu->title().contains("Recent")) recent = menu;
    }
    return *recent;
}

TEST(MainWindow, GreysRecentSitesThatAreGoneAndForgetsThem)
{
    TestWindow shown;
    const QString present = QString::fromStdString(shown.server.folder().makeFolder("present"));
    rememberSite(shown.settings, QStringLiteral("/nowhere/at all"));
    rememberSite(shown.settings, present);

    const QList<QAction*> entries = recentMenu(shown).actions();
    ASSERT_EQ(4, entries.size());
    EXPECT_TRUE(entries[0]->isEnabled());
    EXPECT_FALSE(entries[1]->isEnabled());
    EXPECT_TRUE(entries[1]->text().contains("/nowhere/at all (not there)"));
    entries[3]->trigger();
    EXPECT_EQ(QStringList{present}, recentSites(shown.settings));
    EXPECT_EQ(1, recentMenu(shown).actions().size()) << "nothing more to forget";
}

/// Drops paths of the machine on a window. Whether it took them.
bool drop(QWidget& window, const QStringList& paths)
{
    QMimeData carried;
    QList<QUrl> urls;
    for (const QString& path : paths) urls << QUrl::fromLocalFile(path);
    carried.setUrls(urls);
    const QPoint place = window.rect().center();
    QDragEnterEvent enter(place, Qt::CopyAction, &carried, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(&window, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent dropped(place, Qt::CopyAction, &carried, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &dropped);
    settle();
    return dropped.isAccepted();
}

TEST(MainWindow, TakesAFolderThatIsDroppedForASiteAndAFileForALog)
{
    TestWindow shown;
    QStringList sites;
    QStringList files;
    QObject::connect(shown.window.get(), &MainWindow::siteAsked,
                     [&](const QString& folder) { sites << folder; });
    QObject::connect(shown.window.get(), &MainWindow::fileAsked,
                     [&](const QString& path) { files << path; });
    const QString folder = QString::fromStdString(shown.server.site());
    const QString file = QString::fromStdString(shown.server.folder() / "site/site.ini");

    EXPECT_TRUE(drop(*shown.window, {folder}));
    EXPECT_TRUE(drop(*shown.window, {file}));
    EXPECT_FALSE(drop(*shown.window, {folder, file})) << "there is one window";

    EXPECT_EQ(QStringList{folder}, sites);
    EXPECT_EQ(QStringList{file}, files);
}

/// A standard gather at its progress page, with the run about to begin.
WizardSheet& gatherAtItsStart(TestWindow& shown)
{
    shown.console().clickTask("5");
    auto sheet = shown.console().currentView().propertySheetProvider().lastSheet();
    sheet->wizard()->next();
    return *sheet->wizard();
}

TEST(MainWindow, StaysWithItsSiteWhileACancelledGatherEnds)
{
    TestWindow shown;
    const auto another = QString::fromStdString(shown.server.folder().makeFolder("another"));
    rememberSite(shown.settings, another);
    QAction* recent = recentMenu(shown).actions().value(0);
    ASSERT_NE(nullptr, recent);
    QStringList asked;
    QObject::connect(shown.window.get(), &MainWindow::siteAsked,
                     [&](const QString& folder) { asked << folder; });

    WizardSheet& wizard = gatherAtItsStart(shown);
    int pumps = 0;
    shown.desktop.onPump([&] {
        if (++pumps > 1) return;
        wizard.cancel();
        recent->trigger();
    });
    wizard.tick(*wizard.timers().front());
    EXPECT_GE(pumps, 1);
    EXPECT_TRUE(asked.isEmpty()) << "the run would go on with a tool that has gone";

    recent->trigger();
    EXPECT_EQ(QStringList{another}, asked);
}

} // namespace

} // namespace desktop
