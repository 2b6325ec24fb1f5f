#pragma once

#include "hosts/desktop/window/commands.h"

#include <QWidget>

#include <functional>

class QGridLayout;
class QLabel;

namespace desktop {

class TaskCard;

/// What the window shows while no site is open: the ways to begin, as cards.
class StartPage final : public QWidget {
public:
    explicit StartPage(QWidget* parent = nullptr);

    /// Does what the card stands for that the person clicked.
    std::function<void(Command command)> chosen;

    /// Gives every text in the interface language.
    void showTexts();

    /// Puts the focus on the first card.
    void focusCard();

protected:
    void showEvent(QShowEvent* event) override;

private:
    QLabel* title_ = nullptr;
    QLabel* text_ = nullptr;
    QGridLayout* board_ = nullptr;
    QList<TaskCard*> cards_;
};

} // namespace desktop
