#pragma once

#include "hosts/common/filters/highlights.h"
#include "hosts/common/filters/row_filter.h"
#include "hosts/viewer/marks/row_identity.h"
#include "hosts/viewer/table/row_column.h"

#include <QByteArray>

#include <optional>
#include <vector>

namespace viewer {

/// How a column stands in the table.
struct ColumnPlace {
    RowColumn column = RowColumn::time;
    int width = 0; ///< in pixels; of one on show alone
    bool shown = true;

    bool operator==(const ColumnPlace&) const = default;
};

/// A row, and the file of the machine that has it.
struct RowPlace {
    QString file;
    RowIdentity row;
};

/// What a person saw of some sources when they were closed.
struct Session {
    RowFilter filter;
    std::vector<ColumnPlace> columns; ///< from the left; none where nothing is known of them
    std::vector<Highlights::Kept> kept;
    TimeForm times = TimeForm::clock;
    std::optional<timeline::Moment> mark; ///< that times are told from
    std::optional<RowPlace> current;
    std::optional<RowPlace> top; ///< the first row in sight
};

/// A session as a file has it, and back. A part that makes no sense is left out, and of what is no
/// session nothing is left.
QByteArray toJson(const Session& session);
Session sessionOfJson(const QByteArray& json);

} // namespace viewer
