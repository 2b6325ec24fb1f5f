#pragma once

#include "hosts/desktop/log/bookmarks.h"
#include "hosts/desktop/log/list_model.h"
#include "hosts/desktop/log/log_columns.h"

#include <QWidget>

#include <cstdint>
#include <optional>
#include <vector>

class QSettings;
class QSplitter;

namespace desktop {

class DetailsPane;
class FilterBar;
class FindBar;
class ListTable;
class LogDelegate;
class OverviewStrip;

/// The reader of one log: its lines, with find, filter, bookmarks and the details of a line.
class LogView final : public QWidget {
    Q_OBJECT

public:
    /// `settings` outlives the view.
    LogView(const CodePage& codePage, QSettings& settings, QWidget* parent = nullptr);

    /// Shows a list that the console has filled. `log` names the log for its bookmarks.
    void show(ListView& list, const QString& log);

    /// Shows no list any more: the console is about to change it.
    void leave();

    /// Shows headers again that the console has given other texts. Lines, filter and marks stay.
    void renewHeaders();

    ListModel& model() { return model_; }
    ListTable& table() { return *table_; }
    FindBar& findBar() { return *findBar_; }
    FilterBar& filterBar() { return *filterBar_; }
    OverviewStrip& overview() { return *overview_; }

    /// Open the bar for a text to find, for a time to go to, and for a filter.
    void startFind();
    void startGoToTime();
    void startFilter();

    /// Go to the next hit, or the one before, and on from the other end.
    void findNext() { findFrom(1); }
    void findPrevious() { findFrom(-1); }

    /// Goes to the next line at a time or later, as a person types it; the bar says when it is no
    /// time, or no line is that late.
    void goToTime(const QString& time);

    /// Lets every row pass the filter.
    void showAll();

    /// Closes the find bar, or else the filter bar, which takes its filter with it.
    void closeBars();

    /// Marks the current line, or takes its mark away; goes to the next mark, or the one before.
    void toggleBookmark();
    void nextBookmark() { goToBookmark(1); }
    void previousBookmark() { goToBookmark(-1); }
    void clearBookmarks();

    /// Whether all of the current line stands below the table. It is remembered.
    bool detailsShown() const;
    void showDetails(bool shown);

    /// The font of lines and details.
    void setTextFont(const QFont& font);

signals:
    /// A sentence for the status bar.
    void said(const QString& sentence);

private:
    enum class Severity { none, warning, error };

    void makeLines();
    void connectParts();
    Severity severityOfRow(int row) const;
    QVariant decoration(int row, int column, int role) const;
    QVariant spoken(int row, int column) const;
    int lineOfRow(int row) const;
    int rowOfLine(int line) const;
    QString timeOfLine(int line) const;
    void endFind();
    void filterChanged();
    void rowsChanged();
    void showBookmarks();
    QString describeRow(int row) const;
    void findHits();
    void findFrom(int direction);
    void showHitCount();
    void goToBookmark(int direction);
    void offerRowMenu(const QPoint& at);

    CodePage codePage_;
    QSettings& settings_;
    ListModel model_;
    LogColumns columns_;
    QString log_;  ///< on show, or left last
    int line_ = 0; ///< that it was left at
    std::uint32_t position_ =
        0; ///< in the list, of the row that a filter was changed at; 0 for none
    std::optional<Bookmarks> bookmarks_;
    std::vector<int> hits_; ///< rows with the text that is looked for, from the top
    ListTable* table_ = nullptr;
    LogDelegate* delegate_ = nullptr;
    OverviewStrip* overview_ = nullptr;
    FindBar* findBar_ = nullptr;
    FilterBar* filterBar_ = nullptr;
    DetailsPane* details_ = nullptr;
    QSplitter* splitter_ = nullptr;
};

} // namespace desktop
