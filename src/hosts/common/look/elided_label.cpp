#include "hosts/common/look/elided_label.h"

#include <QPainter>
#include <QStyle>

namespace {
constexpr int fewestCharacters = 8;
}

ElidedLabel::ElidedLabel(Qt::TextElideMode mode, QWidget* parent) : SpokenLabel(parent), mode_(mode)
{
    setTextFormat(Qt::PlainText);
    setProperty("elides", true);
}

QSize ElidedLabel::minimumSizeHint() const
{
    const QSize whole = QLabel::minimumSizeHint();
    return {std::min(whole.width(), fontMetrics().averageCharWidth() * fewestCharacters),
            whole.height()};
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    const QRect room = contentsRect();
    const QString shown = fontMetrics().elidedText(text(), mode_, room.width());
    QPainter painter(this);
    style()->drawItemText(&painter, room, static_cast<int>(alignment()), palette(), isEnabled(),
                          shown, foregroundRole());
}
