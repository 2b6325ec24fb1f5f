#include "hosts/desktop/window/help_topics.h"

#include "console/console.h"
#include "hosts/desktop/sheets/sheet_dialog.h"
#include "hosts/desktop/support/test_window.h"
#include "hosts/desktop/window/task_pad_view.h"
#include "settings/about_box.h"
#include "support/places.h"

#include <QAbstractButton>
#include <QAction>
#include <QFile>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <gmock/gmock.h>

#include <algorithm>

namespace desktop {

namespace {

using testing::HasSubstr;

/// The menu items that open a wizard or a sheet.
constexpr const char* sheetItems[] = {"mnuConfigureMacroTrace",  "mnuConfigureMicroTraces",
                                      "mnuDisableAllTraces",     "mnuGatherLogFiles",
                                      "mnuConfigureLogSettings", "mnuChangeLanguage"};

TEST(Help, TheKeyAsksTheToolWhichShowsItsManual)
{
    TestWindow shown;
    shown.window->run(Command::help);
    ASSERT_EQ(1U, shown.desktop.helpShown().size());
    EXPECT_THAT(shown.desktop.helpShown()[0].file, HasSubstr("OrvanDiagnosticTool"));
}

TEST(Help, IsAskedForOnTheNodeTheViewOrTheToolByWhereTheFocusIs)
{
    TestWindow shown;
    shown.window->activateWindow();
    const auto entered = [&](const char* routine) {
        std::string path = shown.tool->context().g_log->strLogFile().substr(2);
        std::replace(path.begin(), path.end(), '\\', '/');
        const std::string log = shown.server.folder().read("site/drive_c" + path);
        std::size_t times = 0;
        for (auto at = log.find(routine); at != std::string::npos; at = log.find(routine, at + 1))
            ++times;
        return times;
    };
    QWidget* card = shown.pane().taskPad().findChild<QAbstractButton*>("task-1");
    for (QWidget* focused : {static_cast<QWidget*>(&shown.pane().tree()), card}) {
        focused->setFocus();
        ASSERT_TRUE(focused->hasFocus());
        shown.window->run(Command::help);
    }
    EXPECT_EQ(2U, shown.desktop.helpShown().size());
    EXPECT_EQ(0U, entered("Entering [snapinOrvanDiagnostics]SnapIn_Help"));

    card->clearFocus();
    shown.window->run(Command::help);
    EXPECT_EQ(3U, shown.desktop.helpShown().size());
    EXPECT_EQ(1U, entered("Entering [snapinOrvanDiagnostics]SnapIn_Help"));
}

TEST(Help, TheKeyShowsAWizardsOwnTopic)
{
    TestWindow shown;
    const std::pair<const char*, int> topics[] = {
        {"mnuConfigureMacroTrace", 200},  {"mnuConfigureMicroTraces", 210},
        {"mnuDisableAllTraces", 220},     {"mnuGatherLogFiles", 300},
        {"mnuConfigureLogSettings", 400}, {"mnuChangeLanguage", 410},
    };
    int asked = -1;
    QObject::connect(shown.window.get(), &MainWindow::helpAsked, [&](int topic) { asked = topic; });
    for (const auto& [item, topic] : topics) {
        SCOPED_TRACE(item);
        shown.window->consoleAction(item)->trigger();
        settle();
        SheetDialog* dialog = shown.pane().sheet();
        ASSERT_NE(nullptr, dialog);
        QTest::keyClick(dialog, Qt::Key_F1);
        EXPECT_EQ(topic, asked);
        dialog->reject();
        settle();
    }
}

TEST(Help, TheAboutBoxHasItsTopicToo)
{
    TestWindow shown;
    int asked = -1;
    QObject::connect(shown.window.get(), &MainWindow::helpAsked, [&](int topic) { asked = topic; });
    QTimer::singleShot(0, [&] {
        settle();
        QWidget* box = QApplication::activeModalWidget();
        if (box) QTest::keyClick(box, Qt::Key_F1);
        shown.tool->snapIn().showAbout().cmdOK_Click();
    });
    shown.window->run(Command::about);
    EXPECT_EQ(helpTopic::about, asked);
}

TEST(Help, EveryPageHasATopicThatTheManualHas)
{
    TestWindow shown;
    QFile list(QString::fromUtf8(built::data) + QStringLiteral("/help/topics.txt"));
    ASSERT_TRUE(list.open(QIODevice::ReadOnly));
    const QString topics = QString::fromUtf8(list.readAll());
    for (const char* item : sheetItems) {
        shown.console().clickMenuItem(item);
        auto sheet = shown.console().currentView().propertySheetProvider().lastSheet();
        for (int place = 1; place <= sheet->pageCount(); ++place) {
            const int topic = helpTopic::ofPage(sheet->page(place).name());
            EXPECT_NE(helpTopic::contents, topic) << sheet->page(place).name();
            EXPECT_TRUE(topics.contains(QStringLiteral("\n%1 ").arg(topic))) << topic;
        }
        sheet->cancel();
    }
    EXPECT_EQ(helpTopic::contents, helpTopic::ofPage("ppgUnknown"));
}

} // namespace

} // namespace desktop
