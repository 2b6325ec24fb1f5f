#pragma once

#include "hosts/viewer/calls/call_list_model.h"
#include "hosts/viewer/calls/calls.h"

#include <QWidget>

class ElidedLabel;
class QLabel;
class QStackedWidget;
class QTreeView;

namespace viewer {

/// The list of the calls of the rows on show. It is kept that while the pane is in sight.
class CallListPane final : public QWidget {
    Q_OBJECT

public:
    /// The calls outlive the pane.
    explicit CallListPane(Calls& calls, QWidget* parent = nullptr);

    QTreeView& list() { return *list_; }
    CallListModel& model() { return *model_; }

    /// What the pane says of the list, or why there is none.
    QString said() const;

signals:
    /// The person asks for the lines of a call.
    void callAsked(const std::string& id, timeline::Moment first);

    /// The person leaves the pane for the rows.
    void left();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void makeList();
    void showTexts();
    void showCalls();
    void showState();
    void ask(const QModelIndex& index);
    void offerMenu(const QPoint& at);
    QString whyNone() const;

    Calls& calls_;
    CallListModel* model_;
    QTreeView* list_;
    QStackedWidget* pages_;
    QLabel* empty_;
    ElidedLabel* state_;
};

} // namespace viewer
