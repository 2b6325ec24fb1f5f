#include "hosts/desktop/support/person.h"

#include "hosts/desktop/support/test_window.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QFileDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <QWindow>

#include <stdexcept>

namespace desktop {

namespace {

constexpr int fieldStart = 12; ///< pixels from a field's edge to its text
constexpr int lookAgain = 5;   ///< milliseconds before another look for a window

/// How often a person has left: what one was waiting for then is no concern of the next one.
int visits = 0;

/// Waits until another window than now is the active one of a kind, and answers it.
void answerNext(QWidget* (*active)(), std::function<void(QWidget& window)> answer,
                QPointer<QWidget> before)
{
    QTimer::singleShot(lookAgain, qApp, [=, visit = visits] {
        if (visit != visits) return;
        QWidget* window = active();
        if (!window || window == before || !window->isVisible())
            return answerNext(active, answer, before);
        answer(*window);
    });
}

/// A dialog that has the focus already, for the keys of the answer.
QWidget* activeDialog()
{
    QWidget* dialog = QApplication::activeModalWidget();
    return dialog && dialog->isActiveWindow() ? dialog : nullptr;
}

/// The window that keys go to. A window system gives the focus back when a menu or a dialog goes,
/// the offscreen one does not.
QWindow& focusWindow()
{
    if (QWidget* popup = QApplication::activePopupWidget()) return *popup->windowHandle();
    const QWindow* current = QGuiApplication::focusWindow();
    if (!current || !current->isVisible()) {
        QWidget* next = QApplication::activeModalWidget();
        for (QWidget* window : QApplication::topLevelWidgets())
            if (!next && window->isVisible() && !window->parentWidget()) next = window;
        if (next) next->activateWindow();
        settle();
    }
    QWindow* window = QGuiApplication::focusWindow();
    if (!window) throw std::runtime_error("no window has the focus");
    return *window;
}

QString plain(QString caption)
{
    return caption.remove(QLatin1Char('&'));
}

/// The menus to open for an entry, outermost first; none where it is in no menu.
QList<QAction*> wayTo(const QAction& entry, const QList<QAction*>& actions)
{
    for (QAction* action : actions) {
        if (action == &entry) return {action};
        if (!action->menu()) continue;
        QList<QAction*> below = wayTo(entry, action->menu()->actions());
        if (!below.empty()) return below.prepend(action), below;
    }
    return {};
}

} // namespace

void person::press(const QKeySequence& keys)
{
    for (int at = 0; at < keys.count(); ++at) {
        const QKeyCombination key = keys[static_cast<uint>(at)];
        QTest::keyClick(&focusWindow(), key.key(), key.keyboardModifiers());
    }
    settle();
}

void person::type(const QString& text)
{
    for (const QChar letter : text) QTest::keyClick(&focusWindow(), letter.toLatin1());
    settle();
}

void person::typeInto(QWidget& field, const QString& text)
{
    click(field, {fieldStart, field.height() / 2});
    press(QKeySequence(QStringLiteral("Ctrl+A")));
    type(text);
}

void person::pasteInto(QWidget& field, const QString& text)
{
    click(field, {fieldStart, field.height() / 2});
    press(QKeySequence(QStringLiteral("Ctrl+A")));
    QGuiApplication::clipboard()->setText(text);
    press(QKeySequence(QStringLiteral("Ctrl+V")));
}

void person::click(QWidget& widget, const QPoint& place)
{
    if (!widget.isVisible()) throw std::runtime_error("what is to be clicked is not on show");
    QWindow* window = widget.window()->windowHandle();
    QTest::mouseClick(window, Qt::LeftButton, {}, widget.mapTo(widget.window(), place));
    settle();
}

void person::click(QWidget& widget)
{
    click(widget, widget.rect().center());
}

QAbstractButton& person::button(const QWidget& inside, const QString& caption)
{
    for (auto* button : inside.findChildren<QAbstractButton*>())
        if (button->isVisible() && plain(button->text()) == caption) return *button;
    throw std::runtime_error("no button " + caption.toStdString());
}

void person::clickButton(const QWidget& inside, const QString& caption)
{
    QAbstractButton& found = button(inside, caption);
    // Of a check box only the box and the words beside it count.
    const int height = found.height();
    click(found, found.isCheckable() ? QPoint(height / 2, height / 2) : found.rect().center());
}

void person::clickRow(QAbstractItemView& view, const QModelIndex& row)
{
    view.scrollTo(row);
    click(*view.viewport(), view.visualRect(row).center());
}

void person::clickTick(QAbstractItemView& view, const QModelIndex& row)
{
    view.scrollTo(row);
    QStyleOptionViewItem option;
    option.initFrom(&view);
    option.rect = view.visualRect(row);
    option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    option.text = row.data().toString();
    const QRect box =
        view.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &view);
    click(*view.viewport(), box.center());
}

