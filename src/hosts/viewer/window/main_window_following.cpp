#include "hosts/common/look/notice_bar.h"
#include "hosts/viewer/window/main_window.h"

#include <QStatusBar>

namespace viewer {

namespace {

constexpr int saidFor = 8000; ///< milliseconds

} // namespace

void MainWindow::connectFollowing()
{
    connect(&document_, &Document::rowsCame, this, &MainWindow::updateStatus);
    connect(&document_, &Document::followingChanged, this, &MainWindow::updateStatus);
    connect(&document_, &Document::followRefused, this, [this] {
        notice_->say([] {
            return tr("Nothing that is open can be followed: only logs in files of their own grow. "
                      "Trace databases, cabinets and what comes through a pipe do not.");
        });
    });
    connect(&document_, &Document::followedInPart, this, [this] {
        statusBar()->showMessage(tr("What is no log of its own is shown, and not followed"),
                                 saidFor);
    });
}

} // namespace viewer
