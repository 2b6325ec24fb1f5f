#pragma once

#include "hosts/viewer/document/document.h"

#include <QWidget>

class QToolButton;

namespace viewer {

class RowTable;

/// Keeps the end of followed logs in sight, for as long as the person leaves it there. While other
/// rows are in sight it is a strip with a button that says how many lines came since, and goes to
/// them.
class FollowBar final : public QWidget {
    Q_OBJECT

public:
    /// Both outlive it.
    FollowBar(Document& document, RowTable& table, QWidget* parent = nullptr);

    /// How many rows came since the end was in sight; 0 while it is.
    std::size_t waiting() const;

    /// Shows the last rows; those that come stay in sight from now on.
    void goToEnd();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void beginChange();
    void endChange();
    void scrolled();
    void showWaiting();

    Document& document_;
    RowTable& table_;
    QToolButton* button_;
    bool atEnd_ = false;   ///< whether the end was in sight before the rows that come
    std::size_t seen_ = 0; ///< rows that were there when it was last
};

} // namespace viewer
