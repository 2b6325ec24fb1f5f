#include "hosts/common/look/help_window.h"
#include "hosts/common/look/key_list.h"
#include "hosts/common/look/mnemonics.h"
#include "hosts/viewer/support/test_logs.h"
#include "hosts/viewer/window/main_window.h"
#include "support/places.h"
#include "support/windows/test_application.h"

#include <QApplication>
#include <QScreen>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>

namespace viewer {
namespace {

using testing::HasSubstr;

class ViewerHelp : public testing::Test {
protected:
    ViewerHelp()
        : settings((testApplication(), logs.folder() + "/viewer.ini"), QSettings::IniFormat),
          window(settings)
    {
        window.show();
        window.activateWindow();
        settle();
    }

    static HelpWindow* manual()
    {
        for (QWidget* shown : QApplication::topLevelWidgets())
            if (auto* help = qobject_cast<HelpWindow*>(shown); help && help->isVisible())
                return help;
        return nullptr;
    }

    /// Opens the list of keys by its key, looks at it, and closes it by Esc.
    void withKeys(const std::function<void(KeyList&, QTreeWidget&)>& look)
    {
        window.activateWindow();
        settle();
        bool looked = false;
        QTimer::singleShot(0, [&] {
            settle();
            auto* keys = qobject_cast<KeyList*>(QApplication::activeModalWidget());
            if (keys == nullptr) return;
            look(*keys, *keys->findChild<QTreeWidget*>());
            looked = true;
            QTest::keyClick(keys, Qt::Key_Escape);
        });
        QTest::keyClick(&window, Qt::Key_F1, Qt::ShiftModifier);
        EXPECT_TRUE(looked);
    }

    static QTreeWidgetItem* rowOf(const QTreeWidget& list, const QString& command)
    {
        const auto found = list.findItems(command, Qt::MatchExactly | Qt::MatchRecursive);
        return found.isEmpty() ? nullptr : found.front();
    }

    TestLogs logs;
    QSettings settings;
    MainWindow window;
};

TEST_F(ViewerHelp, OpensTheManualAtThePageOfTheViewer)
{
    window.setManual(QString::fromUtf8(built::data) + QStringLiteral("/help"));
    QTest::keyClick(&window, Qt::Key_F1);
    ASSERT_NE(nullptr, manual());
    EXPECT_EQ(QStringLiteral("viewer.html"), manual()->shownPage());
    EXPECT_EQ(QString(), window.notice());
    manual()->activateWindow();
    settle();
    QTest::keyClick(manual(), Qt::Key_Escape);
    EXPECT_EQ(nullptr, manual());
}

TEST_F(ViewerHelp, SaysThatThereIsNoManual)
{
    window.setManual(logs.folder());
    QTest::keyClick(&window, Qt::Key_F1);
    settle();
    EXPECT_EQ(nullptr, manual());
    EXPECT_THAT(window.notice().toStdString(), HasSubstr("manual"));
}

TEST_F(ViewerHelp, ListsEveryCommandWithItsKey)
{
    withKeys([&](KeyList&, QTreeWidget& list) {
        for (const CommandInfo& info : Commands::all()) {
            const QAction& action = window.action(info.command);
            const auto found = list.findItems(withoutMnemonic(action.text()),
                                              Qt::MatchEndsWith | Qt::MatchRecursive);
            const QString key = action.shortcut().toString(QKeySequence::NativeText);
            EXPECT_TRUE(std::any_of(found.begin(), found.end(), [&](const QTreeWidgetItem* item) {
                return item->text(1) == key;
            })) << info.text;
        }
    });
}

TEST_F(ViewerHelp, ListsTheKeysOfThePanesToo)
{
    withKeys([](KeyList&, QTreeWidget& list) {
        const QTreeWidgetItem* lane = rowOf(list, QStringLiteral("Within the lane"));
        ASSERT_NE(nullptr, lane);
        EXPECT_EQ(QStringLiteral("In the lanes of a call"), lane->parent()->text(0));
        for (int group = 0; group < list.topLevelItemCount(); ++group)
            for (int row = 0; row < list.topLevelItem(group)->childCount(); ++row) {
                const QTreeWidgetItem* key = list.topLevelItem(group)->child(row);
                EXPECT_FALSE(key->text(1).isEmpty()) << key->text(0).toStdString();
                EXPECT_FALSE(key->text(2).isEmpty()) << key->text(0).toStdString();
            }
    });
}

TEST_F(ViewerHelp, ListsKeysInTheWindowsLanguage)
{
    const struct {
        Command language;
        const char* title;
        const char* command;
    } cases[] = {
        {Command::german, "Tasten", "In der Bahn"},
        {Command::french, "Touches", "Dans le couloir"},
        {Command::spanish, "Teclas", "Dentro del carril"},
        {Command::japanese, "キー", "レーンの中"},
    };
    for (const auto& expected : cases) {
        SCOPED_TRACE(expected.title);
        window.run(expected.language);
        settle();
        withKeys([&](KeyList& keys, QTreeWidget& list) {
            EXPECT_THAT(keys.windowTitle().toStdString(), HasSubstr(expected.title));
            EXPECT_NE(nullptr, rowOf(list, QString::fromUtf8(expected.command)));
        });
    }
    window.run(Command::english);
}

TEST_F(ViewerHelp, KeysFitASmallScreen)
{
    withKeys([](KeyList& keys, QTreeWidget&) {
        const QSize room = keys.screen()->availableSize();
        EXPECT_LE(keys.width(), room.width());
        EXPECT_LE(keys.height(), room.height());
    });
}

} // namespace
} // namespace viewer
