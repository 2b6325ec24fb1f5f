#include "hosts/mmc/sheets/tree_copy.h"

#include "system/windows/windows_calls.h"

#include <unordered_map>
#include <utility>

namespace mmc {

namespace {

constexpr UINT cleared = 1; ///< the pictures of ticks
constexpr UINT ticked = 2;

UINT stateOf(const NodeCopy& node, bool checkBoxes)
{
    const UINT bold = node.bold ? TVIS_BOLD : 0;
    return checkBoxes ? bold | INDEXTOSTATEIMAGEMASK(node.checked ? ticked : cleared) : bold;
}

UINT stateMask(bool checkBoxes)
{
    return checkBoxes ? TVIS_BOLD | TVIS_STATEIMAGEMASK : TVIS_BOLD;
}

} // namespace

TreeCopy copyOf(const TreeView& tree)
{
    TreeCopy copy{tree.generation(), tree.checkBoxes(), 0, {}};
    std::unordered_map<const TreeNode*, int> numbers{{nullptr, 0}};
    copy.nodes.reserve(static_cast<std::size_t>(tree.count()));
    for (int number = 1; number <= tree.count(); ++number) {
        const TreeNode& node = tree.item(number);
        numbers[&node] = number;
        copy.nodes.push_back({wideOf(node.text()), numbers[node.parent()], node.bold(),
                              node.expanded(), node.checked()});
    }
    copy.inSight = numbers[tree.nodeInSight()];
    return copy;
}

void ShownTree::show(HWND window, TreeCopy tree)
{
    TreeCopy before = std::exchange(tree_, std::move(tree));
    SendMessageW(window, WM_SETREDRAW, FALSE, 0);
    if (before.generation != tree_.generation || before.nodes.size() > tree_.nodes.size()) {
        SendMessageW(window, TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
        items_.clear();
        before = {};
        before.generation = tree_.generation;
        before.checkBoxes = tree_.checkBoxes;
    }
    const LONG_PTR style = GetWindowLongPtrW(window, GWL_STYLE);
    // The pictures of ticks come with the style; it can be given, and not taken.
    if (tree_.checkBoxes && !(style & TVS_CHECKBOXES))
        SetWindowLongPtrW(window, GWL_STYLE, style | TVS_CHECKBOXES);
    for (std::size_t index = 0; index < before.nodes.size(); ++index)
        change(window, index, before.nodes[index]);
    for (std::size_t index = before.nodes.size(); index < tree_.nodes.size(); ++index)
        add(window, tree_.nodes[index]);
    expand(window, before);
    showTicks(window);
    SendMessageW(window, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(window, nullptr, TRUE);
    if (tree_.inSight > 0 && tree_.inSight != before.inSight) {
        const HTREEITEM item = items_[static_cast<std::size_t>(tree_.inSight - 1)];
        SendMessageW(window, TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item));
        // The ticks are to be in sight as well, which stand before the text.
        SendMessageW(window, WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 0), 0);
    }
}

void ShownTree::add(HWND window, const NodeCopy& node)
{
    TVINSERTSTRUCTW added{};
    added.hParent = node.parent > 0 ? items_[static_cast<std::size_t>(node.parent - 1)] : TVI_ROOT;
    added.hInsertAfter = TVI_LAST;
    added.item.mask = TVIF_TEXT | TVIF_PARAM | TVIF_STATE;
    added.item.pszText = const_cast<wchar_t*>(node.text.c_str());
    added.item.lParam = static_cast<LPARAM>(items_.size() + 1);
    added.item.state = stateOf(node, tree_.checkBoxes);
    added.item.stateMask = stateMask(tree_.checkBoxes);
    items_.push_back(reinterpret_cast<HTREEITEM>(
        SendMessageW(window, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&added))));
}

void ShownTree::change(HWND window, std::size_t index, const NodeCopy& before)
{
    const NodeCopy& now = tree_.nodes[index];
    TVITEMW item{};
    item.hItem = items_[index];
    item.mask = TVIF_HANDLE;
    if (now.text != before.text) {
        item.mask |= TVIF_TEXT;
        item.pszText = const_cast<wchar_t*>(now.text.c_str());
    }
    if (now.bold != before.bold || now.checked != before.checked) {
        item.mask |= TVIF_STATE;
        item.state = stateOf(now, tree_.checkBoxes);
        item.stateMask = stateMask(tree_.checkBoxes);
    }
    if (item.mask != TVIF_HANDLE)
        SendMessageW(window, TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
}

/// Parents come before their children, and a node opens only when it has some: so this is done when
/// all are there.
void ShownTree::expand(HWND window, const TreeCopy& before) const
{
    for (std::size_t index = 0; index < tree_.nodes.size(); ++index) {
        const bool open = tree_.nodes[index].expanded;
        const auto item = reinterpret_cast<LPARAM>(items_[index]);
        const auto state =
            SendMessageW(window, TVM_GETITEMSTATE, static_cast<WPARAM>(item), TVIS_EXPANDED);
        const bool grew = tree_.nodes.size() != before.nodes.size();
        if (((state & TVIS_EXPANDED) != 0) != open || (open && grew))
            SendMessageW(window, TVM_EXPAND, open ? TVE_EXPAND : TVE_COLLAPSE, item);
    }
}

void ShownTree::showTicks(HWND window) const
{
    if (!tree_.checkBoxes) return;
    for (std::size_t index = 0; index < items_.size(); ++index) {
        const UINT wanted = INDEXTOSTATEIMAGEMASK(tree_.nodes[index].checked ? ticked : cleared);
        const auto held = static_cast<UINT>(SendMessageW(window, TVM_GETITEMSTATE,
                                                         reinterpret_cast<WPARAM>(items_[index]),
                                                         TVIS_STATEIMAGEMASK)) &
                          TVIS_STATEIMAGEMASK;
        if (held == wanted) continue;
        TVITEMW item{};
        item.hItem = items_[index];
        item.mask = TVIF_HANDLE | TVIF_STATE;
        item.state = wanted;
        item.stateMask = TVIS_STATEIMAGEMASK;
        SendMessageW(window, TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
}

int ShownTree::numberOf(HWND window, HTREEITEM item) const
{
    if (!item) return 0;
    TVITEMW asked{};
    asked.hItem = item;
    asked.mask = TVIF_HANDLE | TVIF_PARAM;
    const bool found = SendMessageW(window, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&asked));
    return found && asked.lParam <= static_cast<LPARAM>(items_.size())
               ? static_cast<int>(asked.lParam)
               : 0;
}

NodeHit ShownTree::hit(HWND window, POINT point) const
{
    TVHITTESTINFO info{};
    info.pt = point;
    SendMessageW(window, TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&info));
    if (!(info.flags & (TVHT_ONITEM | TVHT_ONITEMSTATEICON))) return {};
    const bool onTick = tree_.checkBoxes && (info.flags & TVHT_ONITEMSTATEICON);
    return {numberOf(window, info.hItem), onTick};
}

int ShownTree::selected(HWND window) const
{
    return numberOf(
        window, reinterpret_cast<HTREEITEM>(SendMessageW(window, TVM_GETNEXTITEM, TVGN_CARET, 0)));
}

} // namespace mmc
