#include "hosts/viewer/table/row_copy.h"

#include "hosts/common/look/csv_field.h"

#include <QStringList>

namespace viewer {

QString rowLine(const RowModel& rows, std::size_t place, const std::vector<RowColumn>& columns,
                bool csv)
{
    QStringList cells = rows.wholeTexts(place, columns);
    if (csv)
        for (QString& cell : cells) cell = csvField(cell);
    return cells.join(csv ? QLatin1Char(',') : QLatin1Char('\t'));
}

QString copiedRows(const RowModel& rows, const std::vector<std::size_t>& places,
                   const std::vector<RowColumn>& columns, CopyForm form)
{
    QStringList lines;
    if (form == CopyForm::csv) {
        QStringList headers;
        for (const RowColumn column : columns) headers << csvField(RowColumns::title(column));
        lines << headers.join(QLatin1Char(','));
    }
    for (const std::size_t place : places) {
        if (form == CopyForm::raw) {
            const QString line = rows.document().wholeLine(place);
            if (!line.isEmpty()) {
                lines << line;
                continue;
            }
        }
        lines << rowLine(rows, place, columns, form == CopyForm::csv);
    }
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

} // namespace viewer
