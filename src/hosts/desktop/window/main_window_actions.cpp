#include "hosts/common/look/elided_label.h"
#include "hosts/common/look/icons.h"
#include "hosts/common/look/mnemonics.h"
#include "hosts/common/look/plain_tool_tip.h"
#include "hosts/common/look/theme.h"
#include "hosts/desktop/log/list_table.h"
#include "hosts/desktop/log/log_view.h"
#include "hosts/desktop/open_tool.h"
#include "hosts/desktop/window/console_pane.h"
#include "hosts/desktop/window/main_window.h"
#include "hosts/desktop/window/start_page.h"

#include <QActionGroup>
#include <QDir>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QToolBar>

#include <set>

namespace desktop {

namespace {

/// Commands that need a log on show, and those that need any table of rows.
const std::set<Command> logCommands = {
    Command::find,         Command::findNext,         Command::findPrevious,
    Command::highlight,    Command::nextError,        Command::previousError,
    Command::filterColumn, Command::savedFilters,     Command::saveFilter,
    Command::openFilter,   Command::follow,           Command::openInViewer,
    Command::nextWarning,  Command::previousWarning,  Command::goToTime,
    Command::filter,       Command::showAll,          Command::toggleBookmark,
    Command::nextBookmark, Command::previousBookmark, Command::clearBookmarks,
    Command::details,      Command::largerText,       Command::smallerText,
    Command::normalText};
const QString columnsName = QStringLiteral("columns");
const std::set<Command> tableCommands = {Command::copy, Command::copyCsv, Command::selectAll};

QString toolTipOf(const QAction& action)
{
    const QString text = withoutMnemonic(action.text());
    const QString key = action.shortcut().toString(QKeySequence::NativeText);
    return plainToolTip(key.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, key));
}

} // namespace

void MainWindow::makeActions()
{
    auto* themes = new QActionGroup(this);
    for (const auto& info : Commands::all()) {
        auto* made = new QAction(this);
        made->setShortcut(QKeySequence::fromString(QString::fromLatin1(info.key)));
        if (*info.icon != '\0') made->setIcon(toolIcon(QString::fromLatin1(info.icon)));
        if (info.menu == CommandMenu::theme) {
            made->setCheckable(true);
            themes->addAction(made);
        }
        connect(made, &QAction::triggered, this, [this, command = info.command] { run(command); });
        addAction(made);
        actions_[info.command] = made;
    }
    actions_[Command::details]->setCheckable(true);
    actions_[Command::follow]->setCheckable(true);
    // The plus has a key of its own on few keyboards only.
    actions_[Command::largerText]->setShortcuts(
        {QKeySequence(QStringLiteral("Ctrl++")), QKeySequence(QStringLiteral("Ctrl+="))});
}

void MainWindow::makeMenus()
{
    for (const auto& info : Commands::menus())
        menus_[info.menu] =
            info.menu == CommandMenu::theme ? new QMenu(this) : menuBar()->addMenu(QString());
    for (const auto& info : Commands::all()) {
        QMenu* menu = menus_[info.menu];
        if (info.startsGroup) menu->addSeparator();
        menu->addAction(actions_[info.command]);
    }
    menus_[CommandMenu::view]->addMenu(menus_[CommandMenu::theme]);
    auto* columns = new QMenu(this);
    columns->setObjectName(columnsName);
    menus_[CommandMenu::view]->addMenu(columns);
    connect(menus_[CommandMenu::view], &QMenu::aboutToShow, this,
            [this, columns] { columns->menuAction()->setEnabled(pane_ && pane_->table()); });
    connect(columns, &QMenu::aboutToShow, this, [this, columns] {
        columns->clear();
        ListTable* table = pane_ ? pane_->table() : nullptr;
        if (table) table->offerColumns(*columns);
    });
    recent_ = new QMenu(this);
    menus_[CommandMenu::file]->insertMenu(actions_[Command::makeSample], recent_);
    connect(menus_[CommandMenu::file], &QMenu::aboutToShow, this, &MainWindow::rebuildRecentSites);
    connect(menus_[CommandMenu::action], &QMenu::aboutToShow, this,
            &MainWindow::rebuildConsoleItems);
    rebuildRecentSites();
}

void MainWindow::makeToolBar()
{
    toolBar_ = addToolBar(QString());
    toolBar_->setObjectName(QStringLiteral("toolBar"));
    toolBar_->setMovable(false);
    toolBar_->setIconSize(QSize(22, 22));
    QAction* toggle = toolBar_->toggleViewAction();
    toggle->setShortcut(QKeySequence(QStringLiteral("Ctrl+T")));
    addAction(toggle);
    menus_[CommandMenu::view]->insertAction(actions_[Command::largerText], toggle);
}

