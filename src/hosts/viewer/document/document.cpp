#include "hosts/viewer/document/document.h"

#include "hosts/viewer/document/place_walk.h"
#include "runtime/run_time_error.h"

#include <QMetaObject>

#include <algorithm>
#include <chrono>
#include <utility>

namespace viewer {

namespace {

constexpr std::size_t rowsOfBlock = 64;
constexpr std::size_t mostBlocks = 64;
constexpr std::size_t bytesReadAhead = 1 << 20; ///< of rows that nobody asked for yet
constexpr int firstLook = 5;                    ///< milliseconds until the first rows may be there
constexpr int otherLooks = 100;

} // namespace

// What another thread tells comes as an event of this one, or never, when this is gone by then.
Document::Document(QObject* parent)
    : QObject(parent), finder_(timeline_,
                               [this](std::shared_ptr<const Hits> hits) {
                                   QMetaObject::invokeMethod(
                                       this,
                                       [this, hits = std::move(hits)] {
                                           if (hits->number != findings_) return;
                                           hits_ = hits;
                                           emit hitsChanged();
                                       },
                                       Qt::QueuedConnection);
                               }),
      maker_(timeline_, {.view =
                             [this](std::shared_ptr<const View> view) {
                                 QMetaObject::invokeMethod(
                                     this, [this, view = std::move(view)] { takeView(view); },
                                     Qt::QueuedConnection);
                             },
                         .counts =
                             [this](std::shared_ptr<const RowCounts> counts) {
                                 QMetaObject::invokeMethod(
                                     this,
                                     [this, counts = std::move(counts)] {
                                         counts_ = counts;
                                         emit countsChanged();
                                     },
                                     Qt::QueuedConnection);
                             }}),
      following_(timeline_,
                 [this](const LogNews& news) {
                     QMetaObject::invokeMethod(
                         this, [this, news] { takeNews(news); }, Qt::QueuedConnection);
                 }),
      opening_(timeline_, {.before = [this](const std::string& path) { following_.watch(path); },
                           .opened =
                               [this](const OpenedPath& opened) {
                                   QMetaObject::invokeMethod(
                                       this, [this, opened] { takeOpened(opened); },
                                       Qt::QueuedConnection);
                               }})
{
    connect(&levelSteps_, &QTimer::timeout, this, &Document::lookForLevel);
    connect(&watch_, &QTimer::timeout, this, &Document::lookAtReading);
}

Document::~Document() = default;

void Document::open(const QStringList& paths)
{
    emit opening(paths);
    toOpen_ += static_cast<std::size_t>(paths.size());
    for (const QString& path : paths) opening_.open(path.toStdString());
    watch_.start(firstLook);
    letFollow();
    emit progressed();
}

void Document::cancel()
{
    toOpen_ -= opening_.cancel();
    timeline_.cancel();
    letFollow();
}

void Document::follow(bool wish)
{
    if (follows_ == wish) return;
    follows_ = wish;
    timeline_.holdBackHalfLines(wish);
    letFollow();
    emit followingChanged();
}

/// What is still opened may be what can be followed.
void Document::letFollow()
{
    following_.follow(follows_ && toOpen_ == 0);
}

void Document::takeNews(const LogNews& news)
{
    for (const std::string& notice : news.notices)
        emit noted(harmless(QString::fromStdString(notice)));
    for (const auto& [source, home] : news.homes) takeHome(source, home);
    if (news.withdrawn)
        wish(true);
    else if (news.grown)
        growView();
    if (!news.homes.empty()) emit progressed();
    if (!follows_ || !news.followable) return;
    if (*news.followable == Followable::some) emit followedInPart();
    if (*news.followable != Followable::none) return;
    follow(false);
    emit followRefused();
}

/// Wishes for one grown view at a time; what comes meanwhile comes with the next one.
void Document::growView()
{
    grownSince_ = growing_;
    if (growing_) return;
    growing_ = true;
    maker_.grow();
}

Document::State Document::state() const
{
    const auto reading = timeline_.state();
    State state;
    state.busy =
        toOpen_ > 0 || !reading.ended || !lookedAtEnd_ || view_->wish < wishes_ || !view_->complete;
    state.rows = reading.rows;
    if (reading.total > 0)
        state.share =
            std::min(1.0, static_cast<double>(reading.done) / static_cast<double>(reading.total));
    return state;
}

void Document::takeOpened(const OpenedPath& opened)
{
    --toOpen_;
    letFollow();
    if (opened.sources > 0) {
        sources_ += opened.sources;
        for (std::size_t at = 0; at < opened.homes.size(); ++at)
            takeHome(opened.firstSource + at, opened.homes[at]);
        paths_.append(QString::fromStdString(opened.path));
        lookedAtEnd_ = false;
        watch_.start(firstLook);
    }
    for (const timeline::MacroTraceDefinition& definition : opened.macroTraces)
        macroTraces_.try_emplace(
            QString::fromStdString(definition.group + " - " + definition.trace), definition.levels);
    tell(opened.troubles);
    for (const std::string& note : opened.notes) emit noted(harmless(QString::fromStdString(note)));
    emit progressed();
}

/// A log that is followed may have begun before what was opened earlier was told of.
void Document::takeHome(std::size_t source, const SourceHome& home)
{
    if (homes_.size() <= source) homes_.resize(source + 1);
    homes_[source] = home;
}

void Document::tell(const std::vector<std::string>& failures)
{
    for (const std::string& failure : failures) {
        const QString sentence = harmless(QString::fromStdString(failure));
        if (told_.contains(sentence)) continue;
        told_.insert(sentence);
        emit failed(sentence);
    }
}

/// Asks for a view with the rows that came: at once of the first, then whenever there are twice as
/// many, so that ordering them again and again takes no longer than ordering them once at the end.
void Document::lookAtReading()
{
    const auto reading = timeline_.state();
    tell(reading.failures);
    const bool ended = reading.ended && toOpen_ == 0;
    if (reading.rows >= std::max<std::size_t>(1, 2 * readRows_) || (ended && !lookedAtEnd_)) {
        readRows_ = reading.rows;
        lookedAtEnd_ = ended;
        wish(true);
    }
    // The first rows are looked for often, what takes long now and then.
    watch_.setInterval(std::min(watch_.interval() + firstLook, otherLooks));
    if (ended && lookedAtEnd_) {
        watch_.stop();
        std::vector<std::string> troubles;
        timeline_.look([&](const timeline::Timeline& rows) {
            for (std::size_t source = 0; source < rows.sourceCount(); ++source)
                for (const std::string& trouble : rows.source(source).troubles())
                    troubles.push_back(trouble);
        });
        tell(troubles);
    }
    emit progressed();
}

void Document::wish(bool anew)
{
    maker_.make({.number = ++wishes_, .anew = anew, .choice = choice_});
}

void Document::setFilter(RowFilter filter)
{
    choice_ = filter.choice();
    filter_ = std::move(filter);
    wish(false);
    emit filterChanged();
    emit progressed();
}

void Document::takeView(std::shared_ptr<const View> view)
{
    growing_ = false;
    if (std::exchange(grownSince_, false)) growView();
    if (view->grownFrom) return takeGrown(std::move(view));
    emit viewAboutToChange();
    view_ = std::move(view);
    blocks_.clear();
    places_.clear();
    levelSteps_.stop();
    emit viewChanged();
    findAgain();
    if (levelWish_) beginLevelSearch();
}

/// Takes a view of which most is as it was, and mostly all but what comes behind.
void Document::takeGrown(std::shared_ptr<const View> view)
{
    const std::size_t same = *view->grownFrom;
    const std::size_t before = view_->size();
    const bool atEnd = same == before;
    if (!atEnd)
        emit viewAboutToChange();
    else if (view->size() > before)
        emit rowsAboutToCome(view->size() - before);
    const bool comes = atEnd && view->size() > before;
    view_ = std::move(view);
    for (auto at = blocks_.begin(); at != blocks_.end();) {
        if ((at->first + 1) * rowsOfBlock <= same) {
            ++at;
            continue;
        }
        places_.erase(at->first);
        at = blocks_.erase(at);
    }
    if (levelSteps_.isActive())
        levelSearch_->growTo(view_, same);
    else if (levelWish_)
        beginLevelSearch();
    if (!atEnd)
        emit viewChanged();
    else if (comes)
        emit rowsCame();
    findAgain(same);
}

void Document::find(const TextCondition& text)
{
    finding_ = text.text.isEmpty() ? nullptr : text.pattern();
    findAgain();
}

/// Looks for the same text in what is on show now. The hits of before are those of other places,
/// but for those at the top of a view that grew.
void Document::findAgain(std::optional<std::size_t> same)
{
    const bool any = hits_ != nullptr;
    HitFinder::Wish wish{++findings_, view_, finding_, std::nullopt};
    if (same)
        wish.before = {findings_ - 1, *same};
    else
        hits_.reset();
    if (finding_ || any) finder_.find(std::move(wish));
    if (any && !same) emit hitsChanged();
}

void Document::findLevel(std::size_t place, Direction direction, std::int8_t level)
{
    if (!view_->order) return emit levelFound(std::nullopt);
    levelWish_ = {std::nullopt, direction, level};
    if (place < rowCount()) levelWish_->from = indexRow(place);
    beginLevelSearch();
}

/// From the row that was asked from, or from where it would stand.
void Document::beginLevelSearch()
{
    const bool down = levelWish_->direction == Direction::down;
    // The row next to this one is the first.
    const std::size_t ahead = static_cast<std::size_t>(-1);
    std::size_t place = down ? ahead : rowCount();
    if (levelWish_->from) {
        const auto known = placeOf(*levelWish_->from);
        if (!known) return; // it was not asked yet; another view will have it
        const bool shown = *known < rowCount() && indexRow(*known).place == levelWish_->from->place;
        place = down && !shown ? *known - 1 : *known;
    }
    levelSearch_.emplace(view_, place, levelWish_->direction, levelWish_->level);
    levelSteps_.start(0);
}

/// A step that a person does not notice; the window handles its events between two of them.
void Document::lookForLevel()
{
    constexpr std::chrono::milliseconds step{10};
    bool done = false;
    timeline_.look([&](const timeline::Timeline& rows) {
        done = levelSearch_->look(rows, std::chrono::steady_clock::now() + step);
    });
    if (!done) return;
    levelSteps_.stop();
    // Where rows have not been asked yet, there may be one among them.
    const auto found = levelSearch_->found();
    if (!found && !view_->complete) return;
    levelWish_.reset();
    emit levelFound(found);
}

Document::Block& Document::block(std::size_t number)
{
    if (const auto known = places_.find(number); known != places_.end()) {
        blocks_.splice(blocks_.begin(), blocks_, known->second);
        return blocks_.front().second;
    }
    if (blocks_.size() == mostBlocks) {
        places_.erase(blocks_.back().first);
        blocks_.pop_back();
    }
    const std::size_t first = number * rowsOfBlock;
    blocks_.emplace_front(number, Block(std::min(rowsOfBlock, view_->size() - first)));
    places_[number] = blocks_.begin();
    read(blocks_.front().second, first);
    return blocks_.front().second;
}

/// Reads the row at a place and those behind it in its block, unless that takes long: lines may
/// have megabytes, and nobody may ever ask for the others.
void Document::read(Block& block, std::size_t place)
{
    timeline_.look([&](const timeline::Timeline& rows) {
        PlaceWalk walk(*view_, place);
        std::size_t bytes = 0;
        for (std::size_t at = place % rowsOfBlock;
             at < block.size() && !block[at] && bytes < bytesReadAhead; ++at) {
            block[at] = readRow(rows, walk.next(rows), room_, Texts::shortened);
            bytes += std::max(room_.whole.size(), room_.trace.size());
        }
    });
}

const ShownRow& Document::row(std::size_t place)
{
    Block& rows = block(place / rowsOfBlock);
    std::optional<ShownRow>& row = rows[place % rowsOfBlock];
    if (!row) read(rows, place);
    return *row;
}

void Document::prepare(std::size_t place, std::size_t count)
{
    for (; count > 0 && place < rowCount(); ++place, --count) row(place);
}

ShownRow Document::wholeRow(std::size_t place)
{
    ShownRow row;
    timeline_.look([&](const timeline::Timeline& rows) {
        row = readRow(rows, *view_->order->from(rows, view_->rowAt(place)).next(), room_);
    });
    return row;
}

QString Document::wholeLine(std::size_t place)
{
    QString line;
    timeline_.look([&](const timeline::Timeline& rows) {
        const timeline::IndexRow row = *view_->order->from(rows, view_->rowAt(place)).next();
        try {
            rows.record(row, room_);
            line = decoded(room_.whole, room_.codePage);
        } catch (const RunTimeError&) {
            line.clear(); // the row itself tells why
        }
    });
    return line;
}

QString Document::wholeTrace(std::size_t place)
{
    QStringList lines;
    timeline_.look([&](const timeline::Timeline& rows) {
        try {
            rows.record(*view_->order->from(rows, view_->rowAt(place)).next(), room_);
            for (const QString& line :
                 decoded(room_.trace, room_.codePage).split(QLatin1Char('\n')))
                lines << harmless(line.endsWith(QLatin1Char('\r')) ? line.chopped(1) : line);
        } catch (const RunTimeError& error) {
            lines = {harmless(QString::fromStdString(error.description()))};
        }
    });
    return lines.join(QLatin1Char('\n'));
}

std::string Document::value(std::size_t place, timeline::Column column)
{
    std::string value;
    timeline_.look([&](const timeline::Timeline& rows) {
        try {
            rows.record(*view_->order->from(rows, view_->rowAt(place)).next(), room_);
            if (room_.hasForm) value = valueOf(room_, column);
        } catch (const RunTimeError&) {
            value.clear(); // the row itself tells why
        }
    });
    return value;
}

timeline::IndexRow Document::indexRow(std::size_t place)
{
    timeline::IndexRow row;
    timeline_.look([&](const timeline::Timeline& rows) {
        row = *view_->order->from(rows, view_->rowAt(place)).next();
    });
    return row;
}

std::optional<std::size_t> Document::placeOf(const timeline::IndexRow& row)
{
    if (!view_->order) return std::nullopt;
    std::optional<std::size_t> number;
    timeline_.look([&](const timeline::Timeline& rows) { number = view_->order->find(rows, row); });
    if (!number || (!view_->complete && *number >= view_->chosen->size())) return std::nullopt;
    return view_->placeOf(*number);
}

std::vector<std::optional<std::size_t>>
Document::placesOnShow(const std::vector<timeline::IndexRow>& rows)
{
    std::vector<std::optional<std::size_t>> places(rows.size());
    if (!view_->order || rows.empty()) return places;
    timeline_.look([&](const timeline::Timeline& all) {
        for (std::size_t row = 0; row < rows.size(); ++row)
            if (const auto number = view_->order->find(all, rows[row]);
                number && view_->shows(*number))
                places[row] = view_->placeOf(*number);
    });
    return places;
}

std::optional<std::pair<timeline::Moment, timeline::Moment>> Document::times()
{
    std::optional<std::pair<timeline::Moment, timeline::Moment>> times;
    if (view_->order)
        timeline_.look([&](const timeline::Timeline& rows) { times = view_->order->span(rows); });
    return times;
}

std::size_t Document::placeFrom(timeline::Moment moment)
{
    if (!view_->order) return 0;
    std::size_t number = 0;
    timeline_.look(
        [&](const timeline::Timeline& rows) { number = view_->order->firstFrom(rows, moment); });
    return view_->placeOf(number);
}

} // namespace viewer
