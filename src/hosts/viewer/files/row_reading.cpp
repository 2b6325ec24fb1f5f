#include "hosts/viewer/files/row_reading.h"

#include "hosts/common/look/csv_field.h"
#include "hosts/viewer/table/cell_text.h"
#include "runtime/run_time_error.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>

namespace viewer {

namespace {

QString jsonOf(const ShownRow& row)
{
    QJsonObject json;
    const auto add = [&json](RowColumn column, const QJsonValue& value) {
        json[QLatin1String(RowColumns::info(column).key)] = value;
    };
    if (row.index.moment != timeline::noMoment)
        add(RowColumn::time,
            clockText(row.index.moment).replace(QLatin1Char(' '), QLatin1Char('T')));
    for (const auto& [column, text] :
         {std::pair(RowColumn::process, row.process), std::pair(RowColumn::source, row.source),
          std::pair(RowColumn::component, row.component), std::pair(RowColumn::thread, row.thread),
          std::pair(RowColumn::port, row.port), std::pair(RowColumn::callId, row.callId),
          std::pair(RowColumn::file, row.file)})
        if (!text.isEmpty()) add(column, text);
    if (row.hasForm) {
        add(RowColumn::level, row.level);
        add(RowColumn::number, row.traceNumber);
    }
    add(RowColumn::trace, row.trace);
    add(RowColumn::line, static_cast<qint64>(row.index.line));
    return QString::fromUtf8(QJsonDocument(json).toJson(QJsonDocument::Compact));
}

QString headersOf(const RowsToWrite& rows)
{
    if (rows.form != RowForm::csv) return {};
    QStringList headers;
    for (const RowColumn column : rows.columns) headers << csvField(RowColumns::title(column));
    return headers.join(QLatin1Char(',')) + QLatin1Char('\n');
}

bool hasTimesSinceRowBefore(const RowsToWrite& rows)
{
    return rows.times.form == TimeForm::sinceRowBefore &&
           (rows.form == RowForm::shown || rows.form == RowForm::csv) &&
           std::find(rows.columns.begin(), rows.columns.end(), RowColumn::time) !=
               rows.columns.end();
}

} // namespace

RowForm rowFormOf(const QString& file)
{
    if (file.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive)) return RowForm::csv;
    if (file.endsWith(QLatin1String(".json"), Qt::CaseInsensitive)) return RowForm::json;
    return RowForm::shown;
}

std::size_t RowsToWrite::count() const
{
    std::size_t count = 0;
    for (const auto& [first, end] : places) count += end - first;
    return count;
}

RowReading::RowReading(RowsToWrite rows)
    : rows_(std::move(rows)), headers_(headersOf(rows_)),
      tellsBefore_(hasTimesSinceRowBefore(rows_))
{}

bool RowReading::goOn(const timeline::Timeline& timeline,
                      std::chrono::steady_clock::time_point until)
{
    while (nextPlace()) {
        waiting_.push_back(readNext(timeline));
        if (std::chrono::steady_clock::now() >= until) return !nextPlace();
    }
    return true;
}

/// Goes to the next range where the last one is read; false behind the last of them.
bool RowReading::nextPlace()
{
    while (range_ < rows_.places.size()) {
        const auto& [first, end] = rows_.places[range_];
        if (!walk_) {
            walk_.emplace(*rows_.view, first);
            place_ = first;
        }
        if (place_ < end) return true;
        walk_.reset();
        ++range_;
    }
    return false;
}

RowReading::Row RowReading::readNext(const timeline::Timeline& timeline)
{
    Row row;
    const timeline::IndexRow index = walk_->next(timeline);
    const std::size_t place = place_++;
    ++read_;
    if (tellsBefore_ && place > 0) {
        if (last_ && last_->first == place - 1)
            row.before = last_->second;
        else
            row.before = PlaceWalk(*rows_.view, place - 1).next(timeline).moment;
    }
    last_ = {place, index.moment};
    if (rows_.form == RowForm::raw) {
        try {
            timeline.record(index, room_);
            row.line = decoded(room_.whole, room_.codePage);
        } catch (const RunTimeError&) {
            row.line.clear(); // what is shown tells why
        }
    }
    if (row.line.isEmpty()) row.shown = readRow(timeline, index, room_);
    return row;
}

QString RowReading::text()
{
    QString text = std::exchange(headers_, {});
    for (const Row& row : waiting_) text += lineOf(row) + QLatin1Char('\n');
    waiting_.clear();
    return text;
}

QString RowReading::lineOf(const Row& row) const
{
    if (!row.line.isEmpty()) return row.line;
    if (rows_.form == RowForm::json) return jsonOf(row.shown);
    const bool csv = rows_.form == RowForm::csv;
    QStringList cells;
    for (const RowColumn column : rows_.columns) {
        QString cell = cellText(row.shown, column);
        if (column == RowColumn::time && !row.shown.belongs)
            cell = timeText(rows_.times, row.shown.index.moment, row.before);
        cells << (csv ? csvField(cell) : cell);
    }
    return cells.join(csv ? QLatin1Char(',') : QLatin1Char('\t'));
}

} // namespace viewer
