#pragma once

#include "hosts/viewer/calls/call_counting.h"
#include "hosts/viewer/calls/call_order.h"

#include <QAbstractTableModel>
#include <QIcon>

#include <memory>
#include <string>
#include <vector>

namespace viewer {

/// The list of calls as Qt's views see it, in the order of any of its columns.
class CallListModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit CallListModel(QObject* parent = nullptr);

    /// Shows another list, in the order of before; null for none. One that has the calls of before
    /// and others behind them comes without a reset.
    void show(std::shared_ptr<const CallList> list);

    /// The call of a row, and the row of a call; -1 for one that is not listed.
    const timeline::Call& call(int row) const;
    int rowOf(const std::string& id) const;

    QString text(int row, CallColumn column) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    static QString title(CallColumn column);

    /// Shows the headers again, in another language.
    void renewHeaders();

private:
    bool isGrownTo(const CallList& list) const;
    void grow(std::shared_ptr<const CallList> list);
    void order();

    std::shared_ptr<const CallList> list_;
    std::vector<std::uint32_t> rows_; ///< places in the list
    CallColumn column_ = CallColumn::start;
    Qt::SortOrder order_ = Qt::AscendingOrder;
    QIcon error_;
    QIcon warning_;
};

} // namespace viewer
