#include "hosts/desktop/window/main_window.h"

#include "core/tool_context.h"
#include "gather/cancel.h"
#include "hosts/common/gather/gather_sheet.h"
#include "hosts/common/look/elided_label.h"
#include "hosts/common/look/icons.h"
#include "hosts/common/look/notice_bar.h"
#include "hosts/common/look/screen_room.h"
#include "hosts/common/look/theme.h"
#include "hosts/desktop/open_tool.h"
#include "hosts/desktop/sheets/gather_additions.h"
#include "hosts/desktop/sheets/sheet_dialog.h"
#include "hosts/desktop/window/about_dialog.h"
#include "hosts/desktop/window/console_pane.h"
#include "hosts/desktop/window/help_topics.h"
#include "hosts/desktop/window/pane_keys.h"
#include "hosts/desktop/window/start_page.h"
#include "hosts/desktop/window/task_pad_view.h"
#include "sample/sample_server.h"
#include "settings/about_box.h"
#include "shell/snapin_names.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QMenu>
#include <QSettings>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace desktop {

namespace {

constexpr const char* geometryKey = "window/geometry";
constexpr const char* stateKey = "window/state";
constexpr const char* themeKey = "window/theme";
constexpr const char* textSizeKey = "window/textSize";
constexpr int smallestText = 6;
constexpr int largestText = 40;

} // namespace

MainWindow::MainWindow(QSettings& settings)
    : settings_(settings), filterFiles_(SavedFilters::besideSettings(settings), *this)
{
    setWindowIcon(toolIcon(QStringLiteral("console")));
    setAcceptDrops(true);
    auto* body = new QWidget(this);
    notice_ = new NoticeBar(body);
    centre_ = new QStackedWidget(body);
    start_ = new StartPage(centre_);
    start_->chosen = [this](Command command) { run(command); };
    centre_->addWidget(start_);
    auto* column = new QVBoxLayout(body);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(notice_);
    column->addWidget(centre_, 1);
    setCentralWidget(body);

    makeActions();
    makeMenus();
    makeToolBar();
    makeStatusBar();
    resizeWithinScreen(*this, {1180, 760});
    restoreGeometry(settings_.value(geometryKey).toByteArray());
    restoreState(settings_.value(stateKey).toByteArray());
    updateActions();
    showInLanguage(this, [this] { showTexts(); });
}

MainWindow::~MainWindow()
{
    setTool(nullptr);
}

void MainWindow::makeStatusBar()
{
    status_ = new ElidedLabel(Qt::ElideRight, this);
    status_->setContentsMargins(8, 3, 0, 3);
    siteName_ = new ElidedLabel(Qt::ElideMiddle, this);
    siteName_->setForegroundRole(QPalette::PlaceholderText);
    statusBar()->addWidget(status_, 1);
    statusBar()->addPermanentWidget(siteName_);
}

void MainWindow::setTool(OpenTool* tool)
{
    delete pane_;
    pane_ = nullptr;
    listener_.reset();
    tool_ = tool;
    status_->clear();
    siteName_->clear();
    notice_->hide();
    if (tool_) {
        const QString site = QString::fromStdString(tool_->site().folder());
        sample_ = isSampleServer(tool_->site().folder());
        pane_ =
            new ConsolePane(tool_->console(), tool_->site().codePage(), site, settings_, centre_);
        centre_->addWidget(pane_);
        centre_->setCurrentWidget(pane_);
        connectPane();
        changeTextSize(0);
        pane_->perform([this](Console&) { tool_->load(); });
        listener_.emplace(tool_->context(),
                          [this](const RunTimeError& error, std::string_view procName) {
                              undone_.note(error, procName);
                          });
        spoken_ = spokenByTool();
        language_.choose(spoken_);
        rebuildConsoleItems();
        sayLanguage();
        if (tool_->looksOnly()) sayReadOnly();
        if (!tool_->databaseFailure().empty()) sayWithoutDatabase(tool_->databaseFailure());
        pane_->tree().setFocus();
    }
    updateActions();
    showTexts();
}

void MainWindow::connectPane()
{
    pane_->aroundChange = [this](const std::string& item, const std::function<void()>& run) {
        change(item, run);
    };
    connect(pane_, &ConsolePane::statusText, this, [this](const QString& text) {
        statusBar()->clearMessage();
        status_->setText(text);
        // The tool is at work and no event will paint it.
        status_->repaint();
    });
    connect(pane_, &ConsolePane::said, this, [this](const QString& sentence) {
        statusBar()->showMessage(sentence, sayMilliseconds);
    });
    connect(pane_, &ConsolePane::failed, this, &MainWindow::showProblem);
    connect(pane_, &ConsolePane::viewChanged, this, [this] {
        updateActions();
        updateTitle();
    });
    connect(pane_, &ConsolePane::callDone, this, &MainWindow::afterCall);
    connect(pane_, &ConsolePane::sheetMade, this,
            [this](SheetDialog* dialog) { watchSheet(*dialog); });
    pane_->fileOfLog = [this](const std::string& key) { return fileOfLog(key); };
    connect(pane_, &ConsolePane::viewerAsked, this, &MainWindow::viewerAsked);
    connect(pane_, &ConsolePane::helpAsked, this, &MainWindow::helpAsked);
    connect(pane_, &ConsolePane::treeMenuAsked, this, [this](const QPoint& at) {
        rebuildConsoleItems();
        menus_[CommandMenu::action]->popup(at);
    });
}

