#include "hosts/common/look/path_dialog.h"
#include "hosts/viewer/window/main_window.h"
#include "runtime/run_time_error.h"

#include <QInputDialog>
#include <QMenu>

namespace viewer {

/// Does what commands do that take or save whole filters.
void MainWindow::performSaved(Command command)
{
    switch (command) {
    case Command::macroTraces:
        return offerMacroTraces();
    case Command::savedFilters:
        return offerSavedFilters();
    case Command::saveFilter:
        return askForFilterName();
    case Command::openFilter:
        return askForFilterFile();
    default:
        return performMarks(command);
    }
}

void MainWindow::showMacroTrace(const QString& name)
{
    const auto known = document_.macroTraces().find(name);
    changeFilter([&](RowFilter& filter) {
        const bool found = known != document_.macroTraces().end();
        filter.macroTrace = found ? name : QString();
        filter.macroLevels = found ? known->second : std::vector<timeline::ComponentLevels>();
    });
}

void MainWindow::offerMacroTraces()
{
    QMenu menu(this);
    const auto add = [&](const QString& text, const QString& name) {
        QAction* entry =
            menu.addAction(harmless(text).replace(QLatin1Char('&'), QStringLiteral("&&")));
        entry->setCheckable(true);
        entry->setChecked(document_.filter().macroTrace == name);
        connect(entry, &QAction::triggered, this, [this, name] { showMacroTrace(name); });
    };
    add(tr("All Traces"), {});
    menu.addSeparator();
    for (const auto& [name, levels] : document_.macroTraces()) add(name, name);
    menu.exec(table_->viewport()->mapToGlobal(QPoint(0, 0)));
}

void MainWindow::saveFilter(const QString& name)
{
    try {
        savedFilters_.save(name, document_.filter());
    } catch (const RunTimeError& error) {
        sayFailure(QString::fromStdString(error.description()));
    }
}

void MainWindow::takeFilter(const QString& file)
{
    try {
        document_.setFilter(SavedFilters::read(file));
    } catch (const RunTimeError& error) {
        sayFailure(QString::fromStdString(error.description()));
    }
}

void MainWindow::offerSavedFilters()
{
    QMenu menu(this);
    for (const QString& name : savedFilters_.names())
        connect(menu.addAction(harmless(name).replace(QLatin1Char('&'), QStringLiteral("&&"))),
                &QAction::triggered, this,
                [this, name] { takeFilter(savedFilters_.fileOf(name)); });
    if (menu.isEmpty()) menu.addAction(tr("No filter was saved yet"))->setEnabled(false);
    menu.exec(table_->viewport()->mapToGlobal(QPoint(0, 0)));
}

void MainWindow::askForFilterName()
{
    bool taken = false;
    const QString name =
        QInputDialog::getText(this, tr("Save Filter"), tr("Name:"), QLineEdit::Normal, {}, &taken);
    if (taken) saveFilter(name);
}

void MainWindow::askForFilterFile()
{
    PathDialog dialog(this, tr("Open Filter File"), QFileDialog::ExistingFile,
                      tr("Filters (*.json)"));
    const QString file = dialog.ask();
    if (!file.isEmpty()) takeFilter(file);
}

} // namespace viewer
