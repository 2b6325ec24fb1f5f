#include "hosts/viewer/find/find_bar.h"

#include "hosts/common/look/icons.h"
#include "hosts/common/look/spoken_label.h"
#include "runtime/run_time_error.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPainter>
#include <QPixmap>
#include <QToolButton>

namespace viewer {

namespace {

constexpr int typingPause = 150; ///< milliseconds
constexpr int colourSide = 12;
constexpr qsizetype longestKept = 16; ///< letters of a kept text on its button

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

FindBar::FindBar(Document& document, Highlights& highlights, QWidget* parent)
    : QWidget(parent), document_(document), highlights_(highlights), text_(new QLineEdit(this)),
      expression_(new QCheckBox(this)), matchesCase_(new QCheckBox(this)),
      said_(new SpokenLabel(this)), row_(new QHBoxLayout(this))
{
    auto* label = new QLabel(this);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(text_);
    text_->setClearButtonEnabled(true);
    text_->setMinimumWidth(fontMetrics().averageCharWidth() * 14);
    auto* before = button(this, "previous");
    auto* behind = button(this, "next");
    auto* mark = button(this, "bookmark");
    auto* close = button(this, "close");
    row_->setContentsMargins(8, 6, 6, 6);
    row_->addWidget(label);
    row_->addWidget(text_, 1);
    for (QWidget* part : {static_cast<QWidget*>(expression_), static_cast<QWidget*>(matchesCase_),
                          static_cast<QWidget*>(before), static_cast<QWidget*>(behind),
                          static_cast<QWidget*>(said_), static_cast<QWidget*>(mark)})
        row_->addWidget(part);
    row_->addStretch(1);
    row_->addWidget(close);
    wait_.setSingleShot(true);
    wait_.setInterval(typingPause);
    connect(text_, &QLineEdit::textChanged, &wait_, qOverload<>(&QTimer::start));
    connect(&wait_, &QTimer::timeout, this, &FindBar::takeText);
    connect(expression_, &QCheckBox::toggled, this, &FindBar::takeText);
    connect(matchesCase_, &QCheckBox::toggled, this, &FindBar::takeText);
    connect(before, &QToolButton::clicked, this, &FindBar::previous);
    connect(behind, &QToolButton::clicked, this, &FindBar::next);
    connect(mark, &QToolButton::clicked, this, &FindBar::keep);
    connect(close, &QToolButton::clicked, this, &FindBar::closed);
    connect(&highlights_, &Highlights::changed, this, &FindBar::showKept);
    showInLanguage(this, [=, this] {
        label->setText(tr("Fi&nd:"));
        text_->setPlaceholderText(tr("Text of a line"));
        text_->setAccessibleName(tr("Text to find"));
        expression_->setText(tr("Ex&pression"));
        expression_->setToolTip(tr("Take the text for a regular expression"));
        matchesCase_->setText(tr("Aa"));
        matchesCase_->setAccessibleName(tr("Match case"));
        said_->setAccessibleName(tr("Hits"));
        name(before, tr("Find previous (Shift+F3)"));
        name(behind, tr("Find next (F3)"));
        name(mark, tr("Keep this text marked (Ctrl+M)"));
        name(close, tr("Close the find bar (Esc)"));
        if (sentence_) said_->setText(sentence_());
    });
    hide();
}

void FindBar::start()
{
    show();
    text_->setFocus(Qt::ShortcutFocusReason);
    text_->selectAll();
    takeText();
}

QString FindBar::said() const
{
    return said_->text();
}

TextCondition FindBar::condition() const
{
    return {text_->text(), expression_->isChecked(), matchesCase_->isChecked(), false};
}

void FindBar::takeText()
{
    wait_.stop();
    try {
        document_.find(condition());
        highlights_.setFound(condition());
        showHits(std::nullopt);
    } catch (const RunTimeError& error) {
        say([why = harmless(QString::fromStdString(error.description()))] { return why; });
    }
}

void FindBar::say(LiveSentence sentence)
{
    sentence_ = std::move(sentence);
    said_->setText(sentence_());
}

void FindBar::showHits(std::optional<std::size_t> place)
{
    const bool asked = !text_->text().isEmpty();
    const Hits* hits = document_.hits();
    const bool complete = hits != nullptr && hits->complete;
    const std::size_t count = hits != nullptr ? hits->rows.count() : 0;
    const std::size_t current =
        hits != nullptr && place && hits->rows.has(*place) ? hits->rows.countBefore(*place) + 1 : 0;
    say([=] {
        const QLocale locale;
        const auto number = [&](std::size_t rows) {
            return locale.toString(static_cast<qulonglong>(rows));
        };
        if (!asked) return QString();
        if (!complete) return tr("%1 hits so far").arg(number(count));
        if (count == 0) return tr("No hits");
        return current > 0 ? tr("%1 of %2").arg(number(current), number(count))
                           : tr("%1 hits").arg(number(count));
    });
}

void FindBar::keep()
{
    if (!highlights_.keep(condition()) && !text_->text().isEmpty())
        say([] { return tr("No further colour is free"); });
}

/// A button for each text that is kept, in its colour; a click lets it go.
void FindBar::showKept()
{
    delete keptButtons_;
    keptButtons_ = new QWidget(this);
    auto* row = new QHBoxLayout(keptButtons_);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    for (const Highlights::Kept& kept : highlights_.kept()) {
        auto* made = new QToolButton(keptButtons_);
        QPixmap colour(colourSide, colourSide);
        colour.fill(Highlights::ground(kept.colour, palette()));
        made->setIcon(colour);
        made->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        made->setFocusPolicy(Qt::TabFocus);
        const QString text = harmless(kept.text.text);
        made->setText(text.size() > longestKept ? text.left(longestKept) + QChar(0x2026) : text);
        name(made, tr("Mark %1 no more").arg(text));
        connect(
            made, &QToolButton::clicked, this,
            [this, colour = kept.colour] { highlights_.letGo(colour); }, Qt::QueuedConnection);
        row->addWidget(made);
    }
    row_->insertWidget(row_->count() - 2, keptButtons_);
    keptButtons_->setVisible(!highlights_.kept().empty());
}

void FindBar::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && text_->hasFocus()) {
        if (wait_.isActive()) takeText();
        if (event->modifiers() & Qt::ShiftModifier)
            emit previous();
        else
            emit next();
        return;
    }
    if (event->key() == Qt::Key_Escape) return emit closed();
    QWidget::keyPressEvent(event);
}

} // namespace viewer
