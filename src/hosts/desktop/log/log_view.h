#pragma once

#include "hosts/common/filters/highlights.h"
#include "hosts/common/look/interface_language.h"
#include "hosts/desktop/log/bookmarks.h"
#include "hosts/desktop/log/list_model.h"
#include "hosts/desktop/log/log_columns.h"
#include "hosts/desktop/log/log_growth.h"
#include "hosts/desktop/log/overview_strip.h"
#include "hosts/desktop/log/text_matcher.h"

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
class GrowthBar;
class ListTable;
class LogDelegate;
class TooLargePane;

/// The reader of one log: its lines, with find, filter, bookmarks and the details of a line.
class LogView final : public QWidget {
    Q_OBJECT

public:
    /// `settings` outlives the view.
    LogView(const CodePage& codePage, QSettings& settings, QWidget* parent = nullptr);

    /// Shows a list that the console has filled. `log` names the log for its bookmarks; `file` is
    /// where it lies on this machine, and empty where that is not known.
    void show(ListView& list, const QString& log, const QString& file = {});

    /// Shows no list any more: the console is about to change it.
    void leave();

    /// Shows headers again that the console has given other texts. Lines, filter and marks stay.
    void renewHeaders();

    ListModel& model() { return model_; }
    ListTable& table() { return *table_; }
    FindBar& findBar() { return *findBar_; }
    FilterBar& filterBar() { return *filterBar_; }
    OverviewStrip& overview() { return *overview_; }
    GrowthBar& growthBar() { return *growthBar_; }
    TooLargePane& tooLarge() { return *tooLarge_; }

    /// What takes the focus of the whole view: the lines, or the button where there are none.
    QWidget& mainPart();

    /// Whether lines are shown as they come to the log, while the last one is the current one. The
    /// tool then reads the log again each time it has grown. It is off at first.
    bool following() const;
    void setFollowing(bool following);

    /// Opens the log in the viewer.
    void openInViewer();

    /// Open the bar for a text to find, for a time to go to, and for a filter.
    void startFind();
    void startGoToTime();
    void startFilter();

    /// Go to the next hit, or the one before, and on from the other end.
    void findNext() { findFrom(1); }
    void findPrevious() { findFrom(-1); }

    /// Keeps the text that is looked for marked in a colour of its own, or opens the bar for one.
    void keepFound();

    /// The texts that are kept so.
    const std::vector<Highlights::Kept>& kept() const { return marks_.kept(); }

    /// Go to the next line of an error or a warning, or the one before, and on from the other end.
    void nextError() { goToMark(OverviewMark::error, 1); }
    void previousError() { goToMark(OverviewMark::error, -1); }
    void nextWarning() { goToMark(OverviewMark::warning, 1); }
    void previousWarning() { goToMark(OverviewMark::warning, -1); }

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
    /// The log is to be read again.
    void readAsked();
    /// The log, a file of this machine, is to be opened in the viewer.
    void viewerAsked(const QString& file);
    void followed(bool on);

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
    void takeFind();
    void findHits();
    void findFrom(int direction);
    void showHitCount();
    void goToBookmark(int direction);
    void goToMark(OverviewMark mark, int direction);
    void goOn(const std::vector<int>& rows, int direction);
    void offerRowMenu(const QPoint& at);
    void connectGrowth();
    void showFile(int lines, const QString& file);
    void growthChanged();
    void showGrowth();
    LiveSentence growthSentence() const;
    void readAgain();
    bool atEnd() const;
    void goToEnd();

    CodePage codePage_;
    QSettings& settings_;
    ListModel model_;
    LogColumns columns_;
    QString log_;  ///< on show, or left last
    int line_ = 0; ///< that it was left at
    std::uint32_t position_ =
        0; ///< in the list, of the row that a filter was changed at; 0 for none
    std::optional<Bookmarks> bookmarks_;
    Highlights marks_;
    TextMatcher found_;     ///< what is looked for
    std::vector<int> hits_; ///< rows that have it, from the top
    LogGrowth growth_;
    QString file_; ///< of the log on show
    ListTable* table_ = nullptr;
    TooLargePane* tooLarge_ = nullptr;
    GrowthBar* growthBar_ = nullptr;
    LogDelegate* delegate_ = nullptr;
    OverviewStrip* overview_ = nullptr;
    FindBar* findBar_ = nullptr;
    FilterBar* filterBar_ = nullptr;
    DetailsPane* details_ = nullptr;
    QSplitter* splitter_ = nullptr;
};

} // namespace desktop
