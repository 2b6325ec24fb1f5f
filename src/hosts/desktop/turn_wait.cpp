#include "hosts/desktop/turn_wait.h"

#include "runtime/run_time_error.h"

#include <QApplication>
#include <QEventLoop>
#include <QMessageBox>
#include <QWidget>

#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace desktop {

namespace {

/// What came of a wait so far.
struct Wait {
    QEventLoop loop;
    std::optional<SiteTurn> turn;
    std::exception_ptr failure;
    QString notice;

    bool over() const { return turn || failure; }
};

/// What the thread that waits tells goes by this to the window's thread, until that listens no
/// more: what it tells then is lost, and a turn goes with it.
class Line {
public:
    explicit Line(Wait& wait) : wait_(&wait) {}

    void tell(std::function<void(Wait&)> what)
    {
        const std::lock_guard lock(mutex_);
        if (!wait_) return;
        QMetaObject::invokeMethod(
            &wait_->loop,
            [wait = wait_, what = std::move(what)] {
                what(*wait);
                wait->loop.quit();
            },
            Qt::QueuedConnection);
    }

    void hangUp()
    {
        const std::lock_guard lock(mutex_);
        wait_ = nullptr;
    }

private:
    std::mutex mutex_;
    Wait* wait_;
};

void waitInThread(const std::string& siteFolder, Line& line)
try {
    const auto notice = [&line](const std::string& text) {
        line.tell([text](Wait& wait) { wait.notice = QString::fromStdString(text); });
    };
    const auto turn =
        std::make_shared<SiteTurn>(siteFolder, SiteTurn::usualPatience, SiteTurn::Notice(notice));
    line.tell([turn](Wait& wait) { wait.turn.emplace(std::move(*turn)); });
} catch (...) {
    line.tell([failure = std::current_exception()](Wait& wait) { wait.failure = failure; });
}

QString asSentence(QString clause)
{
    clause[0] = clause[0].toUpper();
    return clause + QLatin1Char('.');
}

/// Until the wait is over, or the person gives it up.
void waitBehindABox(Wait& wait, QWidget* window)
{
    QApplication::setOverrideCursor(Qt::ArrowCursor);
    QMessageBox box(QMessageBox::NoIcon, window ? window->windowTitle() : QString(),
                    asSentence(wait.notice), QMessageBox::Cancel, window);
    box.setTextFormat(Qt::PlainText);
    QObject::connect(&box, &QMessageBox::finished, &wait.loop, &QEventLoop::quit);
    // No other window of the program begins a change while one waits.
    box.setWindowModality(Qt::ApplicationModal);
    box.show();
    if (!wait.over()) wait.loop.exec();
    QApplication::restoreOverrideCursor();
}

/// Without waiting; nothing when another program has the turn, or there is another reason.
std::optional<SiteTurn> turnAtOnce(const std::string& siteFolder)
try {
    return SiteTurn(siteFolder, std::chrono::milliseconds(0));
} catch (const RunTimeError&) {
    return std::nullopt;
}

} // namespace

std::optional<SiteTurn> waitForTurn(const std::string& siteFolder, QWidget* window)
{
    if (auto turn = turnAtOnce(siteFolder)) return turn;
    Wait wait;
    const auto line = std::make_shared<Line>(wait);
    try {
        std::thread([line, siteFolder] { waitInThread(siteFolder, *line); }).detach();
    } catch (const std::system_error&) {
        return SiteTurn(siteFolder); // no thread can be had
    }
    // What the person does meanwhile waits too, but for what the box is asked.
    wait.loop.exec(QEventLoop::ExcludeUserInputEvents);
    if (!wait.over() && !wait.notice.isEmpty()) waitBehindABox(wait, window);
    line->hangUp();
    if (wait.failure) std::rethrow_exception(wait.failure);
    return std::move(wait.turn);
}

} // namespace desktop
