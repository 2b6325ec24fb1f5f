#include "hosts/common/look/notice_bar.h"

#include "hosts/common/look/icons.h"
#include "hosts/common/look/theme.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QToolButton>

NoticeBar::NoticeBar(QWidget* parent) : QWidget(parent), text_(new QLabel(this))
{
    auto* symbol = new QLabel(this);
    symbol->setPixmap(toolIcon(QStringLiteral("level-warning")).pixmap(18, 18));
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* close = new QToolButton(this);
    close->setIcon(toolIcon(QStringLiteral("close")));
    close->setAutoRaise(true);
    close->setFocusPolicy(Qt::TabFocus);
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(12, 6, 8, 6);
    row->setSpacing(10);
    row->addWidget(symbol);
    row->addWidget(text_, 1);
    row->addWidget(close);
    hide();
    showInLanguage(this, [this, close] {
        close->setToolTip(tr("Close this notice"));
        close->setAccessibleName(close->toolTip());
        renew();
    });
}

void NoticeBar::say(LiveSentence sentence)
{
    said_ = std::move(sentence);
    show();
    renew();
    if (isHidden()) return;
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void NoticeBar::renew()
{
    if (isHidden() || !said_) return;
    const QString sentence = said_();
    text_->setText(sentence);
    setAccessibleName(sentence);
    setVisible(!sentence.isEmpty());
}

QString NoticeBar::sentence() const
{
    return isHidden() ? QString() : text_->text();
}

void NoticeBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), theme::noticeTint(palette()));
    painter.setPen(theme::outline(palette()));
    painter.drawLine(rect().bottomLeft(), rect().bottomRight());
}
