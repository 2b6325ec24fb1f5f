#include "hosts/common/filters/highlights.h"
#include "hosts/common/look/notice_bar.h"
#include "hosts/viewer/session/session_keeper.h"
#include "hosts/viewer/window/main_window.h"

namespace viewer {

namespace {

constexpr int mostFailures = 5; ///< that the notice names

} // namespace

void MainWindow::makeSession()
{
    session_ = std::make_unique<SessionKeeper>(
        SessionKeeper::Parts{document_, *model_, *table_, *highlights_},
        dataFolder_ + QStringLiteral("/sessions"));
    connect(session_.get(), &SessionKeeper::changed, this, [this] {
        if (session_->hidesRows())
            showNotice();
        else
            notice_->renew();
        updateActions();
    });
}

void MainWindow::showNotice()
{
    notice_->say([this] { return noticeText(); });
}

/// Rows that are hidden without a word mislead who looks for what went wrong: the notice tells of
/// them until the filter is touched.
QString MainWindow::noticeText() const
{
    QStringList lines = failures_.mid(0, mostFailures);
    if (failures_.size() > mostFailures)
        lines << tr("and %1 more").arg(failures_.size() - mostFailures);
    if (session_->hidesRows())
        lines << tr("The filter of last time is on and hides rows; Ctrl+Shift+A shows all.");
    return lines.join(QLatin1Char('\n'));
}

} // namespace viewer
