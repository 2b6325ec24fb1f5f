#include "hosts/desktop/log/find_bar.h"

#include "hosts/common/look/icons.h"
#include "hosts/common/look/plain_tool_tip.h"
#include "hosts/common/look/spoken_label.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPixmap>
#include <QToolButton>
#include <QVBoxLayout>

#include <initializer_list>

namespace desktop {

namespace {

constexpr int spacing = 6;
constexpr int colourSide = 12;
constexpr qsizetype longestKept = 8; ///< letters of a kept text on its button
constexpr int closeRoom = 60;        ///< for the button that closes the bar, and around all

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

FindBar::FindBar(Highlights& marks, QWidget* parent)
    : QWidget(parent), marks_(marks), text_(new QLineEdit(this)), time_(new QLineEdit(this)),
      expression_(new QCheckBox(this)), matchesCase_(new QCheckBox(this)),
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
    expression_->setObjectName(QStringLiteral("expression"));
    time_->setMaximumWidth(fontMetrics().averageCharWidth() * 22);
    count_->setMinimumWidth(fontMetrics().averageCharWidth() * 16);
    auto* previousButton = button(this, "previous");
    auto* nextButton = button(this, "next");
    auto* keepButton = button(this, "bookmark");
    auto* closeButton = button(this, "close");
    showInLanguage(this, [=, this] {
        findLabel->setText(tr("Fi&nd:"));
        timeLabel->setText(tr("Go to &time:"));
        text_->setPlaceholderText(tr("Text in any column"));
        text_->setAccessibleName(tr("Text to find"));
        expression_->setText(tr("Ex&pression"));
        expression_->setToolTip(tr("Take the text for a regular expression"));
        matchesCase_->setText(tr("Aa"));
        matchesCase_->setToolTip(tr("Match case"));
        matchesCase_->setAccessibleName(tr("Match case"));
        name(keepButton, tr("Keep this text marked (Ctrl+M)"));
        time_->setPlaceholderText(tr("such as 15:23:07"));
        time_->setAccessibleName(tr("Time to go to"));
        count_->setAccessibleName(tr("Hits"));
        name(previousButton, tr("Find previous (Shift+F3)"));
        name(nextButton, tr("Find next (F3)"));
        name(closeButton, tr("Close the find bar (Esc)"));
        if (counted_) count_->setText(counted_());
        showKept();
    });

    lines_ = new QVBoxLayout(this);
    lines_->setContentsMargins(8, 6, 6, 6);
    auto* row = new QHBoxLayout;
    lines_->addLayout(row);
    row->addWidget(findLabel);
    row->addWidget(text_, 1);
    for (QWidget* part : std::initializer_list<QWidget*>{expression_, matchesCase_, previousButton,
                                                         nextButton, keepButton, count_})
        row->addWidget(part);
    row->addSpacing(12);
    row->addWidget(timeLabel);
    row->addWidget(time_);
    row->addWidget(closeButton);
    findPart_ = {findLabel,      text_,      expression_, matchesCase_,
                 previousButton, nextButton, keepButton};
    timePart_ = {timeLabel, time_};

    connect(text_, &QLineEdit::textChanged, this, &FindBar::conditionChanged);
    connect(expression_, &QCheckBox::toggled, this, &FindBar::conditionChanged);
    connect(matchesCase_, &QCheckBox::toggled, this, &FindBar::conditionChanged);
    connect(keepButton, &QToolButton::clicked, this, &FindBar::keep);
    connect(&marks_, &Highlights::changed, this, &FindBar::showKept);
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

TextCondition FindBar::condition() const
{
    return {text_->text(), expression_->isChecked(), matchesCase_->isChecked(), false};
}

void FindBar::keep()
{
    if (text_->text().isEmpty()) return say([] { return tr("Type the text to keep marked"); });
    if (!marks_.keep(condition())) say([] { return tr("No further colour is free"); });
}

/// A button for each text that is kept, in its colour; a click lets it go.
void FindBar::showKept()
{
    if (kept_) {
        kept_->hide();
        kept_->deleteLater(); // a button of it may be the one that was clicked
    }
    kept_ = nullptr;
    if (marks_.kept().empty()) return;
    kept_ = new QWidget(this);
    auto* row = new QHBoxLayout(kept_);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(spacing);
    for (const Highlights::Kept& kept : marks_.kept()) {
        auto* made = new QToolButton(kept_);
        QPixmap colour(colourSide, colourSide);
        colour.fill(Highlights::ground(kept.colour, palette()));
        made->setIcon(colour);
        made->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        made->setFocusPolicy(Qt::TabFocus);
        const QString text = kept.text.text;
        made->setText(
            QString(text.size() > longestKept ? text.left(longestKept) + QChar(0x2026) : text)
                .replace(QLatin1Char('&'), QStringLiteral("&&")));
        name(made, plainToolTip(tr("Mark %1 no more").arg(text)));
        made->setAccessibleName(tr("Mark %1 no more").arg(text));
        connect(made, &QToolButton::clicked, this,
                [this, colour = kept.colour] { marks_.letGo(colour); });
        row->addWidget(made);
    }
    row->addStretch(1);
    lines_->addWidget(kept_);
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
