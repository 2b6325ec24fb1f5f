#include "hosts/viewer/session/session_keeper.h"

#include "hosts/viewer/table/row_table.h"
#include "runtime/run_time_error.h"

#include <QHeaderView>
#include <QMetaObject>
#include <QScrollBar>

#include <utility>

namespace viewer {

namespace {

using timeline::IndexRow;

enum WantedNumber : std::size_t { currentRow, topRow };

} // namespace

SessionKeeper::SessionKeeper(const Parts& parts, const QString& folder, QObject* parent)
    : QObject(parent), parts_(parts), store_(folder)
{
    Document& document = parts_.document;
    connect(&document, &Document::opening, this, &SessionKeeper::begin);
    connect(&document, &Document::filterChanged, this, &SessionKeeper::filterChanged);
    connect(&document, &Document::viewChanged, this, &SessionKeeper::findRows);
    connect(&document, &Document::progressed, this, &SessionKeeper::findRows);
}

SessionKeeper::~SessionKeeper() = default;

/// Only the first sources of a window are shown as they were: a person who opens more has an order
/// of his own by then.
void SessionKeeper::begin(const QStringList& paths)
{
    const bool first = paths_.isEmpty();
    paths_ << paths;
    if (!first || !restoring_ || paths_.contains(QStringLiteral("-"))) return;
    if (const auto session = store_.read(paths_)) restore(*session);
}

void SessionKeeper::restore(const Session& session)
{
    setsFilter_ = true;
    if (!session.filter.passesAll()) parts_.document.setFilter(session.filter);
    setsFilter_ = false;
    hidesRows_ = !session.filter.passesAll();
    restoreColumns(session.columns);
    parts_.highlights.setKept(session.kept);
    parts_.rows.setMark(session.mark);
    parts_.rows.setTimeForm(session.times);
    wantedCurrent_ = session.current;
    wantedTop_ = session.top;
    emit changed();
}

void SessionKeeper::restoreColumns(const std::vector<ColumnPlace>& columns)
{
    QHeaderView& header = parts_.table.header();
    for (const ColumnPlace& place : columns) parts_.table.showColumn(place.column, true);
    int at = 0;
    for (const ColumnPlace& place : columns) {
        const int section = static_cast<int>(place.column);
        header.moveSection(header.visualIndex(section), at++);
        if (place.shown) header.resizeSection(section, place.width);
    }
    for (const ColumnPlace& place : columns) parts_.table.showColumn(place.column, place.shown);
}

void SessionKeeper::filterChanged()
{
    if (setsFilter_ || !hidesRows_) return;
    hidesRows_ = false;
    emit changed();
}

/// A person who has gone elsewhere meanwhile stays there.
bool SessionKeeper::giveUpIfMoved()
{
    if (parts_.table.currentPlace().value_or(0) == 0 && parts_.table.firstInSight() == 0)
        return false;
    wantedCurrent_.reset();
    wantedTop_.reset();
    return true;
}

/// Looks for the rows that were in sight: again whenever there are more, and on every line once all
/// are read.
void SessionKeeper::findRows()
{
    if (!wantedCurrent_ && !wantedTop_) return;
    Document& document = parts_.document;
    const auto order = document.view().order;
    const bool everywhere = !document.state().busy;
    if (!order || document.rowCount() == 0 ||
        (order == soughtIn_ && (soughtEverywhere_ || !everywhere)))
        return;
    if (giveUpIfMoved()) return;
    soughtIn_ = order;
    soughtEverywhere_ = everywhere;
    std::vector<WantedRow> wanted;
    for (const auto& [number, place] :
         {std::pair(currentRow, wantedCurrent_), std::pair(topRow, wantedTop_)})
        if (place)
            wanted.push_back({number, place->row,
                              sourcesOf(document, place->file.toStdString(), place->row.source)});
    finding_.start([this, wanted, everywhere](const NewestTask::GivenUp& givenUp) {
        std::optional<IndexRow> current;
        std::optional<IndexRow> top;
        for (const FoundRow& found :
             viewer::findRows(parts_.document.timeline(), wanted, everywhere, givenUp))
            (found.number == currentRow ? current : top) = found.row;
        if (givenUp() || (!current && !top)) return;
        QMetaObject::invokeMethod(
            this, [this, current, top] { goTo(current, top); }, Qt::QueuedConnection);
    });
}

void SessionKeeper::goTo(const std::optional<IndexRow>& current, const std::optional<IndexRow>& top)
{
    if (giveUpIfMoved()) return;
    RowTable& table = parts_.table;
    if (current && wantedCurrent_)
        if (const auto place = parts_.document.placesOnShow({*current}).front()) {
            table.goTo(*place);
            wantedCurrent_.reset();
        }
    if (top && wantedTop_)
        if (const auto place = parts_.document.placesOnShow({*top}).front()) {
            table.verticalScrollBar()->setValue(static_cast<int>(*place));
            wantedTop_.reset();
        }
}

std::optional<RowPlace> SessionKeeper::placeOf(std::size_t place)
{
    Document& document = parts_.document;
    if (place >= document.rowCount()) return std::nullopt;
    const IndexRow row = document.indexRow(place);
    try {
        const RowIdentity identity = identityIn(document, row);
        return RowPlace{QString::fromStdString(document.homes()[row.source()].file), identity};
    } catch (const RunTimeError&) {
        return std::nullopt; // the row itself tells why
    }
}

Session SessionKeeper::session()
{
    Session session;
    session.filter = parts_.document.filter();
    const QHeaderView& header = parts_.table.header();
    for (int at = 0; at < rowColumns; ++at) {
        const int section = header.logicalIndex(at);
        const auto column = static_cast<RowColumn>(section);
        const bool shown = parts_.table.showsColumn(column);
        session.columns.push_back({column, header.sectionSize(section), shown});
    }
    session.kept = parts_.highlights.kept();
    session.times = parts_.rows.timeForm();
    session.mark = parts_.rows.mark();
    // What is not found yet is where the person was.
    session.current = wantedCurrent_;
    session.top = wantedTop_;
    if (const auto place = parts_.table.currentPlace(); place && !wantedCurrent_)
        session.current = placeOf(*place);
    if (!wantedTop_) session.top = placeOf(parts_.table.firstInSight());
    return session;
}

void SessionKeeper::save()
{
    if (paths_.isEmpty() || paths_.contains(QStringLiteral("-")) || !parts_.document.hasSources() ||
        parts_.document.allRows() == 0)
        return;
    store_.write(paths_, session());
}

void SessionKeeper::startAfresh()
{
    store_.forget(paths_);
    wantedCurrent_.reset();
    wantedTop_.reset();
    parts_.highlights.setKept({});
    parts_.rows.setTimeForm(TimeForm::clock);
    parts_.rows.setMark(std::nullopt);
    parts_.table.resetColumns();
    parts_.document.setFilter({});
    if (parts_.document.rowCount() > 0) parts_.table.goTo(0);
    emit changed();
}

} // namespace viewer
