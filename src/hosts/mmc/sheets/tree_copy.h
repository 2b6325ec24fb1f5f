#pragma once

#include "controls/tree_view.h"

#include <string>
#include <vector>
#include <windows.h>

// Trees stand on the system's basic header.
#include <commctrl.h>

namespace mmc {

/// A node of the model as it was. Nodes go by their number in the order of addition, from 1.
struct NodeCopy {
    std::wstring text;
    int parent = 0; ///< 0 on the first level
    bool bold = false;
    bool expanded = false;
    bool checked = false;
};

struct TreeCopy {
    unsigned generation = 0;
    bool checkBoxes = false;
    int inSight = 0; ///< the node that was last asked to be in sight; 0 for none
    std::vector<NodeCopy> nodes;
};

/// On the tool's thread.
TreeCopy copyOf(const TreeView& tree);

/// What lies at a point of the window: 0 for no node.
struct NodeHit {
    int number = 0;
    bool onTick = false;
};

/// The nodes that a window shows. What did not change is left alone, so that the window keeps its
/// place.
class ShownTree {
public:
    void show(HWND window, TreeCopy tree);

    /// Puts the ticks of the window right where it changed them by itself.
    void showTicks(HWND window) const;

    unsigned generation() const { return tree_.generation; }
    bool hasTicks() const { return tree_.checkBoxes; }
    bool isTicked(int number) const { return node(number).checked; }

    NodeHit hit(HWND window, POINT point) const;

    /// The node that the keyboard is at; 0 for none.
    int selected(HWND window) const;

private:
    const NodeCopy& node(int number) const
    {
        return tree_.nodes[static_cast<std::size_t>(number - 1)];
    }

    void add(HWND window, const NodeCopy& node);
    void change(HWND window, std::size_t index, const NodeCopy& before);
    void expand(HWND window, const TreeCopy& before) const;
    int numberOf(HWND window, HTREEITEM item) const;

    TreeCopy tree_;
    std::vector<HTREEITEM> items_;
};

} // namespace mmc
