#pragma once

#include <QFileDialog>

/// Asks for a folder or a file that is there. A whole path that is typed is what is taken, whatever
/// is selected in the list beside it, and with quotes in it too.
class PathDialog final : public QFileDialog {
    Q_OBJECT

public:
    /// `mode` is Directory or ExistingFile; `filters` tell of files as QFileDialog has them.
    PathDialog(QWidget* parent, const QString& title, FileMode mode, const QString& filters = {});

    /// Shows the dialog and gives the path that was taken; the empty text for none.
    QString ask();

    void accept() override;

private:
    QString taken_; ///< as it was typed; empty where the list or the dialog itself has the answer
};
