#include "hosts/viewer/facets/facet_pane.h"

#include "hosts/common/look/interface_language.h"
#include "hosts/common/look/plain_tool_tip.h"
#include "hosts/common/look/roomy_delegate.h"
#include "hosts/viewer/document/shown_row.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>
#include <QMenu>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace viewer {

namespace {

constexpr int valueRole = Qt::UserRole;

std::string valueOf(const QTreeWidgetItem& item)
{
    return item.data(0, valueRole).toString().toStdString();
}
constexpr int countColumn = 1;

std::size_t facetOf(timeline::Column column)
{
    return static_cast<std::size_t>(std::find(facetColumns.begin(), facetColumns.end(), column) -
                                    facetColumns.begin());
}

/// Numbers by their size, other texts by their letters.
class FacetItem final : public QTreeWidgetItem {
public:
    using QTreeWidgetItem::QTreeWidgetItem;

    bool operator<(const QTreeWidgetItem& other) const override
    {
        const QString one = data(0, valueRole).toString();
        const QString two = other.data(0, valueRole).toString();
        bool isNumber = false;
        bool areNumbers = false;
        const int number = one.toInt(&isNumber);
        const int otherNumber = two.toInt(&areNumbers);
        if (isNumber && areNumbers) return number < otherNumber;
        return one.compare(two, Qt::CaseInsensitive) < 0;
    }
};

} // namespace

FacetPane::FacetPane(Document& document, QWidget* parent)
    : QWidget(parent), document_(document), tree_(new QTreeWidget(this))
{
    tree_->setColumnCount(2);
    tree_->setHeaderHidden(true);
    tree_->setFrameShape(QFrame::NoFrame);
    tree_->setItemDelegate(new RoomyDelegate(tree_));
    tree_->setRootIsDecorated(true);
    tree_->setContextMenuPolicy(Qt::CustomContextMenu);
    tree_->header()->setStretchLastSection(false);
    tree_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    tree_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    QFont bold = tree_->font();
    bold.setBold(true);
    for (auto*& group : groups_) {
        group = new QTreeWidgetItem(tree_);
        group->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        group->setFont(0, bold);
        group->setExpanded(true);
    }
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(tree_);
    connect(tree_, &QTreeWidget::itemChanged, this, &FacetPane::takeTick);
    connect(tree_, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
        if (item->parent() != nullptr) showOnly(columnOf(*item), valueOf(*item));
    });
    connect(tree_, &QWidget::customContextMenuRequested, this, &FacetPane::offerMenu);
    connect(&document_, &Document::countsChanged, this, &FacetPane::showCounts);
    connect(&document_, &Document::filterChanged, this, &FacetPane::showTicks);
    showInLanguage(this, [this] { showTexts(); });
}

void FacetPane::showTexts()
{
    tree_->setAccessibleName(tr("Values"));
    const std::array titles = {tr("Processes"), tr("Components"), tr("Sources"), tr("Levels")};
    for (std::size_t facet = 0; facet < groups_.size(); ++facet)
        groups_[facet]->setText(0, titles[facet]);
    filling_ = true;
    for (const auto& items : items_)
        if (const auto none = items.find({}); none != items.end())
            none->second->setText(0, tr("(none)"));
    filling_ = false;
    showCounts();
}

QTreeWidgetItem* FacetPane::item(timeline::Column column, const std::string& value) const
{
    const auto& items = items_[facetOf(column)];
    const auto found = items.find(value);
    return found == items.end() ? nullptr : found->second;
}

void FacetPane::showCounts()
{
    const RowCounts* counts = document_.counts();
    filling_ = true;
    for (std::size_t facet = 0; facet < facetColumns.size(); ++facet) {
        const bool counted = counts != nullptr && counts->facets[facet];
        // What was counted of the view before is still a help until the new counts are there.
        if (counted) fill(facet, *counts->facets[facet]);
        const bool waits = !counted && items_[facet].empty() && document_.hasSources();
        groups_[facet]->setText(countColumn, waits ? QString(QChar(0x2026)) : QString());
    }
    filling_ = false;
    showTicks();
}

