#include "hosts/viewer/files/row_targets.h"
#include "hosts/viewer/window/main_window.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QLocale>
#include <QStatusBar>

namespace viewer {

namespace {

QString number(std::size_t rows)
{
    return QLocale().toString(static_cast<qulonglong>(rows));
}

} // namespace

/// What is on show now is written, whatever comes on show meanwhile.
std::unique_ptr<RowWriting> MainWindow::writeRows(RowForm form, std::vector<PlaceRange> places,
                                                  std::unique_ptr<RowTarget> target)
{
    RowsToWrite rows{document_.sharedView(), std::move(places), form, table_->shownColumns(),
                     TimeTelling{model_->timeForm(), model_->mark()}};
    auto writing =
        std::make_unique<RowWriting>(document_.timeline(), std::move(rows), std::move(target));
    connect(writing.get(), &RowWriting::went, this, &MainWindow::updateStatus);
    return writing;
}

void MainWindow::copy(RowForm form)
{
    const std::size_t selected = table_->selectedCount();
    if (selected == 0) return;
    copying_.reset(); // what was copied before is wanted no more
    auto target = std::make_unique<TextTarget>();
    const TextTarget& copied = *target;
    copying_ = writeRows(form, table_->selectedRanges(mostCopied), std::move(target));
    connect(copying_.get(), &RowWriting::ended, this, [this, &copied, selected](bool done) {
        RowWriting* ended = copying_.release();
        ended->deleteLater();
        if (done) QApplication::clipboard()->setText(copied.text());
        endCopy(done, ended->written(), selected);
    });
    updateActions();
}

void MainWindow::endCopy(bool done, std::size_t copied, std::size_t selected)
{
    if (!done)
        statusBar()->showMessage(tr("Copying was given up; the clipboard is as it was"), 6000);
    else if (copied == selected)
        statusBar()->showMessage(tr("%1 rows copied").arg(number(copied)), 4000);
    else
        statusBar()->showMessage(
            tr("%1 of %2 selected rows copied; an export has all that are on show")
                .arg(number(copied), number(selected)),
            15'000);
    updateStatus();
}

void MainWindow::askForExport()
{
    QFileDialog dialog(this, tr("Export"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters({tr("Comma-separated text (*.csv)"),
                           tr("JSON, an object a line (*.json)"), tr("Text (*.txt)")});
    const QStringList endings{QStringLiteral("csv"), QStringLiteral("json"), QStringLiteral("txt")};
    dialog.setDefaultSuffix(endings.front());
    connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& chosen) {
        dialog.setDefaultSuffix(
            endings.value(dialog.nameFilters().indexOf(chosen), endings.front()));
    });
    if (dialog.exec() == QDialog::Accepted) exportTo(dialog.selectedFiles().value(0));
}

void MainWindow::exportTo(const QString& file)
{
    if (export_ != nullptr) return;
    export_ =
        writeRows(rowFormOf(file), {{0, document_.rowCount()}}, std::make_unique<FileTarget>(file));
    connect(export_.get(), &RowWriting::ended, this, &MainWindow::endExport);
    updateStatus();
}

void MainWindow::endExport(bool done)
{
    RowWriting* ended = export_.release();
    ended->deleteLater();
    if (const QString problem = ended->problem(); !problem.isEmpty())
        sayFailure(problem);
    else
        statusBar()->showMessage(done ? tr("%1 rows written").arg(number(ended->written()))
                                      : tr("The export was given up, and left no file"),
                                 6000);
    updateStatus();
}

void MainWindow::stopWriting()
{
    if (export_ != nullptr) export_->cancel();
    if (copying_ != nullptr) copying_->cancel();
}

/// What is being written, an export before a copy; null for nothing.
const RowWriting* MainWindow::writing() const
{
    return export_ != nullptr ? export_.get() : copying_.get();
}

/// How far that is; the empty text for nothing.
QString MainWindow::writingText() const
{
    if (writing() == nullptr) return {};
    return (export_ != nullptr ? tr("Writing: %1 of %2 rows") : tr("Copying: %1 of %2 rows"))
        .arg(number(writing()->written()), number(writing()->total()));
}

} // namespace viewer
