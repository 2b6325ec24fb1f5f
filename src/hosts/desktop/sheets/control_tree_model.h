#pragma once

#include "controls/tree_view.h"

#include <QAbstractItemModel>

#include <functional>
#include <memory>
#include <vector>

namespace desktop {

/// The nodes of a tree control as Qt's views see them.
///
/// Nodes go without a warning when the page fills its tree anew: `detach` at the first sign of it
/// lets go of all, and `attach` takes the new ones.
class ControlTreeModel final : public QAbstractItemModel {
    Q_OBJECT

public:
    explicit ControlTreeModel(TreeView& tree, QObject* parent = nullptr);

    void attach();
    void detach();
    bool attached() const { return attached_; }

    /// Whether the tree holds other nodes than those that were taken.
    bool outdated() const
    {
        return !attached_ || tree_.generation() != generation_ || tree_.count() != count_;
    }

    /// Texts, ticks or weights of nodes changed.
    void nodesChanged();

    TreeNode* nodeAt(const QModelIndex& index) const;
    QModelIndex indexOf(const TreeNode& node) const;

    /// Takes the person's tick to the page.
    std::function<void(TreeNode& node, bool checked)> onTick;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

private:
    struct Entry {
        TreeNode* node = nullptr;
        Entry* parent = nullptr;
        int row = 0;
        std::vector<std::unique_ptr<Entry>> children;
    };

    void take(Entry& above, TreeNode& node);
    const Entry& entryAt(const QModelIndex& index) const;
    QModelIndex indexOf(const Entry& entry) const;

    TreeView& tree_;
    Entry top_;
    std::unordered_map<const TreeNode*, const Entry*> entries_;
    unsigned generation_ = 0;
    int count_ = 0;
    bool attached_ = false;
};

} // namespace desktop
