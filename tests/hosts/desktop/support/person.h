#pragma once

#include <QKeySequence>
#include <QModelIndex>
#include <QPoint>
#include <QStringList>

#include <functional>

class QAbstractButton;
class QAbstractItemView;
class QAction;
class QMainWindow;
class QTreeView;
class QWidget;

namespace desktop {

/// What a person does with keys and mouse. All goes to the window that the system would give it to:
/// what is hidden, covered, disabled or behind a modal window does not hear of it.
namespace person {

/// Presses keys where the focus is.
void press(const QKeySequence& keys);
void type(const QString& text);

/// Clicks a field and types over what is in it, or pastes a text over it.
void typeInto(QWidget& field, const QString& text);
void pasteInto(QWidget& field, const QString& text);

/// Clicks the middle of a widget, or a place in it.
void click(QWidget& widget);
void click(QWidget& widget, const QPoint& place);

/// Clicks the button of a caption, whose mnemonic does not count. Raises std::runtime_error where
/// none is to be seen.
void clickButton(const QWidget& inside, const QString& caption);
QAbstractButton& button(const QWidget& inside, const QString& caption);

/// Clicks a row of a view, or its check box, after scrolling to it.
void clickRow(QAbstractItemView& view, const QModelIndex& row);
void clickTick(QAbstractItemView& view, const QModelIndex& row);

/// Opens the menu that holds an entry, and those above it, and clicks it.
void choose(QMainWindow& window, QAction& entry);

/// Answers the next modal dialog, which runs before the call that opens it returns.
void answerNextDialog(std::function<void(QWidget& dialog)> answer);

/// The same for the next menu or list that pops up.
void answerNextPopup(std::function<void(QWidget& popup)> answer);

/// Answers the next file dialog with a path.
void pickNext(const std::string& path);

/// Picks a language by the beginning of its name from the menu of the about box, and closes the
/// box; false where it is not offered.
bool chooseLanguage(const QString& name);

/// Waits for no dialog or menu any more.
void leave();

} // namespace person

/// The row at a path of names in a model; invalid where there is none.
QModelIndex rowAt(const QAbstractItemModel& model, const QStringList& names);

/// Handles events until something holds, for a while at most; false when it never did.
bool waitUntil(const std::function<bool()>& holds, int milliseconds = 5000);

} // namespace desktop
