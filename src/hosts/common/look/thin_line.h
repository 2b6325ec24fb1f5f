#pragma once

#include "hosts/common/look/theme.h"

#include <QPainter>
#include <QWidget>

/// A line that parts what is above from what is below.
class ThinLine final : public QWidget {
public:
    explicit ThinLine(QWidget* parent) : QWidget(parent) { setFixedHeight(1); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter(this).fillRect(rect(), theme::outline(palette()));
    }
};
