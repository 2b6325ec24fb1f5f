#include "hosts/desktop/window/console_pane.h"

#include "console/console.h"
#include "hosts/common/look/icons.h"
#include "hosts/common/look/interface_language.h"
#include "hosts/common/look/roomy_delegate.h"
#include "hosts/desktop/log/list_table.h"
#include "hosts/desktop/log/log_view.h"
#include "hosts/desktop/sheets/sheet_dialog.h"
#include "hosts/desktop/window/commands.h"
#include "hosts/desktop/window/scope_model.h"
#include "hosts/desktop/window/task_pad_view.h"
#include "runtime/run_time_error.h"
#include "shell/snapin_names.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QSettings>
#include <QSplitter>
#include <QStackedWidget>
#include <QTreeView>

namespace desktop {

namespace {

constexpr const char* splitterKey = "window/splitter";

/// The console is at work: the pointer says so, and further calls can see it.
class AtWork {
public:
    explicit AtWork(Console& console) : work_(console)
    {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    }
    ~AtWork() { QApplication::restoreOverrideCursor(); }
    AtWork(const AtWork&) = delete;
    AtWork& operator=(const AtWork&) = delete;

private:
    Console::Work work_;
};

} // namespace

ConsolePane::ConsolePane(Console& console, const CodePage& codePage, const QString& site,
                         QSettings& settings, QWidget* parent)
    : QWidget(parent), console_(console), site_(site), codePage_(codePage), settings_(settings),
      listModel_(codePage)
{
    scope_ = new ScopeModel(console_, this);
    splitter_ = new QSplitter(this);
    makeTree();
    views_ = new QStackedWidget(splitter_);
    views_->addWidget(new QWidget(views_));
    makeTaskPad();
    splitter_->addWidget(tree_);
    splitter_->addWidget(views_);
    splitter_->setStretchFactor(0, 0);
    splitter_->setStretchFactor(1, 1);
    splitter_->setChildrenCollapsible(false);
    splitter_->setHandleWidth(1);
    splitter_->setSizes({208, 972});
    splitter_->restoreState(settings_.value(splitterKey).toByteArray());
    connect(splitter_, &QSplitter::splitterMoved, this,
            [this] { settings_.setValue(splitterKey, splitter_->saveState()); });
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(splitter_);
    console_.addObserver(*this);
    showInLanguage(tree_, [this] { tree_->setAccessibleName(tr("Server tree")); });
}

ConsolePane::~ConsolePane()
{
    console_.removeObserver(*this);
    tree_->disconnect(this);
    if (tree_->selectionModel()) tree_->selectionModel()->disconnect(this);
}

void ConsolePane::makeTree()
{
    tree_ = new QTreeView(splitter_);
    tree_->setModel(scope_);
    tree_->setItemDelegate(new RoomyDelegate(tree_));
    tree_->setHeaderHidden(true);
    tree_->setFrameShape(QFrame::NoFrame);
    tree_->setUniformRowHeights(true);
    tree_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tree_->setContextMenuPolicy(Qt::CustomContextMenu);
    tree_->setIndentation(9);
    tree_->setMinimumWidth(140);
    tree_->setTextElideMode(Qt::ElideMiddle);
    connect(tree_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &ConsolePane::treeCurrentChanged);
    connect(tree_, &QTreeView::expanded, this, [this](const QModelIndex& index) {
        if (busy()) return;
        // Not from within the tree's own handling of a key or a click: nodes come and go.
        QMetaObject::invokeMethod(
            this,
            [this, opened = QPersistentModelIndex(index)] {
                ScopeItem* item = opened.isValid() ? scope_->itemAt(opened) : nullptr;
                if (item && !item->expanded())
                    perform([item](Console& console) { console.expand(*item); });
            },
            Qt::QueuedConnection);
    });
    connect(tree_, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& at) { emit treeMenuAsked(tree_->viewport()->mapToGlobal(at)); });
}

void ConsolePane::makeTaskPad()
{
    taskPad_ = new TaskPadView(views_);
    views_->addWidget(taskPad_);
    connect(taskPad_, &TaskPadView::taskClicked, this, [this](const QString& key) {
        const auto click = [&](Console& console) { console.clickTask(key.toStdString()); };
        key == QLatin1String(snapinTask::startNewLogFiles)
            ? performChange(snapinItem::startNewLogFiles, click)
            : perform(click);
    });
}

