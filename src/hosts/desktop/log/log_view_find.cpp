#include "console/list_view.h"
#include "hosts/desktop/log/find_bar.h"
#include "hosts/desktop/log/list_table.h"
#include "hosts/desktop/log/log_view.h"
#include "hosts/desktop/log/time_search.h"
#include "hosts/desktop/sheets/typed_moment.h"
#include "runtime/run_time_error.h"

#include <algorithm>

namespace desktop {

void LogView::startFind()
{
    findBar_->startFind();
    takeFind();
}

/// Looks for what stands in the bar. An expression that is none yet leaves no hit.
void LogView::takeFind()
{
    const TextCondition condition = findBar_->condition();
    try {
        found_ = TextMatcher(codePage_, condition);
    } catch (const RunTimeError& error) {
        found_ = {};
        marks_.setFound({});
        findHits();
        return findBar_->say([why = QString::fromStdString(error.description())] { return why; });
    }
    marks_.setFound(condition);
    findHits();
}

void LogView::keepFound()
{
    if (!findBar_->isVisible() || findBar_->condition().text.isEmpty()) startFind();
    findBar_->keep();
}

void LogView::endFind()
{
    findBar_->hide();
    marks_.setFound({});
    overview_->setRows(OverviewMark::hit, {});
    table_->setFocus();
}

void LogView::startGoToTime()
{
    findBar_->startGoToTime();
}

void LogView::findHits()
{
    hits_.clear();
    if (model_.list() && !found_.empty())
        for (int row = 0; row < model_.rowCount(); ++row)
            if (rowHolds(*model_.list(), model_.positionOfRow(row), found_)) hits_.push_back(row);
    overview_->setRows(OverviewMark::hit, findBar_->isVisibleTo(this) ? hits_ : std::vector<int>());
    showHitCount();
}

void LogView::showHitCount()
{
    const int row = table_->currentIndex().row();
    const auto found = std::lower_bound(hits_.begin(), hits_.end(), row);
    const bool current = found != hits_.end() && *found == row;
    findBar_->showHits(current ? static_cast<int>(found - hits_.begin()) + 1 : 0,
                       static_cast<int>(hits_.size()));
}

void LogView::findFrom(int direction)
{
    const QString text = findBar_->condition().text;
    if (text.isEmpty()) return startFind();
    if (hits_.empty()) return emit said(tr("\"%1\" is not in these lines.").arg(text));
    goOn(hits_, direction);
}

/// Goes to the next one of some rows, or the one before, and on from the other end.
void LogView::goOn(const std::vector<int>& rows, int direction)
{
    const int row = table_->currentIndex().row();
    bool wrapped = false;
    auto at = rows.begin();
    if (direction > 0) {
        at = std::upper_bound(rows.begin(), rows.end(), row);
        wrapped = at == rows.end();
        if (wrapped) at = rows.begin();
    } else {
        at = std::lower_bound(rows.begin(), rows.end(), row);
        wrapped = at == rows.begin();
        at = wrapped ? std::prev(rows.end()) : std::prev(at);
    }
    table_->goTo(*at);
    if (wrapped)
        emit said(direction > 0 ? tr("Went on from the top.") : tr("Went on from the end."));
}

void LogView::goToMark(OverviewMark mark, int direction)
{
    const std::vector<int>& rows = overview_->rows(mark);
    if (rows.empty())
        return emit said(mark == OverviewMark::error ? tr("No line on show tells of an error.")
                                                     : tr("No line on show tells of a warning."));
    goOn(rows, direction);
}

void LogView::goToTime(const QString& time)
{
    auto wanted = typedTime(time.toStdString());
    // In the words of another language, as where a gather asks for a time.
    if (const auto typed = timeTyped(time); !wanted && typed)
        wanted = typed->toString(QStringLiteral("HH:mm:ss")).toStdString();
    if (!wanted) return findBar_->say([] { return tr("Type a time such as 15:23"); });
    const int row = rowAtTime(model_, columns_.timeStamp, *wanted, table_->currentIndex().row());
    if (row < 0) return findBar_->say([time] { return tr("No line at %1 or later").arg(time); });
    table_->goTo(row);
    findBar_->say([line = lineOfRow(row)] { return tr("Line %1").arg(line); });
}

void LogView::toggleBookmark()
{
    const int row = table_->currentIndex().row();
    if (!bookmarks_ || row < 0) return;
    const int line = lineOfRow(row);
    bookmarks_->toggle(line, model_.text(row, columns_.timeStamp));
    showBookmarks();
    table_->viewport()->update();
    emit said(bookmarks_->has(line) ? tr("Line %1 is marked.").arg(line)
                                    : tr("Line %1 is not marked any more.").arg(line));
}

void LogView::goToBookmark(int direction)
{
    if (!bookmarks_ || bookmarks_->count() == 0)
        return emit said(tr("No line of this log is marked. Ctrl+B marks one."));
    const int count = model_.rowCount();
    const int current = table_->currentIndex().row();
    for (int step = 1; step <= count; ++step) {
        const int row = ((current + direction * step) % count + count) % count;
        if (bookmarks_->has(lineOfRow(row))) return table_->goTo(row);
    }
    emit said(tr("The marked lines are hidden by the filter."));
}

void LogView::clearBookmarks()
{
    if (!bookmarks_) return;
    bookmarks_->clear();
    showBookmarks();
    table_->viewport()->update();
    emit said(tr("No line of this log is marked any more."));
}

} // namespace desktop
