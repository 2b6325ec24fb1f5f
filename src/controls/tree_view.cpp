#include "controls/tree_view.h"

#include "runtime/run_time_error.h"

namespace {
constexpr int indexOutOfBounds = 35600;
constexpr int nodeWasRemoved = 35605;
} // namespace

TreeView& TreeNode::tree() const
{
    if (!tree_) throw RunTimeError(nodeWasRemoved, "This item's control has been deleted");
    return *tree_;
}

void TreeNode::setText(std::string text)
{
    tree().assign(text_, std::move(text));
}

void TreeNode::setKey(std::string key)
{
    if (key == key_) return;
    auto& byKey = tree().byKey_;
    if (!key.empty() && !byKey.emplace(key, this).second)
        throw RunTimeError(runTimeErrors::keyNotUnique);
    byKey.erase(key_);
    tree().assign(key_, std::move(key));
}

void TreeNode::setBold(bool bold)
{
    tree().assign(bold_, bold);
}

void TreeNode::setExpanded(bool expanded)
{
    tree().assign(expanded_, expanded);
}

void TreeNode::setChecked(bool checked)
{
    tree().assign(checked_, checked);
}

TreeNode* TreeNode::next() const
{
    if (!tree_) return nullptr;
    const auto& siblings = parent_ ? parent_->children_ : tree_->roots_;
    return position_ + 1 < siblings.size() ? siblings[position_ + 1] : nullptr;
}

std::string TreeNode::fullPath() const
{
    tree();
    return parent_ ? parent_->fullPath() + "\\" + text_ : text_;
}

void TreeNode::ensureVisible()
{
    tree().nodeInSight_ = this;
    for (TreeNode* above = parent_; above; above = above->parent_) above->expanded_ = true;
    tree().notify();
}

TreeNode& TreeView::add(std::string text, std::string key)
{
    return insert(nullptr, std::move(text), std::move(key));
}

TreeNode& TreeView::addChild(TreeNode& parent, std::string text, std::string key)
{
    return insert(&parent, std::move(text), std::move(key));
}

TreeNode& TreeView::insert(TreeNode* parent, std::string text, std::string key)
{
    if (!key.empty() && byKey_.count(key) != 0) throw RunTimeError(runTimeErrors::keyNotUnique);
    auto& siblings = parent ? parent->children_ : roots_;
    nodes_.push_back(std::shared_ptr<TreeNode>(new TreeNode(*this, parent, siblings.size())));
    TreeNode& node = *nodes_.back();
    siblings.push_back(&node);
    node.text_ = std::move(text);
    if (!key.empty()) byKey_.emplace(key, &node);
    node.key_ = std::move(key);
    notify();
    return node;
}

TreeView::~TreeView()
{
    letGoOfNodes();
}

void TreeView::clear()
{
    letGoOfNodes();
    ++generation_;
    notify();
}

void TreeView::letGoOfNodes()
{
    for (const auto& node : nodes_) {
        node->tree_ = nullptr;
        node->parent_ = nullptr;
        node->children_.clear();
    }
    nodeInSight_ = nullptr;
    byKey_.clear();
    roots_.clear();
    nodes_.clear();
}

TreeNode& TreeView::item(int index) const
{
    return *hold(index);
}

std::shared_ptr<TreeNode> TreeView::hold(int index) const
{
    if (index < 1 || index > count()) throw RunTimeError(indexOutOfBounds, "Index out of bounds");
    return nodes_[static_cast<std::size_t>(index - 1)];
}

TreeNode& TreeView::item(std::string_view key) const
{
    const auto found = byKey_.find(std::string(key));
    if (found == byKey_.end()) throw RunTimeError(runTimeErrors::keyNotFound);
    return *found->second;
}

void TreeView::checkByPerson(TreeNode& node, bool checked)
{
    if (!usable() || !checkBoxes_ || node.checked() == checked) return;
    node.setChecked(checked);
    if (onNodeCheck) onNodeCheck(node);
}

void TreeView::expandByPerson(TreeNode& node, bool expanded)
{
    if (usable()) node.setExpanded(expanded);
}

void TreeView::mouseMove(int x, int y)
{
    if (usable() && onMouseMove) onMouseMove(x, y);
}