// The other views are made when they are first shown: the start has no need to wait for them.

QTreeView& ConsolePane::children()
{
    if (children_) return *children_;
    children_ = new QTreeView(views_);
    children_->setModel(scope_);
    children_->setItemDelegate(new RoomyDelegate(children_));
    children_->setRootIsDecorated(false);
    children_->setItemsExpandable(false);
    children_->setHeaderHidden(true);
    children_->setFrameShape(QFrame::NoFrame);
    children_->setUniformRowHeights(true);
    showInLanguage(children_, [this] { children_->setAccessibleName(tr("Processes")); });
    views_->addWidget(children_);
    connect(children_, &QTreeView::activated, this, [this](const QModelIndex& index) {
        if (ScopeItem* item = scope_->itemAt(index))
            perform([item](Console& console) { console.currentView().select(*item); });
    });
    return *children_;
}

ListTable& ConsolePane::list()
{
    if (list_) return *list_;
    listModel_.decoration = [this](int row, int column, int role) -> QVariant {
        constexpr int symbol = 1;
        constexpr int current = 2;
        if (role != Qt::DecorationRole || column != symbol) return {};
        const bool inUse = !listModel_.bytes(row, current).empty();
        return toolIcon(inUse ? QStringLiteral("log-current") : QStringLiteral("log"));
    };
    list_ = new ListTable(listModel_, settings_, views_);
    showInLanguage(list_, [this] { list_->setAccessibleName(tr("Log files")); });
    views_->addWidget(list_);
    connect(list_, &ListTable::opened, this, [this](std::uint32_t position) {
        perform([&](Console& console) { console.doubleClickRow(static_cast<int>(position)); });
    });
    return *list_;
}

LogView& ConsolePane::log()
{
    if (log_) return *log_;
    log_ = new LogView(codePage_, settings_, views_);
    log_->setTextFont(textFont_);
    views_->addWidget(log_);
    connect(log_, &LogView::said, this, &ConsolePane::said);
    connect(log_, &LogView::readAsked, this, &ConsolePane::readLogAgain);
    connect(log_, &LogView::followed, this, &ConsolePane::viewChanged);
    connect(log_, &LogView::viewerAsked, this, &ConsolePane::viewerAsked);
    return *log_;
}

/// Has the tool show the same log anew. Not while a person has something else before the eyes: it
/// comes again with the next look.
void ConsolePane::readLogAgain()
{
    if (!logShown() || busy() || sheetAtWork() || sheet() || QApplication::activeModalWidget())
        return;
    perform([](Console& console) { console.currentView().select(console.currentScopeItem()); });
}

void ConsolePane::setTextFont(const QFont& font)
{
    textFont_ = font;
    if (log_) log_->setTextFont(font);
}

void ConsolePane::perform(const std::function<void(Console&)>& call)
{
    if (busy()) return;
    if (sheetAtWork())
        return emit said(tr("The tool is still finishing what was cancelled. One moment."));
    {
        const AtWork atWork{console_};
        moved_ = toolSpoke_ = false;
        try {
            call(console_);
        } catch (const RunTimeError& error) {
            handlerFailed(error);
        }
        followSelection();
        // What the tool said of the node that was left does not hold for this one.
        if (moved_ && !toolSpoke_) emit statusText({});
    }
    emit callDone();
}

void ConsolePane::performChange(const std::string& item, const std::function<void(Console&)>& call)
{
    perform([&](Console& console) {
        const auto run = [&] { call(console); };
        aroundChange ? aroundChange(item, run) : run();
    });
}

void ConsolePane::renewTexts()
{
    tree_->viewport()->update();
    if (log_) log_->renewHeaders();
    if (listModel_.list()) listModel_.renewHeaders();
    if (views_->currentWidget() == taskPad_)
        taskPad_->show(console_.currentView().selectedScopePaneItem().resultView().taskPad());
}

bool ConsolePane::logShown() const
{
    return log_ && views_->currentWidget() == log_;
}

ListTable* ConsolePane::table() const
{
    if (logShown()) return &log_->table();
    return list_ && views_->currentWidget() == list_ ? list_ : nullptr;
}

QString ConsolePane::selectedName() const
{
    const ScopeItem* item = scope_->itemAt(tree_->currentIndex());
    return item ? QString::fromStdString(item->displayName()) : QString();
}

