#include "hosts/mmc/console/scope_tree.h"

#include <algorithm>

namespace stand_in {

ScopeTree::ScopeTree()
{
    root_ = ++last_;
    nodes_[root_].handle = root_;
    nodes_[root_].textByCall = true;
}

ScopeNode* ScopeTree::find(HSCOPEITEM handle)
{
    const auto found = nodes_.find(handle);
    return found == nodes_.end() ? nullptr : &found->second;
}

ScopeNode& ScopeTree::insert(HSCOPEITEM parent, std::size_t position)
{
    auto& siblings = nodes_.at(parent).children;
    const HSCOPEITEM handle = ++last_;
    siblings.insert(siblings.begin() +
                        static_cast<std::ptrdiff_t>(std::min(position, siblings.size())),
                    handle);
    ScopeNode& node = nodes_[handle];
    node.handle = handle;
    node.parent = parent;
    return node;
}

void ScopeTree::remove(HSCOPEITEM handle)
{
    const std::vector<HSCOPEITEM> below = nodes_.at(handle).children;
    for (const HSCOPEITEM child : below) remove(child);
    if (ScopeNode* parent = find(nodes_.at(handle).parent)) std::erase(parent->children, handle);
    nodes_.erase(handle);
}

std::size_t ScopeTree::positionOf(const ScopeNode& node)
{
    const auto& siblings = nodes_.at(node.parent).children;
    return static_cast<std::size_t>(std::find(siblings.begin(), siblings.end(), node.handle) -
                                    siblings.begin());
}

bool ScopeTree::isWithin(HSCOPEITEM handle, HSCOPEITEM ancestor)
{
    for (const ScopeNode* node = find(handle); node; node = find(node->parent))
        if (node->handle == ancestor) return true;
    return false;
}

bool ScopeTree::hasCookie(MMC_COOKIE cookie) const
{
    return std::any_of(nodes_.begin(), nodes_.end(),
                       [&](const auto& entry) { return entry.second.cookie == cookie; });
}

} // namespace stand_in
