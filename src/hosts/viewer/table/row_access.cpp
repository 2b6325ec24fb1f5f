#include "hosts/viewer/table/row_access.h"

#include "hosts/viewer/table/row_table.h"
#include "hosts/viewer/table/rows_interface.h"

#include <QAccessible>

namespace viewer {

namespace {

QAccessibleInterface* interfaceOf(const QString&, QObject* object)
{
    auto* table = qobject_cast<RowTable*>(object);
    return table ? new RowsInterface(*table) : nullptr;
}

/// Tells of the cell of the current row that has the focus; false where none has it in sight.
bool tellFocus(RowTable& table)
{
    QAccessibleInterface* rows = QAccessible::queryAccessibleInterface(&table);
    if (!table.hasFocus() || rows == nullptr) return false;
    const int child = rows->indexOfChild(rows->focusChild());
    if (child < 0) return false;
    QAccessibleEvent focus(&table, QAccessible::Focus);
    focus.setChild(child);
    QAccessible::updateAccessibility(&focus);
    return true;
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
    if (tellFocus(table)) return;
    QAccessibleValueChangeEvent changed(&table, spoken);
    QAccessible::updateAccessibility(&changed);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent announced(&table, spoken);
    QAccessible::updateAccessibility(&announced);
#endif
}

} // namespace viewer
