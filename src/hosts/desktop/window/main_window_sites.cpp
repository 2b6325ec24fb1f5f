#include "core/tool_context.h"
#include "hosts/common/look/path_dialog.h"
#include "hosts/desktop/open_tool.h"
#include "hosts/desktop/window/console_pane.h"
#include "hosts/desktop/window/main_window.h"
#include "hosts/desktop/window/recent_sites.h"
#include "platform/file_system.h"
#include "runtime/run_time_error.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMimeData>
#include <QSettings>
#include <QStatusBar>
#include <QUrl>

namespace desktop {

namespace {

/// The one file or folder of this machine that is carried along; empty for several, or none.
QString carriedPath(const QMimeData& carried)
{
    const QList<QUrl> urls = carried.urls();
    return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

} // namespace

/// A log as the tool looks for it: the key itself where that is a file, else one of its log folder.
/// The empty text for one that this machine does not have.
QString MainWindow::fileOfLog(const std::string& key) const
{
    const ToolContext& tool = tool_->context();
    try {
        const bool isPath = tool.platform.files.fileExists(key);
        const std::string path = isPath ? key : tool.g_strLogFolder + "\\" + key;
        return QString::fromStdString(tool_->site().paths().machinePath(path));
    } catch (const RunTimeError&) {
        return {};
    }
}

/// False while a page is at work: what it works on would go from below it.
bool MainWindow::mayLeaveSite()
{
    if (!pane_ || !pane_->sheetAtWork()) return true;
    statusBar()->showMessage(tr("The gather is being ended. Try again in a moment."),
                             sayMilliseconds);
    return false;
}

void MainWindow::pickSite()
{
    if (!mayLeaveSite()) return;
    const QString title =
        tr("Open Site: the folder of a server, with site.ini, registry.reg or drive_c");
    const QString folder = PathDialog(this, title, PathDialog::Directory).ask();
    if (!folder.isEmpty()) emit siteAsked(folder);
}

void MainWindow::pickSampleFolder()
{
    if (!mayLeaveSite()) return;
    const QString folder = QFileDialog::getSaveFileName(
        this, tr("Make Sample Server in a New Folder"),
        QDir::homePath() + QStringLiteral("/orvan-sample"), {}, nullptr, QFileDialog::ShowDirsOnly);
    if (!folder.isEmpty()) emit sampleAsked(folder);
}

void MainWindow::rebuildRecentSites()
{
    recent_->clear();
    QStringList gone;
    int number = 0;
    for (const QString& folder : recentSites(settings_)) {
        ++number;
        const bool there = QFileInfo(folder).isDir();
        const QString text = there ? folder : tr("%1 (not there)").arg(folder);
        QAction* made = recent_->addAction(QStringLiteral("&%1  %2").arg(number).arg(text), this,
                                           [this, folder] {
                                               if (mayLeaveSite()) emit siteAsked(folder);
                                           });
        made->setEnabled(there);
        if (!there) gone << folder;
    }
    if (!gone.isEmpty()) {
        recent_->addSeparator();
        recent_->addAction(tr("&Forget Folders That Are Not There"), this, [this, gone] {
            forgetSites(settings_, gone);
            rebuildRecentSites();
        });
    }
    recent_->menuAction()->setEnabled(number > 0);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!carriedPath(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    const QString path = carriedPath(*event->mimeData());
    if (path.isEmpty()) return;
    // What is dropped stays where it is, whatever the file manager proposed.
    event->setDropAction(Qt::CopyAction);
    event->accept();
    if (!mayLeaveSite()) return;
    // Not from within the drop: a box of the tool would hold the file manager up.
    QMetaObject::invokeMethod(
        this,
        [this, path] { QFileInfo(path).isDir() ? emit siteAsked(path) : emit fileAsked(path); },
        Qt::QueuedConnection);
}

} // namespace desktop
