#pragma once

#include "hosts/common/filters/saved_filters.h"

#include <QCoreApplication>
#include <QString>

class QWidget;

namespace desktop {

class LogView;

/// Keeps the filter of a log by a name, and takes those that were kept, in this program or in the
/// viewer.
class FilterFiles {
    Q_DECLARE_TR_FUNCTIONS(FilterFiles)

public:
    /// What is asked, is asked above `window`, which outlives this.
    FilterFiles(SavedFilters filters, QWidget& window);

    /// Lets the person choose one that was saved.
    void offer(LogView& log);

    /// Asks for a name, and saves the filter by it.
    void askForName(LogView& log);

    /// Asks for a file that somebody gave.
    void askForFile(LogView& log);

private:
    void save(LogView& log, const QString& name);
    static void take(LogView& log, const QString& file);

    SavedFilters filters_;
    QWidget& window_;
};

} // namespace desktop