void person::choose(QMainWindow& window, QAction& entry)
{
    QList<QAction*> way = wayTo(entry, window.menuBar()->actions());
    if (way.size() < 2) throw std::runtime_error("in no menu: " + entry.text().toStdString());
    QMenuBar& bar = *window.menuBar();
    click(bar, bar.actionGeometry(way.front()).center());
    for (qsizetype at = 1; at < way.size(); ++at) {
        QMenu& menu = *way[at - 1]->menu();
        if (!waitUntil([&] { return menu.isVisible(); }))
            throw std::runtime_error("the menu did not open: " + menu.title().toStdString());
        click(menu, menu.actionGeometry(way[at]).center());
    }
}

void person::answerNextDialog(std::function<void(QWidget& dialog)> answer)
{
    answerNext(activeDialog, std::move(answer), QApplication::activeModalWidget());
}

void person::answerNextPopup(std::function<void(QWidget& popup)> answer)
{
    answerNext(QApplication::activePopupWidget, std::move(answer),
               QApplication::activePopupWidget());
}

bool person::chooseLanguage(const QString& name)
{
    bool chosen = false;
    answerNextDialog([&](QWidget& about) {
        QAbstractButton* list = nullptr;
        for (auto* button : about.findChildren<QPushButton*>())
            if (!button->isDefault()) list = button;
        answerNextPopup([&](QWidget& popup) {
            auto& menu = dynamic_cast<QMenu&>(popup);
            QAction* wanted = nullptr;
            for (QAction* entry : menu.actions())
                if (entry->text().startsWith(name) && !entry->isSeparator()) wanted = entry;
            chosen = wanted != nullptr;
            if (!wanted) return press(Qt::Key_Escape);
            click(menu, menu.actionGeometry(wanted).center());
        });
        click(*list);
        press(Qt::Key_Return);
    });
    press(QKeySequence("Ctrl+F1"));
    return chosen;
}

void person::leave()
{
    ++visits;
}

void person::pickNext(const std::string& path)
{
    answerNextDialog([path](QWidget& dialog) {
        auto& picker = dynamic_cast<QFileDialog&>(dialog);
        auto* name = picker.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        name->setText(QString::fromStdString(path));
        press(Qt::Key_Return);
    });
}

/// What a screen reader is given, where that is not what is shown.
static QString nameOf(const QModelIndex& index)
{
    const QString spoken = index.data(Qt::AccessibleTextRole).toString();
    return spoken.isEmpty() ? index.data().toString() : spoken;
}

QModelIndex rowAt(const QAbstractItemModel& model, const QStringList& names)
{
    QModelIndex at;
    for (const QString& name : names) {
        QModelIndex found;
        for (int row = 0; row < model.rowCount(at) && !found.isValid(); ++row)
            if (nameOf(model.index(row, 0, at)) == name) found = model.index(row, 0, at);
        if (!found.isValid()) return {};
        at = found;
    }
    return at;
}

bool waitUntil(const std::function<bool()>& holds, int milliseconds)
{
    return QTest::qWaitFor(holds, milliseconds);
}

} // namespace desktop
