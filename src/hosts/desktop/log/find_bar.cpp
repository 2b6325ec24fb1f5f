#include "hosts/desktop/log/find_bar.h"

#include "hosts/common/look/icons.h"
#include "hosts/common/look/spoken_label.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QToolButton>

namespace desktop {

namespace {

constexpr int spacing = 6;
constexpr int closeRoom = 60; ///< for the button that closes the bar, and around all

QToolButton* button(QWidget* parent, const char* icon)
{
    auto* made = new QToolButton(parent);
    made->setIcon(toolIcon(QString::fromLatin1(icon)));
    made->setAutoRaise(true);
    made->setFocusPolicy(Qt::TabFocus);
    return made;
}

void name(QToolButton* button, const QString& text)
{
    button->setToolTip(text);
    button->setAccessibleName(text);
}

} // namespace

FindBar::FindBar(QWidget* parent)
    : QWidget(parent), text_(new QLineEdit(this)), time_(new QLineEdit(this)),
      count_(new SpokenLabel(this))
{
    auto* findLabel = new QLabel(this);
    findLabel->setTextFormat(Qt::PlainText);
    findLabel->setBuddy(text_);
    auto* timeLabel = new QLabel(this);
    timeLabel->setTextFormat(Qt::PlainText);
    timeLabel->setBuddy(time_);
    text_->setClearButtonEnabled(true);
    text_->setMinimumWidth(fontMetrics().averageCharWidth() * 14);
    time_->setMinimumWidth(fontMetrics().averageCharWidth() * 12);
    text_->setObjectName(QStringLiteral("findText"));
    time_->setMaximumWidth(fontMetrics().averageCharWidth() * 22);
    count_->setMinimumWidth(fontMetrics().averageCharWidth() * 16);
    auto* previousButton = button(this, "previous");
    auto* nextButton = button(this, "next");
    auto* closeButton = button(this, "close");
    showInLanguage(this, [=, this] {
        findLabel->setText(tr("Fi&nd:"));
        timeLabel->setText(tr("Go to &time:"));
        text_->setPlaceholderText(tr("Text in any column"));
        text_->setAccessibleName(tr("Text to find"));
        time_->setPlaceholderText(tr("such as 15:23:07"));
        time_->setAccessibleName(tr("Time to go to"));
        count_->setAccessibleName(tr("Hits"));
        name(previousButton, tr("Find previous (Shift+F3)"));
        name(nextButton, tr("Find next (F3)"));
        name(closeButton, tr("Close the find bar (Esc)"));
        if (counted_) count_->setText(counted_());
    });

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 6, 6, 6);
    row->addWidget(findLabel);
    row->addWidget(text_, 1);
    row->addWidget(previousButton);
    row->addWidget(nextButton);
    row->addWidget(count_);
    row->addSpacing(12);
    row->addWidget(timeLabel);
    row->addWidget(time_);
    row->addWidget(closeButton);
    findPart_ = {findLabel, text_, previousButton, nextButton};
    timePart_ = {timeLabel, time_};

    connect(text_, &QLineEdit::textChanged, this, &FindBar::textChanged);
    connect(time_, &QLineEdit::returnPressed, this, [this] { emit timeAsked(time_->text()); });
    connect(previousButton, &QToolButton::clicked, this, &FindBar::previous);
    connect(nextButton, &QToolButton::clicked, this, &FindBar::next);
    connect(closeButton, &QToolButton::clicked, this, &FindBar::closed);
}

/// Shows both parts where there is room for them, else the one that was asked for.
void FindBar::arrange()
{
    int needed = closeRoom + count_->sizeHint().width();
    for (const auto* part : {&findPart_, &timePart_})
        for (const auto* widget : *part) needed += widget->sizeHint().width() + spacing;
    const bool both = width() >= needed;
    for (auto* widget : findPart_) widget->setVisible(both || !timeWanted_);
    for (auto* widget : timePart_) widget->setVisible(both || timeWanted_);
}

void FindBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    arrange();
}

void FindBar::startFind()
{
    timeWanted_ = false;
    show();
    arrange();
    text_->setFocus(Qt::ShortcutFocusReason);
    text_->selectAll();
}

void FindBar::startGoToTime()
{
    timeWanted_ = true;
    show();
    arrange();
    time_->setFocus(Qt::ShortcutFocusReason);
    time_->selectAll();
}

QString FindBar::text() const
{
    return text_->text();
}

void FindBar::showHits(int current, int count)
{
    const bool asked = !text_->text().isEmpty();
    say([asked, current, count] {
        if (!asked) return QString();
        const QLocale locale;
        if (count == 0) return tr("No hits");
        return current > 0 ? tr("%1 of %2").arg(locale.toString(current), locale.toString(count))
                           : tr("%1 hits").arg(locale.toString(count));
    });
}

void FindBar::say(LiveSentence sentence)
{
    counted_ = std::move(sentence);
    count_->setText(counted_());
}

void FindBar::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && text_->hasFocus()) {
        if (event->modifiers() & Qt::ShiftModifier)
            emit previous();
        else
            emit next();
        return;
    }
    if (event->key() == Qt::Key_Escape) return emit closed();
    QWidget::keyPressEvent(event);
}

} // namespace desktop
