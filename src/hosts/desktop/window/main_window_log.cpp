#include "hosts/desktop/log/filter_bar.h"
#include "hosts/desktop/log/list_table.h"
#include "hosts/desktop/log/log_view.h"
#include "hosts/desktop/window/console_pane.h"
#include "hosts/desktop/window/main_window.h"

#include <QLocale>
#include <QStatusBar>

namespace desktop {

void MainWindow::runInTable(Command command)
{
    ListTable* table = pane_->table();
    if (!table) return;
    if (command == Command::selectAll) return table->selectAll();
    const int rows = command == Command::copy ? table->copyAsText() : table->copyAsCsv();
    statusBar()->showMessage(rows == 1 ? tr("1 row copied.")
                                       : tr("%1 rows copied.").arg(QLocale().toString(rows)),
                             sayMilliseconds);
}

void MainWindow::runInLog(Command command)
{
    if (!pane_->logShown()) return;
    LogView& log = pane_->log();
    switch (command) {
    case Command::find:
        return log.startFind();
    case Command::findNext:
        return log.findNext();
    case Command::findPrevious:
        return log.findPrevious();
    case Command::highlight:
        return log.keepFound();
    case Command::goToTime:
        return log.startGoToTime();
    case Command::nextError:
        return log.nextError();
    case Command::previousError:
        return log.previousError();
    case Command::nextWarning:
        return log.nextWarning();
    case Command::previousWarning:
        return log.previousWarning();
    case Command::filter:
        return log.startFilter();
    case Command::filterColumn:
        return log.filterBar().offerColumns();
    case Command::savedFilters:
        return filterFiles_.offer(log);
    case Command::saveFilter:
        return filterFiles_.askForName(log);
    case Command::openFilter:
        return filterFiles_.askForFile(log);
    case Command::showAll:
        return log.showAll();
    case Command::follow:
        return log.setFollowing(!log.following());
    case Command::openInViewer:
        return log.openInViewer();
    case Command::toggleBookmark:
        return log.toggleBookmark();
    case Command::nextBookmark:
        return log.nextBookmark();
    case Command::previousBookmark:
        return log.previousBookmark();
    case Command::clearBookmarks:
        return log.clearBookmarks();
    case Command::details:
        return log.showDetails(!log.detailsShown());
    default:
        return;
    }
}

} // namespace desktop
