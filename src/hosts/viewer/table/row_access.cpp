#include "hosts/viewer/table/row_access.h"

#include "hosts/viewer/table/row_table.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QStringList>

namespace viewer {

namespace {

constexpr qsizetype longestSpoken = 2000; ///< what is longer stands in the details

QString spokenRow(const RowTable& table)
{
    const QModelIndex current = table.currentIndex();
    if (!current.isValid()) return {};
    QStringList texts;
    for (const RowColumn column : table.shownColumns()) {
        const QModelIndex cell = current.siblingAtColumn(static_cast<int>(column));
        const QVariant spoken = cell.data(Qt::AccessibleTextRole);
        const QString text = (spoken.isValid() ? spoken : cell.data()).toString();
        if (!text.isEmpty()) texts << text.left(longestSpoken);
    }
    return texts.join(QStringLiteral(", ")).left(longestSpoken);
}

class RowsInterface final : public QAccessibleWidget {
public:
    explicit RowsInterface(RowTable& table) : QAccessibleWidget(&table, QAccessible::List) {}

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Value) return spokenRow(*static_cast<RowTable*>(object()));
        return QAccessibleWidget::text(kind);
    }
};

QAccessibleInterface* interfaceOf(const QString&, QObject* object)
{
    auto* table = qobject_cast<RowTable*>(object);
    return table ? new RowsInterface(*table) : nullptr;
}

} // namespace

void makeRowsSpeak(RowTable& table)
{
    static const bool installed = [] {
        QAccessible::installFactory(interfaceOf);
        return true;
    }();
    Q_UNUSED(installed);
    QObject::connect(&table, &RowTable::currentPlaceChanged, &table,
                     [&table] { tellCurrentRow(table); });
}

void tellCurrentRow(RowTable& table)
{
    const QString spoken = spokenRow(table);
    if (spoken == table.accessibleDescription()) return;
    // Some screen readers hear of values, others of descriptions.
    table.setAccessibleDescription(spoken);
    if (!QAccessible::isActive()) return;
    QAccessibleValueChangeEvent changed(&table, spoken);
    QAccessible::updateAccessibility(&changed);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent announced(&table, spoken);
    QAccessible::updateAccessibility(&announced);
#endif
}

} // namespace viewer
