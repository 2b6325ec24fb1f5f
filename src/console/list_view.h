#pragma once

#include "console/snap_in_definition.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// A column as the view shows it.
struct ColumnHeader {
    std::string key; ///< empty for a column that is addressed by position alone
    std::string text;
    int width = automaticWidth;
};

/// An order of rows that a person chose.
struct RowOrder {
    int column = 0; ///< from 1; 0 for the list's own order
    bool ascending = true;

    friend bool operator==(const RowOrder&, const RowOrder&) = default;
};

class ListView;

/// A row: a text and sub-items numbered from 1. Sub-item n shows in column n.
///
/// A handle of two words; good until the row's list is cleared or a row is put before it. Texts
/// hold until the list changes.
class ListItem {
public:
    int index() const { return static_cast<int>(row_) + 1; } ///< from 1
    std::string_view text() const;
    int subItemCount() const;

    /// The empty text where the row has no such sub-item.
    std::string_view subItem(int index) const;

    /// Puts a sub-item in at `index`; what stood there moves on. Raises 9 for an index below 1 or
    /// past the one behind the last.
    void addSubItem(int index, std::string_view text);

    /// A text that goes with the row and that no column shows; empty unless one was given.
    std::string_view note() const;

    /// Raises 14 when the list's texts pass 4 GiB.
    void setNote(std::string_view note);

private:
    friend class ListView;
    ListItem(ListView& list, std::size_t row) : list_(&list), row_(row) {}

    ListView* list_;
    std::size_t row_;
};

/// The columns and rows of a result view.
///
/// All texts of the rows lie in one buffer, so that tens of thousands of rows cost a handful of
/// allocations.
class ListView {
public:
    explicit ListView(const ListViewDefinition& definition);

    const ListViewDefinition& definition() const { return definition_; }

    int columnCount() const { return static_cast<int>(columns_.size()); }

    /// By position from 1, or by key. Raise 9, or 35601, for a column that is not there.
    ColumnHeader& column(int position);
    ColumnHeader& column(std::string_view key);
    const std::vector<ColumnHeader>& columns() const { return columns_; }

    /// Adds a column of default values behind the last.
    void addColumn() { columns_.emplace_back(); }

    int itemCount() const { return static_cast<int>(rows_.size()); }

    /// Puts a row in at `index`; what stood there moves on. Raises 9 for an index below 1 or past
    /// the one behind the last row, 14 when the list's texts pass 4 GiB.
    ListItem addItem(int index, std::string_view text);

    /// Raises 9 for a row that is not there.
    ListItem item(int index);

    /// Drops all rows and their memory; columns stay.
    void clear();

    /// Puts the rows in the order that the definition asks for on load.
    void sortOnLoad();

    /// The row at a position on the screen, from 1: in the order of the last sort, or of the index
    /// when rows came since. Raises 9 for one that is not there.
    ListItem shown(int row);

    /// What the person chose. No row moves by it: `row_order.h` puts those in order that a host
    /// shows.
    const RowOrder& chosenOrder() const { return chosenOrder_; }
    void chooseOrder(RowOrder order) { chosenOrder_ = order; }

private:
    friend class ListItem;
    struct Text {
        std::uint32_t start = 0;
        std::uint32_t length = 0;
    };
    struct Row {
        Text text;
        std::uint32_t firstCell = 0;
        std::uint32_t cellCount = 0;
        Text note;
    };

    Text store(std::string_view text);
    std::string_view view(Text text) const { return {bytes_.data() + text.start, text.length}; }
    std::string_view cell(std::size_t row, int index) const;
    void addCell(std::size_t row, int index, std::string_view text);

    const ListViewDefinition& definition_;
    std::vector<ColumnHeader> columns_;
    std::string bytes_;
    std::vector<Row> rows_;
    std::vector<Text> cells_;
    std::vector<std::uint32_t> order_; ///< empty: as the rows stand
    RowOrder chosenOrder_;
};