void ConsolePane::askForHelp()
{
    const QWidget* focused = QApplication::focusWidget();
    perform([&](Console& console) {
        if (tree_->hasFocus())
            console.helpOnScopeItem();
        else if (focused && views_->isAncestorOf(focused))
            console.helpOnResultView();
        else
            console.helpOnSnapIn();
    });
}

void ConsolePane::switchPane()
{
    if (!tree_->hasFocus()) return tree_->setFocus(Qt::ShortcutFocusReason);
    QWidget* shown = views_->currentWidget();
    if (logShown()) shown = &log_->mainPart();
    if (shown == taskPad_) return taskPad_->focusCard();
    shown->setFocus(Qt::ShortcutFocusReason);
}

void ConsolePane::treeCurrentChanged(const QModelIndex& current)
{
    if (busy() || !current.isValid()) return;
    const bool waiting = pending_.isValid();
    pending_ = current;
    if (!waiting)
        QMetaObject::invokeMethod(this, &ConsolePane::selectPending, Qt::QueuedConnection);
}

void ConsolePane::selectPending()
{
    ScopeItem* item = pending_.isValid() ? scope_->itemAt(pending_) : nullptr;
    pending_ = QPersistentModelIndex();
    if (item) perform([item](Console& console) { console.currentView().select(*item); });
}

/// Moves the tree's mark to the console's selection.
void ConsolePane::followSelection()
{
    QModelIndex selected;
    try {
        selected = scope_->indexOf(console_.currentScopeItem());
    } catch (const RunTimeError&) {
        // Nothing is selected before the snap-in is loaded.
    }
    if (!selected.isValid() || selected == tree_->currentIndex()) return;
    for (QModelIndex above = selected.parent(); above.isValid(); above = above.parent())
        tree_->expand(above);
    tree_->setCurrentIndex(selected);
    tree_->scrollTo(selected);
}

void ConsolePane::selectionChanged(View&)
{
    moved_ = true;
    followSelection();
    tree_->expand(tree_->model()->index(0, 0));
}

void ConsolePane::viewReset(ResultView&)
{
    listModel_.leave();
    if (log_) log_->leave();
}

void ConsolePane::viewFilled(ResultView& resultView)
{
    if (resultView.type() == ResultViewType::taskPad) {
        taskPad_->show(resultView.taskPad());
        views_->setCurrentWidget(taskPad_);
    } else if (resultView.list().definition().rows == ListRows::childNodes) {
        children().setRootIndex(scope_->indexOf(resultView.scopePaneItem().scopeItem()));
        views_->setCurrentWidget(children_);
    } else if (resultView.displayString() == snapinView::logLines) {
        const QString key = QString::fromStdString(resultView.scopePaneItem().key());
        log().show(resultView.list(), site_ + QLatin1Char('\n') + key,
                   fileOfLog ? fileOfLog(key.toStdString()) : QString());
        views_->setCurrentWidget(log_);
    } else {
        listModel_.show(resultView.list());
        list().listShown();
        views_->setCurrentWidget(list_);
    }
    emit viewChanged();
}

void ConsolePane::statusBarChanged(View& view)
{
    toolSpoke_ = true;
    emit statusText(QString::fromStdString(view.statusBarText()));
}

bool ConsolePane::busy() const
{
    return console_.busy() == Busy::call;
}

bool ConsolePane::sheetAtWork() const
{
    return console_.currentView().propertySheetProvider().atWork();
}

SheetDialog* ConsolePane::sheet() const
{
    return sheet_ && sheet_->isVisible() ? sheet_.data() : nullptr;
}

void ConsolePane::sheetShown(OpenSheet& sheet)
{
    auto* dialog =
        new SheetDialog(std::static_pointer_cast<OpenSheet>(sheet.shared_from_this()), this);
    sheet_ = dialog;
    connect(dialog, &SheetDialog::over, this, &ConsolePane::callDone);
    connect(dialog, &SheetDialog::helpAsked, this, &ConsolePane::helpAsked);
    emit sheetMade(dialog);
    if (!sheet.closed()) dialog->show();
}

void ConsolePane::handlerFailed(const RunTimeError& error)
{
    emit failed([why = QString::fromStdString(error.description())] {
        return tr("That did not work: %1. Press F5 to renew what is shown, and try again.")
            .arg(why);
    });
}

} // namespace desktop
