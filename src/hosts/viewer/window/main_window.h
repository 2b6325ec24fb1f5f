#pragma once

#include "hosts/common/filters/saved_filters.h"
#include "hosts/common/look/interface_language.h"
#include "hosts/viewer/calls/calls.h"
#include "hosts/viewer/document/document.h"
#include "hosts/viewer/files/row_writing.h"
#include "hosts/viewer/table/row_table.h"
#include "hosts/viewer/window/commands.h"

#include <QMainWindow>
#include <QTimer>

#include <functional>
#include <map>
#include <memory>
#include <optional>

class ElidedLabel;
class HelpWindow;
class Highlights;
class NoticeBar;
class QLabel;
class QProgressBar;
class QSettings;
class QSplitter;
class QStackedWidget;
class QToolBar;

namespace viewer {

class CallTabs;
class DetailsPane;
class FacetPane;
class FilterBar;
class FindBar;
class FollowBar;
class MarkList;
class Marks;
class SessionKeeper;
class StripMarks;
class TimeStrip;

/// The viewer's window: the rows of all opened sources, and what is done with them.
class MainWindow final : public QMainWindow {
    Q_OBJECT

public:
    /// `settings` outlives the window. `dataFolder` is where it keeps what is the user's own; where
    /// the settings are for an empty one.
    explicit MainWindow(QSettings& settings, const QString& dataFolder = {},
                        QWidget* parent = nullptr);
    ~MainWindow() override;

    Document& document() { return document_; }
    RowModel& model() { return *model_; }
    RowTable& table() { return *table_; }
    FacetPane& facets() { return *facets_; }
    FindBar& findBar() { return *findBar_; }
    DetailsPane& details() { return *details_; }
    FilterBar& filterBar() { return *filterBar_; }
    FollowBar& followBar() { return *followBar_; }
    TimeStrip& timeStrip() { return *times_; }
    Marks& marks() { return *marks_; }
    MarkList& markList() { return *markList_; }
    CallTabs& callTabs() { return *callTabs_; }
    SessionKeeper& session() { return *session_; }

    /// The folder of the manual, which help opens; without it help says that there is none.
    void setManual(const QString& folder);

    /// The notice on show; the empty text for none.
    QString notice() const;

    /// Writes the rows on show to a file, in the form that its name's ending asks for.
    void exportTo(const QString& file);

    /// Goes to the first row on show at a time or later, as a person types it. False where it is
    /// no time.
    bool goToTime(const QString& time);

    /// Shows what a macro trace of the opened databases turned on; all traces for an empty name.
    void showMacroTrace(const QString& name);

    /// Saves the filter by a name; takes the one in a file. The notice says why where that fails.
    void saveFilter(const QString& name);
    void takeFilter(const QString& file);

    /// Does what a command does, if it can be done now.
    void run(Command command);
    QAction& action(Command command) { return *actions_.at(command); }

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void makeMarks();
    void makeActions();
    void makeToolBar();
    void makePanes();
    void makeCalls();
    void makeStatusBar();
    void connectParts();
    void connectCalls();
    void connectFollowing();
    void performLanguage(Command command);
    void chooseFirstLanguage();
    void updateLanguages();
    void chooseLanguage(const QString& code);
    void perform(Command command);
    void performGo(Command command);
    void performFilter(Command command);
    void goToHit(Direction direction);
    void hitsChanged();
    void goToLevel(Direction direction, std::int8_t level);
    void performSaved(Command command);
    void performMarks(Command command);
    void toggleBookmark(std::size_t place);
    void goToMark(Direction direction);
    bool goToRow(const timeline::IndexRow& row);
    void askForNote();
    void setNote(const timeline::IndexRow& row, const QString& text);
    void showMarks();
    void performCalls(Command command);
    void closeCalls();
    void showThisCall();
    void updateCallActions();
    void rememberCalls();
    void makeSession();
    void showNotice();
    QString noticeText() const;
    void offerMacroTraces();
    void offerSavedFilters();
    void askForFilterName();
    void askForFilterFile();
    void askForTime();
    void askForExport();
    std::unique_ptr<RowWriting> writeRows(RowForm form, std::vector<PlaceRange> places,
                                          std::unique_ptr<RowTarget> target);
    void endExport(bool done);
    void endCopy(bool done, std::size_t copied, std::size_t selected);
    void stopWriting();
    const RowWriting* writing() const;
    QString writingText() const;
    void endFind();
    void currentChanged();
    void narrowToCurrent(timeline::Column column, bool hide);
    std::size_t placeWithValues(std::size_t place);
    void zoomTimes(bool in);
    void changeFilter(const std::function<void(RowFilter&)>& changing);
    void showTexts();
    void updateActions();
    void updateStatus();
    std::optional<timeline::Moment> currentMoment();
    void sayFailure(const QString& sentence);
    void sayFailures();
    void openFiles();
    void openFolder();
    void copy(RowForm form);
    void setTimes(TimeForm form);
    void markTime();
    void offerColumns();
    void offerRowMenu(const QPoint& at);
    void setTextSize(int step);
    void setTheme(const char* name);
    void performHelp(Command command);
    void showHelp();
    void showAbout();

    QSettings& settings_;
    InterfaceLanguage language_;
    QString dataFolder_;
    QString manual_;
    std::unique_ptr<HelpWindow> help_;
    Document document_;
    std::unique_ptr<Marks> marks_;
    std::unique_ptr<StripMarks> stripMarks_;
    std::unique_ptr<Calls> calls_;        ///< which works on the document until it goes
    std::unique_ptr<RowWriting> export_;  ///< of rows of the document; null for none
    std::unique_ptr<RowWriting> copying_; ///< the same for the clipboard
    std::unique_ptr<SessionKeeper> session_;
    RowModel* model_ = nullptr;
    RowTable* table_ = nullptr;
    FacetPane* facets_ = nullptr;
    FilterBar* filterBar_ = nullptr;
    FindBar* findBar_ = nullptr;
    DetailsPane* details_ = nullptr;
    FollowBar* followBar_ = nullptr;
    Highlights* highlights_ = nullptr;
    TimeStrip* times_ = nullptr;
    MarkList* markList_ = nullptr;
    CallTabs* callTabs_ = nullptr;
    QSplitter* rowsAndCalls_ = nullptr;
    QSplitter* splitter_ = nullptr;
    QSplitter* rowsAndDetails_ = nullptr;
    NoticeBar* notice_ = nullptr;
    QStackedWidget* pages_ = nullptr;
    QLabel* empty_ = nullptr;
    ElidedLabel* status_ = nullptr;
    QProgressBar* progress_ = nullptr;
    QToolBar* toolBar_ = nullptr;
    SavedFilters savedFilters_;
    QStringList failures_;
    QTimer failuresToSay_;               ///< runs until those that came are on show
    std::optional<Direction> wishedHit_; ///< that is gone to once it is known
    int textStep_ = 0;                   ///< from the usual size of letters
    std::map<Command, QAction*> actions_;
    std::map<CommandMenu, QMenu*> menus_;
};

} // namespace viewer
