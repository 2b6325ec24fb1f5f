#include "hosts/common/look/interface_language.h"

#include "hosts/common/look/key_list.h"
#include "hosts/desktop/log/filter_bar.h"
#include "hosts/desktop/log/find_bar.h"
#include "hosts/desktop/log/list_table.h"
#include "hosts/desktop/log/log_view.h"
#include "hosts/desktop/support/test_window.h"
#include "hosts/desktop/translations/translation_file.h"
#include "hosts/desktop/window/pane_keys.h"
#include "hosts/desktop/window/task_pad_view.h"

#include <QAbstractButton>
#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTest>
#include <QTreeWidget>

#include <gmock/gmock.h>

#include <map>
#include <set>

namespace desktop {

namespace {

using testing::HasSubstr;

constexpr int english = 1033;

struct Language {
    int identifier;
    const char* code;
};

constexpr Language languages[] = {{1031, "de"}, {1034, "es"}, {1036, "fr"}, {1041, "ja"}};

/// Every text of a window, by what it is on: those of actions, and of all widgets in it.
std::map<std::pair<const QObject*, std::string>, QString> textsOf(const QWidget& window)
{
    std::map<std::pair<const QObject*, std::string>, QString> texts;
    const auto add = [&](const QObject* of, const char* what, const QString& text) {
        if (!text.isEmpty()) texts[{of, what}] = text;
    };
    for (const auto* action : window.findChildren<QAction*>()) {
        add(action, "text", action->text());
        add(action, "statusTip", action->statusTip());
    }
    for (const auto* widget : window.findChildren<QWidget*>()) {
        add(widget, "toolTip", widget->toolTip());
        add(widget, "accessibleName", widget->accessibleName());
        if (const auto* label = qobject_cast<const QLabel*>(widget))
            add(label, "text", label->text());
        if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
            add(button, "text", button->text());
        if (const auto* edit = qobject_cast<const QLineEdit*>(widget))
            add(edit, "placeholder", edit->placeholderText());
        if (const auto* menu = qobject_cast<const QMenu*>(widget))
            add(menu, "title", menu->title());
    }
    return texts;
}

TEST(InterfaceLanguage, AnOpenWindowChangesThroughoutAndBackToEnglish)
{
    TestWindow shown;
    shown.showLog("KoCSMgr");
    shown.window->action(Command::find).trigger();
    shown.window->action(Command::filter).trigger();
    settle();
    const auto before = textsOf(*shown.window);
    for (const auto& language : languages) {
        SCOPED_TRACE(language.code);
        std::map<QString, std::set<QString>> translations;
        for (const auto& text : translatedTexts(language.code))
            translations[text.source].insert(text.translation);

        shown.chooseLanguage(language.identifier);
        const auto now = textsOf(*shown.window);
        int compared = 0;
        for (const auto& [place, text] : before) {
            const auto known = translations.find(text);
            if (known == translations.end()) continue;
            ++compared;
            const auto found = now.find(place);
            ASSERT_NE(now.end(), found) << text.toStdString();
            EXPECT_EQ(1U, known->second.count(found->second))
                << place.second << ' ' << text.toStdString() << " became "
                << found->second.toStdString();
        }
        EXPECT_GT(compared, 100) << "menus, bars and panes have many more texts";
        EXPECT_EQ(1U, translations["Orvan Diagnostic Tool"].count(
                          shown.window->windowTitle().section(QStringLiteral(" - "), -1)));
    }
    shown.chooseLanguage(english);
    const auto after = textsOf(*shown.window);
    for (const auto& [place, text] : before) {
        const auto found = after.find(place);
        if (found == after.end()) continue;
        EXPECT_EQ(text, found->second) << place.second;
    }
}

TEST(InterfaceLanguage, ALogOnShowStaysAsItIs)
{
    TestWindow shown;
    shown.showLog("KoCSMgr");
    LogView& log = shown.log();
    log.table().goTo(30);
    shown.window->action(Command::toggleBookmark).trigger();
    log.filterBar().tick(5, "RuleEngine", false);
    shown.window->action(Command::find).trigger();
    log.findBar().findChildren<QLineEdit*>().front()->setText(QStringLiteral("Attempt"));
    settle();
    const int rows = log.model().rowCount();
    const int row = log.table().currentIndex().row();
    const QString line = log.model().rowText(row);

    shown.chooseLanguage(1031);

    EXPECT_TRUE(shown.pane().logShown());
    EXPECT_EQ(rows, log.model().rowCount());
    EXPECT_EQ(row, log.table().currentIndex().row());
    EXPECT_EQ(line, log.model().rowText(row));
    EXPECT_EQ(QStringLiteral("Attempt"), log.findBar().condition().text);
    QStringList labels;
    for (const auto* label : log.findChildren<QLabel*>()) labels << label->text();
    EXPECT_EQ(1, labels.filter(QRegularExpression(QStringLiteral("^\\d+ von \\d+$"))).size())
        << "the count of hits";
    EXPECT_EQ(1, labels.filter(QRegularExpression(QStringLiteral(" von .* Zeilen$"))).size())
        << "the count of rows";
    EXPECT_EQ(QStringLiteral("Komponente"),
              log.model().headerData(4, Qt::Horizontal, Qt::DisplayRole).toString());
    QStringList buttons;
    for (const auto* button : log.filterBar().findChildren<QAbstractButton*>())
        buttons << button->text();
    EXPECT_TRUE(buttons.contains(QStringLiteral("Komponente: RuleEngine ")));
    shown.window->action(Command::showAll).trigger();
    EXPECT_FALSE(log.model().index(30, 0).data(Qt::DecorationRole).isNull()) << "the bookmark";
}

TEST(InterfaceLanguage, WhatTheToolPutIntoThePanesChangesToo)
{
    TestWindow shown;
    const auto title = [&] { return shown.window->windowTitle().section(" - ", 0, 0); };
    const auto firstCard = [&] {
        return shown.pane().taskPad().findChild<QAbstractButton*>("task-1")->text();
    };
    shown.chooseLanguage(1036);
    EXPECT_EQ(QStringLiteral("Configurer les macro-traces"), firstCard());
    EXPECT_EQ(QStringLiteral("Diagnostics Kelma Orvan"), title());
    EXPECT_EQ(title(), shown.pane().selectedName());

    shown.showLog("KoCSMgr");
    shown.window->showNode("KoCSMgr");
    const auto header = [&] {
        return shown.pane().table()->model()->headerData(3, Qt::Horizontal).toString();
    };
    EXPECT_EQ(QStringLiteral("Date et heure"), header());
    const int rows = shown.pane().table()->model()->rowCount();
    shown.chooseLanguage(english);
    EXPECT_EQ(QStringLiteral("Time Stamp"), header());
    EXPECT_EQ(rows, shown.pane().table()->model()->rowCount());
}

TEST(InterfaceLanguage, TheWindowOfADefaultLanguageOpensInIt)
{
    TestWindow shown;
    shown.chooseLanguage(1036);
    EXPECT_EQ(QStringLiteral("&Fichier"), shown.window->menuBar()->actions().front()->text());
    shown.reopen();
    EXPECT_EQ(QStringLiteral("&File"), shown.window->menuBar()->actions().front()->text())
        << "the next run begins with the user's language";
}

TEST(InterfaceLanguage, TheListOfKeysAndItsButtonSpeakTheLanguage)
{
    TestWindow shown;
    shown.chooseLanguage(1031);
    KeyList keys(*shown.window, PaneKeys::groups());
    EXPECT_EQ(QStringLiteral("Tasten"), keys.windowTitle());
    const auto* list = keys.findChild<QTreeWidget*>();
    EXPECT_EQ(QStringLiteral("Befehl"), list->headerItem()->text(0));
    EXPECT_EQ(QStringLiteral("Datei"), list->topLevelItem(0)->text(0));
    EXPECT_EQ(1,
              list->findItems(QStringLiteral("Weitersuchen"), Qt::MatchExactly | Qt::MatchRecursive)
                  .size());
    QStringList buttons;
    for (const auto* button : keys.findChildren<QAbstractButton*>())
        buttons << QString(button->text()).remove(QLatin1Char('&'));
    EXPECT_THAT(buttons, testing::Contains(QStringLiteral("Schließen"))) << "a text of Qt's own";
}

TEST(InterfaceLanguage, ANoticeIsSaidAgainInTheNewLanguage)
{
    TestWindow shown;
    shown.window->showProblem([] { return MainWindow::tr("%1 rows copied.").arg(3); });
    shown.chooseLanguage(1036);
    EXPECT_EQ(QStringLiteral("3 lignes copiées."), shown.window->problem());
}

TEST(InterfaceLanguage, TheLettersOfMenusAndBarsAreUnique)
{
    TestWindow shown;
    shown.showLog("KoCSMgr");
    shown.window->action(Command::find).trigger();
    shown.window->action(Command::filter).trigger();
    const auto check = [](const QString& where, const QStringList& texts) {
        std::set<QChar> letters;
        for (const QString& text : texts) {
            const auto at = text.indexOf(QLatin1Char('&'));
            if (at < 0) continue;
            EXPECT_LT(text[at + 1].unicode(), 0x80) << text.toStdString();
            EXPECT_TRUE(letters.insert(text[at + 1].toLower()).second)
                << where.toStdString() << ": " << text.toStdString();
        }
        return letters.size();
    };
    const auto checkAll = [&] {
        QStringList always;
        for (const auto* action : shown.window->menuBar()->actions()) always << action->text();
        for (const auto* label : shown.log().findBar().findChildren<QLabel*>())
            if (label->buddy()) always << label->text();
        for (const auto* button : shown.log().filterBar().findChildren<QAbstractButton*>())
            if (button->isVisible()) always << button->text();
        EXPECT_EQ(9U, check(QStringLiteral("window"), always));
        for (const auto* menu : shown.window->findChildren<QMenu*>()) {
            QStringList texts;
            for (const auto* action : menu->actions())
                if (!action->isSeparator()) texts << action->text();
            for (const auto* button : menu->findChildren<QAbstractButton*>())
                texts << button->text();
            check(menu->title(), texts);
        }
    };
    checkAll();
    for (const auto& language : languages) {
        SCOPED_TRACE(language.code);
        shown.chooseLanguage(language.identifier);
        checkAll();
    }
}

TEST(InterfaceLanguage, ChoosesByThePrimaryLanguageAndFallsBackToEnglish)
{
    testApplication();
    InterfaceLanguage language;
    struct Case {
        const char* because;
        int identifier;
        const char* code;
    };
    const Case cases[] = {
        {"French", 1036, "fr"},
        {"French of Canada", 3084, "fr"},
        {"Italian has no texts", 1040, "en"},
        {"German of Switzerland", 2055, "de"},
        {"none", 0, "en"},
        {"Spanish of Mexico", 2058, "es"},
        {"Japanese", 1041, "ja"},
        {"English", 1033, "en"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        language.choose(c.identifier);
        EXPECT_EQ(QLatin1String(c.code), language.code());
    }
}

} // namespace

} // namespace desktop
