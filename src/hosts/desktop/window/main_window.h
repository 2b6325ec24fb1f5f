#pragma once

#include "core/trapped_error_listener.h"
#include "hosts/common/look/interface_language.h"
#include "hosts/desktop/new_logs_signal.h"
#include "hosts/desktop/sheets/gather_notice.h"
#include "hosts/desktop/sheets/undone.h"
#include "hosts/desktop/window/commands.h"
#include "hosts/desktop/window/filter_files.h"

#include <QMainWindow>

#include <map>
#include <optional>
#include <string>

class ElidedLabel;
class NoticeBar;
class QMenu;
class QSettings;
class QStackedWidget;
class QToolBar;

namespace desktop {

class ConsolePane;
class OpenTool;
class SheetDialog;
class StartPage;

/// The console's window: menus, tool bar, panes and status bar, over the tool that is open.
class MainWindow final : public QMainWindow {
    Q_OBJECT

public:
    /// `settings` outlives the window, which opens without a tool.
    explicit MainWindow(QSettings& settings);
    ~MainWindow() override;

    /// Shows a tool, loading it, in the place of the one before. `tool` outlives the window or the
    /// next call; null shows none.
    void setTool(OpenTool* tool);

    /// Says in a sentence what went wrong and what to do about it.
    void showProblem(LiveSentence sentence);

    /// The sentence that is said now; empty for none.
    QString problem() const;

    /// Says in the status bar what the tool waits for, and paints that at once.
    void sayWaiting(const std::string& clause);

    /// Null while no tool is open.
    ConsolePane* pane() { return pane_; }

    /// What the tool said last in the status bar.
    QString statusText() const;

    /// The action of a command, on offer or not.
    QAction& action(Command command) { return *actions_.at(command); }

    /// The action of a menu item that the tool declares; null for one that is not offered.
    QAction* consoleAction(const std::string& name);

    /// Opens the node of a key, below those that must be opened for it; false when there is none.
    bool showNode(const std::string& key);

    /// Does what a command stands for; nothing where it is not on offer.
    void run(Command command);

    /// Ends the program without asking: work that runs is cancelled as by its button, a sheet is
    /// cancelled, boxes go. The event loop ends when the work has come to its end.
    void end();

    /// A box of the tool's was shown.
    void messageShown() { gathers_.messageShown(); }

signals:
    /// The person wants another site, in a folder of the machine; a sample server made in one; a
    /// topic of the manual.
    void siteAsked(const QString& folder);
    void sampleAsked(const QString& folder);
    void helpAsked(int topic);

    /// The person wants to read a file of the machine.
    void fileAsked(const QString& path);

    /// The same, in the viewer.
    void viewerAsked(const QString& path);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    static constexpr int sayMilliseconds = 6000; ///< how long the status bar keeps a sentence

    void makeActions();
    void makeMenus();
    void makeToolBar();
    void makeStatusBar();
    void connectPane();
    void rebuildConsoleItems();
    void rebuildRecentSites();
    void updateActions();
    void updateTitle();
    void refresh();
    void afterCall();
    void change(const std::string& item, const std::function<void()>& run);
    void watchSheet(SheetDialog& dialog);
    void tellUndone(SheetDialog* dialog);
    void sayWhereThePersonIs(SheetDialog* dialog, const LiveSentence& sentence);
    void checkSite();
    void showTexts();
    std::int32_t spokenByTool() const;
    void followLanguage();
    QString languageProblem() const;
    void sayReadOnly();
    void sayWithoutDatabase(const std::string& why);
    void sayLanguage();
    void sayToolLog();
    void sayUnlistedLogs();
    void runInLog(Command command);
    void runInTable(Command command);
    QString fileOfLog(const std::string& key) const;
    void chooseTheme(Command command);
    void changeTextSize(int step);
    bool mayLeaveSite();
    void cancelWork();
    void pickSite();
    void pickSampleFolder();
    void showKeys();
    void showAbout();

    InterfaceLanguage language_;
    std::int32_t spoken_ = 0; ///< what `spokenByTool` was when the texts on show were made
    QSettings& settings_;
    FilterFiles filterFiles_;
    OpenTool* tool_ = nullptr;
    ConsolePane* pane_ = nullptr;
    NoticeBar* notice_ = nullptr;
    QStackedWidget* centre_ = nullptr;
    StartPage* start_ = nullptr;
    ElidedLabel* status_ = nullptr;
    ElidedLabel* siteName_ = nullptr;
    QToolBar* toolBar_ = nullptr;
    std::map<CommandMenu, QMenu*> menus_;
    QMenu* recent_ = nullptr;
    Undone undone_;
    std::optional<TrappedErrorListener> listener_; ///< of `tool_`, for `undone_`
    NewLogsSignal newLogs_;
    GatherNotice gathers_;
    bool sample_ = false;      ///< what is open is a sample server
    std::string unlistedLogs_; ///< why, as it was told
    bool closing_ = false;     ///< as soon as the work at hand is done
    std::map<Command, QAction*> actions_;
    std::map<std::string, QAction*> consoleActions_;
};

} // namespace desktop
