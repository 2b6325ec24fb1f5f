#include "hosts/viewer/calls/call_list_pane.h"
#include "hosts/viewer/calls/call_pane.h"
#include "hosts/viewer/calls/call_tabs.h"
#include "hosts/viewer/details/details_pane.h"
#include "hosts/viewer/window/main_window.h"

#include <QAction>
#include <QSettings>
#include <QSplitter>
#include <QStackedWidget>
#include <QTreeWidget>

namespace viewer {

namespace {

const QString callsKey = QStringLiteral("window/calls");
constexpr int firstCallsHeight = 240;
constexpr int firstRowsHeight = 480; ///< of all that stands above
constexpr int leastRowsHeight = 110; ///< of the table, with some rows

} // namespace

/// Puts the calls below all else.
void MainWindow::makeCalls()
{
    calls_ = std::make_unique<Calls>(document_);
    rowsAndCalls_ = new QSplitter(Qt::Vertical, pages_);
    rowsAndCalls_->setObjectName(QStringLiteral("rowsAndCalls"));
    rowsAndCalls_->setChildrenCollapsible(false);
    callTabs_ = new CallTabs(*calls_, rowsAndCalls_);
    rowsAndCalls_->addWidget(splitter_);
    rowsAndCalls_->addWidget(callTabs_);
    rowsAndCalls_->setStretchFactor(0, 1);
    rowsAndCalls_->setSizes({firstRowsHeight, firstCallsHeight});
    rowsAndCalls_->restoreState(settings_.value(callsKey).toByteArray());
    callTabs_->hide();
    table_->setMinimumHeight(leastRowsHeight);
}

void MainWindow::connectCalls()
{
    connect(callTabs_, &CallTabs::rowAsked, this, [this](const timeline::IndexRow& row) {
        if (goToRow(row)) table_->setFocus();
    });
    connect(callTabs_, &CallTabs::left, table_, qOverload<>(&QWidget::setFocus));
    connect(callTabs_, &CallTabs::closed, this, &MainWindow::closeCalls);
    connect(callTabs_, &QTabWidget::currentChanged, this, &MainWindow::updateActions);
    connect(calls_.get(), &Calls::listChanged, this, &MainWindow::updateCallActions);
    connect(calls_.get(), &Calls::rowsChanged, this, &MainWindow::updateCallActions);
    connect(table_, &RowTable::currentPlaceChanged, this, [this] {
        const auto place = table_->currentPlace();
        if (place && callTabs_->showsCall())
            callTabs_->call().follow(
                document_.indexRow(calls_->placeWithId(*place).value_or(*place)));
    });
    // In the details the call id itself leads to the call.
    QTreeWidget& fields = details_->fields();
    fields.setContextMenuPolicy(Qt::ActionsContextMenu);
    fields.addAction(actions_[Command::thisCall]);
    connect(&fields, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* field) {
        if (field->text(0) == RowColumns::title(RowColumn::callId)) run(Command::thisCall);
    });
}

void MainWindow::rememberCalls()
{
    settings_.setValue(callsKey, rowsAndCalls_->saveState());
}

void MainWindow::performCalls(Command command)
{
    if (command == Command::thisCall) return showThisCall();
    if (command != Command::calls) return performLanguage(command);
    // The key brings the keys to the list first, and closes it when they are there.
    const QWidget* focused = focusWidget();
    const bool inList = focused != nullptr && callTabs_->list().isAncestorOf(focused);
    if (callTabs_->showsList() && inList) return closeCalls();
    callTabs_->openList();
    updateActions();
}

void MainWindow::closeCalls()
{
    callTabs_->hide();
    table_->setFocus();
    updateActions();
}

/// Shows the lines of the current row's call, that row selected.
void MainWindow::showThisCall()
{
    const auto current = table_->currentPlace();
    const auto place = current ? calls_->placeWithId(*current) : std::nullopt;
    if (!place) return;
    const timeline::IndexRow row = document_.indexRow(*place);
    callTabs_->openCall();
    callTabs_->call().show(document_.value(*place, timeline::Column::callId), row.moment, row);
    updateActions();
}

void MainWindow::updateCallActions()
{
    const auto current = table_->currentPlace();
    const bool hasCall = current && calls_->placeWithId(*current);
    action(Command::calls).setEnabled(document_.hasSources());
    action(Command::calls).setChecked(callTabs_->showsList());
    action(Command::thisCall).setEnabled(hasCall);
    action(Command::stop)
        .setEnabled(document_.state().busy || writing() != nullptr || calls_->busy());
    const QString key = action(Command::thisCall).shortcut().toString(QKeySequence::NativeText);
    callTabs_->call().setReason(
        !current || hasCall
            ? tr("No call is shown. %1 shows the call of the current row.").arg(key)
            : tr("The current row has no call id. Lines of some forms have none; where there is "
                 "one, %1 shows the call.")
                  .arg(key));
}

} // namespace viewer
