#include "hosts/desktop/window/filter_files.h"

#include "hosts/common/look/path_dialog.h"
#include "hosts/common/look/reason.h"
#include "hosts/desktop/log/filter_bar.h"
#include "hosts/desktop/log/log_view.h"
#include "runtime/run_time_error.h"

#include <QInputDialog>
#include <QMenu>

#include <utility>

namespace desktop {

FilterFiles::FilterFiles(SavedFilters filters, QWidget& window)
    : filters_(std::move(filters)), window_(window)
{}

void FilterFiles::offer(LogView& log)
{
    auto* menu = new QMenu(&window_);
    menu->setObjectName(QStringLiteral("savedFilters"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const QString& name : filters_.names())
        menu->addAction(QString(name).replace(QLatin1Char('&'), QLatin1String("&&")), &log,
                        [&log, file = filters_.fileOf(name)] { take(log, file); });
    if (menu->isEmpty()) menu->addAction(tr("No filter was saved yet"))->setEnabled(false);
    menu->popup(log.mapToGlobal(QPoint(0, 0)));
}

void FilterFiles::askForName(LogView& log)
{
    bool given = false;
    const QString name = QInputDialog::getText(&window_, tr("Save Filter"), tr("Name:"),
                                               QLineEdit::Normal, {}, &given);
    if (given) save(log, name);
}

void FilterFiles::askForFile(LogView& log)
{
    const QString file = PathDialog(&window_, tr("Open Filter File"), QFileDialog::ExistingFile,
                                    tr("Filters (*.json)"))
                             .ask();
    if (!file.isEmpty()) take(log, file);
}

void FilterFiles::save(LogView& log, const QString& name)
{
    const FilterBar& bar = log.filterBar();
    try {
        filters_.save(name, bar.asked());
        emit log.said(bar.asksForMore()
                          ? tr("Saved as %1, without the values of times and traces.").arg(name)
                          : tr("Saved as %1.").arg(name));
    } catch (const RunTimeError& error) {
        emit log.said(tr("The filter was not saved: %1.").arg(reasonOf(error)));
    }
}

void FilterFiles::take(LogView& log, const QString& file)
{
    try {
        const RowFilter filter = SavedFilters::read(file);
        log.filterBar().take(filter);
        if (!FilterBar::holdsWhole(filter))
            emit log.said(
                tr("The filter's times and processes hold in the viewer, not in a single log."));
    } catch (const RunTimeError& error) {
        emit log.said(tr("The filter was not taken: %1.").arg(reasonOf(error)));
    }
}

} // namespace desktop
