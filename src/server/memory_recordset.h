#pragma once

#include <cstddef>
#include <string>
#include <vector>

/// A table that lives only in memory: fixed-length text columns, filled row by row, then sorted.
class MemoryRecordset {
public:
    /// Declares a column of so many characters. Raises 3705 once the table is open.
    void append(const std::string& name, std::size_t size);

    /// Raises 3705 when it is open already.
    void open();

    /// Begins a row of blanks; it counts from `update` on. Raises 3704 before `open`.
    void addNew();

    /// Sets a column of the row that is being added, or of the current one: padded with blanks, cut
    /// to the column's size. Raises 3265 for no such column, 3021 for no row.
    void set(const std::string& name, const std::string& text);

    /// Keeps the row that was begun, which becomes the current one. Raises 3021 when none was.
    void update();

    /// Orders the rows by a column without regard to the case of ASCII letters; equal ones keep
    /// their order. The first row becomes the current one. Raises 3265.
    void sort(const std::string& name);

    /// Nothing happens without rows.
    void moveFirst();

    /// Raises 3021 at the end.
    void moveNext();

    bool atEnd() const { return position_ >= rows_.size(); }
    int recordCount() const { return static_cast<int>(rows_.size()); }

    /// A column of the current row at its full, blank-padded length. Raises 3265, 3021.
    const std::string& field(const std::string& name) const;

private:
    struct Column {
        std::string name;
        std::size_t size;
    };

    std::size_t columnOf(const std::string& name) const;

    std::vector<Column> columns_;
    std::vector<std::vector<std::string>> rows_;
    std::vector<std::string> added_; ///< empty when no row is being added
    std::size_t position_ = 0;
    bool open_ = false;
};