void FacetPane::fill(std::size_t facet, const std::vector<timeline::Facet>& values)
{
    const QLocale locale;
    auto& items = items_[facet];
    std::map<std::string, std::uint64_t> shown;
    for (const timeline::Facet& value : values)
        if (shown.size() < mostValues) shown.emplace(value.value, value.rows);
    // What the filter names can be taken back, whether rows have it or not.
    for (const timeline::ColumnChoice& choice : document_.filter().columns)
        if (choice.column == facetColumns[facet])
            for (const std::string& value : choice.values) shown.try_emplace(value, 0);
    for (auto at = items.begin(); at != items.end();) {
        if (shown.count(at->first) != 0) {
            ++at;
            continue;
        }
        delete at->second;
        at = items.erase(at);
    }
    bool added = false;
    for (const auto& [value, rows] : shown) {
        QTreeWidgetItem*& item = items[value];
        if (item == nullptr) {
            const QString text = harmless(QString::fromStdString(value));
            item = new FacetItem(groups_[facet]);
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
            item->setData(0, valueRole, QString::fromStdString(value));
            item->setText(0, text.isEmpty() ? tr("(none)") : text);
            item->setToolTip(0, plainToolTip(text));
            item->setTextAlignment(countColumn, Qt::AlignRight | Qt::AlignVCenter);
            item->setCheckState(0, Qt::Checked);
            added = true;
        }
        item->setText(countColumn, locale.toString(static_cast<qulonglong>(rows)));
    }
    if (added) groups_[facet]->sortChildren(0, Qt::AscendingOrder);
}

void FacetPane::showTicks()
{
    filling_ = true;
    for (std::size_t facet = 0; facet < facetColumns.size(); ++facet)
        for (const auto& [value, item] : items_[facet])
            item->setCheckState(0, document_.filter().shows(facetColumns[facet], value)
                                       ? Qt::Checked
                                       : Qt::Unchecked);
    filling_ = false;
}

void FacetPane::change(const std::function<void(RowFilter&)>& changing)
{
    RowFilter filter = document_.filter();
    changing(filter);
    document_.setFilter(std::move(filter));
}

void FacetPane::takeTick(QTreeWidgetItem* item)
{
    if (filling_ || item->parent() == nullptr) return;
    change([&](RowFilter& filter) {
        filter.show(columnOf(*item), valueOf(*item), item->checkState(0) == Qt::Checked);
    });
}

/// The column of a value, or that of a group of values.
timeline::Column FacetPane::columnOf(const QTreeWidgetItem& item) const
{
    const QTreeWidgetItem* group = item.parent() != nullptr ? item.parent() : &item;
    const auto found = std::find(groups_.begin(), groups_.end(), group);
    return facetColumns[static_cast<std::size_t>(found - groups_.begin())];
}

/// Shows rows of the value alone, or of all values where it was alone already.
void FacetPane::showOnly(timeline::Column column, const std::string& value)
{
    change([&](RowFilter& filter) {
        RowFilter alone = filter;
        alone.showOnly(column, value);
        if (alone.toJson() == filter.toJson())
            filter.clear(column);
        else
            filter = std::move(alone);
    });
}

void FacetPane::offerMenu(const QPoint& at)
{
    QTreeWidgetItem* item = tree_->itemAt(at);
    if (item == nullptr) return;
    const timeline::Column column = columnOf(*item);
    QMenu menu(this);
    // Items go and come while the menu is open; values stay what they are.
    if (item->parent() != nullptr)
        connect(menu.addAction(tr("&Only This")), &QAction::triggered, this,
                [this, column, value = valueOf(*item)] { showOnly(column, value); });
    connect(menu.addAction(tr("Show &All Values")), &QAction::triggered, this,
            [this, column] { change([&](RowFilter& filter) { filter.clear(column); }); });
    menu.exec(tree_->viewport()->mapToGlobal(at));
}

} // namespace viewer
