#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class ScopeItem;

/// Hears of every change in a scope tree.
class ScopeTreeListener {
public:
    virtual ~ScopeTreeListener() = default;

    virtual void itemAdded(ScopeItem& item) = 0;

    /// A name, display name, kind or image changed.
    virtual void itemChanged(ScopeItem& item) = 0;

    /// The item is about to go, with what lies below it; all is in place still.
    virtual void itemLeaving(ScopeItem& item) = 0;

    /// The item is out of the tree; told for what lay below it first.
    virtual void itemRemoved(ScopeItem& item) = 0;
};

/// A node of the console's tree: the scope item and its scope node in one.
///
/// Whoever keeps one longer than a call keeps it weakly: a removed item is gone for good.
class ScopeItem : public std::enable_shared_from_this<ScopeItem> {
public:
    const std::string& typeName() const { return typeName_; }
    const std::string& key() const { return key_; }
    const std::string& name() const { return name_; }
    const std::string& displayName() const { return displayName_; }
    const std::string& kind() const { return kind_; } ///< says how the node is expanded

    /// The name of the picture beside the node, for the host to find; that of the node's type until
    /// it is set. Empty for none.
    const std::string& image() const { return image_; }

    void name(std::string text);
    void displayName(std::string text);
    void kind(std::string text);
    void image(std::string name);

    ScopeItem* parent() const { return parent_; } ///< null for the root
    const std::vector<ScopeItem*>& children() const { return children_; }

    bool inTree() const { return listener_ != nullptr; }

    /// Whether the snap-in was told that the node was opened.
    bool expanded() const { return expanded_; }

    /// Whether there is something to open: nodes below, or, before the first opening, the chance of
    /// some.
    bool hasChildren() const { return !children_.empty() || (opens_ && !expanded_); }

private:
    friend class Console;
    friend class ScopeTree;
    ScopeItem(std::string_view typeName, std::string_view key, ScopeItem* parent,
              ScopeTreeListener& listener);
    void changed();

    std::size_t number_ = 0; ///< in the order of coming
    std::string typeName_;
    std::string key_;
    std::string name_;
    std::string displayName_;
    std::string kind_;
    std::string image_;
    bool opens_ = true; ///< as the type says
    ScopeItem* parent_ = nullptr;
    std::vector<ScopeItem*> children_;
    ScopeTreeListener* listener_ = nullptr;
    bool expanded_ = false;
};

/// All scope items of the snap-in, in the order of their coming, positions from 1.
class ScopeTree {
public:
    explicit ScopeTree(ScopeTreeListener& listener) : listener_(listener) {}

    int count() const { return static_cast<int>(items_.size()); }

    /// Raises 9 for a position that is not there.
    ScopeItem& item(int position) const;

    /// The item of a key, which matches exactly. Raises 35601 for a key that is not there.
    ScopeItem& item(std::string_view key) const;

    /// Null for a key that is not there.
    ScopeItem* find(std::string_view key) const;

    /// The keys that begin with a text, in any case of ASCII letters: those of the youngest items
    /// first.
    std::vector<std::string> keysBeginningWith(std::string_view text) const;

    /// The first item.
    ScopeItem& addRoot(std::string_view typeName, std::string_view key);

    /// Adds a node of a type as the last child of `parent`. Its name and display name are those of
    /// the type until they are set. Raises 9511 when the key is there already, 5 for a parent that
    /// is out of the tree.
    ScopeItem& addChild(std::string_view typeName, std::string_view key, ScopeItem& parent);

    /// Takes an item out with what lies below it. Raises 35601 for a key that is not there.
    void remove(std::string_view key);

private:
    ScopeItem& add(std::string_view typeName, std::string_view key, ScopeItem* parent);
    void removeWithChildren(ScopeItem& item);

    ScopeTreeListener& listener_;
    std::vector<std::shared_ptr<ScopeItem>> items_;
    std::unordered_map<std::string_view, ScopeItem*> byKey_; ///< keys belong to the items
    std::multimap<std::string, ScopeItem*> byLowerKey_;
    std::size_t added_ = 0;
};
