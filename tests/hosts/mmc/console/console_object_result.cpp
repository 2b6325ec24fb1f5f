#include "hosts/mmc/console/console.h"
#include "hosts/mmc/console/console_object.h"
#include "hosts/mmc/console/wide_text.h"

#include <algorithm>

namespace stand_in {

bool ConsoleObject::hasList(const char* method)
{
    if (!contract_.onThread(method)) return false;
    if (window_->shown_ == Shown::list || window_->shown_ == Shown::virtualList) return true;
    contract_.breach(std::string(method) + " is called while the window shows no list");
    return false;
}

bool ConsoleObject::isColumn(int column) const
{
    return column >= 0 && column < static_cast<int>(window_->columns_.size());
}

HRESULT WINAPI ConsoleObject::InsertColumn(int column, LPCWSTR title, int format, int width)
{
    if (!hasList("InsertColumn")) return E_UNEXPECTED;
    auto& columns = window_->columns_;
    if (column < 0 || column > static_cast<int>(columns.size()))
        return refused("InsertColumn is given a position past the last column");
    if (!title || !*title) return refused("InsertColumn is given no title");
    if (column == 0 && format != LVCFMT_LEFT)
        return refused("the first column is not aligned to the left");
    if (width < HIDE_COLUMN) return refused("InsertColumn is given a width that is none");
    columns.insert(columns.begin() + column, {narrow(title), width});
    return S_OK;
}

HRESULT WINAPI ConsoleObject::DeleteColumn(int column)
{
    if (!hasList("DeleteColumn")) return E_UNEXPECTED;
    if (!isColumn(column)) return refused("DeleteColumn is given a column that is not there");
    window_->columns_.erase(window_->columns_.begin() + column);
    return S_OK;
}

HRESULT WINAPI ConsoleObject::SetColumnText(int column, LPCWSTR title)
{
    if (!hasList("SetColumnText")) return E_UNEXPECTED;
    if (!isColumn(column) || !title)
        return refused("SetColumnText is given a column that is not there");
    window_->columns_[static_cast<std::size_t>(column)].title = narrow(title);
    return S_OK;
}

HRESULT WINAPI ConsoleObject::GetColumnText(int column, LPOLESTR* title)
{
    if (!hasList("GetColumnText")) return E_UNEXPECTED;
    if (!isColumn(column) || !title)
        return refused("GetColumnText is given a column that is not there");
    const std::wstring text = widen(window_->columns_[static_cast<std::size_t>(column)].title);
    const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    *title = static_cast<LPOLESTR>(CoTaskMemAlloc(bytes));
    if (!*title) return E_OUTOFMEMORY;
    std::copy_n(text.c_str(), text.size() + 1, *title);
    return S_OK;
}

HRESULT WINAPI ConsoleObject::SetColumnWidth(int column, int width)
{
    if (!hasList("SetColumnWidth")) return E_UNEXPECTED;
    if (!isColumn(column)) return refused("SetColumnWidth is given a column that is not there");
    window_->columns_[static_cast<std::size_t>(column)].width = width;
    return S_OK;
}

HRESULT WINAPI ConsoleObject::GetColumnWidth(int column, int* width)
{
    if (!hasList("GetColumnWidth")) return E_UNEXPECTED;
    if (!isColumn(column) || !width)
        return refused("GetColumnWidth is given a column that is not there");
    *width = window_->columns_[static_cast<std::size_t>(column)].width;
    return S_OK;
}

HRESULT WINAPI ConsoleObject::SetChangeTimeOut(unsigned __LONG32)
{
    return contract_.onThread("SetChangeTimeOut") ? S_OK : RPC_E_WRONG_THREAD;
}

HRESULT WINAPI ConsoleObject::SetColumnFilter(UINT, DWORD, MMC_FILTERDATA*)
{
    return refused("SetColumnFilter is called for a list that is not filtered", E_FAIL);
}

HRESULT WINAPI ConsoleObject::GetColumnFilter(UINT, LPDWORD, MMC_FILTERDATA*)
{
    return refused("GetColumnFilter is called for a list that is not filtered", E_FAIL);
}

HRESULT WINAPI ConsoleObject::InsertItem(LPRESULTDATAITEM item)
{
    if (!hasList("IResultData::InsertItem")) return E_UNEXPECTED;
    if (!item) return refused("IResultData::InsertItem is given a null pointer", E_POINTER);
    if (window_->shown_ == Shown::virtualList)
        return refused("IResultData::InsertItem is called for a virtual list", E_FAIL);
    if (window_->columns_.empty())
        return refused("IResultData::InsertItem is called before there is a column", E_FAIL);
    if (item->bScopeItem) return refused("IResultData::InsertItem is given a scope item");
    if (!(item->mask & RDI_STR) || !item->str)
        return refused("IResultData::InsertItem is called without a text");
    if (item->nCol != 0) return refused("IResultData::InsertItem is given a column");
    if ((item->mask & RDI_IMAGE) && item->nImage != MMC_IMAGECALLBACK &&
        !window_->images_.has(item->nImage))
        return refused("IResultData::InsertItem is given an image that was never added");
    ResultItem made;
    made.id = ++window_->lastItem_;
    made.cookie = item->lParam;
    made.textByCall = reinterpret_cast<LONG_PTR>(item->str) == -1;
    if (!made.textByCall) made.text = narrow(item->str);
    window_->items_.push_back(made);
    window_->order_.clear();
    item->itemID = made.id;
    return S_OK;
}

HRESULT WINAPI ConsoleObject::DeleteItem(HRESULTITEM item, int column)
{
    if (!hasList("IResultData::DeleteItem")) return E_UNEXPECTED;
    if (column != 0) return refused("IResultData::DeleteItem is given a column");
    window_->order_.clear();
    if (window_->shown_ == Shown::virtualList) {
        if (item < 0 || item >= window_->virtualCount_)
            return refused("IResultData::DeleteItem is given a row that is not there");
        --window_->virtualCount_;
        return S_OK;
    }
    const auto gone =
        std::erase_if(window_->items_, [&](const ResultItem& each) { return each.id == item; });
    return gone ? S_OK : refused("IResultData::DeleteItem is given an item that is not there");
}

HRESULT WINAPI ConsoleObject::FindItemByLParam(LPARAM cookie, HRESULTITEM* item)
{
    if (!hasList("FindItemByLParam")) return E_UNEXPECTED;
    if (!item) return refused("FindItemByLParam is given a null pointer", E_POINTER);
    for (const ResultItem& each : window_->items_) {
        if (each.cookie != cookie) continue;
        *item = each.id;
        return S_OK;
    }
    return S_FALSE;
}

HRESULT WINAPI ConsoleObject::DeleteAllRsltItems()
{
    if (!hasList("DeleteAllRsltItems")) return E_UNEXPECTED;
    window_->forgetRows();
    return S_OK;
}

HRESULT WINAPI ConsoleObject::SetItem(LPRESULTDATAITEM item)
{
    if (!hasList("IResultData::SetItem")) return E_UNEXPECTED;
    if (window_->shown_ == Shown::virtualList)
        return refused("IResultData::SetItem is called for a virtual list", E_FAIL);
    for (ResultItem& each : window_->items_) {
        if (!item || each.id != item->itemID) continue;
        if (item->mask & RDI_PARAM) each.cookie = item->lParam;
        return S_OK;
    }
    return refused("IResultData::SetItem is given an item that is not there");
}

HRESULT WINAPI ConsoleObject::GetItem(LPRESULTDATAITEM item)
{
    if (!hasList("IResultData::GetItem")) return E_UNEXPECTED;
    for (const ResultItem& each : window_->items_) {
        if (!item || each.id != item->itemID) continue;
        item->lParam = each.cookie;
        return S_OK;
    }
    return E_INVALIDARG;
}

HRESULT WINAPI ConsoleObject::GetNextItem(LPRESULTDATAITEM)
{
    return hasList("IResultData::GetNextItem") ? S_FALSE : E_UNEXPECTED;
}

HRESULT WINAPI ConsoleObject::ModifyItemState(int, HRESULTITEM, UINT, UINT)
{
    return hasList("ModifyItemState") ? S_OK : E_UNEXPECTED;
}

HRESULT WINAPI ConsoleObject::ModifyViewStyle(MMC_RESULT_VIEW_STYLE, MMC_RESULT_VIEW_STYLE)
{
    return hasList("ModifyViewStyle") ? S_OK : E_UNEXPECTED;
}

HRESULT WINAPI ConsoleObject::SetViewMode(__LONG32 mode)
{
    if (!hasList("SetViewMode")) return E_UNEXPECTED;
    if (mode < MMCLV_VIEWSTYLE_ICON || mode > MMCLV_VIEWSTYLE_FILTERED)
        return refused("SetViewMode is given a mode that is none");
    return S_OK;
}

HRESULT WINAPI ConsoleObject::GetViewMode(__LONG32* mode)
{
    if (!hasList("GetViewMode")) return E_UNEXPECTED;
    *mode = MMCLV_VIEWSTYLE_REPORT;
    return S_OK;
}

HRESULT WINAPI ConsoleObject::UpdateItem(HRESULTITEM)
{
    return hasList("UpdateItem") ? S_OK : E_UNEXPECTED;
}

HRESULT WINAPI ConsoleObject::Sort(int column, DWORD, LPARAM)
{
    if (!hasList("IResultData::Sort")) return E_UNEXPECTED;
    return isColumn(column) ? S_OK : refused("Sort is given a column that is not there");
}

HRESULT WINAPI ConsoleObject::SetDescBarText(LPOLESTR text)
{
    if (!contract_.onThread("SetDescBarText")) return RPC_E_WRONG_THREAD;
    window_->descriptionText_ = narrow(text);
    return S_OK;
}

HRESULT WINAPI ConsoleObject::SetItemCount(int count, DWORD options)
{
    if (!hasList("SetItemCount")) return E_UNEXPECTED;
    if (count < 0 || (options & ~(MMCLV_UPDATE_NOINVALIDATEALL | MMCLV_UPDATE_NOSCROLL)) != 0)
        return refused("SetItemCount is given a number below 0, or options that are none");
    // Of another list it is a hint of how many rows will come.
    if (window_->shown_ != Shown::virtualList) return S_OK;
    if (count > 0 && window_->columns_.empty())
        return refused("SetItemCount is called before there is a column", E_FAIL);
    window_->virtualCount_ = count;
    window_->texts_.forgetAll();
    return S_OK;
}

HRESULT WINAPI ConsoleObject::GetVerbState(MMC_CONSOLE_VERB verb, MMC_BUTTON_STATE state,
                                           WINBOOL* on)
{
    if (!contract_.onThread("GetVerbState")) return RPC_E_WRONG_THREAD;
    if (!on) return E_POINTER;
    *on = state == ENABLED && window_->isVerbEnabled(verb);
    return S_OK;
}

HRESULT WINAPI ConsoleObject::SetVerbState(MMC_CONSOLE_VERB verb, MMC_BUTTON_STATE state,
                                           WINBOOL on)
{
    if (!contract_.onThread("SetVerbState")) return RPC_E_WRONG_THREAD;
    if (contract_.innermost() != "MMCN_SELECT")
        return refused("SetVerbState is called outside of MMCN_SELECT", E_UNEXPECTED);
    if (verb < MMC_VERB_OPEN || verb > MMC_VERB_CUT || (state != ENABLED && state != HIDDEN))
        return refused("SetVerbState is given a verb, or a state, that is none");
    if (state == ENABLED) window_->enabledVerbs_[verb] = on != FALSE;
    return S_OK;
}

HRESULT WINAPI ConsoleObject::SetDefaultVerb(MMC_CONSOLE_VERB verb)
{
    if (!contract_.onThread("SetDefaultVerb")) return RPC_E_WRONG_THREAD;
    if (verb != MMC_VERB_NONE && (verb < MMC_VERB_OPEN || verb > MMC_VERB_CUT))
        return refused("SetDefaultVerb is given a verb that is none");
    return S_OK;
}

HRESULT WINAPI ConsoleObject::GetDefaultVerb(MMC_CONSOLE_VERB* verb)
{
    if (!contract_.onThread("GetDefaultVerb")) return RPC_E_WRONG_THREAD;
    if (!verb) return E_POINTER;
    *verb = MMC_VERB_NONE;
    return S_OK;
}

} // namespace stand_in
