#include "hosts/desktop/log/log_view.h"

#include "console/list_view.h"
#include "hosts/common/look/icons.h"
#include "hosts/common/look/theme.h"
#include "hosts/desktop/log/details_pane.h"
#include "hosts/desktop/log/filter_bar.h"
#include "hosts/desktop/log/find_bar.h"
#include "hosts/desktop/log/growth_bar.h"
#include "hosts/desktop/log/list_table.h"
#include "hosts/desktop/log/log_delegate.h"
#include "hosts/desktop/log/too_large_pane.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QSettings>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>
#include <charconv>
#include <string_view>

namespace desktop {

namespace {

constexpr const char* detailsKey = "window/details";
constexpr const char* splitterKey = "window/logSplitter";
constexpr std::string_view errorLevel = "0";
constexpr std::string_view warningLevel = "1";
constexpr int longestTip = 160; ///< characters of a trace

/// 0 for a text that is no number.
int numberIn(std::string_view text)
{
    const auto blanks = text.find_first_not_of(' ');
    if (blanks == text.npos) return 0;
    int number = 0;
    std::from_chars(text.data() + blanks, text.data() + text.size(), number);
    return number;
}

} // namespace

LogView::LogView(const CodePage& codePage, QSettings& settings, QWidget* parent)
    : QWidget(parent), codePage_(codePage), settings_(settings), model_(codePage)
{
    filterBar_ = new FilterBar(codePage_, this);
    findBar_ = new FindBar(marks_, this);
    splitter_ = new QSplitter(Qt::Vertical, this);
    makeLines();
    details_ = new DetailsPane(splitter_);
    splitter_->addWidget(details_);
    splitter_->setStretchFactor(0, 4);
    splitter_->setStretchFactor(1, 1);
    splitter_->setChildrenCollapsible(false);
    splitter_->setHandleWidth(1);
    splitter_->setSizes({540, 130});
    splitter_->restoreState(settings_.value(splitterKey).toByteArray());
    details_->setVisible(settings_.value(detailsKey, true).toBool());

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(filterBar_);
    column->addWidget(splitter_, 1);
    growthBar_ = new GrowthBar(this);
    growthBar_->hide();
    column->addWidget(growthBar_);
    column->addWidget(findBar_);
    filterBar_->hide();
    findBar_->hide();
    connectParts();
    connectGrowth();
}

/// The table, with its overview beside it.
void LogView::makeLines()
{
    table_ = new ListTable(model_, settings_, splitter_);
    table_->setFont(theme::traceFont());
    table_->setContextMenuPolicy(Qt::CustomContextMenu);
    delegate_ = new LogDelegate(marks_, table_);
    table_->setItemDelegate(delegate_);
    auto* lines = new QWidget(splitter_);
    auto* row = new QHBoxLayout(lines);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    overview_ = new OverviewStrip(*table_, lines);
    overview_->describe = [this](int at) { return describeRow(at); };
    tooLarge_ = new TooLargePane(lines);
    tooLarge_->hide();
    row->addWidget(tooLarge_, 1);
    row->addWidget(table_, 1);
    row->addWidget(overview_);
    splitter_->addWidget(lines);
}

void LogView::connectParts()
{
    model_.decoration = [this](int row, int at, int role) { return decoration(row, at, role); };
    connect(&model_, &ListModel::rowsChanged, this, &LogView::rowsChanged);
    connect(splitter_, &QSplitter::splitterMoved, this,
            [this] { settings_.setValue(splitterKey, splitter_->saveState()); });
    connect(table_, &ListTable::currentRowChanged, this, [this](int row) {
        details_->show(model_, row);
        showHitCount();
        if (row >= 0) line_ = lineOfRow(row);
    });
    connect(table_, &QWidget::customContextMenuRequested, this, &LogView::offerRowMenu);
    connect(overview_, &OverviewStrip::rowAsked, table_, &ListTable::goTo);
    connect(filterBar_, &FilterBar::said, this, &LogView::said);
    connect(filterBar_, &FilterBar::changed, this, &LogView::filterChanged);
    connect(filterBar_, &FilterBar::closed, this, [this] {
        filterBar_->hide();
        showAll();
        table_->setFocus();
    });
    connect(findBar_, &FindBar::closed, this, &LogView::endFind);
    connect(findBar_, &FindBar::conditionChanged, this, [this] {
        takeFind();
        if (!hits_.empty() &&
            !std::binary_search(hits_.begin(), hits_.end(), table_->currentIndex().row()))
            findNext();
    });
    connect(&marks_, &Highlights::changed, table_->viewport(), qOverload<>(&QWidget::update));
    connect(findBar_, &FindBar::next, this, &LogView::findNext);
    connect(findBar_, &FindBar::previous, this, &LogView::findPrevious);
    connect(findBar_, &FindBar::timeAsked, this, &LogView::goToTime);
    showInLanguage(this, [this] {
        table_->setAccessibleName(tr("Log lines"));
        details_->show(model_, table_->currentIndex().row());
    });
}

void LogView::show(ListView& list, const QString& log, const QString& file)
{
    bookmarks_.reset();
    columns_ = LogColumns::of(list);
    // The pane of details has them all.
    table_->setSpareColumns({columns_.thread - 1, columns_.port - 1, columns_.traceNumber - 1,
                             columns_.source - 1, columns_.callId - 1});
    // What the person looks for may be in several logs, so that filter and order stay.
    model_.show(list, filterBar_->filter(codePage_));
    filterBar_->offer(list, model_.decoder());
    position_ = 0;
    table_->listShown();
    bookmarks_.emplace(settings_, log, [this](int line) { return timeOfLine(line); });
    showBookmarks();
    // The log that was left last is taken up again where it was left.
    table_->goTo(log == log_ ? rowOfLine(line_) : 0);
    log_ = log;
    showFile(list.itemCount(), file);
    details_->show(model_, table_->currentIndex().row());
}

void LogView::leave()
{
    bookmarks_.reset();
    growth_.watch({}, 0);
    filterBar_->leave();
    model_.leave();
    details_->show(model_, -1);
}

void LogView::renewHeaders()
{
    if (!model_.list()) return;
    model_.renewHeaders();
    filterBar_->showTitles(*model_.list());
    details_->show(model_, table_->currentIndex().row());
}

int LogView::lineOfRow(int row) const
{
    return numberIn(model_.bytes(row, columns_.number));
}

/// The row of a line; of one that is not on show, that of the nearest line before it, or else the
/// first row.
int LogView::rowOfLine(int line) const
{
    int nearest = 0;
    int found = 0;
    for (int row = 0; row < model_.rowCount(); ++row) {
        const int here = lineOfRow(row);
        if (here > line || here <= nearest) continue;
        nearest = here;
        found = row;
    }
    return found;
}

/// The empty text for a line that is not there. Line n is at the n-th position, unless rows came in
/// another order than their numbers.
QString LogView::timeOfLine(int line) const
{
    ListView& list = *model_.list();
    if (line < 1 || line > list.itemCount()) return {};
    const ListItem row = list.shown(line);
    if (numberIn(row.subItem(columns_.number)) != line) return {};
    return model_.decoder().text(row.subItem(columns_.timeStamp));
}

/// A cell as a screen reader tells it: with the name of the sign beside its text.
QVariant LogView::spoken(int row, int column) const
{
    QString sign;
    if (column == columns_.number && bookmarks_ && bookmarks_->has(lineOfRow(row)))
        sign = tr("bookmark");
    if (column == columns_.level && severityOfRow(row) == Severity::error) sign = tr("error");
    if (column == columns_.level && severityOfRow(row) == Severity::warning) sign = tr("warning");
    if (sign.isEmpty()) return {};
    return QStringLiteral("%1, %2").arg(model_.text(row, column).trimmed(), sign);
}

QVariant LogView::decoration(int row, int column, int role) const
{
    if (role == Qt::AccessibleTextRole) return spoken(row, column);
    if (role == Qt::DecorationRole) {
        const bool marked = column == columns_.number && bookmarks_ && bookmarks_->count() > 0 &&
                            bookmarks_->has(lineOfRow(row));
        if (marked) return toolIcon(QStringLiteral("bookmark"));
    }
    const bool level = role == Qt::DecorationRole && column == columns_.level;
    if (role != Qt::BackgroundRole && !level) return {};
    switch (severityOfRow(row)) {
    case Severity::error:
        return level ? QVariant(toolIcon(QStringLiteral("level-error")))
                     : QVariant(theme::errorTint(palette()));
    case Severity::warning:
        return level ? QVariant(toolIcon(QStringLiteral("level-warning")))
                     : QVariant(theme::warningTint(palette()));
    case Severity::none:
        break;
    }
    return {};
}

LogView::Severity LogView::severityOfRow(int row) const
{
    // A line that could not be read has no component, and its level means nothing.
    if (model_.bytes(row, columns_.component).empty()) return Severity::none;
    const std::string_view level = model_.bytes(row, columns_.level);
    if (level == errorLevel) return Severity::error;
    return level == warningLevel ? Severity::warning : Severity::none;
}

QString LogView::describeRow(int row) const
{
    const QString trace = model_.text(row, columns_.trace).trimmed();
    const std::vector<int>& found = overview_->rows(OverviewMark::hit);
    QString kind;
    if (bookmarks_ && bookmarks_->has(lineOfRow(row)))
        kind = tr("Marked line %1: %2");
    else if (std::binary_search(found.begin(), found.end(), row))
        kind = tr("Hit in line %1: %2");
    else if (severityOfRow(row) == Severity::error)
        kind = tr("Error in line %1: %2");
    else
        kind = tr("Warning in line %1: %2");
    return kind.arg(QString::number(lineOfRow(row)), trace.left(longestTip));
}

void LogView::startFilter()
{
    filterBar_->startText();
}

void LogView::showAll()
{
    filterBar_->reset();
}

void LogView::closeBars()
{
    if (findBar_->isVisible())
        emit findBar_->closed();
    else if (filterBar_->isVisible())
        emit filterBar_->closed();
}

void LogView::filterChanged()
{
    if (!model_.list()) return;
    // While no row is on show, the one that was current last is still where the person is.
    if (const auto current = table_->currentPosition(); current > 0) position_ = current;
    model_.filter(filterBar_->filter(codePage_));
    if (const int row = model_.nearestRow(position_); row >= 0) table_->goTo(row);
    details_->show(model_, table_->currentIndex().row());
}

void LogView::rowsChanged()
{
    filterBar_->showCounts(model_.rowCount(), model_.list() ? model_.list()->itemCount() : 0);
    std::vector<int> errors;
    std::vector<int> warnings;
    for (int row = 0; row < model_.rowCount(); ++row) {
        const Severity severity = severityOfRow(row);
        if (severity == Severity::error) errors.push_back(row);
        if (severity == Severity::warning) warnings.push_back(row);
    }
    overview_->setRowCount(model_.rowCount());
    overview_->setRows(OverviewMark::error, std::move(errors));
    overview_->setRows(OverviewMark::warning, std::move(warnings));
    showBookmarks();
    findHits();
}

void LogView::showBookmarks()
{
    std::vector<int> marked;
    if (bookmarks_ && bookmarks_->count() > 0)
        for (int row = 0; row < model_.rowCount(); ++row)
            if (bookmarks_->has(lineOfRow(row))) marked.push_back(row);
    overview_->setRows(OverviewMark::bookmark, std::move(marked));
}

bool LogView::detailsShown() const
{
    return !details_->isHidden();
}

void LogView::showDetails(bool shown)
{
    details_->setVisible(shown);
    settings_.setValue(detailsKey, shown);
}

void LogView::setTextFont(const QFont& font)
{
    table_->setFont(font);
    details_->setTextFont(font);
    table_->listShown();
}

void LogView::offerRowMenu(const QPoint& at)
{
    const QModelIndex index = table_->indexAt(at);
    if (!index.isValid()) return;
    const int column = index.column() + 1;
    QMenu menu(this);
    if (filterBar_->offersColumn(column)) {
        const std::string value(model_.bytes(index.row(), column));
        const QString header =
            model_.headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString();
        const QString shown = model_.text(index.row(), column);
        const auto offer = [&](const QString& text, bool exclude) {
            menu.addAction(text, this, [this, column, value, exclude] {
                filterBar_->setVisible(true);
                filterBar_->tick(column, value, exclude);
            });
        };
        offer(tr("&Show only %1 %2").arg(header, shown), false);
        offer(tr("&Hide %1 %2").arg(header, shown), true);
        menu.addSeparator();
    }
    menu.addAction(toolIcon(QStringLiteral("bookmark")), tr("&Bookmark"), this,
                   &LogView::toggleBookmark);
    menu.addAction(tr("&Copy"), this, [this] { table_->copyAsText(); });
    menu.addAction(tr("Copy as CS&V"), this, [this] { table_->copyAsCsv(); });
    menu.exec(table_->viewport()->mapToGlobal(at));
}

} // namespace desktop