/// A command at once, whose own texts tell of no failure.
void MainWindow::change(const std::string& item, const std::function<void()>& run)
{
    const bool startsLogs = item == snapinItem::startNewLogFiles;
    const QString said = status_->text();
    bool ran = false;
    tool_->changing([&] {
        if (startsLogs) newLogs_.look(tool_->context());
        run();
        ran = true;
    });
    if (ran && tool_->looksOnly()) {
        status_->setText(said); // what the tool says now was not done
        return sayReadOnly();
    }
    if (ran && startsLogs && !newLogs_.given(tool_->context()))
        showProblem([] {
            return tr("The server was not told to start new log files: the signal in its registry "
                      "stayed what it was.");
        });
}

void MainWindow::watchSheet(SheetDialog& dialog)
{
    connect(&dialog, &SheetDialog::acted, this, [this, &dialog] { tellUndone(&dialog); });
    connect(&dialog, &SheetDialog::cancelling, this,
            [this, &dialog] { gathers_.cancelled(dialog.sheet().currentPage()); });
    const auto machinePath = [this](const std::string& path) {
        return tool_->site().paths().machinePath(path);
    };
    dialog.aroundTick = [this, &dialog, machinePath](const SheetPage& page, Timer& timer,
                                                     const std::function<void()>& run) {
        sayWhereThePersonIs(&dialog, gathers_.tick(tool_->context(), tool_->report(), page, timer,
                                                   machinePath, run));
    };
    const bool gathers = isGatherSheet(dialog.sheet());
    if (gathers) {
        dialog.additionTo = [this, machinePath](SheetPage& page) {
            return gatherAddition(
                page, {tool_->site().files(), tool_->context().g_strLogFolder, machinePath});
        };
        dialog.explain = [machinePath](const SheetPage& page, const RunTimeError& error) {
            return gatherExplanation(page, error, machinePath);
        };
    }
    // A gather adds to the server, beside programs that change it.
    if (!gathers)
        dialog.aroundChange = [this](const std::function<void()>& run) { tool_->changing(run); };
    if (!tool_->looksOnly()) return;
    dialog.alwaysSay([gathers] {
        return gathers ? tr("This site is read-only: choose a destination outside of it.")
                       : tr("This site is read-only: what is chosen here is not written.");
    });
}

