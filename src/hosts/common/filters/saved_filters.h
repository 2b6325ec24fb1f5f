#pragma once

#include "hosts/common/filters/row_filter.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class QSettings;

/// Filters that a person has given names, a file of JSON each, which can be given to others.
class SavedFilters {
    Q_DECLARE_TR_FUNCTIONS(SavedFilters)

public:
    /// `folder` is made when the first one is saved.
    explicit SavedFilters(QString folder) : folder_(std::move(folder)) {}

    /// The filters of all programs whose settings lie in the folder of these.
    static SavedFilters besideSettings(const QSettings& settings);

    /// In the order of their letters.
    QStringList names() const;

    /// The file of a name, whether it is there or not.
    QString fileOf(const QString& name) const;

    /// Saves a filter, in the place of one of the same name. Raises 5 for a name that can't be one
    /// of a file, 75 for a file that can't be written.
    void save(const QString& name, const RowFilter& filter) const;

    /// The filter in a file. Raises 53 where there is none, 5 with a sentence for a file that is
    /// none.
    static RowFilter read(const QString& file);

private:
    QString folder_;
};
