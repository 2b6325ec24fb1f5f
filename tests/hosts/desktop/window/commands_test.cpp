#include "hosts/common/filters/saved_filters.h"
#include "hosts/common/look/help_window.h"
#include "hosts/common/look/key_list.h"
#include "hosts/common/look/theme.h"
#include "hosts/desktop/log/filter_bar.h"
#include "hosts/desktop/log/find_bar.h"
#include "hosts/desktop/log/list_table.h"
#include "hosts/desktop/log/log_view.h"
#include "hosts/desktop/support/open_program.h"
#include "hosts/desktop/support/person.h"
#include "hosts/desktop/window/about_dialog.h"

#include <QAction>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QTimer>
#include <QToolBar>
#include <QTreeView>
#include <QTreeWidget>

#include <gmock/gmock.h>

#include <set>

namespace desktop {

namespace {

using Check = std::function<void()>;

/// A command, with what makes the window ready for it and gives the look at what came of it.
struct Row {
    Command command;
    Check (*ready)(OpenProgram& shown);
};

int currentRow(OpenProgram& shown)
{
    return shown.log().table().currentIndex().row();
}

/// A log with its cursor on a row in the middle.
void readLog(OpenProgram& shown, int row = 7)
{
    shown.showLog("KoCSMgr");
    shown.log().table().goTo(row);
    shown.log().table().setFocus();
}

bool marked(OpenProgram& shown, int row)
{
    return shown.log().model().index(row, 0).data(Qt::DecorationRole).isValid();
}

void mark(OpenProgram& shown, std::initializer_list<int> rows)
{
    for (const int row : rows) {
        shown.log().table().goTo(row);
        shown.log().toggleBookmark();
    }
}

void findText(OpenProgram& shown, const char* text)
{
    readLog(shown, 0);
    shown.log().startFind();
    person::type(QString::fromLatin1(text));
}

/// Two rows of a level, and the way from one to the other.
Check expectMark(OpenProgram& shown, const char* level, int direction)
{
    shown.server.folder().write(
        "site/drive_c/KelmaOrvan/Logs/" + shown.server.currentLog("KoCSMgr"),
        "17:30:00:001,Conv,1,X,2,a\r\n17:30:00:001,Conv,1,X," + std::string(level) +
            ",b\r\n17:30:00:001,Conv,1,X," + level + ",c\r\n");
    readLog(shown, direction > 0 ? 1 : 2);
    return [&shown, direction] { EXPECT_EQ(direction > 0 ? 2 : 1, currentRow(shown)); };
}

int textSize(OpenProgram& shown)
{
    return shown.log().table().font().pointSize();
}

Check expectTheme(OpenProgram& shown, Command command, theme::Scheme before, bool dark)
{
    theme::apply(before);
    return [&shown, command, dark] {
        EXPECT_EQ(dark, theme::isDark(QApplication::palette()));
        EXPECT_TRUE(shown.window().action(command).isChecked());
        theme::apply(theme::Scheme::light);
    };
}

/// Expects that a modal dialog of a kind comes, and closes it with Escape.
template <typename Dialog>
Check expectDialog(std::function<void(Dialog& dialog)> look)
{
    auto seen = std::make_shared<bool>(false);
    person::answerNextDialog([seen, look](QWidget& shown) {
        auto* dialog = dynamic_cast<Dialog*>(&shown);
        *seen = dialog != nullptr;
        if (dialog) look(*dialog);
        person::press(Qt::Key_Escape);
    });
    return [seen] { EXPECT_TRUE(*seen); };
}

const Row fileRows[] = {
    {Command::openSite,
     [](OpenProgram& shown) -> Check {
         const std::string other = shown.server.folder().makeFolder("other");
         std::filesystem::create_directories(other + "/drive_c");
         person::pickNext(other);
         return [&shown, other] {
             ASSERT_NE(nullptr, shown.program.tool());
             EXPECT_EQ(other, shown.program.tool()->site().folder());
         };
     }},
    {Command::makeSample,
     [](OpenProgram& shown) -> Check {
         const std::string made = shown.server.folder() / "made";
         person::pickNext(made);
         return [&shown, made] {
             EXPECT_EQ(made, shown.program.tool()->site().folder());
             EXPECT_TRUE(std::filesystem::exists(made + "/OrvanDirDb.sqlite"));
         };
     }},
    {Command::quit,
     [](OpenProgram& shown) -> Check {
         return [&shown] { EXPECT_FALSE(shown.window().isVisible()); };
     }},
    {Command::refresh,
     [](OpenProgram& shown) -> Check {
         shown.showLog("KoCSMgr");
         shown.window().showNode("KoCSMgr");
         const int before = shown.pane().table()->model()->rowCount();
         shown.server.folder().write("site/drive_c/KelmaOrvan/Logs/"
                                     "diag_KoCSMgr_20250220_173000.txt",
                                     "17:30:00:001,Conv,1,X,2,late\r\n");
         return
             [&shown, before] { EXPECT_EQ(before + 1, shown.pane().table()->model()->rowCount()); };
     }},
};

const Row editRows[] = {
    {Command::copy,
     [](OpenProgram& shown) -> Check {
         readLog(shown);
         QGuiApplication::clipboard()->clear();
         return [&shown] {
             EXPECT_EQ(shown.log().model().rowText(7).trimmed() + '\n',
                       QGuiApplication::clipboard()->text());
         };
     }},
    {Command::copyCsv,
     [](OpenProgram& shown) -> Check {
         readLog(shown);
         QGuiApplication::clipboard()->clear();
         return [] {
             const QString text = QGuiApplication::clipboard()->text();
             EXPECT_TRUE(text.startsWith("#,Timestamp,")) << text.toStdString();
             EXPECT_EQ(2, text.count("\r\n")) << text.toStdString();
         };
     }},
    {Command::selectAll,
     [](OpenProgram& shown) -> Check {
         readLog(shown);
         return [&shown] {
             EXPECT_EQ(shown.log().model().rowCount(),
                       shown.log().table().selectionModel()->selectedRows().size());
         };
     }},
    {Command::find,
     [](OpenProgram& shown) -> Check {
         readLog(shown);
         return [&shown] {
             EXPECT_TRUE(OpenProgram::field(shown.log().findBar(), "Text to find").hasFocus());
         };
     }},
    {Command::findNext,
     [](OpenProgram& shown) -> Check {
         findText(shown, "RuleEngine");
         const int first = currentRow(shown);
         return [&shown, first] {
             EXPECT_GT(currentRow(shown), first);
             EXPECT_TRUE(shown.log().model().rowText(currentRow(shown)).contains("RuleEngine"));
         };
     }},
    {Command::findPrevious,
     [](OpenProgram& shown) -> Check {
         findText(shown, "RuleEngine");
         const int first = currentRow(shown);
         shown.log().findNext();
         return [&shown, first] { EXPECT_EQ(first, currentRow(shown)); };
     }},
    {Command::goToTime,
     [](OpenProgram& shown) -> Check {
         readLog(shown);
         return [&shown] {
             EXPECT_TRUE(OpenProgram::field(shown.log().findBar(), "Time to go to").hasFocus());
         };
     }},
    {Command::filter,
     [](OpenProgram& shown) -> Check {
         readLog(shown);
         return [&shown] {
             EXPECT_TRUE(OpenProgram::field(shown.log().filterBar(), "Filter by text").hasFocus());
         };
     }},
    {Command::filterColumn,
     [](OpenProgram& shown) -> Check {
         readLog(shown);
         return [&shown] {
             QStringList offered;
             for (auto* menu : shown.log().filterBar().findChildren<QMenu*>())
                 if (menu->isVisible())
                     for (auto* entry : menu->actions()) offered << entry->text();
             EXPECT_EQ(QStringList({"Timestamp", "Trace No.", "Trace"}), offered);
             person::press(Qt::Key_Escape);
         };
     }},
    {Command::savedFilters,
     [](OpenProgram& shown) -> Check {
         readLog(shown);
         RowFilter filter;
         filter.showOnly(timeline::Column::component, "RuleEngine");
         SavedFilters::besideSettings(shown.settings).save("Rules", filter);
         const int all = shown.log().model().rowCount();
         return [&shown, all] {
             auto* menu = shown.window().findChild<QMenu*>("savedFilters");
             ASSERT_NE(nullptr, menu);
             ASSERT_EQ(1, menu->actions().size());
             EXPECT_EQ(QStringLiteral("Rules"), menu->actions().front()->text());
             menu->actions().front()->trigger();
             menu->close();
             EXPECT_LT(shown.log().model().rowCount(), all);
         };
     }},
    {Command::saveFilter,
     [](OpenProgram& shown) -> Check {
         readLog(shown);
         shown.log().filterBar().tick(5, "RuleEngine", false);
         person::answerNextDialog([](QWidget&) {
             person::type(QStringLiteral("Rules"));
             person::press(Qt::Key_Return);
         });
         return [&shown] {
             const auto filters = SavedFilters::besideSettings(shown.settings);
             EXPECT_EQ(QStringList({"Rules"}), filters.names());
             EXPECT_FALSE(SavedFilters::read(filters.fileOf("Rules"))
                              .shows(timeline::Column::component, "CallFlow"));
         };
     }},
    {Command::openFilter,
     [](OpenProgram& shown) -> Check {
         readLog(shown);
         const int all = shown.log().model().rowCount();
         person::pickNext(
             shown.server.folder().write("given.json", R"({"texts": [{"text": "RuleEngine"}]})"));
         return [&shown, all] { EXPECT_LT(shown.log().model().rowCount(), all); };
     }},
    {Command::showAll,
     [](OpenProgram& shown) -> Check {
         readLog(shown);
         const int all = shown.log().model().rowCount();
         shown.log().filterBar().tick(5, "RuleEngine", false);
         EXPECT_LT(shown.log().model().rowCount(), all);
         return [&shown, all] { EXPECT_EQ(all, shown.log().model().rowCount()); };
     }},
    {Command::highlight,
     [](OpenProgram& shown) -> Check {
         findText(shown, "RuleEngine");
         return [&shown] { EXPECT_EQ(1U, shown.log().kept().size()); };
     }},
    {Command::nextError, [](OpenProgram& shown) -> Check { return expectMark(shown, "0", 1); }},
    {Command::previousError,
     [](OpenProgram& shown) -> Check { return expectMark(shown, "0", -1); }},
    {Command::nextWarning, [](OpenProgram& shown) -> Check { return expectMark(shown, "1", 1); }},
    {Command::previousWarning,
     [](OpenProgram& shown) -> Check { return expectMark(shown, "1", -1); }},
    {Command::follow,
     [](OpenProgram& shown) -> Check {
         readLog(shown);
         return [&shown] { EXPECT_TRUE(shown.log().following()); };
     }},
    {Command::openInViewer,
     [](OpenProgram& shown) -> Check {
         readLog(shown);
         auto opened = std::make_shared<QString>();
         shown.program.viewer = [opened](const QString& path) {
             *opened = path;
             return true;
         };
         return [&shown, opened] {
             EXPECT_EQ(shown.server.logs() + "/" + shown.server.currentLog("KoCSMgr"),
                       opened->toStdString());
         };
     }},
    {Command::toggleBookmark,
     [](OpenProgram& shown) -> Check {
         readLog(shown);
         EXPECT_FALSE(marked(shown, 7));
         return [&shown] { EXPECT_TRUE(marked(shown, 7)); };
     }},
    {Command::nextBookmark,
     [](OpenProgram& shown) -> Check {
         readLog(shown);
         mark(shown, {2, 9});
         shown.log().table().goTo(4);
         return [&shown] { EXPECT_EQ(9, currentRow(shown)); };
     }},
    {Command::previousBookmark,
     [](OpenProgram& shown) -> Check {
         readLog(shown);
         mark(shown, {2, 9});
         shown.log().table().goTo(4);
         return [&shown] { EXPECT_EQ(2, currentRow(shown)); };
     }},
    {Command::clearBookmarks,
     [](OpenProgram& shown) -> Check {
         readLog(shown);
         mark(shown, {2, 9});
         return [&shown] { EXPECT_FALSE(marked(shown, 2) || marked(shown, 9)); };
     }},
};

const Row viewRows[] = {
    {Command::details,
     [](OpenProgram& shown) -> Check {
         readLog(shown);
         const bool before = shown.log().detailsShown();
         return [&shown, before] { EXPECT_NE(before, shown.log().detailsShown()); };
     }},
    {Command::switchPane,
     [](OpenProgram& shown) -> Check {
         readLog(shown);
         shown.pane().tree().setFocus();
         return [&shown] { EXPECT_TRUE(shown.log().table().hasFocus()); };
     }},
    {Command::largerText,
     [](OpenProgram& shown) -> Check {
         readLog(shown);
         const int before = textSize(shown);
         return [&shown, before] { EXPECT_EQ(before + 1, textSize(shown)); };
     }},
    {Command::smallerText,
     [](OpenProgram& shown) -> Check {
         readLog(shown);
         const int before = textSize(shown);
         return [&shown, before] { EXPECT_EQ(before - 1, textSize(shown)); };
     }},
    {Command::normalText,
     [](OpenProgram& shown) -> Check {
         readLog(shown);
         const int usual = textSize(shown);
         shown.window().run(Command::largerText);
         EXPECT_NE(usual, textSize(shown));
         return [&shown, usual] { EXPECT_EQ(usual, textSize(shown)); };
     }},
    {Command::systemTheme,
     [](OpenProgram& shown) -> Check {
         return expectTheme(shown, Command::systemTheme, theme::Scheme::dark, false);
     }},
    {Command::lightTheme,
     [](OpenProgram& shown) -> Check {
         return expectTheme(shown, Command::lightTheme, theme::Scheme::dark, false);
     }},
    {Command::darkTheme,
     [](OpenProgram& shown) -> Check {
         return expectTheme(shown, Command::darkTheme, theme::Scheme::light, true);
     }},
    {Command::help,
     [](OpenProgram&) -> Check {
         return [] {
             QString page;
             for (QWidget* window : QApplication::topLevelWidgets())
                 if (auto* help = qobject_cast<HelpWindow*>(window); help && help->isVisible())
                     page = help->shownPage();
             EXPECT_TRUE(page.endsWith(".html")) << page.toStdString();
         };
     }},
    {Command::keys,
     [](OpenProgram& shown) -> Check {
         return expectDialog<KeyList>([&shown](KeyList& keys) {
             auto* list = keys.findChild<QTreeWidget*>();
             for (const auto& info : Commands::all()) {
                 const QString name = shown.window().action(info.command).text().remove('&');
                 EXPECT_FALSE(list->findItems(name, Qt::MatchEndsWith | Qt::MatchRecursive).empty())
                     << info.text;
             }
         });
     }},
    {Command::about,
     [](OpenProgram&) -> Check {
         return expectDialog<AboutDialog>([](AboutDialog& about) {
             EXPECT_EQ(QStringLiteral("Orvan Diagnostic Tool"), about.windowTitle());
         });
     }},
};

class EveryCommand : public testing::TestWithParam<Row> {
protected:
    OpenProgram shown;
};

TEST_P(EveryCommand, DoesItsWorkByItsMenuEntry)
{
    const Check check = GetParam().ready(shown);
    person::choose(shown.window(), shown.window().action(GetParam().command));
    check();
}

TEST_P(EveryCommand, DoesItsWorkByItsKey)
{
    const Check check = GetParam().ready(shown);
    for (const auto& info : Commands::all())
        if (info.command == GetParam().command) person::press(QKeySequence(info.key));
    check();
}

std::string nameOfRow(const testing::TestParamInfo<Row>& row)
{
    for (const auto& info : Commands::all())
        if (info.command == row.param.command)
            return QString(info.text).remove(QRegularExpression("[^A-Za-z]")).toStdString();
    return "Unknown";
}

INSTANTIATE_TEST_SUITE_P(File, EveryCommand, testing::ValuesIn(fileRows), nameOfRow);
INSTANTIATE_TEST_SUITE_P(Edit, EveryCommand, testing::ValuesIn(editRows), nameOfRow);
INSTANTIATE_TEST_SUITE_P(View, EveryCommand, testing::ValuesIn(viewRows), nameOfRow);

TEST(Commands, AreAllInTheTable)
{
    std::multiset<Command> rows;
    for (const Row& row : fileRows) rows.insert(row.command);
    for (const Row& row : editRows) rows.insert(row.command);
    for (const Row& row : viewRows) rows.insert(row.command);
    std::multiset<Command> commands;
    for (const auto& info : Commands::all()) commands.insert(info.command);
    EXPECT_EQ(commands, rows);
}

TEST(Commands, TheToolBarGoesAndComesByMenuAndKey)
{
    OpenProgram shown;
    auto* bar = shown.window().findChild<QToolBar*>(QStringLiteral("toolBar"));
    ASSERT_TRUE(bar->isVisible());
    person::choose(shown.window(), *bar->toggleViewAction());
    EXPECT_FALSE(bar->isVisible());
    person::press(QKeySequence("Ctrl+T"));
    EXPECT_TRUE(bar->isVisible());
}

TEST(Commands, QuitEndsTheProgramThoughTheManualIsOpen)
{
    constexpr int tooLate = 3000;
    OpenProgram shown;
    person::press(QKeySequence("F1"));
    shown.window().activateWindow();
    settle();
    QGuiApplication::setQuitOnLastWindowClosed(true);
    QTimer::singleShot(0, [] { person::press(QKeySequence("Ctrl+Q")); });
    QTimer late;
    QObject::connect(&late, &QTimer::timeout, [] { QCoreApplication::exit(1); });
    late.start(tooLate);
    EXPECT_EQ(0, QApplication::exec());
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

TEST(Commands, ARecentSiteOpensByItsMenuEntry)
{
    OpenProgram shown;
    const std::string other = shown.server.folder().makeFolder("other");
    std::filesystem::create_directories(other + "/drive_c");
    shown.program.openSite(other);
    QMenu* recent = nullptr;
    for (auto* menu : shown.window().findChildren<QMenu*>())
        if (QString(menu->title()).remove('&') == "Recent Sites") recent = menu;
    ASSERT_NE(nullptr, recent);
    person::choose(shown.window(), *recent->menuAction());
    ASSERT_TRUE(waitUntil([&] { return recent->isVisible(); }));
    ASSERT_EQ(2, recent->actions().size());
    QAction* entry = recent->actions()[1];
    EXPECT_TRUE(entry->text().endsWith(QString::fromStdString(shown.server.site())));
    person::click(*recent, recent->actionGeometry(entry).center());
    EXPECT_EQ(shown.server.site(), shown.program.tool()->site().folder());
}

} // namespace

} // namespace desktop
