#pragma once

#include <QWidget>

class QPlainTextEdit;
class SpokenLabel;

namespace desktop {

class ListModel;

/// All of one log line: its fields in a line, and the trace in as many as it takes. A line that has
/// none of the known forms has no trace and is shown as it stands in the log.
class DetailsPane final : public QWidget {
    Q_OBJECT

public:
    explicit DetailsPane(QWidget* parent = nullptr);

    /// Shows a row; nothing for a row that is not there.
    void show(const ListModel& rows, int row);

    void setTextFont(const QFont& font);

private:
    SpokenLabel* fields_ = nullptr;
    QPlainTextEdit* trace_ = nullptr;
};

} // namespace desktop
