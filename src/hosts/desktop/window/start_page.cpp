#include "hosts/desktop/window/start_page.h"

#include "hosts/common/look/icons.h"
#include "hosts/desktop/window/task_card.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

#include <iterator>

namespace desktop {

namespace {

constexpr int widestCard = 560;
constexpr int startMargin = 28;

struct Way {
    Command command;
    const char* icon;
    const char* title;
    const char* text;
};

constexpr const char* startContext = "StartPage"; ///< of the texts, in the translations

constexpr Way ways[] = {
    {Command::openSite, "open-site", QT_TRANSLATE_NOOP("StartPage", "Open a Site"),
     QT_TRANSLATE_NOOP("StartPage", "The folder of a server, or of a copy of one. A folder that is "
                                    "dropped here is opened, too.")},
    {Command::makeSample, "new-logs", QT_TRANSLATE_NOOP("StartPage", "Make a Sample Server"),
     QT_TRANSLATE_NOOP("StartPage", "A server with made-up logs, to try things on, in a new "
                                    "folder.")},
    {Command::help, "help", QT_TRANSLATE_NOOP("StartPage", "Read the Manual"),
     QT_TRANSLATE_NOOP("StartPage", "What the tool does, and how to go about it.")},
};

QString translated(const char* text)
{
    return QCoreApplication::translate(startContext, text);
}

QLabel* madeLabel(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

StartPage::StartPage(QWidget* parent) : QWidget(parent)
{
    // Large letters in a small window: the cards scroll.
    auto* scroll = new QScrollArea(this);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->viewport()->setAutoFillBackground(false);
    auto* body = new QWidget;
    body->setAutoFillBackground(false);
    body->setMaximumWidth(widestCard + 2 * startMargin);
    title_ = madeLabel(body);
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    large.setBold(true);
    title_->setFont(large);
    text_ = madeLabel(body);
    board_ = new QGridLayout;
    board_->setSpacing(14);
    auto* column = new QVBoxLayout(body);
    column->setContentsMargins(startMargin, startMargin, startMargin, startMargin);
    column->setSpacing(6);
    column->addWidget(title_);
    column->addWidget(text_);
    column->addSpacing(14);
    column->addLayout(board_);
    column->addStretch(1);
    for (const Way& way : ways) {
        auto* card = new TaskCard(toolIcon(QString::fromLatin1(way.icon)), {}, {}, body);
        // Not from within the click: what comes of it may take long.
        connect(
            card, &QAbstractButton::clicked, this,
            [this, command = way.command] {
                if (chosen) chosen(command);
            },
            Qt::QueuedConnection);
        board_->addWidget(card, static_cast<int>(cards_.size()), 0);
        cards_ << card;
    }
    showTexts();
    scroll->setWidget(body);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(scroll);
}

void StartPage::showTexts()
{
    title_->setText(translated(QT_TRANSLATE_NOOP("StartPage", "No site is open")));
    text_->setText(translated(QT_TRANSLATE_NOOP(
        "StartPage", "A site is a server in a folder, with its logs and settings.")));
    for (std::size_t at = 0; at < std::size(ways); ++at)
        cards_[static_cast<qsizetype>(at)]->setTexts(translated(ways[at].title),
                                                     translated(ways[at].text));
}

void StartPage::focusCard()
{
    if (!cards_.empty()) cards_.front()->setFocus(Qt::OtherFocusReason);
}

void StartPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    focusCard();
}

} // namespace desktop
