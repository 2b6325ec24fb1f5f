#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace desktop {

/// Stands in the place of the lines of a log that is too large for the tool: says so, and opens it
/// in the viewer.
class TooLargePane final : public QWidget {
    Q_OBJECT

public:
    explicit TooLargePane(QWidget* parent = nullptr);

    /// The size of the log, in bytes.
    void setSize(qint64 size);

    QPushButton& viewer() { return *viewer_; }

signals:
    void viewerAsked();

private:
    void showTexts();

    QLabel* text_;
    QPushButton* viewer_;
    qint64 size_ = 0;
};

} // namespace desktop
