#pragma once

#include "hosts/common/look/interface_language.h"
#include "hosts/desktop/log/list_model.h"
#include "hosts/desktop/window/quiet_observer.h"
#include "text/code_page.h"

#include <QFont>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <string>

class Console;
class QSettings;
class QSplitter;
class QStackedWidget;
class QTreeView;

namespace desktop {

class ListTable;
class LogView;
class ScopeModel;
class SheetDialog;
class TaskPadView;

/// The tree and the result view of one console: shows what the console tells and carries back what
/// the person does.
class ConsolePane final : public QWidget, private QuietObserver {
    Q_OBJECT

public:
    /// `console` and `settings` outlive the pane. `site` names the server for bookmarks.
    ConsolePane(Console& console, const CodePage& codePage, const QString& site,
                QSettings& settings, QWidget* parent = nullptr);
    ~ConsolePane() override;

    /// Does something with the console, and shows afterwards what came of it. While the console is
    /// at work a further call is dropped: it takes one event at a time. A run-time error becomes a
    /// sentence.
    void perform(const std::function<void(Console&)>& call);

    /// The same for a command of the tool, by its item, that may change the server.
    void performChange(const std::string& item, const std::function<void(Console&)>& call);

    /// Runs such a command. Null: it runs by itself.
    std::function<void(const std::string& item, const std::function<void()>& run)> aroundChange;

    /// Where a log lies on this machine, by the key of its node; the empty text where that is not
    /// known. Null: it is known of none.
    std::function<QString(const std::string& key)> fileOfLog;

    /// Whether a call into the console is under way.
    bool busy() const;

    /// Whether a page of a sheet is at work, on show or closed already.
    bool sheetAtWork() const;

    /// The sheet on show; null for none.
    SheetDialog* sheet() const;

    QTreeView& tree() { return *tree_; }
    TaskPadView& taskPad() { return *taskPad_; }

    /// The reader of logs, which is made when it is first asked for.
    LogView& log();

    /// Whether a log is the view on show.
    bool logShown() const;

    /// The font of a log's lines.
    void setTextFont(const QFont& font);

    /// The table on show, of a log or of another list; null when another view is.
    ListTable* table() const;

    /// Shows again what the console has given other texts, such as headers. Rows and marks stay.
    void renewTexts();

    /// What the selected node is called, and the empty text before the first selection.
    QString selectedName() const;

    /// Help on the node, or on the view, that has the focus; else on the tool.
    void askForHelp();

    /// Moves the focus from the tree to the result view, or back.
    void switchPane();

signals:
    /// The tool's text for the status bar; to be painted at once.
    void statusText(const QString& text);
    /// A sentence of the window's own for the status bar.
    void said(const QString& sentence);
    /// What went wrong in a call.
    void failed(const LiveSentence& sentence);
    /// Another node is selected, or its view has come on show.
    void viewChanged();
    /// The console has come to the end of what the person asked for.
    void callDone();
    /// The person wants a log, a file of this machine, in the viewer.
    void viewerAsked(const QString& file);
    /// The person asks for a topic of the manual.
    void helpAsked(int topic);
    /// Before the sheet is on show.
    void sheetMade(SheetDialog* dialog);

    /// The person asks for the menu of the tree, at a point of the screen.
    void treeMenuAsked(const QPoint& point);

private:
    void selectionChanged(View& view) override;
    void viewReset(ResultView& resultView) override;
    void viewFilled(ResultView& resultView) override;
    void statusBarChanged(View& view) override;
    void sheetShown(OpenSheet& sheet) override;
    void handlerFailed(const RunTimeError& error) override;

    void makeTree();
    void makeTaskPad();
    QTreeView& children();
    ListTable& list();
    void followSelection();
    void readLogAgain();
    void treeCurrentChanged(const QModelIndex& current);
    void selectPending();

    Console& console_;
    QString site_;
    CodePage codePage_;
    QSettings& settings_;
    QFont textFont_;
    ScopeModel* scope_ = nullptr;
    ListModel listModel_;
    QSplitter* splitter_ = nullptr;
    QTreeView* tree_ = nullptr;
    QStackedWidget* views_ = nullptr;
    TaskPadView* taskPad_ = nullptr;
    QTreeView* children_ = nullptr; ///< this and the next two: null before they are first shown
    ListTable* list_ = nullptr;
    LogView* log_ = nullptr;
    bool moved_ = false;            ///< the selection, in the call under way
    bool toolSpoke_ = false;        ///< in the status bar, in the call under way
    QPersistentModelIndex pending_; ///< what the person selected and the console has not yet
    QPointer<SheetDialog> sheet_;
};

} // namespace desktop
