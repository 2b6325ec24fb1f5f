#include "hosts/common/look/path_dialog.h"

#include <QAbstractItemView>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>

PathDialog::PathDialog(QWidget* parent, const QString& title, FileMode mode, const QString& filters)
    : QFileDialog(parent, title, {}, filters)
{
    setFileMode(mode);
    setOption(ShowDirsOnly, mode == Directory);
}

QString PathDialog::ask()
{
    if (exec() != Accepted) return {};
    return taken_.isEmpty() ? selectedFiles().value(0) : taken_;
}

void PathDialog::accept()
{
    // A dialog of the desktop's own has no such field.
    const auto* field = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    const QString typed = field ? field->text() : QString();
    if (!QDir::isAbsolutePath(typed)) return QFileDialog::accept();
    const QFileInfo there(typed);
    if (fileMode() == Directory ? there.isDir() : there.isFile()) {
        taken_ = QDir::cleanPath(typed);
        // The file dialog would look for the path again, in its own way.
        return QDialog::accept(); // NOLINT(bugprone-parent-virtual-call)
    }
    // What is not there is said, rather than the row taken that happens to be selected.
    for (auto* list : findChildren<QAbstractItemView*>())
        if (list->selectionModel()) list->selectionModel()->clearSelection();
    QFileDialog::accept();
}
