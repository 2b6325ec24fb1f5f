#pragma once

#include "hosts/viewer/calls/calls.h"

#include <QTabWidget>

class QToolButton;

namespace viewer {

class CallListPane;
class CallPane;

/// What is known of calls, below the rows: a tab with the list of them, and one with the lines of
/// a single call.
class CallTabs final : public QTabWidget {
    Q_OBJECT

public:
    /// The calls outlive the tabs.
    explicit CallTabs(Calls& calls, QWidget* parent = nullptr);

    CallListPane& list() { return *list_; }
    CallPane& call() { return *call_; }

    /// Brings a tab in sight and gives it the keys.
    void openList();
    void openCall();

    bool showsList() const;
    bool showsCall() const;

signals:
    /// The person asks for a row in the table.
    void rowAsked(const timeline::IndexRow& row);

    /// The person leaves for the rows, or closes the tabs.
    void left();
    void closed();

private:
    void showTexts();

    CallListPane* list_;
    CallPane* call_;
    QToolButton* close_;
};

} // namespace viewer
