#include "hosts/viewer/files/row_export.h"

#include "hosts/viewer/table/row_copy.h"
#include "hosts/viewer/table/time_text.h"

#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>

namespace viewer {

namespace {

constexpr int stepMilliseconds = 20;

QByteArray jsonOf(const ShownRow& row)
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
    return QJsonDocument(json).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace

ExportForm exportFormOf(const QString& file)
{
    if (file.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive)) return ExportForm::csv;
    if (file.endsWith(QLatin1String(".json"), Qt::CaseInsensitive)) return ExportForm::json;
    return ExportForm::text;
}

RowExport::RowExport(const RowModel& rows, std::vector<RowColumn> columns, const QString& file,
                     QObject* parent)
    : QObject(parent), rows_(rows), columns_(std::move(columns)), form_(exportFormOf(file)),
      file_(file)
{
    connect(&steps_, &QTimer::timeout, this, &RowExport::writeSome);
}

bool RowExport::start()
{
    if (!file_.open(QIODevice::WriteOnly)) {
        problem_ = tr("%1 can't be written: %2").arg(file_.fileName(), file_.errorString());
        return false;
    }
    if (form_ == ExportForm::csv)
        file_.write(copiedRows(rows_, {}, columns_, CopyForm::csv).toUtf8());
    steps_.start(0);
    return true;
}

QByteArray RowExport::rowText(std::size_t place) const
{
    if (form_ == ExportForm::json) {
        const ShownRow& row = rows_.document().row(place);
        return jsonOf(row.cut ? rows_.document().wholeRow(place) : row);
    }
    return (rowLine(rows_, place, columns_, form_ == ExportForm::csv) + QLatin1Char('\n')).toUtf8();
}

void RowExport::writeSome()
{
    QElapsedTimer clock;
    clock.start();
    while (next_ < rows_.document().rowCount()) {
        if (file_.write(rowText(next_)) < 0) {
            problem_ = tr("%1 can't be written: %2").arg(file_.fileName(), file_.errorString());
            return end(false);
        }
        ++next_;
        if (clock.elapsed() >= stepMilliseconds) {
            emit went();
            return;
        }
    }
    if (!file_.commit()) {
        problem_ = tr("%1 can't be written: %2").arg(file_.fileName(), file_.errorString());
        return end(false);
    }
    end(true);
}

void RowExport::end(bool done)
{
    steps_.stop();
    emit ended(done);
}

void RowExport::cancel()
{
    if (!steps_.isActive()) return;
    file_.cancelWriting();
    file_.commit();
    end(false);
}

} // namespace viewer
