#pragma once

#include "hosts/desktop/window/quiet_observer.h"

#include <QAbstractItemModel>

#include <memory>
#include <unordered_map>
#include <vector>

class Console;

namespace desktop {

/// The console's tree as Qt's views see it; changes by the console's notifications alone.
class ScopeModel final : public QAbstractItemModel, private QuietObserver {
    Q_OBJECT

public:
    /// `console` outlives the model.
    explicit ScopeModel(Console& console, QObject* parent = nullptr);
    ~ScopeModel() override;

    /// Invalid for an item that is not in the tree.
    QModelIndex indexOf(const ScopeItem& item) const;

    /// Null for an invalid index.
    ScopeItem* itemAt(const QModelIndex& index) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;

    /// Whether a node may be opened: a log never, another as long as it was not.
    bool hasChildren(const QModelIndex& parent = {}) const override;

    /// A log goes by the moment it was begun ("19 Feb 14:41 · current"), in the interface language;
    /// its tool tip, and what a screen reader is given, is the tool's own name for it.
    QVariant data(const QModelIndex& index, int role) const override;

private:
    /// An entry of the tree. The console tells of a removal when the item has no parent any more,
    /// so its parent is kept here.
    struct Entry {
        ScopeItem* item = nullptr;
        Entry* parent = nullptr;
        std::vector<std::unique_ptr<Entry>> children;
    };

    void scopeItemAdded(ScopeItem& item) override;
    void scopeItemChanged(ScopeItem& item) override;
    void scopeItemRemoved(ScopeItem& item) override;

    static QString shownName(const Entry& entry);
    void fill(Entry& entry);
    Entry* entryOf(const ScopeItem& item) const;
    const Entry& entryAt(const QModelIndex& index) const;
    static int rowOf(const Entry& entry);
    QModelIndex indexOf(const Entry* entry) const;

    Console& console_;
    Entry top_; ///< above the root
    std::unordered_map<const ScopeItem*, Entry*> entries_;
};

} // namespace desktop
