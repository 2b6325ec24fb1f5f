#pragma once

#include "hosts/viewer/table/row_model.h"

#include <QObject>
#include <QSaveFile>
#include <QTimer>

#include <memory>
#include <vector>

namespace viewer {

/// The forms that rows are written to files in.
enum class ExportForm {
    csv,  ///< the columns on show, with headers
    json, ///< one object a line, with every field
    text, ///< the rows as they are shown, cells parted by tabs
};

/// The form by the ending of a file's name: "csv", "json", else text.
ExportForm exportFormOf(const QString& file);

/// Writes the rows on show to a file, some at a time, so that the window goes on. The file takes
/// its place when all is written, or not at all.
class RowExport final : public QObject {
    Q_OBJECT

public:
    /// The model outlives it; what is on show must not change until it has ended.
    RowExport(const RowModel& rows, std::vector<RowColumn> columns, const QString& file,
              QObject* parent = nullptr);

    /// Begins. False, with a sentence by `problem`, for a file that can't be written.
    bool start();

    /// Gives up; nothing is left of the file.
    void cancel();

    QString problem() const { return problem_; }
    std::size_t written() const { return next_; }

signals:
    /// Some rows were written.
    void went();

    /// It has ended: all is written, or there is a problem.
    void ended(bool done);

private:
    void writeSome();
    QByteArray rowText(std::size_t place) const;
    void end(bool done);

    const RowModel& rows_;
    std::vector<RowColumn> columns_;
    ExportForm form_;
    QSaveFile file_;
    QTimer steps_;
    std::size_t next_ = 0;
    QString problem_;
};

} // namespace viewer
