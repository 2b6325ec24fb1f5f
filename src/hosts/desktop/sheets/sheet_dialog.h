#pragma once

#include "console/open_sheet.h"
#include "hosts/common/look/interface_language.h"

#include <QDialog>

#include <functional>
#include <map>
#include <memory>

class NoticeBar;
class QPushButton;
class QStackedWidget;
class QTabBar;
class QTimer;
class RunTimeError;

namespace desktop {

class PageAddition;
class PageWidget;

/// Shows a sheet of the console: a wizard with its buttons, or a plain sheet with OK and Apply.
///
/// It goes by itself when the sheet is closed and no work of its pages is under way any more.
class SheetDialog final : public QDialog, private SheetObserver {
    Q_OBJECT

public:
    explicit SheetDialog(std::shared_ptr<OpenSheet> sheet, QWidget* parent = nullptr);
    ~SheetDialog() override;

    OpenSheet& sheet() { return *sheet_; }

    /// Says in a sentence above the page what was not done, until another page comes; a null one
    /// has nothing more to say.
    void say(const LiveSentence& sentence);

    /// What is said on every page that has nothing else to say.
    void alwaysSay(LiveSentence sentence);

    /// Escape and the window's own cross: asks the pages, as Cancel does.
    void reject() override;

    /// Runs each tick of a timer of the page on show; null: ticks run by themselves.
    std::function<void(const SheetPage& page, Timer& timer, const std::function<void()>& run)>
        aroundTick;

    /// Runs what may change the server: a wizard's Next and Finish, OK and Apply. What it raises is
    /// said above the page. Null: they run by themselves.
    std::function<void(const std::function<void()>& run)> aroundChange;

    /// Makes what the window adds to a page that is shown for the first time; null for nothing.
    std::function<PageAddition*(SheetPage& page)> additionTo;

    /// Tells in the window's own words what a page raised; a null one leaves it to the sheet.
    std::function<LiveSentence(const SheetPage& page, const RunTimeError& error)> explain;

signals:
    /// The person cancels, on the page on show.
    void cancelling();

    /// The person has done something with the sheet, and the tool has done its part.
    void acted();

    /// The sheet is closed and none of its pages is at work.
    void over();

    /// The person asks for help on the page on show, by its topic in the manual.
    void helpAsked(int topic);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void pageShown(OpenSheet& sheet) override;
    void buttonsChanged(OpenSheet& sheet) override;
    void closed(OpenSheet& sheet) override;

    void makeButtons();
    void showPage();
    void showButtons();
    bool finishEditing();
    void act(const std::function<void()>& what);
    void cancel();
    void tick(Timer& timer);
    void runTimers();

    std::shared_ptr<OpenSheet> sheet_;
    NoticeBar* notice_ = nullptr;
    LiveSentence always_;
    QTabBar* tabs_ = nullptr;
    QStackedWidget* pages_ = nullptr;
    std::map<int, PageWidget*> shown_; ///< by position
    std::map<Timer*, QTimer*> timers_;
    QPushButton* back_ = nullptr;
    QPushButton* next_ = nullptr;
    QPushButton* finish_ = nullptr;
    QPushButton* ok_ = nullptr;
    QPushButton* apply_ = nullptr;
    QPushButton* cancel_ = nullptr;
    QPushButton* help_ = nullptr;
    int calls_ = 0;
    bool gone_ = false;
};

} // namespace desktop
