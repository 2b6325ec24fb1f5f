#pragma once

#include "hosts/desktop/support/test_window.h"

#include <QDateTime>
#include <QPointer>

class QAbstractItemModel;

namespace desktop {

class SheetDialog;

/// A sheet that a command opened, and a person's way through its pages. It is cancelled at the end.
/// Every step raises std::runtime_error when what it presses is not there.
class SheetWalk {
public:
    /// Opens the sheet of a menu item of the tool.
    SheetWalk(TestWindow& shown, const char* menuItem);
    ~SheetWalk();
    SheetWalk(const SheetWalk&) = delete;
    SheetWalk& operator=(const SheetWalk&) = delete;

    SheetDialog& dialog();

    /// Presses Next or Finish, whichever is offered; Back.
    void forward();
    void back();

    /// Chooses an option of the page, from 0.
    void choose(int option);

    /// Opens the first node of the page's tree; ticks a node below it.
    void openFirstGroup();
    void tickALeaf();

    /// Picks the page's date and time.
    void setStart(const QDateTime& start);

    /// How far the whole work of the page has come, from 0 to 1.
    double gathered();

    /// Lets time go by until the page at a place is shown.
    void waitFor(int place);

private:
    QAbstractItemModel& nodes();

    QPointer<SheetDialog> dialog_;
};

} // namespace desktop
