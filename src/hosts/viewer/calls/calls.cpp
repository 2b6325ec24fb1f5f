#include "hosts/viewer/calls/calls.h"

#include "hosts/viewer/calls/call_search.h"
#include "hosts/viewer/calls/call_sources.h"
#include "runtime/run_time_error.h"

#include <QMetaObject>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace viewer {

namespace {

constexpr std::size_t mostLines = 1000; ///< of a row, that are shown or walked back over

} // namespace

// What another thread tells comes as an event of this one, or never, when this is gone by then.
Calls::Calls(Document& document, QObject* parent)
    : QObject(parent), document_(document),
      lister_([this](const ListWish& wish, const GivenUp& givenUp) { answer(wish, givenUp); }),
      finder_([this](const RowsWish& wish, const GivenUp& givenUp) { answer(wish, givenUp); })
{
    connect(&document_, &Document::viewChanged, this, &Calls::followView);
}

Calls::~Calls() = default;

void Calls::keepList(bool kept)
{
    if (listKept_ == kept) return;
    listKept_ = kept;
    if (kept && list_ && list_->complete && listed_ == document_.sharedView()) {
        listWork_ = Work::done; // nothing has changed meanwhile
        return;
    }
    if (kept) return makeList();
    // What was begun is of no use once the rows on show are others.
    lister_.giveUp();
    ++listWish_;
    listWork_ = Work::none;
}

void Calls::look(const std::string& id, timeline::Moment around)
{
    looked_.id = id;
    looked_.around = around;
    rows_.reset();
    makeRows();
}

/// A filter makes other lists. The rows of a call are others only where there are other rows; as
/// these may come again and again, what is being made is made to its end before it begins anew.
void Calls::followView()
{
    const auto& order = document_.view().order;
    const bool grows = listed_ && listed_->order != order;
    if (listKept_ && !(grows && listWork_ == Work::running)) makeList();
    if (!looked_.id.empty() && looked_.order != order && rowsWork_ != Work::running) makeRows();
}

void Calls::makeList()
{
    // A view that is still being made would be counted in vain.
    if (!document_.view().order || !document_.view().complete) return;
    listGrows_ = listed_ && listed_->order != document_.view().order;
    listed_ = document_.sharedView();
    listWish_ = ++wishes_;
    listWork_ = Work::running;
    lister_.wish({listWish_, listed_});
    emit listChanged();
}

void Calls::makeRows()
{
    if (!document_.view().order) return;
    looked_.number = ++wishes_;
    looked_.order = document_.view().order;
    rowsWork_ = Work::running;
    rowsShare_ = 0;
    finder_.wish(looked_);
    emit rowsChanged();
}

void Calls::stop()
{
    if (listWork_ == Work::running) {
        lister_.giveUp();
        listWish_ = ++wishes_;
        listWork_ = Work::stopped;
        emit listChanged();
    }
    if (rowsWork_ == Work::running) {
        finder_.giveUp();
        looked_.number = ++wishes_;
        rowsWork_ = Work::stopped;
        emit rowsChanged();
    }
}

void Calls::answer(const ListWish& wish, const GivenUp& givenUp)
{
    std::unique_ptr<CallCounting> counting;
    document_.timeline().work([&](const timeline::Timeline& rows) {
        counting = std::make_unique<CallCounting>(rows, wish.view);
    });
    doInParts(document_.timeline(), *counting, givenUp, [&](bool) {
        QMetaObject::invokeMethod(
            this, [this, wish, list = counting->list()]() mutable { take(wish, std::move(list)); },
            Qt::QueuedConnection);
    });
}

void Calls::answer(const RowsWish& wish, const GivenUp& givenUp)
{
    std::unique_ptr<CallSearch> search;
    document_.timeline().work([&](const timeline::Timeline& rows) {
        search = std::make_unique<CallSearch>(rows, wish.order, wish.id, wish.around);
    });
    doInParts(document_.timeline(), *search, givenUp, [&](bool) {
        QMetaObject::invokeMethod(
            this, [this, wish, found = search->rows()]() mutable { take(wish, std::move(found)); },
            Qt::QueuedConnection);
    });
}

void Calls::take(const ListWish& wish, CallList list)
{
    if (wish.number != listWish_) return;
    const bool complete = list.complete;
    if (complete) listWork_ = Work::done;
    if (complete || !list_ || !listGrows_ || list.calls.size() >= list_->calls.size())
        list_ = std::make_shared<const CallList>(std::move(list));
    emit listChanged();
    if (complete && listKept_ && listed_ != document_.sharedView()) makeList();
}

void Calls::take(const RowsWish& wish, CallRows rows)
{
    if (wish.number != looked_.number) return;
    const bool complete = rows.complete;
    rowsShare_ = rows.share;
    if (complete) rowsWork_ = Work::done;
    // Where rows came the ones of before stay until there are as many.
    if (complete || !rows_ || rows.rows.size() >= rows_->rows.size())
        rows_ = std::make_shared<const CallRows>(std::move(rows));
    emit rowsChanged();
    if (complete && looked_.order != document_.view().order) makeRows();
}

bool Calls::anySource() const
{
    bool any = false;
    document_.timeline().look([&](const timeline::Timeline& rows) {
        const auto have = sourcesWithCalls(rows);
        any = std::find(have.begin(), have.end(), true) != have.end();
    });
    return any;
}

std::optional<std::size_t> Calls::placeWithId(std::size_t place)
{
    for (std::size_t lines = 0; place < document_.rowCount() && lines < mostLines; ++lines) {
        const ShownRow& row = document_.row(place);
        if (!row.callId.isEmpty()) return place;
        if (!row.belongs || place == 0) break;
        --place;
    }
    return std::nullopt;
}

ShownRow Calls::row(const timeline::IndexRow& row) const
{
    ShownRow shown;
    timeline::Record room;
    document_.timeline().look(
        [&](const timeline::Timeline& rows) { shown = readRow(rows, row, room); });
    return shown;
}

QString Calls::text(const timeline::IndexRow& row) const
{
    QStringList lines;
    timeline::Record room;
    document_.timeline().look([&](const timeline::Timeline& rows) {
        try {
            rows.record(row, room);
            for (QString line : decoded(room.trace, room.codePage).split(QLatin1Char('\n'))) {
                if (line.endsWith(QLatin1Char('\r'))) line.chop(1);
                lines << harmless(line);
            }
        } catch (const RunTimeError& error) {
            lines << harmless(QString::fromStdString(error.description()));
        }
        const auto& order = document_.view().order;
        const auto number = order ? order->find(rows, row) : std::nullopt;
        if (!number) return;
        RowOrder::Walk walk = order->from(rows, *number);
        walk.next();
        for (const timeline::IndexRow* line = walk.next();
             line != nullptr && line->belongsToRowBefore() && line->source() == row.source() &&
             static_cast<std::size_t>(lines.size()) < mostLines;
             line = walk.next())
            lines << readRow(rows, *line, room).trace;
    });
    return lines.join(QLatin1Char('\n'));
}

} // namespace viewer
