#include "hosts/desktop/desktop_services.h"

#include "hosts/common/look/help_window.h"
#include "hosts/common/look/path_dialog.h"

#include <QApplication>
#include <QCoreApplication>
#include <QMessageBox>

#include <utility>

namespace desktop {

namespace {

/// While the tool works the pointer is an hourglass; in front of a box it is an arrow.
class ArrowPointer {
public:
    ArrowPointer() { QApplication::setOverrideCursor(Qt::ArrowCursor); }
    ~ArrowPointer() { QApplication::restoreOverrideCursor(); }
    ArrowPointer(const ArrowPointer&) = delete;
    ArrowPointer& operator=(const ArrowPointer&) = delete;
};

QMessageBox::Icon boxIcon(MessageIcon icon)
{
    switch (icon) {
    case MessageIcon::information:
        return QMessageBox::Information;
    case MessageIcon::exclamation:
        return QMessageBox::Warning;
    case MessageIcon::critical:
        return QMessageBox::Critical;
    case MessageIcon::none:
        break;
    }
    return QMessageBox::NoIcon;
}

} // namespace

DesktopServices::DesktopServices() = default;
DesktopServices::~DesktopServices() = default;

void DesktopServices::setWindow(QWidget* window)
{
    window_ = window;
}

void DesktopServices::setToolPath(std::function<std::string(const std::string&)> toolPath)
{
    toolPath_ = std::move(toolPath);
}

void DesktopServices::setManualMissing(std::function<void()> said)
{
    manualMissing_ = std::move(said);
}

void DesktopServices::setMessageShown(std::function<void()> shown)
{
    messageShown_ = std::move(shown);
}

void DesktopServices::setManual(std::string folder)
{
    manual_ = std::move(folder);
}

QWidget* DesktopServices::owner() const
{
    QWidget* active = QApplication::activeModalWidget();
    return active ? active : window_.data();
}

std::string DesktopServices::named(const QString& picked) const
{
    const std::string path = picked.toStdString();
    return path.empty() || !toolPath_ ? path : toolPath_(path);
}

void DesktopServices::messageBox(const std::string& text, const std::string& title,
                                 MessageIcon icon)
{
    if (messageShown_) messageShown_();
    const ArrowPointer arrow;
    QMessageBox box(
        boxIcon(icon), QString::fromStdString(title),
        QString::fromStdString(text).replace(QLatin1String("\r\n"), QLatin1String("\n")),
        QMessageBox::Ok, owner());
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

std::string DesktopServices::pickFolder(const std::string& title)
{
    const ArrowPointer arrow;
    return named(PathDialog(owner(), QString::fromStdString(title), PathDialog::Directory).ask());
}

std::string DesktopServices::pickFile(const std::string& title)
{
    if (!answer_.isEmpty()) return named(std::exchange(answer_, {}));
    const ArrowPointer arrow;
    return named(
        PathDialog(owner(), QString::fromStdString(title), PathDialog::ExistingFile,
                   QObject::tr("Diagnostic logs (diag_*.txt data_*.txt *.log);;All files (*)"))
            .ask());
}

void DesktopServices::pumpMessages()
{
    QCoreApplication::processEvents();
}

int DesktopServices::showHelp(const std::string&, int topic)
{
    if (!help_) {
        help_ = std::make_unique<HelpWindow>();
        // The program ends with its own window, though the manual may still be open.
        help_->setAttribute(Qt::WA_QuitOnClose, false);
    }
    if (!help_->open(QString::fromStdString(manual_), topic)) {
        if (manualMissing_) manualMissing_();
        return 0;
    }
    return static_cast<int>(help_->winId());
}

} // namespace desktop
