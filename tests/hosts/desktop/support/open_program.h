#pragma once

#include "hosts/desktop/program.h"
#include "hosts/desktop/sheets/moment_field.h"
#include "hosts/desktop/support/test_window.h"

class QLineEdit;
class QTreeView;

namespace desktop {

class SheetDialog;

/// The whole program on a sample server, with the boxes and pickers that a person sees.
struct OpenProgram {
    explicit OpenProgram(std::size_t lines = 1000, LogFields fields = LogFields::basic);
    ~OpenProgram();

    MainWindow& window() { return program.window(); }
    ConsolePane& pane() { return *window().pane(); }
    LogView& log() { return pane().log(); }

    /// The sheet on show. Raises std::runtime_error when there is none.
    SheetDialog& sheet();

    /// Clicks a task card by its key, which shows the task pad first.
    void clickCard(const char* key);

    /// Shows the current log of a process.
    void showLog(const std::string& process);

    /// The field of the page on show for a date or for a time. Raises std::runtime_error.
    static MomentField& picker(const QWidget& inside, MomentField::Part part);

    /// A field of a bar or a page by its accessible name. Raises std::runtime_error.
    static QLineEdit& field(const QWidget& inside, const char* accessibleName);

    TestServer server;
    QSettings settings;
    Program program;
};

} // namespace desktop
