#pragma once

#include "hosts/viewer/document/document.h"
#include "hosts/viewer/table/row_copy.h"
#include "hosts/viewer/table/row_table.h"
#include "hosts/viewer/window/commands.h"

#include <QMainWindow>

#include <functional>
#include <map>
#include <optional>

class ElidedLabel;
class NoticeBar;
class QLabel;
class QProgressBar;
class QSettings;
class QSplitter;
class QStackedWidget;
class QToolBar;

namespace viewer {

class FacetPane;
class FilterBar;
class TimeStrip;

/// The viewer's window: the rows of all opened sources, and what is done with them.
class MainWindow final : public QMainWindow {
    Q_OBJECT

public:
    /// `settings` outlives the window.
    explicit MainWindow(QSettings& settings, QWidget* parent = nullptr);
    ~MainWindow() override;

    Document& document() { return document_; }
    RowModel& model() { return *model_; }
    RowTable& table() { return *table_; }
    FacetPane& facets() { return *facets_; }
    FilterBar& filterBar() { return *filterBar_; }
    TimeStrip& timeStrip() { return *times_; }

    /// The notice on show; the empty text for none.
    QString notice() const;

    /// Does what a command does, if it can be done now.
    void run(Command command);
    QAction& action(Command command) { return *actions_.at(command); }

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void makeActions();
    void makeToolBar();
    void makePanes();
    void makeStatusBar();
    void connectParts();
    void perform(Command command);
    void performFilter(Command command);
    void narrowToCurrent(timeline::Column column, bool hide);
    void zoomTimes(bool in);
    void changeFilter(const std::function<void(RowFilter&)>& changing);
    void showTexts();
    void updateActions();
    void updateStatus();
    std::optional<timeline::Moment> currentMoment();
    void sayFailure(const QString& sentence);
    void openFiles();
    void openFolder();
    void copy(CopyForm form);
    void setTimes(TimeForm form);
    void markTime();
    void offerColumns();
    void offerRowMenu(const QPoint& at);
    void setTextSize(int step);
    void setTheme(const char* name);
    void showAbout();

    QSettings& settings_;
    Document document_;
    RowModel* model_ = nullptr;
    RowTable* table_ = nullptr;
    FacetPane* facets_ = nullptr;
    FilterBar* filterBar_ = nullptr;
    TimeStrip* times_ = nullptr;
    QSplitter* splitter_ = nullptr;
    NoticeBar* notice_ = nullptr;
    QStackedWidget* pages_ = nullptr;
    QLabel* empty_ = nullptr;
    ElidedLabel* status_ = nullptr;
    QProgressBar* progress_ = nullptr;
    QToolBar* toolBar_ = nullptr;
    QStringList failures_;
    int textStep_ = 0; ///< from the usual size of letters
    std::map<Command, QAction*> actions_;
    std::map<CommandMenu, QMenu*> menus_;
};

} // namespace viewer
