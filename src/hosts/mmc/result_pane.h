#pragma once

#include "console/result_view.h"
#include "console/view.h"
#include "hosts/mmc/com/com_pointer.h"
#include "text/code_page.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace mmc {

/// The right pane of one window of the console, as it shows what one view of the model has: columns
/// and rows, tasks, verbs, and the status bar. Rows are asked for one at a time, and are never all
/// in the console.
class ResultPane {
public:
    /// `codePage` outlives the pane.
    explicit ResultPane(const CodePage& codePage) : codePage_(codePage) {}
    ResultPane(const ResultPane&) = delete;
    ResultPane& operator=(const ResultPane&) = delete;

    /// Takes the window's own interfaces. False where it lacks one.
    bool connect(IConsole* console);
    void disconnect();

    /// The model's view of this window; null before there is one, and after it went.
    View* view() const { return view_; }
    void view(View* shown);

    IConsole2* console() const { return console_.get(); }

    /// Whether tasks are shown as a task pad of the console, or else as a list: as the person had
    /// it when the console was asked last.
    bool showsTaskPads() const { return taskPads_; }
    void askForTaskPads();

    /// The console shows an item of the snap-in's in this window, or none any more.
    void showsItem(ScopeItem& item);
    void showsNothing();

    /// What the console shows; null for nothing of the snap-in's.
    std::shared_ptr<ScopeItem> shownItem() const { return shown_.lock(); }

    /// The console was told to show an item and may do so later: whether it is this one that it
    /// shows now, which is then not expected any more.
    void expect(ScopeItem& item) { expected_ = item.weak_from_this(); }
    void expectNothing() { expected_.reset(); }
    bool takeExpected(const ScopeItem& item);

    /// What the model has selected in this window's view; null for nothing.
    ScopeItem* selectedItem() const;

    /// The model's result view is being filled, is filled, or goes with its item.
    void emptied();
    void filled(ResultView& resultView);
    void forget(const ScopeItem& item);

    /// Brings columns and rows to the console, where it shows what the model has filled.
    void render();

    /// Brings to the console which commands the selection offers.
    void showVerbs();
    void showStatus(const std::string& text);

    /// A cell of the list on show, row and column from 0; the empty text where there is none. It
    /// holds while the console asks for a screen of others.
    wchar_t* cell(int row, int column) { return keep(text(row, column)); }

    /// Keeps a text like one of those cells.
    wchar_t* keep(std::wstring text);

    /// The position, from 1, that the model knows a row on show by, from 0; 0 where there is none.
    int positionOf(int row) const;

    /// Puts the rows in the order of a column, from 0. False where the list has rows of another
    /// kind, or is being filled.
    bool sort(int column, bool ascending);

    /// The task pad on show; null where the model shows something else.
    TaskPad* taskPad() const;

private:
    struct Column {
        std::wstring title;
        int width;
    };

    bool onShow() const;
    bool hasOwnRows() const;
    int rowCount() const;
    void tellRows(int count);
    std::vector<Column> columns() const;
    void arrange();
    void showColumns();
    std::wstring text(int row, int column) const;

    const CodePage& codePage_;
    View* view_ = nullptr;
    ComPointer<IConsole2> console_;
    ComPointer<IHeaderCtrl> header_;
    ComPointer<IResultData> rows_;
    ComPointer<IConsoleVerb> verbs_;

    bool taskPads_ = false;
    std::weak_ptr<ScopeItem> shown_; ///< by the console
    std::weak_ptr<ScopeItem> expected_;
    int rowsTold_ = 0;                      ///< to the console
    ResultView* filled_ = nullptr;          ///< by the model; null while it is being filled
    const ScopeItem* filledItem_ = nullptr; ///< of that; compared alone
    std::vector<std::uint32_t> order_;      ///< positions by rows; empty in the list's own order
    std::vector<std::wstring> titles_;      ///< of the columns that the console has
    std::array<std::wstring, 1024> kept_;   ///< texts handed out, the oldest of which goes next
    std::size_t nextKept_ = 0;
};

} // namespace mmc
