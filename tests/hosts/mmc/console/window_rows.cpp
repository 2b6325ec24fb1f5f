#include "hosts/mmc/console/console.h"
#include "hosts/mmc/console/wide_text.h"
#include "hosts/mmc/console/window.h"

#include <algorithm>
#include <numeric>

namespace stand_in {

namespace {
constexpr int imageUnset = -4711;
}

std::vector<std::string> Window::columnTitles() const
{
    std::vector<std::string> titles;
    for (const ShownColumn& column : columns_) titles.push_back(column.title);
    return titles;
}

/// The children that the console itself puts into a list.
std::vector<HSCOPEITEM> Window::childRows()
{
    const ScopeNode* node = console_.tree().find(selected_);
    if (!node || shown_ != Shown::list) return {};
    if (options_ & MMC_VIEW_OPTIONS_EXCLUDE_SCOPE_ITEMS_FROM_LIST) return {};
    return node->children;
}

int Window::rowCount()
{
    if (shown_ == Shown::virtualList) return virtualCount_;
    return static_cast<int>(childRows().size() + items_.size());
}

std::string Window::askText(RESULTDATAITEM& asked, LPARAM item, const std::string& whose)
{
    Contract& contract = console_.contract();
    asked.mask = RDI_STR;
    if (asked.nCol == 0) asked.mask |= RDI_IMAGE;
    asked.nImage = imageUnset;
    const HRESULT result = contract.call("IComponent::GetDisplayInfo",
                                         [&] { return component_->GetDisplayInfo(&asked); });
    if (FAILED(result)) {
        contract.breach("IComponent::GetDisplayInfo fails for " + whose);
        return {};
    }
    if (!asked.str) {
        contract.breach("IComponent::GetDisplayInfo gives no text for " + whose);
        return {};
    }
    if (asked.nImage != imageUnset && !images_.has(asked.nImage))
        contract.breach("IComponent::GetDisplayInfo gives an image that was never added");
    texts_.remember(item, asked.nCol, asked.str);
    return narrow(asked.str);
}

std::string Window::cell(int row, int column)
{
    Contract& contract = console_.contract();
    if (row < 0 || row >= rowCount() || column < 0 || column >= static_cast<int>(columns_.size())) {
        contract.breach("the test reads a cell that is not there");
        return {};
    }
    RESULTDATAITEM asked{};
    asked.nCol = column;
    const std::string whose = "row " + std::to_string(row) + ", column " + std::to_string(column);
    if (shown_ == Shown::virtualList) {
        asked.nIndex = row;
        return askText(asked, row, whose);
    }
    const std::vector<HSCOPEITEM> children = childRows();
    auto position = static_cast<std::size_t>(order_.size() == static_cast<std::size_t>(rowCount())
                                                 ? order_[static_cast<std::size_t>(row)]
                                                 : row);
    if (position < children.size()) {
        const ScopeNode& node = *console_.tree().find(children[position]);
        asked.bScopeItem = TRUE;
        asked.itemID = node.handle;
        asked.lParam = node.cookie;
        return askText(asked, node.handle, whose);
    }
    const ResultItem& item = items_[position - children.size()];
    if (column == 0 && !item.textByCall) return item.text;
    asked.itemID = item.id;
    asked.lParam = item.cookie;
    return askText(asked, item.id, whose);
}

std::vector<std::string> Window::row(int row)
{
    std::vector<std::string> cells;
    for (int column = 0; column < static_cast<int>(columns_.size()); ++column)
        cells.push_back(cell(row, column));
    texts_.readAgain(console_.contract(), "a row");
    return cells;
}

std::vector<std::vector<std::string>> Window::rows()
{
    std::vector<std::vector<std::string>> all;
    for (int row = 0; row < rowCount(); ++row) all.push_back(this->row(row));
    return all;
}

int Window::findRow(int column, const std::string& text)
{
    for (int row = 0; row < rowCount(); ++row)
        if (cell(row, column) == text) return row;
    return -1;
}

Held<IDataObject> Window::rowObject(int row, bool& isScopeItem, HSCOPEITEM& node)
{
    Held<IDataObject> object;
    isScopeItem = false;
    node = 0;
    if (row < 0 || row >= rowCount()) {
        console_.contract().breach("the test acts on a row that is not there");
        return object;
    }
    MMC_COOKIE cookie = row;
    if (shown_ == Shown::list) {
        const std::vector<HSCOPEITEM> children = childRows();
        const auto position =
            static_cast<std::size_t>(order_.size() == static_cast<std::size_t>(rowCount())
                                         ? order_[static_cast<std::size_t>(row)]
                                         : row);
        if (position < children.size()) {
            isScopeItem = true;
            node = children[position];
            return console_.scopeObject(*console_.tree().find(node));
        }
        cookie = items_[position - children.size()].cookie;
    }
    const HRESULT made = console_.contract().call("IComponent::QueryDataObject", [&] {
        return component_->QueryDataObject(cookie, CCT_RESULT, object.place());
    });
    if (FAILED(made) || !object)
        console_.contract().breach("IComponent::QueryDataObject gives no object for a row");
    else
        console_.checkObject(object.get(), nullptr);
    return object;
}

void Window::selectRow(int row)
{
    bool isScopeItem = false;
    HSCOPEITEM node = 0;
    const auto object = rowObject(row, isScopeItem, node);
    if (!object) return;
    notifySelected(MMCN_SELECT, MAKELONG(TRUE, FALSE), 0, "MMCN_SELECT");
    enabledVerbs_.clear();
    notify(object.get(), MMCN_SELECT, MAKELONG(isScopeItem ? TRUE : FALSE, TRUE), 0, "MMCN_SELECT");
}

void Window::doubleClick(int row)
{
    bool isScopeItem = false;
    HSCOPEITEM node = 0;
    const auto object = rowObject(row, isScopeItem, node);
    if (!object) return;
    const int before = selections_;
    const HRESULT result = notify(object.get(), MMCN_DBLCLICK, 0, 0, "MMCN_DBLCLICK");
    // Unless the snap-in did it, the console opens what was clicked.
    if (result != S_OK && isScopeItem && before == selections_ && console_.tree().find(node))
        selectNode(node);
}

void Window::sort(int column, bool descending)
{
    const DWORD options = descending ? RSI_DESCENDING : 0;
    if (shown_ == Shown::virtualList) {
        const auto owner = asked<IResultOwnerData>(component_.get(), iid::resultOwnerData);
        if (!owner) return;
        console_.contract().call("SortItems", [&] { return owner->SortItems(column, options, 0); });
        texts_.forgetAll();
    } else if (shown_ == Shown::list) {
        order_.clear();
        std::vector<std::string> keys;
        for (int row = 0; row < rowCount(); ++row) keys.push_back(cell(row, column));
        std::vector<int> order(keys.size());
        std::iota(order.begin(), order.end(), 0);
        std::stable_sort(order.begin(), order.end(), [&](int left, int right) {
            const std::string& one = keys[static_cast<std::size_t>(left)];
            const std::string& other = keys[static_cast<std::size_t>(right)];
            return descending ? other < one : one < other;
        });
        order_ = order;
    }
    notifySelected(MMCN_COLUMN_CLICK, column, static_cast<LPARAM>(options), "MMCN_COLUMN_CLICK");
}

} // namespace stand_in
