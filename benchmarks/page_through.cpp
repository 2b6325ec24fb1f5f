#include "page_through.h"

#include "hosts/desktop/log/list_table.h"
#include "hosts/desktop/log/log_view.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>
#include <chrono>
#include <vector>

namespace desktop {

namespace {

using Clock = std::chrono::steady_clock;

/// The same rows as texts that are ready.
class ReadyTexts final : public QAbstractTableModel {
public:
    explicit ReadyTexts(const ListModel& rows)
        : columns_(rows.columnCount()), texts_(static_cast<std::size_t>(rows.rowCount()))
    {
        for (int row = 0; row < rows.rowCount(); ++row)
            for (int column = 1; column <= columns_; ++column)
                texts_[static_cast<std::size_t>(row)] << rows.text(row, column);
    }

    int rowCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(texts_.size());
    }

    int columnCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : columns_;
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role != Qt::DisplayRole) return {};
        return texts_[static_cast<std::size_t>(index.row())][index.column()];
    }

private:
    int columns_;
    std::vector<QStringList> texts_;
};

/// One page: the key, and all events until it is painted.
long long page(QTableView& table)
{
    const auto begin = Clock::now();
    QKeyEvent down(QEvent::KeyPress, Qt::Key_PageDown, Qt::NoModifier);
    QApplication::sendEvent(&table, &down);
    QCoreApplication::processEvents();
    return std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - begin).count();
}

std::string pages(QTableView& table, const std::string& name)
{
    table.setCurrentIndex(table.model()->index(0, 0));
    table.scrollToTop();
    for (int round = 0; round < 5; ++round) QCoreApplication::processEvents();
    std::vector<long long> took;
    const int last = table.model()->rowCount() - 1;
    while (table.currentIndex().row() < last) took.push_back(page(table));
    if (took.empty()) return name + " 0 0 0";
    std::sort(took.begin(), took.end());
    return name + ' ' + std::to_string(took.size()) + ' ' + std::to_string(took[took.size() / 2]) +
           ' ' + std::to_string(took.back());
}

} // namespace

void pageThrough(LogView& log, const std::function<void(const std::string&)>& say)
{
    ListTable& table = log.table();
    ListModel& rows = log.model();

    ReadyTexts texts(rows);
    QTableView plain;
    plain.setModel(&texts);
    plain.setFont(table.font());
    plain.setWordWrap(false);
    plain.setShowGrid(false);
    plain.verticalHeader()->hide();
    plain.verticalHeader()->setDefaultSectionSize(table.verticalHeader()->defaultSectionSize());
    plain.setSelectionBehavior(QAbstractItemView::SelectRows);
    for (int column = 0; column < rows.columnCount(); ++column)
        plain.setColumnWidth(column, table.columnWidth(column));
    plain.resize(table.size());
    plain.show();

    say(pages(plain, "plain"));
    say(pages(table, "log"));
    rows.sort(rows.columnCount() - 1, Qt::AscendingOrder);
    say(pages(table, "sorted"));
    LogFilter filter;
    filter.text = TextMatcher(rows.decoder().codePage(), u"e");
    rows.filter(filter);
    say(pages(table, "filtered"));
}

} // namespace desktop
