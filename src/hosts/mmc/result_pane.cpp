#include "hosts/mmc/result_pane.h"

#include "console/row_order.h"
#include "runtime/run_time_error.h"
#include "system/windows/windows_calls.h"

#include <algorithm>
#include <numeric>
#include <windows.h>

// The system's lists stand on its basic header.
#include <commctrl.h>

namespace mmc {

namespace {

constexpr int taskColumnWidth = 200;
constexpr int taskHelpWidth = 500;

} // namespace

bool ResultPane::connect(IConsole* console)
{
    console_ = ComPointer<IConsole2>::of(console);
    header_ = ComPointer<IHeaderCtrl>::of(console);
    rows_ = ComPointer<IResultData>::of(console);
    if (!console_ || !header_ || !rows_) return false;
    if (FAILED(console_->QueryConsoleVerb(verbs_.out()))) return false;
    console_->SetHeader(header_.get());
    return true;
}

void ResultPane::disconnect()
{
    showsNothing();
    view(nullptr);
    verbs_.reset();
    rows_.reset();
    header_.reset();
    console_.reset();
}

void ResultPane::view(View* shown)
{
    view_ = shown;
    emptied();
}

void ResultPane::askForTaskPads()
{
    taskPads_ = console_ && console_->IsTaskpadViewPreferred() == S_OK;
}

/// The console drops rows and columns of what it showed before.
void ResultPane::showsItem(ScopeItem& item)
{
    shown_ = item.weak_from_this();
    titles_.clear();
    rowsTold_ = 0;
}

void ResultPane::showsNothing()
{
    shown_.reset();
    titles_.clear();
    rowsTold_ = 0;
}

bool ResultPane::takeExpected(const ScopeItem& item)
{
    const auto expected = expected_.lock();
    expected_.reset();
    return expected.get() == &item;
}

ScopeItem* ResultPane::selectedItem() const
{
    if (!view_) return nullptr;
    try {
        return &view_->selectedScopePaneItem().scopeItem();
    } catch (const RunTimeError&) {
        return nullptr; // nothing was selected yet
    }
}

bool ResultPane::onShow() const
{
    const auto shown = shown_.lock();
    return shown && shown.get() == selectedItem();
}

bool ResultPane::hasOwnRows() const
{
    if (!filled_) return false;
    if (filled_->type() == ResultViewType::taskPad) return !showsTaskPads();
    return filled_->list().definition().rows == ListRows::own;
}

int ResultPane::rowCount() const
{
    if (!hasOwnRows()) return 0;
    return filled_->type() == ResultViewType::taskPad ? filled_->taskPad().taskCount()
                                                      : filled_->list().itemCount();
}

void ResultPane::emptied()
{
    filled_ = nullptr;
    filledItem_ = nullptr;
    order_ = {};
    if (rowsTold_ > 0) tellRows(0);
}

void ResultPane::filled(ResultView& resultView)
{
    filled_ = &resultView;
    filledItem_ = &resultView.scopePaneItem().scopeItem();
    arrange();
    render();
}

void ResultPane::forget(const ScopeItem& item)
{
    if (filledItem_ != &item) return;
    filled_ = nullptr;
    filledItem_ = nullptr;
    order_ = {};
}

void ResultPane::arrange()
{
    order_ = {};
    if (!filled_ || filled_->type() != ResultViewType::list || !hasOwnRows()) return;
    ListView& list = filled_->list();
    if (list.chosenOrder().column < 1) return;
    order_.resize(static_cast<std::size_t>(list.itemCount()));
    std::iota(order_.begin(), order_.end(), 1U);
    arrangeRows(list, order_);
}

bool ResultPane::sort(int column, bool ascending)
{
    if (!filled_ || filled_->type() != ResultViewType::list || !hasOwnRows()) return false;
    if (column < 0 || column >= filled_->list().columnCount()) return false;
    filled_->list().chooseOrder({column + 1, ascending});
    arrange();
    return true;
}

std::vector<ResultPane::Column> ResultPane::columns() const
{
    if (filled_->type() == ResultViewType::taskPad) {
        if (showsTaskPads()) return {};
        const TaskPad& pad = filled_->taskPad();
        return {{wideOf(pad.title), taskColumnWidth}, {wideOf(pad.description), taskHelpWidth}};
    }
    static_assert(automaticWidth == MMCLV_AUTO);
    std::vector<Column> columns;
    for (const ColumnHeader& column : filled_->list().columns())
        columns.push_back({wideOf(column.text), column.width});
    return columns;
}

void ResultPane::render()
{
    if (!filled_ || !rows_ || !onShow()) return;
    const bool isNew = titles_.empty();
    showColumns();
    if (!hasOwnRows()) return;
    if (isNew) rows_->SetViewMode(MMCLV_VIEWSTYLE_REPORT);
    tellRows(rowCount());
}

void ResultPane::tellRows(int count)
{
    rowsTold_ = count;
    if (rows_) rows_->SetItemCount(count, 0);
}

/// Columns that are there already keep the widths that the person gave them. In each of its calls
/// the console may show something else, or let go.
void ResultPane::showColumns()
{
    const std::vector<Column> wanted = columns();
    const ComPointer<IHeaderCtrl> header = header_;
    if (titles_.size() != wanted.size()) {
        if (rowsTold_ > 0) tellRows(0);
        while (!titles_.empty()) {
            titles_.pop_back();
            header->DeleteColumn(static_cast<int>(titles_.size()));
        }
        for (const Column& column : wanted) {
            // The console takes no column without a title.
            const std::wstring title = column.title.empty() ? L" " : column.title;
            titles_.push_back(column.title);
            header->InsertColumn(static_cast<int>(titles_.size()) - 1, title.c_str(), LVCFMT_LEFT,
                                 column.width);
        }
    }
    for (std::size_t place = 0; place < std::min(wanted.size(), titles_.size()); ++place) {
        if (titles_[place] == wanted[place].title) continue;
        titles_[place] = wanted[place].title;
        header->SetColumnText(static_cast<int>(place), wanted[place].title.c_str());
    }
}

void ResultPane::showVerbs()
{
    const ComPointer<IConsoleVerb> verbs = verbs_;
    for (int number = consoleVerb::open; view_ && verbs && number <= consoleVerb::print; ++number)
        verbs->SetVerbState(static_cast<MMC_CONSOLE_VERB>(number), ENABLED,
                            view_->verbs().enabled(number));
}

/// At once, without any other message being handled: long work goes on behind it.
void ResultPane::showStatus(const std::string& text)
{
    if (!console_) return;
    const ComPointer<IConsole2> console = console_;
    std::wstring shown = wideOf(text);
    console->SetStatusText(shown.data());
    HWND window = nullptr;
    if (SUCCEEDED(console->GetMainWindow(&window)) && window)
        RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

wchar_t* ResultPane::keep(std::wstring text)
{
    std::wstring& place = kept_[nextKept_++ % kept_.size()];
    place = std::move(text);
    return place.data();
}

int ResultPane::positionOf(int row) const
{
    if (row < 0 || row >= rowCount()) return 0;
    return order_.empty() ? row + 1 : static_cast<int>(order_[static_cast<std::size_t>(row)]);
}

std::wstring ResultPane::text(int row, int column) const
{
    const int position = positionOf(row);
    if (position == 0) return {};
    if (filled_->type() == ResultViewType::taskPad) {
        const Task& task = filled_->taskPad().task(position);
        return wideOf(column == 0 ? task.text : task.helpText);
    }
    ListView& list = filled_->list();
    const std::string_view bytes = list.shown(position).subItem(column + 1);
    if (list.definition().text == ListText::utf8) return wideOf(bytes);
    std::wstring decoded;
    decoded.reserve(bytes.size());
    for (const char byte : bytes) decoded += static_cast<wchar_t>(codePage_.character(byte));
    return decoded;
}

TaskPad* ResultPane::taskPad() const
{
    if (!filled_ || filled_->type() != ResultViewType::taskPad) return nullptr;
    return &filled_->taskPad();
}

} // namespace mmc
