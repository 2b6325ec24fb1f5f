#include "hosts/desktop/support/cut_texts.h"

#include "hosts/desktop/window/task_card.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>

namespace desktop {

namespace {

/// Below this a field shows so little of its text that a person can't read it.
constexpr int fewestCharacters = 8;

QString textOf(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
    if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) return box->title();
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget))
        return field->text().isEmpty() ? field->placeholderText() : field->text();
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) return combo->currentText();
    return widget.accessibleName();
}

bool labelIsCut(const QLabel& label)
{
    if (label.text().isEmpty() || label.property("elides").toBool()) return false;
    if (label.wordWrap()) return label.height() < label.heightForWidth(label.width());
    return label.width() < label.sizeHint().width() || label.height() < label.sizeHint().height();
}

bool fieldIsCut(const QLineEdit& field)
{
    const QFontMetrics metrics = field.fontMetrics();
    int needed = metrics.averageCharWidth() * fewestCharacters;
    if (field.text().isEmpty()) needed = metrics.horizontalAdvance(field.placeholderText());
    for (const auto* inside : field.findChildren<QToolButton*>())
        if (inside->isVisible()) needed += inside->width();
    constexpr int frame = 8;
    return field.width() < needed + frame || field.height() < field.minimumSizeHint().height();
}

bool itemsAreCut(const QAbstractItemView& view)
{
    if (view.textElideMode() == Qt::ElideMiddle || !view.model()) return false;
    if (const auto* tree = qobject_cast<const QTreeView*>(&view)) {
        for (int column = 0; column < tree->model()->columnCount(); ++column)
            if (tree->columnWidth(column) < view.sizeHintForColumn(column)) return true;
        return false;
    }
    const auto* list = qobject_cast<const QListView*>(&view);
    return list && list->viewport()->width() < view.sizeHintForColumn(0);
}

bool headerIsCut(const QHeaderView& header)
{
    for (int section = 0; section < header.count(); ++section) {
        const QString text = header.model()->headerData(section, Qt::Horizontal).toString();
        if (text.isEmpty()) continue;
        if (header.sectionSize(section) < header.sectionSizeHint(section)) return true;
    }
    return false;
}

/// What no longer fits into a menu bar or tool bar goes behind a button at its end.
bool barIsCut(const QWidget& bar)
{
    if (const auto* menus = qobject_cast<const QMenuBar*>(&bar)) {
        for (auto* action : menus->actions())
            if (!menus->rect().contains(menus->actionGeometry(action))) return true;
        return false;
    }
    const auto* tools = qobject_cast<const QToolBar*>(&bar);
    if (!tools) return false;
    for (auto* action : tools->actions()) {
        const QWidget* button = tools->widgetForAction(action);
        if (action->isVisible() && button && !button->isVisible()) return true;
    }
    return false;
}

/// A part of a field, for which the field answers.
bool belongsToAField(const QWidget& widget)
{
    const QWidget* owner = widget.parentWidget();
    return qobject_cast<const QComboBox*>(owner) || qobject_cast<const QAbstractSpinBox*>(owner) ||
           qobject_cast<const QLineEdit*>(owner);
}

bool isCut(const QWidget& widget)
{
    if (belongsToAField(widget)) return false;
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) return labelIsCut(*label);
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget)) return fieldIsCut(*field);
    if (const auto* card = qobject_cast<const TaskCard*>(&widget))
        return card->height() < card->heightForWidth(card->width());
    if (const auto* header = qobject_cast<const QHeaderView*>(&widget))
        return header->orientation() == Qt::Horizontal && headerIsCut(*header);
    if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget))
        return itemsAreCut(*view);
    if (qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
        qobject_cast<const QAbstractSpinBox*>(&widget) || qobject_cast<const QTabBar*>(&widget) ||
        qobject_cast<const QGroupBox*>(&widget) || qobject_cast<const QMenu*>(&widget)) {
        const QSize needed = qobject_cast<const QMenu*>(&widget) ? widget.sizeHint()
                             : qobject_cast<const QGroupBox*>(&widget)
                                 ? widget.minimumSizeHint()
                                 : widget.sizeHint().boundedTo(widget.maximumSize());
        return widget.width() < needed.width() || widget.height() < needed.height();
    }
    return barIsCut(widget);
}

bool scrolls(const QWidget& widget, const QWidget& window)
{
    for (const QWidget* above = widget.parentWidget(); above && above != &window;
         above = above->parentWidget())
        if (qobject_cast<const QAbstractScrollArea*>(above)) return true;
    return false;
}

bool reachesOut(const QWidget& widget, const QWidget& window)
{
    if (scrolls(widget, window)) return false;
    const QRect place(widget.mapTo(&window, QPoint()), widget.size());
    return !window.rect().contains(place);
}

std::string lineOf(const QWidget& widget, const char* what)
{
    const QString size = QStringLiteral("%1x%2, hint %3x%4")
                             .arg(widget.width())
                             .arg(widget.height())
                             .arg(widget.sizeHint().width())
                             .arg(widget.sizeHint().height());
    return std::string(widget.metaObject()->className()) + " \"" + textOf(widget).toStdString() +
           "\" (" + size.toStdString() + ") " + what;
}

} // namespace

std::vector<std::string> cutTexts(QWidget& window)
{
    std::vector<std::string> found;
    if (isCut(window)) found.push_back(lineOf(window, "is cut"));
    for (const auto* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->window() != &window) continue;
        if (isCut(*widget)) found.push_back(lineOf(*widget, "is cut"));
        if (reachesOut(*widget, window)) found.push_back(lineOf(*widget, "reaches out"));
    }
    return found;
}

} // namespace desktop
