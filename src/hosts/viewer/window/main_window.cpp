#include "hosts/viewer/window/main_window.h"

#include "hosts/common/look/elided_label.h"
#include "hosts/common/look/help_window.h"
#include "hosts/common/look/interface_language.h"
#include "hosts/common/look/notice_bar.h"
#include "hosts/common/look/screen_room.h"
#include "hosts/common/look/theme.h"
#include "hosts/viewer/details/details_pane.h"
#include "hosts/viewer/facets/facet_pane.h"
#include "hosts/viewer/find/find_bar.h"
#include "hosts/viewer/follow/follow_bar.h"
#include "hosts/viewer/histogram/strip_marks.h"
#include "hosts/viewer/histogram/time_strip.h"
#include "hosts/viewer/marks/mark_list.h"
#include "hosts/viewer/session/session_keeper.h"
#include "hosts/viewer/window/filter_bar.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QMimeData>
#include <QProgressBar>
#include <QSettings>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QVBoxLayout>

namespace viewer {

namespace {

const QString geometryKey = QStringLiteral("window/geometry");
const QString splitterKey = QStringLiteral("window/splitter");
const QString valuesKey = QStringLiteral("window/values");
constexpr QSize firstSize(1180, 720);
const QString rowsKey = QStringLiteral("window/rows");
const QString detailsKey = QStringLiteral("window/details");
constexpr int firstPaneWidth = 210;
constexpr int leastPaneCharacters = 22; ///< of a value and its count
constexpr int firstDetailsHeight = 150;
constexpr int progressSteps = 1000;

/// The paths of this machine among what is dragged.
QStringList pathsOf(const QMimeData& dragged)
{
    QStringList paths;
    for (const QUrl& url : dragged.urls())
        if (url.isLocalFile()) paths << url.toLocalFile();
    return paths;
}

} // namespace

MainWindow::MainWindow(QSettings& settings, const QString& dataFolder, QWidget* parent)
    : QMainWindow(parent), settings_(settings),
      dataFolder_(dataFolder.isEmpty() ? QFileInfo(settings.fileName()).absolutePath()
                                       : dataFolder),
      savedFilters_(SavedFilters::besideSettings(settings))
{
    setWindowTitle(QStringLiteral("Orvan Diagnostic Viewer"));
    setAcceptDrops(true);
    chooseFirstLanguage();
    makePanes();
    makeMarks();
    makeSession();
    makeActions();
    makeToolBar();
    makeStatusBar();
    connectParts();
    showInLanguage(this, [this] { showTexts(); });
    if (!restoreGeometry(settings_.value(geometryKey).toByteArray()))
        resizeWithinScreen(*this, firstSize);
    setTimes(TimeForm::clock);
    updateStatus();
}

/// Panes that are hidden tell the calls so, which go before their panes.
MainWindow::~MainWindow()
{
    hide();
}

void MainWindow::makePanes()
{
    auto* centre = new QWidget(this);
    auto* column = new QVBoxLayout(centre);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    notice_ = new NoticeBar(centre);
    pages_ = new QStackedWidget(centre);
    empty_ = new QLabel(pages_);
    empty_->setTextFormat(Qt::PlainText);
    empty_->setAlignment(Qt::AlignCenter);
    empty_->setWordWrap(true);
    model_ = new RowModel(document_, this);
    splitter_ = new QSplitter(pages_);
    splitter_->setObjectName(QStringLiteral("splitter"));
    splitter_->setChildrenCollapsible(false);
    facets_ = new FacetPane(document_, splitter_);
    auto* right = new QWidget(splitter_);
    auto* rows = new QVBoxLayout(right);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    times_ = new TimeStrip(document_, right);
    filterBar_ = new FilterBar(document_, right);
    table_ = new RowTable(*model_, settings_, right);
    highlights_ = new Highlights(this);
    table_->setHighlights(*highlights_);
    findBar_ = new FindBar(document_, *highlights_, right);
    details_ = new DetailsPane(document_, right);
    rowsAndDetails_ = new QSplitter(Qt::Vertical, right);
    rowsAndDetails_->setObjectName(QStringLiteral("rowsAndDetails"));
    rowsAndDetails_->setChildrenCollapsible(false);
    rowsAndDetails_->addWidget(table_);
    rowsAndDetails_->addWidget(details_);
    rowsAndDetails_->setStretchFactor(0, 1);
    rowsAndDetails_->setSizes({firstSize.height(), firstDetailsHeight});
    rowsAndDetails_->restoreState(settings_.value(rowsKey).toByteArray());
    details_->setVisible(settings_.value(detailsKey, true).toBool());
    rows->addWidget(times_);
    rows->addWidget(filterBar_);
    rows->addWidget(findBar_);
    followBar_ = new FollowBar(document_, *table_, right);
    rows->addWidget(rowsAndDetails_, 1);
    rows->addWidget(followBar_);
    splitter_->addWidget(facets_);
    splitter_->addWidget(right);
    splitter_->setStretchFactor(1, 1);
    splitter_->setSizes({firstPaneWidth, firstSize.width() - firstPaneWidth});
    splitter_->restoreState(settings_.value(splitterKey).toByteArray());
    facets_->setMinimumWidth(fontMetrics().averageCharWidth() * leastPaneCharacters);
    facets_->setVisible(settings_.value(valuesKey, true).toBool());
    pages_->addWidget(empty_);
    makeCalls();
    pages_->addWidget(rowsAndCalls_);
    column->addWidget(notice_);
    column->addWidget(pages_, 1);
    setCentralWidget(centre);
}

void MainWindow::makeStatusBar()
{
    status_ = new ElidedLabel(Qt::ElideRight, this);
    progress_ = new QProgressBar(this);
    progress_->setTextVisible(false);
    progress_->setMaximumWidth(200);
    progress_->setRange(0, progressSteps);
    progress_->hide();
    statusBar()->addWidget(status_, 1);
    statusBar()->addPermanentWidget(progress_);
    statusBar()->setSizeGripEnabled(false);
}

void MainWindow::connectParts()
{
    connect(&document_, &Document::progressed, this, &MainWindow::updateStatus);
    connect(&document_, &Document::viewChanged, this, &MainWindow::updateStatus);
    connect(&document_, &Document::failed, this, &MainWindow::sayFailure);
    failuresToSay_.setSingleShot(true);
    connect(&failuresToSay_, &QTimer::timeout, this, &MainWindow::sayFailures);
    connect(&document_, &Document::noted, this,
            [this](const QString& sentence) { statusBar()->showMessage(sentence, 8000); });
    connect(&document_, &Document::filterChanged, this, &MainWindow::updateActions);
    connectFollowing();
    connect(table_, &RowTable::currentPlaceChanged, this, &MainWindow::currentChanged);
    connect(findBar_, &FindBar::next, this, [this] { goToHit(Direction::down); });
    connect(findBar_, &FindBar::previous, this, [this] { goToHit(Direction::up); });
    connect(findBar_, &FindBar::closed, this, &MainWindow::endFind);
    connect(&document_, &Document::hitsChanged, this, &MainWindow::hitsChanged);
    connect(&document_, &Document::levelFound, this, [this](std::optional<std::size_t> place) {
        if (place)
            table_->goTo(*place);
        else
            statusBar()->showMessage(tr("There is no further one"), 4000);
    });
    connect(filterBar_, &FilterBar::left, table_, qOverload<>(&QWidget::setFocus));
    connect(times_, &TimeStrip::momentAsked, this,
            [this](timeline::Moment moment) { table_->goTo(document_.placeFrom(moment)); });
    connect(table_, &RowTable::menuAsked, this, &MainWindow::offerRowMenu);
    connectCalls();
}

QString MainWindow::notice() const
{
    return notice_->sentence();
}

void MainWindow::currentChanged()
{
    details_->show(details_->isHidden() ? std::nullopt : table_->currentPlace());
    if (!findBar_->isHidden()) findBar_->showHits(table_->currentPlace());
    updateStatus();
}

std::optional<timeline::Moment> MainWindow::currentMoment()
{
    const auto place = table_->currentPlace();
    if (!place || *place >= document_.rowCount()) return std::nullopt;
    const timeline::Moment moment = document_.row(*place).index.moment;
    return moment == timeline::noMoment ? std::nullopt : std::optional(moment);
}

/// Troubles come one by one, thousands of them within an event where no log can be read, and stand
/// in one notice, which is made once.
void MainWindow::sayFailure(const QString& sentence)
{
    failures_ << sentence;
    failuresToSay_.start();
}

void MainWindow::sayFailures()
{
    showNotice();
    updateStatus();
}

void MainWindow::updateStatus()
{
    const Document::State state = document_.state();
    const QLocale locale;
    const RowWriting* const written = writing();
    QString text = writingText();
    if (written == nullptr && state.busy)
        text =
            tr("Reading: %1 rows so far").arg(locale.toString(static_cast<qulonglong>(state.rows)));
    else if (written == nullptr && document_.hasSources())
        text =
            document_.filter().passesAll()
                ? tr("%1 rows").arg(locale.toString(static_cast<qulonglong>(document_.rowCount())))
                : tr("%1 of %2 rows")
                      .arg(locale.toString(static_cast<qulonglong>(document_.rowCount())),
                           locale.toString(static_cast<qulonglong>(document_.allRows())));
    if (const auto place = table_->currentPlace(); place && document_.rowCount() > 0)
        text += tr(", row %1").arg(locale.toString(static_cast<qulonglong>(*place) + 1));
    if (document_.follows()) text += tr(", following");
    status_->setText(text);
    times_->setCurrent(currentMoment());
    const std::optional<double> share = written != nullptr ? written->share() : state.share;
    progress_->setVisible(written != nullptr || state.busy);
    progress_->setRange(0, share ? progressSteps : 0);
    if (share) progress_->setValue(static_cast<int>(*share * progressSteps));
    pages_->setCurrentIndex(document_.hasSources() || document_.rowCount() > 0 ? 1 : 0);
    updateActions();
}

void MainWindow::updateActions()
{
    const bool rows = document_.rowCount() > 0;
    const bool current = table_->currentPlace().has_value();
    for (const Command command : {Command::copy, Command::copyCsv, Command::copyRaw})
        action(command).setEnabled(current);
    action(Command::selectAll).setEnabled(rows);
    for (const Command command : {Command::toggleBookmark, Command::note})
        action(command).setEnabled(current);
    action(Command::clearBookmarks).setEnabled(!marks_->isEmpty());
    action(Command::markTime).setEnabled(current);
    action(Command::showAll).setEnabled(!document_.filter().passesAll());
    action(Command::saveFilter).setEnabled(!document_.filter().passesAll());
    action(Command::macroTraces).setEnabled(!document_.macroTraces().empty());
    action(Command::allTimes).setEnabled(document_.filter().since || document_.filter().until);
    action(Command::values).setChecked(!facets_->isHidden());
    action(Command::details).setChecked(!details_->isHidden());
    action(Command::follow).setEnabled(document_.hasSources());
    action(Command::follow).setChecked(document_.follows());
    action(Command::exportRows).setEnabled(rows && export_ == nullptr);
    action(Command::copyValue).setEnabled(current && !details_->isHidden());
    for (QAction* made : menus_[CommandMenu::go]->actions()) made->setEnabled(rows);
    for (const Command command : {Command::filter, Command::narrowTimes, Command::widenTimes,
                                  Command::otherPane, Command::startAfresh})
        action(command).setEnabled(document_.hasSources());
    menus_[CommandMenu::only]->setEnabled(current);
    menus_[CommandMenu::hide]->setEnabled(current);
    for (const CommandMenu menu : {CommandMenu::only, CommandMenu::hide})
        for (QAction* made : menus_[menu]->actions()) made->setEnabled(current);
    action(Command::timesSinceMark).setEnabled(model_->mark().has_value());
    action(Command::clockTimes).setChecked(model_->timeForm() == TimeForm::clock);
    action(Command::timesSinceRowBefore).setChecked(model_->timeForm() == TimeForm::sinceRowBefore);
    action(Command::timesSinceMark).setChecked(model_->timeForm() == TimeForm::sinceMark);
    const auto scheme = theme::schemeOf(settings_.value(QStringLiteral("window/theme")).toString());
    updateCallActions();
    action(Command::systemTheme).setChecked(scheme == theme::Scheme::system);
    action(Command::lightTheme).setChecked(scheme == theme::Scheme::light);
    action(Command::darkTheme).setChecked(scheme == theme::Scheme::dark);
    updateLanguages();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    settings_.setValue(geometryKey, saveGeometry());
    settings_.setValue(splitterKey, splitter_->saveState());
    settings_.setValue(valuesKey, !facets_->isHidden());
    settings_.setValue(rowsKey, rowsAndDetails_->saveState());
    settings_.setValue(detailsKey, !details_->isHidden());
    rememberCalls();
    session_->save();
    document_.cancel();
    QMainWindow::closeEvent(event);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!pathsOf(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    document_.open(pathsOf(*event->mimeData()));
    event->acceptProposedAction();
}

} // namespace viewer