/// Gives every text of the window itself in the interface language; panes and bars show their own.
void MainWindow::showTexts()
{
    for (const auto& info : Commands::all()) {
        QAction* action = actions_[info.command];
        action->setText(Commands::tr(info.text));
        action->setStatusTip(Commands::tr(info.statusText));
        action->setToolTip(toolTipOf(*action));
    }
    for (const auto& info : Commands::menus())
        menus_[info.menu]->setTitle(Commands::tr(info.title));
    recent_->setTitle(tr("&Recent Sites"));
    findChild<QMenu*>(columnsName)->setTitle(tr("Col&umns"));
    toolBar_->setWindowTitle(tr("Tool Bar"));
    QAction* toggle = toolBar_->toggleViewAction();
    toggle->setText(tr("Tool &Bar"));
    toggle->setStatusTip(tr("Show or hide the buttons below the menus"));
    start_->showTexts();
    status_->setAccessibleName(tr("Status"));
    if (tool_) {
        const QString folder = QString::fromStdString(tool_->site().folder());
        const QString brief =
            QString(folder).replace(QDir::homePath() + QLatin1Char('/'), QStringLiteral("~/"));
        siteName_->setText(sample_ ? tr("Sample server: %1").arg(brief) : brief);
        siteName_->setToolTip(plainToolTip(tr("The site on show: %1").arg(folder)));
    }
    rebuildConsoleItems();
    updateTitle();
}

/// The tool's own items, as it declares them for the present selection: task menu, then top menu.
void MainWindow::rebuildConsoleItems()
{
    if (!tool_ || !pane_ || pane_->busy()) return;
    std::vector<MenuItem> items;
    std::size_t tasks = 0;
    pane_->perform([&](Console& console) {
        const ContextMenu taskMenu = console.taskMenu();
        const ContextMenu topMenu = console.topMenu();
        items = taskMenu.entries();
        tasks = items.size();
        items.insert(items.end(), topMenu.entries().begin(), topMenu.entries().end());
    });
    QStringList captions{actions_[Command::refresh]->text()};
    for (const auto& item : items) captions << QString::fromStdString(item.caption);
    captions = withMnemonics(captions);

    QMenu* menu = menus_[CommandMenu::action];
    const bool firstTime = consoleActions_.empty();
    for (std::size_t index = 0; index < items.size(); ++index) {
        const MenuItem& item = items[index];
        QAction*& made = consoleActions_[item.name];
        if (!made) {
            made = new QAction(this);
            made->setShortcut(keyOfConsoleItem(item.name));
            made->setIcon(toolIcon(iconOfConsoleItem(item.name)));
            connect(made, &QAction::triggered, this, [this, name = item.name] {
                if (!pane_) return;
                const auto click = [&](Console& console) { console.clickMenuItem(name); };
                changesServer(name) ? pane_->performChange(name, click) : pane_->perform(click);
            });
            if (index == tasks)
                menu->insertSeparator(menu->actions().value(menu->actions().size() - 2));
            menu->insertAction(menu->actions().value(menu->actions().size() - 2), made);
        }
        made->setText(captions[static_cast<qsizetype>(index) + 1]);
        made->setStatusTip(QString::fromStdString(item.statusBarText));
        made->setToolTip(toolTipOf(*made));
        made->setVisible(item.visible);
        made->setEnabled(item.enabled);
        if (firstTime) toolBar_->addAction(made);
        if (firstTime && index + 1 == tasks) toolBar_->addSeparator();
    }
    if (!firstTime) return;
    toolBar_->addSeparator();
    for (const Command command :
         {Command::refresh, Command::find, Command::filter, Command::toggleBookmark, Command::help})
        toolBar_->addAction(actions_[command]);
}

QAction* MainWindow::consoleAction(const std::string& name)
{
    const auto found = consoleActions_.find(name);
    return found == consoleActions_.end() ? nullptr : found->second;
}

void MainWindow::updateActions()
{
    const bool log = pane_ && pane_->logShown();
    const bool table = pane_ && pane_->table();
    for (const auto& [command, made] : actions_) {
        if (logCommands.count(command) != 0) made->setEnabled(log);
        if (tableCommands.count(command) != 0) made->setEnabled(table);
    }
    actions_[Command::refresh]->setEnabled(pane_ != nullptr);
    actions_[Command::switchPane]->setEnabled(pane_ != nullptr);
    actions_[Command::details]->setChecked(log && pane_->log().detailsShown());
    actions_[Command::follow]->setChecked(log && pane_->log().following());
    const auto scheme = theme::schemeOf(settings_.value(QStringLiteral("window/theme")).toString());
    actions_[Command::systemTheme]->setChecked(scheme == theme::Scheme::system);
    actions_[Command::lightTheme]->setChecked(scheme == theme::Scheme::light);
    actions_[Command::darkTheme]->setChecked(scheme == theme::Scheme::dark);
}

} // namespace desktop
