#include "hosts/viewer/follow/follow_bar.h"

#include "hosts/common/look/icons.h"
#include "hosts/common/look/interface_language.h"
#include "hosts/common/look/theme.h"
#include "hosts/viewer/table/row_table.h"

#include <QHBoxLayout>
#include <QLocale>
#include <QPainter>
#include <QScrollBar>
#include <QToolButton>

namespace viewer {

FollowBar::FollowBar(Document& document, RowTable& table, QWidget* parent)
    : QWidget(parent), document_(document), table_(table), button_(new QToolButton(this))
{
    button_->setIcon(toolIcon(QStringLiteral("next")));
    button_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button_->setAutoRaise(true);
    button_->setFocusPolicy(Qt::TabFocus);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 2, 8, 2);
    row->addWidget(button_);
    row->addStretch(1);
    connect(button_, &QToolButton::clicked, this, [this] {
        goToEnd();
        table_.setFocus();
    });
    // Behind the table, which has the rows already.
    connect(&document_, &Document::rowsAboutToCome, this, &FollowBar::beginChange);
    connect(&document_, &Document::viewAboutToChange, this, &FollowBar::beginChange);
    connect(&document_, &Document::rowsCame, this, &FollowBar::endChange);
    connect(&document_, &Document::viewChanged, this, &FollowBar::endChange);
    connect(&document_, &Document::filterChanged, this, [this] { seen_ = 0; });
    connect(&document_, &Document::followingChanged, this, [this] {
        seen_ = document_.rowCount();
        if (document_.follows()) goToEnd();
        showWaiting();
    });
    connect(table_.verticalScrollBar(), &QScrollBar::valueChanged, this, &FollowBar::scrolled);
    hide();
    showInLanguage(this, [this] {
        button_->setToolTip(tr("Go to the last row, and keep the end in sight (End)"));
        showWaiting();
    });
}

std::size_t FollowBar::waiting() const
{
    const std::size_t rows = document_.rowCount();
    return document_.follows() && rows > seen_ ? rows - seen_ : 0;
}

void FollowBar::goToEnd()
{
    table_.scrollToEnd();
    seen_ = document_.rowCount();
    showWaiting();
}

void FollowBar::beginChange()
{
    atEnd_ = table_.isAtEnd();
}

void FollowBar::endChange()
{
    if (!document_.follows()) return;
    // What another filter lets through has not come: it was there.
    if (seen_ == 0 && !atEnd_) seen_ = document_.rowCount();
    if (atEnd_)
        goToEnd();
    else
        showWaiting();
}

void FollowBar::scrolled()
{
    if (!document_.follows() || !table_.isAtEnd()) return;
    seen_ = document_.rowCount();
    showWaiting();
}

void FollowBar::showWaiting()
{
    const std::size_t rows = waiting();
    if (rows > 0)
        button_->setText(
            rows == 1 ? tr("1 new line")
                      : tr("%1 new lines").arg(QLocale().toString(static_cast<qulonglong>(rows))));
    setVisible(rows > 0);
}

void FollowBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), theme::noticeTint(palette()));
    painter.setPen(theme::outline(palette()));
    painter.drawLine(rect().topLeft(), rect().topRight());
}

} // namespace viewer
