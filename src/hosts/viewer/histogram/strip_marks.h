#pragma once

#include "hosts/viewer/document/newest_task.h"
#include "hosts/viewer/histogram/time_strip.h"

#include <QObject>

#include <cstddef>
#include <memory>
#include <vector>

namespace viewer {

class Marks;

/// Puts the hits of what is looked for, and a person's bookmarks and notes, on the strip of times.
///
/// However many hits there are, a strip of so many pixels asks for the places of as many moments,
/// once for each view of rows; that is done on a thread of its own.
class StripMarks final : public QObject {
    Q_OBJECT

public:
    /// All outlive this.
    StripMarks(Document& document, TimeStrip& strip, Marks& marks, QObject* parent = nullptr);
    ~StripMarks() override;

private:
    /// The places on show where the pixels of a strip begin, and where the last one ends.
    struct Scale {
        std::shared_ptr<const View> view; ///< that they are places of
        std::vector<std::size_t> places;
    };

    void measure();
    void grow();
    void findScale();
    void showHits();
    void showFlags();
    static Scale scaleOf(SharedTimeline& timeline, std::shared_ptr<const View> view,
                         const std::vector<timeline::Moment>& begins,
                         const NewestTask::GivenUp& givenUp);

    Document& document_;
    TimeStrip& strip_;
    Marks& marks_;
    Scale scale_;
    NewestTask measuring_;
};

} // namespace viewer
