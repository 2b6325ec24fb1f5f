#include "hosts/desktop/log/growth_bar.h"
#include "hosts/desktop/log/list_table.h"
#include "hosts/desktop/log/log_view.h"
#include "hosts/desktop/log/too_large_pane.h"
#include "shell/diag_log_view.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QLayout>
#include <QLocale>
#include <QPushButton>
#include <QScrollBar>

#include <algorithm>

namespace desktop {

namespace {

constexpr int shortestInterval = 1000; ///< milliseconds between looks at a log that is followed
constexpr int longestInterval = 30'000;
constexpr qint64 shareOfReading = 10; ///< an interval is so many times as long as a reading

} // namespace

void LogView::connectGrowth()
{
    connect(&growth_, &LogGrowth::changed, this, &LogView::growthChanged);
    connect(growthBar_, &GrowthBar::readAsked, this, &LogView::readAgain);
    connect(growthBar_, &GrowthBar::viewerAsked, this, &LogView::openInViewer);
    connect(growthBar_, &GrowthBar::followed, this, [this](bool on) {
        if (on) goToEnd();
        growthChanged();
        emit followed(on);
    });
    connect(tooLarge_, &TooLargePane::viewerAsked, this, &LogView::openInViewer);
    // Who comes back to the end goes on following. Not from within the move itself.
    const auto moved = [this] {
        if (growthBar_->following() && growth_.newLines() > 0)
            QMetaObject::invokeMethod(this, &LogView::growthChanged, Qt::QueuedConnection);
    };
    connect(table_, &ListTable::currentRowChanged, this, moved);
    connect(table_->verticalScrollBar(), &QScrollBar::valueChanged, this, moved);
}

/// Shows what holds for the log's file, of which so many lines are on show.
void LogView::showFile(int lines, const QString& file)
{
    file_ = file;
    const qint64 size = file.isEmpty() ? 0 : QFileInfo(file).size();
    const bool tooLarge = lines == 0 && size > mdlSnapIn::largestShownLog;
    tooLarge_->setSize(size);
    tooLarge_->setVisible(tooLarge);
    table_->setVisible(!tooLarge);
    overview_->setVisible(!tooLarge);
    growth_.watch(tooLarge ? QString() : file, lines);
    if (growthBar_->following()) goToEnd();
    showGrowth();
}

QWidget& LogView::mainPart()
{
    if (tooLarge_->isHidden()) return *table_;
    return tooLarge_->viewer();
}

bool LogView::following() const
{
    return growthBar_->following();
}

void LogView::setFollowing(bool following)
{
    growthBar_->setFollowing(following);
}

void LogView::openInViewer()
{
    if (!file_.isEmpty()) emit viewerAsked(file_);
}

bool LogView::atEnd() const
{
    const int last = model_.rowCount() - 1;
    const QScrollBar& bar = *table_->verticalScrollBar();
    return last < 0 || (table_->currentIndex().row() == last && bar.value() == bar.maximum());
}

void LogView::goToEnd()
{
    table_->goTo(model_.rowCount() - 1);
}

void LogView::growthChanged()
{
    if (!model_.list()) return;
    const bool more = growth_.newLines() > 0 || growth_.begunAnew();
    // The tool would say in a box that it does not show a log of such a size.
    const bool shown = growth_.size() <= mdlSnapIn::largestShownLog;
    if (following() && more && shown && atEnd()) return readAgain();
    showGrowth();
}

/// A log that takes long to read is read less often.
void LogView::readAgain()
{
    QElapsedTimer taken;
    taken.start();
    emit readAsked();
    growth_.setInterval(static_cast<int>(
        std::clamp<qint64>(taken.elapsed() * shareOfReading, shortestInterval, longestInterval)));
}

void LogView::showGrowth()
{
    const LiveSentence sentence = growthSentence();
    const bool stay = following() && atEnd();
    growthBar_->say(sentence, growth_.size() > mdlSnapIn::largestShownLog);
    growthBar_->setVisible(sentence != nullptr);
    if (!stay) return;
    // The bar takes its room from the lines, the last of which stays in sight.
    layout()->activate();
    goToEnd();
}

/// None where there is nothing to say.
LiveSentence LogView::growthSentence() const
{
    const int lines = growth_.newLines();
    if (growth_.size() > mdlSnapIn::largestShownLog)
        return [] {
            return tr("This log has grown past the %1 bytes that the tool shows.")
                .arg(QLocale().toString(static_cast<qint64>(mdlSnapIn::largestShownLog)));
        };
    if (growth_.begunAnew()) return [] { return tr("This log was begun anew."); };
    if (following() && lines == 0)
        return [] { return tr("Following: lines are shown as they come."); };
    if (lines == 0) return nullptr;
    return [lines, waiting = following()] {
        const QString count = QLocale().toString(lines);
        if (waiting) return tr("%1 new lines wait. Go to the last line to see them.").arg(count);
        return lines == 1 ? tr("1 new line") : tr("%1 new lines").arg(count);
    };
}

} // namespace desktop
