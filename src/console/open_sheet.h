#pragma once

#include "console/sheet.h"
#include "controls/sheet_page.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

class OpenSheet;
class PlainSheet;
class ScopeItem;
class WizardSheet;

/// Whoever shows a sheet.
class SheetObserver {
public:
    virtual ~SheetObserver() = default;

    /// Another page is on show, or the same one was activated anew.
    virtual void pageShown(OpenSheet& sheet) = 0;

    /// Of a wizard its buttons, of a plain sheet whether there is something to apply.
    virtual void buttonsChanged(OpenSheet& sheet) = 0;

    /// Comes once. A page may still be at work further down the stack.
    virtual void closed(OpenSheet& sheet) = 0;
};

/// A sheet with its pages, in order, positions counted from 1: what a wizard and a plain sheet
/// share.
///
/// Any host shows one: it renders the current page's controls, hands on what the person does, and
/// runs the timers. It is made by `std::make_shared`, and stays alive until work that it began has
/// returned, whoever lets go of it meanwhile. What a page's handler raises comes out of the call
/// that ran the handler, after all that the call has to do; nothing else comes out.
class OpenSheet : public PageSheet, public std::enable_shared_from_this<OpenSheet> {
public:
    OpenSheet(const OpenSheet&) = delete;
    OpenSheet& operator=(const OpenSheet&) = delete;

    virtual WizardSheet* wizard() { return nullptr; }
    virtual PlainSheet* plainSheet() { return nullptr; }

    /// Not what the person reads, which is the page's title.
    const std::string& title() const { return title_; }

    /// For pages before the sheet is shown.
    void addPage(std::unique_ptr<SheetPage> page, std::string pageTitle, bool helpButton);

    /// Shows the sheet at a page: the page is initialised and activated, then all others that ask
    /// for it are initialised, in order. So what the first page prepares is there for them, and
    /// what they find is as of the sheet's opening. A sheet without pages closes at once. Raises 9
    /// for a position without a page.
    void show(int position = 1);

    int pageCount() const { return static_cast<int>(pages_.size()); }

    /// Raise 9 for a position without a page.
    SheetPage& page(int position) const { return *slot(position).page; }
    const std::string& pageTitle(int position) const { return slot(position).title; }
    bool hasHelpButton(int position) const { return slot(position).helpButton; }

    /// 0 before the sheet is shown.
    int currentPosition() const { return current_; }
    SheetPage& currentPage() const { return page(current_); }

    /// The current page's timers; none when the sheet is closed. The host calls `tick` when one's
    /// interval is over, and looks again after each call into the sheet.
    std::vector<Timer*> timers() const;

    /// Nothing happens unless the timer is one of those and runs.
    void tick(Timer& timer);

    /// Asks the current page, and unless it refuses tells all pages and closes. False when refused.
    bool cancel();

    /// Cancels without the person, as the host's windows go: the current page is asked, but can't
    /// refuse. What it raises then comes out when the sheet is closed.
    void abandon();

    void help();

    bool closed() const { return closed_; }

    /// Whether a call into the sheet is still on the stack.
    bool atWork() const { return callsUnderWay_ > 0; }

    /// Null for nobody. The observer outlives the sheet or takes leave.
    void observe(SheetObserver* observer) { observer_ = observer; }

protected:
    /// `subject` is what the sheet is for, or null; the pages are given it.
    OpenSheet(std::string title, ScopeItem* subject);

    /// Keeps the sheet alive, and marks it as at work.
    class Work {
    public:
        explicit Work(OpenSheet& sheet);
        ~Work() { --sheet_.callsUnderWay_; }
        Work(const Work&) = delete;
        Work& operator=(const Work&) = delete;

    private:
        std::shared_ptr<OpenSheet> hold_;
        OpenSheet& sheet_;
    };

    /// Makes a page the current one and tells it; the observer hears of it afterwards.
    virtual void enter(int position) { current_ = position; }

    /// Tells all pages that the sheet is closing, and closes it.
    void close();

    void tellPageShown();
    void tellButtonsChanged();

private:
    struct Slot {
        std::unique_ptr<SheetPage> page;
        std::string title;
        bool helpButton;
        bool initialised = false;
    };

    const Slot& slot(int position) const;
    bool isCancelAllowed();
    void tellCancelled();
    void initialise(Slot& slot);

    std::string title_;
    ScopeItem* subject_;
    std::vector<Slot> pages_;
    int current_ = 0;
    bool closed_ = false;
    int callsUnderWay_ = 0;
    SheetObserver* observer_ = nullptr;
};