void MainWindow::afterCall()
{
    checkSite();
    sayToolLog();
    sayUnlistedLogs();
    tellUndone(nullptr);
    // Not from within the call of a dialog or a view that goes with the window.
    if (closing_ && !pane_->sheetAtWork())
        QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

/// The tool's language where that has its catalogue, and 0 for English.
std::int32_t MainWindow::spokenByTool() const
{
    const auto& language = tool_->context().language;
    return language.g_hResourceLibrary != 0 ? language.g_lngCurrentLanguage : 0;
}

void MainWindow::followLanguage()
{
    notice_->renew();
    const std::int32_t spoken = spokenByTool();
    if (std::exchange(spoken_, spoken) == spoken) return;
    language_.choose(spoken);
    pane_->perform([this](Console&) { tool_->snapIn().showLanguage(); });
    pane_->renewTexts();
    rebuildConsoleItems();
    updateTitle();
}

QString MainWindow::statusText() const
{
    return status_->text();
}

void MainWindow::updateTitle()
{
    const QString tool = tr("Orvan Diagnostic Tool");
    const QString node = pane_ ? pane_->selectedName() : QString();
    if (node.isEmpty()) return setWindowTitle(tool);
    QStringList parts{node, tool};
    if (sample_) parts.insert(1, tr("Sample Server"));
    setWindowTitle(parts.join(QStringLiteral(" - ")));
}

bool MainWindow::showNode(const std::string& key)
{
    if (!pane_) return false;
    bool shown = false;
    pane_->perform([&](Console& console) {
        ScopeTree& tree = console.scopeItems();
        // A log's node comes with its process's first opening.
        for (int position = 1; !tree.find(key) && position <= tree.count(); ++position)
            console.expand(tree.item(position));
        ScopeItem* item = tree.find(key);
        shown = item != nullptr;
        if (item) console.currentView().select(*item);
    });
    return shown;
}

void MainWindow::run(Command command)
{
    switch (command) {
    case Command::openSite:
        return pickSite();
    case Command::makeSample:
        return pickSampleFolder();
    case Command::quit:
        close();
        return;
    case Command::help:
        if (!pane_) return void(emit helpAsked(helpTopic::contents));
        return pane_->askForHelp();
    case Command::keys:
        return showKeys();
    case Command::about:
        return showAbout();
    case Command::systemTheme:
    case Command::lightTheme:
    case Command::darkTheme:
        return chooseTheme(command);
    default:
        break;
    }
    if (!pane_) return;
    switch (command) {
    case Command::refresh:
        return refresh();
    case Command::switchPane:
        return pane_->switchPane();
    case Command::largerText:
        return changeTextSize(1);
    case Command::smallerText:
        return changeTextSize(-1);
    case Command::normalText:
        settings_.remove(textSizeKey);
        return changeTextSize(0);
    case Command::copy:
    case Command::copyCsv:
    case Command::selectAll:
        return runInTable(command);
    default:
        return runInLog(command);
    }
}

void MainWindow::refresh()
{
    // A tool that looks at a site only goes on doing so; another one takes its place.
    if (tool_->looksOnly() && tool_->writable() && mayLeaveSite())
        return void(emit siteAsked(QString::fromStdString(tool_->site().folder())));
    pane_->perform([](Console& console) {
        const std::string key = console.currentScopeItem().key();
        console.refresh();
        // The tool has made the nodes of logs anew, and the console gone to the node above.
        ScopeItem* renewed = console.scopeItems().find(key);
        if (renewed && renewed != &console.currentScopeItem())
            console.currentView().select(*renewed);
    });
}

void MainWindow::chooseTheme(Command command)
{
    const auto scheme = command == Command::lightTheme  ? theme::Scheme::light
                        : command == Command::darkTheme ? theme::Scheme::dark
                                                        : theme::Scheme::system;
    settings_.setValue(themeKey, theme::nameOf(scheme));
    theme::apply(scheme);
    updateActions();
}

void MainWindow::changeTextSize(int step)
{
    if (!pane_) return;
    QFont font = theme::traceFont();
    const int usual = font.pointSize();
    const int size =
        std::clamp(settings_.value(textSizeKey, usual).toInt() + step, smallestText, largestText);
    if (step != 0) settings_.setValue(textSizeKey, size);
    font.setPointSize(size);
    pane_->setTextFont(font);
}

void MainWindow::showKeys()
{
    KeyList keys(*this, PaneKeys::groups(), this);
    keys.exec();
}

void MainWindow::showAbout()
{
    if (!tool_) return;
    frmAbout& form = tool_->snapIn().showAbout();
    AboutDialog about(form, this);
    connect(&about, &AboutDialog::formShown, this, &MainWindow::followLanguage);
    about.aroundChange = [this](const std::function<void()>& run) {
        try {
            tool_->changing(run);
        } catch (const RunTimeError& error) {
            showProblem([why = QString::fromStdString(error.description())] {
                return tr("The language was not changed: %1. Choose it again.").arg(why);
            });
        }
    };
    // Modal to this window alone, so that the manual can be read beside it.
    about.setWindowModality(Qt::WindowModal);
    QAction help;
    help.setShortcut(QKeySequence(Qt::Key_F1));
    connect(&help, &QAction::triggered, this, [this] { emit helpAsked(helpTopic::about); });
    about.addAction(&help);
    about.exec();
    sayLanguage();
}

void MainWindow::cancelWork()
{
    if (pane_->sheet()) pane_->sheet()->reject();
    // The page at work may be another one than the sheet asked, or its sheet is closed.
    ToolContext& context = tool_->context();
    if (!pane_->sheetAtWork()) return;
    gathers_.cancelled();
    if (!context.cancelRequested) mdlLogs::cancelCurrentProcess(context, true);
}

void MainWindow::end()
{
    if (pane_) cancelWork();
    close();
    // Not by the last window alone: a box may be open, whose own loop ends too.
    QCoreApplication::exit();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (pane_ && pane_->sheetAtWork()) {
        // The work below would go on with controls that have gone.
        closing_ = true;
        cancelWork();
        statusBar()->showMessage(tr("The gather is being ended. The window closes in a moment."));
        return event->ignore();
    }
    closing_ = false;
    // The file is synced to the disk for every change, so that nothing is changed for nothing.
    const auto keep = [this](const char* key, const QByteArray& value) {
        if (settings_.value(key).toByteArray() != value) settings_.setValue(key, value);
    };
    keep(geometryKey, saveGeometry());
    keep(stateKey, saveState());
    QMainWindow::closeEvent(event);
}

} // namespace desktop
