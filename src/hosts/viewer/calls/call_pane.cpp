#include "hosts/viewer/calls/call_pane.h"

#include "hosts/common/look/elided_label.h"
#include "hosts/common/look/interface_language.h"
#include "hosts/common/look/theme.h"
#include "hosts/viewer/calls/lane_view.h"
#include "hosts/viewer/calls/number_text.h"
#include "hosts/viewer/table/time_text.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <cmath>

namespace viewer {

namespace {

constexpr int firstLanesHeight = 200;
constexpr int firstTextHeight = 60;
constexpr int leastLines = 2; ///< that are in sight at least

} // namespace

CallPane::CallPane(Calls& calls, QWidget* parent)
    : QWidget(parent), calls_(calls), pages_(new QStackedWidget(this)), empty_(new QLabel(this)),
      state_(new ElidedLabel(Qt::ElideRight, this)), lanes_(new LaneView(calls, this)),
      fields_(new ElidedLabel(Qt::ElideRight, this)), text_(new QPlainTextEdit(this))
{
    empty_->setTextFormat(Qt::PlainText);
    empty_->setAlignment(Qt::AlignCenter);
    empty_->setWordWrap(true);
    for (ElidedLabel* label : {state_, fields_}) label->setContentsMargins(6, 3, 6, 3);
    text_->setReadOnly(true);
    text_->setFrameShape(QFrame::NoFrame);
    text_->setFont(theme::traceFont());
    text_->setTabChangesFocus(true);
    text_->setMinimumHeight(leastLines * QFontMetrics(text_->font()).lineSpacing());
    auto* below = new QWidget(this);
    auto* texts = new QVBoxLayout(below);
    texts->setContentsMargins(0, 0, 0, 0);
    texts->setSpacing(0);
    texts->addWidget(fields_);
    texts->addWidget(text_, 1);
    auto* splitter = new QSplitter(Qt::Vertical, this);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(lanes_);
    splitter->addWidget(below);
    splitter->setStretchFactor(0, 1);
    splitter->setSizes({firstLanesHeight, firstTextHeight});
    auto* shown = new QWidget(pages_);
    auto* column = new QVBoxLayout(shown);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(state_);
    column->addWidget(splitter, 1);
    pages_->addWidget(empty_);
    pages_->addWidget(shown);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(pages_);
    // The lanes have heard of the rows before this pane.
    connect(&calls_, &Calls::rowsChanged, this, &CallPane::showCall);
    connect(lanes_, &LaneView::selectionChanged, this, &CallPane::showSelected);
    connect(lanes_, &LaneView::rowAsked, this, [this] {
        if (const auto row = lanes_->selectedRow()) emit rowAsked(*row);
    });
    connect(lanes_, &LaneView::left, this, &CallPane::left);
    showInLanguage(this, [this] { showTexts(); });
}

void CallPane::showTexts()
{
    state_->setAccessibleName(tr("The call"));
    fields_->setAccessibleName(tr("The selected line"));
    text_->setAccessibleName(tr("Text of the selected line"));
    showCall();
    showSelected();
}

void CallPane::show(const std::string& id, timeline::Moment around,
                    std::optional<timeline::IndexRow> selected)
{
    wished_ = selected;
    const bool known = calls_.rows() && calls_.rows()->id == id;
    if (known && calls_.rowsWork() != Calls::Work::stopped)
        showCall();
    else
        calls_.look(id, around);
}

void CallPane::follow(const timeline::IndexRow& row)
{
    const auto selected = lanes_->selectedRow();
    if (!selected || selected->place != row.place) lanes_->select(row);
}

void CallPane::setReason(const QString& sentence)
{
    reason_ = sentence;
    showCall();
}

void CallPane::showCall()
{
    const bool any = calls_.rows() && !calls_.rows()->rows.empty();
    if (wished_ && (lanes_->select(*wished_) || calls_.rowsWork() != Calls::Work::running))
        wished_.reset();
    if (any && !wished_ && !lanes_->selected()) lanes_->go(LaneMove::first);
    pages_->setCurrentIndex(any ? 1 : 0);
    (any ? static_cast<QLabel*>(state_) : empty_)->setText(said());
    if (any) state_->setText(said());
}

QString CallPane::said() const
{
    const auto rows = calls_.rows();
    const bool running = calls_.rowsWork() == Calls::Work::running;
    if (!rows || rows->rows.empty()) {
        if (running) return tr("Looking for the lines of the call...");
        return rows ? tr("No line of the call was found.") : reason_;
    }
    std::size_t errors = 0;
    std::size_t warnings = 0;
    for (const CallRow& row : rows->rows) {
        if (row.severity == Severity::error) ++errors;
        if (row.severity == Severity::warning) ++warnings;
    }
    QString text =
        tr("Call %1. Lines: %2, processes: %3, errors: %4, warnings: %5")
            .arg(harmless(QString::fromStdString(rows->id)), numberText(rows->rows.size()),
                 numberText(rows->lanes.size()), numberText(errors), numberText(warnings));
    if (const auto times = LaneLayout::timesOf(*rows))
        text += tr(", length: %1").arg(differenceText(times->first, times->second).mid(1));
    if (rows->leftOut) text += tr("; it has more, which are not shown");
    const int share = static_cast<int>(std::floor(calls_.rowsShare() * 100));
    if (running) text += tr("; looking for more, %1 %").arg(share);
    if (calls_.rowsWork() == Calls::Work::stopped) text += tr("; stopped after %1 %").arg(share);
    return text;
}

void CallPane::showSelected()
{
    const auto selected = lanes_->selectedRow();
    if (!selected) {
        fields_->setText({});
        text_->clear();
        return;
    }
    const ShownRow row = calls_.row(*selected);
    QStringList parts = {clockText(row.index.moment), row.process, row.source, row.component,
                         tr("level %1").arg(row.level)};
    if (row.severity == Severity::error) parts << tr("error");
    if (row.severity == Severity::warning) parts << tr("warning");
    if (!row.port.isEmpty()) parts << tr("port %1").arg(row.port);
    if (!row.thread.isEmpty()) parts << tr("thread %1").arg(row.thread);
    parts.removeAll(QString());
    fields_->setText(parts.join(QStringLiteral(", ")));
    text_->setPlainText(calls_.text(*selected));
}

void CallPane::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) return emit left();
    QWidget::keyPressEvent(event);
}

} // namespace viewer
