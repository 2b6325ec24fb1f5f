#pragma once

#include "hosts/common/look/spoken_label.h"

/// A line of text that gives way where there is little room: what is left out is in the tool tip.
class ElidedLabel final : public SpokenLabel {
    Q_OBJECT

public:
    ElidedLabel(Qt::TextElideMode mode, QWidget* parent);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Qt::TextElideMode mode_;
};
