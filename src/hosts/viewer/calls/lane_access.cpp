#include "hosts/viewer/calls/lane_access.h"

#include "hosts/viewer/calls/lane_view.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace viewer {

namespace {

class LaneInterface final : public QAccessibleWidget {
public:
    explicit LaneInterface(LaneView& view) : QAccessibleWidget(&view, QAccessible::Chart) {}

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Value) return static_cast<LaneView*>(object())->spoken();
        return QAccessibleWidget::text(kind);
    }
};

QAccessibleInterface* interfaceOf(const QString&, QObject* object)
{
    auto* view = qobject_cast<LaneView*>(object);
    return view ? new LaneInterface(*view) : nullptr;
}

} // namespace

void makeSpeak(LaneView&)
{
    static const bool installed = [] {
        QAccessible::installFactory(interfaceOf);
        return true;
    }();
    Q_UNUSED(installed);
}

void tellSpoken(LaneView& view)
{
    // Some screen readers hear of values, others of descriptions.
    view.setAccessibleDescription(view.spoken());
    if (!QAccessible::isActive()) return;
    QAccessibleValueChangeEvent changed(&view, view.spoken());
    QAccessible::updateAccessibility(&changed);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent announced(&view, view.spoken());
    QAccessible::updateAccessibility(&announced);
#endif
}

} // namespace viewer
