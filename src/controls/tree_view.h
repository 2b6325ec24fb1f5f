#pragma once

#include "controls/control.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

class TreeView;

/// A node of a tree; lives until the tree is cleared.
///
/// Who holds one past that, as a run does whose page fills its tree anew, finds it without
/// relatives: changing it, or asking for its path, raises 35605.
class TreeNode {
public:
    TreeNode(const TreeNode&) = delete;
    TreeNode& operator=(const TreeNode&) = delete;

    const std::string& text() const { return text_; }
    void setText(std::string text);

    /// Empty for a node without a key.
    const std::string& key() const { return key_; }

    /// Raises 35602 when another node of the tree has this key, and keeps the key it had.
    void setKey(std::string key);

    bool bold() const { return bold_; }
    void setBold(bool bold);
    bool expanded() const { return expanded_; }
    void setExpanded(bool expanded);

    /// The tick; setting it is no event.
    bool checked() const { return checked_; }
    void setChecked(bool checked);

    /// Null where there is none. `child` is the first one.
    TreeNode* parent() const { return parent_; }
    TreeNode* child() const { return children_.empty() ? nullptr : children_.front(); }
    TreeNode* next() const;

    /// The number of children.
    int children() const { return static_cast<int>(children_.size()); }

    /// The texts from the root to this node, with "\" between them.
    std::string fullPath() const;

    /// Expands all nodes above and asks the host to scroll here.
    void ensureVisible();

private:
    friend class TreeView;
    TreeNode(TreeView& tree, TreeNode* parent, std::size_t position)
        : tree_(&tree), parent_(parent), position_(position)
    {}

    /// Raises 35605 when the tree let the node go.
    TreeView& tree() const;

    TreeView* tree_;
    TreeNode* parent_;
    std::size_t position_; ///< among its siblings
    std::vector<TreeNode*> children_;
    std::string text_;
    std::string key_;
    bool bold_ = false;
    bool expanded_ = false;
    bool checked_ = false;
};

/// A tree of nodes, with a check box at each when the page asks for them.
class TreeView final : public Control {
public:
    ~TreeView() override;

    /// The person ticked or cleared a node.
    std::function<void(TreeNode&)> onNodeCheck;

    /// The pointer moved over the tree, in the host's own units.
    std::function<void(int x, int y)> onMouseMove;

    /// The host's answer to which node is at a point; null for none.
    std::function<TreeNode*(int x, int y)> hitTester;

    bool checkBoxes() const { return checkBoxes_; }
    void setCheckBoxes(bool checkBoxes) { assign(checkBoxes_, checkBoxes); }

    /// Adds a node at the end of the first level. Raises 35602, and adds none, for a key in use.
    TreeNode& add(std::string text = {}, std::string key = {});

    /// Adds a last child of a node (relation 4). Raises as `add`.
    TreeNode& addChild(TreeNode& parent, std::string text = {}, std::string key = {});

    void clear();

    /// Another one after each `clear`, so that a tree that was filled anew tells itself from the
    /// one before even where it looks the same.
    unsigned generation() const { return generation_; }

    /// The number of all nodes.
    int count() const { return static_cast<int>(nodes_.size()); }

    /// A node by the order of addition, counted from 1. Raises 35600 outside 1 to `count`.
    TreeNode& item(int index) const;

    /// The same node to hold on to while the tree may be filled anew.
    std::shared_ptr<TreeNode> hold(int index) const;

    /// A node by its key. Raises 35601 when there is none.
    TreeNode& item(std::string_view key) const;

    /// The first level.
    const std::vector<TreeNode*>& roots() const { return roots_; }

    /// The node that was last asked to be in sight; null when none was.
    TreeNode* nodeInSight() const { return nodeInSight_; }

    TreeNode* hitTest(int x, int y) const { return hitTester ? hitTester(x, y) : nullptr; }

    /// The person ticks or clears a node, opens or closes it, moves the pointer.
    void checkByPerson(TreeNode& node, bool checked);
    void expandByPerson(TreeNode& node, bool expanded);
    void mouseMove(int x, int y);

private:
    friend class TreeNode;
    TreeNode& insert(TreeNode* parent, std::string text, std::string key);
    void letGoOfNodes();

    std::vector<std::shared_ptr<TreeNode>> nodes_;
    std::vector<TreeNode*> roots_;
    std::unordered_map<std::string, TreeNode*> byKey_;
    TreeNode* nodeInSight_ = nullptr;
    unsigned generation_ = 0;
    bool checkBoxes_ = false;
};
