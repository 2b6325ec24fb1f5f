#include "hosts/common/look/help_window.h"
#include "hosts/common/look/key_list.h"
#include "hosts/viewer/window/main_window.h"
#include "hosts/viewer/window/pane_keys.h"

#include <QCoreApplication>
#include <QMessageBox>

namespace viewer {

namespace {

constexpr int topicOfViewer = 530; ///< in the manual, which is that of the whole tool

} // namespace

void MainWindow::setManual(const QString& folder)
{
    manual_ = folder;
}

void MainWindow::performHelp(Command command)
{
    if (command == Command::help) return showHelp();
    if (command == Command::about) return showAbout();
    KeyList keys(*this, PaneKeys::groups(), this);
    keys.exec();
}

void MainWindow::showHelp()
{
    if (!help_) {
        help_ = std::make_unique<HelpWindow>();
        // The program ends with its own window, though the manual may still be open.
        help_->setAttribute(Qt::WA_QuitOnClose, false);
    }
    if (!help_->open(manual_, topicOfViewer))
        sayFailure(tr("The manual is not beside the viewer. Install it again to read it."));
}

void MainWindow::showAbout()
{
    QMessageBox::about(this, tr("About"),
                       QStringLiteral("Orvan Diagnostic Viewer\n%1 %2")
                           .arg(tr("Version"), QCoreApplication::applicationVersion()));
}

} // namespace viewer
