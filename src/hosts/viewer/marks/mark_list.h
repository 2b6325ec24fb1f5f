#pragma once

#include "hosts/viewer/marks/marks.h"

#include <QDialog>

#include <vector>

class QLabel;
class QTreeWidget;

namespace viewer {

/// All bookmarks and notes of what is open, by time: Enter or a double click goes to one, Delete
/// takes one away. It stays open beside the rows.
class MarkList final : public QDialog {
    Q_OBJECT

public:
    /// The marks outlive the list.
    explicit MarkList(Marks& marks, QWidget* parent = nullptr);

    QTreeWidget& list() { return *list_; }

signals:
    /// The person wishes to see a row.
    void asked(const timeline::IndexRow& row);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void showMarks();
    void goToCurrent();
    void removeCurrent();
    void showTexts();

    Marks& marks_;
    QTreeWidget* list_;
    QLabel* hint_;
    std::vector<Marks::Mark> shown_;
};

} // namespace viewer
