#include "hosts/viewer/calls/calls.h"

#include "hosts/viewer/calls/call_search.h"
#include "hosts/viewer/calls/call_sources.h"
#include "runtime/run_time_error.h"

#include <QMetaObject>
#include <QStringList>

#include <algorithm>
#include <limits>
#include <utility>

namespace viewer {

namespace {

constexpr std::size_t mostLines = 1000; ///< of a row, that are shown or walked back over

/// Between two lists or lanes of a log that grows: often enough to be followed, and seldom enough
/// for a person to read them, and for sorting the longest of lists.
constexpr int betweenGrowths = 400; ///< milliseconds

/// More than there can be.
constexpr std::size_t allSame = std::numeric_limits<std::size_t>::max();

} // namespace

// What another thread tells comes as an event of this one, or never, when this is gone by then.
Calls::Calls(Document& document, QObject* parent)
    : QObject(parent), document_(document),
      lister_([this](const ListWish& wish, const GivenUp& givenUp) { answer(wish, givenUp); }),
      finder_([this](const RowsWish& wish, const GivenUp& givenUp) { answer(wish, givenUp); })
{
    connect(&document_, &Document::viewChanged, this, &Calls::followView);
    connect(&document_, &Document::rowsCame, this, &Calls::followGrowth);
    growing_.setSingleShot(true);
    growing_.setInterval(betweenGrowths);
    connect(&growing_, &QTimer::timeout, this, &Calls::grow);
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
    listWork_ = Work::none;
    if (!listInWork_) return;
    // What was begun is of no use once the rows on show are others.
    lister_.giveUp();
    ++listWish_;
    listInWork_ = false;
    listed_.reset();
}

void Calls::look(const std::string& id, timeline::Moment around)
{
    looked_.id = id;
    looked_.around = around;
    rows_.reset();
    searched_.reset();
    rowsSame_.reset();
    makeRows();
}

/// A filter makes other lists. The rows of a call are others only where there are other rows; as
/// these may come again and again, what is being made is made to its end before it begins anew.
void Calls::followView()
{
    if (document_.view().grownFrom) return followGrowth();
    const auto& order = document_.view().order;
    const bool grows = listed_ && listed_->order != order;
    listSame_.reset();
    counted_.reset();
    // Rows that are no more must not be kept for a list that nobody sees.
    if (!listKept_) listed_.reset();
    if (listKept_ && !(grows && listWork_ == Work::running)) makeList();
    if (looked_.id.empty() || looked_.order == order) return;
    rowsSame_.reset();
    searched_.reset();
    if (rowsWork_ != Work::running) makeRows();
}

/// Notes what of the rows is as it was, and lets list and lanes grow soon.
void Calls::followGrowth()
{
    const View& view = document_.view();
    if (listSame_) listSame_ = std::min(*listSame_, *view.grownFrom);
    if (rowsSame_) rowsSame_ = std::min(*rowsSame_, view.order->growth().same);
    if (!listKept_) {
        counted_.reset();
        listed_.reset();
    }
    if (!growing_.isActive()) growing_.start();
}

/// What was stopped stays as it is, and what is being made is made to its end first.
void Calls::grow()
{
    if (listKept_ && listWork_ == Work::done && !listInWork_ && listed_ != document_.sharedView())
        makeList();
    if (rowsWork_ == Work::done && !rowsInWork_ && looked_.order != document_.view().order)
        makeRows();
}

void Calls::makeList()
{
    // A view that is still being made would be counted in vain.
    if (!document_.view().order || !document_.view().complete) return;
    ListWish wish;
    if (listSame_) wish.grows = std::move(counted_);
    wish.same = listSame_.value_or(0);
    counted_.reset();
    listGrows_ = listed_ && listed_->order != document_.view().order;
    listed_ = document_.sharedView();
    listSame_ = allSame;
    listInWork_ = true;
    wish.number = listWish_ = ++wishes_;
    wish.view = listed_;
    const bool stands = wish.grows != nullptr;
    lister_.wish(std::move(wish));
    if (stands) return;
    listWork_ = Work::running;
    emit listChanged();
}

void Calls::makeRows()
{
    if (!document_.view().order) return;
    looked_.number = ++wishes_;
    looked_.order = document_.view().order;
    RowsWish wish = looked_;
    if (rowsSame_) wish.grows = std::move(searched_);
    wish.same = rowsSame_.value_or(0);
    searched_.reset();
    rowsSame_ = allSame;
    rowsInWork_ = true;
    const bool stands = wish.grows != nullptr;
    finder_.wish(std::move(wish));
    if (stands) return;
    rowsWork_ = Work::running;
    rowsShare_ = 0;
    emit rowsChanged();
}

void Calls::stop()
{
    if (listWork_ == Work::running) {
        lister_.giveUp();
        listWish_ = ++wishes_;
        listInWork_ = false;
        listWork_ = Work::stopped;
        emit listChanged();
    }
    if (rowsWork_ == Work::running) {
        finder_.giveUp();
        looked_.number = ++wishes_;
        rowsInWork_ = false;
        rowsWork_ = Work::stopped;
        emit rowsChanged();
    }
}

void Calls::answer(const ListWish& wish, const GivenUp& givenUp)
{
    std::shared_ptr<CallCounting> counting = wish.grows;
    document_.timeline().work([&](const timeline::Timeline& rows) {
        if (counting)
            counting->growTo(rows, wish.view, wish.same);
        else
            counting = std::make_shared<CallCounting>(rows, wish.view);
    });
    doInParts(document_.timeline(), *counting, givenUp, [&](bool done) {
        // One that grows stands as it is until it is whole again, and where no row came.
        std::optional<CallList> list;
        if (!wish.grows || (done && counting->anyNew())) list = counting->list();
        QMetaObject::invokeMethod(
            this,
            [this, wish, list = std::move(list), counted = done ? counting : nullptr]() mutable {
                if (wish.number != listWish_) return;
                if (list) take(std::move(*list));
                if (counted) listDone(std::move(counted));
            },
            Qt::QueuedConnection);
    });
}

void Calls::answer(const RowsWish& wish, const GivenUp& givenUp)
{
    std::shared_ptr<CallSearch> search = wish.grows;
    const std::size_t before = search ? search->count() : 0;
    document_.timeline().work([&](const timeline::Timeline& rows) {
        if (search)
            search->growTo(rows, wish.order, wish.same);
        else
            search = std::make_shared<CallSearch>(rows, wish.order, wish.id, wish.around);
    });
    doInParts(document_.timeline(), *search, givenUp, [&](bool done) {
        std::optional<CallRows> found;
        if (!wish.grows || (done && search->count() != before)) found = search->rows();
        QMetaObject::invokeMethod(
            this,
            [this, wish, found = std::move(found), searched = done ? search : nullptr]() mutable {
                if (wish.number != looked_.number) return;
                if (found) take(std::move(*found));
                if (searched) rowsDone(std::move(searched));
            },
            Qt::QueuedConnection);
    });
}

void Calls::take(CallList list)
{
    const bool complete = list.complete;
    if (complete) listWork_ = Work::done;
    if (complete || !list_ || !listGrows_ || list.calls.size() >= list_->calls.size())
        list_ = std::make_shared<const CallList>(std::move(list));
    emit listChanged();
}

/// Goes on with what came meanwhile.
void Calls::listDone(std::shared_ptr<CallCounting> counted)
{
    listInWork_ = false;
    counted_ = std::move(counted);
    if (!listKept_ || listed_ == document_.sharedView()) return;
    if (listSame_)
        growing_.start();
    else
        makeList();
}

void Calls::take(CallRows rows)
{
    const bool complete = rows.complete;
    rowsShare_ = rows.share;
    if (complete) rowsWork_ = Work::done;
    // Where rows came the ones of before stay until there are as many.
    if (complete || !rows_ || rows.rows.size() >= rows_->rows.size())
        rows_ = std::make_shared<const CallRows>(std::move(rows));
    emit rowsChanged();
}

void Calls::rowsDone(std::shared_ptr<CallSearch> searched)
{
    rowsInWork_ = false;
    searched_ = std::move(searched);
    if (looked_.order == document_.view().order) return;
    if (rowsSame_)
        growing_.start();
    else
        makeRows();
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
