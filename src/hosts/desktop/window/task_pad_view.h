#pragma once

#include <QPointer>
#include <QWidget>

class QGridLayout;
class QLabel;
class TaskPad;

namespace desktop {

/// The tasks of a task pad as large cards, to be clicked or reached by the keyboard.
class TaskPadView final : public QWidget {
    Q_OBJECT

public:
    explicit TaskPadView(QWidget* parent = nullptr);

    /// Makes the cards of a pad that the console has filled.
    void show(TaskPad& pad);

    /// Puts the focus on the card that had it last, or else on the first one.
    void focusCard();

signals:
    void taskClicked(const QString& key);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void arrange();

    QLabel* title_ = nullptr;
    QLabel* description_ = nullptr;
    QWidget* board_ = nullptr;
    QGridLayout* grid_ = nullptr;
    QList<QWidget*> cards_;
    QPointer<QWidget> focused_; ///< the card that had the focus last
    int columns_ = 0;
};

} // namespace desktop
