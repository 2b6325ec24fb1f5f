#include "hosts/desktop/window/task_card.h"

#include "hosts/common/look/theme.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace desktop {

namespace {
constexpr int margin = 16;
constexpr int gap = 14;
constexpr int betweenTexts = 4;
constexpr int preferredWidth = 300;
constexpr int symbolSize = 36;
constexpr int radius = 8;

/// A card with rounded corners. What lies between them is straight and needs no smooth curve, which
/// takes long over a large area.
void drawCard(QPainter& painter, const QRect& card, const QColor& fill, const QColor& border,
              int borderWidth)
{
    const qreal half = borderWidth / 2.0;
    painter.setBrush(fill);
    painter.setPen(QPen(border, borderWidth));
    const int corner = radius + borderWidth;
    const QRect top(card.left(), card.top(), card.width(), corner);
    for (const QRect& strip : {top, top.translated(0, card.height() - corner)}) {
        painter.setClipRect(strip);
        painter.drawRoundedRect(QRectF(card).adjusted(half, half, -half, -half), radius, radius);
    }
    painter.setClipping(false);
    const QRect middle = card.adjusted(0, corner, 0, -corner);
    painter.fillRect(middle, border);
    painter.fillRect(middle.adjusted(borderWidth, 0, -borderWidth, 0), fill);
}
} // namespace

TaskCard::TaskCard(const QIcon& symbol, const QString& title, const QString& help, QWidget* parent)
    : QAbstractButton(parent)
{
    setIcon(symbol);
    setTexts(title, help);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void TaskCard::setTexts(const QString& title, const QString& help)
{
    help_ = help;
    textHeights_.clear();
    setText(title);
    setAccessibleName(title);
    setAccessibleDescription(help);
    updateGeometry();
}

QFont TaskCard::titleFont() const
{
    QFont font = this->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.1);
    return font;
}

int TaskCard::textLeft() const
{
    return margin + symbolSize + gap;
}

int TaskCard::textHeight(int width) const
{
    if (const auto known = textHeights_.find(width); known != textHeights_.end())
        return known->second;
    const QRect room(0, 0, std::max(40, width - textLeft() - margin), 10000);
    const int title =
        QFontMetrics(titleFont()).boundingRect(room, Qt::TextWordWrap, text()).height();
    const int help = fontMetrics().boundingRect(room, Qt::TextWordWrap, help_).height();
    return textHeights_[width] = title + betweenTexts + help;
}

int TaskCard::heightForWidth(int width) const
{
    return std::max(symbolSize, textHeight(width)) + 2 * margin;
}

QSize TaskCard::sizeHint() const
{
    const int width = std::max(preferredWidth, fontMetrics().averageCharWidth() * 40);
    return {width, heightForWidth(width)};
}

void TaskCard::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor fill = palette().color(QPalette::Base);
    if (isDown())
        fill = palette().color(QPalette::Button).darker(104);
    else if (underMouse())
        fill = palette().color(QPalette::Button);
    const bool focused = hasFocus();
    drawCard(painter, rect(), fill,
             focused ? palette().color(QPalette::Highlight) : theme::outline(palette()),
             focused ? 2 : 1);

    icon().paint(&painter, QRect(margin, margin, symbolSize, symbolSize), Qt::AlignCenter,
                 isEnabled() ? QIcon::Normal : QIcon::Disabled);
    const int left = textLeft();
    QRect room(left, margin, width() - left - margin, height() - margin);
    painter.setFont(titleFont());
    painter.setPen(palette().color(QPalette::Text));
    QRect used;
    painter.drawText(room, Qt::TextWordWrap, text(), &used);
    room.setTop(used.bottom() + betweenTexts);
    painter.setFont(font());
    painter.setPen(theme::quietText(palette()));
    painter.drawText(room, Qt::TextWordWrap, help_);
}

void TaskCard::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        textHeights_.clear();
    QAbstractButton::changeEvent(event);
}

void TaskCard::enterEvent(QEnterEvent* event)
{
    update();
    QAbstractButton::enterEvent(event);
}

void TaskCard::leaveEvent(QEvent* event)
{
    update();
    QAbstractButton::leaveEvent(event);
}

void TaskCard::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return click();
    QAbstractButton::keyPressEvent(event);
}

} // namespace desktop
