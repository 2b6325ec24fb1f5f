#pragma once

#include <QWidget>

class QGridLayout;
class QLabel;
class TaskPad;

/// The tasks of a task pad as large cards, to be clicked or reached by the keyboard.
class TaskPadView final : public QWidget {
    Q_OBJECT

public:
    explicit TaskPadView(QWidget* parent = nullptr);

    /// Makes the cards of a pad that the console has filled.
    void show(TaskPad& pad);

signals:
    void taskClicked(const QString& key);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void arrange();

    QLabel* title_ = nullptr;
    QLabel* description_ = nullptr;
    QWidget* board_ = nullptr;
    QGridLayout* grid_ = nullptr;
    QList<QWidget*> cards_;
    int columns_ = 0;
};
