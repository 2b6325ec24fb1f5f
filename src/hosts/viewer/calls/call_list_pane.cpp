#include "hosts/viewer/calls/call_list_pane.h"

#include "hosts/common/look/elided_label.h"
#include "hosts/common/look/interface_language.h"
#include "hosts/common/look/roomy_delegate.h"
#include "hosts/viewer/calls/number_text.h"

#include <QActionGroup>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QStackedWidget>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace viewer {

namespace {

constexpr int firstWidths[callColumns] = {16, 24, 12, 8, 9, 9, 30}; ///< in characters
constexpr int roomOfCell = 24;

} // namespace

CallListPane::CallListPane(Calls& calls, QWidget* parent)
    : QWidget(parent), calls_(calls), model_(new CallListModel(this)), list_(new QTreeView(this)),
      pages_(new QStackedWidget(this)), empty_(new QLabel(this)),
      state_(new ElidedLabel(Qt::ElideRight, this))
{
    makeList();
    empty_->setTextFormat(Qt::PlainText);
    empty_->setAlignment(Qt::AlignCenter);
    empty_->setWordWrap(true);
    pages_->addWidget(empty_);
    pages_->addWidget(list_);
    state_->setContentsMargins(6, 3, 6, 3);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(state_);
    column->addWidget(pages_, 1);
    connect(&calls_, &Calls::listChanged, this, &CallListPane::showCalls);
    connect(list_, &QTreeView::activated, this, &CallListPane::ask);
    connect(list_, &QWidget::customContextMenuRequested, this, &CallListPane::offerMenu);
    showInLanguage(this, [this] { showTexts(); });
}

void CallListPane::makeList()
{
    list_->setModel(model_);
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setAllColumnsShowFocus(true);
    list_->setFrameShape(QFrame::NoFrame);
    list_->setItemDelegate(new RoomyDelegate(list_));
    list_->setContextMenuPolicy(Qt::CustomContextMenu);
    list_->setSortingEnabled(true);
    list_->sortByColumn(static_cast<int>(CallColumn::start), Qt::AscendingOrder);
    for (int column = 0; column < callColumns; ++column)
        list_->setColumnWidth(column,
                              roomOfCell + fontMetrics().averageCharWidth() * firstWidths[column]);
}

void CallListPane::showTexts()
{
    list_->setAccessibleName(tr("Calls"));
    state_->setAccessibleName(tr("State of the list of calls"));
    model_->renewHeaders();
    showState();
}

/// Another list keeps the current call and where the list stands.
void CallListPane::showCalls()
{
    if (calls_.list()) {
        const QModelIndex current = list_->currentIndex();
        const std::string id = current.isValid() ? model_->call(current.row()).id : std::string();
        model_->show(calls_.list());
        const int row = id.empty() ? -1 : model_->rowOf(id);
        if (model_->rowCount() > 0 && !list_->currentIndex().isValid())
            list_->setCurrentIndex(model_->index(std::max(0, row), 0));
    }
    showState();
}

void CallListPane::showState()
{
    const bool any = model_->rowCount() > 0;
    pages_->setCurrentWidget(any ? static_cast<QWidget*>(list_) : empty_);
    empty_->setText(any ? QString() : whyNone());
    state_->setVisible(any);
    state_->setText(any ? said() : QString());
}

QString CallListPane::whyNone() const
{
    if (calls_.listWork() == Calls::Work::running) return tr("Looking for calls...");
    if (calls_.listWork() == Calls::Work::stopped)
        return tr("No call was found until it was stopped.");
    if (!calls_.anySource())
        return tr("No call is known: the lines of the open logs are of a form without call ids.");
    return tr("No row on show has a call id.");
}

QString CallListPane::said() const
{
    const auto list = calls_.list();
    if (model_->rowCount() == 0) return whyNone();
    QString text = tr("Calls of the rows on show: %1").arg(numberText(list->calls.size()));
    if (list->leftOut) text += tr(", the first of more; a filter brings others");
    const int share = static_cast<int>(std::floor(list->share * 100));
    if (calls_.listWork() == Calls::Work::running)
        text += tr(", %1 % of the rows so far").arg(list->complete ? 0 : share);
    if (calls_.listWork() == Calls::Work::stopped)
        text += tr(", stopped after %1 % of the rows").arg(share);
    return text;
}

void CallListPane::ask(const QModelIndex& index)
{
    if (!index.isValid()) return;
    const timeline::Call& call = model_->call(index.row());
    emit callAsked(call.id, call.first);
}

/// What a click on the headers does can be done by key here.
void CallListPane::offerMenu(const QPoint& at)
{
    QMenu menu(this);
    const QModelIndex current = list_->currentIndex();
    QAction* show = menu.addAction(tr("&Show This Call"));
    show->setEnabled(current.isValid());
    // The list may be another one while the menu is open.
    if (current.isValid()) {
        const timeline::Call& call = model_->call(current.row());
        connect(show, &QAction::triggered, this,
                [this, id = call.id, first = call.first] { emit callAsked(id, first); });
    }
    QMenu* sorting = menu.addMenu(tr("Sort &by"));
    auto* group = new QActionGroup(&menu);
    for (int column = 0; column < callColumns; ++column) {
        QAction* entry = sorting->addAction(CallListModel::title(static_cast<CallColumn>(column)));
        entry->setCheckable(true);
        entry->setChecked(list_->header()->sortIndicatorSection() == column);
        group->addAction(entry);
        connect(entry, &QAction::triggered, this, [this, column] {
            // Once more turns the order round.
            const QHeaderView& header = *list_->header();
            const bool turn = header.sortIndicatorSection() == column &&
                              header.sortIndicatorOrder() == Qt::AscendingOrder;
            list_->sortByColumn(column, turn ? Qt::DescendingOrder : Qt::AscendingOrder);
        });
    }
    menu.exec(list_->viewport()->mapToGlobal(at));
}

void CallListPane::showEvent(QShowEvent* event)
{
    calls_.keepList(true);
    QWidget::showEvent(event);
}

void CallListPane::hideEvent(QHideEvent* event)
{
    calls_.keepList(false);
    QWidget::hideEvent(event);
}

void CallListPane::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) return emit left();
    QWidget::keyPressEvent(event);
}

} // namespace viewer
