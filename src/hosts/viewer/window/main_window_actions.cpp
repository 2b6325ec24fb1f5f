#include "hosts/common/look/elided_label.h"
#include "hosts/common/look/icons.h"
#include "hosts/common/look/path_dialog.h"
#include "hosts/common/look/theme.h"
#include "hosts/viewer/details/details_pane.h"
#include "hosts/viewer/facets/facet_pane.h"
#include "hosts/viewer/find/find_bar.h"
#include "hosts/viewer/histogram/time_strip.h"
#include "hosts/viewer/window/filter_bar.h"
#include "hosts/viewer/window/main_window.h"
#include "runtime/run_time_error.h"
#include "timeline/filter/time_text.h"
#include "timeline/sources/source_making.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QSettings>
#include <QStatusBar>
#include <QToolBar>
#include <QTreeWidget>

#include <algorithm>
#include <utility>

namespace viewer {

namespace {

constexpr int leastTextStep = -4;
constexpr int mostTextStep = 12;

QString toolTipOf(const QAction& action)
{
    const QString key = action.shortcut().toString(QKeySequence::NativeText);
    return key.isEmpty() ? action.statusTip()
                         : QStringLiteral("%1 (%2)").arg(action.statusTip(), key);
}

} // namespace

void MainWindow::makeActions()
{
    for (const MenuInfo& info : Commands::menus()) {
        menus_[info.menu] = new QMenu(this);
        if (info.parent == info.menu) menuBar()->addMenu(menus_[info.menu]);
    }
    for (const CommandInfo& info : Commands::all()) {
        QMenu* menu = menus_[info.menu];
        if (info.startsGroup) menu->addSeparator();
        QAction* made = menu->addAction(QString());
        made->setShortcut(QKeySequence::fromString(QString::fromLatin1(info.key)));
        made->setCheckable(info.checkable);
        if (*info.icon != '\0') made->setIcon(toolIcon(QString::fromLatin1(info.icon)));
        connect(made, &QAction::triggered, this,
                [this, command = info.command] { perform(command); });
        actions_[info.command] = made;
    }
    for (const MenuInfo& info : Commands::menus())
        if (info.parent != info.menu) menus_[info.parent]->addMenu(menus_[info.menu]);
}

void MainWindow::makeToolBar()
{
    toolBar_ = addToolBar(QString());
    toolBar_->setObjectName(QStringLiteral("toolBar"));
    toolBar_->setMovable(false);
    toolBar_->setIconSize({20, 20});
    for (const Command command : {Command::openFiles, Command::openFolder, Command::copy,
                                  Command::find, Command::filter, Command::nextError})
        toolBar_->addAction(actions_[command]);
}

void MainWindow::showTexts()
{
    for (const CommandInfo& info : Commands::all()) {
        QAction& made = action(info.command);
        made.setText(Commands::tr(info.text));
        made.setStatusTip(Commands::tr(info.statusText));
        made.setToolTip(toolTipOf(made));
    }
    for (const MenuInfo& info : Commands::menus())
        menus_[info.menu]->setTitle(Commands::tr(info.title));
    toolBar_->setWindowTitle(tr("Tool Bar"));
    empty_->setText(tr("No source is open.\n\nDrop logs, trace databases or cabinets here, or open "
                       "them with Ctrl+O."));
    table_->setAccessibleName(tr("Rows"));
    status_->setAccessibleName(tr("State"));
    progress_->setAccessibleName(tr("Progress"));
    model_->renewHeaders();
    updateStatus();
}

void MainWindow::run(Command command)
{
    QAction& asked = action(command);
    if (asked.isEnabled()) asked.trigger();
}

void MainWindow::perform(Command command)
{
    switch (command) {
    case Command::openFiles:
        return openFiles();
    case Command::openFolder:
        return openFolder();
    case Command::exportRows:
        return askForExport();
    case Command::stop:
        stopWriting();
        calls_->stop();
        return document_.cancel();
    case Command::quit:
        close();
        return;
    case Command::copy:
        return copy(RowForm::shown);
    case Command::copyRaw:
        return copy(RowForm::raw);
    case Command::copyCsv:
        return copy(RowForm::csv);
    case Command::copyValue:
        return QApplication::clipboard()->setText(details_->value());
    case Command::selectAll:
        return table_->selectAll();
    case Command::follow:
        return document_.follow(!document_.follows());
    case Command::columns:
        return offerColumns();
    case Command::largerText:
        return setTextSize(textStep_ + 1);
    case Command::smallerText:
        return setTextSize(textStep_ - 1);
    case Command::normalText:
        return setTextSize(0);
    case Command::clockTimes:
        return setTimes(TimeForm::clock);
    case Command::timesSinceRowBefore:
        return setTimes(TimeForm::sinceRowBefore);
    case Command::timesSinceMark:
        return setTimes(TimeForm::sinceMark);
    case Command::markTime:
        return markTime();
    case Command::systemTheme:
        return setTheme("system");
    case Command::lightTheme:
        return setTheme("light");
    case Command::darkTheme:
        return setTheme("dark");
    case Command::help:
    case Command::keys:
    case Command::about:
        return performHelp(command);
    case Command::values:
        facets_->setVisible(facets_->isHidden());
        return updateActions();
    case Command::details:
        details_->setVisible(details_->isHidden());
        return currentChanged();
    case Command::otherPane:
        return (table_->hasFocus() && facets_->isVisible() ? static_cast<QWidget*>(&facets_->tree())
                                                           : table_)
            ->setFocus(Qt::ShortcutFocusReason);
    default:
        return performFilter(command);
    }
}

/// Does what commands of the filter's menus do.
void MainWindow::performFilter(Command command)
{
    using timeline::Column;
    static const std::map<Command, std::pair<Column, bool>> byColumn = {
        {Command::onlyProcess, {Column::process, false}},
        {Command::onlyComponent, {Column::component, false}},
        {Command::onlySource, {Column::source, false}},
        {Command::onlyLevel, {Column::level, false}},
        {Command::onlyCall, {Column::callId, false}},
        {Command::onlyPort, {Column::port, false}},
        {Command::onlyThread, {Column::thread, false}},
        {Command::hideProcess, {Column::process, true}},
        {Command::hideComponent, {Column::component, true}},
        {Command::hideSource, {Column::source, true}},
        {Command::hideLevel, {Column::level, true}},
    };
    if (const auto asked = byColumn.find(command); asked != byColumn.end())
        return narrowToCurrent(asked->second.first, asked->second.second);
    if (command != Command::filter && command != Command::showAll && command != Command::allTimes &&
        command != Command::narrowTimes && command != Command::widenTimes)
        return performGo(command);
    if (command == Command::filter) {
        filterBar_->with().setFocus(Qt::ShortcutFocusReason);
        filterBar_->with().selectAll();
    }
    if (command == Command::showAll) document_.setFilter({});
    if (command == Command::allTimes) times_->showAllTimes();
    if (command == Command::narrowTimes) zoomTimes(true);
    if (command == Command::widenTimes) zoomTimes(false);
}

/// Does what commands of the menu that goes to rows do.
void MainWindow::performGo(Command command)
{
    switch (command) {
    case Command::find:
        return findBar_->start();
    case Command::findNext:
        return goToHit(Direction::down);
    case Command::findPrevious:
        return goToHit(Direction::up);
    case Command::keepMark:
        return findBar_->keep();
    case Command::nextError:
        return goToLevel(Direction::down, 0);
    case Command::previousError:
        return goToLevel(Direction::up, 0);
    case Command::nextWarning:
        return goToLevel(Direction::down, 1);
    case Command::previousWarning:
        return goToLevel(Direction::up, 1);
    case Command::goToTime:
        return askForTime();
    default:
        return performSaved(command);
    }
}

/// Goes to the next hit, and on from the other end. While rows are still looked through, one that
/// is not known yet is waited for.
void MainWindow::goToHit(Direction direction)
{
    if (findBar_->isHidden()) return findBar_->start();
    wishedHit_ = direction;
    const Hits* hits = document_.hits();
    if (hits == nullptr) return;
    const std::size_t place = table_->currentPlace().value_or(0);
    const bool down = direction == Direction::down;
    const bool known = down || hits->complete || place <= hits->rows.size();
    std::optional<std::size_t> hit;
    if (known)
        hit = down ? hits->rows.nextFrom(table_->currentPlace() ? place + 1 : 0)
                   : hits->rows.lastBefore(place);
    if (!hit && !hits->complete) return;
    wishedHit_.reset();
    if (hits->rows.count() == 0) return;
    table_->goTo(hit.value_or(hits->rows.at(down ? 0 : hits->rows.count() - 1)));
}

void MainWindow::hitsChanged()
{
    findBar_->showHits(table_->currentPlace());
    if (wishedHit_) goToHit(*wishedHit_);
}

void MainWindow::goToLevel(Direction direction, std::int8_t level)
{
    const auto place = table_->currentPlace();
    // Without a current row the first one counts as well.
    const std::size_t before = static_cast<std::size_t>(-1);
    document_.findLevel(place.value_or(direction == Direction::down ? before : 0), direction,
                        level);
}

void MainWindow::endFind()
{
    wishedHit_.reset();
    findBar_->hide();
    highlights_->setFound({});
    document_.find({});
    table_->setFocus();
}

bool MainWindow::goToTime(const QString& time)
{
    try {
        const timeline::TimeText typed(time.toStdString());
        const timeline::Moment day =
            currentMoment().value_or(times_->span() ? times_->span()->first : 0);
        timeline::ServerClock clock(timeline::machineLocalTime);
        const std::size_t place =
            document_.placeFrom(typed.moment(timeline::FrameEnd::since, day, clock));
        if (document_.rowCount() > 0) table_->goTo(std::min(place, document_.rowCount() - 1));
        return true;
    } catch (const RunTimeError& error) {
        statusBar()->showMessage(QString::fromStdString(error.description()), 6000);
        return false;
    }
}

void MainWindow::askForTime()
{
    bool taken = false;
    const QString time = QInputDialog::getText(
        this, tr("Go to Time"), tr("Time, such as 15:23:07:"), QLineEdit::Normal, {}, &taken);
    if (taken) goToTime(time);
}

void MainWindow::changeFilter(const std::function<void(RowFilter&)>& changing)
{
    RowFilter filter = document_.filter();
    changing(filter);
    try {
        document_.setFilter(std::move(filter));
    } catch (const RunTimeError& error) {
        sayFailure(QString::fromStdString(error.description()));
    }
}

/// The place of the row that has the values of a line without a form: the one that the line belongs
/// to, unless that is far away.
std::size_t MainWindow::placeWithValues(std::size_t place)
{
    constexpr std::size_t mostLines = 1000;
    std::size_t with = place;
    for (std::size_t lines = 0; lines < mostLines && document_.row(with).belongs; ++lines) {
        if (with == 0) return place;
        --with;
    }
    return document_.row(with).belongs ? place : with;
}

/// Shows rows with the current row's value of a column alone, or hides them.
void MainWindow::narrowToCurrent(timeline::Column column, bool hide)
{
    const auto place = table_->currentPlace();
    if (!place) return;
    const std::string value = document_.value(placeWithValues(*place), column);
    if (value.empty())
        return statusBar()->showMessage(tr("The current row has no such value"), 6000);
    changeFilter([&](RowFilter& filter) {
        if (hide)
            filter.show(column, value, false);
        else
            filter.showOnly(column, value);
    });
}

void MainWindow::zoomTimes(bool in)
{
    const auto span = times_->span();
    if (!span) return;
    times_->zoom(currentMoment().value_or(span->first + (span->second - span->first) / 2), in);
}

void MainWindow::openFiles()
{
    QFileDialog dialog(this, tr("Open Files"));
    dialog.setFileMode(QFileDialog::ExistingFiles);
    dialog.setNameFilters(
        {tr("Logs, databases and cabinets (*.txt *.log *.mdb *.cab *.csv)"), tr("All files (*)")});
    if (dialog.exec() == QDialog::Accepted) document_.open(dialog.selectedFiles());
}

void MainWindow::openFolder()
{
    PathDialog dialog(this, tr("Open Folder"), QFileDialog::Directory);
    const QString folder = dialog.ask();
    if (!folder.isEmpty()) document_.open({folder});
}

void MainWindow::setTimes(TimeForm form)
{
    model_->setTimeForm(form);
    updateActions();
}

void MainWindow::markTime()
{
    const auto place = table_->currentPlace();
    if (!place) return;
    model_->setMark(document_.row(*place).index.moment);
    setTimes(TimeForm::sinceMark);
}

void MainWindow::offerColumns()
{
    table_->offerColumns(table_->viewport()->mapToGlobal(QPoint(0, 0)));
}

void MainWindow::offerRowMenu(const QPoint& at)
{
    QMenu menu(this);
    for (const Command command : {Command::copy, Command::copyRaw, Command::copyCsv})
        menu.addAction(actions_[command]);
    menu.addSeparator();
    menu.addAction(actions_[Command::thisCall]);
    menu.addMenu(menus_[CommandMenu::only]);
    menu.addMenu(menus_[CommandMenu::hide]);
    menu.addSeparator();
    for (const Command command : {Command::toggleBookmark, Command::note})
        menu.addAction(actions_[command]);
    menu.addAction(actions_[Command::markTime]);
    menu.exec(at);
}

void MainWindow::setTextSize(int step)
{
    textStep_ = std::clamp(step, leastTextStep, mostTextStep);
    QFont font = theme::traceFont();
    font.setPointSizeF(font.pointSizeF() + textStep_);
    table_->setFont(font);
    table_->header().setFont(QApplication::font());
}

void MainWindow::setTheme(const char* name)
{
    settings_.setValue(QStringLiteral("window/theme"), QString::fromLatin1(name));
    theme::apply(theme::schemeOf(QString::fromLatin1(name)));
    updateActions();
}

} // namespace viewer
