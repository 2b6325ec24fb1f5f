#pragma once

#include "hosts/viewer/calls/calls.h"

#include <QWidget>

class ElidedLabel;
class QLabel;
class QPlainTextEdit;
class QStackedWidget;

namespace viewer {

class LaneView;

/// The lines of one call over time, and the text of the selected one below.
class CallPane final : public QWidget {
    Q_OBJECT

public:
    /// The calls outlive the pane.
    explicit CallPane(Calls& calls, QWidget* parent = nullptr);

    /// Shows the lines of a call, and selects one of them once it is found.
    void show(const std::string& id, timeline::Moment around,
              std::optional<timeline::IndexRow> selected);

    /// Selects a row, if it is one of the call's.
    void follow(const timeline::IndexRow& row);

    /// Says why no call is shown, while none is.
    void setReason(const QString& sentence);

    LaneView& lanes() { return *lanes_; }
    QPlainTextEdit& text() { return *text_; }

    /// What the pane says of the call, or why none is shown.
    QString said() const;

signals:
    /// The person asks for a row in the table.
    void rowAsked(const timeline::IndexRow& row);

    /// The person leaves the pane for the rows.
    void left();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void showTexts();
    void showCall();
    void showSelected();

    Calls& calls_;
    std::optional<timeline::IndexRow> wished_; ///< to be selected when it is found
    QString reason_;
    QStackedWidget* pages_;
    QLabel* empty_;
    ElidedLabel* state_;
    LaneView* lanes_;
    ElidedLabel* fields_;
    QPlainTextEdit* text_;
};

} // namespace viewer
