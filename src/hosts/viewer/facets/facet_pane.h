#pragma once

#include "hosts/viewer/document/document.h"

#include <QWidget>

#include <array>
#include <map>

class QTreeWidget;
class QTreeWidgetItem;

namespace viewer {

/// The values of processes, components, sources and levels beside the rows, each with the number
/// of rows it would show and a box that shows or hides them.
///
/// Numbers are of the rows that pass all of the filter but what it asks of the value's own column,
/// so that a value that is hidden tells what it would bring back.
class FacetPane final : public QWidget {
    Q_OBJECT

public:
    /// The document outlives the pane.
    explicit FacetPane(Document& document, QWidget* parent = nullptr);

    QTreeWidget& tree() { return *tree_; }

    /// The item of a value; null for one that is not there.
    QTreeWidgetItem* item(timeline::Column column, const std::string& value) const;

    /// The most values of a column that are listed: those of most rows.
    static constexpr std::size_t mostValues = 200;

private:
    void showTexts();
    void showCounts();
    void showTicks();
    void takeTick(QTreeWidgetItem* item);
    void showOnly(timeline::Column column, const std::string& value);
    void offerMenu(const QPoint& at);
    timeline::Column columnOf(const QTreeWidgetItem& item) const;
    void change(const std::function<void(RowFilter&)>& changing);
    void fill(std::size_t facet, const std::vector<timeline::Facet>& values);

    Document& document_;
    QTreeWidget* tree_;
    std::array<QTreeWidgetItem*, facetColumns.size()> groups_{};
    std::array<std::map<std::string, QTreeWidgetItem*>, facetColumns.size()> items_;
    bool filling_ = false; ///< so that ticks are not the person's
};

} // namespace viewer
