#include "hosts/common/look/csv_field.h"

#include "runtime/spreadsheet_cell.h"

QString csvField(const QString& cell)
{
    QString text = QString::fromStdString(withoutFormulas(cell.toStdString()));
    if (!text.contains(QLatin1Char(',')) && !text.contains(QLatin1Char('"')) &&
        !text.contains(QLatin1Char('\n')) && !text.contains(QLatin1Char('\r')))
        return text;
    return QLatin1Char('"') + text.replace(QLatin1String("\""), QLatin1String("\"\"")) +
           QLatin1Char('"');
}
