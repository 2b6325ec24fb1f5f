#include "hosts/desktop/window/task_pad_view.h"

#include "console/task_pad.h"
#include "hosts/common/look/icons.h"
#include "hosts/common/look/theme.h"
#include "hosts/desktop/window/task_card.h"
#include "shell/snapin_names.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

namespace desktop {

namespace {

/// The console's symbol font is not at hand: each task has a drawing of its own.
QString symbolOf(const std::string& key)
{
    static const std::pair<const char*, const char*> drawings[] = {
        {snapinTask::configureMacroTrace, "macro-traces"},
        {snapinTask::configureMicroTraces, "micro-traces"},
        {snapinTask::disableAllTraces, "reset"},
        {snapinTask::startNewLogFiles, "new-logs"},
        {snapinTask::gatherLogFiles, "gather"},
        {snapinTask::configureLogSettings, "settings"}};
    for (const auto& [task, drawing] : drawings)
        if (key == task) return QString::fromLatin1(drawing);
    return QStringLiteral("console");
}

} // namespace

TaskPadView::TaskPadView(QWidget* parent)
    : QWidget(parent), title_(new QLabel(this)), description_(new QLabel(this)),
      board_(new QWidget), grid_(new QGridLayout(board_))
{
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    large.setBold(true);
    title_->setFont(large);
    title_->setTextFormat(Qt::PlainText);
    description_->setTextFormat(Qt::PlainText);
    title_->setWordWrap(true);
    description_->setWordWrap(true);
    grid_->setContentsMargins(0, 0, 4, 0);
    grid_->setSpacing(14);
    auto* scroll = new QScrollArea(this);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->viewport()->setAutoFillBackground(false);
    board_->setAutoFillBackground(false);
    scroll->setWidget(board_);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(28, 24, 28, 16);
    column->setSpacing(6);
    column->addWidget(title_);
    column->addWidget(description_);
    column->addSpacing(14);
    column->addWidget(scroll, 1);
}

void TaskPadView::show(TaskPad& pad)
{
    title_->setText(QString::fromStdString(pad.title));
    description_->setText(QString::fromStdString(pad.description));
    qDeleteAll(cards_);
    cards_.clear();
    for (int position = 1; position <= pad.taskCount(); ++position) {
        const Task& task = pad.task(position);
        auto* card = new TaskCard(toolIcon(symbolOf(task.key)), QString::fromStdString(task.text),
                                  QString::fromStdString(task.helpText), board_);
        const QString key = QString::fromStdString(task.key);
        card->setObjectName(QStringLiteral("task-") + key);
        connect(card, &QAbstractButton::clicked, this, [this, key] { emit taskClicked(key); });
        card->installEventFilter(this);
        cards_ << card;
    }
    columns_ = 0;
    arrange();
}

void TaskPadView::focusCard()
{
    if (cards_.empty()) return setFocus(Qt::ShortcutFocusReason);
    QWidget* card = focused_ ? focused_.data() : cards_.front();
    card->setFocus(Qt::ShortcutFocusReason);
}

bool TaskPadView::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn) focused_ = static_cast<QWidget*>(watched);
    return QWidget::eventFilter(watched, event);
}

void TaskPadView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    arrange();
}

void TaskPadView::arrange()
{
    if (cards_.empty()) return;
    const int room = width() - 2 * 28;
    const int card = cards_.front()->sizeHint().width();
    const int columns = std::clamp(room / std::max(1, card), 1, 2);
    if (columns == columns_) return;
    columns_ = columns;
    for (auto* made : cards_) grid_->removeWidget(made);
    for (int row = 0; row <= cards_.size(); ++row) grid_->setRowStretch(row, 0);
    int index = 0;
    for (auto* made : cards_) {
        grid_->addWidget(made, index / columns, index % columns);
        made->show();
        ++index;
    }
    grid_->setRowStretch(index / columns + 1, 1);
}

} // namespace desktop
