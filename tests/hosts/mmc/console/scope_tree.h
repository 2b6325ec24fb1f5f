#pragma once

#include "hosts/mmc/console/handed_texts.h"

#include <map>
#include <string>
#include <vector>

namespace stand_in {

/// A node of the scope tree, as the snap-in inserted it.
struct ScopeNode {
    HSCOPEITEM handle = 0;
    HSCOPEITEM parent = 0; ///< 0 for the root
    MMC_COOKIE cookie = 0;
    std::vector<HSCOPEITEM> children;
    std::string text;        ///< where the text is not called for
    bool textByCall = false; ///< whether `GetDisplayInfo` gives the text
    int image = 0;           ///< `MMC_IMAGECALLBACK` where `GetDisplayInfo` gives it
    int openImage = 0;
    int childrenTold = -1;     ///< what the snap-in said of its children; -1 for nothing
    bool expandedOnce = false; ///< whether MMCN_EXPAND was sent for it
    int changes = 0;           ///< how often the snap-in set it anew
};

/// The console's scope tree: handles are never used twice.
class ScopeTree {
public:
    ScopeTree();

    HSCOPEITEM root() const { return root_; }

    /// Null for a handle that is not, or no longer, in the tree.
    ScopeNode* find(HSCOPEITEM handle);

    /// A new node below `parent`, at a position among its children from 0; behind the last for one
    /// that is too large.
    ScopeNode& insert(HSCOPEITEM parent, std::size_t position);

    /// Removes a node and what lies below it.
    void remove(HSCOPEITEM handle);

    /// The position of a node among its parent's children.
    std::size_t positionOf(const ScopeNode& node);

    /// Whether `handle` is `ancestor` or lies below it.
    bool isWithin(HSCOPEITEM handle, HSCOPEITEM ancestor);

    bool hasCookie(MMC_COOKIE cookie) const;

    std::size_t size() const { return nodes_.size(); }

private:
    std::map<HSCOPEITEM, ScopeNode> nodes_;
    HSCOPEITEM root_ = 0;
    HSCOPEITEM last_ = 0x5000; // no small numbers, which a snap-in could take for its own
};

} // namespace stand_in
