#pragma once

#include "hosts/viewer/document/place_walk.h"
#include "hosts/viewer/document/shown_row.h"
#include "hosts/viewer/table/row_column.h"
#include "hosts/viewer/table/time_text.h"

#include <QString>

#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace viewer {

/// The forms that rows are written in for other programs.
enum class RowForm {
    shown, ///< a line each, cells parted by tabs
    csv,   ///< with the headers before them; no cell is a formula to a spreadsheet
    raw,   ///< the lines as they stand in their files; as shown where there are none
    json,  ///< one object a line, with every field
};

/// The form by the ending of a file's name: ".csv", ".json", else as shown.
RowForm rowFormOf(const QString& file);

/// Rows of what was on show once, whatever is now, and how they are written.
struct RowsToWrite {
    std::shared_ptr<const View> view;
    std::vector<PlaceRange> places; ///< from the top; none overlaps another
    RowForm form = RowForm::shown;
    std::vector<RowColumn> columns;
    TimeTelling times;

    /// The number of rows.
    std::size_t count() const;
};

/// Reads rows and makes text of them, some at a time, so that who shows rows has them in between.
class RowReading {
public:
    /// For the thread of the windows, whose language the headers have.
    explicit RowReading(RowsToWrite rows);

    /// Reads rows until a moment; true when all are read. For whoever has the timeline's turn.
    bool goOn(const timeline::Timeline& timeline, std::chrono::steady_clock::time_point until);

    /// The rows read since the last call, each with the end of its line, after the headers where
    /// the form has some. A row that can't be read any more has the reason for its trace.
    QString text();

    std::size_t rowsRead() const { return read_; }

private:
    struct Row {
        ShownRow shown;
        QString line;                           ///< as it stands in its file, where that is wanted
        std::optional<timeline::Moment> before; ///< the moment of the row above
    };
    Row readNext(const timeline::Timeline& timeline);
    bool nextPlace();
    QString lineOf(const Row& row) const;

    RowsToWrite rows_;
    QString headers_;  ///< that were not given yet
    bool tellsBefore_; ///< whether the row above tells of each
    std::size_t range_ = 0;
    std::size_t place_ = 0; ///< the next one, in the range
    std::optional<PlaceWalk> walk_;
    std::optional<std::pair<std::size_t, timeline::Moment>> last_; ///< place and moment of the last
    std::vector<Row> waiting_;                                     ///< that were read
    std::size_t read_ = 0;
    timeline::Record room_;
};

} // namespace viewer
