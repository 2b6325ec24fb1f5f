#include "hosts/viewer/histogram/strip_marks.h"

#include "hosts/viewer/marks/marks.h"

#include <QMetaObject>

#include <algorithm>
#include <utility>

namespace viewer {

namespace {

constexpr std::size_t momentsAtOnce = 16; ///< whose places are found in a millisecond or so
constexpr std::size_t mostFlags = 2000;

} // namespace

StripMarks::StripMarks(Document& document, TimeStrip& strip, Marks& marks, QObject* parent)
    : QObject(parent), document_(document), strip_(strip), marks_(marks)
{
    connect(&strip_, &TimeStrip::scaleChanged, this, &StripMarks::measure);
    connect(&document_, &Document::viewChanged, this, &StripMarks::measure);
    connect(&document_, &Document::viewChanged, this, &StripMarks::showFlags);
    connect(&document_, &Document::rowsCame, this, &StripMarks::grow);
    connect(&document_, &Document::hitsChanged, this, &StripMarks::showHits);
    connect(&marks_, &Marks::changed, this, &StripMarks::showFlags);
}

StripMarks::~StripMarks() = default;

/// Finds out which places the pixels of the strip stand for.
void StripMarks::measure()
{
    scale_ = {};
    showHits();
    findScale();
}

/// Rows came behind the others, whose places are as they were: the scale is good until it is
/// measured again.
void StripMarks::grow()
{
    if (scale_.view) scale_.view = document_.sharedView();
    findScale();
}

void StripMarks::findScale()
{
    const auto view = document_.sharedView();
    if (!strip_.span() || !view->order) return;
    std::vector<timeline::Moment> begins;
    const QRect room = strip_.room();
    for (int x = room.left(); x <= room.left() + room.width(); ++x)
        begins.push_back(strip_.momentAt(x));
    measuring_.start([this, view, begins](const NewestTask::GivenUp& givenUp) {
        Scale scale = scaleOf(document_.timeline(), view, begins, givenUp);
        if (givenUp()) return;
        QMetaObject::invokeMethod(
            this,
            [this, scale = std::move(scale)] {
                if (scale.view != document_.sharedView()) return;
                scale_ = scale;
                showHits();
            },
            Qt::QueuedConnection);
    });
}

StripMarks::Scale StripMarks::scaleOf(SharedTimeline& timeline, std::shared_ptr<const View> view,
                                      const std::vector<timeline::Moment>& begins,
                                      const NewestTask::GivenUp& givenUp)
{
    Scale scale{std::move(view), {}};
    while (scale.places.size() < begins.size() && !givenUp())
        timeline.work([&](const timeline::Timeline& rows) {
            const std::size_t end = std::min(begins.size(), scale.places.size() + momentsAtOnce);
            for (std::size_t at = scale.places.size(); at < end; ++at)
                scale.places.push_back(
                    scale.view->placeOf(scale.view->order->firstFrom(rows, begins[at])));
        });
    return scale;
}

/// The hits are those of the view on show, as the scale is.
void StripMarks::showHits()
{
    const Hits* hits = document_.hits();
    std::vector<std::uint32_t> ofPixels;
    if (hits != nullptr && hits->rows.count() > 0 && scale_.view == document_.sharedView())
        for (std::size_t at = 0; at + 1 < scale_.places.size(); ++at)
            ofPixels.push_back(
                static_cast<std::uint32_t>(hits->rows.countBefore(scale_.places[at + 1]) -
                                           hits->rows.countBefore(scale_.places[at])));
    strip_.setHits(std::move(ofPixels));
}

void StripMarks::showFlags()
{
    std::vector<timeline::IndexRow> rows;
    std::vector<TimeStrip::Flag> flags;
    for (const Marks::Mark& mark : marks_.all()) {
        if (!mark.row || mark.row->moment == timeline::noMoment || rows.size() == mostFlags)
            continue;
        rows.push_back(*mark.row);
        flags.push_back({mark.row->moment, harmless(marks_.remark(*mark.row))});
    }
    const auto places = document_.placesOnShow(rows);
    std::vector<TimeStrip::Flag> shown;
    for (std::size_t at = 0; at < flags.size(); ++at)
        if (places[at]) shown.push_back(flags[at]);
    strip_.setFlags(std::move(shown));
}

} // namespace viewer
