#include "hosts/mmc/console/sheet.h"
#include "hosts/mmc/console/wide_text.h"

namespace stand_in {

namespace {

std::string nodeText(HWND tree, HTREEITEM node)
{
    wchar_t text[512] = {};
    TVITEMW asked{};
    asked.mask = TVIF_TEXT | TVIF_HANDLE;
    asked.hItem = node;
    asked.pszText = text;
    asked.cchTextMax = 512;
    SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&asked));
    return narrow(text);
}

HTREEITEM related(HWND tree, UINT relation, HTREEITEM node)
{
    return reinterpret_cast<HTREEITEM>(
        SendMessageW(tree, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(node)));
}

void addNodes(HWND tree, HTREEITEM first, const std::string& above,
              std::vector<std::pair<std::string, HTREEITEM>>& nodes)
{
    for (HTREEITEM node = first; node; node = related(tree, TVGN_NEXT, node)) {
        const std::string path = above + nodeText(tree, node);
        nodes.emplace_back(path, node);
        addNodes(tree, related(tree, TVGN_CHILD, node), path + "/", nodes);
    }
}

std::vector<std::pair<std::string, HTREEITEM>> allNodes(HWND tree)
{
    std::vector<std::pair<std::string, HTREEITEM>> nodes;
    addNodes(tree, related(tree, TVGN_ROOT, nullptr), "", nodes);
    return nodes;
}

} // namespace

std::vector<std::string> Sheet::treeNodes(int number) const
{
    std::vector<std::string> paths;
    for (const auto& [path, node] : allNodes(control(WC_TREEVIEWW, number))) paths.push_back(path);
    return paths;
}

HTREEITEM Sheet::nodeAt(HWND tree, const std::string& path) const
{
    for (const auto& [found, node] : allNodes(tree))
        if (found == path) return node;
    fail("the page's tree has no \"" + path + "\"");
}

std::vector<std::string> Sheet::tickedNodes(int number) const
{
    const HWND tree = control(WC_TREEVIEWW, number);
    std::vector<std::string> paths;
    for (const auto& [path, node] : allNodes(tree)) {
        const LRESULT state = SendMessageW(tree, TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(node),
                                           TVIS_STATEIMAGEMASK);
        if ((state >> 12) == 2) paths.push_back(path);
    }
    return paths;
}

bool Sheet::isNodeTicked(const std::string& path, int number) const
{
    const HWND tree = control(WC_TREEVIEWW, number);
    const LRESULT state = SendMessageW(
        tree, TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(nodeAt(tree, path)), TVIS_STATEIMAGEMASK);
    return (state >> 12) == 2;
}

void Sheet::tickNode(const std::string& path, int number)
{
    const HWND tree = control(WC_TREEVIEWW, number);
    const HTREEITEM node = nodeAt(tree, path);
    SendMessageW(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(node));
    PostMessageW(tree, WM_KEYDOWN, VK_SPACE, 0);
    PostMessageW(tree, WM_KEYUP, VK_SPACE, 0);
    settle();
}

} // namespace stand_in
